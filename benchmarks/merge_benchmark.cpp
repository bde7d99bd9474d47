// Which of the 255 readings of a full monitor are new to a patient who has 100,000, beside a hash of the same
// keys: of all stored readings, as their texts stand in the document.

#include "BenchHome.h"
#include "Figure.h"
#include "MadeDataFile.h"
#include "store/NewReadings.h"
#include "store/Records.h"
#include "store/XmlDocument.h"

#include <QCoreApplication>

#include <unordered_set>

namespace {

using namespace zel;

constexpr const char* patient = "P00000";
constexpr std::size_t fullMonitor = 255;

/// Date and values of a reading as the file has them: all but whose it is and its number, which stand first.
std::string keyOf(pugi::xml_node element) {
    std::string key;
    key.reserve(64);
    for (auto child = element.first_child().next_sibling().next_sibling(); child;
         child = child.next_sibling())
        (key += child.text().get()) += '\n';
    return key;
}

std::unordered_set<std::string> keysBelow(pugi::xml_node root) {
    std::unordered_set<std::string> keys;
    for (const pugi::xml_node element : root.children("MeasureRec"))
        if (std::string_view{element.child("ID").text().get()} == patient) keys.insert(keyOf(element));
    return keys;
}

/// Every other one of them is stored: the last of the file, and their twins an hour and a bit later.
pugi::xml_node addDownload(pugi::xml_node root, ReadingList& downloaded) {
    using namespace std::chrono_literals;
    const pugi::xml_node elements = root.append_child("Downloaded");
    for (auto at = root.last_child(); at && downloaded.size() < fullMonitor; at = at.previous_sibling()) {
        if (std::string_view{at.name()} != "MeasureRec") continue;
        ReadingModel reading = ReadingModel::initWithXMLNode(at);
        if (downloaded.size() % 2 == 1) *reading.ReadingDate += 61min;
        downloaded.push_back(reading);
        reading.updateXMLNode(ReadingModel::makeXmlNode(elements));
    }
    return elements;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application{argc, argv};
    const bool small = isSmall(argc, argv);
    const int readings = small ? 2'000 : 100'000;
    auto document = XmlDocument::parse(makeDataFile(1, readings));
    require(document.has_value(), "the data file could not be parsed");
    const pugi::xml_node root = document->root();
    ReadingList downloaded;
    const pugi::xml_node elements = addDownload(root, downloaded);
    std::size_t isNew = 0, isUnknown = 0;
    const QString ID = QString::fromLatin1(patient);
    const Pair pair = inTurn(
        small ? 3 : 21,
        [&] {
            const ReadingList added = newReadings(root, ID, downloaded);
            isNew = added.size() - typedMeanwhileMeasured(root, ID, added).size();
        },
        [&] {
            const auto keys = keysBelow(root);
            isUnknown = 0;
            for (const pugi::xml_node element : elements.children())
                isUnknown += keys.contains(keyOf(element)) ? 0U : 1U;
        },
        processorSeconds);
    require(isNew == isUnknown && isNew > 0, "the two do not agree");
    print({.what = "Merge of 255 downloaded readings into " + std::to_string(readings) + " of one patient",
           .unit = "ms",
           .ours = pair.ours * 1e3,
           .against = "a hash of the same keys",
           .bare = pair.bare * 1e3,
           .target = 5,
           .ratio = pair.ratio});
}
