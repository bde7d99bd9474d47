#include "chart/DrawChart.h"

#include "chart/Drawing.h"
#include "chart/PicturePainter.h"
#include "chart/TimeAxis.h"

#include <QCoreApplication>
#include <QImage>
#include <QPainter>

#include <gmock/gmock.h>

namespace zel {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using std::chrono::days;

constexpr Rect rect{10, 20, 1029, 390};

Instant local(const char* text) { return *StrToDate(QString::fromLatin1(text), u"yyyy-MM-dd HH:mm:ss"_s); }

Period daysFrom(const char* first, int count) {
    const Instant noon = local((std::string(first) + " 12:00:00").c_str());
    return {DateToDayBoundary(noon, true), DateToDayBoundary(noon + days{count - 1}, false)};
}

ReadingModel reading(Instant date, std::uint32_t sys, std::uint32_t dia, std::uint32_t pulse,
                     bool pm = false) {
    ReadingModel made;
    made.ReadingDate = date;
    made.sys = sys;
    made.dia = dia;
    made.pulse = pulse;
    made.isPMData = pm;
    return made;
}

/// A patient's chart, to be spoiled in one place.
struct Chart {
    ReadingList readings{reading(local("2019-03-02 08:00:00"), 130, 85, 70),
                         reading(local("2019-03-04 20:00:00"), 140, 90, 75, true)};
    DataLogList downloads;
    Period period = daysFrom("2019-03-01", 7);
    std::uint32_t sysStandard = 140;
    ChartStyle style = DrawPulse;
    Rect total = rect;

