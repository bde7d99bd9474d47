// The whole program, started a second time, on a session bus of the test's own.
#include "support/EndsWithTest.h"
#include "support/PrivateBus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QThread>

#include <algorithm>
#include <functional>
#include <memory>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestStart = 60'000; // milliseconds; only a fault takes so long

class SecondWindowTest : public testing::Test {
protected:
    ~SecondWindowTest() override { QDBusConnection::disconnectFromBus(onBus.name()); }
    using Program = std::unique_ptr<QProcess>;

    [[nodiscard]] Program start(const QString& homeFolder) const {
        auto program = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, homeFolder);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address);
        program->setProcessEnvironment(environment);
        endWithTest(*program);
        program->start(QCoreApplication::applicationDirPath() + u"/blocked_zel"_s,
                       {u"--simulated-monitor"_s});
        EXPECT_TRUE(program->waitForStarted(longestStart));
        return program;
    }

    /// \return how many windows of data files there are
    [[nodiscard]] qsizetype windows() const {
        const QStringList names = onBus.interface()->registeredServiceNames();
        return std::ranges::count_if(names, [](const QString& name) { return name.startsWith("zel."_L1); });
    }

    static void waitFor(const std::function<bool()>& condition) {
        int left = longestStart;
        for (; left > 0 && !condition(); left -= 20)
            QThread::msleep(20);
        EXPECT_GT(left, 0);
    }

    static bool hasEnded(QProcess& program) { return program.waitForFinished(1); }

    QTemporaryDir folder;
    PrivateBus bus;
    QDBusConnection onBus = QDBusConnection::connectToBus(bus.address, u"test"_s);
};

} // namespace

TEST_F(SecondWindowTest, OfSeveralStartsOneWindowIsLeft) {
    const QString home = folder.filePath(u"home"_s);
    ASSERT_TRUE(QDir{}.mkpath(home) && QFile::link(home, folder.filePath(u"link"_s)));
    Program one = start(home);
    Program other = start(folder.filePath(u"link"_s));
    waitFor([&] { return hasEnded(*one) || hasEnded(*other); });
    if (one->state() == QProcess::NotRunning) one.swap(other);
    EXPECT_EQ(other->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(other->exitCode(), 0);
    EXPECT_TRUE(other->readAllStandardError().contains("brought to the front"));
    EXPECT_FALSE(hasEnded(*one));
    EXPECT_EQ(windows(), 1);

    const Program elsewhere = start(folder.filePath(u"elsewhere"_s));
    waitFor([&] { return windows() == 2; });

    one->kill(); // it is not in the way of the next one
    ASSERT_TRUE(one->waitForFinished(longestStart));
    waitFor([&] { return windows() == 1; });
    const Program next = start(home);
    waitFor([&] { return windows() == 2; });
    for (QProcess* running : {elsewhere.get(), next.get()}) {
        running->terminate();
        EXPECT_TRUE(running->waitForFinished(longestStart));
        EXPECT_EQ(running->exitCode(), 0);
    }
    EXPECT_EQ(windows(), 0);
}

} // namespace zel
