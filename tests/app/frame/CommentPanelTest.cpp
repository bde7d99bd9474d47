#include "app/frame/CommentViewController.h"
#include "app/frame/ReadingFrame.h"
#include "app/frame/TypedCommentDay.h"
#include "support/DamageAfterWrite.h"
#include "support/ReadingPageTest.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class CommentPanelTest : public ReadingPageTest {
protected:
    void openPanel() { open(new ReadingFrame({store, period, panel, clock}, *new QWidget, nullptr)); }
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

TEST_F(CommentPanelTest, saysWhatWasMeasuredBeforeAndSince) {
    const auto measure = [this](const char* day, std::uint32_t sys, int count) {
        ReadingList readings;
        for (int i = 0; i < count; ++i)
            readings.push_back(
                reading(u"%1%2"_s.arg(QLatin1String(day)).arg(800 + i, 4, 10, QLatin1Char{'0'}), sys));
        storeReadings(u"P1"_s, readings);
    };
    storeReadings(u"P1"_s, {});
    addComment(u"P1"_s, u"20260310"_s, u"20260311"_s, u"new medicine"_s);
    openPanel();
    EXPECT_EQ(text("lblBeforeAndSince"), u"no reading before or since"_s);
    measure("20260309", 142, 5);
    EXPECT_EQ(text("lblBeforeAndSince"),
              u"142/80 (5) before, no reading since; fewer than 6 readings before"_s);
    measure("20260310", 133, 2);
    EXPECT_EQ(text("lblBeforeAndSince"),
              u"142/80 (5) before, 133/80 (2) since: -9/0; fewer than 6 readings on both sides"_s);
    measure("20260308", 145, 1);
    EXPECT_EQ(text("lblBeforeAndSince"),
              u"143/80 (6) before, 133/80 (2) since: -10/0; fewer than 6 readings since"_s);
    measure("20260312", 160, 4);
    EXPECT_EQ(text("lblBeforeAndSince"), u"143/80 (6) before, 151/80 (6) since: +8/0"_s);
    addComment(u"P1"_s, u"20260201"_s, u"20260202"_s, u"earlier"_s);
    clickPart("btnPreviousComment");
    EXPECT_EQ(text("lblBeforeAndSince"), u"no reading before or since"_s);
}

TEST(TypedCommentDay, aDayIsReadInTheOrderOfTheSettings) {
    const QString dayFirst = u"dd/MM/yyyy"_s, monthFirst = u"MM/dd/yyyy"_s, yearFirst = u"yyyy/MM/dd"_s;
    const struct {
        QString text, pattern;
        QString day; ///< null: none
    } cases[]{{u"05/03/2026"_s, dayFirst, u"20260305"_s},
              {u"05/03/2026"_s, monthFirst, u"20260503"_s},
              {u"2026-3-5"_s, yearFirst, u"20260305"_s},
              {u" 5. 3. 2026 "_s, dayFirst, u"20260305"_s},
              {u"05032026"_s, dayFirst, u"20260305"_s},
              {u"20260305"_s, yearFirst, u"20260305"_s},
              {u"29/02/2024"_s, dayFirst, u"20240229"_s},
              {u"29/02/2026"_s, dayFirst, {}},
              {u"31/12/1899"_s, dayFirst, {}},
              {u"01/01/1900"_s, dayFirst, u"19000101"_s},
              {u"31/12/9999"_s, dayFirst, u"99991231"_s},
              {u"05/03/26"_s, dayFirst, {}},
              {u"005/03/2026"_s, dayFirst, {}},
              {u"5/3"_s, dayFirst, {}},
              {u"5/3/2026/1"_s, dayFirst, {}},
              {u"-5/3/2026"_s, dayFirst, {}},
              {u"soon"_s, dayFirst, {}},
              {QString(), dayFirst, {}}};
    for (const auto& each : cases)
        EXPECT_EQ(DateToStr(typedCommentDay(each.text, each.pattern), u"yyyyMMdd"_s), each.day)
            << qPrintable(each.text + u' ' + each.pattern);
    const auto day = [](const QString& text) { return *StrToDate(text, u"yyyyMMddHHmm"_s); };
    EXPECT_FALSE(isFarAhead(day(u"202803010000"_s), day(u"202603011200"_s)));
    EXPECT_TRUE(isFarAhead(day(u"202803020000"_s), day(u"202603011200"_s)));
}

