#include "report/TableLegend.h"

#include "analysis/HighValues.h"
#include "report/FieldText.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute legendFont{.size = 8};
constexpr int smallestLegend = 6, usualLines = 2;

/// A mark or words, which stand together or go to the next line together.
struct LegendItem {
    enum class Mark { none, filled, open };

    Mark mark = Mark::none;
    QString words;
    double gapAfter = 0;
};
using LegendItems = std::vector<LegendItem>;

/// Writes items one after the other, in as many lines as that takes.
class LegendText {
public:
    LegendText(double lineWidth, const TextAttribute& type) : width(lineWidth), font(type) {}

    void add(const LegendItems& items) {
        if (isBegun) nextLine();
        isBegun = true;
        for (const LegendItem& item : items)
            add(item);
    }
    [[nodiscard]] double height() const { return lineHeight(font) - at.y; }
    /// With the last line on that point.
    [[nodiscard]] Picture standingOn(Point corner) && {
        for (PictureItem& item : picture) {
            auto* circle = std::get_if<Circle>(&item);
            Point& origin = circle ? circle->centre : std::get<TextLine>(item).origin;
            origin = {origin.x + corner.x, origin.y + corner.y - at.y};
        }
        return std::move(picture);
    }

private:
    void add(const LegendItem& item) {
        const double mark = item.mark == LegendItem::Mark::none ? 0 : 0.75 * font.size + 3;
        const double own = mark + textSize(item.words, font).width;
        if (at.x > 0 && at.x + own > width) nextLine();
        if (mark > 0) addCircle(item.mark == LegendItem::Mark::filled);
        fieldFigure(picture, item.words, {at.x + mark, at.y}, width - mark, font);
        at.x += own + item.gapAfter;
    }
    void addCircle(bool filled) {
        const double diameter = 0.75 * font.size;
        picture.emplace_back(
            Circle{{at.x + diameter / 2, at.y + 0.5625 * font.size}, diameter, filled, Qt::black});
    }
    void nextLine() { at = {0, at.y - lineHeight(font)}; }

    Picture picture;
    Point at;
    double width;
    TextAttribute font;
    bool isBegun = false;
};

constexpr double itemGap = 10;
constexpr double wordGap = 5;

LegendItems markMeanings(const ReportSource& report) {
    using enum LegendItem::Mark;
    LegendItems items;
    if (report.getShowPad) {
        items = {
            {none, qtTrId("legendTitle").arg(report.getIsAfib ? qtTrId("afib") : qtTrId("pad")), wordGap},
            {filled, qtTrId("reportFound"), itemGap},
            {open, qtTrId("reportNotFound"), itemGap},
            {none, qtTrId("reportFindingUnknown"), itemGap * 2}};
    }
    if (!report.getShowMam) return items;
    items.push_back({none, qtTrId("legendTitle").arg(qtTrId("mam")), wordGap});
    items.push_back({filled, qtTrId("reportAverage"), itemGap});
    return items;
}

LegendItems otherMarks(const ReportSource& report, bool isCommentCut) {
    const ReadingRows& rows = report.rows;
    LegendItems items;
    if (report.highFrom != LimitPair{})
        items.push_back({LegendItem::Mark::none, describeHighMark(report.highFrom), itemGap});
    const auto explain = [&](const QString& text, auto&& isSuch) {
        if (std::ranges::any_of(rows.rows, isSuch)) items.push_back({LegendItem::Mark::none, text, itemGap});
    };
    explain(qtTrId("reportDownloadDay"), [](const ReadingRow& row) { return row.bYellowBackground; });
    explain(qtTrId("reportStruckThrough"),
            [](const ReadingRow& row) { return !row.isNA() && row.reading->isExcluded(); });
    explain(qtTrId("reportNoReading"), [](const ReadingRow& row) { return row.isNA(); });
    explain(qtTrId("reportNoDate"), [](const ReadingRow& row) { return isUndatedDay(row.day); });
    explain(qtTrId("reportCommentBars"), [](const ReadingRow& row) { return row.comment != nullptr; });
    if (isCommentCut) items.push_back({LegendItem::Mark::none, qtTrId("reportCutComments"), itemGap});
    return items;
}

} // namespace

void drawTableLegend(Picture& picture, const ReportSource& report, bool isCommentCut, Point at,
                     double width) {
    const auto written = [&](int size) {
        LegendText text(width, {.size = size});
        text.add(markMeanings(report));
        text.add(otherMarks(report, isCommentCut));
        return text;
    };
    int size = legendFont.size;
    while (size > smallestLegend && written(size).height() > usualLines * lineHeight(legendFont) + 0.01)
        --size;
    std::ranges::move(written(size).standingOn(at), std::back_inserter(picture));
}

void drawCommentLegend(Picture& picture, const CommentPages& comments, Point at, double width) {
    if (comments.isAnyUndated) fieldText(picture, qtTrId("reportNoDate"), at, width, legendFont);
}

void drawPatientNote(Picture& picture, const PatientPages& profile, int page, Point at, double width) {
    if (page == 1 && !profile.more.empty())
        fieldText(picture, qtTrId("reportCutTexts"), at, width, legendFont);
}

} // namespace zel
