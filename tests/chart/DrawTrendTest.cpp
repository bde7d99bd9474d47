#include "chart/DrawTrend.h"

#include "analysis/Sample.h"
#include "chart/CurvePieces.h"
#include "chart/Drawing.h"
#include "chart/PicturePainter.h"
#include "chart/ScreenColours.h"
#include "chart/TrendScale.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

/// A patient's trend, to be spoiled in one place.
struct TrendOf {
    ReadingList readings = readingsAt({"2019-03-01 08:00", "2019-03-02 20:00", "2019-03-03 08:00"});
    CommentList comments{};
    ReadingSelection selection = during("2019-03-01", "2019-03-31");
    bool apart = false;
    bool forPrint = false;
    std::uint32_t sysStandard = 135;
    bool isFitted = false;
    Rect rect{10, 20, 700, 400};

    void comment(const char* from, const char* to, const QString& text) {
        CommentModel& made = *comments.emplace_back(std::make_unique<CommentModel>());
        made.beginDate = at(from);
        made.endDate = at(to);
        made.beginDay = LocalZone{}.day(made.beginDate);
        made.endDay = LocalZone{}.day(made.endDate);
        made.comment = text;
    }
    [[nodiscard]] TrendLayout layout() const {
        const TrendSeriesList trend = calcTrendSeries(readings, selection, apart);
        return drawTrend({trend, comments, selection, sysStandard, 85, forPrint, isFitted, rect},
                         LocalZone());
    }
    template <class Item>
    [[nodiscard]] std::vector<Item> items() const {
        std::vector<Item> found;
        for (const PictureItem& item : layout().picture)
            if (const auto* one = std::get_if<Item>(&item)) found.push_back(*one);
        return found;
    }
    [[nodiscard]] QStringList texts() const {
        QStringList all;
        for (const TextLine& line : items<TextLine>())
            all += line.text;
        return all;
    }
    [[nodiscard]] std::vector<Curve> curves(double width) const {
        auto all = items<Curve>();
        std::erase_if(all, [&](const Curve& one) { return one.width != width; });
        return all;
    }
    /// Of comments.
    [[nodiscard]] std::vector<Rect> bands() const {
        std::vector<Rect> all;
        for (const FillRect& one : items<FillRect>())
            if (one.color.alpha() < 255) all.push_back(one.rect);
        return all;
    }
    [[nodiscard]] auto medianLines() const { return curves(2); }
    [[nodiscard]] auto links() const { return curves(1); }
};

Rect boxOf(const TextLine& line) {
    const Size size = textSize(line.text, line.attribute);
    return {line.origin.x, line.origin.y, size.width, size.height};
}

bool overlap(const Rect& a, const Rect& b) {
    constexpr double touch = 0.01;
    return a.x + touch < b.right() && b.x + touch < a.right() && a.y + touch < b.top()
           && b.y + touch < a.top();
}

/// What does not stand clear of the others, or leaves the picture.
QStringList crowded(const std::vector<TextLine>& lines, const Rect& picture) {
    QStringList found;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Rect box = boxOf(lines[i]);
        if (box.x < picture.x || box.right() > picture.right() || box.y < picture.y - 0.01
            || box.top() > picture.top() + 0.01)
            found += lines[i].text + u" leaves the picture"_s;
        for (std::size_t j = 0; j < i; ++j)
            if (overlap(box, boxOf(lines[j]))) found += lines[i].text + u" over "_s + lines[j].text;
    }
    return found;
}

TEST(DrawTrend, NamesStandClearOfEachOtherAtTheirLinesEnds) {
    const Rect rects[]{
        {10, 20, 700, 400}, {0, 0, 480, 130}, {0, 0, leastTrendSize.width, leastTrendSize.height}};
    const std::pair<std::uint32_t, std::uint32_t> pressures[]{
        {150, 90}, {91, 90}, {90, 91}, {400, 390}, {20, 10}};
    for (const bool apart : {false, true})
        for (const Rect& rect : rects)
            for (const auto& [sys, dia] : pressures) {
                TrendOf trend{.apart = apart, .rect = rect};
                for (ReadingModel& reading : trend.readings)
                    std::tie(reading.sys, reading.dia, reading.pulse) = std::tuple(sys, dia, sys);
                std::vector<TextLine> names = trend.items<TextLine>();
                const double plotEnd = trend.layout().plot.right();
                std::erase_if(names, [&](const TextLine& one) { return one.origin.x < plotEnd; });
                EXPECT_EQ(names.size(), apart ? 6U : 3U);
                EXPECT_EQ(crowded(names, rect).join(u'\n').toStdString(), "")
                    << sys << '/' << dia << " in " << rect.width;
            }
}

