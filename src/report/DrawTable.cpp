#include "report/DrawTable.h"

#include "analysis/HighValues.h"
#include "report/CommentLook.h"
#include "report/FieldText.h"
#include "report/PageGeometry.h"
#include "store/ManualReading.h"

#include <algorithm>
#include <cmath>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr double xDate = 3, xTime = 86, xMam = 173, xPad = 261, xSys = 339, xDia = 427, xPulse = 514,
                 xMap = 600, xComment = 683;
constexpr double timeIndent = 3;  ///< the time stands so much right of its column
constexpr double columnGap = 2;   ///< free to the right of each text
constexpr double titleBase = 7;   ///< of a title above its row's bottom, the unit below it
constexpr double textBase = 1;    ///< of a text above its row's bottom
constexpr double mark = 8;        ///< diameter of a filled or outlined circle
constexpr double summaryGap = 10; ///< below the statistics
constexpr int smallestRow = 7;
constexpr double strikeWidth = 0.4;

const TextAttribute cellFont{};
const TextAttribute columnUnitFont{.size = 7};

/// A column of one row: from \p from to the next column at \p to, in units of the base width.
struct Field {
    Point at;
    double width = 0;
};
Field field(const Rect& row, double from, double to, double base, double indent = 0) {
    const double wratio = row.width / DrawTable::baseWidth;
    return {{row.x + from * wratio + indent, row.y + base}, (to - from) * wratio - indent - columnGap};
}

void title(Picture& picture, const TableRow& row, double from, double to, const QString& text,
           const QString& unit, double indent = 0) {
    const Field name = field(row, from, to, titleBase, indent);
    fieldFigure(picture, text.section(u'\n', 0, 0), name.at, name.width, cellFont, XPos::left, smallestFigure,
                row.widths);
    if (!unit.isEmpty()) textOut(picture, unit, {name.at.x, row.y + 1}, columnUnitFont);
}

/// In one type, as large as a date has room for beside the time.
TableRow tableRow(const Rect& place, TextWidths* widths) {
    TextAttribute font = cellFont;
    const double room = field(place, xDate, xTime, textBase).width;
    while (font.size > smallestRow && widthOf(u"0000/00/00"_s, font, widths) > room)
        --font.size;
    return {place, font, widthOf(u"000"_s, font, widths), widths};
}

void text(Picture& picture, const TableRow& row, double from, double to, const QString& words,
          double indent = 0) {
    const Field cell = field(row, from, to, textBase, indent);
    fieldFigure(picture, words, cell.at, cell.width, row.font, XPos::left, smallestFigure, row.widths);
}

/// Ends under the end of a three-digit number that begins at the column. One that is high is bold, with a
/// mark.
void number(Picture& picture, const TableRow& row, double from, double to, std::uint32_t value,
            bool isHigh = false) {
    const Field cell = field(row, from, to, textBase);
    const QString words = QString::number(value);
    const bool isShort = words.size() <= 3;
    const Point at{isShort ? cell.at.x + row.threeDigits : cell.at.x, cell.at.y};
    TextAttribute font = row.font;
    font.bold = isHigh;
    fieldFigure(picture, words, at, cell.width, font, isShort ? XPos::right : XPos::left, smallestFigure,
                row.widths);
    if (!isHigh) return;
    const double end = isShort ? row.threeDigits : textSize(words, font).width;
    const TextAttribute markFont{.size = std::max(smallestRow, row.font.size - 2)};
    textOut(picture, highMark, {cell.at.x + end + columnGap, cell.at.y}, markFont);
}

Point markCentre(const Rect& row, double column) {
    return {field(row, column, xSys, 0).at.x + 12, row.y + 7.5};
}

/// From the date to the comment, which says why; so fine that the values are still read.
void strikeThrough(Picture& picture, const TableRow& row) {
    const double y = row.y + textBase + textSize(u"0"_s, row.font).height / 2;
    picture.emplace_back(StraightLine{
        {row.x, y}, {field(row, xComment, DrawTable::baseWidth, 0).at.x - 4, y}, strikeWidth, Qt::black});
}

bool hasFinding(std::uint32_t arrhythmia) { return arrhythmia == 2 || arrhythmia == 5; }
bool hasNoFinding(std::uint32_t arrhythmia) { return arrhythmia == 1 || arrhythmia == 4; }

QString padTitle(const ReportSource& report) { return report.getIsAfib ? qtTrId("afib") : qtTrId("pad"); }

} // namespace

int DrawTable::itemsPerPage(const Rect& rect) {
    return std::max(0, static_cast<int>((rect.height - rowHeight) / rowHeight));
}

Rect DrawTable::firstPageRect(const Rect& rect, bool forTable) {
    if (forTable) return rect;
    return {rect.x, rect.y, rect.width, (rect.height - fStatTable - summaryGap) * 0.5};
}

int DrawTable::needPages(const Rect& rect, bool forTable) const {
    const int perPage = itemsPerPage(rect);
    const int onFirst = itemsPerPage(firstPageRect(rect, forTable));
    if (perPage == 0) return forTable ? 0 : 1;
    const int pagesBefore = forTable ? 0 : 1;
    const int left = forTable ? rowTotal() : std::max(0, rowTotal() - onFirst);
    return (left + perPage - 1) / perPage + pagesBefore;
}

