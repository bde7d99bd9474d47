#include "AppTest.h"
#include "app/shell/SplashWindow.h"
#include "app/shell/TabButton.h"
#include "store/LanguageChoice.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QIntValidator>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QStandardPaths>

#include <functional>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class WindowTest : public AppTest {
protected:
    WindowTest() { addPatient(u"P1"_s, u"Adams"_s); }
    std::vector<bool> shownTabs() {
        return {find<TabButton>("patientBtn").isShown(), find<TabButton>("graphBtn").isShown(),
                find<TabButton>("tableBtn").isShown()};
    }
};

/// What the windows say in the log.
class LogLines {
public:
    LogLines() : previous(qInstallMessageHandler(collect)) { lines.clear(); }
    ~LogLines() { qInstallMessageHandler(previous); }
    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;
    static std::string take() { return std::exchange(lines, {}).join(u'\n').toStdString(); }

private:
    static void collect(QtMsgType, const QMessageLogContext& context, const QString& text) {
        if (qstrcmp(context.category, "zel.app") == 0) lines += text;
    }
    inline static QStringList lines;
    QtMessageHandler previous;
};

} // namespace

TEST_F(WindowTest, startsInOrderAndAsksTheMonitorNothingBeforeTheSplashHasGone) {
    const LogLines log;
    launch({.polling = std::chrono::milliseconds(0), .splash = std::chrono::milliseconds(50)});
    int openedUnderSplash = -1;
    QObject::connect(&find<SplashWindow>("splash"), &SplashWindow::splashClosed, app.get(),
                     [&] { openedUnderSplash = port->opened; });
    waitFor([this] { return status.state().isConnected; });
    EXPECT_EQ(log.take(), "monitorBPM 2 .... 0\nshow slash\nclose slash");
    EXPECT_EQ(openedUnderSplash, 0);
    EXPECT_EQ(app->mainWndow().windowTitle(), qtTrId("AP_Title"));
    EXPECT_EQ(app->mainWndow().minimumSize(), QSize(640, 480));
}

TEST_F(WindowTest, theFirstKeyOrClickTakesTheSplashAwayAndIsNotLost) {
    struct Case {
        std::function<void()> act;
        std::function<bool()> hasArrived;
    };
    const auto surnameIs = [this](const QString& text) {
        return find<QLineEdit>("FamilyName").text() == text;
    };
    const Case cases[]{
        {[this] {
             page("FamilyName").setFocus();
             press(Qt::Key_X);
         },
         [&] { return surnameIs(u"xAdams"_s); }},
        {[this] { press(Qt::Key_3, Qt::ControlModifier); },
         [this] { return page("TableViewController").isVisible(); }},
        // As the display sends it: to the window, at a place that the card covers.
        {[this] {
             auto& under = page("FamilyName");
             find<QWidget>("splash").setGeometry(app->mainWndow().rect());
             QTest::mouseClick(app->mainWndow().windowHandle(), Qt::LeftButton, {},
                               under.mapTo(&app->mainWndow(), under.rect().center()));
         },
         [this] { return page("FamilyName").hasFocus(); }},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(&one - cases);
        launch({.polling = std::chrono::hours(1), .splash = std::chrono::hours(1)});
        app->mainWndow().activateWindow();
        waitFor([this] { return app->mainWndow().isActiveWindow(); });
        ASSERT_TRUE(page("splash").isVisible());
        const QSignalSpy closed(&find<SplashWindow>("splash"), &SplashWindow::splashClosed);
        one.act();
        EXPECT_FALSE(page("splash").isVisible());
        EXPECT_TRUE(one.hasArrived());
        EXPECT_EQ(closed.size(), 1);
    }
}

