#include "report/TableLegend.h"

#include "report/FieldText.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute legendFont{.size = 8};
constexpr double diameter = 6;

/// Writes marks and words one after the other.
class LegendLine {
public:
    LegendLine(Picture& onto, Point begin, double width) : picture(onto), at(begin), end(begin.x + width) {}

    void circle(bool filled) {
        picture.emplace_back(Circle{{at.x + diameter / 2, at.y + 4.5}, diameter, filled, Qt::black});
        at.x += diameter + 3;
    }
    void words(const QString& text, double gapAfter) {
        fieldText(picture, text, at, end - at.x, legendFont);
        at.x += textSize(text, legendFont).width + gapAfter;
    }

private:
    Picture& picture;
    Point at;
    double end;
};

constexpr double itemGap = 10;
constexpr double wordGap = 5;

void drawMarkMeanings(Picture& picture, const ReportSource& report, Point at, double width) {
    LegendLine line(picture, at, width);
    if (report.getShowPad) {
        line.words((report.getIsAfib ? qtTrId("afib") : qtTrId("pad")) + u':', wordGap);
        line.circle(true);
        line.words(qtTrId("reportFound"), itemGap);
        line.circle(false);
        line.words(qtTrId("reportNotFound"), itemGap);
        line.words(qtTrId("reportFindingUnknown"), itemGap * 2);
    }
    if (!report.getShowMam) return;
    line.words(qtTrId("mam") + u':', wordGap);
    line.circle(true);
    line.words(qtTrId("reportAverage"), itemGap);
}

void drawOtherMarks(Picture& picture, const ReadingRows& rows, Point at, double width) {
    LegendLine line(picture, at, width);
    const auto explain = [&](const QString& text, auto&& isSuch) {
        if (std::ranges::any_of(rows.rows, isSuch)) line.words(text, itemGap);
    };
    explain(qtTrId("reportDownloadDay"), [](const ReadingRow& row) { return row.bYellowBackground; });
    explain(qtTrId("reportNoReading"), [](const ReadingRow& row) { return row.isNA(); });
    explain(qtTrId("reportNoDate"), [](const ReadingRow& row) { return isUndatedDay(row.day); });
    explain(qtTrId("reportCommentBars"), [](const ReadingRow& row) { return row.comment != nullptr; });
}

} // namespace

void drawTableLegend(Picture& picture, const ReportSource& report, Point at, double width) {
    drawMarkMeanings(picture, report, {at.x, at.y + lineHeight(legendFont)}, width);
    drawOtherMarks(picture, report.rows, at, width);
}

void drawCommentLegend(Picture& picture, const ReportSource& report, Point at, double width) {
    const bool isAnyUndated = std::ranges::any_of(report.comments, [](const auto& comment) {
        return isUndatedDay(comment->beginDay) || isUndatedDay(comment->endDay);
    });
    if (isAnyUndated) fieldText(picture, qtTrId("reportNoDate"), at, width, legendFont);
}

void drawPatientNote(Picture& picture, const PatientPages& profile, int page, Point at, double width) {
    if (page == 1 && !profile.more.empty())
        fieldText(picture, qtTrId("reportCutTexts"), at, width, legendFont);
}

} // namespace zel
