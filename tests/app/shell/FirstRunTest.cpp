// The program as nobody has used it yet, and the demonstration that it offers then.
#include "AppTest.h"
#include "app/shell/Demonstration.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class FirstRunTest : public AppTest {
protected:
    bool hasButton(const char* name) { return window().findChild<QWidget*>(QLatin1String(name)) != nullptr; }
};

} // namespace

TEST_F(FirstRunTest, leadsFromNobodyToTheFirstReadings) {
    plan.ID = "NEW7";
    startsPlugged = false;
    start();
    ASSERT_TRUE(page("firstSteps").isVisible());
    EXPECT_FALSE(hasButton("btnDemonstration")) << "there is none to be started";
    expectNamed(page("firstSteps"));
    EXPECT_EQ(text("lblFirstMonitor"), qtTrId("statusNotConnected"));
    port->plugged = true;
    waitFor([this] { return text("lblFirstMonitor") == qtTrId("statusConnected"); });
    click("btnFirstPatient");
    EXPECT_TRUE(page("FamilyName").hasFocus());
    EXPECT_FALSE(page("firstSteps").isVisible());
    type("FamilyName", u"Clarke"_s);
    type("GivenNames", u"Ruth"_s);
    type("ID", u"NEW7"_s);
    click("btnSavePatient");
    waitFor([this] { return page("btnBarDownload").isEnabled(); });
    click("btnBarDownload");
    waitFor([this] { return page("GraphViewController").isVisible(); });
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
}

TEST_F(FirstRunTest, theBarOffersThePatientToNobodysMonitor) {
    plan.ID = "NEW7";
    startConnected();
    click("btnBarNewPatient");
    EXPECT_EQ(find<QLineEdit>("ID").text(), u"NEW7"_s);
}

TEST_F(FirstRunTest, startsADemonstrationAndSaysHowThatWent) {
    QStringList outcomes{u"no room"_s, QString()};
    int started = 0;
    demonstration.start = [&] {
        ++started;
        return outcomes.takeFirst();
    };
    startsPlugged = false;
    start();
    click("btnDemonstration");
    EXPECT_EQ(panel.messages, QStringList(qtTrId("Warning") + u": no room"_s));
    EXPECT_TRUE(text("lblOutcome").isEmpty());
    click("btnDemonstration");
    EXPECT_EQ(started, 2);
    EXPECT_EQ(text("lblOutcome"), qtTrId("demonstrationStarted"));
    EXPECT_EQ(app->mainWndow().windowTitle(), qtTrId("AP_Title")) << "this one is none";
    EXPECT_FALSE(hasButton("demonstrationStrip"));
}

TEST_F(FirstRunTest, aDemonstrationSaysSoOnEveryPage) {
    addPatient(u"P1"_s, u"Adams"_s);
    demonstration.isOn = true;
    startsPlugged = false;
    start();
    EXPECT_EQ(app->mainWndow().windowTitle(), qtTrId("demonstrationTitle").arg(qtTrId("AP_Title")));
    for (const char* tab : {"patientBtn", "graphBtn", "tableBtn"}) {
        click(tab);
        EXPECT_TRUE(page("demonstrationStrip").isVisible()) << tab;
    }
}

TEST_F(FirstRunTest, theDemonstrationsDataAreKnownAsInvented) {
    const StorePaths paths =
        demonstrationPaths({.home = u"/demo"_s, .applicationFolder = u"/bin"_s, .templateFolder = {}});
    const DataStore invented(paths, clock);
    EXPECT_TRUE(invented.isDemonstration());
    EXPECT_EQ(paths.applicationFolder, u"/demo"_s) << "nothing beside the program is looked at";
    EXPECT_FALSE(store.isDemonstration());
}

TEST_F(FirstRunTest, theDemonstrationsDataAreNeverThePersons) {
    const QString own = home.filePath(u"person"_s), state = home.filePath(u"state"_s);
    ASSERT_TRUE(QDir().mkpath(own));
    qunsetenv("XDG_STATE_HOME");
    EXPECT_EQ(demonstrationHome(own), own + u"/.local/state/zel/demonstration"_s);
    qputenv("XDG_STATE_HOME", "relative");
    EXPECT_EQ(demonstrationHome(own), own + u"/.local/state/zel/demonstration"_s);
    qputenv("XDG_STATE_HOME", QFile::encodeName(state));
    const auto folder = demonstrationHome(own);
    ASSERT_EQ(folder, state + u"/zel/demonstration"_s);
    EXPECT_EQ(QFileInfo(*folder).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());

    for (const QString& link : {u""_s, u"/Library"_s}) { // to the home itself, or only to what holds the data
        SCOPED_TRACE(qPrintable(link));
        ASSERT_TRUE(QDir().mkpath(own + link));
        ASSERT_TRUE(QDir(*folder).removeRecursively());
        if (!link.isEmpty()) {
            ASSERT_TRUE(QDir().mkpath(*folder));
        }
        ASSERT_TRUE(QFile::link(own + link, *folder + link));
        const auto refused = demonstrationHome(own);
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.error(), qtTrId("demonstrationIsOwnData").arg(*folder));
        EXPECT_EQ(startDemonstration(own), refused.error()) << "nobody would see what the other one says";
        ASSERT_TRUE(QFile::remove(*folder + link));
    }
    ASSERT_TRUE(QDir().mkpath(*folder));
    QFile inItsPlace(*folder);
    ASSERT_TRUE(QDir(*folder).removeRecursively() && inItsPlace.open(QFile::WriteOnly));
    EXPECT_FALSE(demonstrationHome(own)) << "a file is in the folder's place";
    qunsetenv("XDG_STATE_HOME");
}

} // namespace zel
