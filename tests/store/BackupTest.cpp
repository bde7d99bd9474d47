#include "store/AtomicFile.h"
#include "store/DataStore.h"
#include "support/ManualClock.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

Backup copy(const QString& name, qint64 size = 1) {
    Backup made = backupOfName(name).value_or(Backup{});
    made.size = size;
    return made;
}

TEST(BackupRules, NamesTellDayAndKind) {
    const Instant noon{std::chrono::milliseconds{1'795'345'200'000}}; // 2026-11-22 11:00 UTC
    const std::pair<BackupKind, const char*> kinds[] = {
        {BackupKind::daily, "ZEL-2026-11-22.xml"},
        {BackupKind::made, "ZEL-2026-11-22-120000.xml"},
        {BackupKind::replaced, "ZEL-2026-11-22-120000-replaced.xml"},
        {BackupKind::damaged, "ZEL-2026-11-22-120000-damaged.xml"},
    };
    for (const auto& [kind, name] : kinds) {
        EXPECT_EQ(backupName(kind, noon), QLatin1StringView{name});
        const auto read = backupOfName(QLatin1StringView{name});
        ASSERT_TRUE(read) << name;
        EXPECT_EQ(read->kind, kind) << name;
        EXPECT_EQ(dayText(read->day), u"2026/11/22"_s) << name;
    }
    for (const char* other : {"ZEL.xml", "ZEL-2026-13-01.xml", "ZEL-2026-11-22.xml.bak",
                              "ZEL-2026-11-22-damaged.xml", "xZEL-2026-11-22.xml", "ZEL-2026-11-22-1.xml"})
        EXPECT_FALSE(backupOfName(QLatin1StringView{other})) << other;
}

/// One daily copy for each day from \p first, of a byte each.
std::vector<Backup> dailyCopies(const char* first, int count) {
    std::vector<Backup> made;
    made.reserve(static_cast<std::size_t>(count));
    const QDate day = QDate::fromString(QLatin1StringView{first}, Qt::ISODate);
    for (int i = 0; i < count; ++i)
        made.push_back(copy(u"ZEL-"_s + day.addDays(i).toString(Qt::ISODate) + u".xml"_s));
    return made;
}

TEST(BackupRules, KeepsTwoWeeksThenOneAMonthForTwoYearsInTheRoomThereIs) {
    std::vector<Backup> copies = dailyCopies("2020-01-01", 2000); // to 2025-06-22
    copies.push_back(copy(u"ZEL-2020-01-01-080000.xml"_s));
    copies.push_back(copy(u"ZEL-2020-01-01-080000-damaged.xml"_s));
    copies.push_back(copy(u"ZEL-2020-01-01-080000-replaced.xml"_s));
    const auto kept = [&copies](qint64 room) {
        std::vector<Backup> left = copies;
        for (const Backup& gone : superfluousBackups(copies, room))
            std::erase(left, gone);
        sortNewestFirst(left);
        return left;
    };
    const auto all = kept(1'000'000);
    ASSERT_EQ(all.size(), 14U + 23U + 3U);
    EXPECT_EQ(all[13].name, u"ZEL-2025-06-09.xml"_s);
    EXPECT_EQ(all[14].name, u"ZEL-2025-05-31.xml"_s);
    EXPECT_EQ(all[36].name, u"ZEL-2023-07-31.xml"_s);
    EXPECT_EQ(kept(20).size(), 20U + 3U);
    EXPECT_EQ(kept(20)[19], all[19]) << "the newest";
    EXPECT_EQ(kept(0).size(), 1U + 3U) << "the newest stays in any case";
    copies.push_back(copy(u"ZEL-2099-01-01.xml"_s)); // a clock that was wrong, or a pause of decades
    EXPECT_EQ(kept(1'000'000).size(), 14U + 22U + 3U);
    copies = dailyCopies("2020-01-01", 2);
    EXPECT_TRUE(superfluousBackups(copies, 2).empty());
    EXPECT_TRUE(superfluousBackups({}, 0).empty());
}

struct BackupTest : testing::Test {
    QTemporaryDir home;
    ManualClock clock; // 2026-11-21
    DataStore store{{home.path(), home.path(), home.path()}, clock};
    QDir folder{store.backups().folder()};
    QByteArray first =
        "<ZEL><SystemSetting/><Patient><ID>A</ID><PatientNotes/></Patient><Patient><ID>B</ID></"
        "Patient><MeasureRec><ID>"
        "A</ID><ReadingDate>2026-11-02T08:00:00+01:00</ReadingDate></MeasureRec><MeasureRec><ID>A</ID>"
        "</MeasureRec></ZEL>";

    BackupTest() {
        QDir{}.mkpath(QFileInfo{store.getZELXMLPath()}.path());
        write(first);
        EXPECT_TRUE(store.load());
    }
    void write(const QByteArray& content) { ASSERT_TRUE(replaceFile(store.getZELXMLPath(), content)); }
    [[nodiscard]] QByteArray data() const { return readFile(store.getZELXMLPath()).value_or(QByteArray{}); }
    [[nodiscard]] QByteArray copyNamed(const char* name) const {
        return readFile(folder.filePath(QLatin1StringView{name})).value_or(QByteArray{});
    }
    [[nodiscard]] QStringList names() const {
        QStringList found;
        for (const Backup& each : store.backups().list())
            found += each.name;
        return found;
    }
    void change(const QString& notes) {
        PatientModel patient = *store.getPatientByID(u"A"_s);
        patient.PatientNotes = notes;
        ASSERT_TRUE(store.saveXMLPatient(patient));
    }
};

