#include "SettingDialogTest.h"
#include "store/LanguageChoice.h"
#include "store/PressureLimits.h"
#include "support/DamageAfterWrite.h"
#include "support/FullDisk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QRadioButton>

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
    const SettingModel before = store.getSetting();
    open();
    for (const char* passed : {"cboLanguage", "dateFormate", "timeFormate", "metricFormate"}) {
        find<QWidget>(passed).setFocus();
        rollOver(find<QWidget>(passed));
    }
    click("okButton");
    EXPECT_EQ(store.getSetting(), before);
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
        save();
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
    store.getSetting() = odd;
    save();
    open();
    EXPECT_EQ(find<QComboBox>("dateFormate").currentText(), u"dd mm yyyy"_s);
    EXPECT_EQ(find<QComboBox>("timeFormate").currentText() == u"12-hours"_s, odd.is12Hours());
    EXPECT_EQ(find<QComboBox>("metricFormate").currentText() == u"kg / cm"_s, odd.isMetric());
    EXPECT_FALSE(find<QCheckBox>("eraseMeasures").isChecked()) << "only 1 empties the monitor";
    EXPECT_TRUE(find<QRadioButton>("displayMAP").isChecked());
    EXPECT_FALSE(find<QCheckBox>("useWHOStandard").isChecked()) << "only 1 counts";
    const QByteArray before = dataFile();
    click("okButton");
    EXPECT_EQ(dataFile(), before) << "what is not changed stays as it is";
}

TEST_F(SettingTest, refusesLimitsThatMakeNoSense) {
    replaceDataFile(dataFile().replace("<SysStandard>140<", "<SysStandard>4000000000<"));
    ASSERT_TRUE(store.loadXML()); // as another program may have left it
    open();
    click("okButton");
    EXPECT_TRUE(text("lblLimitProblem").contains(describe(LimitProblem::systolic)));
    struct Case {
        const char *sys, *dia, *focus;
        LimitProblem problem;
    };
    for (const Case& one :
         {Case{"20", "", "sys", LimitProblem::systolic}, Case{"261", "90", "sys", LimitProblem::systolic},
          Case{"140", "161", "dia", LimitProblem::diastolic}, Case{"90", "90", "dia", LimitProblem::order}}) {
        SCOPED_TRACE(one.sys);
        type("sys", QString::fromLatin1(one.sys));
        type("dia", QString::fromLatin1(one.dia));
        EXPECT_FALSE(page("lblLimitProblem").isVisible()) << "not while it is being mended";
        click("okButton");
        EXPECT_TRUE(dialog().isVisible());
        EXPECT_TRUE(page("lblLimitProblem").isVisible());
        EXPECT_TRUE(text("lblLimitProblem").contains(describe(one.problem)));
        EXPECT_EQ(dialog().focusWidget(), &page(one.focus));
        EXPECT_EQ(store.getSetting().sysStandard, 4000000000U);
    }
    click("cancelButton");
    open();
    EXPECT_FALSE(page("lblLimitProblem").isVisible()) << "nothing left over";
    click("useWHOStandard");
    click("useWHOStandard");
    click("okButton");
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(store.getSetting().sysStandard, 140U);
}

