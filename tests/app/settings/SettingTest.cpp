#include "SettingDialogTest.h"
#include "support/FullDisk.h"

#include <QComboBox>
#include <QLineEdit>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class SettingTest : public SettingDialogTest {
protected:
    SettingTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        store.getSetting() = SettingModel::initWithDefault();
        save();
    }
    void save() {
        ASSERT_TRUE(store.saveSetting());
        ASSERT_TRUE(store.loadXML());
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
        type("sys", u"135"_s);
        type("dia", u"85"_s);
        type("physisian", u"Dr. Grey"_s);
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
        {"typing unchecks the box", [&] { type("sys", u"135"_s); }, 0, 135, 90},
        {"unchecking empties the fields", box, 0, 0, 0},
        {"checking fills them",
         [&] {
             box();
             box();
         },
         1, 140, 90},
        {"checking overwrites",
         [&] {
             type("dia", u"77"_s);
             box();
         },
         1, 140, 90},
        {"letters are not taken", [&] { type("sys", u"1x2y3"_s); }, 0, 123, 90},
        {"nor are signs and points", [&] { type("dia", u"-8.5"_s); }, 0, 140, 85},
        {"nor more than three digits", [&] { type("sys", u"12345"_s); }, 0, 123, 90},
        {"an emptied field is 0", [&] { type("dia", {}); }, 0, 140, 0},
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
    odd.userWhoStandard = 2;
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
    EXPECT_EQ(setting.userWhoStandard, 0U);
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

TEST_F(SettingTest, theClockButtonNeedsAMonitorAndTellsHowItWent) {
    open();
    EXPECT_FALSE(page("sendButton").isEnabled());
    startsPlugged = true;
    for (const int refusals : {0, 1000}) {
        host.reset();
        panel.messages.clear();
        plan.faults = {
            {.kind = SimulatedFault::Kind::noAnswer, .command = Command::setDate, .times = refusals}};
        open();
        status.update([](MonitorState& state) { state.isConnected = true, state.secondsAhead = 90; });
        ASSERT_TRUE(page("sendButton").isEnabled());
        click("sendButton");
        EXPECT_FALSE(page("sendButton").isEnabled()) << "not twice at once";
        EXPECT_TRUE(panel.messages.empty()) << "on the monitor's own thread";
        waitFor([this] { return !panel.messages.empty(); });
        ASSERT_EQ(panel.messages.size(), 1);
        EXPECT_TRUE(panel.messages.first().startsWith(qtTrId("TimeSync")));
        EXPECT_EQ(panel.messages.first().contains(qtTrId("clockSet")), refusals == 0);
        EXPECT_EQ(panel.messages.first().contains(describe(MonitorResult::timeOut)), refusals > 0);
        EXPECT_EQ(status.state().secondsAhead, refusals == 0 ? 0 : 90);
        EXPECT_FALSE(status.isBusy());
        EXPECT_TRUE(page("sendButton").isEnabled());
    }
}

TEST_F(SettingTest, everyControlSaysWhatItIs) {
    open();
    for (const char* name : {"SettingController", "exportProgress", "importProgress"})
        expectNamed(page(name));
}

} // namespace zel