TEST(DrawTrend, NothingStandsOverAnythingElse) {
    for (const Rect& rect :
         {Rect{10, 20, 1000, 500}, Rect{0, 0, 590, 290}, Rect{0, 0, 520, 180}, Rect{0, 0, 480, 130}}) {
        for (const bool isFitted : {false, true}) {
            TrendOf trend{.isFitted = isFitted, .rect = rect};
            trend.comment("2019-03-05", "2019-03-20", u"Ramipril 5 mg"_s);
            trend.comment("2019-03-06", "2019-03-06",
                          u"a cold, with fever and a cough that lasted for weeks"_s);
            trend.comment("2019-03-30", "2019-03-31", u"headache"_s);
            EXPECT_EQ(crowded(trend.items<TextLine>(), rect).join(u'\n').toStdString(), "") << rect.width;
            const double pressure = trend.items<BeginClip>().front().rect.height;
            EXPECT_GE(pressure, 2 * (trend.layout().plot.height - pressure - 7)) << "that of the pulse";
        }
    }
}

TEST(DrawTrend, LinesBreakWhereAStepHasNoReading) {
    const struct {
        ReadingList readings;
        const char* to;
        std::size_t lines, links, loneMarks; ///< of one measure
    } cases[]{
        {readingsAt({"2019-03-01", "2019-03-02", "2019-03-03"}), "2019-03-31", 1, 0, 0},
        {readingsAt({"2019-03-01", "2019-03-02", "2019-03-04", "2019-03-05"}), "2019-03-31", 2, 1, 0},
        {readingsAt({"2019-03-01", "2019-03-31"}), "2019-03-31", 0, 1, 2},
        {readingsAt({"2019-03-01", "2019-04-01"}), "2019-04-30", 0, 0, 2}, // nearer than the chart joins them
        {readingsAt({"2019-03-01", "2019-03-08", "2019-03-26"}), "2019-12-31", 1, 1, 1}, // weeks
        {readingsAt({"2019-03-01", "2019-04-30", "2019-06-01"}), "2024-12-31", 1, 0, 1}, // months
        {readingsAt({"2019-03-01"}), "2019-03-01", 0, 0, 1},
        {{}, "2019-03-31", 0, 0, 0},
    };
    for (const auto& [readings, to, lines, links, loneMarks] : cases) {
        TrendOf trend{.readings = readings, .selection = during("2019-03-01", to)};
        EXPECT_EQ(trend.medianLines().size(), 3 * lines) << to << readings.size();
        EXPECT_EQ(trend.links().size(), 3 * links) << to << readings.size();
        EXPECT_EQ(trend.items<Area>().size(), 3 * (lines + loneMarks)) << "the band breaks with the line";
        EXPECT_GE(trend.items<Circle>().size(), 3 * loneMarks) << "a point without a line has a mark";
        EXPECT_EQ(trend.texts().join(u'|').contains(u"dotted"_s), links > 0);
        EXPECT_EQ(trend.texts().contains(u"No readings in this period"_s), readings.empty());
        trend.rect = {0, 0, 150, 130};
        EXPECT_EQ(trend.texts().join(u' ').contains(u"dotted"_s), !trend.links().empty())
            << "no dots without their meaning";
    }
}

