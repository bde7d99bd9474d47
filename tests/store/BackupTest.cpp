#include "store/AtomicFile.h"
#include "store/DataStore.h"
#include "support/ManualClock.h"

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

TEST(BackupRules, KeepsTwoWeeksThenOneAMonthForTwoYearsInATenthOfTheDisk) {
    constexpr qint64 plenty = 1'000'000;
    struct Case {
        const char* what;
        std::vector<Backup> copies;
        qint64 free;
        QStringList removed;
    };
    const DayNumber today = copy(u"ZEL-2026-11-22.xml"_s).day;
    const Case cases[] = {
        {"none", {}, plenty, {}},
        {"14 days, and the newest of a month",
         {copy(u"ZEL-2026-11-07.xml"_s), copy(u"ZEL-2026-11-08.xml"_s), copy(u"ZEL-2026-11-09.xml"_s),
          copy(u"ZEL-2026-10-30.xml"_s), copy(u"ZEL-2026-10-31.xml"_s)},
         plenty,
         {u"ZEL-2026-11-08.xml"_s, u"ZEL-2026-11-07.xml"_s, u"ZEL-2026-10-30.xml"_s}},
        {"two years",
         {copy(u"ZEL-2024-12-01.xml"_s), copy(u"ZEL-2024-11-30.xml"_s)},
         plenty,
         {u"ZEL-2024-11-30.xml"_s}},
        {"several of a day, and one of a clock that was ahead",
         {copy(u"ZEL-2026-11-22.xml"_s), copy(u"ZEL-2026-11-22-080000.xml"_s),
          copy(u"ZEL-2026-11-22-080000-replaced.xml"_s), copy(u"ZEL-2031-01-01.xml"_s)},
         plenty,
         {}},
        {"a damaged one is the user's", {copy(u"ZEL-2020-01-01-080000-damaged.xml"_s, plenty)}, 0, {}},
        {"a tenth of 100 for 12, 5 and 4: the newest that fit",
         {copy(u"ZEL-2026-11-22.xml"_s, 5), copy(u"ZEL-2026-11-21.xml"_s, 4),
          copy(u"ZEL-2026-11-20.xml"_s, 12), copy(u"ZEL-2026-11-19.xml"_s, 1)},
         78,
         {u"ZEL-2026-11-20.xml"_s, u"ZEL-2026-11-19.xml"_s}},
    };
    for (const auto& [what, copies, free, removed] : cases) {
        QStringList names;
        for (const Backup& each : superfluousBackups(copies, today, free))
            names += each.name;
        EXPECT_EQ(names, removed) << what;
    }
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
    EXPECT_EQ(names(), (QStringList{u"ZEL-2026-12-12.xml"_s, u"ZEL-2026-11-22.xml"_s}))
        << "one of November is left";
    const auto others =
        QFileDevice::ReadGroup | QFileDevice::ReadOther | QFileDevice::ExeGroup | QFileDevice::ExeOther;
    EXPECT_FALSE(QFileInfo{folder.path()}.permissions() & others);
    EXPECT_FALSE(QFileInfo{folder.filePath(u"ZEL-2026-12-12.xml"_s)}.permissions() & others);
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

TEST_F(BackupTest, ADamagedFileGivesWayToTheNewestCopyThatCanBeRead) {
    change(u"one"_s);
    ASSERT_TRUE(store.backups().create());
    ASSERT_TRUE(replaceFile(folder.filePath(names().first()), "<ZEL>"));
    write("<ZEL><Patient>");
    EXPECT_FALSE(store.loadXML());
    EXPECT_EQ(store.backups().restore(names().first()).error().code, StoreErrorCode::notParsed);
    const auto newest = store.backups().newestReadable();
    ASSERT_TRUE(newest);
    const auto kept = store.backups().restore(newest->name);
    ASSERT_TRUE(kept);
    EXPECT_TRUE(kept->endsWith(u"-damaged.xml"_s));
    EXPECT_EQ(readFile(folder.filePath(*kept)).value(), "<ZEL><Patient>");
    EXPECT_EQ(data(), first);
    EXPECT_TRUE(store.loadXML());
}

} // namespace
} // namespace zel