TEST_F(WindowTest, saysInItsLogWhatTheUserDoes) {
    struct Step {
        std::function<void()> action;
        std::string lines;
    };
    qputenv("XDG_CACHE_HOME", QFile::encodeName(home.path()));
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    printers.known = {u"Office"_s};
    startConnected();
    const LogLines log;
    const Step steps[]{
        {[this] { download(); }, "close progress dialog"},
        {[this] { click("CommentImageBtn"); }, "mouse down"},
        {[this] {
             press(Qt::Key_Space); // adds a comment
             page("GraphViewController").findChild<QWidget*>(u"commentText"_s)->setFocus();
             press(Qt::Key_Tab);
         },
         "comment textDidEndEditing"},
        {[this] { press(Qt::Key_P, Qt::ControlModifier); },
         "selected item after re-fill items ....Blood-pressure and pulse chart"},
        {[this] { find<QComboBox>("printOption").setCurrentIndex(2); },
         "ComboBox Value Changed to --> Distribution of the readings"},
        {[this] { click("printAndClose"); }, "print ....Distribution of the readings"},
        {[this] {
             store.getSetting().timeFormat = u"25-hours"_s;
             click("settingBtn");
             click("cancelButton");
         },
         "awakeFromNib of setting\nsetSelectItem can't find 25-hours"},
        {[this] { press(Qt::Key_F1, Qt::ShiftModifier); }, "showHelp " + cache.toStdString() + "/help.pdf"},
    };
    for (const Step& step : steps) {
        step.action();
        EXPECT_EQ(log.take(), step.lines);
    }
}

TEST_F(WindowTest, switchesPagesByMouseAndKeyboard) {
    start();
    EXPECT_EQ(shownTabs(), (std::vector{true, false, false}));
    EXPECT_TRUE(page("sideColumn").isVisible());
    click("graphBtn");
    EXPECT_EQ(app->selectedTab(), 1);
    EXPECT_TRUE(page("GraphViewController").isVisible());
    EXPECT_EQ(shownTabs(), (std::vector{false, true, false}));
    EXPECT_FALSE(page("sideColumn").isVisible());
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(text("lblOutcome").isEmpty()) << "no patient is there to be saved";
    press(Qt::Key_3, Qt::ControlModifier);
    EXPECT_TRUE(page("TableViewController").isVisible());
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_TRUE(page("PatientViewController").isVisible());
    EXPECT_TRUE(page("sideColumn").isVisible());
}

TEST_F(WindowTest, staysOnAPageWhoseFieldDoesNotValidate) {
    start();
    QLineEdit field(&page("PatientViewController"));
    field.setValidator(new QIntValidator(1, 9, &field));
    field.setText(u"x"_s);
    field.show();
    click("tableBtn");
    EXPECT_TRUE(page("PatientViewController").isVisible());
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(app->selectedTab(), 2) << "set before the page had its say";
    field.setText(u"7"_s);
    click("tableBtn");
    EXPECT_TRUE(page("TableViewController").isVisible());
}

TEST_F(WindowTest, quitsByCloseButtonAndKey) {
    start();
    const QSignalSpy closed(app.get(), &AppController::closed);
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(closed.size(), 1);
    app->mainWndow().close();
    EXPECT_EQ(closed.size(), 2);
    EXPECT_TRUE(app->mainWndow().isVisible()) << "whoever quits the program closes it";
}

TEST_F(WindowTest, everyControlSaysWhatItIs) {
    start();
    expectNamed(app->mainWndow());
}

TEST_F(WindowTest, tabsHaveTheirImages) {
    start();
    for (const char* name : {"patientBtn", "graphBtn", "tableBtn"}) {
        auto& tab = find<TabButton>(name);
        for (const bool enabled : {false, true}) {
            tab.setEnabled(enabled);
            EXPECT_TRUE(QFile::exists(u":/icons/%1.svg"_s.arg(tab.imageName())))
                << qPrintable(tab.imageName());
        }
    }
}