TEST(DrawTrend, APulseThatWasNotMeasuredIsNotDrawn) {
    const struct {
        std::vector<std::uint32_t> pulses; ///< of a day each
        std::size_t lines, links, columnsWithPulse, names;
    } cases[]{{{90, 92, 94, 96}, 1, 0, 4, 3},
              {{90, 92, 0, 96}, 1, 1, 3, 3},
              {{90, 92, 94, 0}, 1, 0, 3, 3},
              {{90, 0, 1000, 96}, 0, 1, 2, 3},
              {{0, 0, 0, 0}, 0, 0, 0, 2}};
    for (const auto& [pulses, lines, links, columnsWithPulse, names] : cases) {
        TrendOf trend{.readings = readingsAt({"2019-03-01", "2019-03-02", "2019-03-03", "2019-03-04"}),
                      .forPrint = true,
                      .isFitted = true};
        for (std::size_t at = 0; at < pulses.size(); ++at)
            trend.readings[at].pulse = pulses[at];
        const std::string what = "pulse " + std::to_string(pulses[2]) + ", " + std::to_string(pulses[3]);
        EXPECT_EQ(trend.medianLines().size(), 2 + lines) << what;
        EXPECT_EQ(trend.links().size(), links) << what;
        EXPECT_EQ(trend.texts().join(u'|').contains(u"dotted"_s), links > 0) << what;
        EXPECT_EQ(trend.texts().filter(u"scale"_s), QStringList()) << what;
        const QStringList texts = trend.texts();
        EXPECT_EQ(texts.count(u"SYS"_s) + texts.count(u"DIA"_s) + texts.count(u"Pulse"_s), names) << what;
        EXPECT_EQ(texts.contains(u"40"_s), pulses[0] == 0) << "the scale is that of the others: " << what;
        const TrendLayout layout = trend.layout();
        ASSERT_EQ(layout.columns.size(), 4U) << what;
        EXPECT_EQ(std::ranges::count(layout.columns, 3U,
                                     [](const TrendColumn& column) { return column.medians.size(); }),
                  columnsWithPulse)
            << what;
    }
}

TEST(DrawTrend, NamesTheBandsThatThePulseHas) {
    const auto caption = [](std::uint32_t pulse) {
        TrendOf trend{.readings =
                          readingsAt({"2019-03-01", "2019-03-01", "2019-03-01", "2019-03-01", "2019-03-01"})};
        trend.readings[0].pulse = pulse;
        return trend.texts().filter(u"band"_s).join(u' ').toStdString();
    };
    EXPECT_EQ(caption(60), "Median of each day; band: 10th to 90th percentile");
    EXPECT_EQ(caption(0),
              "Median of each day; band: 10th to 90th percentile, or all of fewer than 5 readings");
}

TEST(DrawTrend, ShowsMedianAndBandOfEachStep) {
    TrendOf trend{.readings = {}};
    for (const auto& [date, sys] : std::initializer_list<std::pair<const char*, std::uint32_t>>{
             {"2019-03-01 08:00", 120}, {"2019-03-01 20:00", 140}, {"2019-03-02 08:00", 150}})
        trend.readings.push_back(readingAt(date, sys, 80));
    const TrendLayout layout = trend.layout();
    ASSERT_EQ(layout.columns.size(), 2U);
    EXPECT_NEAR(layout.columns[1].x - layout.columns[0].x, layout.plot.width / 31, 0.01);
    EXPECT_NEAR(layout.columns[0].x, layout.plot.x + layout.plot.width / 62, 0.01) << "the middle of the day";
    const std::vector<Point> median = trend.medianLines().front().points;
    const std::vector<Point> band = trend.items<Area>().front().outline;
    ASSERT_EQ(band.size(), 4U);
    EXPECT_EQ(median.front(), layout.columns[0].medians.front());
    const double mmHg = (median[1].y - median[0].y) / 20; // from 130 to 150
    EXPECT_GT(mmHg, 0);
    EXPECT_NEAR(band[0].y, median[0].y - 10 * mmHg, 0.01) << "few readings: from the lowest";
    EXPECT_NEAR(band[3].y, median[0].y + 10 * mmHg, 0.01) << "to the highest";
    EXPECT_NEAR(band[1].y, median[1].y, 0.01);
}

TEST(DrawTrend, NamesItsStep) {
    const std::pair<const char*, const char*> cases[]{
        {"2019-03-31", "day"}, {"2019-12-31", "week"}, {"2029-12-31", "month"}};
    for (const auto& [to, step] : cases) {
        TrendOf trend{.selection = during("2019-03-01", to)};
        for (const double width : {800.0, 400.0, 200.0}) {
            trend.rect.width = width;
            EXPECT_EQ(trend.texts().filter(u"Median of each %1"_s.arg(QLatin1StringView(step))).size(), 1)
                << to << ' ' << width;
        }
    }
}

