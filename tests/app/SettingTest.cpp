#include "AppFixture.h"
#include "support/FullDisk.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class SettingTest : public AppTest {
protected:
    SettingTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        store.getSetting() = SettingModel::initWithDefault();
        save();
        startsPlugged = false;
    }
    void save() {
        ASSERT_TRUE(store.saveSetting());
        ASSERT_TRUE(store.loadXML());
    }
    void open() {
        if (!app) start();
        click("settingBtn");
        ASSERT_TRUE(dialog().isVisible());
    }
    QDialog& dialog() { return find<QDialog>("SettingController"); }
    /// Replaces what stands in a field by key strokes.
    void enter(const char* field, const QString& text) {
        auto& line = find<QLineEdit>(field);
        line.setFocus();
        line.selectAll();
        QTest::keyClick(&line, Qt::Key_Delete);
        QTest::keyClicks(&line, text);
    }
    void choose(const char* list, const QString& text) {
        auto& box = find<QComboBox>(list);
        box.setFocus();
        while (box.currentText() != text && box.currentIndex() + 1 < box.count())
            QTest::keyClick(&box, Qt::Key_Down);
        while (box.currentText() != text && box.currentIndex() > 0)
            QTest::keyClick(&box, Qt::Key_Up);
        ASSERT_EQ(box.currentText(), text);
    }
    void changeEverything() {
        choose("dateFormate", u"yyyy mm dd"_s);
        choose("timeFormate", u"24-hours"_s);
        choose("metricFormate", u"lb / in"_s);
        click("eraseMeasures");
        click("displayMAP");
        enter("sys", u"135"_s);
        enter("dia", u"85"_s);
        find<QPlainTextEdit>("physisian").selectAll();
        QTest::keyClicks(&find<QWidget>("physisian"), u"Dr. Grey"_s);
    }
    const SettingModel changed{.dateFormat = u"yyyy mm dd"_s,
                               .timeFormat = u"24-hours"_s,
                               .metricFormat = u"lb / in"_s,
                               .eraseRecAfterReading = 0,
                               .showPPorMap = 1,
                               .userWhoStandard = 0,
                               .sysStandard = 135,
                               .diaStandard = 85,
                               .physicianAddress = u"Dr. Grey"_s};
};

} // namespace

TEST_F(SettingTest, OKStoresEveryControl) {
    open();
    changeEverything();
    click("okButton");
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(store.getSetting(), changed);
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(store.getSetting(), changed) << "in the file, too";
    open();
    click("okButton");
    EXPECT_EQ(store.getSetting(), changed) << "shown as stored";
}

TEST_F(SettingTest, OKWithoutAChangeKeepsThePhysicianToTheLetter) {
    store.getSetting().physicianAddress = u"Dr.\u00A0Grey\n\n  Street 1 \n"_s;
    save();
    open();
    click("okButton");
    EXPECT_EQ(store.getSetting().physicianAddress, u"Dr.\u00A0Grey\n\n  Street 1 \n"_s);
}

TEST_F(SettingTest, everyWayOutButOKLeavesAllAsItWas) {
    start();
    const QByteArray before = dataFile();
    const SettingModel setting = store.getSetting();
    const std::vector<std::function<void()>> ways{[this] { click("cancelButton"); },
                                                  [this] { QTest::keyClick(&dialog(), Qt::Key_Escape); },
                                                  [this] { dialog().close(); }};
    for (const auto& leave : ways) {
        open();
        EXPECT_EQ(find<QComboBox>("dateFormate").currentText(), setting.dateFormat) << "nothing left over";
        EXPECT_EQ(find<QLineEdit>("sys").text(), u"140"_s);
        changeEverything();
        leave();
        EXPECT_FALSE(dialog().isVisible());
        EXPECT_EQ(store.getSetting(), setting);
        EXPECT_EQ(dataFile(), before);
    }
}

TEST_F(SettingTest, theWHOBoxAndTheLimitsFollowEachOther) {
    struct Case {
        const char* what;
        std::function<void()> act;
        std::uint32_t userWhoStandard, sys, dia;
    };
    const auto box = [this] { click("useWHOStandard"); };
    const std::vector<Case> cases{
        {"typing unchecks the box", [&] { enter("sys", u"135"_s); }, 0, 135, 90},
        {"unchecking empties the fields", box, 0, 0, 0},
        {"checking fills them",
         [&] {
             box();
             box();
         },
         1, 140, 90},
        {"checking overwrites",
         [&] {
             enter("dia", u"77"_s);
             box();
         },
         1, 140, 90},
        {"letters are not taken", [&] { enter("sys", u"1x2y3"_s); }, 0, 123, 90},
        {"nor are signs and points", [&] { enter("dia", u"-8.5"_s); }, 0, 140, 85},
        {"nor more than three digits", [&] { enter("sys", u"12345"_s); }, 0, 123, 90},
        {"an emptied field is 0", [&] { enter("dia", {}); }, 0, 140, 0},
    };
    for (const Case& c : cases) {
        store.getSetting() = SettingModel::initWithDefault();
        open();
        c.act();
        click("okButton");
        const SettingModel& setting = store.getSetting();
        EXPECT_EQ(setting.userWhoStandard, c.userWhoStandard) << c.what;
        EXPECT_EQ(setting.sysStandard, c.sys) << c.what;
        EXPECT_EQ(setting.diaStandard, c.dia) << c.what;
    }
}

