#include "chart/CommentBoxes.h"

#include <gmock/gmock.h>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

Instant dayAt(const char* date) {
    return StrToDate(u"2022-"_s + QLatin1StringView(date), u"yyyy-MM-dd HH:mm:ss"_s).value();
}
std::string minuteText(Instant date) { return DateToStr(date, u"MM-dd HH:mm:ss"_s).toStdString(); }

GFXRoundRect box(double x, double width) { return {u"1"_s, Qt::black, {x, 99, width, 14}}; }
CommentShape shape(double x, double width) { return std::make_shared<GFXRoundRect>(box(x, width)); }

TEST(GFXRoundRect, StaysInItsStrip) {
    GFXRoundRect moved = box(100, 50);
    EXPECT_EQ(moved.bounds(), (Rect{100, 15, 50, 14}));
    moved.offsetLocationByY(3);
    EXPECT_EQ(moved.bounds(), (Rect{100, 18, 50, 14}));
    EXPECT_EQ(moved.drawBounds(), (Rect{97, 15, 56, 20}));
}

TEST(GFXRoundRect, HandlesAreTheEdges) {
    const GFXRoundRect wide = box(100, 50);
    const struct {
        Point point;
        GFXRoundRect::Handle handle;
        bool contained;
    } cases[]{{{95, 15}, GFXRoundRect::left, false},   {{103.9, 28}, GFXRoundRect::left, true},
              {{104, 20}, GFXRoundRect::none, true},   {{145.9, 20}, GFXRoundRect::none, true},
              {{146, 20}, GFXRoundRect::right, true},  {{154.9, 20}, GFXRoundRect::right, false},
              {{155, 20}, GFXRoundRect::none, false},  {{100, 14}, GFXRoundRect::none, true},
              {{97, 14}, GFXRoundRect::none, true},    {{94.9, 20}, GFXRoundRect::none, false},
              {{125, 11.9}, GFXRoundRect::none, false}};
    for (const auto& each : cases) {
        EXPECT_EQ(wide.handleAtPoint(each.point), each.handle) << each.point.x << ' ' << each.point.y;
        EXPECT_EQ(wide.handleContainsPoint(each.point), each.handle != GFXRoundRect::none);
        EXPECT_EQ(wide.containsPoint(each.point), each.contained);
    }
    for (const double width : {0.0, 3.0, 12.0, 50.0, -40.0}) {
        for (const auto handle : {GFXRoundRect::left, GFXRoundRect::right})
            EXPECT_GE(box(100, width).handleRect(handle).width, 8) << width;
    }
    EXPECT_EQ(box(100, 6).handleAtPoint({103, 20}), GFXRoundRect::none) << "a narrow box can be clicked";
    GFXRoundRect cut = wide;
    cut.isCutLeft = true;
    EXPECT_EQ(cut.handleAtPoint({100, 20}), GFXRoundRect::none);
    EXPECT_EQ(cut.handleAtPoint({150, 20}), GFXRoundRect::right);
    cut.isCutRight = true;
    EXPECT_FALSE(cut.handleContainsPoint({150, 20}));
    EXPECT_EQ(GFXRoundRect(u"1"_s, Qt::black, {}).handleAtPoint({500, 500}), GFXRoundRect::right);
}

TEST(GFXRoundRect, IsDraggedByItsEdges) {
    const struct {
        Point press;
        std::vector<Point> way;
        Rect bounds;
    } cases[]{{{100, 20}, {{90, 25}, {80, 99}}, {80, 15, 70, 14}},
              {{150, 20}, {{175, 20}, {170, 20}}, {100, 15, 70, 14}},
              {{125, 20}, {{300, 20}}, {100, 15, 50, 14}}, // its body
              {{100, 20}, {{190, 20}}, {190, 15, -40, 14}},
              {{150, 20}, {{60, 20}}, {100, 15, -40, 14}},
              {{150, 20}, {{150.6, 20}, {151.2, 20}, {151.8, 20}, {152.4, 20}}, {100, 15, 52, 14}}};
    for (const auto& each : cases) {
        GFXRoundRect dragged = box(100, 50);
        dragged.mouseDown(each.press);
        for (const Point& point : each.way)
            dragged.mouseDragged(point);
        EXPECT_EQ(dragged.bounds(), each.bounds) << each.press.x;
        EXPECT_EQ(dragged.dragRightHandle(), each.press.x == 150);
    }
}

