// Starting as at the first start: what was remembered of the window is forgotten, by whoever asks for it.
#include "store/ViewMemory.h"
#include "support/EndsWithTest.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestLife = 60'000; // milliseconds; only a fault takes so long

class ResetViewTest : public testing::Test {
protected:
    ResetViewTest() {
        qunsetenv("XDG_CONFIG_HOME"); // the window is remembered below it, else in the home
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home.path());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
        program.setProcessEnvironment(environment);
        endWithTest(program);
    }
    ~ResetViewTest() override {
        program.kill();
        program.waitForFinished();
    }

    /// From its start until it has its data file, and its end.
    void run(const QStringList& arguments) {
        program.start(QCoreApplication::applicationDirPath() + u"/blocked_zel"_s, arguments);
        for (int left = longestLife; left > 0 && !QFile::exists(data); left -= 20)
            ASSERT_FALSE(program.waitForFinished(20)) << program.readAllStandardError().constData();
        program.terminate();
        ASSERT_TRUE(program.waitForFinished(longestLife));
        EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().constData();
    }
    /// What a newer version keeps, this one leaves alone, unless it forgets all.
    [[nodiscard]] bool isRemembered() const { return ViewMemory(file).value(mark) == mark; }

    QTemporaryDir home;
    const QString mark = u"keptByANewerVersion"_s;
    const QString data = home.path() + u"/Library/Application Support/ZELMac/ZEL.xml"_s;
    const QString file = viewMemoryFile(home.path(), data);
    QProcess program;
};

} // namespace

TEST_F(ResetViewTest, OnlyTheOptionForgetsTheWindow) {
    ViewMemory memory(file);
    memory.set(mark, mark);
    ASSERT_TRUE(memory.save());
    run({u"--simulated-monitor"_s});
    EXPECT_TRUE(isRemembered());
    ASSERT_TRUE(QFile::remove(data)); // the next start makes it anew
    run({u"--simulated-monitor"_s, u"--reset-view"_s});
    EXPECT_FALSE(isRemembered());
}

} // namespace zel
