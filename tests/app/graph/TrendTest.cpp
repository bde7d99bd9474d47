#include "ChartPageTest.h"
#include "app/graph/BPInfoView.h"
#include "app/graph/TrendView.h"
#include "support/InZone.h"

#include <QCheckBox>
#include <QTest>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The chart page with the trend in view.
class TrendTest : public ChartPageTest {
protected:
    void openTrend(const QString& begin, const QString& end) {
        openChart(begin, end);
        click("toggleTrend");
        trend().setFocus();
        QCoreApplication::processEvents();
    }
    TrendView& trend() { return find<TrendView>("TrendView"); }
    QString said() { return trend().accessibleDescription(); }
    BPInfoView* info() { return window().findChild<BPInfoView*>(); }
    bool isInfoVisible() { return info() && info()->isVisible(); }
    void hover(double share) {
        QTest::mouseMove(&trend(), {qRound(trend().width() * share), trend().height() / 3});
    }
};

} // namespace

TEST_F(TrendTest, isAViewOfThePageLikeTheOthers) {
    openTrend(u"20260301"_s, u"20260310"_s);
    EXPECT_EQ(find<GraphViewController>("GraphViewController").drawViewState(), 3);
    EXPECT_TRUE(trend().isVisible());
    EXPECT_FALSE(page("DrawGraphicVC").isVisible());
    expectNamed(window());
    EXPECT_TRUE(said().startsWith(u"Median of each day, 10 readings."_s)) << qPrintable(said());
    const QImage days = trend().grab().toImage();
    showDays(u"20260301"_s, u"20261231"_s);
    EXPECT_TRUE(said().startsWith(u"Median of each week, 60 readings"_s)) << qPrintable(said());
    EXPECT_NE(trend().grab().toImage(), days) << "the period is another one";
    store.setCurrentID(u"P2"_s);
    EXPECT_TRUE(page("noChart").isVisible());
    EXPECT_FALSE(page("trendApart").isVisible());
    store.setCurrentID(u"P1"_s);
    EXPECT_TRUE(trend().isVisible());
    click("toggleGraph");
    EXPECT_FALSE(page("trendApart").isVisible());
}

TEST_F(TrendTest, aSmallScreenHasRoomForAllFourChoices) {
    openTrend(u"20260301"_s, u"20260310"_s);
    EXPECT_TRUE(page("readingSide").isVisible());
    for (const char* view : {"toggleTrend", "toggleGraph"}) {
        click(view);
        window().resize(1200, 700);
        window().resize(600, 400);
        QCoreApplication::processEvents();
        EXPECT_FALSE(page("readingSide").isVisible()) << view;
        window().resize(600, 400);
        QCoreApplication::processEvents();
        EXPECT_EQ(window().width(), 600) << view;
    }
}

TEST_F(TrendTest, keysGoFromPointToPointAndSayTheirFigures) {
    openTrend(u"20260303"_s, u"20260305"_s);
    const auto figures = [](int day) {
        return u"Days: 0%1/03/2026\nReadings: 1\nSystolic: %2 mmHg\nDiastolic: 80 "
               u"mmHg\n"
               "Pulse: 65 per minute"_s.arg(day)
                   .arg(110 + day);
    };
    const std::pair<Qt::Key, int> steps[]{{Qt::Key_Right, 3}, {Qt::Key_Right, 4}, {Qt::Key_End, 5},
                                          {Qt::Key_Right, 5}, {Qt::Key_Left, 4},  {Qt::Key_Home, 3},
                                          {Qt::Key_Left, 3}};
    for (const auto& [key, day] : steps) {
        press(key);
        EXPECT_EQ(said(), figures(day));
        EXPECT_EQ(info()->accessibleName(), said());
        EXPECT_TRUE(window().rect().contains(info()->geometry()));
    }
    EXPECT_EQ(shown(), u"20260303-20260305"_s) << "the period stays";
    press(Qt::Key_Escape);
    EXPECT_FALSE(isInfoVisible());
    press(Qt::Key_Left);
    EXPECT_EQ(said(), figures(5)) << "from the end";
    press(Qt::Key_Tab);
    EXPECT_FALSE(isInfoVisible());
}

TEST_F(TrendTest, aPulseThatWasNotMeasuredIsADash) {
    ReadingModel without = reading(u"202602010800"_s, 131);
    without.pulse = 0;
    storeReadings(u"P1"_s, {without});
    openTrend(u"20260201"_s, u"20260201"_s);
    EXPECT_TRUE(said().endsWith(u"Diastolic: 80 mmHg\nPulse: –"_s)) << qPrintable(said());
}

