#include "analysis/ReadingRows.h"

#include "analysis/Log.h"
#include "analysis/PlaceholderRows.h"
#include "analysis/RowOrder.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

using Rows = std::vector<ReadingRow>;

/// Notes its kind now, while the readings are gone through as they lie in memory.
void add(ReadingRows& list, const ReadingModel& reading, Instant date, DayNumber day) {
    list.rows.push_back({.reading = &reading, .ReadingDate = date, .day = day});
    list.isAFib = list.isAFib || reading.isAFib();
    list.isPad = list.isPad || reading.isPad();
}

void addDated(ReadingRows& list, const ReadingList& readings, const ReadingSelection& selection) {
    list.rows.reserve(readings.size());
    for (const ReadingModel& reading : readings)
        if (!hasUndatedMarker(reading) && isListed(reading, selection))
            add(list, reading, *reading.ReadingDate, reading.day);
    sortByDate(list.rows);
}

void addPlaceholders(ReadingRows& list, const ReadingRowSource& source, const LocalZone& zone) {
    Rows& rows = list.rows;
    if (rows.empty()) return;
    const auto [made, isCut] = addNArecords(rows, source.comments, source.selection.period, zone);
    list.isCut = isCut;
    const auto readings = static_cast<Rows::difference_type>(rows.size());
    rows.insert(rows.end(), made.begin(), made.end());
    std::ranges::inplace_merge(rows, rows.begin() + readings, {}, &ReadingRow::ReadingDate);
}

/// Puts the undated readings first, the last stored before the others. One without any date is placed like
/// one with the marker.
void addUndated(ReadingRows& list, const ReadingList& readings, const LocalZone& zone) {
    const Instant marker = getNilReadingDate();
    const DayNumber markerDay = zone.day(marker);
    const Rows dated = std::exchange(list.rows, {});
    for (const ReadingModel& reading : readings)
        if (hasUndatedMarker(reading)) add(list, reading, reading.ReadingDate.value_or(marker), markerDay);
    std::ranges::reverse(list.rows);
    list.rows.insert(list.rows.end(), dated.begin(), dated.end());
    sortByDate(list.rows);
}

auto firstFrom(Rows& rows, DayNumber day) {
    return std::ranges::lower_bound(rows, day, {}, &ReadingRow::day);
}

/// The rows that have no comment yet.
class FreeRows {
public:
    explicit FreeRows(std::size_t total) : next(total + 1) { std::iota(next.begin(), next.end(), 0U); }

    /// The first at or after \p row.
    std::size_t from(std::size_t row) {
        while (next[row] != row)
            row = next[row] = next[next[row]];
        return row;
    }
    /// None is free from \p row to before \p end.
    void take(std::size_t row, std::size_t end) { next[row] = end; }

private:
    std::vector<std::size_t> next; ///< itself, or a later row up to which none is free
};

void attach(const CommentModel& comment, Rows& rows, FreeRows& freeRows) {
    const auto indexOf = [&](auto row) { return static_cast<std::size_t>(row - rows.begin()); };
    const auto first = firstFrom(rows, comment.beginDay);
    if (first == rows.end()) return;
    first->bAtBegin = true;
    if (first->day > comment.endDay) return;
    const auto end = std::ranges::upper_bound(first, rows.end(), comment.endDay, {}, &ReadingRow::day);
    std::prev(end)->bAtEnd = true;
    for (auto row = freeRows.from(indexOf(first)); row < indexOf(end); row = freeRows.from(row + 1)) {
        rows[row].comment = &comment;
        freeRows.take(row, indexOf(end));
    }
}

/// Goes from the last comment to the first: where several cover a row the last one has it, and no row is
/// looked at once for each of them.
void setCommentInSelectReadings(const CommentList& comments, Rows& rows) {
    if (comments.empty()) return;
    FreeRows freeRows{rows.size()};
    for (std::size_t i = comments.size(); i-- > 0;)
        attach(*comments[i], rows, freeRows);
}

void setDataLogInSelectedReading(const DataLogList& downloads, Rows& rows) {
    for (const DataTransferLogModel& entry : downloads) {
        auto row = firstFrom(rows, entry.transferDay);
        if (row != rows.end() && row->bYellowBackground) continue; // an earlier download of that day
        for (; row != rows.end() && row->day == entry.transferDay; ++row)
            row->bYellowBackground = true;
    }
}

void drawTopLines(Rows& rows) {
    for (std::size_t i = 1; i < rows.size(); ++i)
        rows[i].bDrawTopLine = rows[i].day != rows[i - 1].day;
}

} // namespace

QString ReadingRow::strDisplayDate(const SettingModel& settings) const {
    return isUndatedDay(day) ? qtTrId("n.a") : dayText(day, settings.getDateFormat());
}

QString describeCut(const ReadingRows& list) {
    return list.isCut ? qtTrId("rowsCut").arg(mostPlaceholders) : QString();
}

ReadingRows assembleReadingRows(const ReadingRowSource& source, const LocalZone& zone) {
    ReadingRows list;
    addDated(list, source.readings, source.selection);
    addPlaceholders(list, source, zone);
    if (source.selection.includeUndated) addUndated(list, source.readings, zone);
    drawTopLines(list.rows);
    qCDebug(lcAnalysis, "afib:%s pad:%s ", list.isAFib ? "afib" : "not afib", list.isPad ? "pad" : "not pad");
    setCommentInSelectReadings(source.comments, list.rows);
    setDataLogInSelectedReading(source.downloads, list.rows);
    return list;
}

} // namespace zel
