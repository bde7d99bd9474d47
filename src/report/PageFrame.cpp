#include "report/PageFrame.h"

#include "report/FieldText.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute plainFont{};
const TextAttribute boldFont{.bold = true};
const TextAttribute practitionerFont{.size = 10};
constexpr int practitionerLines = 6; ///< as the settings suggest them
const TextAttribute pageNumberFont{.size = 10};
const QColor titleBackgroundColor(206, 219, 239);

constexpr double titleIndent = 6, dateIndent = 27, logoWidth = 117, logoHeight = 54, logoIndent = 120,
                 besideLogo = 130, practitionerTop = 90, gap = 12;

QString patientText(const PatientModel& patient, double width) {
    const auto title = [](const QString& given, const QString& family, const QString& ID) {
        return qtTrId("reportPatient").arg(given, family, ID);
    };
    const QString ID = elided(patient.ID, width / 3, plainFont);
    const double room = width - textSize(title({}, {}, ID), plainFont).width;
    const QString given = elided(patient.GivenNames, room, plainFont);
    const QString family = elided(patient.FamilyName, room, plainFont);
    const bool fits = textSize(given, plainFont).width + textSize(family, plainFont).width <= room;
    if (fits) return title(given, family, ID);
    return title(elided(given, room / 2, plainFont), elided(family, room / 2, plainFont), ID);
}

QString day(Instant date, const ReportSource& report) {
    return DateToStr(date, report.settings.getDateFormat());
}

/// The half of the day that the section is limited to; empty for both.
QString halfOfDay(const ReportSource& report, Section section) {
    if (section == Section::PatientProfile || section == Section::comment) return {};
    switch (report.selection.view) {
    case ViewSelection::amOnly: return qtTrId("reportMorningOnly");
    case ViewSelection::pmOnly: return qtTrId("reportEveningOnly");
    default: return {};
    }
}

} // namespace

double patientTitleHeight() { return static_cast<int>(2 * lineHeight(plainFont) + 20); }

void drawPatientTitle(Picture& picture, const PageGeometry& at, const ReportSource& report, Section section) {
    const double height = lineHeight(plainFont);
    const Point first{at.titleRect.x + titleIndent, at.titleRect.y - height};
    const double width = at.titleRect.width - 2 * titleIndent;
    textOut(picture, patientText(report.patient, width), first, plainFont);
    const Point second{first.x, first.y - height};
    const QString period =
        qtTrId("reportPeriod")
            .arg(day(report.selection.period.begin, report), day(report.selection.period.end, report));
    const double periodWidth = textSize(period, plainFont).width;
    textOut(picture, period, second, plainFont);
    fieldText(picture, halfOfDay(report, section), {second.x + width, second.y}, width - periodWidth - gap,
              boldFont, XPos::right);
}

void drawTitle(Picture& picture, const PageGeometry& at, const ReportSource& report, const QString& section) {
    const Rect& band = at.titleRect;
    picture.emplace_back(FillRect{band, titleBackgroundColor});
    const QString today = day(report.now, report);
    const double width = band.width - titleIndent - dateIndent - textSize(today, boldFont).width - gap;
    fieldText(picture, section, {band.x + titleIndent, band.y + 22}, width, boldFont);
    fieldText(picture, qtTrId("appDescrption"), {band.x + titleIndent, band.y + 6}, width, plainFont);
    textOut(picture, today, {band.right() - dateIndent, band.y + 18}, boldFont, XPos::right);
}

void drawFooter(Picture& picture, const PageGeometry& at, const ReportSource& report) {
    const Rect& foot = at.footerRect;
    picture.emplace_back(
        ImageItem{u"printlogo"_s, {foot.right() - logoIndent, foot.y + 2, logoWidth, logoHeight}});
    if (!report.needPhysicianInfo) return;
    fieldParagraph(picture, report.settings.physicianAddress,
                   {foot.x + titleIndent, foot.y + practitionerTop}, foot.width - besideLogo,
                   practitionerFont, practitionerLines);
}

void drawPageNumber(Picture& picture, const PageGeometry& at, int number, int total) {
    const Point place{at.footerRect.right() - 3, at.footerRect.y + practitionerTop};
    textOut(picture, qtTrId("reportPage").arg(number).arg(total), place, pageNumberFont, XPos::right,
            YPos::top);
}

Point legendPlace(const PageGeometry& at) { return {at.footerRect.x + titleIndent, at.footerRect.y + 2}; }

double legendWidth(const PageGeometry& at) { return at.footerRect.width - besideLogo; }

} // namespace zel
