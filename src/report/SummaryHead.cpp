#include "report/SummaryHead.h"

#include "analysis/Summary.h"
#include "report/FieldText.h"
#include "report/SummaryType.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute nameFont{.size = 14, .bold = true};
const TextAttribute personFont{.size = 10};
const TextAttribute periodFont{.size = 10, .bold = true};
constexpr int smallestOnOneLine = 11, practitionerLines = 5;
constexpr double nameShare = 0.62, betweenColumns = 14, aboveName = 4;

/// "Born 1960/05/02, 59 years"; the age is that of today, as on the profile.
QString birthText(const ReportSource& report) {
    const Date& birth = report.patient.DateOfBirth;
    if (isNilDate(birth)) return qtTrId("summaryNoBirth");
    const QString day = DateToStr(birth, report.settings.getDateFormat());
    const int age = GetAge(*birth, report.now);
    return age < 0 ? qtTrId("summaryBornOn").arg(day) : qtTrId("summaryBorn", age).arg(day);
}

/// A long name on two lines, so that it can be read.
void drawName(Picture& picture, const PatientModel& patient, Rect& left) {
    const QString whole = qtTrId("fullName").arg(patient.GivenNames, patient.FamilyName).trimmed();
    const bool isOneLine = isWhole(whole, left.width, {.size = smallestOnOneLine, .bold = true})
                           || patient.GivenNames.isEmpty() || patient.FamilyName.isEmpty();
    if (isOneLine) return summaryLine(picture, whole, left, nameFont);
    const TextAttribute font{.size = smallestOnOneLine, .bold = true};
    summaryLine(picture, patient.GivenNames, left, font);
    summaryLine(picture, patient.FamilyName, left, font);
}

/// In smaller type, then without line ends, before it is cut.
void drawPractitioner(Picture& picture, const ReportSource& report, const Rect& rect) {
    QString text = report.settings.getPractitioner();
    const auto room = [&](const TextAttribute& font) {
        return static_cast<int>(rect.height / lineHeight(font));
    };
    const auto fits = [&](const TextAttribute& font) {
        return wrapped(text, rect.width, font, room(font) + 1).size() <= room(font);
    };
    const TextAttribute& font = fits(summaryFont) ? summaryFont : summarySmall;
    if (!fits(font)) text.replace(u'\n', qtTrId(", "));
    fieldParagraph(picture, text, {rect.x, rect.top()}, rect.width, font, room(font));
}

QString periodText(const ReportSource& report) {
    if (!isAnyDated(report.readings)) return qtTrId("summaryNoDated");
    const LocalZone zone;
    const Period& period = report.selection.period;
    return qtTrId("summaryPeriod")
        .arg(summaryDay(zone.day(period.begin), report), summaryDay(zone.day(period.end), report));
}

} // namespace

Rect drawSummaryHead(Picture& picture, const ReportSource& report, const QString& note, const Rect& rect) {
    Rect left{rect.x, rect.y, rect.width * nameShare, rect.height - aboveName};
    const double top = left.top();
    drawName(picture, report.patient, left);
    const QString ID = qtTrId("summaryID").arg(elided(report.patient.ID, left.width / 3, personFont));
    summaryLine(picture, birthText(report) + u"     "_s + ID, left, personFont);
    summaryLine(picture, periodText(report), left, periodFont);
    double bottom = left.top();
    if (report.needPhysicianInfo) {
        bottom = std::min(bottom, top - practitionerLines * lineHeight(summarySmall));
        const double x = left.right() + betweenColumns;
        drawPractitioner(picture, report, {x, bottom, rect.right() - x, top - bottom});
    }
    Rect below{rect.x, rect.y, rect.width, bottom - rect.y};
    if (!note.isEmpty()) summaryLine(picture, note, below, summaryBold);
    return below;
}

} // namespace zel
