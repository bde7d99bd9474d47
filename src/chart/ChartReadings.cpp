#include "chart/ChartReadings.h"

#include <algorithm>
#include <iterator>

namespace zel {

namespace {

std::vector<Period> daysOf(const DataLogList& downloads) {
    std::vector<const DataTransferLogModel*> dated;
    for (const DataTransferLogModel& download : downloads)
        if (download.transferDate) dated.push_back(&download);
    std::ranges::sort(dated, {}, &DataTransferLogModel::transferDay);
    const auto sameDay = [](const auto* a, const auto* b) { return a->transferDay == b->transferDay; };
    dated.erase(std::unique(dated.begin(), dated.end(), sameDay), dated.end());
    std::vector<Period> days;
    days.reserve(dated.size());
    for (const DataTransferLogModel* download : dated) {
        const Instant date = *download->transferDate;
        days.push_back({DateToDayBoundary(date, true), DateToDayBoundary(date, false)});
    }
    return days;
}

} // namespace

ChartData makeChartData(const ReadingList& readings, const DataLogList& downloads) {
    ChartData data;
    data.maReading.reserve(readings.size());
    for (const ReadingModel& reading : readings) {
        if (!reading.ReadingDate || reading.isNA) continue;
        data.maReading.push_back({*reading.ReadingDate, reading.sys, reading.dia, reading.pulse,
                                  reading.isPMData, reading.isExcluded(), &reading});
    }
    std::ranges::stable_sort(data.maReading, {}, &ChartReading::date);
    data.downloadDays = daysOf(downloads);
    return data;
}

std::span<const ChartReading> readingsAround(const std::vector<ChartReading>& readings, const Period& period,
                                             ViewSelection view) {
    const auto accepted = [view](const ChartReading& reading) {
        return MatchedDataType(view, reading.isPMData) && !reading.isExcluded;
    };
    const auto begin = std::ranges::lower_bound(readings, period.begin, {}, &ChartReading::date);
    const auto end = std::ranges::upper_bound(begin, readings.end(), period.end, {}, &ChartReading::date);
    const auto before = std::find_if(std::make_reverse_iterator(begin), readings.rend(), accepted);
    const auto after = std::find_if(end, readings.end(), accepted);
    return {before == readings.rend() ? readings.begin() : before.base() - 1,
            after == readings.end() ? after : after + 1};
}

} // namespace zel
