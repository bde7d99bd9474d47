// How fast both charts of the graph page are laid out and painted at 1,400 x 500, beside a plotting library
// that draws the same readings as lines and square marks, in one run. The trend of the same readings, with
// its medians and percentiles calculated anew, beside the same library. And what a hover or drag step costs.

#include "analysis/Trend.h"
#include "chart/DrawChart.h"
#include "chart/DrawTrend.h"
#include "chart/PicturePainter.h"

#include <QApplication>
#include <QImage>
#include <qcustomplot.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <random>

namespace zel {
namespace {

constexpr int width = 1400;
constexpr int bloodHeight = 350;
constexpr int pulseHeight = 150;
constexpr int height = bloodHeight + pulseHeight;
const Instant firstDay{std::chrono::sys_days{std::chrono::year{2014} / 1 / 1}};

struct MadeReadings {
    ReadingList readings;
    ChartData data;
    Period period;

    MadeReadings(std::int64_t count, std::int64_t years) {
        std::mt19937 random(7); // the same readings in every run
        const auto between = [&random](std::uint32_t low, std::uint32_t high) {
            return std::uniform_int_distribution<std::uint32_t>(low, high)(random);
        };
        const LocalZone zone;
        period = {DateToDayBoundary(firstDay, true),
                  DateToDayBoundary(firstDay + std::chrono::days{365 * years}, false)};
        const auto step = (period.end - period.begin) / count;
        for (std::int64_t number = 0; number < count; ++number) {
            ReadingModel reading;
            reading.ReadingDate = period.begin + step * number;
            reading.sys = between(105, 175);
            reading.dia = between(60, 100);
            reading.pulse = between(55, 105);
            reading.postInit(nullptr, {}, zone); // the day
            reading.isPMData = number % 2 == 1;
            readings.push_back(std::move(reading));
        }
        data = makeChartData(readings, {});
    }
};

ChartInput input(const MadeReadings& made, const ChartStyle& style, const Rect& rect) {
    return {made.data, made.period, 140, 90, style, rect};
}

void paintCharts(QImage& image, const MadeReadings& made, const LocalZone& zone) {
    QPainter painter(&image);
    const ChartLayout blood = drawChart(input(made, DrawBlood, {0, 0, width, bloodHeight}), zone);
    paintPicture(painter, blood.picture, bloodHeight);
    painter.translate(0, bloodHeight);
    const ChartLayout pulse = drawChart(input(made, DrawPulse, {0, 0, width, pulseHeight}), zone);
    paintPicture(painter, pulse.picture, pulseHeight);
}

/// The library's chart of one or two values over time with its own grid, which has far fewer lines, set to
/// its fastest.
class ComparedPlot {
public:
    ComparedPlot(const MadeReadings& made, int plotHeight,
                 std::initializer_list<std::uint32_t ReadingModel::*> values) {
        plot.setViewport(QRect(0, 0, width, plotHeight));
        plot.setNotAntialiasedElements(QCP::aeAll);
        plot.setPlottingHint(QCP::phFastPolylines);
        for (const auto value : values)
            addGraph(made, value);
        plot.rescaleAxes();
    }
    void paint() { plot.replot(QCustomPlot::rpQueuedRefresh); }

private:
    void addGraph(const MadeReadings& made, std::uint32_t ReadingModel::*value) {
        QVector<double> dates;
        QVector<double> values;
        for (const ReadingModel& reading : made.readings) {
            dates.push_back(std::chrono::duration<double>(reading.ReadingDate->time_since_epoch()).count());
            values.push_back(reading.*value);
        }
        QCPGraph* graph = plot.addGraph();
        graph->setPen(QPen(Qt::black, 1));
        graph->setScatterStyle(
            QCPScatterStyle(QCPScatterStyle::ssSquare, QPen(Qt::gray), QBrush(Qt::black), 5));
        graph->setData(dates, values, true);
    }

