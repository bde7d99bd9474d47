#include "app/graph/PointedReading.h"

#include <algorithm>
#include <utility>

namespace zel {

namespace {

constexpr int markSize = 11;

} // namespace

PointedReading::PointedReading(const DataStore& dataStore, const ChartSource& shown,
                               const std::array<ChartView*, 2>& bothCharts, QObject* parent)
    : QObject(parent), store(dataStore), source(shown), charts(bothCharts) {
    for (ChartView* chart : charts) {
        connect(chart, &ChartView::hovered, this,
                [this, chart](const ReadingModel* reading, QPoint mark) { hover(*chart, reading, mark); });
        connect(chart, &ChartView::focusLeft, this, [this] {
            if (!isHovering) hideInfo(); // it could cover where the focus has gone
        });
    }
}

const ReadingModel* PointedReading::next(bool forward) const {
    const auto& readings = source.data.maReading;
    const auto known = std::ranges::find(readings, pointed, &ChartReading::reading);
    const bool isKnown = pointed && known != readings.end();
    const auto isShown = [this](const ChartReading& reading) {
        return MatchedDataType(source.view, reading.isPMData) && !reading.reading->isUndated();
    };
    if (forward) {
        const auto begin =
            isKnown ? known + 1
                    : std::ranges::lower_bound(readings, source.period.begin, {}, &ChartReading::date);
        const auto found = std::find_if(begin, readings.end(), isShown);
        return found == readings.end() ? nullptr : found->reading;
    }
    const auto end =
        isKnown ? known : std::ranges::upper_bound(readings, source.period.end, {}, &ChartReading::date);
    const auto previous = std::find_if(std::make_reverse_iterator(end), readings.rend(), isShown);
    return previous == readings.rend() ? nullptr : previous->reading;
}

void PointedReading::walkTo(ChartView& chart, const ReadingModel& found) {
    point(&found);
    isHovering = false;
    showInfo(chart, found, chart.place(found));
}

void PointedReading::forget() { point(nullptr); }

void PointedReading::forgetUnlessHovered() {
    if (!isHovering) forget();
}

void PointedReading::hideInfo() {
    if (infoView) infoView->hide();
}

void PointedReading::point(const ReadingModel* reading) {
    const bool isOther = std::exchange(pointed, reading) != reading;
    for (ChartView* chart : charts)
        chart->setPointed(reading);
    if (!reading) {
        hideInfo();
        isHovering = false;
    }
    if (isOther) emit changed(); // what is said of all readings takes a while
}

void PointedReading::hover(ChartView& chart, const ReadingModel* reading, QPoint mark) {
    if (!reading && isHovering) return forget();
    if (!reading) return;
    isHovering = true;
    if (reading == pointed) return;
    point(reading);
    showInfo(chart, *reading, mark);
}

void PointedReading::showInfo(ChartView& chart, const ReadingModel& reading, QPoint mark) {
    const ReadingInfo info = readingInfo(reading, store);
    chart.setAccessibleDescription(spokenInfo(info));
    QWidget* window = chart.window();
    if (!infoView) infoView = new BPInfoView(window);
    // A value out of the scale has its mark out of sight.
    const QPoint inView(std::clamp(mark.x(), 0, chart.width()), std::clamp(mark.y(), 0, chart.height()));
    const QPoint at = chart.mapTo(window, inView);
    infoView->showReading(info, QRect(at - QPoint(markSize / 2, markSize / 2), QSize(markSize, markSize)));
}

} // namespace zel
