// What is offered when a monitor comes, over the whole program.
#include "AppTest.h"

#include <QLineEdit>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class MonitorOffersTest : public AppTest {
protected:
    MonitorOffersTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        addPatient(u"P2"_s, u"Baker"_s);
        store.getSetting().eraseRecAfterReading = 0;
        EXPECT_TRUE(store.saveSetting());
        plan.ID = "P2";
    }
    bool isBarShown() { return page("monitorBar").isVisible(); }
    QString fieldText(const char* field) { return find<QLineEdit>(field).text(); }
    /// What the program would ask about is typed over the patient who is shown.
    void startTyping() {
        startConnected();
        type("FamilyName", u"Adams-Smith"_s);
        panel.questions.clear();
    }
    QString familyName(const QString& ID) { return store.getPatientByID(ID)->FamilyName; }
};

} // namespace

TEST_F(MonitorOffersTest, downloadsFromAnyPageForTheMonitorsPatient) {
    startConnected();
    ASSERT_EQ(store.getCurrentID(), u"P1"_s);
    click("tableBtn");
    ASSERT_TRUE(isBarShown());
    click("btnBarDownload");
    waitFor([this] { return !text("lblOutcome").isEmpty(); });
    EXPECT_EQ(store.getCurrentID(), u"P2"_s);
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
    EXPECT_TRUE(page("GraphViewController").isVisible());
    EXPECT_FALSE(isBarShown()) << "that is done";
    port->plugged = false;
    waitFor([this] { return !status.state().isConnected; });
    port->plugged = true;
    waitFor([this] { return isBarShown(); });
    EXPECT_TRUE(page("GraphViewController").isVisible()) << "nobody is moved";
    EXPECT_TRUE(panel.messages.empty());
}

TEST_F(MonitorOffersTest, comesWithoutTakingTheKeysOfWhoTypes) {
    startsPlugged = false;
    start();
    type("FamilyName", u"Adam"_s);
    port->plugged = true;
    waitFor([this] { return isBarShown(); });
    press(Qt::Key_X);
    EXPECT_EQ(fieldText("FamilyName"), u"Adamx"_s);
    EXPECT_EQ(store.getCurrentID(), u"P1"_s);
}

TEST_F(MonitorOffersTest, asksBeforeItLeavesWhatIsTyped) {
    struct Case {
        bool cancels;
        QString ID, name;
        std::size_t readings;
    };
    for (const Case& c : {Case{true, u"P1"_s, u"Adams"_s, 0}, Case{false, u"P2"_s, u"Adams-Smith"_s, 12}}) {
        startTyping();
        panel.cancelsSaving = c.cancels;
        click("btnBarDownload");
        EXPECT_EQ(panel.questions.size(), 1);
        if (c.readings > 0) waitFor([this] { return page("GraphViewController").isVisible(); });
        EXPECT_EQ(store.getCurrentID(), c.ID);
        EXPECT_EQ(familyName(u"P1"_s), c.name);
        EXPECT_EQ(store.getReadingForCurID().size(), c.readings);
        if (c.readings == 0) {
            EXPECT_EQ(fieldText("FamilyName"), u"Adams-Smith"_s);
            EXPECT_TRUE(isBarShown()) << "to be pressed later";
        }
    }
}

TEST_F(MonitorOffersTest, ofTheVeryPatientWhoIsEditedToo) {
    plan.ID = "P1";
    startTyping();
    panel.cancelsSaving = true;
    click("btnBarDownload");
    EXPECT_EQ(panel.questions.size(), 1);
    EXPECT_TRUE(store.getReadingForCurID().empty());
    EXPECT_EQ(fieldText("FamilyName"), u"Adams-Smith"_s);
}

TEST_F(MonitorOffersTest, saysThatTheMonitorHasGoneWhileTheQuestionWasOpen) {
    startTyping();
    panel.answers[qtTrId("SavePatient")] = false;
    panel.whenAsked = [this] {
        port->plugged = false;
        waitFor([this] { return !status.state().isConnected; });
    };
    click("btnBarDownload");
    EXPECT_EQ(text("lblOutcome"), qtTrId("monitorChangedMeanwhile"));
    EXPECT_FALSE(isBarShown());
    EXPECT_TRUE(store.getReadingForCurID().empty());
}

TEST_F(MonitorOffersTest, aNewPatientBeginsWithTheMonitorsID) {
    plan.ID = "NEW7";
    startConnected();
    click("graphBtn");
    click("btnBarNewPatient");
    EXPECT_TRUE(page("PatientViewController").isVisible());
    EXPECT_EQ(fieldText("ID"), u"NEW7"_s);
    EXPECT_TRUE(page("FamilyName").hasFocus());
    type("FamilyName", u"Clarke"_s);
    type("GivenNames", u"Ruth"_s);
    click("btnSavePatient");
    EXPECT_EQ(familyName(u"NEW7"_s), u"Clarke"_s);
    EXPECT_TRUE(page("btnBarDownload").isVisible()) << "the monitor is known now";
    EXPECT_FALSE(page("btnBarNewPatient").isVisible());
}

TEST_F(MonitorOffersTest, aNewPatientWhoHasBeenBegunIsKeptAndAnEmptyOneFilledIn) {
    plan.ID = "NEW7";
    startConnected();
    click("btnNewPatient");
    click("btnBarNewPatient");
    EXPECT_EQ(fieldText("ID"), u"NEW7"_s);
    EXPECT_TRUE(panel.messages.empty());
    type("ID", u"OTHER"_s);
    click("btnBarNewPatient");
    EXPECT_EQ(panel.messages, QStringList(qtTrId("Warning") + u": "_s + qtTrId("DupNewPatient")));
    EXPECT_EQ(fieldText("ID"), u"OTHER"_s);
}

} // namespace zel
