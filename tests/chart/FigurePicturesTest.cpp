#include "chart/DrawCorrelation.h"
#include "chart/DrawHistogram.h"
#include "chart/DrawStatistic.h"
#include "chart/Drawing.h"
#include "chart/PicturePainter.h"

#include <QImage>
#include <QPainter>

#include <gmock/gmock.h>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

template <class Item>
std::vector<Item> itemsOf(const Picture& picture) {
    std::vector<Item> items;
    for (const PictureItem& item : picture)
        if (const auto* found = std::get_if<Item>(&item)) items.push_back(*found);
    return items;
}

std::vector<Rect> filled(const Picture& picture, const QColor& color) {
    std::vector<Rect> rects;
    for (const FillRect& item : itemsOf<FillRect>(picture))
        if (item.color == color) rects.push_back(item.rect);
    return rects;
}

QStringList texts(const Picture& picture) {
    QStringList texts;
    for (const TextLine& line : itemsOf<TextLine>(picture))
        texts.append(line.text);
    return texts;
}

/// The line with that text, as the box it fills.
Rect boxOf(const Picture& picture, const QString& text) {
    for (const TextLine& line : itemsOf<TextLine>(picture)) {
        const Size size = textSize(line.text, line.attribute);
        if (line.text == text) return {line.origin.x, line.origin.y, size.width, size.height};
    }
    return {};
}

const QColor paper(Qt::green);
/// The picture in the middle of a larger sheet.
QImage painted(const Picture& picture, int width, int height) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(paper);
    QPainter painter(&image);
    paintPicture(painter, picture, height);
    return image;
}

bool keptOutside(const QImage& image, const Rect& rect) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (!rect.contains({x + 0.5, image.height() - y - 0.5}) && image.pixelColor(x, y) != paper)
                return false;
    return true;
}

HistogramFigures histogram(int sysClass, int pulseClass) {
    HistogramFigures figures;
    figures.total = 1;
    figures.sys.share.at(static_cast<std::size_t>(sysClass)) = 1;
    figures.dia.share.at(8) = 0.25;
    figures.pulse.share.at(static_cast<std::size_t>(pulseClass)) = 1;
    figures.sys.percentDivisions = figures.pulse.percentDivisions = 10;
    figures.dia.percentDivisions = 3;
    return figures;
}

StatisticFigures statistic() {
    StatisticFigures figures;
    figures.count = 2;
    figures.sys = {120, 121, 241, 121};
    figures.dia = {70, 80, 150, 75};
    figures.pulse = {60, 64, 124, 62};
    figures.mapOrPP = {87, 93, 180, 90};
    return figures;
}

const QColor bars(12, 98, 170, 204);

TEST(DrawHistogram, LaysOutPanelsAndBars) {
    const Rect area{10, 20, 365, 217};
    const Picture picture = drawHistogram(histogram(13, 6), {}, area);
    const Rect sys{40, 37, 100, 200};
    const Rect dia{145, 37, 100, 200};
    const Rect pulse{275, 37, 100, 200};
    EXPECT_THAT(filled(picture, Qt::white), testing::ElementsAre(sys, dia, pulse));

    const double height = 200 - textSize(u"SYS"_s, {}).height;
    const double row = height / 14;
    const auto shown = filled(picture, bars);
    ASSERT_EQ(shown.size(), 3U);
    EXPECT_NEAR(shown[0].y, 37 + 6.5 * row, 1e-9) << "the upper half of a division";
    EXPECT_NEAR(shown[0].width, 100, 1e-9) << "all readings";
    EXPECT_NEAR(shown[0].height, 0.4 * row, 1e-9);
    EXPECT_NEAR(shown[1].width, 100 * 2.5 / 3, 1e-9);
    EXPECT_NEAR(shown[1].y, 37 + 4 * row, 1e-9) << "the lower half of a division";
    EXPECT_NEAR(shown[2].y, 37 + 3 * height / 10, 1e-9);
    const auto low = filled(drawHistogram(histogram(13, 6), {}, {10, 20, 365, 117}), bars);
    EXPECT_NEAR(low.at(0).height, 0.5 * (height - 100) / 14 - 1, 1e-9)
        << "bars are apart in low pictures, too";
    const auto lines = itemsOf<StraightLine>(picture);
    for (const Rect& panel : {sys, dia, pulse}) {
        const auto isAxis = [&](const StraightLine& line) {
            return line.from == Point{panel.x, 37} && line.to == Point{panel.x, 237 - 30};
        };
        EXPECT_EQ(std::ranges::count_if(lines, isAxis), 1) << "it ends below the unit";
    }

    EXPECT_TRUE(texts(picture).contains(u"240"_s) && !texts(picture).contains(u"260"_s));
    EXPECT_EQ(texts(picture).count(u"160"_s), 2) << "the diastolic panel shares the systolic scale";
    EXPECT_EQ(texts(picture).count(u"%"_s), 3);
    const Rect number = boxOf(picture, u"120"_s);
    EXPECT_NEAR(number.y + number.height / 2, 37 + 6 * row, 1e-9);
    EXPECT_LE(number.right(), 40);
}

