#include "store/DataStore.h"

#include "store/AtomicFile.h"
#include "store/FileLock.h"
#include "store/XmlFile.h"
#include "support/FullDisk.h"
#include "support/LogOf.h"
#include "support/ManualClock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

struct ScriptedPanel final : MessagePanel {
    int shown = 0;
    void ShowMessage(const QString&, const QString&) override { ++shown; }
    bool AskMessage(const QString&, const QString&) override { return false; }
};

const QByteArray templateFile =
    "<ZEL>\n    <SystemSetting>\n        <DateFormat>yyyy mm dd</DateFormat>\n    </SystemSetting>\n</ZEL>\n";

/// A home without a data file, and a program folder with the template.
struct DataStoreTest : testing::Test {
    QTemporaryDir home;
    QTemporaryDir program;
    ManualClock clock;
    DataStore store{{home.path(), program.path(), program.path()}, clock};
    QString path = store.getZELXMLPath();

    DataStoreTest() { write(program.filePath(u"ZEL_pad.xml"_s), templateFile); }

    static void write(const QString& file, const QByteArray& content) {
        QDir{}.mkpath(QFileInfo{file}.path());
        ASSERT_TRUE(replaceFile(file, content));
    }
    /// With a patient A, and readings and comments that may be of others.
    void dataFileOfA(const QByteArray& records) {
        dataFile("<SystemSetting/><Patient><ID>A</ID></Patient>" + records);
    }
    void dataFile(const QByteArray& records) { write(path, "<ZEL>\n" + records + "</ZEL>\n"); }
    [[nodiscard]] QByteArray content() const { return readFile(path).value_or(QByteArray{}); }

    /// The names of the root's children with their ID or CommentID, in order.
    [[nodiscard]] std::string order() const {
        const auto document = XmlDocument::parse(content());
        std::string names;
        for (const pugi::xml_node node : document->root().children()) {
            names += std::string{names.empty() ? "" : " "} + node.name() + ':' + node.child_value("ID")
                     + node.child_value("RecID") + node.child_value("CommentID");
        }
        return names;
    }

    static PatientModel patient(const QString& ID, const QString& family) {
        PatientModel made;
        made.ID = ID;
        made.FamilyName = family;
        made.GivenNames = u"Given"_s;
        return made;
    }
    static ReadingModel reading(std::uint32_t sys) {
        ReadingModel made;
        made.ReadingDate = getNilReadingDate() + std::chrono::hours{1000};
        made.sys = sys;
        return made;
    }
};

TEST_F(DataStoreTest, FirstStartCopiesTheTemplateForTheOwnerAlone) {
    ASSERT_TRUE(store.load());
    EXPECT_EQ(content(), templateFile);
    EXPECT_EQ(QFile::permissions(path) & QFileDevice::Permissions{0x0077}, QFileDevice::Permissions{});
    EXPECT_EQ(QFile::permissions(QFileInfo{path}.path()) & QFileDevice::Permissions{0x0077},
              QFileDevice::Permissions{});
    EXPECT_EQ(store.getSetting().dateFormat, u"yyyy mm dd"_s);
    EXPECT_EQ(readFile(program.filePath(u".target"_s)).value(), "pad");
}

TEST_F(DataStoreTest, TargetFileChoosesTheTemplate) {
    write(program.filePath(u".target"_s), "ihd\nmore");
    write(program.filePath(u"ZEL_ihd.xml"_s),
          "<ZEL><SystemSetting><SysStandard>7</SysStandard></SystemSetting></ZEL>");
    ASSERT_TRUE(store.load());
    EXPECT_EQ(store.getSetting().sysStandard, 7U);
    EXPECT_EQ(readFile(program.filePath(u".target"_s)).value(), "ihd\nmore");
}

