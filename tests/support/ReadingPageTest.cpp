#include "support/ReadingPageTest.h"

#include "app/frame/PeriodFollower.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

namespace zel {

using namespace Qt::StringLiterals;

ReadingModel ReadingSteps::reading(const QString& date, std::uint32_t sys) {
    ReadingModel made;
    made.ReadingDate = at(date);
    made.sys = sys;
    made.dia = 80;
    made.pp = sys - 80;
    made.map = 93;
    made.pulse = 65;
    made.Arrhythmia = 1;
    return made;
}

void ReadingSteps::storeReadings(const QString& ID, const ReadingList& readings) {
    records.setCurrentID(ID);
    ASSERT_TRUE(records.newDataTransfer(readings));
}

void ReadingSteps::addComment(const QString& ID, const QString& begin, const QString& end,
                              const QString& text) {
    CommentModel comment;
    comment.CommentID = ID;
    comment.degree = 2;
    comment.beginDate = at(begin + u"0000"_s);
    comment.endDate = DateToDayBoundary(at(end + u"0000"_s), false);
    comment.comment = text;
    ASSERT_TRUE(records.addCommentForCurID(comment));
}

void ReadingSteps::storeYear() {
    storeReadings(u"P1"_s, {reading(u"202503010800"_s, 120), reading(u"202603010800"_s, 121),
                            reading(u"202603012000"_s, 131), reading(u"202603200800"_s, 122),
                            reading(u"202603202000"_s, 132), reading(u"200001010000"_s, 199)});
}

void ReadingSteps::storeComments() {
    storeReadings(u"P1"_s, {reading(u"202603010800"_s, 121), reading(u"202603030800"_s, 122),
                            reading(u"202603100800"_s, 123)});
    addComment(u"1"_s, u"20260303"_s, u"20260304"_s, u"first"_s);
    addComment(u"2"_s, u"20260310"_s, u"20260310"_s, u"second"_s);
}

QString ReadingSteps::stored(const QString& commentID) {
    for (const auto& comment : records.getCommentForCurID())
        if (comment->CommentID == commentID) return comment->comment;
    return u"none"_s;
}

QPlainTextEdit& ReadingSteps::editor() { return part<QPlainTextEdit>("commentText"); }

void ReadingSteps::clickPart(const char* name) {
    auto& button = part<QWidget>(name);
    QTest::mouseClick(&button, Qt::LeftButton, {}, {8, button.height() / 2});
}

void ReadingSteps::enter(QWidget& field, const QByteArray& how) {
    const bool isByTab = how.endsWith("Tab");
    if (isByTab) {
        QWidget* neighbour = how == "Tab" ? field.previousInFocusChain() : field.nextInFocusChain();
        const auto isReached = [](const QWidget& each) {
            return (each.focusPolicy() & Qt::TabFocus) && each.isEnabled() && each.isVisible()
                   && !each.focusProxy();
        };
        while (!isReached(*neighbour))
            neighbour = how == "Tab" ? neighbour->previousInFocusChain() : neighbour->nextInFocusChain();
        neighbour->setFocus();
        QTest::keyClick(neighbour, how == "Tab" ? Qt::Key_Tab : Qt::Key_Backtab);
    } else {
        field.clearFocus();
        QTest::mouseClick(&field, Qt::LeftButton, {}, {6, field.height() / 2});
    }
    if (how == "Ctrl+A") QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(field.hasFocus()) << how.constData();
}

void ReadingSteps::typeDay(const char* field, const QString& digits) {
    auto& day = part<QLineEdit>(field);
    day.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&day, digits);
}

QString ReadingSteps::dayIn(const char* field) { return part<QLineEdit>(field).text(); }

void ReadingSteps::typeComment(const QString& text) {
    editor().setFocus();
    editor().moveCursor(QTextCursor::End);
    QTest::keyClicks(&editor(), text);
}

ReadingPageTest::ReadingPageTest() : ReadingSteps(store) {
    addPatient(u"P1"_s, u"Adams"_s);
    addPatient(u"P2"_s, u"Baker"_s);
}

void ReadingPageTest::follow(QWidget& shown) { (new PeriodFollower(store, period, &shown))->prepare(); }

} // namespace zel
