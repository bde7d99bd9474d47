// What the daily copies may take of the disk: a tenth of what would be free without them.
#include "store/AtomicFile.h"
#include "store/DataStore.h"
#include "support/ManualClock.h"
#include "support/RealTexts.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <dlfcn.h>
#include <optional>
#include <sys/statvfs.h>

namespace {

std::optional<qint64> freeBytes; // NOLINT: the system's function has no other way to it

} // namespace

/// In the system's place: as on a disk that has so much left.
extern "C" int statvfs64(const char* path, struct statvfs64* disk) noexcept {
    using Real = int(const char*, struct statvfs64*);
    const int result = reinterpret_cast<Real*>(dlsym(RTLD_NEXT, "statvfs64"))(path, disk); // NOLINT: dlsym()
    if (freeBytes) {
        disk->f_bsize = disk->f_frsize = 1;
        disk->f_bfree = disk->f_bavail = static_cast<fsblkcnt64_t>(*freeBytes);
    }
    return result;
}

namespace zel {
namespace {

using namespace Qt::StringLiterals;

const QString todaysCopy = u"ZEL-2026-11-21.xml"_s;
const QStringList olderCopies{u"ZEL-2026-11-20.xml"_s, u"ZEL-2026-11-19.xml"_s, u"ZEL-2026-11-18.xml"_s};
const QString byHand = u"ZEL-2026-11-01-080000.xml"_s;
constexpr qint64 olderSize = 20;

/// A data file, three daily copies of before and a big one that was made by hand.
struct BackupRoomTest : testing::Test {
    QTemporaryDir home;
    ManualClock clock; // 2026-11-21
    DataStore store{{home.path(), home.path(), home.path()}, clock};
    QString folder = store.backups().folder();
    QByteArray before = "<ZEL><SystemSetting/><Patient><ID>A</ID><PatientNotes/></Patient></ZEL>";
    QStringList told;

    BackupRoomTest() {
        EXPECT_TRUE(QDir{}.mkpath(folder));
        write(store.getZELXMLPath(), before);
        for (const QString& name : olderCopies)
            write(folder + u'/' + name, QByteArray(olderSize, ' '));
        write(folder + u'/' + byHand, QByteArray(5000, ' '));
        EXPECT_TRUE(store.load());
        QObject::connect(&store, &DataStore::notBackedUp, [this](const QString& why) { told += why; });
    }
    ~BackupRoomTest() override { freeBytes.reset(); }

    static void write(const QString& path, const QByteArray& content) {
        EXPECT_TRUE(replaceFile(path, content));
    }
    /// Changes the file when a tenth of the disk is so much, were there no daily copies.
    void changeWithRoomFor(qint64 bytes) {
        freeBytes = bytes * 10 - olderCopies.size() * olderSize;
        PatientModel patient = *store.getPatientByID(u"A"_s);
        patient.PatientNotes = u"changed"_s;
        EXPECT_TRUE(store.saveXMLPatient(patient));
        EXPECT_TRUE(readFile(store.getZELXMLPath())->contains("changed")) << "no copy is no hindrance";
    }
    [[nodiscard]] QStringList names() const {
        QStringList found;
        for (const Backup& each : store.backups().list())
            found += each.name;
        return found;
    }
};

TEST_F(BackupRoomTest, ACopyThatDoesNotFitIsRefusedAndToldAndNothingIsRemoved) {
    const RealTexts texts;
    changeWithRoomFor(before.size() - 1);
    EXPECT_EQ(names(), olderCopies + QStringList{byHand});
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.front().contains(describe(StoreError{StoreErrorCode::noRoomForBackup, folder, {}})))
        << qPrintable(told.front());
}

TEST_F(BackupRoomTest, ACopyThatJustFitsPushesOutTheDailyOnes) {
    changeWithRoomFor(before.size());
    EXPECT_EQ(names(), (QStringList{todaysCopy, byHand}));
    EXPECT_EQ(readFile(folder + u'/' + todaysCopy), before);
    EXPECT_TRUE(told.isEmpty()) << qPrintable(told.join(u'|'));
}

TEST_F(BackupRoomTest, TheOldestGoAsFarAsTheRoomAsksForIt) {
    changeWithRoomFor(before.size() + 2 * olderSize);
    EXPECT_EQ(names(), (QStringList{todaysCopy, olderCopies[0], olderCopies[1], byHand}));
    EXPECT_TRUE(told.isEmpty()) << qPrintable(told.join(u'|'));
}

TEST_F(BackupRoomTest, ADiskWithRoomKeepsAll) {
    changeWithRoomFor(before.size() + 3 * olderSize);
    EXPECT_EQ(names(), QStringList{todaysCopy} + olderCopies + QStringList{byHand});
}

} // namespace
} // namespace zel
