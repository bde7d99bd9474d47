#include "app/shell/FirstWindow.h"

#include "AppTest.h"
#include "support/PrivateBus.h"

#include <QDialog>
#include <QDir>
#include <QSignalSpy>
#include <QThread>

#include <atomic>

namespace zel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto token = "activation-token"_L1;

class FirstWindowTest : public testing::Test {
protected:
    FirstWindowTest() { QDir{}.mkpath(home.filePath(u"a"_s)); }

    ~FirstWindowTest() override {
        for (; programs > 0; --programs)
            QDBusConnection::disconnectFromBus(u"program %1"_s.arg(programs));
    }

    /// As of a program of its own.
    [[nodiscard]] QDBusConnection connection() {
        return QDBusConnection::connectToBus(bus.address, u"program %1"_s.arg(++programs));
    }
    /// Another program starts for the file while this one handles its events, or hangs.
    FirstWindow::Outcome startAnother(const QString& file, bool hangs = false) {
        FirstWindow::Outcome outcome{};
        std::atomic<bool> isDone = false;
        const std::unique_ptr<QThread> program(QThread::create([&] {
            FirstWindow window(connection(), home.filePath(file));
            outcome = window.claim({{token, u"allowed"_s}}, hangs ? 50ms : 60s);
            isDone = true;
        }));
        program->start();
        while (!hangs && !isDone)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        program->wait();
        return outcome;
    }

    QTemporaryDir home;
    PrivateBus bus;
    std::atomic<int> programs = 0;
};

} // namespace

using Outcome = FirstWindow::Outcome;

TEST_F(FirstWindowTest, IsCalledByTheNextOneForTheSameFileHoweverItIsReached) {
    ASSERT_TRUE(QFile::link(home.filePath(u"a"_s), home.filePath(u"linked"_s)));
    FirstWindow first(connection(), home.filePath(u"a/ZEL.xml"_s));
    ASSERT_EQ(first.claim({}, 60s), Outcome::first);
    const QSignalSpy wanted(&first, &FirstWindow::wanted);
    EXPECT_EQ(startAnother(u"a/ZEL.xml"_s), Outcome::shown);
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "allowed") << "else the desktop keeps it back";
    EXPECT_EQ(startAnother(u"linked/ZEL.xml"_s), Outcome::shown) << "by a link, before the file is there";
    ASSERT_TRUE(QFile(home.filePath(u"a/ZEL.xml"_s)).open(QIODevice::WriteOnly));
    ASSERT_TRUE(QFile::link(home.filePath(u"a/ZEL.xml"_s), home.filePath(u"other.xml"_s)));
    EXPECT_EQ(startAnother(u"other.xml"_s), Outcome::shown) << "by a link to the file itself";
    EXPECT_EQ(wanted.size(), 3);
    EXPECT_EQ(startAnother(u"b/ZEL.xml"_s), Outcome::first) << "another file has a window of its own";
    EXPECT_EQ(wanted.size(), 3);
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

TEST_F(FirstWindowTest, HoldsNobodyUpThatHangsOrHasEnded) {
    {
        FirstWindow first(connection(), home.filePath(u"ZEL.xml"_s));
        ASSERT_EQ(first.claim({}, 60s), Outcome::first);
        EXPECT_EQ(startAnother(u"ZEL.xml"_s, true), Outcome::silent);
    }
    EXPECT_EQ(startAnother(u"ZEL.xml"_s), Outcome::first);
    FirstWindow lonely(QDBusConnection{QString{}}, home.filePath(u"ZEL.xml"_s));
    EXPECT_EQ(lonely.claim({}, 60s), Outcome::alone);
}

TEST_F(AppTest, AnotherStartBringsTheWindowToTheFrontWithItsDialog) {
    start();
    app->mainWndow().showMinimized();
    app->showSetting();
    auto& dialog = find<QDialog>("SettingController");
    dialog.showMinimized();
    QWidget elsewhere;
    elsewhere.show();
    app->bringToFront();
    EXPECT_FALSE(app->mainWndow().isMinimized());
    EXPECT_FALSE(dialog.isMinimized());
    waitFor([&] { return dialog.isActiveWindow(); });
    dialog.reject();
    elsewhere.activateWindow();
    waitFor([&] { return elsewhere.isActiveWindow(); });
    app->bringToFront();
    waitFor([&] { return app->mainWndow().isActiveWindow(); });
}

TEST_F(AppTest, AnotherStartBeforeTheWindowIsThereBringsTheQuestionToTheFrontAndThenTheWindow) {
    start();
    QWidget& window = app->mainWndow();
    window.hide();
    QWidget elsewhere;
    elsewhere.show();
    QDialog question;
    question.open();
    question.showMinimized();
    app->bringToFront();
    EXPECT_FALSE(question.isMinimized());
    EXPECT_FALSE(window.isVisible()) << "not before what is asked is answered";
    question.reject();
    elsewhere.activateWindow();
    waitFor([&] { return elsewhere.isActiveWindow(); });
    window.setWindowState(Qt::WindowMinimized);
    app->applicationDidFinishLaunching(loaded);
    EXPECT_FALSE(window.isMinimized());
}

} // namespace zel
