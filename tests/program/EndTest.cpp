// The whole program in a process of its own, with a device that blocks (BlockedDevice.cpp): every way to end
// it from outside ends it. Without the limit of two seconds it would wait for the device for ever.
#include "support/EndsWithTest.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60'000; // milliseconds; only a fault takes so long

struct Ending {
    const char* what;
    QStringList arguments;
    int signal;
    QProcess::ExitStatus how;
    int status;
};

class EndTest : public testing::Test {
protected:
    EndTest() {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home.path());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        program.setProcessEnvironment(environment);
        endWithTest(program);
        program.setProgram(QCoreApplication::applicationDirPath() + u"/blocked_zel"_s);
    }

    ~EndTest() override {
        if (program.state() == QProcess::NotRunning) return;
        program.kill();
        program.waitForFinished();
    }

    [[nodiscard]] bool isBlocked() {
        QByteArray told;
        while (!told.contains("blocked") && program.waitForReadyRead(patience))
            told += program.readAllStandardError();
        return told.contains("blocked");
    }

    QTemporaryDir home;
    QProcess program;
};

} // namespace

TEST_F(EndTest, ABlockedDeviceHoldsUpNoEnd) {
    program.setReadChannel(QProcess::StandardError);
    const Ending endings[] = {
        {"window, terminated", {}, SIGTERM, QProcess::NormalExit, 0},
        {"window, interrupted", {}, SIGINT, QProcess::NormalExit, 0},
        {"window, logged out", {}, SIGHUP, QProcess::NormalExit, 0},
        {"command, interrupted", {u"monitor"_s}, SIGINT, QProcess::CrashExit, SIGINT},
        {"command, terminated", {u"monitor"_s}, SIGTERM, QProcess::CrashExit, SIGTERM},
    };
    for (const auto& [what, arguments, signal, how, status] : endings) {
        program.setArguments(arguments);
        program.start();
        ASSERT_TRUE(program.waitForStarted(patience)) << what;
        ASSERT_TRUE(isBlocked()) << what;
        ASSERT_EQ(kill(static_cast<pid_t>(program.processId()), signal), 0) << what;
        ASSERT_TRUE(program.waitForFinished(patience)) << what;
        EXPECT_EQ(program.exitStatus(), how) << what;
        EXPECT_EQ(program.exitCode(), status) << what;
    }
}

TEST_F(EndTest, ACrashWouldLeaveNoMemoryOnTheDisk) {
    program.setReadChannel(QProcess::StandardError);
    for (const QStringList& arguments : {QStringList{}, QStringList{u"monitor"_s}}) {
        program.setArguments(arguments);
        program.start();
        ASSERT_TRUE(program.waitForStarted(patience) && isBlocked());
        const auto told = [this](const char* what) {
            QFile file(u"/proc/%1/%2"_s.arg(program.processId()).arg(QLatin1StringView(what)));
            return file.open(QIODevice::ReadOnly) ? file.readAll().simplified() : QByteArray();
        };
        EXPECT_TRUE(told("limits").contains("Max core file size 0 0 bytes")) << arguments.size();
        EXPECT_EQ(told("coredump_filter"), "00000000");
        program.kill();
        ASSERT_TRUE(program.waitForFinished(patience));
    }
}

} // namespace zel