bool DrawTable::drawRect(Picture& picture, const Rect& rect, int page, bool forTable) const {
    const int firstPageItems = itemsPerPage(firstPageRect(rect, forTable));
    const int perPage = itemsPerPage(rect);
    const Rect area = page == 1 ? firstPageRect(rect, forTable) : rect;
    const int from = page < 2 ? 0 : (page - 2) * perPage + firstPageItems;
    const int until = std::min(rowTotal(), from + (page == 1 ? firstPageItems : perPage));
    TableRow row = tableRow({area.x, std::trunc(area.top() - rowHeight), area.width, rowHeight}, widths);
    picture.emplace_back(FillRect{area, Qt::white});
    drawHeader(picture, row);
    bool isCut = false;
    const CommentModel* named = nullptr; // a page names its first, which may have begun on the one before
    for (int index = from; index < until; ++index) {
        row.y -= rowHeight;
        const ReadingRow& reading = report.rows.rows[static_cast<std::size_t>(index)];
        isCut |= drawReading(picture, row, reading, reading.comment != named);
        named = reading.comment;
    }
    return isCut;
}

void DrawTable::drawHeader(Picture& picture, const TableRow& row) const {
    const QString mmHg = qtTrId("mmHg");
    if (report.getShowMam) title(picture, row, xMam, xPad, qtTrId("mam"), {});
    if (report.getShowPad) title(picture, row, xPad, xSys, padTitle(report), {});
    title(picture, row, xDate, xTime, qtTrId("date"), {});
    title(picture, row, xTime, xMam, qtTrId("time"), {}, timeIndent);
    title(picture, row, xSys, xDia, qtTrId("sys"), mmHg);
    title(picture, row, xDia, xPulse, qtTrId("dia"), mmHg);
    title(picture, row, xPulse, xMap, qtTrId("pulse"), qtTrId("P/min"));
    title(picture, row, xMap, xComment, report.settings.showPPorMap == 0 ? qtTrId("pp") : qtTrId("map"),
          mmHg);
    title(picture, row, xComment, baseWidth, qtTrId("comments"), {});
    picture.emplace_back(StraightLine{{row.x, row.y}, {row.right(), row.y}, 1, Qt::black});
}

bool DrawTable::drawReading(Picture& picture, const TableRow& row, const ReadingRow& reading,
                            bool opensRun) const {
    if (reading.bYellowBackground) picture.emplace_back(FillRect{row, Qt::yellow});
    if (reading.bDrawTopLine)
        picture.emplace_back(StraightLine{{row.x, row.top()}, {row.right(), row.top()}, 1, Qt::black});
    text(picture, row, xDate, xTime, reading.strDisplayDate(report.settings));
    if (reading.bYellowBackground)
        textOut(picture, u"\u2193"_s, {field(row, xMam, xPad, 0).at.x - columnGap, row.y + textBase},
                row.font, XPos::right);
    if (reading.isNA()) {
        text(picture, row, xSys, xDia, qtTrId("n.a."));
    } else {
        drawMarks(picture, row, *reading.reading);
        drawMeasures(picture, row, *reading.reading);
        if (reading.reading->isExcluded()) strikeThrough(picture, row);
    }
    return drawComment(picture, row, reading, opensRun || reading.bAtBegin);
}

void DrawTable::drawMarks(Picture& picture, const TableRow& row, const ReadingModel& reading) const {
    if (report.getShowMam && reading.mam == 1)
        picture.emplace_back(Circle{markCentre(row, xMam), mark, true, Qt::black});
    if (!report.getShowPad) return;
    const bool isKnown = hasFinding(reading.Arrhythmia) || hasNoFinding(reading.Arrhythmia);
    if (isKnown)
        picture.emplace_back(Circle{markCentre(row, xPad), mark, hasFinding(reading.Arrhythmia), Qt::black});
    else
        text(picture, row, xPad, xSys, qtTrId("N.A."));
}

void DrawTable::drawMeasures(Picture& picture, const TableRow& row, const ReadingModel& reading) const {
    text(picture, row, xTime, xMam, reading.strDisplayTime(report.settings), timeIndent);
    number(picture, row, xSys, xDia, reading.sys, isSysHigh(reading, report.highFrom));
    number(picture, row, xDia, xPulse, reading.dia, isDiaHigh(reading, report.highFrom));
    number(picture, row, xPulse, xMap, reading.pulse);
    const bool isPP = report.settings.showPPorMap == 0;
    number(picture, row, xMap, xComment, isPP ? reading.pp : reading.map);
}

/// A bar in the comment's colour along its rows, closed at both ends, with its number and first words behind
/// what is to be said of the reading.
bool DrawTable::drawComment(Picture& picture, const TableRow& row, const ReadingRow& reading,
                            bool isNamed) const {
    const Field cell = field(row, xComment, baseWidth, textBase);
    QStringList words;
    if (!reading.isNA()) words += describeRemark(*reading.reading);
    if (reading.comment) drawBar(picture, row, reading);
    if (reading.comment && isNamed)
        words += commentNumber(report.comments, *reading.comment) + u' ' + reading.comment->comment;
    words.removeAll(QString());
    const double width = cell.width + columnGap - 6;
    fieldText(picture, words.join(qtTrId("; ")), {cell.at.x + 6, cell.at.y}, width, row.font);
    return reading.comment && isNamed && !isWhole(words.join(qtTrId("; ")), width, row.font);
}

void DrawTable::drawBar(Picture& picture, const TableRow& row, const ReadingRow& reading) {
    const Field cell = field(row, xComment, baseWidth, textBase);
    const QColor color = getCommentColor(reading.comment->degree, true);
    const Rect bar{cell.at.x, row.y, 3, rowHeight};
    picture.emplace_back(FillRect{bar, color});
    if (reading.bAtBegin) picture.emplace_back(FillRect{{bar.x, bar.top() - 2, 8, 2}, color});
    if (reading.bAtEnd) picture.emplace_back(FillRect{{bar.x, bar.y, 8, 2}, color});
}

} // namespace zel
