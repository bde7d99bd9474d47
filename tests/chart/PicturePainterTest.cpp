#include "chart/PicturePainter.h"

#include "chart/Drawing.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include <gmock/gmock.h>

#include <random>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

constexpr int width = 220;
constexpr int height = 160;
const Rect plot{20, 10, 180, 130};

QImage canvas(double ratio) {
    QImage image(QSize(width, height) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(QColor(30, 90, 160));
    return image;
}

QImage painted(const Picture& picture, double ratio = 1) {
    QImage image = canvas(ratio);
    QPainter painter(&image);
    paintPicture(painter, picture, height);
    return image;
}

StraightLine gridLine(int number) {
    const double x = -10 + 7.3 * number;
    return {{x, 0}, {x, 100}, 1, Qt::green};
}

/// Readings of which many share a column or a place, and some lie far outside of the plot.
struct DenseReadings {
    PolyLine line;
    PointMarks marks;
    Ticks ticks{{}, QColor(255, 255, 255, 153)};

    explicit DenseReadings(int perColumn) {
        std::mt19937 random(static_cast<unsigned>(perColumn));
        const auto within = [&random](int low, int high) {
            return static_cast<double>(std::uniform_int_distribution<int>(low, high)(random));
        };
        for (int number = 0; number < 190 * perColumn; ++number) {
            const double x = 15 + number / perColumn; // NOLINT(bugprone-integer-division): a whole column
            const double farOut = number % 211 == 7 ? 8.0e9 : within(-20, 170);
            line.points.push_back({x, farOut});
            marks.points.push_back({x, within(0, 150)});
            ticks.ticks.push_back({x, within(60, 150), within(-5, 90)});
        }
    }

    [[nodiscard]] Picture together() const {
        Picture picture{BeginClip{plot}};
        for (int number = 0; number < 32; ++number)
            picture.emplace_back(gridLine(number));
        for (const PictureItem& item :
             Picture{marks, ticks, line, PointMarks{marks.points, false}, EndClip{}})
            picture.push_back(item);
        return picture;
    }
    [[nodiscard]] Picture eachAlone() const {
        Picture picture{BeginClip{plot}};
        for (int number = 0; number < 32; ++number) { // something between them keeps them apart
            picture.emplace_back(gridLine(number));
            picture.emplace_back(FillRect{});
        }
        for (const Point point : marks.points)
            picture.emplace_back(PointMarks{{point}});
        for (const auto& tick : ticks.ticks)
            picture.emplace_back(Ticks{{tick}, ticks.color});
        for (std::size_t i = 1; i < line.points.size(); ++i)
            picture.emplace_back(PolyLine{{line.points[i - 1], line.points[i]}});
        for (const Point point : marks.points)
            picture.emplace_back(PointMarks{{point}, false});
        picture.emplace_back(EndClip{});
        return picture;
    }
};

class DensePictures : public testing::TestWithParam<std::tuple<int, double>> {};

TEST_P(DensePictures, AreThoseOfEachReadingDrawnAlone) {
    const auto [perColumn, ratio] = GetParam();
    const DenseReadings readings(perColumn);
    EXPECT_EQ(painted(readings.together(), ratio), painted(readings.eachAlone(), ratio));
}

INSTANTIATE_TEST_SUITE_P(All, DensePictures,
                         testing::Combine(testing::Values(1, 3, 40), testing::Values(1.0, 1.25, 2.0)));

TEST(PicturePainter, DrawsMarksTicksAndLinesAsThePainterItselfWould) {
    const DenseReadings readings(40);
    QImage expected = canvas(1);
    QPainter painter(&expected);
    painter.setClipRect(20, height - 140, 180, 130);
    const auto row = [](double y) { return height - 1 - static_cast<int>(y); };
    const auto square = [&](Point point, int side, const QColor& color) {
        painter.fillRect(static_cast<int>(point.x) - side / 2, row(point.y) - side / 2, side, side, color);
    };
    for (const Point point : readings.marks.points) {
        square(point, 5, QColor(127, 127, 127));
        square(point, 3, Qt::black);
    }
    for (const auto& [x, y1, y2] : readings.ticks.ticks)
        painter.fillRect(static_cast<int>(x), row(std::max(y1, y2)) + 1, 1,
                         static_cast<int>(std::abs(y1 - y2)), readings.ticks.color);
    PolyLine line;
    for (const Point point : readings.line.points)
        if (point.y < 1000) line.points.push_back(point);
    for (std::size_t i = 1; i < line.points.size(); ++i)
        painter.drawLine(static_cast<int>(line.points[i - 1].x), row(line.points[i - 1].y),
                         static_cast<int>(line.points[i].x), row(line.points[i].y));
    EXPECT_EQ(painted({BeginClip{plot}, readings.marks, readings.ticks, line, EndClip{}}), expected);
}

TEST(PicturePainter, DrawsAllOfALevelLine) {
    const PolyLine line{{{40, 50}, {41, 50}, {42, 50}, {42, 50}, {43, 50}, {43, 50}, {44, 50}}};
    EXPECT_EQ(painted({line}), painted({FillRect{{40, 50, 5, 1}, Qt::black}}));
}

TEST(PicturePainter, BlendsTicksAsFilledColumnsAndLeavesTheRestAsItIs) {
    const std::vector<std::vector<Ticks::Tick>> cases{
        {{39, 140, 108}, {40, 108, 98}, {41, 88, 83}},
        // one in its column before and behind several
        {{39, 140, 60}, {40, 120, 70}, {40, 100, 40}, {41, 90, 90}, {42, 130, 50}, {43, 145, 9}, {43, 60, 5}},
    };
    for (const auto& each : cases) {
        const Ticks ticks{each, QColor(255, 255, 255, 153)};
        Picture alone;
        for (const auto& [x, y1, y2] : ticks.ticks)
            alone.emplace_back(FillRect{{x, y2, 1, y1 - y2}, ticks.color});
        EXPECT_EQ(painted({ticks}), painted(alone)) << each.size();
    }
}

TEST(PicturePainter, HasItsOriginAtTheBottomLeft) {
    const Picture picture{FillRect{{0, 0, 10, 5}, Qt::red}, FillRect{{200, 150, 20, 10}, Qt::green}};
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = painted(picture, ratio);
        const auto at = [&](double x, double y) {
            return image.pixelColor((QPointF(x, y) * ratio).toPoint());
        };
        EXPECT_EQ(at(0, 155), QColor(Qt::red));
        EXPECT_NE(at(0, 154), QColor(Qt::red));
        EXPECT_EQ(at(219, 0), QColor(Qt::green));
        EXPECT_NE(at(219, 10), QColor(Qt::green));
    }
}