TEST(DrawTrend, LinesAreToldApartInBlackAndWhite) {
    TrendOf trend{.apart = true, .forPrint = true};
    trend.readings =
        readingsAt({"2019-03-01 08:00", "2019-03-01 20:00", "2019-03-02 08:00", "2019-03-02 20:00"});
    std::vector<std::vector<double>> dashes;
    for (const Curve& line : trend.medianLines()) {
        EXPECT_EQ(line.color, QColor(Qt::black));
        dashes.push_back(line.dashes);
    }
    ASSERT_EQ(dashes.size(), 6U);
    std::ranges::sort(dashes);
    EXPECT_EQ(std::unique(dashes.begin(), dashes.end()) - dashes.begin(), 4)
        << "the pulse has a plot of its own";
    trend.forPrint = false;
    std::vector<QString> colours;
    for (const Curve& line : trend.medianLines())
        colours.push_back(line.color.name());
    std::ranges::sort(colours);
    EXPECT_EQ(std::unique(colours.begin(), colours.end()), colours.end())
        << "and each has a colour of its own";
    constexpr double readable = 4.5;
    for (const Curve& line : trend.medianLines())
        EXPECT_GE(contrast(line.color, fixColor(gcScaleBackgroundColor)), readable)
            << qPrintable(line.color.name());
    trend.selection.view = ViewSelection::pmOnly;
    EXPECT_EQ(trend.texts().filter(u" evening"_s).size(), 3);
    EXPECT_EQ(trend.texts().filter(u" morning"_s).size(), 0);
}

TEST(DrawTrend, OneHalfOfTheDayAloneLooksLikeAllAndUnlikeItsLinks) {
    const char* const evenings[]{"2019-03-01 20:00", "2019-03-02 20:00", "2019-03-05 20:00"};
    for (const ViewSelection view : {ViewSelection::pmOnly, ViewSelection::viewAll}) {
        TrendOf trend{.readings = {}, .apart = true, .forPrint = true};
        trend.selection.view = view;
        for (const char* date : evenings)
            trend.readings.push_back(readingAt(date, 130, 80));
        const auto lines = trend.medianLines();
        ASSERT_EQ(lines.size(), 3U);
        EXPECT_TRUE(lines[0].dashes.empty()) << "SYS";
        EXPECT_FALSE(lines[1].dashes.empty()) << "DIA";
        ASSERT_EQ(trend.links().size(), 3U);
        for (const Curve& link : trend.links())
            EXPECT_GT(link.color.lightness(), lines[0].color.lightness());
    }
}

TEST(DrawTrend, AFittedScaleHasAllThatIsDrawnAndLittleElse) {
    const ScaleRange usual{40, 220};
    const std::array measures{TrendMeasure::sys, TrendMeasure::dia};
    const struct {
        double high, low;
        std::array<std::uint32_t, 2> limits;
        ScaleRange fitted;
    } cases[]{{158, 92, {135, 85}, {80, 160}},  {124, 86, {150, 85}, {80, 160}},
              {160, 90, {0, 0}, {80, 170}}, // clear of the frame
              {120, 100, {400, 39}, {90, 130}}, {120, 119, {0, 0}, {100, 140}},
              {41, 40, {0, 0}, {40, 80}},       {4e9, 4e9, {0, 0}, {180, 220}},
              {4e9, 0, {0, 0}, usual}};
    for (const auto& [high, low, limits, fitted] : cases) {
        const TrendSeries series{
            .points = {{.sys = {high, high, high}, .dia = {low, low, low}, .pulse = {}}}};
        EXPECT_EQ(fittedRange(std::span(&series, 1), measures, limits, usual), fitted) << high << '/' << low;
    }
    EXPECT_EQ(fittedRange({}, measures, {}, usual), usual);
}

TEST(DrawTrend, AFittedPictureShowsMoreOfThePressure) {
    TrendOf trend{.forPrint = true, .rect = {0, 0, 520, 215}};
    const auto slope = [&] {
        trend.readings[0].sys = 150;
        const auto points = trend.medianLines().front().points;
        return points.front().y - points.back().y;
    };
    const auto numbers = [&] {
        const double edge = trend.layout().plot.x;
        auto texts = trend.items<TextLine>();
        std::erase_if(texts, [&](const TextLine& text) {
            return text.text.toInt() == 0 || std::abs(boxOf(text).right() - edge) > 3;
        });
        return texts;
    };
    const double usual = slope();
    trend.rect.height = 1500;
    EXPECT_EQ(numbers().size(), 9U + 8U) << "however much room there is";
    trend.rect.height = 215;
    trend.isFitted = true;
    EXPECT_GT(slope(), 1.8 * usual);
    trend.sysStandard = 190;
    EXPECT_LT(trend.curves(0.6).front().points.front().y, trend.layout().plot.top()) << "with its limits";
    trend.sysStandard = 135;
    for (const auto& [low, high] : {std::pair(65U, 65U), {40U, 65U}, {65U, 120U}, {48U, 108U}, {0U, 999U}}) {
        trend.readings[0].pulse = low;
        trend.readings[1].pulse = trend.readings[2].pulse = high;
        const auto texts = numbers();
        const double pulseTop = trend.items<BeginClip>().back().rect.top();
        const auto isOfPulse = [&](const TextLine& text) { return text.origin.y < pulseTop; };
        EXPECT_GE(std::ranges::count_if(texts, isOfPulse), 2) << "of the pulse: " << low << " to " << high;
        for (const TextLine& text : texts)
            EXPECT_LT(boxOf(text).right(), trend.layout().plot.x) << "clear of the frame";
    }
}

