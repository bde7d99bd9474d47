// A data file: what is read, saved and read again is the same, and a change of one field changes nothing
// else.

#include "Fuzzing.h"
#include "store/DocumentElements.h"
#include "store/XmlDocument.h"

using namespace zel;
using zel::fuzz::require;

namespace {

std::string recordsOf(const XmlDocument& document) {
    return fuzz::textOf(Records::read(document.root(), LocalZone{}));
}

/// An encoding that lacks characters of a name cannot write it; such a save is refused.
bool holdsEverything(const QByteArray& file) {
    return detectEncoding(file).name.toUpper().startsWith("UTF-");
}

void requireOneChange(XmlDocument& document) {
    const pugi::xml_node element = firstElement(document.root(), "Patient");
    if (!firstElement(element, "FamilyName")) return;
    const PatientModel before = PatientModel::initWithXMLNode(element);
    PatientModel wanted = before;
    wanted.FamilyName += u'x';
    wanted.makeUpDisplayName();
    wanted.updateXMLNode(element, false, &before);
    const auto again = XmlDocument::parse(document.serialise().value());
    require(again.has_value(), "a changed document can be read");
    require(PatientModel::initWithXMLNode(firstElement(again->root(), "Patient")) == wanted,
            "a save changes the field that was changed and no other");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray file = fuzz::bytesOf(data, size);
    auto document = XmlDocument::parse(file);
    if (!document) {
        require(!document.error().isEmpty(), "a refusal says why");
        return 0;
    }
    const std::string before = recordsOf(*document);
    const auto written = document->serialise();
    if (!holdsEverything(file)) return 0;
    require(written.has_value(), "what is taken can be written");
    const auto again = XmlDocument::parse(*written);
    require(again.has_value(), "what is written can be read");
    require(recordsOf(*again) == before, "saved and read again, the records are the same");
    // A blank between elements that a reference stood for is written as a blank, which is no text there.
    const auto settled = again->serialise().value();
    require(XmlDocument::parse(settled).value().serialise().value() == settled,
            "a later save changes nothing");
    requireOneChange(*document);
    return 0;
}