TEST(PicturePainter, SetsTextIntoItsBox) {
    const TextAttribute attribute{20, true};
    const Size size = textSize(u"Hg"_s, attribute);
    for (const double ratio : {1.0, 2.0}) {
        QImage image = painted(
            {FillRect{{0, 0, width, height}, Qt::white}, TextLine{u"Hg"_s, {30, 40}, attribute}}, ratio);
        QRect ink;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y).lightness() < 128) ink |= QRect(x, y, 1, 1);
        const QRectF box(30 * ratio, (height - 40 - size.height) * ratio, size.width * ratio,
                         size.height * ratio);
        EXPECT_TRUE(box.adjusted(-1, -1, 1, 1).contains(ink)) << ratio;
        EXPECT_GT(ink.height(), box.height() / 2) << ratio;
    }
}

TEST(PicturePainter, SetsEachTextInItsOwnType) {
    const TextLine small{u"Hg"_s, {10, 120}, {9, false}}, large{u"Hg"_s, {10, 60}, {24, true}};
    const TextLine inside{u"Hg"_s, {80, 60}, {24, true}}, behind{u"Hg"_s, {150, 60}, {24, true}};
    const TextLine last{u"Hg"_s, {80, 120}, {9, false}};
    const BeginClip clip{{70, 40, 70, 60}, 0};
    const QImage together = painted({small, clip, inside, EndClip{}, behind, large, last});
    QImage apart = canvas(1);
    QPainter painter(&apart);
    for (const Picture& each :
         std::vector<Picture>{{small}, {clip, inside, EndClip{}}, {behind}, {large}, {last}})
        paintPicture(painter, each, height);
    painter.end();
    EXPECT_EQ(together, apart);
}

TEST(PicturePainter, GoesToPaperAsAScalableDrawing) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    {
        QPdfWriter paper(&file);
        QPainter painter(&paper);
        paintPicture(painter, DenseReadings(3).together(), height);
    }
    EXPECT_TRUE(file.data().startsWith("%PDF"));
    EXPECT_FALSE(file.data().contains("/Subtype /Image"));
}

TEST(PicturePainter, TakesAnyNumbers) {
    constexpr double huge = 4294967295.0 * 4000;
    const Picture picture{BeginClip{{29, 30, -28, -29}},
                          FillRect{{0, 0, -5, 3}, Qt::red},
                          EndClip{},
                          RoundRect{{50, 50, -20, 1}, 4, Qt::red, 1},
                          StraightLine{{0, huge}, {10, huge}, 2, Qt::red},
                          PolyLine{{{-huge, -huge}, {huge, huge}}},
                          PointMarks{{{huge, huge}, {-huge, 3}}},
                          Ticks{{{5, -huge, huge}, {huge, 0, 5}}, QColor(255, 255, 255, 3)},
                          EndClip{}};
    const QImage image = painted(picture);
    EXPECT_NE(image.pixelColor(5, 50), canvas(1).pixelColor(5, 50)); // the tick runs through all of it
    EXPECT_EQ(image.pixelColor(100, 59), QColor(Qt::black));         // and so does the line
}

} // namespace
} // namespace zel
