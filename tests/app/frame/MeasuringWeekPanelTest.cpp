#include "app/frame/ReadingFrame.h"
#include "support/ReadingPageTest.h"

#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class MeasuringWeekPanelTest : public ReadingPageTest {
protected:
    /// Two mornings and two evenings a day from 10 to 16 March, the last evening's second missing.
    void openWeek() {
        ReadingList readings;
        for (int day = 10; day <= 16; ++day)
            for (const char* time : {"0700", "0701", "1900", "1901"})
                if (day < 16 || QLatin1String(time) != "1901"_L1)
                    readings.push_back(
                        reading(u"202603%1%2"_s.arg(day).arg(QLatin1String(time)), day == 10        ? 180
                                                                                   : time[0] == '0' ? 140
                                                                                                    : 129));
        storeReadings(u"P1"_s, readings);
        open(new ReadingFrame({store, period, panel, clock}, *new QWidget, nullptr));
    }
    void pickDay(const QString& digits) {
        page("cboWeekRule").setFocus(); // or the year would be typed on
        typeDay("weekEnd", digits);
        QTest::keyClick(&find<QWidget>("weekEnd"), Qt::Key_Return);
    }
    QString hint(const char* line) {
        EXPECT_EQ(page(line).accessibleDescription(), page(line).toolTip());
        return page(line).toolTip();
    }
    void chooseNextRule() {
        auto& box = find<QComboBox>("cboWeekRule");
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Down);
    }
};

TEST_F(MeasuringWeekPanelTest, theAverageFollowsRuleAndDay) {
    openWeek();
    EXPECT_EQ(dayIn("weekEnd"), u"16/03/2026"_s) << "the last day with readings";
    EXPECT_EQ(text("lblWeekMean"), u"<135/80 mmHg"_s);
    EXPECT_EQ(text("lblWeekThreshold"), u"Below 135/85 (to a tenth: 134.7/80.0), pulse 65"_s);
    EXPECT_EQ(hint("lblWeekMean"), u"Mean 134.7/80.0 mmHg, pulse 65.0"_s);
    EXPECT_EQ(text("lblWeekHalves"), u"AM 140/80, PM 129/80"_s);
    EXPECT_EQ(hint("lblWeekHalves"), u"AM 140.0/80.0, PM 129.0/80.0"_s);
    EXPECT_EQ(text("lblWeekCount"), u"23 readings on 6 days; 4 of the first day not counted"_s);
    EXPECT_FALSE(find<QLabel>("lblWeekMissing").isVisible());
    EXPECT_FALSE(find<QLabel>("lblWeekZone").isVisible());
    replaceDataFile(dataFile().replace("2026-03-12T07:00:00+01:00", "2026-03-12T01:00:00-05:00"));
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(text("lblWeekZone"),
              u"1 reading was stored in another time zone; its time is that of this computer"_s);
    EXPECT_EQ(text("lblWeekHalves"), u"AM 140/80, PM 129/80"_s) << "of the same moments";
    chooseNextRule();
    EXPECT_EQ(text("lblWeekMissing"), u"Incomplete, needs 1 more evening"_s);
    chooseNextRule();
    EXPECT_EQ(text("lblWeekThreshold"), u"At or above 130/80 (to a tenth: 141.4/80.0), pulse 65"_s);
    EXPECT_EQ(text("lblWeekCount"), u"27 readings on 7 days"_s);
    pickDay(u"11032026"_s);
    EXPECT_EQ(text("lblWeekMissing"), u"Incomplete, needs 1 more day, 4 more readings"_s);
    store.setCurrentID(u"P2"_s);
    EXPECT_EQ(text("lblWeekMean"), u"No average"_s);
    EXPECT_FALSE(find<QWidget>("weekEnd").isEnabled());
    EXPECT_EQ(dayIn("weekEnd"),
              DateToStr(std::chrono::floor<Instant::duration>(clock.now()), u"dd/MM/yyyy"_s))
        << "not the day of another patient";
    store.setCurrentID(u"P1"_s);
    EXPECT_EQ(dayIn("weekEnd"), u"16/03/2026"_s) << "of another patient than the day was picked for";
}

TEST_F(MeasuringWeekPanelTest, theLastDayIsFollowedAgainOnceItIsPicked) {
    openWeek();
    pickDay(u"15032026"_s);
    storeReadings(u"P1"_s, {reading(u"202603170700"_s, 140)});
    EXPECT_EQ(dayIn("weekEnd"), u"15/03/2026"_s);
    pickDay(u"17032026"_s);
    storeReadings(u"P1"_s, {reading(u"202603180700"_s, 140)});
    EXPECT_EQ(dayIn("weekEnd"), u"18/03/2026"_s);
    ASSERT_TRUE(store.excludeReadings({store.getReadingForCurID().back()}, u"wrong cuff"_s));
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(dayIn("weekEnd"), u"17/03/2026"_s);
    EXPECT_TRUE(text("lblWeekCount").contains(u"1 of later days left out"_s))
        << qPrintable(text("lblWeekCount"));
}

TEST_F(MeasuringWeekPanelTest, theWheelScrollsPastTheRule) {
    openWeek();
    host->resize(1300, 330);
    QCoreApplication::processEvents();
    auto& side = *find<QScrollArea>("readingSide").verticalScrollBar();
    find<QScrollArea>("readingSide").ensureWidgetVisible(&page("cboWeekRule"));
    for (const bool isFocused : {false, true}) {
        side.setValue(side.value() - side.singleStep());
        const int before = side.value();
        (isFocused ? page("cboWeekRule") : page("weekEnd")).setFocus();
        rollOver(page("cboWeekRule"));
        EXPECT_EQ(period.getWeekRule(), AverageRule::esh);
        EXPECT_GT(side.value(), before);
        EXPECT_EQ(page("cboWeekRule").hasFocus(), isFocused);
    }
}

} // namespace

} // namespace zel