TEST_F(DataStoreTest, TemplateThatIsMissingIsReportedAndNothingIsWritten) {
    write(program.filePath(u".target"_s), "none");
    const auto result = store.load();
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().code, StoreErrorCode::notCreated);
    EXPECT_FALSE(store.saveXMLPatient(patient(u"A"_s, u"Abel"_s)));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(DataStoreTest, OlderVersionsFileIsMovedAndKept) {
    const QString beside = program.filePath(u"ZEL.xml"_s); // the program
    const QByteArray old = "<ZEL><Patient><ID>old</ID></Patient><SystemSetting/></ZEL>";
    write(beside, old);
    ASSERT_TRUE(store.load());
    EXPECT_EQ(content(), old);
    EXPECT_FALSE(QFile::exists(beside));
    EXPECT_TRUE(store.validIDinXML(u"old"_s));
}

TEST_F(DataStoreTest, FileWithoutSettingsGainsThem) {
    dataFile("<Own/>");
    ASSERT_TRUE(store.load());
    EXPECT_EQ(order(), "Own: SystemSetting:");
    EXPECT_EQ(store.getSetting().metricFormat, u"lb / in"_s);
}

TEST_F(DataStoreTest, DamagedFileIsNeverWrittenOver) {
    for (const QByteArray& damaged :
         {QByteArray{}, QByteArray{"<ZEL><Patient>"}, QByteArray{"<OTHER/>"}, QByteArray{"<ZEL/><ZEL/>"}}) {
        write(path, damaged);
        EXPECT_EQ(store.load().error().code, StoreErrorCode::notParsed);
        EXPECT_TRUE(store.getPatientArray().empty());
        EXPECT_FALSE(store.saveXMLPatient(patient(u"A"_s, u"Abel"_s)));
        EXPECT_FALSE(store.deleteXMLPatient(u"A"_s));
        EXPECT_FALSE(store.saveSetting());
        EXPECT_FALSE(store.addCommentForCurID({}));
        EXPECT_FALSE(store.saveCommentToXML({}));
        EXPECT_FALSE(store.newDataTransfer({reading(120)}));
        EXPECT_EQ(content(), damaged);
    }
    dataFile("<SystemSetting/>");
    EXPECT_TRUE(store.saveXMLPatient(patient(u"A"_s, u"Abel"_s))); // readable again
}

TEST_F(DataStoreTest, SettingsAreWrittenAndOutliveAnUnreadableFile) {
    int announced = 0;
    QObject::connect(&store, &DataStore::reloaded, [&announced] { ++announced; });
    ASSERT_TRUE(store.load());
    store.getSetting().dateFormat = u"mm dd yyyy"_s;
    ASSERT_TRUE(store.saveSetting());
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(store.getSetting().dateFormat, u"mm dd yyyy"_s);
    write(path, "<ZEL>");
    EXPECT_FALSE(store.loadXML());
    EXPECT_EQ(store.getSetting().dateFormat, u"mm dd yyyy"_s);
    EXPECT_EQ(announced, 3);
}

TEST_F(DataStoreTest, PatientsAreInsertedAfterTheLastAndUpdatedInPlace) {
    dataFile("<Patient><ID>A</ID><FamilyName>Zett</FamilyName><Own>kept</Own></Patient><SystemSetting/"
             "><MeasureRec/>");
    ASSERT_TRUE(store.saveXMLPatient(patient(u"B"_s, u"Älpler"_s)));
    EXPECT_EQ(order(), "Patient:A Patient:B SystemSetting: MeasureRec:");
    ASSERT_TRUE(store.saveXMLPatient(patient(u"A"_s, u"Abel"_s)));
    EXPECT_TRUE(content().contains("<FamilyName>Abel</FamilyName>\n        <Own>kept</Own>\n"));
    EXPECT_FALSE(
        content().contains("Given</GivenNames>\n        <Own>")); // no child is added to an old element
    ASSERT_TRUE(store.load());
    EXPECT_EQ(store.getPatientArray().at(1).DisplayName, u"Älpler,Given"_s);
    for (const QString& ID : {u"-"_s, u""_s, u"A\x01"_s, u"A\r"_s, QString{QChar{0xD800}}}) {
        EXPECT_EQ(store.saveXMLPatient(patient(ID, u"Abel"_s)).error().code, StoreErrorCode::invalidRecord);
    }
    EXPECT_EQ(store.addXMLPatient(patient(u"A"_s, u"Other"_s)).error().code, StoreErrorCode::alreadyKnown);
    EXPECT_FALSE(content().contains("Other"));
    EXPECT_EQ(content().count("<Patient>"), 2);
}