TEST(DrawHistogram, WithoutReadingsHasScalesAndNoBars) {
    HistogramFigures none = histogram(13, 6);
    none.total = 0;
    const Picture picture = drawHistogram(none, {}, {0, 0, 365, 217});
    EXPECT_TRUE(filled(picture, bars).empty());
    EXPECT_TRUE(texts(picture).contains(u"120"_s));
}

TEST(DrawHistogram, ValuesAboveAPanelShowNowhere) {
    const Rect area{50, 50, 365, 217};
    const QImage image = painted(drawHistogram(histogram(29, 27), {}, area), 500, 320);
    EXPECT_TRUE(keptOutside(image, area));
    HistogramFigures shown = histogram(28, 20); // their bars would begin where the scales end
    const QImage above = painted(drawHistogram(shown, {}, area), 500, 320);
    shown.sys.share.fill(0);
    shown.pulse.share.fill(0);
    EXPECT_EQ(above, painted(drawHistogram(shown, {}, area), 500, 320));
}

TEST(DrawCorrelation, PointsLimitsAndPlotFitTogether) {
    const Rect area{10, 20, 270, 217}; // the plot is 240 by 200: a unit for each mmHg
    const Rect plot{40, 37, 240, 200};
    const Picture picture =
        drawCorrelation(std::array<CorrelationPoint, 2>{{{135, 85}, {0, 0}}}, {}, 135, 85, area);
    EXPECT_THAT(filled(picture, Qt::white), testing::ElementsAre(plot));
    EXPECT_THAT(itemsOf<PointMarks>(picture).at(0).points,
                testing::ElementsAre(Point{175, 122}, Point{40, 37}));
    const auto lines = itemsOf<StraightLine>(picture);
    EXPECT_EQ(lines.at(lines.size() - 2).from, (Point{175, 37}));
    EXPECT_EQ(lines.back().from, (Point{40, 122}));
    EXPECT_EQ(boxOf(picture, u"Normal"_s).x, 45);
    EXPECT_NEAR(boxOf(picture, u"Both too high"_s).right(), 275, 1e-9);
    EXPECT_NEAR(boxOf(picture, u"Diastolic too high"_s).top(), 232, 1e-9);
    EXPECT_EQ(boxOf(picture, u"Systolic too high"_s).y, 42);

    const QImage image = painted(picture, 300, 260);
    for (const auto& [x, y, color] : {std::tuple{174, 121, QColor(Qt::black)},
                                      {176, 123, QColor(Qt::black)},
                                      {177, 124, QColor(Qt::white)},
                                      {20, 230, QColor(200, 220, 229)}})
        EXPECT_EQ(image.pixelColor(x, 259 - y), color) << x << ' ' << y;
}

TEST(DrawCorrelation, PointsOutsideThePlotShowNowhere) {
    const Rect area{30, 40, 270, 217};
    const std::array<CorrelationPoint, 3> outside{{{243, 100}, {100, 203}, {4294967295, 4294967295}}};
    const QImage image = painted(drawCorrelation(outside, {}, 135, 85, area), 400, 300);
    EXPECT_EQ(image, painted(drawCorrelation({}, {}, 135, 85, area), 400, 300));
    EXPECT_TRUE(keptOutside(painted(drawCorrelation(outside, {}, 999, 4294967295, area), 400, 300), area));
}

