#include "AppTest.h"
#include "support/FullDisk.h"

#include <QAction>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class UndoTest : public AppTest {
protected:
    UndoTest() {
        startsPlugged = false;
        addPatient(u"A"_s, u"Adams & Sons"_s);
        addPatient(u"B"_s, u"Baker"_s);
    }
    QAction& action(const char* name) {
        auto* found = window().findChild<QAction*>(QLatin1String(name));
        if (!found) qFatal("no action %s", name);
        return *found;
    }
    void select(const QString& ID) {
        auto& list = find<QTableView>("tblPatients");
        for (int row = 0; row < list.model()->rowCount(); ++row)
            for (int column = 0; column < list.model()->columnCount(); ++column)
                if (list.model()->index(row, column).data().toString() == ID) list.selectRow(row);
        ASSERT_EQ(store.getCurrentID(), ID);
    }
    /// As by the menu: the keyboard stays where it is.
    void choose(const char* name) { action(name).trigger(); }
    QString notes() { return find<QPlainTextEdit>("PatientNotes").toPlainText(); }
    void addComment(const QString& text) {
        CommentModel comment;
        comment.comment = text;
        ASSERT_TRUE(store.addCommentForCurID(comment));
    }
};

} // namespace

TEST_F(UndoTest, theMenuNamesTheStepAndShowsWhatCameBack) {
    start();
    EXPECT_EQ(action("undoStep").text(), u"&Undo new patient Baker, Kim"_s);
    EXPECT_EQ(action("redoStep").text(), u"&Redo"_s);
    EXPECT_FALSE(action("redoStep").isEnabled());
    select(u"A"_s);
    click("btnDeletePatient");
    ASSERT_FALSE(store.validIDinXML(u"A"_s));
    EXPECT_EQ(action("undoStep").text(), u"&Undo delete patient Adams && Sons, Kim"_s);
    type("searchPatients", u"bak"_s);
    press(Qt::Key_2, Qt::ControlModifier);
    for (int times = 0; times < 2; ++times) {
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_TRUE(store.validIDinXML(u"A"_s));
        EXPECT_EQ(store.getCurrentID(), u"A"_s);
        EXPECT_EQ(text("lblOutcome"), u"Undone: delete patient Adams & Sons, Kim"_s);
        EXPECT_EQ(find<QTableView>("tblPatients").selectionModel()->selectedRows().size(), 1);
        EXPECT_EQ(action("redoStep").text(), u"&Redo delete patient Adams && Sons, Kim"_s);
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_FALSE(store.validIDinXML(u"A"_s));
        EXPECT_EQ(store.getCurrentID(), u"B"_s);
        EXPECT_EQ(text("lblOutcome"), u"Done again: delete patient Adams & Sons, Kim"_s);
    }
    EXPECT_FALSE(action("redoStep").isEnabled());
    for (int times = 0; times < 3; ++times) // to a roster of nobody, whose chart is not shown
        press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(store.getPatientArray().size(), 0U);
    EXPECT_TRUE(page("PatientViewController").isVisible());
    EXPECT_EQ(action("undoStep").text(), u"&Undo"_s);
    EXPECT_FALSE(action("undoStep").isEnabled());
    EXPECT_TRUE(panel.messages.empty()) << qPrintable(panel.messages.join(u'|'));
}

TEST_F(UndoTest, inAFieldTheKeyTakesBackWhatIsTypedThere) {
    start();
    select(u"B"_s);
    const QByteArray before = dataFile();
    for (const char* field : {"PatientNotes", "GivenNames"}) {
        type(field, u"typed"_s);
        for (int times = 0; times < 20; ++times) // more often than there is something to take back
            press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(dataFile(), before) << field;
    }
    EXPECT_EQ(notes(), QString());
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_NE(find<QLineEdit>("GivenNames").text(), u"Kim"_s) << "made again in the field";
    press(Qt::Key_Z, Qt::ControlModifier);
    for (const char* field : {"FamilyName", "Address"}) { // nothing is typed there
        page(field).setFocus();
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_NE(dataFile(), before) << field;
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(dataFile(), before) << field;
    }
}