TEST_F(DataStoreTest, DeletingAPatientLeavesItsDownloadLog) {
    dataFile("<Patient><ID>A</ID></Patient><SystemSetting/><MeasureRec><ID>A</ID></"
             "MeasureRec><MeasureRec><ID>B</ID></MeasureRec>"
             "<MeasureRec><ID>A</ID></MeasureRec><Comment><ID>A</ID></Comment><DataTransferLog><ID>A</ID></"
             "DataTransferLog>");
    ASSERT_TRUE(store.deleteXMLPatient(u"A"_s));
    EXPECT_EQ(order(), "SystemSetting: MeasureRec:B DataTransferLog:A");
}

TEST_F(DataStoreTest, DownloadNumbersStoresAndLogsOnlyWhatIsNew) {
    dataFileOfA(
        "<Patient><ID>new</ID></Patient><MeasureRec own='1'><ID>A</ID><RecID>1000041</RecID>"
        "<Erorr>3</Erorr><Own>x</Own></MeasureRec><MeasureRec><ID>B</ID><RecID>7</RecID></MeasureRec>");
    int chosen = 0;
    QObject::connect(&store, &DataStore::currentIDChanged, [&chosen] { ++chosen; });
    ASSERT_TRUE(store.load());
    for (int time = 1; time <= 2; ++time)
        store.setCurrentID(u"A"_s);
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(store.newDataTransfer({reading(120), reading(121), reading(120)}).value(),
              3U); // equal ones of one download are kept
    EXPECT_EQ(order(), "SystemSetting: Patient:A Patient:new MeasureRec:A1000041 MeasureRec:A1000042 "
                       "MeasureRec:A1000043 MeasureRec:A1000044 "
                       "MeasureRec:B7 DataTransferLog:A100001");
    ASSERT_EQ(store.getReadingForCurID().size(), 4U);
    EXPECT_TRUE(store.getReadingForCurID()[2].isSame(reading(121)));
    EXPECT_EQ(content().count("<Error />"), 3);
    for (const char* own : {" own=", "<Erorr>", "<Own>"})
        EXPECT_EQ(content().count(own), 1) << "not the new ones': " << own;
    const auto& log = store.getTrasferLogForCurID().at(0);
    EXPECT_EQ(log.numofRecord, 3U);
    EXPECT_EQ(log.transferDate, std::chrono::floor<std::chrono::seconds>(clock.now()));

    const QByteArray before = content();
    EXPECT_EQ(store.newDataTransfer({reading(121), reading(120)}).value(), 0U);
    EXPECT_EQ(content(), before);

    store.setCurrentID(u"new"_s);
    EXPECT_EQ(store.newDataTransfer({reading(121)}).value(), 1U);
    EXPECT_TRUE(QString::fromStdString(order()).endsWith(
        u"MeasureRec:B7 MeasureRec:new1000045 DataTransferLog:A100001 DataTransferLog:new100002"_s));
}

TEST_F(DataStoreTest, DownloadSeesWhatAnotherProgramStored) {
    dataFileOfA("");
    ASSERT_TRUE(store.load());
    DataStore other{{home.path(), program.path(), program.path()}, clock};
    ASSERT_TRUE(other.load());
    other.setCurrentID(u"A"_s);
    store.setCurrentID(u"A"_s);
    EXPECT_EQ(other.newDataTransfer({reading(120)}).value(), 1U);
    EXPECT_EQ(store.newDataTransfer({reading(120), reading(121)}).value(), 1U);
    EXPECT_EQ(store.getReadingForCurID().at(0).RecID, u"1000001"_s);
    EXPECT_EQ(store.getReadingForCurID().at(1).RecID, u"1000002"_s);
}

