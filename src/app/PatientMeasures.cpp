#include "app/PatientMeasures.h"

#include "store/PatientModel.h"

#include <QRegularExpression>

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

std::optional<QString> cholestrolText(const QString& typed) {
    if (typed.trimmed().isEmpty()) return u""_s;
    const auto text = numberText(typed, u"mg/dl"_s);
    return inRange(text, text.value_or(QString()).toFloat(), milligramsPerDecilitre);
}

} // namespace zel
