#include "ChartPageTest.h"

#include "app/graph/BPInfoView.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QString spanOf(const Period& period) {
    return DateToStr(period.begin, u"yyyyMMdd"_s) + u'-' + DateToStr(period.end, u"yyyyMMdd"_s);
}

void wheel(QWidget& over, QPoint where, int steps, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWheelEvent event(where, over.mapToGlobal(where), {}, {0, steps * 120}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&over, &event);
}

} // namespace

ChartPageTest::ChartPageTest() {
    ReadingList readings;
    for (int day = 0; day < 60; ++day) {
        readings.push_back(reading(u"202603010800"_s, static_cast<std::uint32_t>(111 + day)));
        *readings.back().ReadingDate += std::chrono::days(day);
    }
    storeReadings(u"P1"_s, readings);
}

void ChartPageTest::openChart(const QString& begin, const QString& end) {
    open(new GraphViewController({store, period, panel, clock}), {1200, 700});
    showDays(begin, end);
    QCoreApplication::processEvents();
    pulse().setFocus();
}

void ChartPageTest::showDays(const QString& begin, const QString& end) {
    period.setTimePeriod(at(begin + u"0000"_s), DateToDayBoundary(at(end + u"0000"_s), false));
}

QString ChartPageTest::shown() const { return spanOf(period.getTimePeriod()); }

QStringList ChartPageTest::inFile() {
    DataStore read(
        {.home = home.path(), .applicationFolder = home.path(), .templateFolder = u":/templates"_s}, clock);
    EXPECT_TRUE(read.load());
    read.setCurrentID(u"P1"_s);
    QStringList lines;
    for (const auto& comment : read.getCommentForCurID())
        lines += spanOf({*comment->beginDate, *comment->endDate})
                 + u" %1 %2"_s.arg(comment->degree).arg(comment->comment);
    return lines;
}

QPoint ChartPageTest::strip(const QString& time) {
    constexpr int above = 22;
    return {qRound(pulse().scale().time.calcXPos(at(time))), pulse().height() - above};
}

void ChartPageTest::send(QWidget& to, QEvent::Type type, QPoint where) {
    const bool moves = type == QEvent::MouseMove;
    QMouseEvent event(type, where, to.mapToGlobal(where), moves ? Qt::NoButton : Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&to, &event);
}

void ChartPageTest::drag(QWidget& from, QPoint press, QPoint release) {
    send(from, QEvent::MouseButtonPress, press);
    send(from, QEvent::MouseMove, (press + release) / 2);
    send(from, QEvent::MouseMove, release);
    send(from, QEvent::MouseButtonRelease, release);
}

void ChartPageTest::dropIcon(const QString& time) {
    auto& icon = page("CommentImageBtn");
    drag(icon, {5, 5}, icon.mapFromGlobal(pulse().mapToGlobal(strip(time))));
}

void ChartPageTest::comment(const QString& words) {
    typeComment(words);
    press(Qt::Key_Tab);
    pulse().setFocus();
}