TEST_F(DataStoreTest, CommentsAreAddedChangedAndRemoved) {
    dataFileOfA("<MeasureRec><ID>A</ID><RecID>1</RecID><ReadingDate>2019-03-22T08:00:00+01:00</ReadingDate>"
                "</MeasureRec>");
    ASSERT_TRUE(store.load());
    store.setCurrentID(u"A"_s);
    CommentModel comment;
    comment.CommentID = store.getMaxID(DataStore::Counter::comment);
    comment.beginDate = comment.endDate = store.getReadingForCurID().at(0).ReadingDate;
    comment.comment = u"first"_s;
    ASSERT_TRUE(store.addCommentForCurID(comment));
    ASSERT_NE(store.getReadingForCurID().at(0).comment, nullptr);
    EXPECT_EQ(store.getReadingForCurID().at(0).comment->comment, u"first"_s);
    store.setSelectedComment(u"10001"_s);
    comment.ID = u"A"_s;
    comment.comment = u"second"_s;
    ASSERT_TRUE(store.saveCommentToXML(comment));
    ASSERT_NE(store.getSelectedComment(), nullptr); // kept over the reload
    EXPECT_EQ(store.getSelectedComment()->comment, u"second"_s);
    comment.CommentID = u"10002"_s; // not in the file yet
    ASSERT_TRUE(store.saveCommentToXML(comment));
    EXPECT_EQ(order(), "SystemSetting: Patient:A MeasureRec:A1 Comment:A10001 Comment:A10002");
    ASSERT_TRUE(store.deleteSelectedCommentToXML());
    EXPECT_EQ(order(), "SystemSetting: Patient:A MeasureRec:A1 Comment:A10002");
    comment.CommentID = u"10001"_s;
    ASSERT_TRUE(store.saveCommentToXML(comment));
    EXPECT_EQ(store.getSelectedComment(), nullptr) << "nor is a later one of that number";
}

TEST_F(DataStoreTest, FailedWriteStoresNothingAndSaysSo) {
    dataFileOfA("");
    ASSERT_TRUE(store.load());
    EXPECT_EQ(store.newDataTransfer({reading(120)}).error().code, StoreErrorCode::invalidRecord); // nobody's
    store.setCurrentID(u"A"_s);
    const QByteArray before = content();
    {
        const FullDisk full{static_cast<rlim_t>(before.size() + 100)};
        EXPECT_EQ(store.newDataTransfer({reading(120)}).error().code, StoreErrorCode::sizeLimit);
    }
    EXPECT_EQ(content(), before);
    EXPECT_EQ(store.newDataTransfer({reading(120)}).value(), 1U);
}

TEST_F(DataStoreTest, WaitsItsTurnWhileAnotherProgramHoldsTheFile) {
    dataFile("<SystemSetting/>");
    const QByteArray before = content();
    {
        FileLock other{path};
        QFile::setPermissions(path, QFile::permissions(path) | QFileDevice::ReadGroup);
        ASSERT_EQ(other.tryTake(), FileLock::Attempt::taken);
        EXPECT_TRUE(QFile::permissions(other.path()) & QFileDevice::ReadGroup) << "others can wait for it";
        // However long it is at work.
        std::filesystem::last_write_time(other.path().toStdString(), std::filesystem::file_time_type::min());
        EXPECT_EQ(store.saveXMLPatient(patient(u"A"_s, u"Abel"_s)).error().code, StoreErrorCode::busy);
        EXPECT_EQ(std::chrono::floor<std::chrono::seconds>(clock.slept()), std::chrono::seconds{3});
        EXPECT_EQ(content(), before);
    }
    EXPECT_TRUE(store.saveXMLPatient(patient(u"A"_s, u"Abel"_s)));
}

