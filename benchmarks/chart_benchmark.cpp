// How fast both charts of the graph page are laid out and painted at 1,400 x 500, beside a plotting library
// that draws the same readings as lines and square marks, in turn. The trend and the printed summary of the
// same readings, with their figures calculated anew, beside the same library.

#include "Figure.h"
#include "analysis/Trend.h"
#include "chart/DrawChart.h"
#include "chart/DrawTrend.h"
#include "chart/PicturePainter.h"
#include "chart/TrendCurves.h"
#include "report/PrintView.h"

#include <QApplication>
#include <QImage>
#include <QTranslator>
#include <qcustomplot.h>

#include <algorithm>
#include <limits>
#include <random>

namespace zel {
namespace {

constexpr int many = 100'000;
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

void paintTrend(QImage& image, const MadeReadings& made, const LocalZone& zone) {
    const ReadingSelection all{.period = made.period};
    const TrendSeriesList trend = calcTrendSeries(made.readings, all, false);
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

/// A page of A4, a pixel for each of its points.
void paintSummary(QImage& image, const MadeReadings& made) {
    const PatientModel patient;
    const SettingModel settings = SettingModel::initWithDefault();
    const CommentList comments;
    const DataLogList downloads;
    const PrintView view({.patient = patient,
                          .readings = made.readings,
                          .comments = comments,
                          .downloads = downloads,
                          .settings = settings,
                          .selection = {.period = made.period},
                          .rows = {},
                          .now = made.period.end},
                         QPageSize(QPageSize::A4));
    QPainter painter(&image);
    paintPicture(painter, view.page(Section::summary, 1), image.height());
}

/// Both charts of the library, which show the same readings.
class ComparedCharts {
public:
    explicit ComparedCharts(const MadeReadings& made)
        : blood(made, bloodHeight, {&ReadingModel::sys, &ReadingModel::dia}),
          pulse(made, pulseHeight, {&ReadingModel::pulse}) {}
    void paint() {
        blood.paint();
        pulse.paint();
    }

private:
    ComparedPlot blood, pulse;
};

/// The library's plot of the trend's marks: for each measure a smooth line of medians over a filled band.
class ComparedTrend {
public:
    explicit ComparedTrend(const MadeReadings& made)
        : trend(calcTrendSeries(made.readings, {.period = made.period}, false)) {
        plot.setViewport(QRect(0, 0, width, height));
        for (const auto measure : {TrendMeasure::sys, TrendMeasure::dia, TrendMeasure::pulse}) {
            QCPGraph* low = addGraph(measure, &TrendBand::low, Qt::NoPen);
            QCPGraph* high = addGraph(measure, &TrendBand::high, Qt::NoPen);
            high->setBrush(QColor(0, 0, 255, 40));
            high->setChannelFillGraph(low);
            addGraph(measure, &TrendBand::median, QPen(Qt::black, 2));
        }
        plot.rescaleAxes();
    }
    void paint() { plot.replot(QCustomPlot::rpQueuedRefresh); }

private:
    QCPGraph* addGraph(TrendMeasure measure, double TrendBand::*line, const QPen& pen) {
        QVector<double> days;
        QVector<double> values;
        for (const MeasuredStep& step : measuredSteps(trend.series.front(), measure)) {
            days.push_back(static_cast<double>(step.begin));
            values.push_back(step.band.*line);
        }
        QCPGraph* graph = plot.addGraph();
        graph->setPen(pen);
        graph->setData(days, values, true);
        return graph;
    }

    TrendSeriesList trend;
    QCustomPlot plot;
};

/// What neither waits nor has threads, beside another that does not.
void compare(const std::string& what, int rounds, const std::function<void()>& own,
             const std::function<void()>& compared) {
    const auto [ours, bare, ratio] = inTurn(rounds, own, compared, processorSeconds);
    print({.what = what,
           .unit = "ms",
           .ours = 1000 * ours,
           .against = "QCustomPlot",
           .bare = 1000 * bare,
           .target = 1,
           .ratio = ratio});
}

/// The run that was disturbed least.
void printLeast(const std::string& what, int rounds, const std::function<void()>& own) {
    double least = std::numeric_limits<double>::max();
    for (int round = 0; round < rounds; ++round)
        least = std::min(least, seconds(own));
    print({.what = what, .unit = "ms", .ours = 1000 * least, .against = {}, .target = 10});
}

std::string sizeOf(int readings, int years) {
    return std::to_string(readings) + " readings of " + std::to_string(years)
           + (years == 1 ? " year" : " years");
}

void measure(int readings, int years, int rounds) {
    const MadeReadings made(readings, years);
    const LocalZone zone;
    ComparedCharts plots(made);
    ComparedTrend trendPlot(made);
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    QImage page(595, 842, QImage::Format_ARGB32_Premultiplied);
    const std::string size = sizeOf(readings, years);
    const auto charts = [&] { paintCharts(image, made, zone); };
    compare("Both charts, " + size, rounds, charts, [&] { plots.paint(); });
    compare(
        "Trend, " + size, rounds, [&] { paintTrend(image, made, zone); }, [&] { trendPlot.paint(); });
    if (readings < many) return;
    printLeast("Both charts, " + size + ", nothing else running", rounds, charts);
    // With fewer readings, hardly anything of the page is a picture.
    compare(
        "Summary page, " + size, rounds, [&] { paintSummary(page, made); }, [&] { plots.paint(); });
}

} // namespace
} // namespace zel

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_LOGGING_RULES", "zel.*=false", 1);
    const QApplication application(argc, argv);
    QTranslator texts;
    if (!texts.load(QStringLiteral(":/zel_en.qm"))) return 1;
    QCoreApplication::installTranslator(&texts);
    const bool small = zel::isSmall(argc, argv);
    for (const int readings : {365, 5000, zel::many})
        for (const int years : {1, 10})
            if (!small || (readings == 365 && years == 1)) zel::measure(readings, years, small ? 3 : 41);
    return 0;
}
