#include "app/frame/ReadingFrame.h"
#include "app/widgets/PageHeading.h"
#include "support/ReadingPageTest.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QFont scaledFont(QFont font, double factor) {
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

class PeriodBarTest : public ReadingPageTest {
protected:
    void openYear() {
        storeYear();
        open(new ReadingFrame({store, period, panel, clock}, *new QWidget, nullptr));
    }
    /// Of the field's calendar, which is opened.
    QWidget* calendarOf(const char* field) {
        const QString name = QLatin1String(field) + u"Calendar"_s;
        if (!part<QWidget>(field).findChild<QWidget*>(name)) click((QByteArray(field) + "Arrow").constData());
        return part<QWidget>(field).findChild<QWidget*>(name)->findChild<QTableView*>();
    }
    /// Average, lowest and highest systolic pressure in the figures beside.
    QString systolic() {
        static const QRegularExpression number(u"\\d+"_s);
        const QString spoken = page("statisticView").accessibleDescription().section(u'\n', 0, 0);
        QStringList values;
        for (const auto& match : number.globalMatch(spoken))
            values += match.captured();
        return values.join(u' ');
    }
};

} // namespace

TEST_F(PeriodBarTest, aReloadBringsTheDateFormatAndLeavesWhatIsHalfTyped) {
    openYear();
    for (const char* field : {"beginDay", "weekEnd"}) {
        typeDay(field, u"07"_s);
        const QString typed = dayIn(field);
        EXPECT_TRUE(typed.startsWith(u"07"_s)) << qPrintable(typed);
        ASSERT_TRUE(store.loadXML());
        EXPECT_EQ(dayIn(field), typed) << field;
    }
    store.getSetting().dateFormat = u"yyyy mm dd"_s;
    ASSERT_TRUE(store.saveSetting());
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(dayIn("endDay"), u"2026/03/20"_s);
}

TEST_F(PeriodBarTest, thePeriodIsPickedByDaysOrByViewChoice) {
    openYear();
    const auto& am = find<QRadioButton>("amOnly");
    const auto& undated = find<QCheckBox>("btnAverage");
    EXPECT_EQ(dayIn("beginDay"), u"20/12/2025"_s);
    EXPECT_EQ(dayIn("endDay"), u"20/03/2026"_s);
    EXPECT_EQ(systolic(), u"127 121 132"_s);
    EXPECT_TRUE(am.isEnabled() && !undated.isEnabled());
    clickPart("viewAll");
    EXPECT_EQ(dayIn("beginDay"), u"01/03/2025"_s);
    EXPECT_TRUE(find<QCheckBox>("btnViewAll").isChecked());
    clickPart("pmOnly");
    EXPECT_EQ(period.getSelectViewIndex(), ViewSelection::pmOnly);
    EXPECT_TRUE(find<QCheckBox>("btnViewAll").isChecked());
    EXPECT_EQ(systolic(), u"125 120 132"_s) << "morning and evening alike";
    clickPart("btnAverage");
    EXPECT_EQ(systolic(), u"138 120 199"_s);
    typeDay("beginDay", u"02032026"_s);
    EXPECT_EQ(systolic(), u"138 120 199"_s) << "not while it is being typed";
    press(Qt::Key_Return);
    EXPECT_EQ(systolic(), u"127 122 132"_s);
    EXPECT_FALSE(undated.isEnabled() || undated.isChecked());
    EXPECT_FALSE(find<QRadioButton>("viewAll").isChecked());
    EXPECT_TRUE(find<QRadioButton>("pmOnly").isChecked()) << "of the days that were typed";
    clickPart("btnViewAll");
    EXPECT_TRUE(find<QRadioButton>("viewAll").isChecked());
    EXPECT_EQ(systolic(), u"125 120 132"_s);
    clickPart("btnViewAll");
    EXPECT_TRUE(find<QCheckBox>("btnViewAll").isChecked()) << "not to be unticked";
}

