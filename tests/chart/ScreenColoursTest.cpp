#include "chart/ScreenColours.h"

#include <gmock/gmock.h>

namespace zel {

namespace {

const ScreenColours night{QColor(30, 32, 40), QColor(240, 240, 230)};

Picture oneOfEach() {
    const Point at{1, 2};
    return {FillRect{{0, 0, 9, 9}, Qt::white},
            RoundRect{{0, 0, 9, 9}, 2, getCommentColor(2, true), 1},
            StraightLine{at, at, 1, fixColor(gcGrayLinecolor)},
            Circle{at, 5, true, Qt::black},
            TextLine{QStringLiteral("120"), at, attribute(4)},
            PolyLine{{at}},
            Curve{{at}, 1, QColor(8, 80, 150), {}},
            Area{{at}, QColor(8, 80, 150, 40)},
            PointMarks{{at}},
            Ticks{{{1, 2, 3}}, fixColor(gcBloodWhiteLinecolor)}};
}

template <class Item>
const Item& firstOf(const Picture& picture) {
    for (const PictureItem& each : picture)
        if (const auto* found = std::get_if<Item>(&each)) return *found;
    qFatal("no such item");
}

} // namespace

TEST(ScreenColoursTest, contrastIsCountedAsTheGuidelinesDo) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(Qt::white, QColor(118, 118, 118)), 4.54, 0.01);
    EXPECT_EQ(contrast(Qt::red, Qt::red), 1);
}

TEST(ScreenColoursTest, onWhiteNothingIsChanged) {
    const Picture shown = inColours(oneOfEach(), {});
    EXPECT_EQ(firstOf<TextLine>(shown).attribute, attribute(4));
    EXPECT_EQ(firstOf<Curve>(shown).color, QColor(8, 80, 150));
    EXPECT_EQ(firstOf<PointMarks>(shown).border, fixColor(gcGrayBorderForDotcolor));
}

TEST(ScreenColoursTest, whiteBecomesThePaperAndBlackTheInkInEveryItem) {
    const Picture shown = inColours(oneOfEach(), night);
    EXPECT_EQ(firstOf<FillRect>(shown).color.rgb(), night.paper.rgb());
    EXPECT_EQ(firstOf<PolyLine>(shown).color.rgb(), night.ink.rgb());
    EXPECT_EQ(firstOf<Circle>(shown).color.rgb(), night.ink.rgb());
    EXPECT_EQ(firstOf<PointMarks>(shown).color.rgb(), night.ink.rgb());
    EXPECT_NE(firstOf<PointMarks>(shown).border, firstOf<PointMarks>(shown).color);
    const QColor tick = firstOf<Ticks>(shown).color;
    EXPECT_EQ(tick.rgb(), night.paper.rgb());
    EXPECT_EQ(tick.alpha(), fixColor(gcBloodWhiteLinecolor).alpha()) << "blends as it did";
    EXPECT_EQ(firstOf<Area>(shown).color.alpha(), 40);
}

TEST(ScreenColoursTest, coloursKeepTheirHueAndPaleOnesStayPale) {
    for (int degree = 1; degree <= commentColourTotal; ++degree) {
        const QColor before = getCommentColor(degree, true), after = shade(before, night);
        if (before.hslSaturation() > 0) {
            EXPECT_NEAR(after.hslHue(), before.hslHue(), 2) << degree;
        }
        EXPECT_GE(contrast(after, night.paper), 3) << degree << ": a band beside the readings can be seen";
    }
    const QColor download = shade(fixColor(gcYellowBackgroundcolor), night);
    EXPECT_NEAR(download.hslHue(), 60, 3);
    EXPECT_LT(contrast(download, night.paper), 2) << "a day behind the lines";
}

TEST(ScreenColoursTest, textsCanBeReadOnThePaperAndBesideIt) {
    for (const ScreenColours& colours : {night, ScreenColours{Qt::black, Qt::white, true}})
        for (int number = 1; number <= 8; ++number) {
            const QColor text = readableShade(attribute(number).color, colours);
            EXPECT_GE(contrast(text, colours.paper), readable) << number;
            EXPECT_GE(contrast(text, shade(fixColor(gcScaleBackgroundColor), colours)), readable) << number;
        }
}

TEST(ScreenColoursTest, highContrastMakesLinesAsStrongAsTextsAndLeavesTheGrid) {
    const QColor line = fixColor(gcBloodRedLinecolor);
    const ScreenColours strong{Qt::black, Qt::white, true}, usual{Qt::black, Qt::white};
    const auto painted = [](const QColor& color, const ScreenColours& colours) {
        return firstOf<StraightLine>(inColours({StraightLine{{}, {}, 1, color}}, colours)).color;
    };
    const auto shown = [&](const ScreenColours& colours) { return painted(line, colours); };
    EXPECT_GE(contrast(shown(strong), Qt::black), readable);
    EXPECT_LT(contrast(shown(usual), Qt::black), readable);
    const ScreenColours onWhite{.isStrong = true};
    EXPECT_GE(contrast(shown(onWhite), Qt::white), readable) << "on a light desktop, too";
    for (const int grid : {gcGrayLinecolor, gcScaleBackgroundColor})
        EXPECT_LT(contrast(painted(fixColor(grid), onWhite), Qt::white), 2) << "does not hide the readings";
}

} // namespace zel
