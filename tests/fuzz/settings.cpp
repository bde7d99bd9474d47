// Settings as the command line takes them, one KEY=VALUE a line: what is taken is stored and read again, what
// is refused changes nothing, and no other setting changes.

#include "Fuzzing.h"
#include "store/DocumentElements.h"
#include "store/SettingKeys.h"
#include "store/XmlDocument.h"

using namespace zel;
using zel::fuzz::require;

namespace {

void requireOthersKept(const SettingModel& before, const SettingModel& after, const SettingKey& changed) {
    for (const SettingKey& key : settingKeys())
        if (&key != &changed) require(key.text(after) == key.text(before), "no other setting changes");
}

bool isSameValue(const QString& kept, const QString& wanted) {
    return kept == wanted || kept == QString::number(wanted.toUInt()); // "007" is 7
}

void requireStored(const SettingModel& shown, const SettingModel& wanted) {
    auto document = XmlDocument::parse("<ZEL><Patient><ID>A</ID></Patient></ZEL>").value();
    const pugi::xml_node element = SettingModel::makeXmlNode(document.root());
    shown.updateXMLNode(element);
    wanted.updateXMLNode(element, &shown);
    const auto again = XmlDocument::parse(document.serialise().value());
    require(again.has_value(), "settings that are taken can be read again");
    const SettingModel kept = SettingModel::initWithXMLNode(firstElement(again->root(), "SystemSetting"));
    require(kept == wanted, "settings that are taken are stored");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    SettingModel shown = SettingModel::initWithDefault();
    SettingModel wanted = shown;
    for (const QByteArray& line : fuzz::bytesOf(data, size).split('\r')) {
        const auto middle = std::max<qsizetype>(line.indexOf('='), 0);
        const SettingKey* key = settingKey(QString::fromUtf8(line.left(middle)));
        if (!key) continue;
        const QString value = QString::fromUtf8(line.mid(middle + 1));
        const SettingModel before = wanted;
        const bool isTaken = key->set(wanted, value);
        require(isTaken ? isSameValue(key->text(wanted), value) : wanted == before,
                "a value is taken as it is, or changes nothing");
        requireOthersKept(before, wanted, *key);
        require(!key->allowed().isEmpty(), "a refusal says what is allowed");
    }
    requireStored(shown, wanted);
    return 0;
}