TEST_F(DataStoreTest, WhatCouldNotBeReadAgainNeverTakesTheFilesPlace) {
    dataFile("<SystemSetting/>");
    const QByteArray before = content();
    const DataFile file{{home.path(), program.path(), program.path()}, clock};
    const std::function<void(pugi::xml_node)> spoilings[]{
        [](pugi::xml_node root) { root.append_attribute("a").set_value("\x01"); },
        [](pugi::xml_node root) { root.append_child("not a name"); },
        [](pugi::xml_node root) {
            for (int level = 0; level < 100; ++level)
                root = root.append_child("a");
        }};
    for (const auto& spoil : spoilings) {
        const StoreResult result = file.edit([&spoil](pugi::xml_node root) {
            spoil(root);
            return DataFile::Edit::changed;
        });
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().code, StoreErrorCode::unreadable);
        EXPECT_EQ(content(), before);
    }
}

TEST_F(DataStoreTest, HomesThatShareOneFileByALinkTakeTurns) {
    dataFile("<SystemSetting/>");
    const QTemporaryDir otherHome;
    const QString otherPath = otherHome.filePath(u"Library/Application Support/ZELMac/ZEL.xml"_s);
    QDir{}.mkpath(QFileInfo{otherPath}.path());
    ASSERT_TRUE(QFile::link(path, otherPath));
    ManualClock otherClock;
    const DataFile own{{home.path(), program.path(), program.path()}, clock};
    const DataFile linked{{otherHome.path(), program.path(), program.path()}, otherClock};
    const StoreResult done = own.edit([&](pugi::xml_node) {
        const auto change = [](pugi::xml_node) { return DataFile::Edit::changed; };
        const StoreResult second = linked.edit(change);
        EXPECT_TRUE(!second && second.error().code == StoreErrorCode::busy);
        return DataFile::Edit::unchanged;
    });
    EXPECT_TRUE(done);
}

TEST_F(DataStoreTest, WhatKilledProgramsLeftHoldsNobodyUp) {
    const QString lock = path + u".lock"_s;
    const QString temporary = QFileInfo{path}.path() + u"/.ZEL.xml.new-abcdef"_s;
    dataFile("<SystemSetting/>");
    write(temporary, "half a file");
    ASSERT_TRUE(store.load());
    EXPECT_FALSE(QFileInfo::exists(temporary));
    write(lock, "");
    EXPECT_TRUE(store.saveXMLPatient(patient(u"A"_s, u"Abel"_s)));
    ASSERT_TRUE(QDir{}.mkdir(lock));
    EXPECT_TRUE(store.saveXMLPatient(patient(u"B"_s, u"Baker"_s)));
    EXPECT_FALSE(QFileInfo::exists(lock));
    ASSERT_TRUE(QDir{}.mkpath(lock + u"/own"_s));
    const StoreResult blocked = store.saveXMLPatient(patient(u"C"_s, u"Clark"_s));
    ASSERT_FALSE(blocked);
    EXPECT_EQ(blocked.error(), (StoreError{StoreErrorCode::lockBlocked, lock, {}}));
    EXPECT_EQ(clock.slept(), std::chrono::seconds{0}) << "nobody has waited";
}

TEST_F(DataStoreTest, NumbersOfRecordsWithoutAPatientAreTakenToo) {
    dataFileOfA(
        "<Comment><CommentID>10001</CommentID><Comment>orphan</Comment></Comment>"
        "<Comment><ID>A</ID><CommentID>99999999999999999999</CommentID></Comment><?Comment instruction?>"
        "<MeasureRec><ID>A</ID><RecID>1000050</RecID></MeasureRec><MeasureRec><RecID>1000007</RecID></"
        "MeasureRec>");
    ASSERT_TRUE(store.load());
    store.setCurrentID(u"A"_s);
    EXPECT_EQ(store.getMaxID(DataStore::Counter::comment), u"10002"_s);
    EXPECT_EQ(store.getMaxID(DataStore::Counter::reading), u"1000051"_s);
    CommentModel comment;
    comment.CommentID = u"10002"_s;
    EXPECT_EQ(store.addCommentForCurID(comment), u"10002"_s); // not a copy of the instruction
    EXPECT_EQ(store.addCommentForCurID(comment), u"10003"_s) << "the number is taken by now";
    EXPECT_EQ(store.getCommentForCurID().size(), 3U);
}