TEST_F(WindowTest, withABrokenDataFileStartsEmptyAndSaysWhatIsWrong) {
    QDir{store.backups().folder()}.removeRecursively();
    const QByteArray whole = dataFile();
    replaceDataFile("<ZEL><Patient>");
    loaded = store.loadXML();
    startsPlugged = false;
    bool isSplashed = false;
    panel.whenShown = [&] { isSplashed = app->mainWndow().findChild<QWidget*>(u"splash"_s) != nullptr; };
    start();
    EXPECT_FALSE(isSplashed) << "the message comes first";
    ASSERT_EQ(panel.messages.size(), 1);
    EXPECT_EQ(panel.messages.first(), qtTrId("dataFileUnreadable") + u": "_s + describe(loaded.error()));
    EXPECT_TRUE(page("noPatients").isVisible());
    EXPECT_FALSE(page("firstSteps").isVisible()) << "an empty roster is not pretended";
    EXPECT_FALSE(page("graphBtn").isEnabled() || page("tableBtn").isEnabled());
    EXPECT_EQ(dataFile(), "<ZEL><Patient>");
    click("btnNewPatient");
    EXPECT_EQ(panel.messages.size(), 2);
    EXPECT_TRUE(page("noPatients").isVisible()) << "none is typed that could not be saved";
    replaceDataFile(whole);
    click("btnNewPatient");
    EXPECT_EQ(panel.messages.size(), 2);
    EXPECT_TRUE(page("FamilyName").isVisible()) << "the file has been mended";
    EXPECT_TRUE(page("tableBtn").isEnabled());
}

TEST_F(WindowTest, aLanguageThatCannotBeReadIsTold) {
    ASSERT_TRUE(QDir().mkpath(languageFile(home.path())));
    startsPlugged = false;
    start();
    ASSERT_EQ(panel.messages.size(), 1);
    EXPECT_TRUE(panel.messages.first().contains(languageFile(home.path())));
    EXPECT_TRUE(app->mainWndow().isVisible());
}

TEST_F(WindowTest, aBrokenDataFileGivesWayToItsNewestCopyIfTheUserSaysSo) {
    addPatient(u"P1"_s, u"Adams"_s);
    ASSERT_TRUE(store.backups().create());
    const QByteArray whole = dataFile();
    const QString title = qtTrId("dataFileUnreadable");
    replaceDataFile("<ZEL><Patient>");
    loaded = store.loadXML();
    startsPlugged = false;
    panel.answers[title] = false;
    start();
    EXPECT_EQ(panel.questions, QStringList(title));
    EXPECT_TRUE(panel.asked.contains(qtTrId("BackupPatients", 1)));
    EXPECT_EQ(dataFile(), "<ZEL><Patient>");
    panel.answers[title] = true;
    start();
    EXPECT_EQ(dataFile(), whole);
    EXPECT_TRUE(page("FamilyName").isVisible());
    EXPECT_TRUE(text("lblOutcome").contains(u"-damaged.xml"_s));
}

TEST_F(WindowTest, aCopyThatCannotBeMadeIsToldOnceADay) {
    addPatient(u"P1"_s, u"Adams"_s);
    startsPlugged = false;
    start();
    const auto save = [this] {
        type("PatientNotes", find<QPlainTextEdit>("PatientNotes").toPlainText() + u'x');
        press(Qt::Key_S, Qt::ControlModifier);
    };
    QDir folder{store.backups().folder()};
    ASSERT_TRUE(folder.removeRecursively());
    QFile inItsPlace{folder.path()};
    ASSERT_TRUE(inItsPlace.open(QIODevice::WriteOnly));
    save();
    save();
    EXPECT_EQ(panel.messages.size(), 1);
    clock.advance(std::chrono::hours{24});
    save();
    EXPECT_EQ(panel.messages.size(), 2);
}

TEST_F(WindowTest, quitDuringAMessageAtStartShowsNothingMore) {
    QDir{store.backups().folder()}.removeRecursively();
    replaceDataFile("<ZEL>");
    loaded = store.loadXML();
    panel.whenShown = [this] { app->closeApplicaiton(); };
    launch();
    EXPECT_EQ(app->mainWndow().findChild<QWidget*>(u"splash"_s), nullptr);
}

} // namespace zel