TEST_F(SettingTest, OKWritesOnlyWhatWasChangedInTheDialog) {
    const QByteArray elsewhere = dataFile().replace("<SysStandard>140<", "<SysStandard>130<");
    open();
    replaceDataFile(elsewhere);
    ASSERT_TRUE(store.loadXML()); // as an import into the open dialog does
    click("displayMAP");
    click("okButton");
    EXPECT_EQ(dataFile(), QByteArray(elsewhere).replace("<ShowPPorMap>0<", "<ShowPPorMap>1<"));
    EXPECT_EQ(store.getSetting().sysStandard, 130U);
    EXPECT_TRUE(panel.messages.empty());

    replaceDataFile("<ZEL>");
    EXPECT_FALSE(store.loadXML());
    open();
    replaceDataFile(elsewhere);
    click("displayPP");
    click("okButton");
    EXPECT_EQ(dataFile(), elsewhere) << "no defaults over a repaired file";
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

TEST_F(SettingTest, aSaveThatCannotBeReadBackIsToldAsASave) {
    open();
    changeEverything();
    const DamageAfterWrite damage(store.getZELXMLPath());
    click("okButton");
    EXPECT_FALSE(dialog().isVisible());
    ASSERT_EQ(panel.messages.size(), 1);
    EXPECT_TRUE(panel.messages.first().contains(qtTrId("storedNotReadBack").section(u'%', 0, 0)));
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
    plan.clockOffset = std::chrono::hours(3);
    for (const auto& [refusals, keepsNothing] : {std::pair(0, false), {1000, false}, {0, true}}) {
        host.reset();
        panel.messages.clear();
        plan.faults = {
            {.kind = SimulatedFault::Kind::noAnswer, .command = Command::setDate, .times = refusals}};
        open();
        port->keepsNothing = keepsNothing;
        status.update([](MonitorState& state) { state.isConnected = true; });
        ASSERT_TRUE(page("sendButton").isEnabled());
        click("sendButton");
        EXPECT_FALSE(page("sendButton").isEnabled()) << "not twice at once";
        EXPECT_TRUE(panel.messages.empty()) << "on the monitor's own thread";
        waitFor([this] { return !panel.messages.empty(); });
        ASSERT_EQ(panel.messages.size(), 1);
        EXPECT_TRUE(panel.messages.first().startsWith(qtTrId("TimeSync")));
        EXPECT_EQ(panel.messages.first().contains(qtTrId("clockSet")), refusals == 0 && !keepsNothing);
        EXPECT_EQ(panel.messages.first().contains(describe(MonitorResult::timeOut)), refusals > 0);
        EXPECT_EQ(panel.messages.first().contains(describe(MonitorResult::notTaken)), keepsNothing);
        EXPECT_FALSE(status.isBusy());
        EXPECT_TRUE(page("sendButton").isEnabled());
    }
}

TEST_F(SettingTest, everyControlSaysWhatItIs) {
    open();
    for (const char* name : {"SettingController", "exportProgress", "importProgress"})
        expectNamed(page(name));
}

TEST_F(SettingTest, TheLanguageIsThePersonsAndNotTheDataFiles) {
    const QString file = languageFile(home.path());
    const QByteArray before = dataFile();
    open();
    choose("cboLanguage", u"Polski"_s);
    click("cancelButton");
    EXPECT_FALSE(QFile::exists(file));
    open();
    EXPECT_EQ(find<QComboBox>("cboLanguage").currentIndex(), 0);
    click("okButton");
    EXPECT_FALSE(QFile::exists(file)) << "nothing was chosen";
    open();
    choose("cboLanguage", u"Polski"_s);
    EXPECT_EQ(text("lblLanguage"), qtTrId("settingLanguageWhen"));
    click("okButton");
    EXPECT_EQ(readLanguageChoice(file), u"pl"_s);
    open();
    EXPECT_EQ(find<QComboBox>("cboLanguage").currentText(), u"Polski"_s);
    click("okButton");
    EXPECT_EQ(dataFile(), before);
    EXPECT_TRUE(panel.messages.isEmpty());
}

TEST_F(SettingTest, ALanguageThatIsNotReadOrNotSavedIsTold) {
    const QString file = languageFile(home.path());
    ASSERT_TRUE(QDir().mkpath(file));
    open();
    EXPECT_TRUE(text("lblLanguage").contains(file));
    choose("cboLanguage", u"Polski"_s);
    type("sys", u"135"_s);
    type("dia", u"85"_s);
    click("okButton");
    ASSERT_EQ(panel.messages.size(), 1);
    EXPECT_TRUE(panel.messages.first().contains(qtTrId("languageNotSaved").section(u'%', 0, 0)));
    EXPECT_EQ(store.getSetting().sysStandard, 135U) << "as the message says";
    ASSERT_TRUE(QDir().rmdir(file));
    ASSERT_TRUE(QFile(file).open(QFile::WriteOnly));
    open();
    click("okButton");
    EXPECT_EQ(readLanguageChoice(file), QString()) << "what could not be read is not told for ever";
}

} // namespace zel