TEST_F(DataStoreTest, LogsItsStepsInTheSameWordsAsEver) {
    const auto loadIn = [this](const QString& otherHome, const QString& otherProgram) {
        std::ignore = DataStore{{otherHome, otherProgram, otherProgram}, clock}.load();
    };
    const struct {
        const char* what;
        QByteArray records; ///< null: no file
        std::function<void()> act;
        const char* lines;
    } cases[] = {
        {"the first start",
         {},
         [&] { std::ignore = store.load(); },
         "File successfully written to ./.target|~/ZEL.xml  file  does not  exists|"
         "copy from ./ZEL_pad.xml to ~/ZEL.xml success|xml data loaded from filepath:~/ZEL.xml|"
         "?itemNodes = 0|reading itemNodes count = 0|?isSelected FALSE"},
        {"no template",
         {},
         [&] { loadIn(home.path(), program.filePath(u"no"_s)); },
         "Error writing file: No such file or directory|~/ZEL.xml  file  does not  exists|"
         "copy from ./no/ZEL_pad.xml to ~/ZEL.xml fail|!nodesForXPath failed "},
        {"an older version's file, and a home that is no folder",
         {},
         [&] {
             write(program.filePath(u"ZEL.xml"_s), templateFile);
             loadIn(program.filePath(u"ZEL_pad.xml"_s), program.path());
         },
         "./ZEL_pad.xml/ZEL.xml  file  does not  exists|"
         "!The data file of an older version, ./ZEL.xml, could not be moved|"
         "copy from ./ZEL_pad.xml to ./ZEL_pad.xml/ZEL.xml fail|!nodesForXPath failed "},
        {"records",
         "<SystemSetting/><Patient><ID>A</ID></Patient><MeasureRec><ID>A</ID><RecID>7</RecID><ReadingDate>"
         "2019-03-22T08:00:00+01:00</ReadingDate></MeasureRec><MeasureRec><ID>A</ID><RecID>8</RecID>"
         "<ReadingDate>soon</ReadingDate></MeasureRec><MeasureRec/><Comment><ID>A</ID><CommentID>9</"
         "CommentID>"
         "<BeginDate>2019-03-22T00:00:00+01:00</BeginDate><EndDate>2019-03-23T23:59:59+01:00</EndDate>"
         "<Comment>ill</Comment></Comment><Comment/><DataTransferLog><ID>B</ID></DataTransferLog>"
         "<DataTransferLog/>",
         [&] {
             std::ignore = store.loadXML();
             store.setCurrentID(u"A"_s);
             store.setSelectedComment(u"9"_s);
         },
         "~/ZEL.xml  file  does  exists|xml data loaded from filepath:~/ZEL.xml|"
         "?new Mutable Array reading for ID A |?XML data error: soon|"
         "?error no RecID\n|!error: add reading for empty ID|"
         "?new Mutable Array comment for ID A|?error no RecID\n|!error: add comment for empty ID|"
         "?error no RecID\n|?new Mutable Array data log for ID B|"
         "?error no RecID\n|!error: add data log for empty ID|?itemNodes = 1|reading itemNodes count = 2|"
         "?ID A|?comment period 2019/03/22 2019/03/23|"
         "?readingModel comment:ill  date:2019/03/22 08:00 begin:YES end:NO|"
         "?isSelected FALSE|?isSelected YES"},
        {"a download", "<SystemSetting/><Patient><ID>A</ID></Patient>",
         [&] {
             store.setCurrentID(u"A"_s);
             std::ignore = store.newDataTransfer({reading(120)});
         },
         "xml data loaded from filepath:~/ZEL.xml|?itemNodes = 1|reading itemNodes count = 0|"
         "add new reading......|write document out...|~/ZEL.xml  file  does  exists|"
         "xml data loaded from filepath:~/ZEL.xml|?new Mutable Array data log for ID A|"
         "?new Mutable Array reading for ID A |?itemNodes = 1|reading itemNodes count = 1|?ID A|"
         "?isSelected FALSE|add new reading......1|add new reading......2"},
        {"nobody to delete", "<SystemSetting/>", [&] { std::ignore = store.deleteXMLPatient(u"A"_s); },
         "xml data loaded from filepath:~/ZEL.xml|?delete node ID:A error, no node found = |"
         "?no comment to be deleted for ID: A|?no measure to be deleted for ID: A|write document out..."},
        {"a comment that has gone", "<SystemSetting/>",
         [&] {
             CommentModel comment;
             comment.CommentID = u"7"_s;
             std::ignore = store.saveCommentToXML(comment);
         },
         "xml data loaded from filepath:~/ZEL.xml|?nodesForXPath failed 7|"
         "~/ZEL.xml  file  does  exists|xml data loaded from filepath:~/ZEL.xml|?itemNodes = 0|reading "
         "itemNodes count = 0|?isSelected FALSE"},
        {"a damaged file", "<",
         [&] {
             std::ignore = store.loadXML();
             std::ignore = store.beginExport();
             std::ignore = XmlFile::read(path);
             write(home.filePath(u"B.xml"_s), "<ZEL><Patient><ID>B</ID></Patient></ZEL>");
             std::ignore = store.importXml(home.filePath(u"B.xml"_s));
         },
         "~/ZEL.xml  file  does  exists|!nodesForXPath failed XmlErrorNearLine|"
         "!_export  create xml doc failed|?load xml for ~/ZEL.xml error|!_export  create xml doc failed|"
         "?itemNodes = 1|~/ZEL.xml  file  does  exists|!nodesForXPath failed XmlErrorNearLine|!Could not "
         "write document out...|!import  create xml doc failed"},
        {"an export, a second one to the same place, and a folder that goes", "<Patient><ID>A</ID></Patient>",
         [&] {
             QDir folder{home.filePath(u"out"_s)};
             folder.mkpath(u"."_s);
             const auto all = store.beginExport();
             for (int time = 1; time <= 2; ++time)
                 std::ignore = all->writeXml(u"A"_s, folder.path(), Replace::no);
             folder.removeRecursively();
             std::ignore = all->finish();
         },
         "xml data loaded from filepath:~/ZEL.xml|write document out...|!Could not write document out...|"
         "!Could not flush ~/out"},
        {"texts of patients",
         {},
         [&] {
             std::ignore = PatientModel{}.convertAndSetHeight(u"5"_s, {});
             std::ignore = toDoubleQuote(u"5\""_s);
         },
         "?convertAndSetHeight parameter error|?before: 5\" after: 5\"\""},
    };
    for (const auto& each : cases) {
        QFile::remove(path);
        if (!each.records.isNull()) dataFile(each.records);
        const QString lines = QString::fromStdString(logOf(each.act))
                                  .replace(home.path(), u"~"_s)
                                  .replace(program.path(), u"."_s)
                                  .remove(u"/Library/Application Support/ZELMac"_s)
                                  .remove(QRegularExpression{u"\\?XML folder:[^|]+\\|"_s}); // many
        EXPECT_EQ(lines.toStdString(), each.lines) << each.what;
    }
}

TEST_F(DataStoreTest, MissingFileIsToldAsNotWritable) {
    ScriptedPanel panel;
    dataFile("<SystemSetting/>");
    EXPECT_TRUE(store.checkXmlWritable(panel));
    EXPECT_EQ(panel.shown, 0);
    QFile::remove(path);
    EXPECT_FALSE(store.checkXmlWritable(panel));
    EXPECT_EQ(panel.shown, 1);
}

} // namespace
} // namespace zel
