#include "store/SettingKeys.h"

#include "store/RecordXml.h"

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

using S = SettingModel;

template <auto Member>
QString numberText(const S& setting) {
    return toDecimal(setting.*Member);
}

template <auto Member>
QString plainText(const S& setting) {
    return setting.*Member;
}

template <auto Member>
bool setNumber(S& setting, const QString& text, std::uint32_t most) {
    const bool isWhole = !text.isEmpty() && text.size() <= 3
                         && std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!isWhole || text.toUInt() > most) return false;
    setting.*Member = text.toUInt();
    return true;
}

template <auto Member, QStringList (*Entries)()>
constexpr SettingKey list(const char* name) {
    return {name, plainText<Member>,
            [](S& setting, const QString& text) {
                if (!Entries().contains(text)) return false;
                setting.*Member = text;
                return true;
            },
            [] { return qtTrId("SettingOneOf").arg(u'“' + Entries().join(u"”, “"_s) + u'”'); }};
}

template <auto Member>
constexpr SettingKey choice(const char* name) {
    return {name, numberText<Member>,
            [](S& setting, const QString& text) { return setNumber<Member>(setting, text, 1); },
            [] { return qtTrId("SettingOneOf").arg(u"0, 1"_s); }};
}

template <auto Member>
constexpr SettingKey limit(const char* name) {
    return {name, numberText<Member>,
            [](S& setting, const QString& text) { return setNumber<Member>(setting, text, largestLimit); },
            [] { return qtTrId("SettingLimit").arg(largestLimit); }};
}

/// A text field keeps line ends and tabs, and no other control characters.
bool isTyped(const QString& text) {
    return text.isValidUtf16() && std::ranges::none_of(text, [](QChar c) {
               return (c < u' ' && c != u'\n' && c != u'\t') || c == u'\x7F' || c.isNonCharacter();
           });
}

constexpr std::array keys{
    list<&S::dateFormat, dateFormats>("DateFormat"),
    list<&S::timeFormat, timeFormats>("TimeFormat"),
    list<&S::metricFormat, metricFormats>("MetricFormat"),
    choice<&S::eraseRecAfterReading>("EraseRecAfterReading"),
    choice<&S::showPPorMap>("ShowPPorMap"),
    choice<&S::userWhoStandard>("UserWhoStandard"),
    limit<&S::sysStandard>("SysStandard"),
    limit<&S::diaStandard>("DiaStandard"),
    SettingKey{"PhysicianAddress", plainText<&S::physicianAddress>,
               [](S& setting, const QString& text) {
                   if (!isTyped(text)) return false;
                   setting.physicianAddress = text;
                   return true;
               },
               [] { return qtTrId("SettingText"); }},
};

} // namespace

std::span<const SettingKey> settingKeys() { return keys; }

const SettingKey* settingKey(const QString& name) {
    const auto* found = std::ranges::find_if(
        keys, [&name](const SettingKey& key) { return name == QLatin1StringView{key.name}; });
    return found == keys.end() ? nullptr : found;
}

QStringList dateFormats() { return {u"dd mm yyyy"_s, u"mm dd yyyy"_s, u"yyyy mm dd"_s}; }

QStringList timeFormats() { return {u"12-hours"_s, u"24-hours"_s}; }

QStringList metricFormats() { return {u"kg / cm"_s, u"lb / in"_s}; }

} // namespace zel
