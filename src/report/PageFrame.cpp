#include "report/PageFrame.h"

#include "analysis/ReadingCount.h"
#include "report/FieldText.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute plainFont{};
const TextAttribute boldFont{.bold = true};
const TextAttribute countFont{.size = 9};
const TextAttribute emptyFont{.size = 9, .bold = true};
constexpr int smallestName = 8;
constexpr int practitionerSize = 10, smallestPractitioner = 5;
const TextAttribute pageNumberFont{.size = 10};
const QColor titleBackgroundColor(206, 219, 239), markColor(150, 0, 0);
const TextAttribute markFont{.bold = true, .color = markColor};

constexpr double titleIndent = 6, dateIndent = 27, logoWidth = 117, logoHeight = 54, logoIndent = 120,
                 besideLogo = 130, practitionerTop = 90, gap = 12, legendTop = 21, aboveLegend = 6;

QString patientText(const PatientModel& patient, double width, const TextAttribute& font) {
    const auto title = [](const QString& given, const QString& family, const QString& ID) {
        return qtTrId("reportPatient").arg(given, family, ID);
    };
    const QString ID = elided(patient.ID, width / 3, font);
    const double room = width - textSize(title({}, {}, ID), font).width;
    const QString given = elided(patient.GivenNames, room, font);
    const QString family = elided(patient.FamilyName, room, font);
    const bool fits = textSize(given, font).width + textSize(family, font).width <= room;
    if (fits) return title(given, family, ID);
    return title(elided(given, room / 2, font), elided(family, room / 2, font), ID);
}

/// In smaller type before a name is cut.
void drawPatientName(Picture& picture, const PatientModel& patient, Point at, double width) {
    const QString whole = qtTrId("reportPatient").arg(patient.GivenNames, patient.FamilyName, patient.ID);
    TextAttribute font = plainFont;
    while (font.size > smallestName && !isWhole(whole, width, font))
        --font.size;
    textOut(picture, patientText(patient, width, font), at, font);
}

QString day(Instant date, const ReportSource& report) {
    return DateToStr(date, report.settings.getDateFormat());
}

/// Which of the readings the section shows, or that the period above is not its own; empty for all.
QString shownPart(const ReportSource& report, Section section) {
    if (section == Section::comment) return qtTrId("reportAllComments");
    if (section == Section::PatientProfile) return {};
    switch (report.selection.view) {
    case ViewSelection::amOnly: return qtTrId("reportMorningOnly");
    case ViewSelection::pmOnly: return qtTrId("reportEveningOnly");
    default: return {};
    }
}

/// Which readings the section counts; none for one that is about something else.
CountRule countRule(Section section) {
    switch (section) {
    case Section::graph: return isInChart;
    case Section::trend: return isInTrend;
    case Section::histogram:
    case Section::correlation: return isCounted;
    case Section::table: return isListed;
    case Section::SWStatistics: return isInStatistic;
    case Section::summary:
    case Section::PatientProfile:
    case Section::comment: break;
    }
    return nullptr;
}

/// Beside a heading of the section's own that counts them, only if some are left out.
QString countText(const ReportSource& report, Section section) {
    const CountRule rule = countRule(section);
    if (!rule) return {};
    const ReadingCount count = countReadings(report.readings, report.selection, rule);
    const bool isHeaded = section != Section::graph && section != Section::trend && section != Section::table;
    return isHeaded && describeLeftOut(count).isEmpty() ? QString() : describe(count);
}

/// One line; neither text takes the other's room.
void drawCounts(Picture& picture, Point at, double width, const QString& count, const QString& empty) {
    const double forCount = empty.isEmpty() ? width : count.isEmpty() ? 0 : width * 0.6;
    fieldFigure(picture, count, at, forCount, countFont);
    fieldFigure(picture, empty, {at.x + width, at.y}, width - forCount - (forCount > 0 ? gap : 0), emptyFont,
                XPos::right);
}

