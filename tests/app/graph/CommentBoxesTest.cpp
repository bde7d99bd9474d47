#include "ChartPageTest.h"

#include <QAction>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

namespace zel {

using namespace Qt::StringLiterals;

TEST_F(ChartPageTest, aCommentIsMadeChangedAndRemovedWithTheMouse) {
    openChart(u"20260301"_s, u"20260310"_s);
    dropIcon(u"202603031500"_s);
    EXPECT_EQ(inFile(), QStringList(u"20260303-20260303 4 "_s));
    drag(pulse(), strip(u"202603040000"_s), strip(u"202603051200"_s));
    EXPECT_EQ(inFile(), QStringList(u"20260303-20260305 4 "_s));
    drag(pulse(), strip(u"202603030000"_s), strip(u"202603020900"_s));
    EXPECT_EQ(inFile(), QStringList(u"20260302-20260305 4 "_s));
    click("ColorSelButton");
    auto& picker = page("CommentColorView");
    ASSERT_TRUE(picker.isVisible());
    QTest::mouseClick(&picker, Qt::LeftButton, {}, {18, 75});
    EXPECT_FALSE(picker.isVisible());
    EXPECT_EQ(inFile(), QStringList(u"20260302-20260305 2 "_s));
    const auto& colour = find<QToolButton>("ColorSelButton");
    EXPECT_EQ(colour.text(), qtTrId("colourOrange"));
    for (const auto& [key, degree] : {std::pair(Qt::Key_Up, u"3"_s), {Qt::Key_Down, u"2"_s}}) {
        click("ColorSelButton");
        QTest::keyClick(&picker, key);
        QTest::keyClick(&picker, Qt::Key_Return);
        EXPECT_EQ(inFile(), QStringList(u"20260302-20260305 %1 "_s.arg(degree)));
    }
    comment(u"new tablets"_s);
    EXPECT_EQ(inFile(), QStringList(u"20260302-20260305 2 new tablets"_s));
    QTest::mouseClick(&pulse(), Qt::LeftButton, {}, strip(u"202603031200"_s));
    EXPECT_TRUE(pulse().selectedBox().isNull()) << "a click on the selected box deselects it";
    EXPECT_FALSE(find<QAction>("removeComment").isEnabled());
    press(Qt::Key_Delete);
    EXPECT_EQ(inFile().size(), 1);
    QTest::mouseClick(&pulse(), Qt::LeftButton, {}, strip(u"202603031200"_s));
    find<QPushButton>("btnDeleteComment").click();
    EXPECT_TRUE(inFile().empty());
}

TEST_F(ChartPageTest, aCommentIsMadeChangedAndRemovedWithTheKeyboard) {
    addComment(u"1"_s, u"20260308"_s, u"20260308"_s, u"mine"_s);
    openChart(u"20260301"_s, u"20260310"_s);
    const QString other = u"20260308-20260308 2 mine"_s;
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_TRUE(pulse().accessibleDescription().contains(u"112 mmHg"_s))
        << qPrintable(pulse().accessibleDescription());
    press(Qt::Key_Insert);
    QTest::keyClicks(QApplication::focusWidget(), u"co+"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(pulse().hasFocus());
    EXPECT_EQ(inFile(), (QStringList{u"20260302-20260302 4 co+"_s, other}));
    for (int times = 0; times < 2; ++times) // selected by hand, then deselected
        QTest::mouseClick(&pulse(), Qt::LeftButton, {}, strip(u"202603021200"_s));
    press(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(pulse().selectedBox(), u"1"_s) << "none was selected: the last";
    press(Qt::Key_Up, Qt::ControlModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Left, Qt::ShiftModifier | Qt::AltModifier);
    EXPECT_EQ(inFile(), (QStringList{u"20260301-20260303 4 co+"_s, other}));
    for (int times = 0; times < 4; ++times)
        press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(inFile(), (QStringList{u"20260301-20260301 4 co+"_s, other})) << "never less than a day";
    press(Qt::Key_4, Qt::AltModifier);
    comment(u"ld"_s);
    EXPECT_EQ(inFile(), (QStringList{u"20260301-20260301 1 co+ld"_s, other}));
    press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(pulse().selectedBox(), u"1"_s);
    press(Qt::Key_Up, Qt::ControlModifier);
    panel.answers[qtTrId("DeleteComment")] = false;
    press(Qt::Key_Delete);
    EXPECT_EQ(inFile().size(), 2);
    panel.answers[qtTrId("DeleteComment")] = true;
    press(Qt::Key_Delete);
    EXPECT_EQ(inFile(), QStringList(other));
}

TEST_F(ChartPageTest, aDragThatCannotEndAsItShouldLosesNothing) {
    addComment(u"1"_s, u"20260303"_s, u"20260304"_s, u"mine"_s);
    openChart(u"20260301"_s, u"20260310"_s);
    const QByteArray file = dataFile();
    const auto pull = [this] {
        send(pulse(), QEvent::MouseButtonPress, strip(u"202603050000"_s));
        send(pulse(), QEvent::MouseMove, strip(u"202603071200"_s));
    };
    const auto release = [this] { send(pulse(), QEvent::MouseButtonRelease, strip(u"202603071200"_s)); };
    pull();
    EXPECT_EQ(find<QLineEdit>("commentEnd").text(), u"07/03/2026"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(find<QLineEdit>("commentEnd").text(), u"04/03/2026"_s);
    release();
    EXPECT_EQ(dataFile(), file);

    pull();
    press(Qt::Key_PageDown);
    release();
    EXPECT_EQ(dataFile(), file) << "the period is another one";
    press(Qt::Key_PageUp);

    pull();
    replaceDataFile("<ZEL><Patient>");
    release();
    EXPECT_EQ(panel.messages.size(), 1);
    EXPECT_EQ(find<QLineEdit>("commentEnd").text(), u"04/03/2026"_s);
    replaceDataFile(file);

    pull();
    CommentModel newer = *store.getCommentForCurID().front();
    newer.comment = u"newer"_s;
    ASSERT_TRUE(store.saveCommentToXML(newer));
    release();
    EXPECT_EQ(inFile(), QStringList(u"20260303-20260307 2 newer"_s));
    replaceDataFile(file);
    ASSERT_TRUE(store.loadXML());

    pull();
    QByteArray without = file;
    const auto first = without.indexOf("<Comment>");
    without.remove(first, without.lastIndexOf("</Comment>") + 10 - first);
    replaceDataFile(without);
    ASSERT_TRUE(inFile().empty());
    release();
    EXPECT_EQ(inFile(), QStringList(u"20260303-20260307 2 mine"_s));
    EXPECT_EQ(pulse().selectedBox(), u"1"_s);
}

TEST_F(ChartPageTest, anEdgeKeepsTheDaysInOrderAndThoseOutOfSight) {
    addComment(u"1"_s, u"20260301"_s, u"20260304"_s, u"mine"_s);
    openChart(u"20260303"_s, u"20260312"_s);
    drag(pulse(), strip(u"202603050000"_s), strip(u"202603061200"_s));
    EXPECT_EQ(inFile(), QStringList(u"20260301-20260306 2 mine"_s)) << "its begin is before the period";
    showDays(u"20260228"_s, u"20260305"_s);
    drag(pulse(), strip(u"202603010000"_s), strip(u"202603021200"_s));
    EXPECT_EQ(inFile(), QStringList(u"20260302-20260306 2 mine"_s)) << "its end is after the period";
    drag(pulse(), strip(u"202603020000"_s), strip(u"202603010600"_s));
    showDays(u"20260301"_s, u"20260310"_s);
    drag(pulse(), strip(u"202603010000"_s), strip(u"202603081200"_s));
    EXPECT_EQ(inFile(), QStringList(u"20260306-20260308 2 mine"_s)) << "past the other edge";
    const QByteArray file = dataFile();
    drag(pulse(), strip(u"202603071200"_s), strip(u"202603091200"_s));
    EXPECT_EQ(dataFile(), file) << "its body is not dragged";
    addComment(u"2"_s, u"20260220"_s, u"20260302"_s, u"cut"_s);
    addComment(u"3"_s, u"20260309"_s, u"20260320"_s, u"cut"_s);
    const QByteArray withCut = dataFile();
    drag(pulse(), strip(u"202603010000"_s) + QPoint(1, 0), strip(u"202603021200"_s));
    drag(pulse(), strip(u"202603110000"_s) - QPoint(2, 0), strip(u"202603091200"_s));
    EXPECT_EQ(dataFile(), withCut) << "there is no edge where the period cuts";
    drag(pulse(), strip(u"202603030000"_s) + QPoint(3, 0), {0, strip(u"202603030000"_s).y()});
    drag(pulse(), strip(u"202603090000"_s) - QPoint(3, 0), {pulse().width(), strip(u"202603030000"_s).y()});
    EXPECT_TRUE(inFile().contains(u"20260220-20260301 2 cut"_s)) << qPrintable(inFile().join(u'|'));
    EXPECT_TRUE(inFile().contains(u"20260310-20260320 2 cut"_s)) << qPrintable(inFile().join(u'|'));
}

TEST_F(ChartPageTest, aBoxWithoutANumberIsDraggedLikeOthers) {
    addComment(u"1"_s, u"20260302"_s, u"20260302"_s, u"first"_s);
    addComment(u"2"_s, u"20260306"_s, u"20260306"_s, u"second"_s);
    replaceDataFile(
        dataFile().replace("<CommentID>1<", "<CommentID><").replace("<CommentID>2<", "<CommentID><"));
    ASSERT_TRUE(store.loadXML());
    openChart(u"20260301"_s, u"20260310"_s);
    drag(pulse(), strip(u"202603070000"_s), strip(u"202603081200"_s));
    EXPECT_EQ(inFile(), (QStringList{u"20260302-20260302 2 first"_s, u"20260306-20260308 2 second"_s}));
}

TEST_F(ChartPageTest, theEdgeThatIsNotMovedKeepsItsTime) {
    addComment(u"1"_s, u"20260303"_s, u"20260305"_s, u"mine"_s);
    CommentModel timed = *store.getCommentForCurID().front();
    timed.beginDate = at(u"202603030830"_s);
    timed.endDate = at(u"202603051745"_s);
    ASSERT_TRUE(store.saveCommentToXML(timed));
    openChart(u"20260301"_s, u"20260310"_s);
    QTest::mouseClick(&pulse(), Qt::LeftButton, {}, strip(u"202603041200"_s));
    const struct {
        const char* what;
        std::function<void()> move;
        QString times;
    } steps[]{{"a little", [&] { drag(pulse(), strip(u"202603060000"_s), strip(u"202603052100"_s)); },
               u"03 08:30:00-05 17:45:00"_s},
              {"the end", [&] { drag(pulse(), strip(u"202603060000"_s), strip(u"202603061200"_s)); },
               u"03 08:30:00-06 23:59:59"_s},
              {"the end by a key", [this] { press(Qt::Key_Left, Qt::ShiftModifier); },
               u"03 08:30:00-05 23:59:59"_s},
              {"the begin by a key", [this] { press(Qt::Key_Left, Qt::ShiftModifier | Qt::AltModifier); },
               u"02 00:00:00-05 23:59:59"_s},
              {"the begin", [&] { drag(pulse(), strip(u"202603020000"_s), strip(u"202603041200"_s)); },
               u"04 00:00:00-05 23:59:59"_s},
              {"the begin past the end",
               [&] { drag(pulse(), strip(u"202603040000"_s), strip(u"202603081200"_s)); },
               u"05 00:00:00-08 23:59:59"_s}};
    for (const auto& step : steps) {
        step.move();
        const auto& now = *store.getCommentForCurID().front();
        EXPECT_EQ(DateToStr(now.beginDate, u"dd HH:mm:ss"_s) + u'-'
                      + DateToStr(now.endDate, u"dd HH:mm:ss"_s),
                  step.times)
            << step.what;
        pulse().setFocus();
    }
}

TEST_F(ChartPageTest, aDayThatIsMissingIsTheOtherUntilAnEdgeIsMoved) {
    addComment(u"1"_s, u"20260305"_s, u"20260305"_s, u"mine"_s);
    openChart(u"20260301"_s, u"20260310"_s);
    const CommentModel whole = *store.getCommentForCurID().front();
    const QPoint left = strip(u"202603050000"_s), right = strip(u"202603060000"_s);
    const struct {
        const char* what;
        std::function<void()> move;
        QStringList days; ///< none: the file stays as it is
    } steps[]{
        {"the end a little", [&] { drag(pulse(), right, right - QPoint(2, 0)); }, {}},
        {"the begin a little", [&] { drag(pulse(), left, left + QPoint(2, 0)); }, {}},
        {"the end", [&] { drag(pulse(), right, strip(u"202603071200"_s)); }, {u"20260305-20260307 2 mine"_s}},
        {"the begin",
         [&] { drag(pulse(), left, strip(u"202603031200"_s)); },
         {u"20260303-20260305 2 mine"_s}},
        {"the end by a key",
         [this] { press(Qt::Key_Right, Qt::ShiftModifier); },
         {u"20260305-20260306 2 mine"_s}},
        {"the begin by a key",
         [this] { press(Qt::Key_Left, Qt::ShiftModifier | Qt::AltModifier); },
         {u"20260304-20260305 2 mine"_s}}};
    for (const bool begin : {true, false})
        for (const auto& step : steps) {
            CommentModel half = whole;
            (begin ? half.beginDate : half.endDate) = getNilDate();
            ASSERT_TRUE(store.saveCommentToXML(half));
            pulse().setFocus();
            press(Qt::Key_Down, Qt::ControlModifier);
            ASSERT_FALSE(pulse().selectedBox().isNull()) << step.what;
            const QByteArray file = dataFile();
            step.move();
            if (step.days.isEmpty())
                EXPECT_EQ(dataFile(), file) << step.what;
            else
                EXPECT_EQ(inFile(), step.days) << step.what;
        }
}

TEST_F(ChartPageTest, thePointerShowsWhichEdgeCanBePulled) {
    addComment(u"1"_s, u"20260220"_s, u"20260305"_s, u"cut"_s);
    openChart(u"20260301"_s, u"20260310"_s);
    const QPoint edge = strip(u"202603060000"_s);
    for (const auto& [x, shape] : {std::pair(-6, Qt::PointingHandCursor),
                                   {-4, Qt::SizeHorCursor},
                                   {3, Qt::SizeHorCursor},
                                   {6, Qt::ArrowCursor}}) {
        send(pulse(), QEvent::MouseMove, edge + QPoint(x, 0));
        EXPECT_EQ(pulse().cursor().shape(), shape) << x;
    }
    send(pulse(), QEvent::MouseMove, strip(u"202603010000"_s) + QPoint(1, 0));
    EXPECT_EQ(pulse().cursor().shape(), Qt::PointingHandCursor) << "the comment goes on before the period";
    const QByteArray file = dataFile();
    send(pulse(), QEvent::MouseButtonPress, edge);
    send(pulse(), QEvent::MouseMove, strip(u"202603071200"_s));
    const QPoint beyond = strip(u"202603081200"_s);
    QMouseEvent away(QEvent::MouseMove, beyond, pulse().mapToGlobal(beyond), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&pulse(), &away);
    send(pulse(), QEvent::MouseButtonRelease, strip(u"202603071200"_s));
    EXPECT_EQ(dataFile(), file) << "the button was released over a message";
}

TEST_F(ChartPageTest, commentsAreDroppedIntoTheStripOfAShortPeriodOnly) {
    openChart(u"20260301"_s, u"20260416"_s); // 46 days from the first to the last
    auto& icon = page("CommentImageBtn");
    drag(icon, {5, 5}, {5, 200});
    drag(icon, {5, 5}, {6, 6});
    EXPECT_TRUE(inFile().empty()) << "not in the strip";
    send(icon, QEvent::MouseButtonPress, {5, 5});
    send(icon, QEvent::MouseMove, icon.mapFromGlobal(pulse().mapToGlobal(strip(u"202603101200"_s))));
    press(Qt::Key_Escape);
    send(icon, QEvent::MouseButtonRelease, icon.mapFromGlobal(pulse().mapToGlobal(strip(u"202603101200"_s))));
    EXPECT_TRUE(inFile().empty()) << "given up";
    dropIcon(u"202603101200"_s);
    EXPECT_EQ(inFile().size(), 1);
    showDays(u"20260301"_s, u"20260417"_s);
    dropIcon(u"202603121200"_s);
    pulse().setFocus();
    press(Qt::Key_Insert);
    EXPECT_EQ(inFile().size(), 1);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace zel
