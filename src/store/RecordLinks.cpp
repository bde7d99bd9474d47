#include "store/RecordLinks.h"

#include "store/Log.h"

#include <algorithm>
#include <numeric>

namespace zel {

namespace {

std::vector<ReadingModel*> byDate(ReadingList& readings) {
    std::vector<ReadingModel*> sorted;
    sorted.reserve(readings.size());
    for (ReadingModel& reading : readings)
        sorted.push_back(&reading);
    const auto date = [](const ReadingModel* reading) { return reading->ReadingDate; };
    if (!std::ranges::is_sorted(sorted, {}, date)) // as downloads leave them
        std::ranges::stable_sort(sorted, {}, date);
    return sorted;
}

auto firstFrom(const std::vector<ReadingModel*>& sorted, DayNumber day) {
    return std::ranges::lower_bound(sorted, day, {},
                                    [](const ReadingModel* reading) { return reading->day; });
}

const char* yesNo(bool flag) { return flag ? "YES" : "NO"; }

void logLink(const ReadingModel& reading, const CommentModel& comment) {
    if (!lcStore().isDebugEnabled()) return;
    qCDebug(lcStore, "readingModel comment:%s  date:%s %s begin:%s end:%s", qUtf8Printable(comment.comment),
            qUtf8Printable(reading.strDate()),
            qUtf8Printable(DateToStr(reading.ReadingDate, QStringLiteral("HH:mm"))), yesNo(reading.bAtBegin),
            yesNo(reading.bAtEnd));
}

/// The readings that have no comment yet, by their place.
class FreeReadings {
public:
    explicit FreeReadings(std::size_t total) : next(total + 1) { std::iota(next.begin(), next.end(), 0U); }

    /// The first at or after \p place.
    std::size_t from(std::size_t place) {
        while (next[place] != place)
            place = next[place] = next[next[place]];
        return place;
    }
    void take(std::size_t place) { next[place] = place + 1; }

private:
    std::vector<std::size_t> next; ///< itself, or a later place up to which none is free
};

void link(const CommentModel& comment, const std::vector<ReadingModel*>& sorted, FreeReadings& freeReadings) {
    qCDebug(lcStore, "ID %s", qUtf8Printable(comment.ID));
    qCDebug(lcStore, "comment period %s %s", qUtf8Printable(comment.strBeginDate()),
            qUtf8Printable(comment.strEndDate()));
    const auto first = firstFrom(sorted, comment.beginDay);
    if (first == sorted.end()) return;
    (*first)->bAtBegin = true;
    if ((*first)->day > comment.endDay) return;
    const auto end = std::ranges::upper_bound(first, sorted.end(), comment.endDay, {},
                                              [](const ReadingModel* reading) { return reading->day; });
    const auto placeOf = [&](auto at) { return static_cast<std::size_t>(at - sorted.begin()); };
    for (auto at = freeReadings.from(placeOf(first)); at < placeOf(end); at = freeReadings.from(at)) {
        sorted[at]->comment = &comment;
        freeReadings.take(at);
        logLink(*sorted[at], comment);
    }
    (*std::prev(end))->bAtEnd = true;
}

} // namespace

/// From the last comment to the first: where several cover a reading the last one has it, and no reading is
/// looked at once for each of them.
void setCommentInReading(const CommentList& comments, ReadingList& readings) {
    if (comments.empty()) return;
    const auto sorted = byDate(readings);
    FreeReadings freeReadings{sorted.size()};
    for (std::size_t i = comments.size(); i-- > 0;)
        link(*comments[i], sorted, freeReadings);
}

void setDataLogInReading(const DataLogList& log, ReadingList& readings) {
    if (log.empty()) return;
    const auto sorted = byDate(readings);
    for (const DataTransferLogModel& entry : log) {
        qCDebug(lcStore, "ID %s", qUtf8Printable(entry.ID));
        auto at = firstFrom(sorted, entry.transferDay);
        if (at != sorted.end() && (*at)->bYellowBackground) continue; // an earlier download of that day
        for (; at != sorted.end(); ++at) {
            if ((*at)->day > entry.transferDay) break;
            (*at)->bYellowBackground = true;
        }
    }
}

} // namespace zel