TEST_F(BackupTest, TheFirstChangeOfADayKeepsWhatWasThere) {
    EXPECT_TRUE(names().empty()) << "starting changes nothing";
    change(u"one"_s);
    change(u"two"_s);
    clock.advance(std::chrono::hours{24});
    change(u"three"_s);
    EXPECT_EQ(names(), (QStringList{u"ZEL-2026-11-22.xml"_s, u"ZEL-2026-11-21.xml"_s}));
    EXPECT_EQ(copyNamed("ZEL-2026-11-21.xml"), first);
    EXPECT_TRUE(copyNamed("ZEL-2026-11-22.xml").contains("two"));
    clock.advance(std::chrono::days{20});
    change(u"four"_s);
    EXPECT_EQ(names().size(), 3);
    const auto others =
        QFileDevice::ReadGroup | QFileDevice::ReadOther | QFileDevice::ExeGroup | QFileDevice::ExeOther;
    EXPECT_FALSE(QFileInfo{folder.path()}.permissions() & others);
    EXPECT_FALSE(QFileInfo{folder.filePath(u"ZEL-2026-12-12.xml"_s)}.permissions() & others);
}

TEST_F(BackupTest, WhatAPowerCutLeftIsRemovedAndMadeAnew) {
    QDir{}.mkpath(folder.path());
    const QString dead = folder.filePath(u".ZEL-2026-11-20.xml.new-aB3xYz"_s);
    for (const QString& each : {dead, folder.filePath(u"ZEL-2026-11-21.xml"_s)})
        ASSERT_TRUE(QFile{each}.open(QIODevice::WriteOnly));
    ASSERT_TRUE(store.load());
    EXPECT_FALSE(QFileInfo::exists(dead));
    change(u"one"_s);
    EXPECT_EQ(copyNamed("ZEL-2026-11-21.xml"), first) << "an empty file is no copy";
}

TEST_F(BackupTest, ACopyThatFailsHoldsUpNoChangeAndIsTold) {
    QFile blocked{folder.path()};
    ASSERT_TRUE(blocked.open(QIODevice::WriteOnly)); // a file in the folder's place
    QStringList told;
    QObject::connect(&store, &DataStore::notBackedUp, [&told](const QString& why) { told += why; });
    change(u"one"_s);
    EXPECT_TRUE(data().contains("one"));
    EXPECT_EQ(told.size(), 1);
}

TEST_F(BackupTest, GoingBackKeepsWhatWasThereAndCanBeTakenBack) {
    change(u"one"_s);
    const QByteArray changed = data();
    const auto content = store.backups().content(u"ZEL-2026-11-21.xml"_s);
    ASSERT_TRUE(content);
    EXPECT_EQ(content->patients, 2U);
    EXPECT_EQ(content->readings, 2U);
    EXPECT_EQ(dayText(content->lastReading), u"2026/11/02"_s);
    const auto kept = store.backups().restore(u"ZEL-2026-11-21.xml"_s);
    ASSERT_TRUE(kept);
    EXPECT_TRUE(kept->endsWith(u"-replaced.xml"_s));
    EXPECT_EQ(data(), first);
    ASSERT_TRUE(store.backups().restore(*kept));
    EXPECT_EQ(data(), changed);
    EXPECT_EQ(store.backups().restore(u"ZEL-2020-01-01.xml"_s).error().code, StoreErrorCode::noSuchBackup);
    EXPECT_EQ(store.backups().restore(u"../ZEL.xml"_s).error().code, StoreErrorCode::noSuchBackup);
    EXPECT_EQ(data(), changed);
}

TEST_F(BackupTest, EachCopyOfOneSecondHasItsPlaceAndOthersFilesAreNone) {
    const auto one = store.backups().create();
    const auto two = store.backups().create();
    const auto three = store.backups().create();
    ASSERT_TRUE(one && two && three);
    ASSERT_TRUE(replaceFile(folder.filePath(u"notes.txt"_s), "no copy"));
    EXPECT_EQ(names(), (QStringList{*three, *two, *one}));
    EXPECT_EQ(store.backups().list().front().size, data().size());
    QFile::remove(store.getZELXMLPath());
    EXPECT_EQ(store.backups().create().error().code, StoreErrorCode::notReadable);
    const auto kept = store.backups().restore(*one);
    ASSERT_TRUE(kept) << "also where no data file is left";
    EXPECT_TRUE(kept->isEmpty());
    EXPECT_EQ(data(), first);
    QFile::remove(store.getZELXMLPath());
    ASSERT_TRUE(QDir{}.mkdir(store.getZELXMLPath()));
    EXPECT_FALSE(store.backups().restore(*one)) << "nothing of what is there could be kept";
}

TEST_F(BackupTest, ADamagedFileGivesWayToTheNewestCopyThatCanBeRead) {
    change(u"one"_s);
    ASSERT_TRUE(store.backups().create());
    ASSERT_TRUE(replaceFile(folder.filePath(names().first()), "<ZEL>"));
    write("<ZEL><Patient>");
    EXPECT_FALSE(store.loadXML());
    EXPECT_EQ(store.backups().restore(names().first()).error().code, StoreErrorCode::notParsed);
    const auto newest = store.backups().newest();
    ASSERT_TRUE(newest);
    const auto kept = store.backups().restore(newest->copy.name);
    ASSERT_TRUE(kept);
    EXPECT_TRUE(kept->endsWith(u"-damaged.xml"_s));
    EXPECT_EQ(readFile(folder.filePath(*kept)).value(), "<ZEL><Patient>");
    EXPECT_EQ(data(), first);
    EXPECT_TRUE(store.loadXML());
}

} // namespace
} // namespace zel
