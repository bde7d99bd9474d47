#include "app/patients/PatientMeasures.h"

#include "store/PatientModel.h"

#include <QRegularExpression>

#include <algorithm>
#include <tuple>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The least and the most that a human can have, in the units of the records.
struct Range {
    float least, most;
    [[nodiscard]] bool holds(float value) const { return value >= least && value <= most; }
};
constexpr Range kilograms{0.2F, 1000}, centimetres{20, 300}, milligramsPerDecilitre{10, 5000};

/// One number with a decimal point or comma. A comma before three digits may mean thousands: none.
std::optional<QString> numberText(const QString& typed, const QString& units) {
    const QRegularExpression form(uR"(^(\d{1,6})(?:([.,])(\d{1,6}))? ?(?:%1)?$)"_s.arg(units),
                                  QRegularExpression::CaseInsensitiveOption);
    const auto found = form.match(typed.simplified());
    const QString decimals = found.captured(3);
    if (!found.hasMatch() || (found.captured(2) == ","_L1 && decimals.size() == 3)) return {};
    return decimals.isEmpty() ? found.captured(1) : found.captured(1) + u'.' + decimals;
}

std::optional<QString> feetText(const QString& typed) {
    const QRegularExpression form(
        uR"(^(\d{1,2}) ?(/|['’′]|ft\.?|feet|foot) ?(?:(\d{1,2}(?:[.,]\d{1,4})?) ?(?:["”″]|['’′]{2}|in\.?|inch|inches)?)?$)"_s,
        QRegularExpression::CaseInsensitiveOption);
    const auto found = form.match(typed.simplified());
    QString inches = found.captured(3).replace(u',', u'.');
    if (!found.hasMatch() || (inches.isEmpty() && found.captured(2) == "/"_L1)) return {};
    if (inches.isEmpty()) inches = u"0"_s;
    if (inches.toDouble() >= 12) return {};
    return found.captured(1) + u'/' + inches;
}

std::optional<QString> inRange(const std::optional<QString>& text, float value, const Range& range) {
    if (!text || range.holds(value)) return text;
    return value == 0 ? std::optional(u""_s) : std::nullopt;
}

SettingModel otherUnits(SettingModel settings) {
    settings.metricFormat = settings.isMetric() ? u"lb / in"_s : u"kg / cm"_s;
    return settings;
}

/// Says which unit is meant, as "cm" or 5'9" do.
bool hasUnit(const QString& typed) {
    return std::ranges::any_of(typed, [](QChar c) {
        return c.isLetter() || QStringView(u"'\"\u2018\u2019\u2032\u2033").contains(c);
    });
}

template <class Read, class Convert>
std::optional<float> valueOf(const QString& typed, const SettingModel& settings, Read read, Convert convert) {
    PatientModel patient;
    if (const auto text = read(typed, settings)) return convert(patient, *text, settings);
    const SettingModel other = otherUnits(settings);
    const auto text = hasUnit(typed) ? read(typed, other) : std::nullopt;
    return text ? std::optional(convert(patient, *text, other)) : std::nullopt;
}

} // namespace

std::optional<QString> weightText(const QString& typed, const SettingModel& settings) {
    if (typed.trimmed().isEmpty()) return u""_s;
    const auto text = numberText(typed, settings.isMetric() ? u"kgs?"_s : u"lbs?|pounds?"_s);
    PatientModel patient;
    patient.convertAndSetWeight(text.value_or(QString()), settings);
    return inRange(text, patient.Weight, kilograms);
}

std::optional<QString> heightText(const QString& typed, const SettingModel& settings) {
    if (typed.trimmed().isEmpty()) return u""_s;
    const auto text = settings.isMetric() ? numberText(typed, u"cm"_s) : feetText(typed);
    PatientModel patient;
    if (text) std::ignore = patient.convertAndSetHeight(*text, settings);
    return inRange(text, patient.Height, centimetres);
}

std::optional<float> weightInKg(const QString& typed, const SettingModel& settings) {
    return valueOf(typed, settings, weightText,
                   [](PatientModel& patient, const QString& text, const auto& units) {
                       patient.convertAndSetWeight(text, units);
                       return patient.Weight;
                   });
}

std::optional<float> heightInCm(const QString& typed, const SettingModel& settings) {
    return valueOf(typed, settings, heightText,
                   [](PatientModel& patient, const QString& text, const auto& units) {
                       if (!text.isEmpty()) std::ignore = patient.convertAndSetHeight(text, units);
                       return patient.Height;
                   });
}

std::optional<QString> cholestrolText(const QString& typed) {
    if (typed.trimmed().isEmpty()) return u""_s;
    const auto text = numberText(typed, u"mg/dl"_s);
    return inRange(text, text.value_or(QString()).toFloat(), milligramsPerDecilitre);
}

} // namespace zel