/// Above the legend and apart from it: in smaller type where there is more than usual, then without line
/// ends.
void drawPractitioner(Picture& picture, const Rect& foot, QString text) {
    constexpr double height = practitionerTop - legendTop - aboveLegend;
    const double width = foot.width - besideLogo;
    TextAttribute font{.size = practitionerSize};
    const auto room = [&] { return static_cast<int>(height / lineHeight(font)); };
    const auto fits = [&] { return wrapped(text, width, font, room() + 1).size() <= room(); };
    while (font.size > smallestPractitioner && !fits())
        --font.size;
    if (!fits()) {
        text.replace(u'\n', qtTrId(", "));
        font.size = practitionerSize;
    }
    while (font.size > smallestPractitioner && !fits())
        --font.size;
    const Point top{foot.x + titleIndent, foot.y + practitionerTop};
    if (fits()) return fieldParagraph(picture, text, top, width, font, room());
    const int lines = room() - 1;
    fieldParagraph(picture, text, top, width, font, lines);
    textOut(picture, qtTrId("reportCutPractitioner"), {top.x, top.y - lines * lineHeight(font)}, font,
            XPos::left, YPos::top);
}

} // namespace

QString emptyText(const PagePlace& place) {
    if (place.number != 1 || place.emptySections.isEmpty()) return {};
    return qtTrId("reportEmptySections").arg(place.emptySections.join(qtTrId(", ")));
}

double patientTitleHeight() { return static_cast<int>(2 * lineHeight(plainFont) + 20); }

void drawPatientTitle(Picture& picture, const PageGeometry& at, const ReportSource& report, Section section,
                      const PagePlace& place) {
    const double height = lineHeight(plainFont);
    const Point first{at.titleRect.x + titleIndent, at.titleRect.y - height};
    const double width = at.titleRect.width - 2 * titleIndent;
    drawPatientName(picture, report.patient, first, width);
    const Point second{first.x, first.y - height};
    const QString period =
        qtTrId("reportPeriod")
            .arg(day(report.selection.period.begin, report), day(report.selection.period.end, report));
    const double periodWidth = textSize(period, plainFont).width;
    textOut(picture, period, second, plainFont);
    fieldText(picture, shownPart(report, section), {second.x + width, second.y}, width - periodWidth - gap,
              boldFont, XPos::right);
    drawCounts(picture, {second.x, second.y - lineHeight(countFont)}, width, countText(report, section),
               emptyText(place));
}

void drawTitle(Picture& picture, const PageGeometry& at, const ReportSource& report, const QString& section) {
    const Rect& band = at.titleRect;
    picture.emplace_back(FillRect{band, titleBackgroundColor});
    const QString today = day(report.now, report);
    const double width = band.width - titleIndent - dateIndent - textSize(today, boldFont).width - gap;
    fieldText(picture, section, {band.x + titleIndent, band.y + 22}, width, boldFont);
    const Point under{band.x + titleIndent, band.y + 6};
    if (report.isDemonstration)
        fieldText(picture, qtTrId("reportDemonstration"), under, width, markFont);
    else
        fieldText(picture, qtTrId("appDescrption"), under, width, plainFont);
    textOut(picture, today, {band.right() - dateIndent, band.y + 18}, boldFont, XPos::right);
}

void drawLogo(Picture& picture, const PageGeometry& at) {
    const Rect& foot = at.footerRect;
    picture.emplace_back(
        ImageItem{u"printlogo"_s, {foot.right() - logoIndent, foot.y + 2, logoWidth, logoHeight}});
}

void drawFooter(Picture& picture, const PageGeometry& at, const ReportSource& report) {
    drawLogo(picture, at);
    if (report.needPhysicianInfo) drawPractitioner(picture, at.footerRect, report.settings.getPractitioner());
}

void drawPageNumber(Picture& picture, const PageGeometry& at, const PagePlace& place) {
    const Point corner{at.footerRect.right() - 3, at.footerRect.y + practitionerTop};
    textOut(picture, qtTrId("reportPage").arg(place.number).arg(place.total), corner, pageNumberFont,
            XPos::right, YPos::top);
}

Point legendPlace(const PageGeometry& at) { return {at.footerRect.x + titleIndent, at.footerRect.y + 2}; }

double legendWidth(const PageGeometry& at) { return at.footerRect.width - besideLogo; }

} // namespace zel