TEST_F(PeriodBarTest, theChoicesSayWhatIsShownAndWhyOneIsOutOfReach) {
    openYear();
    const auto all = period.getDataPeriod();
    const auto& undated = find<QCheckBox>("btnAverage");
    EXPECT_EQ(undated.toolTip(), qtTrId("viewChoiceNeeded"));
    for (const bool isMoved : {false, true}) {
        clickPart("viewAll");
        clickPart("btnAverage");
        EXPECT_TRUE(undated.isEnabled() && undated.toolTip() == qtTrId("includeUndatedHint"));
        if (isMoved) period.setTimePeriod(all.begin + std::chrono::days{1}, all.end + std::chrono::days{1});
        EXPECT_NE(find<QRadioButton>("viewAll").isChecked(), isMoved);
        EXPECT_NE(find<QCheckBox>("btnViewAll").isChecked(), isMoved);
        EXPECT_NE(undated.isChecked(), isMoved);
    }
    clickPart("viewAll");
    clickPart("amOnly");
    period.setTimePeriod(all.begin, all.end - std::chrono::days{1});
    EXPECT_TRUE(find<QRadioButton>("amOnly").isChecked());
    EXPECT_FALSE(find<QCheckBox>("btnViewAll").isChecked()) << "not all days";
}

TEST_F(PeriodBarTest, daysAreChosenWithOneClickAndAHalfOfTheDayWithAnyOfThem) {
    openYear();
    struct Case {
        const char* choice;
        QString begin;
        const char* half;
        QString counted;
    };
    const Case cases[] = {
        {"viewLast7", u"14/03/2026"_s, "viewBoth", u"2 readings; 3 outside the period, 1 undated"_s},
        {"viewLast7", u"14/03/2026"_s, "amOnly", u"1 reading; 3 outside the period, 1 from noon on"_s},
        {"viewLast30", u"19/02/2026"_s, "viewBoth", u"4 readings; 1 outside the period"_s},
        {"viewLast90", u"21/12/2025"_s, "pmOnly", u"2 readings; 1 outside the period, 2 before noon"_s},
        {"viewWeek", u"14/03/2026"_s, "amOnly", u"1 reading; 3 outside the period, 1 from noon on"_s},
        {"viewAll", u"01/03/2025"_s, "pmOnly", u"2 readings; 3 before noon, 1 undated"_s},
    };
    for (const Case& c : cases) {
        clickPart(c.choice);
        clickPart(c.half);
        EXPECT_EQ(dayIn("beginDay"), c.begin) << c.choice;
        EXPECT_EQ(dayIn("endDay"), u"20/03/2026"_s) << c.choice;
        for (const char* part : {c.choice, c.half})
            EXPECT_TRUE(find<QRadioButton>(part).isChecked()) << part;
        EXPECT_TRUE(text("lblDetail").contains(u"Counted: "_s + c.counted)) << qPrintable(text("lblDetail"));
    }
    typeDay("weekEnd", u"01032026"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(dayIn("endDay"), u"20/03/2026"_s) << "another choice";
    clickPart("viewWeek");
    EXPECT_EQ(dayIn("beginDay"), u"23/02/2026"_s);
    typeDay("weekEnd", u"20032026"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(dayIn("beginDay"), u"14/03/2026"_s) << "the week that the panel shows";
    EXPECT_TRUE(find<QRadioButton>("viewWeek").isChecked());
}

TEST_F(PeriodBarTest, theKeyboardReachesEveryChoiceAndNoneIsCutInANarrowWindow) {
    openYear();
    find<QRadioButton>("viewBoth").setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_EQ(period.getHalfOfDay(), HalfOfDay::morning);
    press(Qt::Key_Right);
    EXPECT_EQ(period.getHalfOfDay(), HalfOfDay::evening);
    find<QRadioButton>("viewLast7").setFocus(Qt::TabFocusReason);
    for (const auto& [key, choice] : {std::pair(Qt::Key_Space, PeriodChoice::last7),
                                      {Qt::Key_Right, PeriodChoice::last30},
                                      {Qt::Key_Right, PeriodChoice::last90},
                                      {Qt::Key_Right, PeriodChoice::measuringWeek},
                                      {Qt::Key_Right, PeriodChoice::all},
                                      {Qt::Key_Left, PeriodChoice::measuringWeek}}) {
        press(key);
        EXPECT_EQ(period.getChoice(), choice);
    }
    EXPECT_EQ(period.getHalfOfDay(), HalfOfDay::evening);
    expectNamed(page("periodBar"));
    EXPECT_TRUE(find<QRadioButton>("viewLast30")
                    .accessibleDescription()
                    .startsWith(qtTrId("viewLastName").arg(u"30"_s)));
    const char* const parts[] = {"viewLast7", "viewLast30", "viewLast90", "viewWeek",  "viewAll",
                                 "viewBoth",  "amOnly",     "pmOnly",     "btnAverage"};
    for (const double scale : {1.0, 1.75}) {
        host->setFont(scaledFont(host->font(), scale));
        for (const int width : {560, 1300}) {
            host->resize(width, 700);
            QCoreApplication::processEvents();
            for (const char* name : parts) {
                const QWidget* part = &page(name);
                EXPECT_GE(part->width(), part->sizeHint().width()) << name;
                const QPoint end = part->mapTo(host.get(), QPoint(part->width(), part->height()));
                EXPECT_LE(end.x(), width) << name;
                EXPECT_LE(part->mapTo(&page("periodBar"), QPoint(0, part->height())).y(),
                          page("periodBar").height());
            }
        }
    }
}

TEST_F(PeriodBarTest, theNextPatientBeginsWithoutUndatedReadings) {
    storeReadings(u"P2"_s, {reading(u"200001010000"_s, 188)});
    openYear();
    clickPart("viewAll");
    clickPart("btnAverage");
    store.setCurrentID(u"P2"_s);
    EXPECT_EQ(systolic(), QString());
    EXPECT_FALSE(find<QCheckBox>("btnAverage").isChecked());
    clickPart("viewAll");
    EXPECT_EQ(dayIn("beginDay"), u"01/01/2026"_s) << "not the days of the other one";
    clickPart("btnAverage");
    EXPECT_EQ(systolic(), u"188 188 188"_s);
    clickPart("btnAverage");
    EXPECT_EQ(systolic(), QString());
}

TEST_F(PeriodBarTest, headingAndStatisticsSayWhatIsCountedAndWhatIsLeftOutWhy) {
    openYear();
    const QString all = u"6 readings, from 01/03/2025 to 20/03/2026"_s;
    const QString picked = u"4 readings; 1 outside the period, 1 undated one not counted"_s;
    EXPECT_EQ(text("lblDetail"), all + u". Counted: "_s + picked);
    EXPECT_EQ(text("lblStatisticCount"), picked);
    host->resize(1300, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(find<QScrollArea>("readingSide").verticalScrollBar()->maximum(), 0) << "the comment gives way";
    clickPart("viewAll");
    EXPECT_EQ(text("lblStatisticCount"), u"5 readings; 1 undated one not counted"_s);
    clickPart("pmOnly");
    EXPECT_EQ(text("lblDetail"), all + u". Counted: 2 readings; 3 before noon, 1 undated one not counted"_s);
    EXPECT_EQ(text("lblStatisticCount"), u"All times of day: 5 readings; 1 undated one not counted"_s);
    clickPart("btnAverage");
    clickPart("amOnly");
    EXPECT_EQ(text("lblDetail"), all + u". Counted: 4 readings; 2 from noon on not counted"_s);
    clickPart("viewBoth");
    EXPECT_EQ(text("lblDetail"), all);
    EXPECT_EQ(text("lblStatisticCount"), u"6 readings"_s);
    storeReadings(u"P1"_s, {reading(u"200001010001"_s, 198)});
    EXPECT_EQ(text("lblStatisticCount"), u"7 readings"_s);
    clickPart("btnAverage");
    EXPECT_EQ(text("lblStatisticCount"), u"5 readings; 2 undated ones not counted"_s);
    store.setCurrentID(u"P2"_s);
    EXPECT_EQ(text("lblDetail"), u"0 readings"_s);
}

TEST_F(PeriodBarTest, aLongNameFitsAndKeepsItsEnd) {
    addPatient(u"P3"_s, QString(90, u'W'));
    openYear();
    store.setCurrentID(u"P3"_s);
    QCoreApplication::processEvents();
    const auto& side = find<QScrollArea>("readingSide");
    EXPECT_LE(side.widget()->width(), side.viewport()->width());
    const auto& heading = find<QLabel>("lblHeading");
    EXPECT_LE(heading.sizeHint().width(), heading.width());
    EXPECT_TRUE(heading.text().startsWith(u"Kim W"_s) && heading.text().endsWith(u"W (ID P3)"_s));
    EXPECT_EQ(heading.toolTip(), qtTrId("patientHeading").arg(u"Kim"_s, QString(90, u'W'), u"P3"_s));
    const int height = heading.fontMetrics().height();
    host->setFont(scaledFont(host->font(), 1.75));
    QCoreApplication::processEvents();
    EXPECT_GE(heading.fontMetrics().height(), height * 3 / 2) << "it follows the type";
    EXPECT_LE(heading.sizeHint().width(), heading.width());
}

TEST_F(PeriodBarTest, daysOutOfOrderAreRefusedAndPutBack) {
    openYear();
    const auto message = [](const QString& text) { return qtTrId("DateError") + u": "_s + text; };
    for (const auto& [field, other, before] : {std::tuple("beginDay", u"20032026"_s, u"20/12/2025"_s),
                                               std::tuple("endDay", u"20122025"_s, u"20/03/2026"_s)}) {
        typeDay(field, other);
        EXPECT_TRUE(panel.messages.empty());
        press(Qt::Key_Tab);
        EXPECT_EQ(panel.messages, QStringList(message(qtTrId("BeginDate"))));
        EXPECT_EQ(dayIn(field), before);
        panel.messages.clear();
    }
    auto& endDay = find<QLineEdit>("endDay");
    for (int months = 0; months < 4; ++months)
        QTest::keyClick(calendarOf("endDay"), Qt::Key_PageUp);
    EXPECT_TRUE(panel.messages.empty()) << "not while the calendar is looked at";
    QTest::keyClick(calendarOf("endDay"), Qt::Key_Return);
    waitFor([this] { return !panel.messages.empty(); });
    EXPECT_EQ(panel.messages, QStringList(message(qtTrId("EndDate"))));
    EXPECT_EQ(dayIn("endDay"), u"20/03/2026"_s);
    EXPECT_EQ(period.getSelectViewIndex(), ViewSelection::custom);
    clickPart("viewAll");
    QTest::keyClick(calendarOf("endDay"), Qt::Key_PageUp);
    QTest::keyClick(calendarOf("endDay"), Qt::Key_Escape);
    QCoreApplication::processEvents();
    EXPECT_EQ(period.getSelectViewIndex(), ViewSelection::viewAll) << "given up";
    endDay.setFocus(Qt::TabFocusReason);
    press(Qt::Key_F4);
    QTest::keyClick(calendarOf("endDay"), Qt::Key_Right);
    QTest::keyClick(calendarOf("endDay"), Qt::Key_Return);
    waitFor([this] { return dayIn("endDay") == u"21/03/2026"_s; });
    QTest::keyClick(&endDay, Qt::Key_Down);
    EXPECT_EQ(dayIn("endDay"), u"20/03/2026"_s);
    EXPECT_TRUE(period.getTimePeriod().end == DateToDayBoundary(at(u"202603200000"_s), false));
    editor().setFocus();
    rollOver(endDay);
    EXPECT_EQ(dayIn("endDay"), u"20/03/2026"_s) << "the wheel only passed";
}

TEST_F(PeriodBarTest, theFrameShowsWhoseReadingsTheyAreAsTheSettingsSay) {
    openYear();
    auto& frame = dynamic_cast<ReadingFrame&>(*page("periodBar").parentWidget());
    for (const auto& [format, begin] :
         {std::pair(u"mm dd yyyy"_s, u"12/20/2025"_s), std::pair(u"yyyy mm dd"_s, u"2025/12/20"_s)}) {
        store.getSetting().dateFormat = format;
        frame.UpdateUIBySetting();
        EXPECT_EQ(dayIn("beginDay"), begin);
    }
    EXPECT_EQ(text("lblHeading"), qtTrId("patientHeading").arg(u"Kim"_s, u"Adams"_s, u"P1"_s));
    EXPECT_TRUE(text("lblDetail").startsWith(u"6 readings, from 2025/03/01 to 2026/03/20."_s));
    const auto lastFigures = [this] {
        return page("statisticView").accessibleDescription().section(u'\n', 3, 3);
    };
    EXPECT_TRUE(lastFigures().startsWith(qtTrId("spokenPP"))) << qPrintable(lastFigures());
    EXPECT_TRUE(lastFigures().contains(u"52"_s)) << qPrintable(lastFigures());
    store.getSetting().showPPorMap = 1;
    frame.UpdateUIBySetting();
    EXPECT_TRUE(lastFigures().startsWith(qtTrId("spokenMap"))) << qPrintable(lastFigures());
    EXPECT_TRUE(lastFigures().contains(u"93"_s)) << qPrintable(lastFigures());
    for (const int width : {700, 1300}) {
        host->resize(width, 700);
        QCoreApplication::processEvents();
        EXPECT_EQ(page("readingSide").isVisible(), width == 1300);
    }
}

} // namespace zel
