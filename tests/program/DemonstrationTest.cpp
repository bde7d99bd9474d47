// The demonstration as a program of its own: its data are where no other start of the program looks.
#include "support/EndsWithTest.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestTurn = 60'000; // milliseconds; only a fault takes so long
const QString demonstrationFolder = u"/.local/state/zel/demonstration"_s;
const QString dataFileBelow = u"/Library/Application Support/ZELMac/ZEL.xml"_s;

class DemonstrationTest : public testing::Test {
protected:
    DemonstrationTest() {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home.path());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.remove(u"XDG_STATE_HOME"_s);
        environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
        program.setProcessEnvironment(environment);
        endWithTest(program);
    }
    ~DemonstrationTest() override {
        program.terminate();
        program.waitForFinished(longestTurn);
    }

    void start(const QString& executable) {
        program.start(executable, {u"--demonstration"_s});
        for (int left = longestTurn; left > 0 && !QFile::exists(data); left -= 20)
            ASSERT_FALSE(program.waitForFinished(20)) << program.readAllStandardError().constData();
        EXPECT_TRUE(QFile::exists(data));
        program.terminate();
        ASSERT_TRUE(program.waitForFinished(longestTurn));
        EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().constData();
    }

    QTemporaryDir home;
    const QString built = QCoreApplication::applicationDirPath() + u"/blocked_zel"_s;
    const QString data = home.path() + demonstrationFolder + dataFileBelow;
    QProcess program;
};

} // namespace

TEST_F(DemonstrationTest, KeepsItsDataInAFolderOfItsOwn) {
    start(built);
    EXPECT_FALSE(QFile::exists(home.path() + u"/Library"_s)) << "the person's own place is not touched";
}

TEST_F(DemonstrationTest, CommandsOnItsFolderKnowThatItIsOne) {
    start(built);
    QProcessEnvironment there = program.processEnvironment();
    there.insert(u"HOME"_s, home.path() + demonstrationFolder);
    program.setProcessEnvironment(there);
    const auto command = [this](const QStringList& words) {
        program.start(built, words);
        EXPECT_TRUE(program.waitForFinished(longestTurn));
        return program.readAllStandardOutput();
    };
    command({u"patients"_s, u"--add"_s, u"--id"_s, u"N1"_s, u"--family-name"_s, u"New"_s, u"--given-names"_s,
             u"Ann"_s});
    EXPECT_EQ(command({u"export-xml"_s, home.path()}),
              QFile::encodeName(u"written: "_s + home.filePath(u"Demonstration-N1.xml"_s) + u'\n'));
}

TEST_F(DemonstrationTest, TakesNoDataFileOfAnOlderVersionThatLiesBesideTheProgram) {
    const QString executable = home.filePath(u"zel"_s), old = home.filePath(u"ZEL.xml"_s);
    ASSERT_TRUE(QFile::copy(built, executable));
    QFile file(old);
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write("<ZEL/>") > 0 && file.flush());
    start(executable);
    EXPECT_TRUE(QFile::exists(old));
}

} // namespace zel
