#include "app/frame/CommentViewController.h"
#include "app/frame/ReadingFrame.h"
#include "support/DamageAfterWrite.h"
#include "support/ReadingPageTest.h"

#include <QPlainTextEdit>
#include <QSignalSpy>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class CommentPanelTest : public ReadingPageTest {
protected:
    void openPanel() { open(new ReadingFrame({store, period, panel}, *new QWidget, nullptr)); }
};

} // namespace

TEST_F(CommentPanelTest, whatIsTypedIsSavedWhenEditingEnds) {
    storeComments();
    openPanel();
    const std::vector<std::pair<const char*, std::function<void()>>> ends{
        {"another field", [this] { press(Qt::Key_Tab); }},
        {"another comment", [this] { clickPart("btnNextComment"), clickPart("btnPreviousComment"); }}};
    QString text = u"first"_s;
    for (const auto& [how, end] : ends) {
        typeComment(u"+"_s);
        EXPECT_EQ(stored(u"1"_s), text) << "not while it is being typed";
        end();
        EXPECT_EQ(stored(u"1"_s), text += u'+') << how;
        EXPECT_EQ(editor().toPlainText(), text);
    }
    QSignalSpy reloads(&store, &DataStore::reloaded);
    editor().setFocus();
    press(Qt::Key_Tab);
    EXPECT_TRUE(reloads.empty()) << "nothing was changed";
    editor().moveCursor(QTextCursor::End);
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(editor().textCursor().position(), text.size()) << "the caret stays";
}

TEST_F(CommentPanelTest, aCommentThatCannotBeSavedStays) {
    storeComments();
    openPanel();
    const QByteArray before = dataFile();
    typeComment(u"+"_s);
    replaceDataFile("<ZEL><Patient>");
    press(Qt::Key_Tab);
    EXPECT_EQ(panel.messages.size(), 1);
    clickPart("btnNextComment");
    EXPECT_EQ(editor().toPlainText(), u"first+"_s);
    replaceDataFile(before);
    clickPart("btnNextComment");
    EXPECT_EQ(stored(u"1"_s), u"first+"_s);
    EXPECT_EQ(editor().toPlainText(), u"second"_s);
    typeComment(u"+"_s);
    replaceDataFile("<ZEL><Patient>");
    panel.answers[qtTrId("Warning")] = false;
    EXPECT_TRUE(find<CommentViewController>("commentPanel").leave());
    EXPECT_EQ(editor().toPlainText(), u"second"_s) << "given up";
}

TEST_F(CommentPanelTest, aCommentThatCannotBeFoundAgainCannotBeTypedOver) {
    storeComments();
    QByteArray file = dataFile();
    ASSERT_TRUE(file.contains("<CommentID>1<"));
    replaceDataFile(file.replace("<CommentID>1<", "<CommentID><"));
    ASSERT_TRUE(store.loadXML());
    openPanel();
    EXPECT_EQ(editor().toPlainText(), u"first"_s);
    EXPECT_TRUE(editor().isReadOnly());
    EXPECT_EQ(page("commentBox").grab().toImage().pixelColor(0, 20), QColor(255, 120, 0));
}

TEST_F(CommentPanelTest, whatIsTypedIntoACommentThatAnotherProgramRemovedIsStoredAgain) {
    storeYear();
    const QByteArray without = dataFile();
    addComment(u"1"_s, u"20260301"_s, u"20260302"_s, u"mine"_s);
    openPanel();
    typeComment(u"+"_s);
    replaceDataFile(without);
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(stored(u"1"_s), u"none"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(stored(u"1"_s), u"mine+"_s);
}

TEST_F(CommentPanelTest, anotherPatientsCommentOfTheSameNumberIsLeftAlone) {
    storeComments();
    store.setCurrentID(u"P2"_s);
    addComment(u"3"_s, u"20260303"_s, u"20260304"_s, u"of P2"_s);
    replaceDataFile(dataFile().replace("<CommentID>3<", "<CommentID>1<"));
    ASSERT_TRUE(store.loadXML());
    store.setCurrentID(u"P1"_s);
    openPanel();
    store.setCurrentID(u"P2"_s);
    EXPECT_EQ(editor().toPlainText(), u"of P2"_s);
    typeComment(u"+"_s);
    press(Qt::Key_Tab);
    EXPECT_TRUE(dataFile().contains(">of P2+<") && dataFile().contains(">first<")) << dataFile().constData();
    panel.whenAsked = [this] { store.setCurrentID(u"P1"_s); }; // as a reload of the roster may
    clickPart("btnDeleteComment");
    EXPECT_EQ(store.getCommentForCurID().size(), 2U);
    panel.whenAsked = [] {};
    store.setCurrentID(u"P2"_s);
    clickPart("btnDeleteComment");
    EXPECT_TRUE(store.getCommentForCurID().empty());
    EXPECT_TRUE(dataFile().contains(">first<"));
}

TEST_F(CommentPanelTest, howAnUnusualSaveWentIsTold) {
    storeComments();
    openPanel();
    typeComment(u"+"_s);
    const QByteArray before = dataFile();
    const QByteArray gone =
        QByteArray(before)
            .replace("<ID>P1</ID>\n        <FamilyName>", "<ID>P9</ID>\n        <FamilyName>")
            .replace("<CommentID>1<", "<CommentID>8<");
    replaceDataFile(gone);
    press(Qt::Key_Tab);
    const StoreError noPatient{StoreErrorCode::noSuchRecord, u"P1"_s, {}};
    EXPECT_EQ(panel.messages,
              QStringList(qtTrId("Warning") + u": "_s + qtTrId("commentNotSaved").arg(describe(noPatient))));
    EXPECT_EQ(dataFile(), gone) << "nothing is stored for a patient who has gone";
    EXPECT_EQ(editor().toPlainText(), u"first+"_s);
    panel.messages.clear();
    replaceDataFile(before);
    const DamageAfterWrite damage(store.getZELXMLPath());
    editor().setFocus();
    press(Qt::Key_Tab);
    ASSERT_EQ(panel.messages.size(), 1);
    EXPECT_TRUE(panel.messages.first().contains(qtTrId("storedNotReadBack").section(u'%', 0, 0)));
}

TEST_F(CommentPanelTest, deletingACommentAsks) {
    storeComments();
    openPanel();
    clickPart("btnNextComment");
    EXPECT_FALSE(page("btnNextComment").isEnabled()) << "the last one";
    panel.answers[qtTrId("DeleteComment")] = false;
    clickPart("btnDeleteComment");
    EXPECT_EQ(store.getSelectedComment()->CommentID, u"2"_s);
    panel.answers[qtTrId("DeleteComment")] = true;
    panel.whenAsked = [this] { store.setSelectedComment(u"1"_s); };
    clickPart("btnDeleteComment");
    panel.whenAsked = [] {};
    EXPECT_EQ(stored(u"2"_s), u"none"_s);
    EXPECT_EQ(editor().toPlainText(), u"first"_s);
    const QByteArray before = dataFile();
    replaceDataFile("<ZEL><Patient>");
    clickPart("btnDeleteComment");
    EXPECT_EQ(panel.messages.size(), 1);
    replaceDataFile(before);
    typeComment(u"+"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(stored(u"1"_s), u"first+"_s);
    clickPart("btnDeleteComment");
    EXPECT_EQ(stored(u"1"_s), u"none"_s);
    EXPECT_EQ(text("lblCommentBegin"), u"01/01/0001"_s);
    EXPECT_FALSE(editor().isEnabled());
    EXPECT_FALSE(page("btnDeleteComment").isEnabled());
}

} // namespace zel
