// Every call of the system on the user's files fails once, in every way, during every job. What is stored is
// then what was before or what the job makes of it; a job that failed says so, and the monitor keeps what is
// not stored.
#include "cli/CliTest.h"
#include "support/BrokenFile.h"
#include "support/FailingCalls.h"
#include "support/FromEnvironment.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <optional>

namespace zel {

using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

constexpr int shortTransfer = 0;

bool isFlush(const QByteArray& call) { return call == "fsync" || call == "fdatasync" || call == "syncfs"; }

class FailedCallTest : public CliTest {
protected:
    /// All files below the home by name, but for locks, which say nothing.
    using Files = std::map<QString, QByteArray>;
    struct Job {
        const char* what;
        QStringList arguments;
        bool isFirstStart = false;
        bool isBroken = false; ///< the disk gives nothing of the data file
    };

    [[nodiscard]] QString home() const { return folder.filePath(u"home"_s); }

    void prepare(const Job& job) {
        QDir{home()}.removeRecursively();
        QDir{folder.path()}.mkdir(u"home"_s);
        if (!job.isFirstStart) {
            QDir{}.mkpath(QFileInfo{dataFile()}.path());
            setData(stored);
            QDir{home()}.mkdir(u"out"_s);
            QDir{}.mkpath(backup.section(u'/', 0, -2));
            QFile file{backup};
            ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("<ZEL><SystemSetting/></ZEL>") > 0);
        }
        plug(planM1);
        clock.set(start); // the log of downloads has the time
    }

    [[nodiscard]] Files files() const {
        Files found;
        QDirIterator all{home(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories};
        while (all.hasNext()) {
            QFile file{all.next()};
            if (all.fileName().endsWith(u".lock"_s) || !file.open(QIODevice::ReadOnly)) continue;
            QByteArray content = file.readAll();
            if (content.startsWith("%PDF-") && content.endsWith("%%EOF\n"))
                content = "a whole PDF"; // it holds the time
            found[QDir{home()}.relativeFilePath(all.filePath())] = content;
        }
        return found;
    }

    static Files withoutBackups(Files all) {
        std::erase_if(all, [](const auto& file) { return file.first.contains(u"/Backups/"_s); });
        return all;
    }

    [[nodiscard]] bool isErased() {
        return zel({u"monitor"_s}).out.find("readings: 0\n") != std::string::npos;
    }

    [[nodiscard]] Outcome run(const Job& job) {
        std::optional<BrokenFile> broken;
        if (job.isBroken) broken.emplace(dataFile());
        return zel(job.arguments);
    }

    void tryEachCall(const Job& job);
    void checkAfterwards(const Outcome& outcome, const Files& before, const Files& after);

    WallTime start = clock.now();
    QString backup = QFileInfo{dataFile()}.path() + u"/Backups/ZEL-2026-11-20.xml"_s;
    QByteArray stored;
    unsigned tried = 0;
};

void FailedCallTest::checkAfterwards(const Outcome& outcome, const Files& before, const Files& after) {
    Files now = files();
    std::erase_if(now, [](const auto& file) { return file.first.contains(u".new-"_s); });
    for (const auto& [name, content] : now) {
        const auto old = before.find(name);
        const auto done = after.find(name);
        EXPECT_TRUE((old != before.end() && content == old->second)
                    || (done != after.end() && content == done->second))
            << name.toStdString() << " is neither as before nor as it should be";
    }
    for (const auto& [name, content] : before)
        EXPECT_TRUE(now.contains(name)) << name.toStdString() << " is gone";
    const bool lacksBackup = outcome.err.find("No copy") != std::string::npos;
    const bool isDone = now == after || (lacksBackup && withoutBackups(now) == withoutBackups(after));
    const bool saysDone = outcome.status == 0;
    EXPECT_TRUE(isDone || !saysDone) << "said to be done";
    EXPECT_TRUE(saysDone || !outcome.err.empty()) << "a failure is told";
    if (isDone && !saysDone && before != after && !before.empty()) {
        EXPECT_THAT(outcome.err, testing::AnyOf(HasSubstr("was written, but"), HasSubstr("are stored, but"),
                                                HasSubstr("is stored, but")))
            << "what is there is not told as lost";
        EXPECT_THAT(outcome.err, testing::Not(HasSubstr("could not be stored")));
    }
    EXPECT_FALSE(lacksBackup && now == after) << "a copy that is there is told as missing";
    EXPECT_TRUE(!isErased() || (isDone && saysDone))
        << "the monitor is emptied only behind what is stored for sure";
    // What was left behind holds up nothing.
    EXPECT_EQ(zel({u"patients"_s}).status, 0);
    for (const auto& [name, content] : files())
        EXPECT_FALSE(name.contains(u".new-"_s) && name.startsWith(u"Library"_s))
            << name.toStdString() << " stays";
}

void FailedCallTest::tryEachCall(const Job& job) {
    prepare(job);
    const Files before = files();
    unsigned calls = 0;
    const unsigned stride = fromEnvironment("ZEL_CALL_STRIDE", 1); // 1: each call
    {
        const FailingCalls none(home(), 0);
        const Outcome whole = run(job);
        ASSERT_EQ(whole.status, 0) << job.what << ": " << whole.err;
        calls = FailingCalls::count();
    }
    EXPECT_EQ(isErased(), job.arguments.first() == u"download"_s);
    const Files after = files();
    ASSERT_GT(calls, 3U) << job.what;
    for (const int error : {EIO, ENOSPC, EACCES, EINTR, shortTransfer}) {
        for (unsigned nth = 1; nth <= calls; nth += stride, ++tried) {
            prepare(job);
            Outcome outcome;
            QByteArray call;
            {
                const FailingCalls failing(home(), nth, error);
                outcome = run(job);
                call = FailingCalls::failed();
            }
            SCOPED_TRACE(job.what + (": call " + std::to_string(nth) + ", " + call.toStdString() + ", error ")
                         + std::to_string(error) + "\n" + outcome.out + outcome.err);
            checkAfterwards(outcome, before, after);
            const bool isTold = outcome.status != 0 || !outcome.err.empty();
            const bool isUnflushed = isFlush(call) && error != shortTransfer && error != EINTR;
            EXPECT_TRUE(isTold || !isUnflushed) << "what a power cut may undo is told";
            if (HasFailure()) return;
        }
    }
}

} // namespace

