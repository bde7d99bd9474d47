#include "DataStoreTest.h"

namespace zel {
namespace {

struct ScriptedPanel final : MessagePanel {
    int shown = 0;
    void ShowMessage(const QString&, const QString&) override { ++shown; }
    bool AskMessage(const QString&, const QString&) override { return false; }
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

TEST_F(DataStoreTest, LoadInTwoHalvesIsTheSameLoad) {
    dataFileOfA("<MeasureRec><ID>A</ID><RecID>1</RecID></MeasureRec>");
    int reloads = 0;
    QObject::connect(&store, &DataStore::reloaded, &store, [&reloads] { ++reloads; });
    auto reading = store.beginLoad();
    EXPECT_TRUE(store.getPatientArray().empty());
    EXPECT_EQ(reloads, 0);
    EXPECT_TRUE(store.finishLoad(std::move(reading)));
    EXPECT_EQ(reloads, 1);
    EXPECT_EQ(store.getReadingForID(u"A"_s).size(), 1U);
    EXPECT_TRUE(store.lastLoad() && store.validIDinXML(u"A"_s) && !store.isChangedElsewhere());

    reading = store.beginLoad();
    reading.wait();
    dataFile("<Patient><ID>B</ID></Patient>"); // by another program, while the window is made
    EXPECT_TRUE(store.finishLoad(std::move(reading)));
    EXPECT_TRUE(store.isChangedElsewhere());

    write(path, "<ZEL>");
    reading = store.beginLoad();
    EXPECT_EQ(store.finishLoad(std::move(reading)).error().code, StoreErrorCode::notParsed);
    EXPECT_FALSE(store.lastLoad());
    EXPECT_EQ(reloads, 3);
}

TEST_F(DataStoreTest, LinkToWhatIsOutOfReachIsLeftAndTold) {
    const QString share = home.filePath(u"share.xml"_s); // not there now
    ASSERT_TRUE(QDir{}.mkpath(QFileInfo{path}.path()) && QFile::link(share, path));
    EXPECT_EQ(store.load().error().code, StoreErrorCode::notReadable);
    EXPECT_EQ(QFileInfo{path}.symLinkTarget(), share);
    write(share, "<ZEL><SystemSetting/><Patient><ID>A</ID></Patient></ZEL>");
    EXPECT_TRUE(store.load() && store.validIDinXML(u"A"_s));
    EXPECT_EQ(makeFile(path, "another").error().code, StoreErrorCode::alreadyExists);
}

TEST_F(DataStoreTest, DemonstrationIsKnownByItsMarkWhoeverOpensIt) {
    const QTemporaryDir other;
    const auto opened = [this](const QTemporaryDir& at, bool isDemonstration = false) {
        return DataFile{{at.path(), program.path(), program.path(), isDemonstration}, clock};
    };
    ASSERT_TRUE(store.load());
    EXPECT_FALSE(opened(home).isDemonstration());
    const DataFile invented = opened(home, true);
    ASSERT_TRUE(invented.checkXMLFileExist()) << "one that an older version has made gets it, too";
    EXPECT_TRUE(opened(home).isDemonstration());
    const QString mark = QFileInfo{path}.path() + u"/Demonstration"_s;
    EXPECT_EQ(QFile::permissions(mark) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions{});

    const QString link = opened(other).getZELXMLPath();
    ASSERT_TRUE(QDir{}.mkpath(QFileInfo{link}.path()));
    EXPECT_FALSE(opened(other).isDemonstration());
    ASSERT_TRUE(QFile::link(path, link));
    EXPECT_TRUE(opened(other).isDemonstration()) << "the data are the same";

    ASSERT_TRUE(QFile::remove(mark) && QFile::link(u"/nowhere"_s, mark));
    EXPECT_EQ(invented.checkXMLFileExist().error().path, mark) << "without it nobody would know later";
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
    EXPECT_EQ(QDir(QFileInfo(path).path() + u"/Backups"_s).entryList({u"ZEL-*.xml"_s}).size(), 1)
        << "a copy is kept before it, as before any change";
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
    EXPECT_EQ(store.newDataTransfer({reading(120), reading(121), reading(120)}).value().added,
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
    EXPECT_EQ(store.newDataTransfer({reading(121), reading(120)}).value().added, 0U);
    EXPECT_EQ(content(), before);

    store.setCurrentID(u"new"_s);
    EXPECT_EQ(store.newDataTransfer({reading(121)}).value().added, 1U);
    EXPECT_TRUE(QString::fromStdString(order()).endsWith(
        u"MeasureRec:B7 MeasureRec:new1000045 DataTransferLog:A100001 DataTransferLog:new100002"_s));
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