    [[nodiscard]] ChartLayout layout() const {
        const ChartData data = makeChartData(readings, downloads);
        return drawChart({data, period, sysStandard, 90, style, total}, LocalZone());
    }
    [[nodiscard]] std::vector<ChartPoint> points() const {
        const ChartData data = makeChartData(readings, downloads);
        return chartPoints({data, period, 140, 90, style, total});
    }
    template <class Item>
    [[nodiscard]] std::vector<Item> items() const {
        std::vector<Item> found;
        for (const PictureItem& item : layout().picture)
            if (const auto* one = std::get_if<Item>(&item)) found.push_back(*one);
        return found;
    }
    [[nodiscard]] QStringList texts(double atY) const {
        QStringList found;
        for (const TextLine& line : items<TextLine>())
            if (line.origin.y == atY && line.origin.x >= total.x + scaleWidth) found.push_back(line.text);
        return found;
    }
    [[nodiscard]] std::size_t uprightLines() const {
        const auto lines = items<StraightLine>();
        return static_cast<std::size_t>(
            std::ranges::count_if(lines, [](const StraightLine& line) { return line.from.x == line.to.x; }));
    }
};

TEST(ChartScale, PlacesValuesAndDates) {
    const Period period = daysFrom("2019-01-01", 10);
    const ChartScale pulse(rect, period, false, 60);
    EXPECT_EQ(pulse.whiteRect, (Rect{39, 20, 1000, 390}));
    EXPECT_EQ(pulse.chartRect, (Rect{39, 50, 1000, 360}));
    EXPECT_EQ(pulse.mapPulseValToY(40), 50);
    EXPECT_EQ(pulse.mapPulseValToY(120), 410);
    const ChartScale blood(rect, period, true, 80);
    EXPECT_EQ(blood.chartRect, blood.whiteRect);
    EXPECT_EQ(blood.mapValToY(60), 20);
    EXPECT_DOUBLE_EQ(blood.mapValToY(150), 20 + 390 / 2.0);
    EXPECT_EQ(blood.time.calcXPos(period.begin), 39);
    EXPECT_EQ(blood.time.calcXPos(period.end), 1039);
    EXPECT_EQ(blood.time.XPosToDate(539), period.begin + (period.end - period.begin) / 2);
}

TEST(ChartScale, HasABaseOfWholeTens) {
    for (const auto& [number, base] : std::initializer_list<std::pair<int, int>>{
             {40, 40}, {41, 50}, {49, 50}, {0, 0}, {-5, 0}, {-19, -10}, {2147483640, 2147483640}})
        EXPECT_EQ(setScaleBase(number), base);
}

TEST(DrawChart, NumbersItsValueScale) {
    const struct {
        ChartStyle style;
        double bottom, numberStep, lineStep;
        QStringList numbers;
        std::size_t lines;
    } cases[]{{DrawBlood,
               20,
               43,
               390 / 9.0,
               {u"60"_s, u"80"_s, u"100"_s, u"120"_s, u"140"_s, u"160"_s, u"180"_s},
               8},
              {DrawPulse, 50, 90, 90, {u"60"_s, u"80"_s}, 3}};
    for (const auto& each : cases) {
        Chart chart;
        chart.style = each.style;
        auto texts = chart.items<TextLine>();
        std::erase_if(texts, [](const TextLine& text) { return text.origin.x >= 39; });
        QStringList numbers;
        for (const TextLine& text : std::span(texts).first(texts.size() - 1)) {
            numbers += text.text;
            const Size size = textSize(text.text, text.attribute);
            EXPECT_NEAR(text.origin.x + size.width, 39, 1e-6);
            EXPECT_NEAR(text.origin.y + size.height / 2,
                        each.bottom + each.numberStep * static_cast<double>(numbers.size()), 1e-6);
        }
        EXPECT_EQ(numbers, each.numbers);
        const TextLine& unit = texts.back();
        EXPECT_NEAR(unit.origin.y + textSize(unit.text, unit.attribute).height, 410, 1e-6);
        auto lines = chart.items<StraightLine>();
        std::erase_if(lines, [](const auto& line) { return line.from.y != line.to.y || line.width != 1; });
        ASSERT_EQ(lines.size(), each.lines);
        for (std::size_t line = 0; line < lines.size(); ++line)
            EXPECT_NEAR(lines[line].from.y, each.bottom + each.lineStep * static_cast<double>(line + 1),
                        1e-6);
    }
}

TEST(DrawChart, ShowsDaysOfShortPeriodsAndMonthsOfLongOnes) {
    Chart chart;
    chart.period = daysFrom("2019-01-20", 47);
    EXPECT_TRUE(chart.layout().bShowComment);
    EXPECT_EQ(chart.texts(20), (QStringList{u"January 2019"_s, u"February 2019"_s, u"March 2019"_s}));
    EXPECT_EQ(chart.texts(20 + dateHeight - 1).size(), 47);
    chart.period = daysFrom("2019-01-20", 48);
    EXPECT_FALSE(chart.layout().bShowComment);
    EXPECT_EQ(chart.texts(20), QStringList{u"2019"_s});
    EXPECT_EQ(chart.texts(20 + dateHeight), (QStringList{u"January"_s, u"February"_s, u"March"_s}));
    chart.period = daysFrom("1950-01-01", 36525);
    EXPECT_EQ(chart.texts(20).front(), u"2047"_s) << "there is no room for the last one";
    auto years = chart.items<TextLine>();
    std::erase_if(years, [](const TextLine& line) { return line.origin.y != 20; });
    ASSERT_GT(years.size(), 10U);
    for (std::size_t i = 1; i < years.size(); ++i) // from the right
        EXPECT_LE(years[i].origin.x + textSize(years[i].text, years[i].attribute).width,
                  years[i - 1].origin.x);
    chart.style = DrawBlood;
    EXPECT_TRUE(chart.texts(20).empty());

    chart.style = DrawPulse;
    chart.period = daysFrom("2019-03-03", 1);
    EXPECT_EQ(chart.texts(20), QStringList{u"March 2019"_s}) << "a single day has its date";
    EXPECT_EQ(chart.texts(20 + dateHeight - 1), QStringList{u"3"_s});
    const auto nameX = [&] { return chart.items<TextLine>().at(4).origin.x; };
    EXPECT_EQ(nameX(), 39);
    chart.style.forPrint = true;
    EXPECT_EQ(nameX(), 39 + 4) << "beside the frame";
}

TEST(DrawChart, CountsDaysAsTheCalendarDoes) {
    // Both changes of the clocks, in the middle of a period of 47 days.
    for (const char* first : {"2019-03-10", "2019-10-05"}) {
        Chart chart;
        chart.period = daysFrom(first, 47);
        ASSERT_TRUE(chart.layout().bShowComment);
        const QStringList numbers = chart.texts(20 + dateHeight - 1);
        ASSERT_EQ(numbers.size(), 47);
        const ChartLayout layout = chart.layout();
        int number = 0;
        for (const PictureItem& item : layout.picture) {
            const auto* line = std::get_if<TextLine>(&item);
            if (!line || line->origin.y != 20 + dateHeight - 1) continue;
            const Instant noon = chart.period.begin + 12h + days{number};
            EXPECT_EQ(line->text.toInt(), DateToStr(noon, u"d"_s).toInt());
            EXPECT_EQ(line->attribute.bold, DateToStr(noon, u"e"_s).toInt() % 6 == 1);
            EXPECT_NEAR(line->origin.x - 2, layout.scale.time.calcXPos(DateToDayBoundary(noon, true)), 1e-6);
            ++number;
        }
        const Period wider = addDay(addDay(chart.period, 1), 20);
        EXPECT_EQ(DayDiff(wider.begin, wider.end), 46 + 42);
        EXPECT_EQ(addDay(wider, -21), chart.period);
    }
}

TEST(DrawChart, SpacesItsGridByTheLengthOfThePeriod) {
    for (const auto& [dayDiff, lines] : std::initializer_list<std::pair<int, std::size_t>>{
             {0, 0}, {1, 2}, {500, 501}, {501, 72}, {3650, 522}, {3651, 122}, {36525, 1218}}) {
        Chart chart;
        chart.period = daysFrom("1999-01-01", dayDiff + 1);
        EXPECT_EQ(chart.uprightLines(), lines) << dayDiff;
    }
}

TEST(DrawChart, BreaksLinesAfterMoreThanThirtyDays) {
    for (const auto& [gap, lines] :
         std::initializer_list<std::pair<std::chrono::seconds, std::size_t>>{{720h, 1}, {720h + 1s, 2}}) {
        Chart chart;
        chart.period = daysFrom("2019-01-01", 100);
        chart.readings[0].ReadingDate = local("2019-01-05 08:00:00");
        chart.readings[1].ReadingDate = *chart.readings[0].ReadingDate + gap;
        EXPECT_EQ(chart.items<PolyLine>().size(), lines);
        chart.style = DrawBlood;
        EXPECT_EQ(chart.items<PolyLine>().size(), 2 * lines);
    }
}

TEST(DrawChart, DrawsReadingsOfTheChosenHalfOfTheDay) {
    using enum ViewSelection;
    for (const auto& [view, count] : std::initializer_list<std::pair<ViewSelection, std::size_t>>{
             {custom, 2}, {viewAll, 2}, {amOnly, 1}, {pmOnly, 1}, {none, 0}}) {
        Chart chart;
        chart.style = DrawBlood;
        chart.style.showDataType = view;
        EXPECT_EQ(chart.points().size(), 2 * count);
        EXPECT_EQ(chart.items<Ticks>().at(0).ticks.size(), count);
        EXPECT_EQ(chart.items<StraightLine>().size(), 7U + 8U + 2U); // days, values and both limits stay
        chart.sysStandard = 0;
        EXPECT_EQ(chart.items<StraightLine>().size(), 7U + 8U + 1U) << "0 is no limit";
    }
}

TEST(DrawChart, SaysWhichHalfOfTheDayItCompares) {
    using enum ViewSelection;
    Chart chart;
    EXPECT_NE(chart.items<TextLine>().back().text, qtTrId("evening"));
    chart.style.CompareType = true;
    for (const auto& [view, text] : {std::pair{amOnly, qtTrId("morning")}, {pmOnly, qtTrId("evening")}}) {
        chart.style.showDataType = view;
        const TextLine caption = chart.items<TextLine>().back();
        EXPECT_EQ(caption.text, text);
        EXPECT_EQ(caption.origin.x, 39 + 6);
        EXPECT_NEAR(caption.origin.y + textSize(text, caption.attribute).height, 410 - 2, 1e-6);
    }
}

TEST(DrawChart, PlacesPointsInTheOrderOfTheirDates) {
    Chart chart;
    chart.style = DrawBlood;
    std::swap(chart.readings[0], chart.readings[1]);
    chart.readings.push_back(reading(local("2019-03-05 08:00:00"), 4294967295, 0, 0));
    const ChartLayout layout = chart.layout();
    const auto points = chart.points();
    ASSERT_EQ(points.size(), 4U); // the third lies above and below the plot
    const Instant first = local("2019-03-02 08:00:00");
    EXPECT_EQ(points[0].x, std::floor(layout.scale.time.calcXPos(first)));
    EXPECT_EQ(points[0].y, std::floor(20 + (130 - 40) * 390 / 180.0));
    EXPECT_EQ(points[1].reading->dia, 85U);
    EXPECT_EQ(points[2].reading->sys, 140U);
}

TEST(DrawChart, JoinsReadingsInViewToThoseBesideIt) {
    Chart chart;
    chart.period = daysFrom("2019-03-03", 1); // between both readings
    EXPECT_TRUE(chart.points().empty());
    EXPECT_EQ(chart.items<PolyLine>().at(0).points.size(), 2U);
    // Two marks reach into the plot; of what lies further out, only the one that is joined is drawn.
    chart.readings.clear();
    for (const auto& [minutes, drawn] : {std::pair{1min, 1U}, {4min, 2U}, {9min, 3U}, {12min, 3U}}) {
        chart.readings.push_back(reading(chart.period.begin - minutes, 130, 85, 70));
        EXPECT_EQ(chart.items<PointMarks>().at(0).points.size(), drawn) << minutes.count();
    }
}

// On the screen the pointer finds them; on paper a reading alone would leave no trace.
TEST(DrawChart, MarksReadingsOnPaperToo) {
    Chart chart;
    chart.readings.pop_back();
    for (const auto& [style, marks] : {std::pair{DrawBlood, 2U}, {DrawPulse, 1U}}) {
        chart.style = style;
        chart.style.bTrack = false;
        chart.style.forPrint = true;
        const Picture picture = chart.layout().picture;
        const auto printed = chart.items<PointMarks>();
        ASSERT_EQ(printed.size(), 1U);
        EXPECT_FALSE(printed[0].bordered);
        EXPECT_EQ(printed[0].points.size(), marks);
        const auto mark = std::ranges::find_if(
            picture, [](const PictureItem& item) { return std::holds_alternative<PointMarks>(item); });
        EXPECT_TRUE(std::none_of(mark, picture.end(), [](const PictureItem& item) {
            return std::holds_alternative<Ticks>(item);
        })) << "a tick would bleach the mark";
    }
}

TEST(DrawChart, TellsOfReadingsBeyondItsScale) {
    Chart chart;
    const struct {
        std::uint32_t sys, dia, pulse;
        int base;
        QString blood, beats;
    } cases[]{{220, 40, 120, 60, {}, {}},
              {221, 40, 39, 60, u"1 reading above the scale"_s, u"1 reading below the scale"_s},
              {200, 39, 121, 60, u"1 reading below the scale"_s, u"1 reading above the scale"_s},
              {220, 40, 60, 80, u"2 readings below the scale"_s, u"1 reading below the scale"_s},
              {221, 39, 60, 60, u"1 reading above the scale, 1 reading below the scale"_s, {}}};
    for (const auto& each : cases) {
        chart.readings = {reading(local("2019-03-02 08:00:00"), each.sys, each.dia, each.pulse),
                          reading(local("2019-03-04 08:00:00"), 120, 59, 59),
                          reading(local("2019-03-08 08:00:00"), 500, 0, 500)};
        for (const auto& [style, note] : {std::pair{DrawBlood, each.blood}, {DrawPulse, each.beats}}) {
            chart.style = style;
            chart.style.iScaleBase = each.base;
            const TextLine last = chart.items<TextLine>().back();
            EXPECT_EQ(last.text.contains(u"scale"_s) ? last.text : QString(), note) << each.sys;
        }
    }
    chart.total.width = 29 + 150;
    chart.style.iScaleBase = 300;
    EXPECT_EQ(chart.items<TextLine>().back().text, u"2 readings below the scale"_s);
    chart.style.CompareType = true;
    EXPECT_EQ(chart.items<TextLine>().at(chart.items<TextLine>().size() - 2).text, u"2 below"_s)
        << "beside the caption";
    chart.style.CompareType = false;
    chart.total.width = 29 + 100;
    EXPECT_EQ(chart.items<TextLine>().back().text, u"2 below"_s);
}

TEST(DrawChart, SaysThatThePeriodHasNoReadings) {
    using enum ViewSelection;
    Chart chart; // a reading before noon on 2 March, one after noon on 4 March
    const struct {
        const char* day;
        ViewSelection view;
        QString note;
    } cases[]{{"2019-03-02", viewAll, {}},
              {"2019-03-03", custom, u"No readings in this period"_s},
              {"2019-03-02", pmOnly, u"No readings from noon on in this period"_s},
              {"2019-03-04", amOnly, u"No readings before noon in this period"_s},
              {"2019-03-04", pmOnly, {}}};
    for (const auto& each : cases)
        for (const ChartStyle& style : {DrawBlood, DrawPulse}) {
            chart.style = style;
            chart.style.showDataType = each.view;
            chart.period = daysFrom(each.day, 1);
            const QString last = chart.items<TextLine>().back().text;
            EXPECT_EQ(last.startsWith(u"No readings"_s) ? last : QString(), each.note) << each.day;
        }
}

TEST(DrawChart, SaysThatThereIsNoData) {
    Chart chart;
    chart.readings.clear();
    EXPECT_TRUE(chart.points().empty());
    EXPECT_EQ(chart.uprightLines(), 0U);
    const TextLine text = chart.items<TextLine>().back();
    EXPECT_EQ(text.attribute.color, QColor(Qt::red));
    EXPECT_NEAR(text.origin.x, rect.x + rect.width / 2, 100);
}

TEST(DrawChart, FillsDownloadDays) {
    // Those at the ends of the plot are clipped to its round corners, as the background is.
    for (const auto& [day, clips] : {std::pair{"2019-03-01", 2}, {"2019-03-03", 1}, {"2019-03-07", 2}}) {
        Chart chart;
        for (const std::string& date :
             {day + std::string(" 09:00:00"), day + std::string(" 18:00:00"),
              std::string("2018-03-03 09:00:00"), std::string("2020-03-03 09:00:00")}) {
            chart.downloads.emplace_back().transferDate = local(date.c_str());
            chart.downloads.back().transferDay = LocalZone().day(local(date.c_str()));
        }
        auto fills = chart.items<FillRect>();
        std::erase_if(fills, [](const FillRect& fill) { return fill.color != QColor(255, 255, 205); });
        ASSERT_EQ(fills.size(), 1U) << day;
        EXPECT_EQ(fills[0].rect.height, 360);
        EXPECT_NEAR(fills[0].rect.width, 1000 / 7.0, 0.1);
        const auto isRound = [](const BeginClip& clip) { return clip.radius > 0; };
        EXPECT_EQ(std::ranges::count_if(chart.items<BeginClip>(), isRound), clips) << day;
    }
}

TEST(DrawChart, HasAWhitePlotWithRoundCornersOnTheScreen) {
    const auto painted = [](const Picture& picture, int ratio) {
        QImage image(QSize(1100, 420) * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::green);
        QPainter painter(&image);
        paintPicture(painter, picture, 420);
        return image;
    };
    for (const int ratio : {1, 2}) {
        Chart chart;
        Picture background = chart.layout().picture;
        const auto end = std::ranges::find_if(
            background, [](const PictureItem& item) { return std::holds_alternative<EndClip>(item); });
        background.erase(end + 1, background.end());
        const Picture plain{FillRect{rect, QColor(200, 220, 229)}, BeginClip{{39, 20, 1000, 390}, 5},
                            FillRect{rect, Qt::white}, EndClip{}};
        EXPECT_EQ(painted(background, ratio), painted(plain, ratio));
        chart.style.forPrint = true;
        EXPECT_EQ(painted({chart.layout().picture.front()}, ratio),
                  painted({FillRect{rect, Qt::white}}, ratio));
    }
}

TEST(DrawChart, SurvivesAnySize) {
    for (const Rect& total : {Rect{0, 0, 1, 1}, Rect{0, 0, 29, 30}, Rect{0, 0, 8000, 4000}}) {
        for (const int count : {1, 47, 36525}) {
            Chart chart;
            chart.period = daysFrom("1950-01-01", count);
            chart.readings.push_back(reading(chart.period.begin + 1h, 4294967295, 0, 4294967295));
            chart.total = total;
            QImage image(static_cast<int>(total.width), static_cast<int>(total.height), QImage::Format_RGB32);
            QPainter painter(&image);
            paintPicture(painter, chart.layout().picture, total.height);
            chart.style = DrawBlood;
            paintPicture(painter, chart.layout().picture, total.height);
        }
    }
}

TEST(DrawChart, WhatIsLeftOutStandsApartAndJoinsNothing) {
    for (const ChartStyle& style : {DrawBlood, DrawPulse}) {
        Chart chart;
        chart.style = style;
        chart.readings.insert(chart.readings.begin() + 1, reading(local("2019-03-03 08:00:00"), 150, 95, 80));
        const auto lines = [&] { return chart.items<PolyLine>(); };
        Chart without = [&] {
            Chart made = chart;
            made.readings.erase(made.readings.begin() + 1);
            return made;
        }();
        chart.readings[1].exclusion = u""_s;
        chart.readings.push_back(chart.readings[1]); // at the same place
        for (Chart* shown : {&chart, &without})
            shown->period = daysFrom("2019-03-04", 3); // the line comes from the one that counts
        for (std::size_t i = 0; i < lines().size(); ++i)
            EXPECT_EQ(lines()[i].points, without.items<PolyLine>().at(i).points);
        for (Chart* shown : {&chart, &without})
            shown->period = daysFrom("2019-03-01", 7);
        ASSERT_EQ(lines().size(), without.items<PolyLine>().size());
        for (std::size_t i = 0; i < lines().size(); ++i)
            EXPECT_EQ(lines()[i].points, without.items<PolyLine>()[i].points);
        EXPECT_EQ(chart.items<PointMarks>().front().points, without.items<PointMarks>().front().points);
        const auto hollow = chart.items<Circle>();
        ASSERT_EQ(hollow.size(), style.showBlood ? 2U : 1U);
        EXPECT_FALSE(hollow.front().filled);
        EXPECT_EQ(chart.points().size(), style.showBlood ? 8U : 4U) << "can be pointed at";
        const auto says = [&] {
            return std::ranges::count(chart.items<TextLine>(), qtTrId("chartExcluded", 2), &TextLine::text);
        };
        EXPECT_EQ(says(), 1);
        chart.style.forPrint = true;
        EXPECT_EQ(says(), 0) << "the page has a legend of its own";
        EXPECT_EQ(chart.items<Circle>().size(), hollow.size());
    }
}

} // namespace
} // namespace zel