TEST_F(FailedCallTest, LeavesTheFilesAsTheyWereOrAsTheyShouldBe) {
    addPatient(u"M1"_s);
    ASSERT_EQ(zelWith(planM1, {u"download"_s, u"--patient=M1"_s}).status, 0);
    const QString exported = folder.filePath(u"program"_s);
    ASSERT_EQ(zel({u"export-xml"_s, exported}).status, 0);
    ASSERT_EQ(zel({u"export-table"_s, exported}).status, 0);
    stored = data();
    const QByteArray withoutReadings = [this] {
        QByteArray content = data();
        for (auto at = content.indexOf("<MeasureRec>"); at >= 0; at = content.indexOf("<MeasureRec>"))
            content.remove(at, content.indexOf("</MeasureRec>", at) + 13 - at);
        return content;
    }();
    tryEachCall({"start", {u"readings"_s, u"--patient=M1"_s}});
    tryEachCall({"first start", {u"patients"_s}, true});
    tryEachCall({"add a patient",
                 {u"patients"_s, u"--add"_s, u"--id=B"_s, u"--family-name=B"_s, u"--given-names=C"_s}});
    tryEachCall({"settings", {u"settings"_s, u"--set"_s, u"SysStandard=130"_s}});
    tryEachCall({"export", {u"export-xml"_s, home() + u"/out"_s}});
    tryEachCall({"CSV", {u"export-csv"_s, u"--patient=M1"_s, home() + u"/out"_s}});
    tryEachCall({"table", {u"export-table"_s, home() + u"/out"_s}});
    tryEachCall(
        {"report",
         {u"report"_s, u"--patient=M1"_s, u"--section=table"_s, u"--output="_s + home() + u"/out/r.pdf"_s}});
    tryEachCall({"backup", {u"backup"_s, u"create"_s}});
    tryEachCall({"restore", {u"backup"_s, u"restore"_s, u"ZEL-2026-11-20.xml"_s}});
    tryEachCall(
        {"restore on a broken disk", {u"backup"_s, u"restore"_s, u"ZEL-2026-11-20.xml"_s}, false, true});
    stored = withoutReadings;
    tryEachCall({"download", {u"download"_s, u"--patient=M1"_s}});
    stored = "<ZEL><SystemSetting/></ZEL>";
    tryEachCall({"import", {u"import"_s, exported + u"/M1.xml"_s}});
    tryEachCall({"import a table", {u"import"_s, exported + u"/M1.table.csv"_s}});
    RecordProperty("calls", std::to_string(tried));
    std::printf("%u calls failed\n", tried);
}

} // namespace zel