TEST_F(ChartPageTest, aReadingsMarkShowsItsValuesInPlainWords) {
    addComment(u"1"_s, u"20260303"_s, u"20260303"_s, u"<b>mine"_s);
    openChart(u"20260301"_s, u"20260310"_s);
    QHelpEvent help(QEvent::ToolTip, strip(u"202603031200"_s), {100, 100});
    QApplication::sendEvent(&pulse(), &help);
    EXPECT_TRUE(QToolTip::text().contains(u"&lt;b&gt;mine"_s)) << qPrintable(QToolTip::text());
    blood().grab();
    const ReadingModel& third = store.getReadingForCurID().at(2);
    const QPoint mark = blood().place(third);
    QTest::mouseMove(&blood(), mark + QPoint(1, -1));
    auto& info = find<BPInfoView>("BPInfoView");
    ASSERT_TRUE(info.isVisible());
    EXPECT_EQ(blood().accessibleDescription(),
              u"Date: 03/03/2026\nTime: 08:00 A\nSystolic: 113 mmHg\nDiastolic: 80 mmHg\n"
              "Pulse: 65 per minute\nPP: 33 mmHg\nMAM: No\nPAD: No\nComment: <b>mine"_s);
    EXPECT_EQ(info.accessibleName(), blood().accessibleDescription());
    EXPECT_FALSE(info.geometry().contains(blood().mapTo(&window(), mark)));
    EXPECT_TRUE(window().rect().contains(info.geometry()));
    QTest::mouseMove(&blood(), blood().place(store.getReadingForCurID().at(3)));
    QStringList values;
    for (const QLabel* label : info.findChildren<QLabel*>())
        if (label->isVisible()) values += label->text();
    EXPECT_TRUE(values.contains(u"114 mmHg"_s) && !values.contains(u"<b>mine"_s))
        << qPrintable(values.join(u'|'));
    QTest::mouseMove(&blood(), mark + QPoint(0, 20));
    EXPECT_FALSE(info.isVisible());
    EXPECT_TRUE(blood().accessibleDescription().endsWith(
        u"\nSystolic pressure, mmHg: average 116, lowest 111, highest 120.\n"
        "Diastolic pressure, mmHg: average 80, lowest 80, highest 80."_s))
        << qPrintable(blood().accessibleDescription());
    showDays(u"20260301"_s, u"20260306"_s);
    QTest::mouseMove(&blood(), blood().place(third));
    EXPECT_TRUE(info.isVisible()) << "its mark has moved with the period";
    ReadingModel fibrillation = third;
    fibrillation.Arrhythmia = 4;
    store.getSetting().showPPorMap = 1;
    const QString words = spokenInfo(readingInfo(fibrillation, store));
    EXPECT_TRUE(words.contains(qtTrId("map") + u": 93 mmHg"_s)) << qPrintable(words);
    EXPECT_TRUE(words.contains(qtTrId("afib") + u": No"_s)) << qPrintable(words);
}

TEST_F(ChartPageTest, theReadingUnderTheMenuIsTheOneThatIsMeant) {
    openChart(u"20260301"_s, u"20260310"_s);
    blood().grab();
    const auto action = [this](const char* name) {
        return window().findChild<QAction*>(QLatin1String(name));
    };
    QAction& takeIn = *action("takeInReadings");
    ASSERT_TRUE(store.excludeReadings({store.getReadingForCurID().at(2)}, u"cuff"_s));
    QTest::mouseMove(&blood(), blood().place(store.getReadingForCurID().at(1)));
    EXPECT_FALSE(takeIn.isEnabled()) << "it counts";
    const QPoint mark = blood().place(store.getReadingForCurID().at(2));
    QTest::mouseMove(&blood(), mark);
    EXPECT_TRUE(blood().accessibleDescription().contains(u"Remark: left out: cuff"_s));
    QContextMenuEvent asked(QContextMenuEvent::Mouse, mark, blood().mapToGlobal(mark));
    QApplication::sendEvent(&blood(), &asked);
    QEvent left(QEvent::Leave);
    QApplication::sendEvent(&blood(), &left); // for the menu
    ASSERT_TRUE(takeIn.isEnabled());
    takeIn.trigger();
    EXPECT_FALSE(store.getReadingForCurID().at(2).isExcluded());
    find<QWidget>("chartMenu").close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(action("leaveOutReadings")->isEnabled()) << "none is pointed at";
    blood().setFocus();
    press(Qt::Key_Right, Qt::ControlModifier); // the keys have come to a reading
    EXPECT_TRUE(action("leaveOutReadings")->isEnabled());
    const QPoint empty(blood().width() / 2, blood().height() - 5);
    QContextMenuEvent beside(QContextMenuEvent::Mouse, empty, blood().mapToGlobal(empty));
    QApplication::sendEvent(&blood(), &beside);
    EXPECT_FALSE(action("leaveOutReadings")->isEnabled()) << "the pointer is beside it";
}