TEST_F(UndoTest, whatIsTypedAndNotSavedStays) {
    addPatient(u"C"_s, u"Clark"_s);
    start();
    select(u"C"_s);
    type("PatientNotes", u"saved"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    select(u"A"_s);
    click("btnDeletePatient");
    select(u"C"_s);
    type("GivenNames", u"Typed"_s);
    choose("undoStep");
    EXPECT_TRUE(store.validIDinXML(u"A"_s));
    EXPECT_EQ(store.getCurrentID(), u"C"_s) << "no other record takes its place";
    choose("undoStep");
    EXPECT_EQ(notes(), QString()) << "the field that is not typed in shows the file";
    EXPECT_EQ(find<QLineEdit>("GivenNames").text(), u"Typed"_s);
    choose("undoStep"); // the patient goes, and what is typed does not
    EXPECT_FALSE(store.validIDinXML(u"C"_s));
    EXPECT_EQ(find<QLineEdit>("GivenNames").text(), u"Typed"_s);
    choose("redoStep");
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(store.getPatientByID(u"C"_s)->GivenNames, u"Typed"_s);
}

TEST_F(UndoTest, commentsAndSettingsAreShownAtOnceAndTypingStays) {
    start();
    select(u"A"_s);
    addComment(u"first"_s);
    addComment(u"second"_s);
    store.getSetting().sysStandard = 133;
    ASSERT_TRUE(store.saveSetting());
    press(Qt::Key_3, Qt::ControlModifier);
    const QWidget& table = page("TableViewController");
    auto& comment = *table.findChild<QPlainTextEdit*>(u"commentText"_s);
    comment.setFocus();
    QTest::keyClicks(&comment, u"typed "_s);
    choose("undoStep");
    EXPECT_NE(std::as_const(store).getSetting().sysStandard, 133U);
    EXPECT_EQ(comment.toPlainText(), u"typed first"_s);
    choose("undoStep");
    EXPECT_EQ(store.getCommentForCurID().size(), 1U);
    EXPECT_EQ(comment.toPlainText(), u"typed first"_s);
    press(Qt::Key_1, Qt::ControlModifier); // saves it
    ASSERT_EQ(action("undoStep").text(), u"&Undo change to a comment of Adams && Sons, Kim"_s);
    select(u"B"_s);
    press(Qt::Key_3, Qt::ControlModifier);
    choose("undoStep");
    EXPECT_EQ(store.getCurrentID(), u"A"_s);
    EXPECT_EQ(comment.toPlainText(), u"first"_s);
}

TEST_F(UndoTest, aStepThatCannotBeIsToldAndOneThatFailedStays) {
    start();
    select(u"A"_s);
    click("btnDeletePatient");
    {
        const FullDisk full(10);
        choose("undoStep");
    }
    ASSERT_EQ(panel.messages.size(), 1);
    EXPECT_EQ(action("undoStep").text(), u"&Undo delete patient Adams && Sons, Kim"_s);
    replaceDataFile(dataFile().replace("<ID>B<", "<ID>A<"));
    const QByteArray before = dataFile();
    choose("undoStep");
    ASSERT_EQ(panel.messages.size(), 2);
    for (const QString& part : {u"“delete patient Adams & Sons, Kim”"_s, u"“A”"_s, qtTrId("undoDropped")})
        EXPECT_TRUE(panel.messages.last().contains(part)) << qPrintable(panel.messages.last());
    EXPECT_EQ(dataFile(), before);
    EXPECT_EQ(action("undoStep").text(), u"&Undo new patient Baker, Kim"_s);
}

TEST_F(UndoTest, notWhileADialogOrTheMonitorIsAtWork) {
    start();
    const QByteArray before = dataFile();
    press(Qt::Key_Comma, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier);
    click("cancelButton");
    status.setActivity(MonitorActivity::downloading);
    EXPECT_FALSE(action("undoStep").isEnabled());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(dataFile(), before);
    status.setActivity(MonitorActivity::none);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(dataFile(), before);
}

} // namespace zel