    QCustomPlot plot;
};

/// Of the processor: what else the computer does must not count.
template <class Paint>
double milliseconds(Paint paint) {
    const std::clock_t begin = std::clock();
    paint();
    return 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

void paintTrend(QImage& image, const MadeReadings& made, bool apart, const LocalZone& zone) {
    const ReadingSelection all{.period = made.period};
    const TrendSeriesList trend = calcTrendSeries(made.readings, all, apart);
    const CommentList none;
    const TrendLayout layout = drawTrend({.trend = trend,
                                          .comments = none,
                                          .selection = all,
                                          .sysStandard = 140,
                                          .diaStandard = 90,
                                          .totalRect = {0, 0, width, height}},
                                         zone);
    QPainter painter(&image);
    paintPicture(painter, layout.picture, height);
}

/// What \p paintOwn takes beside the library's two plots of the same readings.
template <class Paint>
void compareWithPlots(benchmark::State& state, const MadeReadings& made, Paint paintOwn) {
    ComparedPlot blood(made, bloodHeight, {&ReadingModel::sys, &ReadingModel::dia});
    ComparedPlot pulse(made, pulseHeight, {&ReadingModel::pulse});
    std::vector<double> own;
    std::vector<double> compared;
    for ([[maybe_unused]] auto _ : state) {
        own.push_back(milliseconds(paintOwn));
        compared.push_back(milliseconds([&] {
            blood.paint();
            pulse.paint();
        }));
        state.SetIterationTime(own.back() / 1000);
    }
    // The run that was disturbed least, of both.
    const double ownTime = std::ranges::min(own);
    const double comparedTime = std::ranges::min(compared);
    state.counters["compared_ms"] = comparedTime;
    state.counters["ratio"] = ownTime / comparedTime;   // to stay below 1
    state.counters["of_a_frame"] = ownTime * 60 / 1000; // to stay below 1
}

void bothCharts(benchmark::State& state) {
    const MadeReadings made(state.range(0), state.range(1));
    const LocalZone zone;
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    compareWithPlots(state, made, [&] { paintCharts(image, made, zone); });
}

void trend(benchmark::State& state) {
    const MadeReadings made(state.range(0), state.range(1));
    const LocalZone zone;
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    compareWithPlots(state, made, [&] { paintTrend(image, made, state.range(2) == 1, zone); });
}

/// The picture is kept as an image; a step paints the part of it that changed, and a mark or box on it.
void hoverStep(benchmark::State& state) {
    const MadeReadings made(10000, 1);
    const LocalZone zone;
    const ChartInput shown = input(made, DrawPulse, {0, 0, width, pulseHeight});
    const ChartLayout layout = drawChart(shown, zone);
    const std::vector<ChartPoint> points = chartPoints(shown);
    QImage kept(width, pulseHeight, QImage::Format_ARGB32_Premultiplied);
    {
        QPainter painter(&kept);
        paintPicture(painter, layout.picture, pulseHeight);
    }
    QImage screen(width, pulseHeight, QImage::Format_ARGB32_Premultiplied);
    std::size_t step = 0;
    for ([[maybe_unused]] auto _ : state) {
        const ChartPoint& point = points[step++ * 37 % points.size()];
        QPainter painter(&screen);
        painter.drawImage(0, 0, kept);
        paintPicture(painter, {RoundRect{{point.x - 6.0, point.y - 6.0, 13, 13}, 4, Qt::red, 1}},
                     pulseHeight);
    }
}

BENCHMARK(bothCharts)
    ->ArgsProduct({{365, 2000, 10000, 100000}, {1, 10}})
    ->ArgNames({"readings", "years"})
    ->Iterations(100)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(trend)
    ->ArgsProduct({{2000, 100000}, {1, 10}, {0, 1}})
    ->ArgNames({"readings", "years", "apart"})
    ->Iterations(100)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(hoverStep)->Unit(benchmark::kMillisecond); // to stay below 2 ms

} // namespace
} // namespace zel

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