TEST(DrawManager, FindsTheTopmostAndDrawsWhatShows) {
    DrawManager manager;
    const CommentShape below = shape(100, 100);
    const CommentShape above = shape(150, 100);
    const CommentShape outside = shape(900, 50);
    const CommentShape before = shape(-90, 50);
    manager.selectObject(below);
    EXPECT_TRUE(manager.selection().empty()) << "it is not on the chart";
    for (const CommentShape& added : {below, above, outside, before, below})
        manager.addObject(added);
    EXPECT_THAT(manager.objects(), testing::ElementsAre(below, above, outside, before));

    EXPECT_EQ(manager.objectUnderMousePoint({175, 20}), above);
    EXPECT_EQ(manager.objectUnderMousePoint({120, 20}), below);
    EXPECT_EQ(manager.objectUnderMousePoint({120, 50}), nullptr);
    EXPECT_EQ(manager.objectWithHandleUnderMousePoint({200, 20}), below) << "through the box above it";
    EXPECT_EQ(manager.objectWithHandleUnderMousePoint({175, 20}), nullptr);

    manager.selectObject(above);
    manager.selectObject(above);
    EXPECT_THAT(manager.selection(), testing::ElementsAre(above));
    Picture picture;
    manager.drawComments(picture, {0, 0, 800, 100});
    ASSERT_EQ(picture.size(), 2U);
    EXPECT_EQ(std::get<RoundRect>(picture[0]).strokeWidth, 1);
    EXPECT_EQ(std::get<RoundRect>(picture[1]).strokeWidth, 3);
    manager.setObjects({below, above});
    EXPECT_TRUE(manager.selection().empty());
}

/// A period of two weeks around the change to summer time, 100 units a day.
struct CommentDates : testing::Test {
    Period period{dayAt("03-20 00:00:00"), dayAt("04-02 23:59:59")};
    TimeScale scale{period.begin, period.end, 29, 1400};
    double x(const char* date) const { return scale.calcXPos(dayAt(date)); }
};

TEST_F(CommentDates, PositionsAndDatesAreInverse) {
    for (const char* date : {"03-20 00:00:00", "03-27 03:00:00", "03-31 12:34:56"})
        EXPECT_EQ(minuteText(scale.XPosToDate(x(date))), minuteText(dayAt(date)));
    EXPECT_EQ(scale.calcXPos(period.end), 1429);
    EXPECT_EQ((TimeScale{period.begin, period.end, 29, 0}).XPosToDate(500), period.begin);
    EXPECT_EQ((TimeScale{period.begin, period.begin, 29, 100}).calcXPos(period.end), 29);
}

