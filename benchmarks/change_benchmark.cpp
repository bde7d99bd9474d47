// One record changed in a data file of 100,000 readings, beside parsing and saving it: the change alone, and
// as the store makes it, which looks at the bytes once more before they take the file's place.

#include "BenchHome.h"
#include "Figure.h"
#include "MadeDataFile.h"
#include "store/AtomicFile.h"
#include "store/DocumentElements.h"
#include "store/XmlDocument.h"

#include <QCoreApplication>
#include <QFile>

#include <sstream>
#include <vector>

namespace {

using namespace zel;

constexpr const char* patient = "P00001";

struct BareWriter final : pugi::xml_writer {
    QByteArray bytes;
    void write(const void* data, std::size_t size) override {
        bytes.append(static_cast<const char*>(data), static_cast<qsizetype>(size));
    }
};

/// One kind of change, on the document and through the store, each time another one.
struct Kind {
    const char* name;
    std::function<void(pugi::xml_node root)> edit;
    std::function<StoreResult(DataStore& store)> save;
    bool isReloaded; ///< the store reads the lists again behind it
};

void changeComment(pugi::xml_node root) {
    const pugi::xml_node element = root.child("Comment");
    CommentModel comment = CommentModel::initWithXMLNode(element, LocalZone{});
    comment.comment += u'!';
    comment.updateXMLNode(element);
}

void changeSetting(pugi::xml_node root) {
    const pugi::xml_node element = root.child("SystemSetting");
    const SettingModel before = SettingModel::initWithXMLNode(element);
    SettingModel wanted = before;
    wanted.metricFormat = QStringLiteral("other");
    wanted.updateXMLNode(element, &before);
}

void excludeOne(pugi::xml_node root) {
    const pugi::xml_node element = placeForReadings(root, QString::fromLatin1(patient));
    const auto before = ReadingModel::initWithXMLNode(element);
    ReadingModel excluded = before;
    excluded.exclusion = QStringLiteral("too early");
    excluded.changeXMLNode(element, before);
}

StoreResult saveComment(DataStore& store) {
    CommentModel comment = *store.getCommentForCurID().front();
    const CommentModel before = comment;
    comment.comment += u'!';
    return store.saveCommentToXML(comment, before);
}

StoreResult saveSetting(DataStore& store) {
    QString& unit = store.getSetting().metricFormat;
    unit = unit == u"kg / cm" ? QStringLiteral("pounds") : QStringLiteral("kg / cm");
    return store.saveSetting();
}

StoreResult saveExclusion(DataStore& store) {
    const ReadingList one{store.getReadingForCurID().front()};
    return one.front().isExcluded() ? store.includeReadings(one).map([](const TakenInAgain&) {})
                                    : store.excludeReadings(one, QStringLiteral("too early"));
}

/// Without the disk.
void measureChange(const BenchHome& home, const Kind& kind, int rounds) {
    const std::string copy = home.name() + ".copy";
    const Pair pair = inTurn(
        rounds,
        [&] {
            auto document = XmlDocument::parse(readFile(home.path).value_or(QByteArray{}));
            require(document.has_value(), "the data file could not be parsed");
            kind.edit(document->root());
            QFile file{QString::fromStdString(copy)};
            require(file.open(QIODevice::WriteOnly) && file.write(*document->serialise()) > 0, "not written");
        },
        [&] {
            pugi::xml_document document;
            document.load_file(home.name().c_str());
            document.save_file(copy.c_str(), "    ");
        },
        processorSeconds);
    print({.what = std::string{kind.name} + " changed, without flush and second look",
           .unit = "ms",
           .ours = pair.ours * 1e3,
           .against = "pugixml parses and saves the file",
           .bare = pair.bare * 1e3,
           .target = 1.1,
           .ratio = pair.ratio});
}

/// All that the store does, until the file is on the disk; reading the lists again is timed apart.
void measureSave(BenchHome& home, const Kind& kind, int rounds) {
    std::vector<double> own, other, ratios;
    const QString copy = home.path + QStringLiteral(".copy");
    for (int round = 0; round < rounds; ++round) {
        const double reload = seconds([&] { require(home.store.loadXML().has_value(), "not loaded"); });
        const double saved = seconds([&] { require(kind.save(home.store).has_value(), "not saved"); });
        own.push_back(saved - (kind.isReloaded ? reload : 0));
        other.push_back(seconds([&] {
            pugi::xml_document document;
            document.load_file(home.name().c_str());
            BareWriter writer;
            document.save(writer, "    ");
            document.reset();
            require(replaceFile(copy, writer.bytes).has_value(), "not written");
        }));
        ratios.push_back(own.back() / other.back());
    }
    const Pair pair{median(own), median(other), median(ratios)};
    print({.what = std::string{kind.name} + " changed and on the disk",
           .unit = "ms",
           .ours = pair.ours * 1e3,
           .against = "pugixml parses and saves it there",
           .bare = pair.bare * 1e3,
           .target = 1.5,
           .ratio = pair.ratio});
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application{argc, argv};
    const bool small = isSmall(argc, argv);
    const std::vector<Kind> kinds{{"A comment", changeComment, saveComment, true},
                                  {"A setting", changeSetting, saveSetting, false},
                                  {"An exclusion", excludeOne, saveExclusion, true}};
    BenchHome home{small ? makeDataFile(20, 1'000) : makeDataFile(200, 100'000)};
    require(home.store.loadXML().has_value(), "the data file could not be loaded");
    home.store.setCurrentID(QStringLiteral("P00007")); // whose comment it is
    for (const Kind& kind : kinds)
        measureChange(home, kind, small ? 3 : 11);
    for (const Kind& kind : kinds)
        measureSave(home, kind, small ? 3 : 11);
}