TEST_F(CommentPanelTest, theDaysAreTyped) {
    storeComments();
    CommentModel timed = *store.getCommentForCurID().front();
    timed.beginDate = at(u"202603030830"_s);
    ASSERT_TRUE(store.saveCommentToXML(timed));
    openPanel();
    const auto firstDays = [this] {
        const auto& first = *store.getCommentForCurID().front();
        return DateToStr(first.beginDate, u"MMdd HHmm"_s) + u'-' + DateToStr(first.endDate, u"MMdd HHmmss"_s);
    };
    const QString unread = qtTrId("commentDayUnread").section(u'%', 1).mid(2).left(20);
    const QString far = qtTrId("commentDayFar").arg(u"06/03/2206"_s);
    const struct {
        const char* field;
        QString text;
        std::vector<Qt::Key> end;
        QString days;
        QString message; ///< what it contains
    } steps[]{{"commentEnd", u"06/03/2026"_s, {Qt::Key_Return}, u"0303 0830-0306 235959"_s, {}},
              {"commentBegin",
               u"7.3.2026"_s,
               {Qt::Key_Tab, Qt::Key_Tab},
               u"0303 0830-0306 235959"_s,
               qtTrId("commentDayOrder")},
              {"commentBegin", u"03/03/2026"_s, {Qt::Key_Tab, Qt::Key_Tab}, u"0303 0830-0306 235959"_s, {}},
              {"commentBegin", u"04/13/2026"_s, {Qt::Key_Return}, u"0303 0830-0306 235959"_s, unread},
              {"commentEnd", u"06/03/2206"_s, {Qt::Key_Return}, u"0303 0830-0306 235959"_s, far},
              {"commentBegin", QString(), {Qt::Key_Tab, Qt::Key_Tab}, u"0303 0830-0306 235959"_s, unread},
              {"commentBegin", u"06/03/2026"_s, {Qt::Key_Escape}, u"0303 0830-0306 235959"_s, {}},
              {"commentBegin", u"6.3.2026"_s, {Qt::Key_Return}, u"0306 0000-0306 235959"_s, {}}};
    for (const auto& step : steps) {
        panel.messages.clear();
        type(step.field, step.text);
        for (const Qt::Key key : step.end)
            press(key);
        EXPECT_EQ(firstDays(), step.days) << qPrintable(step.text);
        EXPECT_EQ(panel.messages.size(), step.message.isEmpty() ? 0 : 1) << qPrintable(step.text);
        EXPECT_TRUE(panel.messages.join(u' ').contains(step.message))
            << qPrintable(panel.messages.join(u' '));
        const auto shown = [this](const char* field) { return find<QLineEdit>(field).text(); };
        EXPECT_EQ(shown("commentBegin").left(2) + u'-' + shown("commentEnd").left(2),
                  step.days.mid(2, 2) + u'-' + step.days.mid(12, 2))
            << "as it is stored, after " << qPrintable(step.text);
    }
    panel.messages.clear();
    type("commentBegin", u"soon"_s);
    type("commentEnd", u"01/03/2026"_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(panel.messages.join(u' ').contains(unread)) << "that it is no date, not that it is the later";
    type("commentBegin", u"06/03/2026"_s); // as it is
    press(Qt::Key_Return);
    replaceDataFile(dataFile().replace(">first<", ">newer<"));
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(editor().toPlainText(), u"newer"_s) << "nothing typed is in its way";
    type("commentEnd", u"08/03/2026"_s);
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(find<QLineEdit>("commentEnd").text(), u"08/03/2026"_s) << "not while it is being typed";
    EXPECT_TRUE(find<CommentViewController>("commentPanel").saveQuietly().isEmpty());
    EXPECT_EQ(firstDays(), u"0306 0000-0308 235959"_s);
    type("commentBegin", u"31/12/2026"_s);
    panel.messages.clear();
    EXPECT_FALSE(find<CommentViewController>("commentPanel").leave());
    EXPECT_EQ(panel.messages.size(), 1) << "it could not be taken";
    EXPECT_EQ(firstDays(), u"0306 0000-0308 235959"_s);
    EXPECT_TRUE(find<CommentViewController>("commentPanel").leave());
    panel.messages.clear();
    for (const auto& [next, day] : {std::pair(Qt::Key_Tab, u"09"_s), {Qt::Key_Return, u"10"_s}}) {
        type("commentBegin", day + u"/03/2026"_s); // behind the last one
        press(next);
        EXPECT_EQ(firstDays().mid(10, 4), u"0308"_s) << "the last day is still to be typed";
        press(Qt::Key_Escape);
        EXPECT_EQ(find<QLineEdit>("commentBegin").text(), u"06/03/2026"_s) << "both are taken back";
        type("commentBegin", day + u"/03/2026"_s);
        press(next);
        QTest::keyClicks(QApplication::focusWidget(), day + u"/03/2026"_s);
        press(next);
        EXPECT_EQ(firstDays(), u"03%1 0000-03%1 235959"_s.arg(day));
        find<QLineEdit>("commentBegin").setFocus();
        type("commentBegin", u"06/03/2026"_s);
        type("commentEnd", u"08/03/2026"_s);
        press(Qt::Key_Return);
    }
    EXPECT_TRUE(panel.messages.empty()) << qPrintable(panel.messages.join(u' '));
    CommentModel planned = *store.getCommentForCurID().front();
    planned.endDate = at(u"220603080830"_s);
    ASSERT_TRUE(store.saveCommentToXML(planned));
    type("commentEnd", u"8.3.2206"_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(panel.messages.empty()) << "as it was";
    EXPECT_EQ(store.getCommentForCurID().front()->endDate, planned.endDate);
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
    panel.messages.clear();
    type("commentEnd", u"12/03/2026"_s);
    window().setFocus(); // as when the page is left
    EXPECT_TRUE(panel.messages.empty()) << "told and asked in one";
    EXPECT_TRUE(find<CommentViewController>("commentPanel").leave());
    EXPECT_EQ(find<QLineEdit>("commentEnd").text(), u"10/03/2026"_s);
}

TEST_F(CommentPanelTest, commentsWithoutANumberOrWithTheSameAreChangedLikeOthers) {
    storeComments();
    const QByteArray file = dataFile();
    ASSERT_TRUE(file.contains("<CommentID>1<") && file.contains("<CommentID>2<"));
    for (const QByteArray& number : {QByteArray(), QByteArray("7")}) {
        replaceDataFile(QByteArray(file)
                            .replace("<CommentID>1<", "<CommentID>" + number + '<')
                            .replace("<CommentID>2<", "<CommentID>" + number + '<'));
        ASSERT_TRUE(store.loadXML());
        store.setSelectedComment({});
        openPanel();
        EXPECT_EQ(editor().toPlainText(), u"first"_s);
        EXPECT_EQ(page("commentBox").grab().toImage().pixelColor(0, 20), QColor(255, 120, 0));
        clickPart("btnNextComment");
        EXPECT_EQ(text("lblCommentPosition"), u"2 of 2"_s);
        typeComment(u"+"_s);
        type("commentEnd", u"11/03/2026"_s);
        press(Qt::Key_Return);
        EXPECT_EQ(editor().toPlainText(), u"second+"_s) << "it is still the one that is shown";
        EXPECT_TRUE(dataFile().contains(">second+<") && dataFile().contains(">first<"));
        EXPECT_EQ(store.getCommentForCurID().back()->strEndDate(), u"2026/03/11"_s);
        clickPart("btnPreviousComment");
        typeComment(u"+"_s);
        clickPart("btnDeleteComment");
        EXPECT_TRUE(dataFile().contains(">second+<") && !dataFile().contains(">first"));
        EXPECT_EQ(editor().toPlainText(), u"second+"_s);
    }
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
    EXPECT_EQ(find<QLineEdit>("commentBegin").text(), QString());
    EXPECT_FALSE(editor().isEnabled());
    EXPECT_FALSE(page("btnDeleteComment").isEnabled());
}

} // namespace zel