TEST_F(TrendTest, thePointerShowsTheFiguresOfTheStepThatItIsOver) {
    ReadingList more;
    for (const std::uint32_t sys : {150U, 155U, 160U, 165U})
        more.push_back(reading(u"202603252000"_s, sys));
    storeReadings(u"P1"_s, more);
    openTrend(u"20260301"_s, u"20261231"_s);
    QStringList weeks; // from left to right
    for (int x = 0; x < trend().width(); ++x) {
        QTest::mouseMove(&trend(), {x, trend().height() / 3});
        const QString figures = said().section(u'\n', 0, 1);
        if (isInfoVisible() && !weeks.endsWith(figures)) weeks += figures;
    }
    const auto week = [](const char* days, int readings) {
        return u"Days: %1\nReadings: %2"_s.arg(QLatin1String(days)).arg(readings);
    };
    EXPECT_EQ(weeks, (QStringList{week("01/03/2026", 1), week("02/03/2026 to 08/03/2026", 7),
                                  week("09/03/2026 to 15/03/2026", 7), week("16/03/2026 to 22/03/2026", 7),
                                  week("23/03/2026 to 29/03/2026", 11), week("30/03/2026 to 05/04/2026", 7),
                                  week("06/04/2026 to 12/04/2026", 7), week("13/04/2026 to 19/04/2026", 7),
                                  week("20/04/2026 to 26/04/2026", 7), week("27/04/2026 to 03/05/2026", 3)}));
    QTest::mouseMove(&trend(), {5, 5});
    EXPECT_FALSE(isInfoVisible());
    EXPECT_TRUE(said().contains(u"64 readings"_s));
    showDays(u"20260325"_s, u"20260325"_s);
    hover(0.8);
    EXPECT_EQ(said(), u"Days: 25/03/2026\nReadings: 5\nSystolic: 155 (141 to 163) mmHg\n"
                      "Diastolic: 80 mmHg\nPulse: 65 per minute"_s)
        << "one point in the middle is met from everywhere";
    const QImage marked = trend().grab().toImage();
    QTest::mouseMove(&trend(), {5, 5});
    EXPECT_NE(trend().grab().toImage(), marked) << "it was marked";
    showDays(u"20270101"_s, u"20270201"_s);
    hover(0.5);
    press(Qt::Key_Right);
    EXPECT_FALSE(isInfoVisible()) << "there is nothing to be pointed at";
}

TEST_F(TrendTest, figuresGoWithAReadingThatIsGone) {
    openTrend(u"20260301"_s, u"20260303"_s);
    press(Qt::Key_Home);
    ASSERT_TRUE(isInfoVisible());
    ASSERT_TRUE(store.load());
    EXPECT_FALSE(isInfoVisible());
    press(Qt::Key_Home);
    window().resize(900, 600);
    QCoreApplication::processEvents();
    EXPECT_FALSE(isInfoVisible()) << "its point has moved";
    press(Qt::Key_Home);
    click("toggleGraph");
    EXPECT_FALSE(isInfoVisible());
}

TEST_F(TrendTest, morningsAndEveningsAreLinesOfTheirOwnAtChoice) {
    storeReadings(u"P1"_s, {reading(u"202603012000"_s, 151), reading(u"202603022000"_s, 152)});
    openTrend(u"20260301"_s, u"20260303"_s);
    const QImage together = trend().grab().toImage();
    auto& choice = find<QCheckBox>("trendApart");
    EXPECT_FALSE(choice.isChecked());
    choice.setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(find<GraphViewController>("GraphViewController").isTrendApart());
    EXPECT_NE(trend().grab().toImage(), together);
    trend().setFocus();
    press(Qt::Key_Home);
    EXPECT_EQ(said(), u"Days: 01/03/2026\nReadings, before noon: 1\nSystolic, before noon: 111 mmHg\n"
                      "Diastolic, before noon: 80 mmHg\nPulse, before noon: 65 per minute\n"
                      "Readings, from noon on: 1\nSystolic, from noon on: 151 mmHg\n"
                      "Diastolic, from noon on: 80 mmHg\nPulse, from noon on: 65 per minute"_s);
    press(Qt::Key_End);
    EXPECT_FALSE(said().contains(u"from noon on"_s)) << "only of the half that has readings that day";
    choice.setFocus();
    press(Qt::Key_Space);
    trend().setFocus();
    press(Qt::Key_Home);
    EXPECT_TRUE(said().contains(u"Readings: 2\nSystolic: 131 (111 to 151) mmHg"_s)) << qPrintable(said());
    for (const HalfOfDay half : {HalfOfDay::morning, HalfOfDay::evening, HalfOfDay::both}) {
        period.setHalfOfDay(half);
        const bool isWhole = half == HalfOfDay::both;
        EXPECT_EQ(choice.isEnabled(), isWhole) << "one half has nothing to draw apart";
        EXPECT_EQ(choice.toolTip(), qtTrId(isWhole ? "trendApartHint" : "trendApartNeedsDay"));
    }
}

TEST_F(TrendTest, halvesOfTheDaySayWhoseClockTheyGoBy) {
    openTrend(u"20260301"_s, u"20260303"_s);
    const InZone tokyo("Asia/Tokyo");
    ASSERT_TRUE(store.load());
    const auto isTold = [&] {
        return said().contains(
            u"3 readings were stored in another time zone; times are those of this computer"_s);
    };
    EXPECT_FALSE(isTold()) << "a day is hardly another one";
    find<QCheckBox>("trendApart").click();
    EXPECT_TRUE(isTold()) << qPrintable(said());
}

} // namespace zel
