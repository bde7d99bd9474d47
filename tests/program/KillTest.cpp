// A program that saves without end (EditLoop.cpp) is killed at random moments. ZEL_KILLS says how often, 50
// by default; the seed of the moments is printed, and ZEL_SEED repeats one.
#include "store/DataStore.h"
#include "support/EndsWithTest.h"
#include "support/FromEnvironment.h"
#include "support/ManualClock.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <random>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestWait = 60'000; // milliseconds; only a fault takes so long
constexpr int readings = 2000;      // a file that takes some milliseconds to write

class KillTest : public testing::Test {
protected:
    KillTest() {
        QByteArray content =
            "<ZEL><SystemSetting/><Patient><ID>A</ID><PatientNotes>0</PatientNotes></Patient>";
        for (int i = 0; i < readings; ++i)
            content +=
                "<MeasureRec><ID>A</ID><RecID>" + QByteArray::number(10001 + i) + "</RecID></MeasureRec>";
        QDir{}.mkpath(folder().path());
        QFile file{store.getZELXMLPath()};
        if (file.open(QIODevice::WriteOnly)) file.write(content + "</ZEL>");
    }

    [[nodiscard]] QDir folder() const { return QFileInfo{store.getZELXMLPath()}.dir(); }

    /// \return the last save that was reported as done; after none the one of before
    int killAfter(std::chrono::microseconds delay, int before) {
        QProcess program;
        endWithTest(program);
        program.start(QCoreApplication::applicationDirPath() + u"/edit_loop"_s, {home.path()});
        EXPECT_TRUE(program.waitForReadyRead(longestWait))
            << "what the last kill left does not hold up the next save";
        QThread::usleep(static_cast<unsigned long>(delay.count()));
        program.kill();
        EXPECT_TRUE(program.waitForFinished(longestWait));
        const QList<QByteArray> done = program.readAllStandardOutput().trimmed().split('\n');
        return done.last().isEmpty() ? before : done.last().toInt();
    }

    QTemporaryDir home;
    ManualClock clock;
    DataStore store{{home.path(), home.path(), home.path()}, clock};
};

} // namespace

TEST_F(KillTest, WhatWasReportedAsSavedIsThere) {
    const unsigned kills = fromEnvironment("ZEL_KILLS", 50);
    const unsigned seed = fromEnvironment("ZEL_SEED", std::random_device{}());
    RecordProperty("seed", std::to_string(seed));
    SCOPED_TRACE("ZEL_SEED=" + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> microseconds(0, 40'000);
    int done = 0;
    for (unsigned kill = 0; kill < kills; ++kill) {
        done = killAfter(std::chrono::microseconds{microseconds(random)}, done);
        ASSERT_TRUE(store.load()) << "kill " << kill;
        const int stored = store.getPatientByID(u"A"_s)->PatientNotes.toInt();
        ASSERT_TRUE(stored == done || stored == done + 1)
            << "kill " << kill << ": " << stored << " after " << done;
        done = stored;
        store.setCurrentID(u"A"_s);
        ASSERT_EQ(store.getReadingForCurID().size(), std::size_t{readings}) << "kill " << kill;
        const QStringList left = folder().entryList(QDir::Files | QDir::Hidden);
        ASSERT_TRUE(left.filter(u".new-"_s).isEmpty()) << "kill " << kill << ": the next start removes it";
    }
    EXPECT_GT(done, static_cast<int>(kills)) << "each of them had saved";
}

} // namespace zel
