#include "ChartPageTest.h"
#include "app/frame/CommentViewController.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

namespace zel {

using namespace Qt::StringLiterals;

TEST_F(ChartPageTest, whatNamesNoCommentChangesOneThatTheUserSelected) {
    const CommentViewController otherPage(store, panel, clock,
                                          nullptr); // which may select one before this does
    openChart(u"20260301"_s, u"20260310"_s);
    const auto first = [this] { QTest::mouseClick(&pulse(), Qt::LeftButton, {}, strip(u"202603031200"_s)); };
    const auto reopen = [this] { find<GraphViewController>("GraphViewController").LoadData(); };
    const struct {
        const char* what;
        std::function<void()> before;
        QStringList degrees;
        QString days = u"20260303-20260303"_s; ///< of the first, when its end was moved by the keys, too
    } cases[]{
        {"the page selected it", [] {}, {u"2"_s, u"2"_s}},
        {"a click", first, {u"3"_s, u"2"_s}, u"20260303-20260304"_s},
        {"a click before the page was left", [&] { first(), reopen(); }, {u"2"_s, u"2"_s}},
        {"a key",
         [this] { press(Qt::Key_Down, Qt::ControlModifier); },
         {u"3"_s, u"2"_s},
         u"20260303-20260304"_s},
        {"the panel's button", [this] { clickPart("btnNextComment"), pulse().setFocus(); }, {u"2"_s, u"3"_s}},
        {"the patient was another",
         [&] {
             first();
             for (const QString& ID : {u"P2"_s, u"P1"_s})
                 store.setCurrentID(ID);
             showDays(u"20260301"_s, u"20260310"_s);
         },
         {u"2"_s, u"2"_s}},
        {"another click takes it back", [&] { first(), first(); }, {u"2"_s, u"2"_s}},
        {"a new one has the colour of its time",
         [this] { dropIcon(u"202603051200"_s), pulse().setFocus(); },
         {u"2"_s, u"4"_s, u"2"_s}}};
    const QByteArray empty = dataFile();
    for (const auto& each : cases) {
        replaceDataFile(empty);
        ASSERT_TRUE(store.loadXML());
        find<QAction>("colour1").trigger();
        addComment(u"1"_s, u"20260303"_s, u"20260303"_s, u"mine"_s);
        addComment(u""_s, u"20260308"_s, u"20260308"_s, u"other"_s);
        replaceDataFile(dataFile().replace("<CommentID>2<", "<CommentID><"));
        ASSERT_TRUE(store.loadXML());
        reopen();
        showDays(u"20260301"_s, u"20260310"_s);
        pulse().setFocus();
        each.before();
        click("ColorSelButton");
        QTest::mouseClick(&page("CommentColorView"), Qt::LeftButton, {}, {18, 45});
        pulse().setFocus();
        press(Qt::Key_Right, Qt::ShiftModifier);
        QStringList degrees;
        for (const QString& line : inFile())
            degrees += line.section(u' ', 1, 1);
        EXPECT_EQ(degrees, each.degrees) << each.what;
        EXPECT_EQ(inFile().first().section(u' ', 0, 0), each.days) << each.what;
    }
}

TEST_F(ChartPageTest, aNewCommentIsForTheDayPointedAtAndTakesTheKeyboard) {
    openChart(u"20260301"_s, u"20260310"_s);
    const auto point = [this](const QString& time) {
        send(blood(), QEvent::MouseMove, {strip(time).x(), 30});
        pulse().setFocus();
    };
    const auto insert = [this] { press(Qt::Key_Insert); };
    const auto leave = [this] {
        QEvent left(QEvent::Leave);
        QApplication::sendEvent(&blood(), &left);
    };
    const auto choose = [&](QContextMenuEvent::Reason reason) {
        const QPoint where = strip(u"202603071200"_s) - QPoint(0, 20);
        QContextMenuEvent event(reason, where, pulse().mapToGlobal(where));
        QApplication::sendEvent(&pulse(), &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        menu->setActiveAction(menu->findChild<QAction*>(u"addCommentThere"_s));
        leave(); // for the menu
        QTest::keyClick(menu, Qt::Key_Return);
    };
    const struct {
        const char* what;
        std::function<void()> add;
        QString day;
    } cases[]{
        {"nothing is pointed at", [&] { insert(); }, u"20260301"_s},
        {"the pointer", [&] { point(u"202603042330"_s), insert(); }, u"20260304"_s},
        {"the keys, later", [&] { press(Qt::Key_Right, Qt::ControlModifier), insert(); }, u"20260301"_s},
        {"the pointer, later", [&] { point(u"202603060030"_s), insert(); }, u"20260306"_s},
        {"the menu", [&] { choose(QContextMenuEvent::Mouse); }, u"20260307"_s},
        {"the menu of the keyboard", [&] { point(u"202603060030"_s), choose(QContextMenuEvent::Keyboard); },
         u"20260306"_s},
        {"a drop", [this] { dropIcon(u"202603081200"_s); }, u"20260308"_s},
        {"the pointer left", [&] { point(u"202603060030"_s), leave(), insert(); }, u"20260301"_s},
        {"the scale",
         [&] {
             send(blood(), QEvent::MouseMove, {5, 30}), insert();
         },
         u"20260301"_s}};
    QStringList days;
    for (const auto& each : cases) {
        pulse().setFocus();
        each.add();
        QTest::keyClicks(QApplication::focusWidget(), u"+"_s);
        press(Qt::Key_Escape);
        days += each.day;
        days.sort();
        QStringList now;
        for (const QString& line : inFile())
            now += line.left(8) + line.mid(20);
        EXPECT_EQ(now.join(u' '), days.join(u"+ "_s) + u'+') << each.what;
        EXPECT_EQ(shown(), u"20260301-20260310"_s) << each.what;
        EXPECT_TRUE(pulse().hasFocus()) << each.what;
    }
    EXPECT_TRUE(panel.questions.empty()) << "each has a text";
    find<QToolButton>("btnSide").setChecked(false);
    window().resize(1200, 360);
    dropIcon(u"202603091200"_s);
    EXPECT_TRUE(editor().hasFocus()) << "the panels beside had been put away";
    QCoreApplication::processEvents();
    EXPECT_FALSE(editor().viewport()->visibleRegion().isEmpty()) << "and are scrolled";
}

TEST_F(ChartPageTest, aNewCommentThatStaysEmptyAsksToBeRemovedWhenItIsLeft) {
    addComment(u"1"_s, u"20260302"_s, u"20260302"_s, QString());
    openChart(u"20260301"_s, u"20260310"_s);
    auto& controller = find<GraphViewController>("GraphViewController");
    const auto click = [this](const QString& time) {
        QTest::mouseClick(&pulse(), Qt::LeftButton, {}, strip(time));
    };
    const struct {
        const char* what;
        QString typed;
        std::function<void()> leave;
        bool isAsked;
    } cases[]{
        {"another comment", {}, [&] { click(u"202603021200"_s); }, true},
        {"another one is added", {}, [this] { dropIcon(u"202603081200"_s), typeComment(u"+"_s); }, true},
        {"the page", u" "_s, [&] { EXPECT_TRUE(controller.leave()); }, true},
        {"paper", {}, [&] { EXPECT_TRUE(controller.readyToPrint()); }, true},
        {"emptied by hand", u"a"_s,
         [&] {
             press(Qt::Key_Tab);
             editor().setFocus();
             press(Qt::Key_A, Qt::ControlModifier);
             press(Qt::Key_Delete);
             click(u"202603021200"_s);
         },
         true},
        {"with a text", u"a"_s, [&] { click(u"202603021200"_s); }, false},
        {"it is not left", {}, [&] { click(u"202603061200"_s); }, false}};
    const QByteArray file = dataFile();
    for (const auto& each : cases) {
        for (const bool isRemoved : {true, false}) {
            replaceDataFile(file);
            ASSERT_TRUE(store.loadXML());
            panel.questions.clear();
            panel.answers[qtTrId("commentEmptyTitle")] = isRemoved;
            panel.whenAsked = [this] { EXPECT_EQ(inFile().size(), 2) << "before another is added"; };
            dropIcon(u"202603061200"_s);
            typeComment(each.typed);
            each.leave();
            EXPECT_EQ(panel.questions,
                      each.isAsked ? QStringList(qtTrId("commentEmptyTitle")) : QStringList())
                << each.what;
            EXPECT_TRUE(!each.isAsked || panel.asked.contains(u"06/03/2026"_s)) << qPrintable(panel.asked);
            EXPECT_EQ(inFile().filter(u"20260306"_s).isEmpty(), each.isAsked && isRemoved) << each.what;
            EXPECT_TRUE(controller.leave());
            EXPECT_LE(panel.questions.size(), 1) << "once only: " << each.what;
        }
    }
    replaceDataFile(file);
    ASSERT_TRUE(store.loadXML());
    store.setCurrentID(u"P2"_s);
    addComment({}, u"20260306"_s, u"20260306"_s, QString());
    const auto number = [](const CommentModel& of) { return "<CommentID>" + of.CommentID.toUtf8() + '<'; };
    const QByteArray theirs = number(*store.getCommentForCurID().front());
    store.setCurrentID(u"P1"_s);
    showDays(u"20260301"_s, u"20260310"_s);
    dropIcon(u"202603061200"_s);
    const QByteArray added = number(*store.getSelectedComment());
    replaceDataFile(dataFile().replace(theirs, added));
    ASSERT_TRUE(store.loadXML());
    panel.questions.clear();
    store.setCurrentID(u"P2"_s);
    ASSERT_EQ(number(*store.getSelectedComment()), added);
    EXPECT_TRUE(controller.leave());
    EXPECT_TRUE(panel.questions.empty()) << "another patient's, of the same number";
}

} // namespace zel
