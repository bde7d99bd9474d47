#include "analysis/PlaceholderRows.h"

#include <algorithm>
#include <utility>

namespace zel {

using std::chrono::days;
using std::chrono::minutes;

namespace {

// A century of days. Only dates that are wrong make more, and then millions.
constexpr std::size_t mostPlaceholders = 36'525;

/// One walk over readings and comments, both in order; what it has covered it does not cover again.
class PlaceholderPass {
public:
    PlaceholderPass(std::span<const ReadingRow> byDate, const Period& shown, const LocalZone& local)
        : readings{byDate}, period{shown}, zone{local} {}

    std::vector<ReadingRow> made;

    void cover(Instant begin, Instant end, DayNumber endDay) {
        const DayNumber beginDay = zone.day(begin);
        for (;; ++at) {
            const ReadingRow& reading = readings[at];
            if (reading.day > beginDay) {
                const Instant to = std::min(reading.ReadingDate, end);
                fill(firstUncovered(begin), endDay >= reading.day ? daysLater(to, -1, zone) : to);
                reach(to, std::min(reading.day, endDay));
            } else {
                reach(reading.ReadingDate, reading.day);
            }
            if (reading.day >= endDay) return; // the reading may serve the next comment, too
            if (at + 1 == readings.size()) break;
        }
        fill(firstUncovered(begin), end);
        reach(end, endDay);
    }

private:
    std::span<const ReadingRow> readings;
    const Period& period;
    const LocalZone& zone;
    std::size_t at = 0;
    Date covered;               ///< up to here the comment has its rows
    DayNumber lastDone = noDay; ///< up to here the comments together have theirs

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
    void fill(Instant from, Instant to) {
        const Instant last = std::min(to, period.end);
        Instant date = std::max(from, period.begin);
        if (const DayNumber day = date <= last ? zone.day(date) : noDay; noDay < day && day <= lastDone)
            date = daysLater(date, lastDone - day + 1, zone);
        for (; date <= last && made.size() < mostPlaceholders; date = daysLater(date, 1, zone))
            made.push_back({.ReadingDate = date, .day = zone.day(date)});
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

std::vector<ReadingRow> addNArecords(std::span<const ReadingRow> readings, const CommentList& comments,
                                     const Period& period, const LocalZone& zone) {
    const DayNumber firstDay = zone.day(period.begin);
    const DayNumber lastDay = zone.day(period.end);
    PlaceholderPass pass{readings, period, zone};
    const CommentModel* previous = nullptr;
    for (const auto& comment : comments) {
        if (comment->beginDay > lastDay) break;
        const CommentModel* before = std::exchange(previous, comment.get());
        if (firstDay > comment->endDay) continue;
        Instant begin = comment->beginDate.value_or(period.begin);
        if (before && before->endDate && before->endDay >= comment->beginDay)
            begin = daysLater(*before->endDate, 1, zone);
        pass.cover(begin, *comment->endDate, comment->endDay);
    }
    std::ranges::stable_sort(pass.made, {}, &ReadingRow::ReadingDate);
    return std::move(pass.made);
}

} // namespace zel