TEST_F(CommentDates, BoxesSpanTheDaysInThePeriod) {
    const struct {
        const char* what;
        const char *begin, *end;
        const char *shownBegin, *shownEnd; ///< null: no box
        const char* cut = "";              ///< at which sides
    } cases[]{
        {"inside", "03-21 08:00:00", "03-23 09:00:00", "03-21 00:00:00", "03-23 23:59:59"},
        {"over the beginning", "03-01 00:00:00", "03-21 23:59:59", "03-20 00:00:00", "03-21 23:59:59",
         "left"},
        {"over the end", "03-27 00:00:00", "05-01 23:59:59", "03-27 00:00:00", "04-02 23:59:59", "right"},
        {"the last second", "04-02 23:59:59", "05-01 23:59:59", "04-02 00:00:00", "04-02 23:59:59", "right"},
        {"in the wrong order", "03-23 00:00:00", "03-21 00:00:00", "03-21 00:00:00", "03-23 23:59:59"},
        {"all of it", "03-20 00:00:00", "04-02 23:59:59", "03-20 00:00:00", "04-02 23:59:59"},
        {"over both ends", "03-19 23:59:59", "04-03 00:00:00", nullptr, nullptr},
        {"before", "03-01 00:00:00", "03-19 23:59:59", nullptr, nullptr},
        {"without a begin", nullptr, "03-21 12:00:00", "03-21 00:00:00", "03-21 23:59:59"},
        {"without an end", "04-02 12:00:00", nullptr, "04-02 00:00:00", "04-02 23:59:59"},
        {"without an end, before", "03-19 12:00:00", nullptr, nullptr, nullptr},
        {"without days", nullptr, nullptr, nullptr, nullptr},
    };
    const auto dateOf = [](const char* date) { return date ? dayAt(date) : getNilDate(); };
    for (const auto& each : cases) {
        CommentList comments;
        comments.push_back(std::make_unique<CommentModel>());
        comments[0]->CommentID = u"7"_s;
        comments[0]->degree = 4;
        comments[0]->beginDate = dateOf(each.begin);
        comments[0]->endDate = dateOf(each.end);
        const auto boxes = commentBoxes(comments, period, scale);
        ASSERT_EQ(boxes.size(), each.shownBegin ? 1U : 0U) << each.what;
        if (boxes.empty()) continue;
        EXPECT_NEAR(boxes[0].bounds.x, x(each.shownBegin), 1e-6) << each.what;
        EXPECT_NEAR(boxes[0].bounds.right(), x(each.shownEnd), 1e-6) << each.what;
        DrawManager manager;
        const CommentShape made = createCommentInRect(manager, boxes[0], 0);
        EXPECT_EQ(made->isCutLeft, each.cut == std::string("left")) << each.what;
        EXPECT_EQ(made->isCutRight, each.cut == std::string("right")) << each.what;
        EXPECT_EQ(boxes[0].strokeColour, QColor(255, 194, 0));
    }
}

TEST_F(CommentDates, ADraggedEdgeSnapsToWholeDays) {
    const struct {
        const char* what;
        const char *left, *right; ///< where the edges are
        bool rightDragged;
        const char *begin, *end;
    } cases[]{
        {"right edge, on midnight", "03-21 00:00:00", "03-24 00:00:00", true, "03-21", "03-24"},
        {"right edge, the left a little early", "03-20 23:30:00", "03-24 10:00:00", true, "03-21", "03-24"},
        {"left edge", "03-22 13:00:00", "03-24 23:59:59", false, "03-22", "03-24"},
        {"left edge, the right a little late", "03-22 13:00:00", "03-25 00:30:00", false, "03-22", "03-24"},
        {"left edge past the right", "03-26 10:00:00", "03-24 23:59:59", false, "03-24", "03-26"},
        {"right edge past the left", "03-24 00:00:00", "03-21 10:00:00", true, "03-21", "03-24"},
        {"right edge, into the short day", "03-26 00:00:00", "03-27 23:30:00", true, "03-26", "03-27"},
        {"left edge, into the short day", "03-27 00:30:00", "03-28 23:59:59", false, "03-27", "03-28"},
        {"right edge from the short day", "03-27 00:00:00", "03-30 12:00:00", true, "03-27", "03-30"},
    };
    for (const auto& each : cases) {
        const Period dates =
            draggedDates({x(each.left), 15, x(each.right) - x(each.left), 14}, each.rightDragged, scale);
        EXPECT_EQ(minuteText(dates.begin), each.begin + std::string(" 00:00:00")) << each.what;
        EXPECT_EQ(minuteText(dates.end), each.end + std::string(" 23:59:59")) << each.what;
    }
}

TEST_F(CommentDates, ANewCommentCoversOneDay) {
    const CommentModel comment = newCommentAt(x("03-27 12:00:00"), 1, scale, LocalZone());
    EXPECT_EQ(minuteText(*comment.beginDate), "03-27 00:00:00");
    EXPECT_EQ(minuteText(*comment.endDate), "03-27 23:59:59");
    EXPECT_EQ(comment.degree, 3U);
    EXPECT_EQ(comment.strEndDate(), u"2022/03/27"_s);
    EXPECT_TRUE(comment.isSelected);

    const Rect view{0, 0, 500, 200};
    EXPECT_TRUE(isInsideCommentZone({250, 29.9}, view));
    for (const Point& point : {Point{250, 30}, Point{-1, 10}, Point{500, 10}, Point{250, -1}})
        EXPECT_FALSE(isInsideCommentZone(point, view)) << point.x << ' ' << point.y;
}

} // namespace
} // namespace zel
