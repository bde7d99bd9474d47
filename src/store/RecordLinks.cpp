#include "store/RecordLinks.h"

#include "store/Log.h"

#include <algorithm>

namespace zel {

namespace {

std::vector<ReadingModel*> byDate(ReadingList& readings) {
    std::vector<ReadingModel*> sorted;
    sorted.reserve(readings.size());
    for (ReadingModel& reading : readings)
        sorted.push_back(&reading);
    std::ranges::stable_sort(sorted, {}, [](const ReadingModel* reading) { return reading->ReadingDate; });
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

void link(const CommentModel& comment, const std::vector<ReadingModel*>& sorted) {
    qCDebug(lcStore, "ID %s", qUtf8Printable(comment.ID));
    qCDebug(lcStore, "comment period %s %s", qUtf8Printable(comment.strBeginDate()),
            qUtf8Printable(comment.strEndDate()));
    ReadingModel* last = nullptr;
    const auto first = firstFrom(sorted, comment.beginDay);
    for (auto at = first; at != sorted.end(); ++at) {
        ReadingModel& reading = **at;
        if (at == first) reading.bAtBegin = true;
        if (reading.day > comment.endDay) break;
        reading.comment = &comment;
        logLink(reading, comment);
        last = &reading;
    }
    if (last) last->bAtEnd = true;
}

} // namespace

void setCommentInReading(const CommentList& comments, ReadingList& readings) {
    if (comments.empty()) return;
    const auto sorted = byDate(readings);
    for (const auto& comment : comments)
        link(*comment, sorted);
}

void setDataLogInReading(const DataLogList& log, ReadingList& readings) {
    if (log.empty()) return;
    const auto sorted = byDate(readings);
    for (const DataTransferLogModel& entry : log) {
        qCDebug(lcStore, "ID %s", qUtf8Printable(entry.ID));
        for (auto at = firstFrom(sorted, entry.transferDay); at != sorted.end(); ++at) {
            if ((*at)->day > entry.transferDay) break;
            (*at)->bYellowBackground = true;
        }
    }
}

} // namespace zel