TEST_F(SettingTest, whatIsNoEntryIsShownAsWhatItCountsAs) {
    SettingModel odd = store.getSetting();
    odd.dateFormat = u"yyyy dd mm"_s;
    odd.timeFormat = u"12-HOURS"_s;
    odd.metricFormat.clear();
    odd.eraseRecAfterReading = 2;
    odd.showPPorMap = 7;
    odd.sysStandard = 4000000000U;
    const bool was12Hours = odd.is12Hours(), wasMetric = odd.isMetric();
    store.getSetting() = odd;
    open();
    click("okButton");
    const SettingModel& setting = store.getSetting();
    EXPECT_EQ(setting.dateFormat, u"dd mm yyyy"_s);
    EXPECT_EQ(setting.is12Hours(), was12Hours);
    EXPECT_EQ(setting.isMetric(), wasMetric);
    EXPECT_EQ(setting.eraseRecAfterReading, 0U) << "only 1 empties the monitor";
    EXPECT_EQ(setting.showPPorMap, 1U);
    EXPECT_EQ(setting.sysStandard, 4000000000U);
}

TEST_F(SettingTest, aFailedWriteLosesNothing) {
    open();
    changeEverything();
    const QByteArray before = dataFile();
    const SettingModel setting = store.getSetting();
    {
        const FullDisk full(100);
        click("okButton");
    }
    EXPECT_EQ(dataFile(), before);
    EXPECT_EQ(store.getSetting(), setting);
    ASSERT_EQ(panel.messages.size(), 1);
    EXPECT_TRUE(panel.messages.first().startsWith(qtTrId("Warning")));
    ASSERT_TRUE(dialog().isVisible());
    click("okButton");
    EXPECT_EQ(store.getSetting(), changed) << "all that was entered was still there";
}

TEST_F(SettingTest, tellsWhatTheFileHadNoPlaceFor) {
    QByteArray lacking = dataFile();
    replaceDataFile(lacking.replace("SysStandard>", "OlderLimit>"));
    ASSERT_TRUE(store.loadXML());
    open();
    changeEverything();
    click("okButton");
    EXPECT_EQ(panel.messages, QStringList(qtTrId("Warning") + u": "_s + qtTrId("settingsPartlySaved")));
    EXPECT_EQ(store.getSetting().diaStandard, changed.diaStandard);
}

TEST_F(SettingTest, actsAtOnceOnThePages) {
    plan.records = readings(3);
    startsPlugged = true;
    startConnected();
    download();
    press(Qt::Key_3, Qt::ControlModifier);
    const QAbstractItemModel& table = *find<QAbstractItemView>("tblReadings").model();
    ASSERT_EQ(table.index(0, 0).data().toString(), u"01/03/2026"_s);
    const QString downloaded = text("lblLastDownload");
    QSignalSpy told(&table, &QAbstractItemModel::dataChanged);
    press(Qt::Key_Comma, Qt::ControlModifier);
    choose("dateFormate", u"yyyy mm dd"_s);
    QTest::keyClick(&dialog(), Qt::Key_Return);
    ASSERT_FALSE(dialog().isVisible());
    EXPECT_EQ(table.index(0, 0).data().toString(), u"2026/03/01"_s);
    EXPECT_FALSE(told.isEmpty());
    EXPECT_NE(text("lblLastDownload"), downloaded);
}

TEST_F(SettingTest, theClockButtonNeedsAMonitorAndTellsHowItWent) {
    open();
    EXPECT_FALSE(page("sendButton").isEnabled());
    for (const int refusals : {0, 1000}) {
        app.reset();
        session.update([](MonitorState& state) { state = {}; });
        startsPlugged = true;
        panel.messages.clear();
        plan.faults.clear();
        if (refusals > 0)
            plan.faults = {
                {.kind = SimulatedFault::Kind::noAnswer, .command = Command::setDate, .times = refusals}};
        startConnected();
        open();
        ASSERT_TRUE(page("sendButton").isEnabled());
        panel.messages.clear();
        click("sendButton");
        EXPECT_FALSE(page("sendButton").isEnabled()) << "not twice at once";
        EXPECT_TRUE(panel.messages.empty()) << "on the monitor's own thread";
        waitFor([this] { return !panel.messages.empty(); });
        ASSERT_EQ(panel.messages.size(), 1);
        EXPECT_TRUE(panel.messages.first().startsWith(qtTrId("TimeSync")));
        EXPECT_EQ(panel.messages.first().contains(qtTrId("clockSet")), refusals == 0);
        EXPECT_EQ(panel.messages.first().contains(describe(MonitorResult::timeOut)), refusals > 0);
        EXPECT_FALSE(session.isBusy());
        EXPECT_TRUE(page("sendButton").isEnabled());
    }
}

TEST_F(SettingTest, everyControlSaysWhatItIs) {
    open();
    for (const QWidget* control : dialog().findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus || control->objectName().startsWith(u"qt_"_s)) continue;
        EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
        EXPECT_FALSE(control->accessibleName().isEmpty()) << qPrintable(control->objectName());
    }
}

} // namespace zel