TEST_F(ChartPageTest, theMenuOfTheKeyboardMayTakeAwayWhatItIsAbout) {
    openChart(u"20260301"_s, u"20260310"_s);
    blood().grab();
    blood().setFocus();
    press(Qt::Key_Right, Qt::ControlModifier);
    const QPoint middle = blood().rect().center();
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, middle, blood().mapToGlobal(middle));
    QApplication::sendEvent(&blood(), &asked);
    auto& leaveOut = *window().findChild<QAction*>(u"leaveOutReadings"_s);
    ASSERT_TRUE(leaveOut.isEnabled());
    // Whoever is told that it is another one looks at it: none that has gone with the load may be left to
    // see.
    ASSERT_TRUE(store.loadXML());
    EXPECT_FALSE(leaveOut.isEnabled()) << "none is pointed at";
    find<QWidget>("chartMenu").close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST(PlaceBesideTest, thePanelNeitherCoversTheMarkNorLeavesTheWindow) {
    const QRect window(0, 0, 640, 480);
    for (const QSize panel : {QSize(200, 180), QSize(400, 100), QSize(620, 200)}) {
        for (const QPoint middle :
             {QPoint(5, 5), QPoint(635, 5), QPoint(5, 475), QPoint(635, 475), QPoint(320, 240)}) {
            const QRect mark(middle - QPoint(5, 5), QSize(11, 11));
            const QRect placed(placeBeside(mark, panel, window), panel);
            EXPECT_TRUE(window.contains(placed) && !placed.intersects(mark))
                << middle.x() << ' ' << panel.width();
        }
    }
}

TEST_F(ChartPageTest, thePeriodIsMovedAndWidenedAndNarrowed) {
    openChart(u"20260311"_s, u"20260320"_s);
    auto& bar = find<QScrollBar>("timeScroller");
    EXPECT_EQ(bar.maximum(), 50);
    EXPECT_EQ(bar.value(), 10);
    auto& charts = page("DrawGraphicVC");
    const QPoint middle(pulse().width() / 2, 20);
    const std::vector<std::pair<std::function<void()>, QString>> steps{
        {[&] { bar.setValue(12); }, u"20260313-20260322"_s},
        {[&] { press(Qt::Key_Left); }, u"20260312-20260321"_s},
        {[&] { press(Qt::Key_PageDown); }, u"20260322-20260331"_s},
        {[&] { press(Qt::Key_End); }, u"20260420-20260429"_s},
        {[&] { press(Qt::Key_Right); }, u"20260420-20260429"_s},
        {[&] { press(Qt::Key_Home); }, u"20260301-20260310"_s},
        {[&] { wheel(charts, middle, -2); }, u"20260303-20260312"_s},
        {[&] {
             wheel(charts, {pulse().width() - 1, 20}, -1, Qt::ControlModifier); // towards the user
         },
         u"20260301-20260312"_s},
        {[&] {
             wheel(charts, {pulse().width() - 1, 20}, 2, Qt::ControlModifier); // away: closer
         },
         u"20260305-20260312"_s},
        {[&] { press(Qt::Key_Minus); }, u"20260306-20260311"_s},
        {[&] { press(Qt::Key_Plus); }, u"20260305-20260312"_s},
        {[&] { click("addDay"); }, u"20260304-20260313"_s},
        {[&] { showDays(u"20260328"_s, u"20260330"_s), click("minusDay"); }, u"20260329-20260329"_s},
        {[&] { showDays(u"20260328"_s, u"20260329"_s), click("minusDay"); }, u"20260328-20260329"_s}};
    for (std::size_t number = 0; number < steps.size(); ++number) {
        steps.at(number).first();
        EXPECT_EQ(shown(), steps.at(number).second) << "step " << number;
    }
    const auto left = [this](const char* name) { return page(name).x(); };
    EXPECT_TRUE(left("minusDay") < left("lblDays") && left("lblDays") < left("addDay"))
        << "fewer, days, more";
    showDays(u"20260301"_s, u"20260430"_s);
    EXPECT_FALSE(bar.isVisible()) << "everything is in view";
}