TEST(DrawTrend, DashesGoOnAroundCornersAndEnd) {
    const auto pieces = [](std::vector<Point> points, std::vector<double> dashes) {
        QStringList all;
        for (const auto& [from, to] : curvePieces({std::move(points), 1, Qt::black, std::move(dashes)}))
            all += u"%1,%2-%3,%4"_s.arg(from.x).arg(from.y).arg(to.x).arg(to.y);
        return all.join(u' ').toStdString();
    };
    const std::vector<Point> corner{{0, 0}, {10, 0}, {10, 10}};
    EXPECT_EQ(pieces(corner, {}), "0,0-10,0 10,0-10,10");
    EXPECT_EQ(pieces(corner, {8, 4}), "0,0-8,0 10,2-10,10");
    EXPECT_EQ(pieces(corner, {12, 4}), "0,0-10,0 10,0-10,2 10,6-10,10");
    EXPECT_EQ(pieces(corner, {0, 0}), "0,0-10,0 10,0-10,10") << "a pattern without length is none";
    EXPECT_EQ(pieces({{0, 0}}, {8, 4}), "");
    EXPECT_EQ(pieces({{0, 0}, {0, 0}}, {8, 4}), "");
    const Curve steep{
        {{0, 0}, {100.0 / 3, 100.0 / 7}, {200.0 / 3, 100.0 / 11}}, 1, Qt::black, {0.7, 0.7, 1.1, 0.7}};
    EXPECT_NEAR(static_cast<double>(curvePieces(steep).size()), 2 * 70.4 / 3.2, 3)
        << "rounding keeps no dash up";
}

TEST(DrawTrend, PaintsValuesThatNobodyHas) {
    TrendOf trend;
    trend.readings[1].sys = 4'294'967'295;
    QImage image(720, 440, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        paintPicture(painter, trend.layout().picture, 440);
    }
    for (const Curve& line : trend.medianLines())
        for (const Point& point : line.points)
            EXPECT_LT(std::abs(point.y), 10000);
}

TEST(DrawTrend, LimitsAreThoseOfTheOtherPictures) {
    const auto limits = [](const TrendOf& trend) {
        return std::ranges::count_if(trend.items<StraightLine>(), [](const StraightLine& line) {
            return line.color == fixColor(gcBloodRedLinecolor);
        });
    };
    EXPECT_EQ(limits({}), 2);
    EXPECT_EQ(limits({.sysStandard = 0}), 1) << "0 is no limit";
    const TrendOf paper{.forPrint = true};
    ASSERT_EQ(paper.curves(0.6).size(), 2U) << "in black";
    for (const Curve& limit : paper.curves(0.6))
        EXPECT_TRUE(limit.dashes.empty()) << "DIA has dashes";
    EXPECT_EQ(trendLimits(221, 90), std::pair(0U, 90U));
    EXPECT_EQ(trendLimits(220, 39), std::pair(220U, 0U));
}

TEST(DrawTrend, CountsThePointsThatReachBeyondTheScale) {
    const struct {
        std::uint32_t sys, dia, pulse;
        QString text;
    } cases[]{{220, 40, 120, {}},
              {221, 90, 70, u"2 points reach above the scale"_s},
              {120, 39, 70, u"2 points reach below the scale"_s},
              {120, 80, 121, u"2 points reach above the scale"_s},
              {999, 1, 70, u"2 points reach above the scale, 2 points reach below the scale"_s}};
    for (const auto& [sys, dia, pulse, text] : cases) {
        TrendOf trend{.apart = true};
        for (const std::size_t at : {0U, 1U})
            std::tie(trend.readings[at].sys, trend.readings[at].dia, trend.readings[at].pulse) =
                std::tuple(sys, dia, pulse);
        trend.readings[2].dia = 40;
        EXPECT_EQ(trend.texts().filter(u"scale"_s), text.isEmpty() ? QStringList() : QStringList(text));
    }
}

