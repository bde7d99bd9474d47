#include "store/SettingKeys.h"

#include "store/PressureLimits.h"
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
QString asWritten(const S& setting) {
    return setting.*Member;
}

template <auto Member, LimitRange Range>
bool setNumber(S& setting, const QString& text) {
    const bool isWhole = !text.isEmpty() && text.size() <= 3
                         && std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!isWhole || !Range.takes(text.toUInt())) return false;
    setting.*Member = text.toUInt();
    return true;
}

QString oneOf(const QStringList& entries) {
    QStringList quoted;
    quoted.reserve(entries.size());
    for (const QString& entry : entries)
        quoted += qtTrId("SettingQuoted").arg(entry);
    return qtTrId("SettingOneOf").arg(quoted.join(u", "_s));
}

template <auto Member, QStringList (*Entries)()>
constexpr SettingKey list(const char* name) {
    return {name, asWritten<Member>,
            [](S& setting, const QString& text) {
                if (!Entries().contains(text)) return false;
                setting.*Member = text;
                return true;
            },
            [] { return oneOf(Entries()); }};
}

template <auto Member>
constexpr SettingKey zeroOrOne(const char* name) {
    return {name, numberText<Member>, setNumber<Member, LimitRange{1, 1}>,
            [] { return qtTrId("SettingOneOf").arg(u"0, 1"_s); }};
}

/// By itself; limitProblem() judges it beside the other one.
template <auto Member, LimitRange Range>
constexpr SettingKey limit(const char* name) {
    return {name, numberText<Member>, setNumber<Member, Range>, [] { return describe(Range); }};
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
    zeroOrOne<&S::eraseRecAfterReading>("EraseRecAfterReading"),
    zeroOrOne<&S::showPPorMap>("ShowPPorMap"),
    zeroOrOne<&S::userWhoStandard>("UserWhoStandard"),
    limit<&S::sysStandard, systolicLimits>("SysStandard"),
    limit<&S::diaStandard, diastolicLimits>("DiaStandard"),
    SettingKey{"PhysicianAddress", asWritten<&S::physicianAddress>,
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
