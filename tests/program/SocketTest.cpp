// The whole program opens no socket but the display's, the session bus's and the print system's, whatever is
// done with it. SocketWitness.cpp sees each that is opened, and drives the window.
#include "support/EndsWithTest.h"
#include "support/PrivateBus.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestRun = 120'000; // milliseconds; only a fault takes so long

class SocketTest : public testing::Test {
protected:
    SocketTest() {
        environment.insert(u"HOME"_s, folder.path());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address);
        environment.insert(u"CUPS_SERVER"_s, printSystem);
        environment.insert(u"ZEL_SOCKETS"_s, folder.filePath(u"sockets"_s));
        environment.insert(u"LD_PRELOAD"_s, here + u"/libsocket_witness.so"_s);
    }

    /// \return what was opened, and which of the window's controls were visited
    QStringList run(const QStringList& arguments) { return run(here + u"/../../zel"_s, arguments); }
    QStringList run(const QString& executable, const QStringList& arguments) {
        QProcess program;
        program.setProcessEnvironment(environment);
        endWithTest(program);
        program.start(executable, arguments);
        EXPECT_TRUE(program.waitForFinished(longestRun)) << qPrintable(arguments.join(u' '));
        said = program.readAllStandardError();
        status = program.exitCode();
        QFile sockets(folder.filePath(u"sockets"_s));
        const bool any = sockets.open(QIODevice::ReadOnly);
        QStringList lines = QString::fromUtf8(any ? sockets.readAll() : "").split(u'\n', Qt::SkipEmptyParts);
        sockets.remove();
        return lines;
    }

    /// The socket of a service that nobody has allowed.
    [[nodiscard]] QStringList forbidden(const QStringList& opened) const {
        QStringList rest;
        std::ranges::copy_if(opened, std::back_inserter(rest), [this](const QString& line) {
            return !line.startsWith("visit "_L1) && !line.startsWith("dialog "_L1)
                   && line != "syslog"_L1 // the C library's own, to this machine's
                   && !line.startsWith("connect unix "_L1 + bus.folderPath()) // the session bus
                   && line != "connect unix "_L1 + printSystem                // the print system
                   // The kernel's news of devices plugged in and out, which the HID library listens to:
                   // family netlink, protocol of kernel objects. It reaches no other machine, and nobody on
                   // this one.
                   && line != "socket family 16 protocol 15"_L1 && line != "bind family 16"_L1;
        });
        return rest;
    }

    /// A patient with a month of readings, so that the window has all of its pages.
    void fillTheHome() {
        run({u"patients"_s, u"--add"_s, u"--id=DEMO1"_s, u"--family-name=D"_s, u"--given-names=D"_s});
        ASSERT_EQ(status, 0) << said.constData();
        run({u"download"_s, u"--patient=DEMO1"_s, u"--simulated-monitor"_s});
        ASSERT_EQ(status, 0) << said.constData();
    }

    QString here = QCoreApplication::applicationDirPath();
    QTemporaryDir folder;
    PrivateBus bus;
    QString printSystem = folder.filePath(u"cups.sock"_s);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QByteArray said;
    int status = 0;
};

} // namespace

TEST_F(SocketTest, NoneIsOpenedByACommand) {
    const auto at = [this](const char* name) { return folder.filePath(QLatin1String(name)); };
    const QString monitor = u"--simulated-monitor"_s;
    const QList<QStringList> jobs{
        {u"--help"_s},
        {u"patients"_s, u"--add"_s, u"--id"_s, u"DEMO1"_s, u"--family-name"_s, u"D"_s, u"--given-names"_s,
         u"D"_s},
        {u"download"_s, u"--patient"_s, u"DEMO1"_s, monitor},
        {u"readings"_s, u"--patient"_s, u"DEMO1"_s},
        {u"statistics"_s, u"--patient"_s, u"DEMO1"_s},
        {u"report"_s, u"--patient"_s, u"DEMO1"_s, u"--section"_s, u"graph,table"_s, u"--output"_s,
         at("report.pdf")},
        {u"export-xml"_s, folder.path(), u"--force"_s},
        {u"export-csv"_s, u"--patient"_s, u"DEMO1"_s, folder.path()},
        {u"backup"_s, u"create"_s},
        {u"settings"_s},
    };
    for (const QStringList& job : jobs) {
        EXPECT_EQ(forbidden(run(job)).join(u'\n').toStdString(), "") << qPrintable(job.join(u' '));
        EXPECT_EQ(status, 0) << qPrintable(job.join(u' ')) << said.constData();
    }
    EXPECT_EQ(forbidden(run({u"monitor"_s})).join(u'\n').toStdString(), "") << "with the real HID library";
}

TEST_F(SocketTest, NoneIsOpenedByTheWindow) {
    fillTheHome();
    environment.insert(u"ZEL_VISIT"_s, u"1"_s);
    const QStringList opened = run({});
    EXPECT_EQ(status, 0) << said.constData();
    EXPECT_EQ(forbidden(opened).join(u'\n').toStdString(), "") << "and each control is within reach";
    EXPECT_EQ(opened.filter(u"visit "_s).size(), 17);
    EXPECT_TRUE(opened.contains(u"visit closeApplicaiton"_s)) << "all has been gone through";
    for (const char* dialog :
         {"PrintController", "BackupDialog", "SettingController", "QFileDialog", "ImportFileDialog"})
        EXPECT_TRUE(opened.contains(u"dialog "_s + QLatin1StringView(dialog))) << dialog << " was open";
    EXPECT_TRUE(opened.contains(u"connect unix "_s + printSystem)) << "it was asked for its printers";
    EXPECT_FALSE(opened.filter(bus.folderPath()).isEmpty()) << "the witness sees what is opened";
}

TEST_F(SocketTest, OneThatWasPlantedIsFound) {
    const std::pair<const char*, const char*> plants[] = {
        {"s.socket(s.AF_INET)", "socket family 2 protocol 0"},
        {"s.socket(s.AF_INET6, s.SOCK_DGRAM)", "socket family 10 protocol 0"},
        {"s.getaddrinfo('127.0.0.1', 80)", "getaddrinfo 127.0.0.1"},
        {"s.socket(s.AF_UNIX).connect('/nobody')", "connect unix /nobody"},
        {"s.socket(s.AF_UNIX).connect('\\0nobody')", "connect unix @nobody"},
        {"s.socket(s.AF_UNIX).bind('\\0nobody')", "bind unix @nobody"},
        {"s.socket(s.AF_UNIX, s.SOCK_DGRAM).sendto(b'a', '/nobody')", "sendto unix /nobody"},
        {"s.socket(s.AF_UNIX, s.SOCK_DGRAM).sendmsg([b'a'], [], 0, '/nobody')", "sendmsg unix /nobody"},
    };
    for (const auto& [plant, line] : plants)
        EXPECT_EQ(
            forbidden(run(u"python3"_s, {u"-Sc"_s, u"import socket as s; "_s + QLatin1StringView(plant)}))
                .join(u'\n')
                .toStdString(),
            line)
            << plant;
}

} // namespace zel