TEST(DrawTrend, EachCommentHasItsBandAndThoseWithoutTheirTextAreCounted) {
    const struct {
        int comments, apart, days, covered; ///< in days; how many cannot stand clear of the others
        double width;
    } cases[]{{3, 700, 2, 0, 700},     {12, 30, 2, 0, 700},    {60, 42, 3, 0, 700}, {60, 42, 3, 0, 470},
              {12, 200, 9999, 5, 700}, {60, 42, 700, 36, 700}, {9, 0, 1, 2, 700}};
    for (const auto& [comments, apart, days, covered, width] : cases) {
        TrendOf trend{.selection = during("2019-05-01", "2026-04-30"), .rect = {10, 20, width, 400}};
        trend.comment("2018-01-01", "2018-12-31", u"before the period"_s);
        for (int i = 0; i < comments; ++i) {
            trend.comment("2026-04-29", "2026-04-29",
                          u"Dose changed: %1 mg each morning from now on"_s.arg(i));
            trend.comments.back()->beginDay -= apart * i;
            trend.comments.back()->endDay += days - 1 - apart * i;
        }
        const std::vector<Rect> bands = trend.bands();
        EXPECT_EQ(std::ssize(bands), comments);
        int over = 0;
        for (std::size_t i = 0; i < bands.size(); ++i)
            over += std::any_of(bands.begin(), bands.begin() + static_cast<std::ptrdiff_t>(i),
                                [&](const Rect& other) { return overlap(bands[i], other); });
        EXPECT_EQ(over, covered) << comments << " in " << width;
        const Rect plot = trend.layout().plot;
        for (const auto& comment : trend.comments)
            EXPECT_EQ(std::ranges::any_of(bands,
                                          [&](const Rect& band) {
                                              const double day = plot.width / 2557;
                                              const int begin =
                                                  comment->beginDay - LocalZone{}.day(at("2019-05-01"));
                                              return std::abs(band.x - plot.x - day * begin) <= 3;
                                          }),
                      !comment->comment.startsWith(u"before"_s))
                << qPrintable(comment->comment);
        const QStringList texts = trend.texts();
        const auto named = texts.filter(u"Dose changed"_s).size();
        EXPECT_TRUE(named > 0);
        const QString counts = texts.filter(u"without"_s).join(u'|');
        EXPECT_EQ(counts.section(u"; "_s, 0, 0),
                  named == comments ? QString()
                                    : u"%1 more comments without their text"_s.arg(comments - named));
        EXPECT_EQ(counts.section(u"; "_s, 1),
                  covered == 0 ? QString() : u"%1 comments lie over others"_s.arg(covered));
        EXPECT_EQ(crowded(trend.items<TextLine>(), trend.rect).join(u'\n').toStdString(), "");
        EXPECT_LT(plot.y, 200) << "the plots keep most of the room";
    }
    TrendOf low{.rect = {0, 0, 480, 130}};
    low.comment("2019-03-10", "2019-03-12", {});
    EXPECT_TRUE(low.texts().contains(u"1 more comment has no room here"_s));
}

TEST(DrawTrend, ADayOfACommentThatIsNotKnownIsTheOther) {
    const DayNumber tenth = LocalZone{}.day(at("2019-03-10")), none = noDay;
    for (const auto& [begin, end, days] : {std::tuple(tenth, tenth, 1),
                                           {tenth, none, 1},
                                           {none, tenth, 1},
                                           {tenth + 2, tenth, 3},
                                           {none, none, 0}}) {
        TrendOf trend;
        trend.comment("2019-03-10", "2019-03-10", u"a cold"_s);
        trend.comments[0]->beginDay = begin;
        trend.comments[0]->endDay = end;
        const std::vector<Rect> bands = trend.bands();
        ASSERT_EQ(bands.size(), days > 0 ? 1U : 0U);
        if (days == 0) continue;
        const Rect plot = trend.layout().plot;
        EXPECT_NEAR(bands[0].x, plot.x + plot.width * 9 / 31, 0.01);
        EXPECT_NEAR(bands[0].width, plot.width * days / 31, 0.01);
    }
}

TEST(DrawTrend, HasNoPlotWhereThereIsNoRoom) {
    for (const Rect& rect : {Rect{}, Rect{0, 0, 700, 60}, Rect{0, 0, 60, 400}}) {
        const TrendLayout layout = TrendOf{.rect = rect}.layout();
        EXPECT_EQ(layout.picture.size(), 1U);
        EXPECT_TRUE(layout.columns.empty());
    }
}

} // namespace
} // namespace zel
