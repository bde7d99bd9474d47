#include "store/SecondFolder.h"

#include "DataStoreTest.h"
#include "store/FileLock.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace zel {
namespace {

using Problem = SecondFolderProblem;

/// A data file with a copy of today, and a stick.
struct SecondFolderTest : DataStoreTest {
    QTemporaryDir stick;
    QString backups = store.backups().folder();
    QString record = QFileInfo{path}.path() + u"/BackupFolder.json"_s;
    DayNumber today = LocalZone{}.day(std::chrono::floor<std::chrono::milliseconds>(clock.now()));

    SecondFolderTest() {
        dataFileOfA({});
        EXPECT_TRUE(store.load());
        change();
    }
    void change() {
        PatientModel patient = *store.getPatientByID(u"A"_s);
        patient.PatientNotes += u"x"_s;
        ASSERT_TRUE(store.saveXMLPatient(patient));
        ASSERT_TRUE(store.loadXML());
    }
    void aDayLater() {
        clock.advance(std::chrono::hours{24});
        ++today;
        change();
    }
    [[nodiscard]] SecondFolder named() const { return secondFolder(path)->value_or(SecondFolder{}); }
    std::optional<SecondFolderProblem> bring() const {
        const auto brought = bringCopy(backups, named(), today);
        return brought ? std::nullopt : std::optional{brought.error().problem};
    }
};

TEST_F(SecondFolderTest, TheDaysCopyGoesThereAndIsReadFromThere) {
    EXPECT_FALSE(secondFolder(path)->has_value());
    ASSERT_TRUE(nameSecondFolder(path, stick.path()));
    EXPECT_EQ(named().folder, stick.path());
    EXPECT_TRUE(named().list().empty());
    EXPECT_EQ(bring(), std::nullopt);
    ASSERT_EQ(named().list(), store.backups().list());
    const QString there = named().path(named().list().front().name);
    EXPECT_EQ(readFile(there), readFile(backups + u'/' + named().list().front().name));
    const auto asCopied = QFileInfo{there}.lastModified();
    EXPECT_EQ(bring(), std::nullopt);
    EXPECT_EQ(QFileInfo{there}.lastModified(), asCopied) << "once";
    for (int day = 10; day < 29; ++day)
        write(named().copies() + u"/ZEL-2020-01-%1.xml"_s.arg(day), "<ZEL/>");
    EXPECT_EQ(bring(), std::nullopt);
    EXPECT_LT(named().list().size(), 19U) << "no more of them than are kept";
    for (const Backup& old : named().list())
        if (old.name.startsWith("ZEL-2020"_L1)) QFile::remove(named().path(old.name));
    QDir{backups}.removeRecursively();
    const auto fetched = fetchCopy(backups, there, Instant{});
    ASSERT_TRUE(fetched);
    EXPECT_TRUE(store.restoreBackup(*fetched));
    EXPECT_EQ(store.getPatientByID(u"A"_s)->PatientNotes, QString{});
}

TEST_F(SecondFolderTest, ARecordInAnotherProgramsHandsIsLeftToIt) {
    ASSERT_TRUE(nameSecondFolder(path, stick.path()));
    const auto before = readFile(record);
    FileLock others{record};
    ASSERT_EQ(others.tryTake(), FileLock::Attempt::taken);
    const auto ended = nameSecondFolder(path, {});
    ASSERT_FALSE(ended);
    EXPECT_EQ(ended.error().problem, Problem::notRecorded);
    EXPECT_TRUE(isFirstFailure(path, today)) << "told rather than lost";
    EXPECT_EQ(readFile(record), before);
}

TEST_F(SecondFolderTest, AStickThatIsAwayIsNotWrittenInItsPlaceAndGetsTheCopyOnceItIsBack) {
    ASSERT_TRUE(nameSecondFolder(path, stick.path()));
    const QString marked = named().copies();
    const QString away = stick.path() + u"/elsewhere"_s;
    ASSERT_TRUE(QDir{}.rename(marked, away)); // an empty folder is left where it is mounted
    EXPECT_EQ(bring(), SecondFolderProblem::away);
    EXPECT_EQ(QDir{stick.path()}.entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList{u"elsewhere"_s});
    EXPECT_TRUE(isFirstFailure(path, today));
    EXPECT_FALSE(isFirstFailure(path, today)) << "once a day";
    EXPECT_TRUE(isFirstFailure(path, today + 1));
    ASSERT_TRUE(QDir{}.rename(away, marked));
    EXPECT_EQ(bring(), std::nullopt);
    EXPECT_EQ(named().list().size(), 1U);
}

TEST_F(SecondFolderTest, NothingButItsOwnDailyCopiesIsEverRemovedOrReplaced) {
    const QStringList strangers{u"ZEL-2020-01-01.xml"_s, u"ZEL-0123456789abcdef/ZEL-2020-01-01.xml"_s,
                                u"ZEL-0123456789abcdef/"_s + backupName(BackupKind::daily, Instant{})};
    for (const QString& name : strangers)
        write(stick.filePath(name), "another's");
    ASSERT_TRUE(nameSecondFolder(path, stick.path()));
    write(named().path(u"ZEL-2020-01-01-080000.xml"_s), "made by the user");
    write(named().path(u"letter.txt"_s), "not ours");
    for (int day = 0; day < 40; ++day) {
        aDayLater();
        ASSERT_EQ(bring(), std::nullopt);
    }
    const auto daily = std::ranges::count(named().list(), BackupKind::daily, &Backup::kind);
    EXPECT_EQ(daily, 14 + 1) << "two weeks, and the month before";
    EXPECT_EQ(named().list().size(), static_cast<std::size_t>(daily) + 1);
    EXPECT_TRUE(QFile::exists(named().path(u"letter.txt"_s)));
    for (const QString& name : strangers)
        EXPECT_EQ(readFile(stick.filePath(name)), "another's") << name.toStdString();
}

TEST_F(SecondFolderTest, AnotherComputersOrABrokenRecordNamesNone) {
    ASSERT_TRUE(nameSecondFolder(path, stick.path()));
    const QString first = named().copies();
    const QByteArray good = readFile(record).value_or("");
    EXPECT_EQ(QFile::permissions(record) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions{});
    QJsonObject copied = QJsonDocument::fromJson(good).object();
    copied[u"place"_s] = u"another"_s;
    write(record, QJsonDocument{copied}.toJson());
    EXPECT_FALSE(secondFolder(path)->has_value()) << "it came with a copied folder";
    ASSERT_TRUE(nameSecondFolder(path, stick.path()));
    EXPECT_NE(named().copies(), first) << "each has a place of its own";
    for (const QByteArray& broken : {QByteArray{"{"}, QByteArray{}, QByteArray{"[]"},
                                     QByteArray{good}.replace("\"mark\": \"", "\"mark\": \"../")}) {
        write(record, broken);
        ASSERT_FALSE(secondFolder(path)) << broken.toStdString();
        EXPECT_EQ(secondFolder(path).error().problem, Problem::recordBroken);
    }
    ASSERT_TRUE(nameSecondFolder(path, stick.path())) << "which mends it";
    const QString mark = named().mark;
    ASSERT_TRUE(nameSecondFolder(path, {}));
    EXPECT_FALSE(secondFolder(path)->has_value());
    ASSERT_TRUE(nameSecondFolder(path, stick.path()));
    EXPECT_EQ(named().mark, mark) << "its copies go on";
    EXPECT_EQ(nameSecondFolder(path, stick.filePath(u"nowhere"_s)).error().problem,
              SecondFolderProblem::away);
    EXPECT_EQ(named().folder, stick.path()) << "a refusal changes nothing";
}

} // namespace
} // namespace zel