TEST(FigurePictures, TellOfReadingsBeyondTheirScales) {
    const struct {
        std::uint32_t sys, dia, pulse;
        std::array<int, 3> noBar;
        int noPoint;
    } cases[]{{240, 200, 199, {0, 0, 0}, 0}, {241, 100, 200, {0, 0, 1}, 1},
              {120, 201, 60, {0, 0, 0}, 1},  {279, 279, 0, {0, 0, 0}, 1},
              {280, 100, 60, {1, 0, 0}, 1},  {UINT32_MAX, 280, 60, {1, 1, 0}, 1}};
    const ReadingSelection everything{{Instant(), Instant(std::chrono::days{1})}, ViewSelection::viewAll};
    ReadingList readings;
    std::array<OffScale, 3> noBar{};
    OffScale noPoint;
    for (const auto& each : cases) {
        ReadingModel& reading = readings.emplace_back();
        reading.ReadingDate = Instant();
        reading.sys = each.sys, reading.dia = each.dia, reading.pulse = each.pulse;
        for (std::size_t panel = 0; panel < 3; ++panel)
            noBar.at(panel).above += each.noBar.at(panel);
        noPoint.above += each.noPoint;
        EXPECT_EQ(histogramOffScale(readings, everything), noBar) << each.sys;
        EXPECT_EQ(correlationOffScale(readings, everything), noPoint) << each.sys;
    }
    ReadingSelection later = everything;
    later.period.begin += std::chrono::hours{1};
    EXPECT_EQ(histogramOffScale(readings, later), HistogramOffScale{}) << "not counted at all";
    EXPECT_EQ(correlationOffScale(readings, later), OffScale{});

    const Rect area{10, 20, 800, 300};
    const QString note = u"5 readings above the scale"_s;
    EXPECT_TRUE(texts(drawCorrelation({}, noPoint, 135, 85, area)).contains(note));
    const Picture panels = drawHistogram(histogram(13, 6), {noPoint, {}, {1, 0}}, area);
    EXPECT_LT(boxOf(panels, note).x, boxOf(panels, u"DIA"_s).x);
    EXPECT_LT(boxOf(panels, u"Pulse"_s).right(), boxOf(panels, u"1 reading above the scale"_s).x);
    const Picture narrow = drawHistogram(histogram(13, 6), {noPoint, {}, {}}, {0, 0, 365, 217});
    EXPECT_TRUE(texts(narrow).contains(u"5 above"_s));
    EXPECT_EQ(offScaleText({2, 1}), u"2 readings above the scale, 1 reading below the scale"_s);
}

TEST(DrawCorrelation, ALimitOfNoneDividesNothing) {
    const Rect area{10, 20, 400, 300};
    for (const auto& [sys, dia, zones] :
         {std::tuple{140U, 90U, 4}, {140U, 0U, 2}, {0U, 90U, 2}, {0U, 0U, 0}}) {
        const Picture picture = drawCorrelation({}, {}, sys, dia, area);
        const auto words = texts(picture);
        EXPECT_EQ(std::ranges::count_if(words, [](const QString& text) { return text.contains("high"_L1); })
                      + words.count(u"Normal"_s),
                  zones);
        const auto lines = itemsOf<StraightLine>(picture);
        EXPECT_EQ(std::ranges::count(lines, 2, &StraightLine::width), zones / 2);
    }
}