TEST_F(ChartPageTest, theKeysReachReadingsOutsideThePeriod) {
    openChart(u"20260310"_s, u"20260312"_s);
    for (int times = 0; times < 2; ++times)
        press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(shown(), u"20260310-20260312"_s);
    for (int times = 0; times < 2; ++times)
        press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(shown(), u"20260309-20260311"_s);
    storeReadings(u"P1"_s, {reading(u"200001010000"_s, 199)});
    showDays(u"20260301"_s, u"20260303"_s);
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(shown(), u"20260301-20260303"_s) << "an undated reading has no place";
    period.setSelectViewIndex(ViewSelection::viewAll);
    period.setSelectViewIndex(ViewSelection::pmOnly);
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(pulse().accessibleDescription(), qtTrId("chartKeys").arg(qtTrId("readingCount", 0)))
        << "all are of the morning";
    period.setSelectViewIndex(ViewSelection::viewAll);
    showDays(u"20260308"_s, u"20260310"_s);
    press(Qt::Key_Right, Qt::ControlModifier);
    const auto& info = page("BPInfoView");
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Backtab}) {
        press(Qt::Key_Left, Qt::ControlModifier);
        EXPECT_TRUE(info.isVisible());
        press(key);
        EXPECT_FALSE(info.isVisible());
    }
}

TEST_F(ChartPageTest, theSwitchAndTheScalesAreWhatAPrintLooksLike) {
    openChart(u"20260301"_s, u"20260310"_s);
    auto& controller = find<GraphViewController>("GraphViewController");
    const QPixmap before = blood().grab();
    store.getSetting().sysStandard = 120;
    controller.UpdateUIBySetting();
    EXPECT_NE(blood().grab().toImage(), before.toImage()) << "the line of the limit has moved";
    store.getSetting().diaStandard = 80;
    click("toggleHistogram");
    EXPECT_EQ(controller.drawViewState(), 1);
    EXPECT_TRUE(page("HistogramView").accessibleDescription().contains(u"110 to 119, in 90 percent"_s));
    click("toggleCorrelation");
    EXPECT_EQ(controller.drawViewState(), 2);
    EXPECT_TRUE(page("CorrelationView").accessibleDescription().contains(u"Normal: 10"_s));
    for (const auto& [sys, dia, zones] : std::initializer_list<std::tuple<unsigned, unsigned, const char*>>{
             {120, 0, "Normal|Systolic too high"}, {0, 80, "Normal|Diastolic too high"}, {0, 0, ""}}) {
        store.getSetting().sysStandard = sys;
        store.getSetting().diaStandard = dia;
        controller.UpdateUIBySetting();
        QStringList named;
        for (const QString& line : page("CorrelationView").accessibleDescription().split(u'\n'))
            if (line.contains(u": "_s)) named += line.section(u':', 0, 0);
        EXPECT_EQ(named.join(u'|'), QLatin1String(zones));
    }
    controller.switchToGraph();
    EXPECT_EQ(controller.drawViewState(), 0);
    find<QScrollBar>("bloodScroller").setValue(51);
    pulse().setFocus();
    press(Qt::Key_Down);
    ChartStyle lower = DrawPulsePlain, upper = DrawBlood;
    controller.setupDrawChart(lower, upper);
    EXPECT_EQ(upper.iScaleBase, 80);
    EXPECT_EQ(lower.iScaleBase, 50);
    EXPECT_FALSE(lower.noBaseArea || lower.showBlood);
}

TEST_F(ChartPageTest, aPatientWithoutReadingsHasNoChart) {
    openChart(u"20260301"_s, u"20260310"_s);
    store.setCurrentID(u"P2"_s);
    EXPECT_TRUE(page("noChart").isVisible());
    EXPECT_FALSE(page("addDay").isVisible());
    store.setCurrentID(u"P1"_s);
    EXPECT_TRUE(pulse().isVisible());
}

} // namespace zel
