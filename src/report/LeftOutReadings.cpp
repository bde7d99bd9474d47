#include "report/LeftOutReadings.h"

#include "analysis/BeforeAndSince.h"
#include "report/SummaryBoxes.h"

#include <algorithm>
#include <utility>

namespace zel {

namespace {

/// Days from one to another, both included.
using Spans = std::vector<std::pair<DayNumber, DayNumber>>;

/// Ascending, none of them touching another.
Spans joined(Spans spans) {
    std::ranges::sort(spans);
    Spans apart;
    for (const auto& span : spans)
        if (apart.empty() || apart.back().second < span.first)
            apart.push_back(span);
        else
            apart.back().second = std::max(apart.back().second, span.second);
    return apart;
}

bool isWithin(const Spans& spans, DayNumber day) {
    const auto next = std::ranges::upper_bound(spans, day, {}, &Spans::value_type::first);
    return next != spans.begin() && day <= std::prev(next)->second;
}

void addBeforeAndSince(Spans& spans, const ReportSource& report, const DayMeans& means,
                       const CommentModel& comment) {
    const auto [before, since] = calcBeforeAndSince(means, report.comments, comment);
    for (const SpanMeans* side : {&before, &since})
        if (side->excluded > 0) spans.emplace_back(side->begin, side->end);
}

/// Days that the period need not have.
Spans daysBeside(const ReportSource& report, const LeftOutScope& scope) {
    Spans spans;
    const DayMeans means(report.readings);
    if (scope.isOfSummary) {
        const MeasuringWeek week = summaryWeek(report);
        if (week.end != noDay) spans.emplace_back(week.begin, week.end);
        for (const CommentModel* comment : commentsOfPeriod(report.comments, report.selection.period))
            addBeforeAndSince(spans, report, means, *comment);
    }
    if (scope.isOfComments)
        for (const auto& comment : report.comments)
            addBeforeAndSince(spans, report, means, *comment);
    return joined(std::move(spans));
}

} // namespace

LeftOutScope leftOutScope(std::span<const Section> sections) {
    LeftOutScope scope;
    for (const Section section : sections) {
        scope.isOfSummary |= section == Section::summary;
        scope.isOfComments |= section == Section::comment;
        scope.isOfPeriod |= section != Section::comment && section != Section::PatientProfile;
    }
    return scope;
}

std::vector<const ReadingModel*> leftOutReadings(const ReportSource& report, const LeftOutScope& scope) {
    if (std::ranges::none_of(report.readings, &ReadingModel::isExcluded)) return {};
    ReadingSelection wholeDays = report.selection;
    wholeDays.view = ViewSelection::custom;
    const Spans days = daysBeside(report, scope);
    std::vector<const ReadingModel*> found;
    for (const ReadingModel& reading : report.readings) {
        if (!reading.isExcluded()) continue;
        const bool isOfPeriod = scope.isOfPeriod && isListed(reading, wholeDays);
        if (isOfPeriod || (!reading.isUndated() && isWithin(days, reading.day))) found.push_back(&reading);
    }
    return found;
}

} // namespace zel