TEST(DrawStatistic, ShowsARowForEachMeasure) {
    const Rect area{10, 20, 300, 120};
    const Picture picture = drawStatistic(statistic(), true, area);
    EXPECT_EQ(
        texts(picture).join(u' '),
        u"Average Min Max SYS 121 120 121 mmHg DIA 75 70 80 mmHg Pulse 62 60 64 1/min MAP 90 87 93 mmHg"_s);
    const TextAttribute type{.size = 12};
    const double r1 = 12 + textSize(u"pulse  "_s, type).width + textSize(u"maxaverage"_s, type).width;
    const double row = textSize(u"A"_s, type).height + 3;
    EXPECT_NEAR(boxOf(picture, u"Average"_s).right(), r1, 1e-9);
    EXPECT_NEAR(boxOf(picture, u"75"_s).right(), r1, 1e-9);
    EXPECT_NEAR(boxOf(picture, u"Average"_s).top(), 139, 1e-9);
    EXPECT_NEAR(boxOf(picture, u"MAP"_s).top(), 139 - 4 * row, 1e-9);
    EXPECT_NEAR(boxOf(picture, u"mmHg"_s).x, boxOf(picture, u"Max"_s).right() + 6, 1e-9);

    EXPECT_EQ(texts(drawStatistic({}, false, area)).count(u"n/a"_s), 12);
    EXPECT_TRUE(texts(drawStatistic({}, false, area)).contains(u"PP"_s));
    EXPECT_FALSE(texts(drawStatistic(statistic(), true, {0, 0, 210, 120})).contains(u"mmHg"_s)) << "no room";
}

TEST(FigurePictures, LabelsNeitherTouchNorLeaveThePicture) {
    constexpr OffScale many{1234, 0};
    for (const auto& [width, height] : {std::pair{320, 150}, {900, 420}, {540, 700}, {8000, 4000}}) {
        const Rect area{3, 5, static_cast<double>(width), static_cast<double>(height)};
        for (const Picture& picture :
             {drawHistogram(histogram(13, 6), {many, {}, many}, area),
              drawCorrelation({}, many, 135, 85, area), drawStatistic(statistic(), true, area)}) {
            std::vector<Rect> boxes;
            for (const TextLine& line : itemsOf<TextLine>(picture)) {
                const Size size = textSize(line.text, line.attribute);
                const Rect box{line.origin.x, line.origin.y, size.width, size.height};
                EXPECT_TRUE(area.x <= box.x && box.right() <= area.right() && area.y <= box.y
                            && box.top() <= area.top())
                    << line.text.toStdString() << " at " << width;
                for (const Rect& other : boxes)
                    EXPECT_FALSE(box.x < other.right() && other.x < box.right() && box.y < other.top()
                                 && other.y < box.top())
                        << line.text.toStdString() << " at " << width;
                boxes.push_back(box);
            }
        }
    }
}

// What is not said looks as if it were not there.
TEST(FigurePictures, ReadingsOffTheScaleAreToldHoweverNarrowThePictureIs) {
    constexpr OffScale many{1234, 56};
    const auto told = [](const Picture& picture, const Rect& area) {
        qsizetype numbers = 0;
        for (const TextLine& line : itemsOf<TextLine>(picture)) {
            if (!line.text.contains(u"1234"_s) || !line.text.contains(u"56"_s)) continue;
            ++numbers;
            EXPECT_GE(line.attribute.size, 7);
            EXPECT_LE(line.origin.x + textSize(line.text, line.attribute).width, area.right());
            EXPECT_GE(line.origin.x, area.x);
        }
        return numbers;
    };
    for (int width = 260; width <= 1200; width += 20)
        for (const int height : {90, 150, 600}) {
            const Rect area{3, 5, static_cast<double>(width), static_cast<double>(height)};
            EXPECT_EQ(told(drawHistogram(histogram(13, 6), {many, many, many}, area), area), 3)
                << width << " x " << height;
            EXPECT_EQ(told(drawCorrelation({}, many, 135, 85, area), area), 1) << width << " x " << height;
            Picture note;
            drawOffScale(note, many, {area.x, area.y, area.width, 3});
            EXPECT_EQ(told(note, area), 1) << "in a chart that is lower than its words";
        }
}

TEST(FigurePictures, TinyPicturesStayInTheirArea) {
    for (const double size : {1.0, 17.0, 31.0, 66.0, 90.0}) {
        const Rect area{20, 20, size, size};
        for (const Picture& picture :
             {drawHistogram(histogram(13, 6), {}, area),
              drawCorrelation(std::array{CorrelationPoint{135, 85}}, {1, 0}, 135, 85, area),
              drawStatistic(statistic(), true, area)})
            EXPECT_TRUE(keptOutside(painted(picture, 150, 150), area)) << size;
    }
}

} // namespace
} // namespace zel
