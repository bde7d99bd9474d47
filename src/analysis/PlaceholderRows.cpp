#include "analysis/PlaceholderRows.h"

#include <algorithm>
#include <set>
#include <utility>

namespace zel {

using std::chrono::days;
using std::chrono::minutes;

namespace {

/// One walk over readings and comments, both in order; what it has covered it does not cover again.
class PlaceholderPass {
public:
    PlaceholderPass(std::span<const ReadingRow> byDate, const Period& shown, const LocalZone& local)
        : readings{byDate}, period{shown}, zone{local} {}

    PlaceholderRows made;

    /// The days that a comment covers; it begins no earlier than those before.
    void cover(Instant begin, Instant end, DayNumber endDay) {
        const DayNumber beginDay = zone.day(begin);
        for (;; ++at) {
            const ReadingRow& reading = readings[at];
            if (reading.day > beginDay) {
                const Instant to = std::min(reading.ReadingDate, end);
                const bool goesOn = endDay >= reading.day;
                fill(firstUncovered(begin), goesOn ? daysLater(to, -1, zone) : to,
                     goesOn ? reading.day - 1 : endDay);
                reach(to, std::min(reading.day, endDay));
            } else {
                reach(reading.ReadingDate, reading.day);
            }
            if (reading.day >= endDay) return; // the reading may serve the next comment, too
            if (at + 1 == readings.size()) break;
        }
        fill(firstUncovered(begin), end, endDay);
        reach(end, endDay);
    }

    /// All its days are covered by longer comments. Their rows step from reading to reading and may miss the
    /// day before one, where this comment begins or ends on its own.
    void coverWithin(Instant begin, Instant end, DayNumber endDay) {
        for (const DayNumber day : {zone.day(begin), endDay}) {
            const auto next = std::ranges::upper_bound(readings, day, {}, &ReadingRow::day);
            const bool endsBefore = next == readings.end() || next->day > endDay;
            const Instant to = endsBefore ? end : daysLater(std::min(next->ReadingDate, end), -1, zone);
            const Instant from =
                next == readings.begin() ? begin : daysLater(std::prev(next)->ReadingDate, 1, zone);
            fillMissed(std::max(begin, from), to);
        }
    }
    [[nodiscard]] bool isDone(DayNumber day) const { return day <= lastDone; }

private:
    std::span<const ReadingRow> readings;
    const Period& period;
    const LocalZone& zone;
    std::size_t at = 0;
    Date covered;               ///< up to here the comment has its rows
    DayNumber lastDone = noDay; ///< up to here the comments together have theirs
    std::set<DayNumber> missed; ///< of these, the days without a row

    void reach(Instant date, DayNumber day) {
        covered = date;
        lastDone = std::max(lastDone, day);
    }
    [[nodiscard]] Instant firstUncovered(Instant begin) const {
        return covered ? std::max(begin, daysLater(*covered, 1, zone)) : begin;
    }

    /// Compares instants: the last day gets a row only if its stepped time of day is not past the end. A day
    /// that another comment has given its row, or that has readings, gets none: comments may lie within
    /// others.
    void fill(Instant from, Instant to, DayNumber toDay) {
        const Instant last = std::min(to, period.end);
        Instant date = std::max(from, period.begin);
        if (const DayNumber day = date <= last ? zone.day(date) : noDay; noDay < day && day <= lastDone)
            date = daysLater(date, lastDone - day + 1, zone);
        for (; date <= last; date = daysLater(date, 1, zone))
            if (!add(date)) return;
        if (toDay <= lastDone) return;
        if (const DayNumber day = zone.day(date); lastDone < day && day <= toDay) missed.insert(day);
    }
    void fillMissed(Instant from, Instant to) {
        const Instant first = std::max(from, period.begin);
        const DayNumber firstDay = zone.day(first);
        for (auto day = missed.lower_bound(firstDay); day != missed.end();) {
            const Instant date = daysLater(first, *day - firstDay, zone);
            if (date > std::min(to, period.end) || !add(date)) return;
            day = missed.erase(day);
        }
    }
    bool add(Instant date) {
        made.isCut = made.isCut || made.rows.size() >= mostPlaceholders;
        if (!made.isCut) made.rows.push_back({.ReadingDate = date, .day = zone.day(date)});
        return !made.isCut;
    }
};

} // namespace

Instant daysLater(Instant date, int number, const LocalZone& zone) {
    const Instant stepped = date + days{number};
    const auto before = zone.dayMinute(date);
    const auto after = zone.dayMinute(stepped);
    const DayNumber day = before.day + number;
    const Instant sameTime = stepped - days{after.day - day} - minutes{after.minute - before.minute};
    return sameTime == stepped || zone.day(sameTime) == day ? sameTime : stepped;
}

PlaceholderRows addNArecords(std::span<const ReadingRow> readings, const CommentList& comments,
                             const Period& period, const LocalZone& zone) {
    const DayNumber firstDay = zone.day(period.begin);
    const DayNumber lastDay = zone.day(period.end);
    PlaceholderPass pass{readings, period, zone};
    const CommentModel* previous = nullptr;
    for (const auto& comment : comments) {
        if (comment->beginDay > lastDay) break;
        const CommentModel* before = std::exchange(previous, comment.get());
        if (firstDay > comment->endDay) continue;
        const Instant begin = comment->beginDate.value_or(period.begin);
        if (pass.isDone(comment->endDay)) pass.coverWithin(begin, *comment->endDate, comment->endDay);
        const bool overlaps = before && before->endDate && before->endDay >= comment->beginDay;
        pass.cover(overlaps ? daysLater(*before->endDate, 1, zone) : begin, *comment->endDate,
                   comment->endDay);
    }
    std::ranges::stable_sort(pass.made.rows, {}, &ReadingRow::ReadingDate);
    return std::move(pass.made);
}

} // namespace zel
