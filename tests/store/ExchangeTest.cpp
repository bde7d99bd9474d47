#include "store/AllPatients.h"
#include "store/AtomicFile.h"
#include "store/DataStore.h"
#include "store/ExportFile.h"
#include "store/RecordXml.h"
#include "store/XmlFile.h"
#include "support/FullDisk.h"
#include "support/ManualClock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>

namespace zel {
namespace {

using namespace Qt::StringLiterals;
using Code = StoreErrorCode;
using Refusal = ImportRefusalCode;

/// Two patients with readings and comments, mixed, and everything that belongs to none of them.
const QByteArray sample = R"(<?xml version="1.0" encoding="ISO-8859-1"?>
<!-- by hand -->
<ZEL version="2">
    <Patient>
        <ID>A1</ID>
        <FamilyName>M)"
                          "\xFC"
                          R"(ller</FamilyName>
    </Patient>
    <MeasureRec>
        <ID>A1</ID>
        <Sys>121</Sys>
    </MeasureRec>
    <Patient>
        <ID>B2</ID>
        <GivenNames>Bert &amp; Co</GivenNames>
    </Patient>
    <!-- between -->
    <MeasureRec>
        <ID>B2</ID>
        <Sys>122</Sys>
    </MeasureRec>
    <Comment>
        <ID>B2</ID>
        <CommentID>10001</CommentID>
        <Comment>of B2</Comment>
    </Comment>
    <SystemSetting>
        <DateFormat>yyyy mm dd</DateFormat>
    </SystemSetting>
    <MeasureRec>
        <ID>A1</ID>
        <Sys>123</Sys>
    </MeasureRec>
    <Comment>
        <ID>A1</ID>
        <CommentID>10002</CommentID>
        <Comment>of A1</Comment>
    </Comment>
    <DataTransferLog>
        <ID>B2</ID>
        <RecID>100001</RecID>
    </DataTransferLog>
    <Unknown>kept</Unknown>
</ZEL>
)";

/// A home with a data file, and a folder to export to.
struct ExchangeTest : testing::Test {
    QTemporaryDir home;
    QTemporaryDir out;
    ManualClock clock;
    DataStore store{{home.path(), home.path(), home.path()}, clock};
    QString path = store.getZELXMLPath();

    ExchangeTest() { setData(sample); }

    static void write(const QString& file, const QByteArray& content) {
        QDir{}.mkpath(QFileInfo{file}.path());
        ASSERT_TRUE(replaceFile(file, content));
    }
    void setData(const QByteArray& content) {
        write(path, content);
        ASSERT_TRUE(store.loadXML());
    }
    [[nodiscard]] QByteArray data() const { return readFile(path).value_or(QByteArray{}); }
    [[nodiscard]] QByteArray exported(const QString& name) const {
        return readFile(out.filePath(name)).value_or(QByteArray{});
    }
    StoreResult exportXml(const QString& ID, Replace replace = Replace::no) {
        return store.beginExport()->writeXml(ID, out.path(), replace);
    }
    [[nodiscard]] QString importFile(const QByteArray& content) const {
        QString file = out.filePath(u"import.xml"_s);
        write(file, content);
        return file;
    }
};

/// \p text without the elements of \p kind that belong to \p ID.
QByteArray without(QByteArray text, const QByteArray& kind, const QByteArray& ID) {
    const QByteArray begin = "    <" + kind + ">\n        <ID>" + ID + "</ID>";
    const QByteArray end = "\n    </" + kind + ">\n";
    for (qsizetype at = 0; (at = text.indexOf(begin)) >= 0;)
        text.remove(at, text.indexOf(end, at) + end.size() - at);
    return text;
}

TEST_F(ExchangeTest, EachFileHoldsAllButOtherPatientsRecords) {
    EXPECT_EQ(store.beginExport()->patients(), (QStringList{u"A1"_s, u"B2"_s}));
    for (const auto& [own, other] : {std::pair{"A1", "B2"}, std::pair{"B2", "A1"}}) {
        SCOPED_TRACE(own);
        ASSERT_TRUE(exportXml(QString::fromLatin1(own)));
        QByteArray expected = sample;
        for (const char* kind : {"Patient", "Comment", "MeasureRec"})
            expected = without(expected, kind, other);
        EXPECT_EQ(exported(QString::fromLatin1(own) + u".xml"_s), expected);
    }
    EXPECT_EQ(data(), sample);
    EXPECT_EQ(exportXml(u"C3"_s).error().code, Code::noSuchRecord);
    EXPECT_EQ(QDir{out.path()}.entryList(QDir::Files).size(), 2);
}

TEST_F(ExchangeTest, TextAmongTheRecordsIsKept) {
    setData("<ZEL>before<Patient><ID>A1</ID></Patient>between<Patient><ID>B2</ID></Patient></ZEL>\n");
    ASSERT_TRUE(exportXml(u"A1"_s));
    const auto document = XmlDocument::parse(exported(u"A1.xml"_s));
    EXPECT_EQ(elementText(document->root()), u"beforebetween"_s);
    EXPECT_FALSE(document->root().child("Patient").next_sibling("Patient"));
}

TEST_F(ExchangeTest, DamagedDataFileIsNotExported) {
    write(path, sample.chopped(10));
    EXPECT_EQ(store.beginExport().error().code, Code::notParsed);
}

TEST(ExportFileName, StaysInTheFolderAndIsNeverAnothersName) {
    const QString widest = QString{251, u'a'};
    const std::pair<QString, QString> cases[] = {
        {u"DEMO 1"_s, u"DEMO 1.xml"_s},
        {u"Jörg 😀"_s, u"Jörg 😀.xml"_s},
        {u".a"_s, u"%2Ea.xml"_s},
        {u"."_s, u"%2E.xml"_s},
        {u".."_s, u"%2E..xml"_s},
        {u"..."_s, u"%2E...xml"_s},
        {u"/"_s, u"%2F.xml"_s},
        {u"../../x"_s, u"%2E.%2F..%2Fx.xml"_s},
        {u"%2F"_s, u"%252F.xml"_s},
        {u"100%"_s, u"100%.xml"_s},
        {u"%/"_s, u"%%2F.xml"_s},
        {u"%~1"_s, u"%25~1.xml"_s},
        {u"a\nb"_s, u"a%0Ab.xml"_s},
        {QString{QChar{0}}, u"%00.xml"_s},
        {u"a.:*?\"<>|\\"_s, u"a.%3A%2A%3F%22%3C%3E%7C%5C.xml"_s},
        {u"%2E"_s, u"%252E.xml"_s},
        {u"%09 %A0 %0F %90"_s, u"%2509 %25A0 %250F %2590.xml"_s},
        {u"%G0 %0G %@0 %0@ %a0 %1"_s, u"%G0 %0G %@0 %0@ %a0 %1.xml"_s},
        {u"a\x1F \x7F"_s, u"a%1F %7F.xml"_s},
        {QString{}, u"%.xml"_s},
        {widest, widest + u".xml"_s},
    };
    for (const auto& [ID, name] : cases)
        EXPECT_EQ(exportFileName(ID, u".xml"_s, false), name);
}

TEST_F(ExchangeTest, FilesOfADemonstrationSaySoInTheirNames) {
    DataStore invented{{home.path(), home.path(), home.path(), true}, clock};
    ASSERT_TRUE(invented.loadXML());
    const auto all = invented.beginExport();
    for (const QString& ID : all->patients()) {
        ASSERT_TRUE(all->writeXml(ID, out.path(), Replace::no));
        ASSERT_TRUE(invented.exportCSV(out.path(), ID, Replace::no));
    }
    EXPECT_EQ(QDir{out.path()}.entryList(QDir::Files, QDir::Name),
              (QStringList{u"Demonstration-A1.csv"_s, u"Demonstration-A1.xml"_s, u"Demonstration-B2.csv"_s,
                           u"Demonstration-B2.xml"_s}));
    const QString longest = exportFileName(QString{300, u'x'}, u".xml"_s, true);
    EXPECT_EQ(longest.size(), 255);
    EXPECT_TRUE(longest.startsWith("Demonstration-x"_L1));
}

TEST_F(ExchangeTest, AllPatientsAreThoseWithoutAnIDTooAndEachIDOnce) {
    setData("<ZEL><Patient><ID>A1</ID></Patient><Patient><ID/></Patient><Patient><ID>-</ID></Patient>"
            "<Patient><ID>A1</ID><FamilyName>Second</FamilyName></Patient><Patient/></ZEL>");
    const auto all = store.beginExport();
    EXPECT_EQ(all->patients(), (QStringList{u"A1"_s, u""_s, u"-"_s}));
    for (const QString& ID : all->patients())
        EXPECT_TRUE(all->writeXml(ID, out.path(), Replace::no));
    EXPECT_TRUE(exported(u"A1.xml"_s).contains("Second")) << "one file is of all who have the ID";
    ASSERT_TRUE(store.loadXML());
    const AllPatients listed = allPatients(store.getPatientArray());
    EXPECT_EQ(listed.IDs.size(), 3);
    EXPECT_EQ(listed.sameID, 2);
}

TEST_F(ExchangeTest, LongIDsGetShortNamesOfTheirOwn) {
    const QString longID = u'x' + QString{10'000, QChar{0x00E9}};
    QSet<QString> names;
    for (const QString& ID : {longID, longID + u'1', QString{252, u'/'}, QString{251, u'b'}}) {
        setData("<ZEL><Patient><ID>" + ID.toUtf8() + "</ID></Patient></ZEL>");
        EXPECT_TRUE(exportXml(ID));
        const QString name = exportFileName(ID, u".xml"_s, false);
        EXPECT_LE(name.toUtf8().size(), 255);
        EXPECT_FALSE(name.contains(QChar::ReplacementCharacter));
        EXPECT_TRUE(exported(name).contains(ID.toUtf8()));
        names.insert(name);
    }
    EXPECT_EQ(names.size(), 4);
    EXPECT_EQ(QDir{out.path()}.entryList(QDir::Files | QDir::Hidden).size(), 4);
}

TEST_F(ExchangeTest, ExistingFilesAreReplacedOnlyWhenToldAndLinksAreNotFollowed) {
    const QString target = out.filePath(u"A1.xml"_s);
    write(target, "older");
    EXPECT_EQ(exportXml(u"A1"_s).error(), (StoreError{Code::alreadyExists, target, {}}));
    EXPECT_EQ(exported(u"A1.xml"_s), "older");
    EXPECT_TRUE(exportXml(u"A1"_s, Replace::yes));
    EXPECT_TRUE(exported(u"A1.xml"_s).contains("<ID>A1</ID>"));

    const QString elsewhere = home.filePath(u"elsewhere"_s);
    for (const bool isThere : {true, false}) {
        if (isThere) write(elsewhere, "other");
        QFile::remove(target);
        ASSERT_TRUE(QFile::link(elsewhere, target));
        EXPECT_EQ(exportXml(u"A1"_s).error().code, Code::alreadyExists);
        EXPECT_TRUE(exportXml(u"A1"_s, Replace::yes));
        EXPECT_FALSE(QFileInfo{target}.isSymLink());
        EXPECT_EQ(readFile(elsewhere).value_or("none"), isThere ? "other" : "none");
        QFile::remove(elsewhere);
    }
}

TEST_F(ExchangeTest, FileOfTheSameExportIsNeverReplaced) {
    setData("<ZEL><Patient><ID>a1</ID></Patient><Patient><ID>A1</ID></Patient></ZEL>");
    for (int time = 1; time <= 2; ++time) { // on a disk that tells them apart, both are there in the end
        const auto both = store.beginExport();
        EXPECT_TRUE(both->writeXml(u"a1"_s, out.path(), Replace::yes));
        EXPECT_TRUE(both->writeXml(u"A1"_s, out.path(), Replace::yes));
    }
    const auto both = store.beginExport();
    ASSERT_TRUE(both->writeXml(u"a1"_s, out.path(), Replace::yes));
    const QString other = out.filePath(u"A1.xml"_s);
    ASSERT_TRUE(QFile::remove(other));
    std::filesystem::create_hard_link(out.filePath(u"a1.xml"_s).toStdString(), other.toStdString());
    for (const Replace replace : {Replace::no, Replace::yes})
        EXPECT_EQ(both->writeXml(u"A1"_s, out.path(), replace).error(),
                  (StoreError{Code::sameFileName, other, u"a1"_s}));
    EXPECT_TRUE(exported(u"a1.xml"_s).contains("<ID>a1</ID>"));
    EXPECT_TRUE(both->writeXml(u"a1"_s, out.path(), Replace::yes)) << "its own is not another's";
}

TEST_F(ExchangeTest, DataFileIsNeverExportedOver) {
    setData("<ZEL><Patient><ID>ZEL</ID></Patient><Patient><ID>A1</ID></Patient></ZEL>");
    const QByteArray before = data();
    const QString folder = QFileInfo{path}.path();
    for (const Replace replace : {Replace::no, Replace::yes})
        EXPECT_EQ(store.beginExport()->writeXml(u"ZEL"_s, folder, replace).error().code, Code::isDataFile);
    ASSERT_TRUE(QFile::link(path, out.filePath(u"A1.xml"_s)));
    EXPECT_EQ(exportXml(u"A1"_s, Replace::yes).error().code, Code::isDataFile);
    EXPECT_EQ(data(), before);
}

TEST_F(ExchangeTest, FailedExportLeavesNothingBehind) {
    EXPECT_EQ(store.beginExport()->writeXml(u"A1"_s, out.filePath(u"none"_s), Replace::no).error().code,
              Code::notWritable);
    ASSERT_TRUE(QDir{out.path()}.mkdir(u"B2.xml"_s));
    EXPECT_FALSE(exportXml(u"B2"_s, Replace::yes));
    {
        const FullDisk disk{100};
        EXPECT_EQ(exportXml(u"A1"_s).error().code, Code::sizeLimit);
        EXPECT_EQ(store.exportCSV(out.path(), u"A1"_s, Replace::no).error().code, Code::sizeLimit);
    }
    EXPECT_EQ(QDir{out.path()}.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"B2.xml"_s});
}

TEST_F(ExchangeTest, WhatAKilledExportLeftIsRemovedByTheNext) {
    const QString dead = out.filePath(u".zel-aB3xYz"_s);
    for (const bool isCsv : {true, false}) {
        write(dead, "half of a patient");
        if (isCsv) {
            ASSERT_TRUE(store.exportCSV(out.path(), u"A1"_s, Replace::yes));
        } else {
            auto all = store.beginExport();
            ASSERT_TRUE(all->writeXml(u"A1"_s, out.path(), Replace::yes));
            ASSERT_TRUE(all->finish());
        }
        EXPECT_FALSE(QFileInfo::exists(dead)) << isCsv;
    }
}

TEST_F(ExchangeTest, CsvHasThePatientAndTheReadings) {
    setData(R"(<ZEL><SystemSetting><DateFormat>mm dd yyyy</DateFormat><MetricFormat>kg / cm</MetricFormat>
        </SystemSetting><Patient><ID>A,1</ID><FamilyName>Adams</FamilyName><GivenNames>Anna</GivenNames>
        <Address>Street "1"
Town</Address><PhoneEmail>a@b</PhoneEmail><DateOfBirth>1970-02-03T00:00:00+01:00</DateOfBirth>
        <Weight>72.500000</Weight><Height>175.000000</Height><Sex>1</Sex><Smoker>1</Smoker><Diabetic>2</Diabetic>
        <Cholestrol>190.250000</Cholestrol><FamilyHistory>"</FamilyHistory><PatientNotes/></Patient>
        <Patient><ID>B</ID><Weight>1e300</Weight></Patient>
        <MeasureRec><ID>A,1</ID><ReadingDate>2026-12-31T00:30:00+01:00</ReadingDate><Sys>3000000000</Sys>
        </MeasureRec><MeasureRec><ID>A,1</ID><MAM>1</MAM><Arrhythmia>5</Arrhythmia>
        <ReadingDate>2026-07-05T21:05:00+02:00</ReadingDate><Sys>121</Sys><Dia>81</Dia><Map>94</Map>
        <Pulse>61</Pulse></MeasureRec>
        <MeasureRec><ID>A,1</ID><ReadingDate>1999-12-31T12:00:00+01:00</ReadingDate><Sys>1</Sys></MeasureRec>
        <MeasureRec><ID>A,1</ID><ReadingDate>2026-07-05T15:05:00-04:00</ReadingDate><Sys>2</Sys></MeasureRec>
        <MeasureRec><ID>A,1</ID><ReadingDate>2000-01-01T00:00:00+01:00</ReadingDate><Sys>3</Sys></MeasureRec>
        <MeasureRec><ID>A,1</ID><Sys>4</Sys></MeasureRec></ZEL>)");
    write(home.filePath(u".target"_s), "arm\n");
    ASSERT_TRUE(store.exportCSV(out.path(), u"A,1"_s, Replace::no));
    EXPECT_EQ(exported(u"A,1.csv"_s).toStdString(),
              "\nID,A,1,\nFamily Name,Adams,\nGiven Name(s),Anna,\n"
              "Address,\"Street \"\"1\"\"\nTown\",\nPhone / E-Mail,\"a@b\",\n"
              "Date of Birth,1970/2/3,\nWeight,72.5(kg),\nHeight,175.0(cm),\n"
              "Sex,Male,\nSmoker,Yes,\nDiabetic,No,\nCholesterol,190.2(mg/dL),\n"
              "Family history,\"\"\"\",\nPatient Notes,\"\",\n\n"
              "date,time,sys(mmHg),dia(mmHg),pulse(P/min),map,mam,arm,\n"
              "12/31/1999,12:0 PM,1,0,0,0,No,N/A,\n"
              ",,4,0,0,0,No,N/A,\n,,3,0,0,0,No,N/A,\n"
              "07/05/2026,9:5 PM,121,81,61,94,Yes,Yes,\n"
              "07/05/2026,9:5 PM,2,0,0,0,No,N/A,\n"
              "12/31/2026,12:30 AM,-1294967296,0,0,0,No,N/A,\n\n");

    store.getSetting().metricFormat = u"lb / in"_s;
    ASSERT_TRUE(store.exportCSV(out.path(), u"B"_s, Replace::no));
    EXPECT_EQ(exported(u"B.csv"_s).toStdString(),
              "\nID,B,\nFamily Name,,\nGiven Name(s),,\nAddress,\"\",\n"
              "Phone / E-Mail,\"\",\nDate of Birth,,\nWeight,(lb),\nHeight,(ft/in),\n"
              "Sex,Female,\nSmoker,No,\nDiabetic,No,\nCholesterol,(mg/dL),\n"
              "Family history,\"\",\nPatient Notes,\"\",\n\n"
              "date,time,sys(mmHg),dia(mmHg),pulse(P/min),map,mam,arm,\n\n");
    EXPECT_EQ(store.exportCSV(out.path(), u"B"_s, Replace::no).error().code, Code::alreadyExists);
    EXPECT_EQ(store.exportCSV(out.path(), u"C"_s, Replace::no).error().code, Code::noSuchRecord);
}

/// The names of the root's children with their ID, CommentID and RecID, in order.
std::string order(const QByteArray& file) {
    const auto document = XmlDocument::parse(file);
    std::string names;
    for (const pugi::xml_node node : document->root().children()) {
        names += std::string{names.empty() ? "" : " "} + node.name() + ':' + node.child_value("ID")
                 + node.child_value("CommentID") + node.child_value("RecID");
    }
    return names;
}

TEST_F(ExchangeTest, ImportPlacesEachKindAfterItsLast) {
    const QString file = importFile(
        "<ZEL><MeasureRec><ID>C</ID><RecID>1</RecID></MeasureRec><Patient><ID>C</ID></Patient>"
        "<SystemSetting/><Comment><ID>C</ID><CommentID>7</CommentID></Comment><Patient><ID>D</ID></Patient>"
        "<DataTransferLog/><MeasureRec><ID>D</ID><RecID>1</RecID></MeasureRec></ZEL>");
    const std::pair<QByteArray, std::string> cases[] = {
        {"<ZEL><Patient><ID>A</ID></Patient><MeasureRec><ID>A</ID><RecID>1</RecID></MeasureRec>"
         "<Comment><ID>A</ID><CommentID>8</CommentID></Comment><SystemSetting/></ZEL>",
         "Patient:A Patient:C Patient:D MeasureRec:A1 MeasureRec:C1 MeasureRec:D1 Comment:A8 Comment:C7 "
         "SystemSetting:"},
        {"<ZEL><SystemSetting/></ZEL>",
         "SystemSetting: Patient:C Patient:D Comment:C7 MeasureRec:C1 MeasureRec:D1"},
    };
    for (const auto& [before, after] : cases) {
        setData(before);
        const auto counts = store.importXml(file);
        ASSERT_TRUE(counts);
        EXPECT_EQ(std::tuple(counts->patients, counts->readings, counts->comments), std::tuple(2U, 2U, 1U));
        EXPECT_EQ(order(data()), after);
    }
}

TEST_F(ExchangeTest, CommentsWithATakenNumberGetTheirOwn) {
    setData("<ZEL><Comment><ID>A</ID><CommentID>10001</CommentID></Comment><SystemSetting/></ZEL>");
    ASSERT_TRUE(
        store.importXml(importFile("<ZEL><Patient><ID>C</ID></Patient>"
                                   "<Comment><ID>C</ID><CommentID>10001</CommentID></Comment>"
                                   "<Comment><ID>C</ID><CommentID>10002</CommentID></Comment>"
                                   "<Comment><ID>C</ID><CommentID>10001</CommentID></Comment></ZEL>")));
    EXPECT_EQ(order(data()),
              "Comment:A10001 Comment:C10003 Comment:C10002 Comment:C10004 SystemSetting: Patient:C");
}

TEST_F(ExchangeTest, WhatIsExportedAndDeletedComesBackEqual) {
    ASSERT_TRUE(exportXml(u"A1"_s));
    ASSERT_TRUE(store.deleteXMLPatient(u"A1"_s));
    ASSERT_TRUE(store.importXml(out.filePath(u"A1.xml"_s)));
    const QByteArray back = data();
    ASSERT_TRUE(exportXml(u"A1"_s, Replace::yes));
    for (const QByteArray& text : {back, exported(u"A1.xml"_s)}) {
        for (const char* record : {"M\xFCller", "<Sys>121<", "<Sys>123<", "of A1"})
            EXPECT_EQ(text.count(record), 1) << record;
    }
}

TEST_F(ExchangeTest, RefusedImportChangesNothing) {
    struct Case {
        QByteArray file;
        Refusal code;
        QString ID = {};
    };
    const Case cases[] = {
        {"<ZEL><Patient><ID>N</ID></Patient><Patient><ID>B2</ID></Patient></ZEL>", Refusal::alreadyKnown,
         u"B2"_s},
        {"<ZEL><Patient><ID>N</ID></Patient><MeasureRec><ID>A1</ID></MeasureRec></ZEL>",
         Refusal::alreadyKnown, u"A1"_s},
        {"<ZEL><Patient><ID>N</ID></Patient><Patient><ID>N</ID></Patient></ZEL>", Refusal::sameIDTwice,
         u"N"_s},
        {"<ZEL><MeasureRec><ID>N</ID></MeasureRec></ZEL>", Refusal::noPatient},
        {"<ZEL><Patient><ID>N</ID></Patient><Patient/></ZEL>", Refusal::noID},
        {"<ZEL><Patient><ID>-</ID></Patient></ZEL>", Refusal::noID},
        {"<ZEL><Patient><ID> \n </ID></Patient></ZEL>", Refusal::noID},
        {"<ZEL><Patient><ID>N\nM</ID></Patient></ZEL>", Refusal::badID, u"N M"_s},
        {"<ZEL><Patient><ID>N</ID></Patient><MeasureRec><ID>N\tM</ID></MeasureRec></ZEL>", Refusal::badID,
         u"N M"_s},
        {"<ZEL><Patient><ID> A1\n</ID></Patient></ZEL>", Refusal::alreadyKnown, u"A1"_s},
        {"<ZEL><Patient><ID>N</ID></Patient><Patient><ID>N </ID></Patient></ZEL>", Refusal::sameIDTwice,
         u"N"_s},
        {"<ZEL><Patient><ID>N</ID></Patient>", Refusal::notReadable},
        {"<OTHER><Patient><ID>N</ID></Patient></OTHER>", Refusal::notReadable},
        {"<!DOCTYPE ZEL [<!ENTITY e SYSTEM 'ZEL.xml'>]><ZEL><Patient><ID>&e;</ID></Patient></ZEL>",
         Refusal::notReadable},
        {"", Refusal::notReadable},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.file.constData());
        const auto result = store.importXml(importFile(one.file));
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().code, one.code);
        EXPECT_EQ(result.error().ID, one.ID);
        EXPECT_EQ(data(), sample);
    }
    EXPECT_EQ(store.importXml(out.path()).error().code, Refusal::notReadable);
    EXPECT_EQ(store.importXml(out.filePath(u"none.xml"_s)).error().code, Refusal::notReadable);

    QFile large{out.filePath(u"large.xml"_s)};
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(largestImport + 1));
    EXPECT_EQ(store.importXml(large.fileName()).error().code, Refusal::tooLarge);
    EXPECT_TRUE(XmlFile::read(large.fileName()).isLarge);
    EXPECT_EQ(XmlFile::read(large.fileName()).fault.value().code, Refusal::tooLarge);

    const QString good = importFile("<ZEL><Patient><ID>N</ID></Patient></ZEL>");
    {
        const FullDisk disk{100};
        EXPECT_EQ(store.importXml(good).error().code, Refusal::notStored);
    }
    EXPECT_EQ(data(), sample);
}

TEST_F(ExchangeTest, ImportSeesWhatAnotherProgramHasStored) {
    setData("<ZEL><SystemSetting/></ZEL>");
    write(path, "<ZEL><Patient><ID>N</ID></Patient></ZEL>");
    EXPECT_EQ(store.importXml(importFile("<ZEL><Patient><ID>N</ID></Patient></ZEL>")).error().code,
              Refusal::alreadyKnown);
}

TEST_F(ExchangeTest, ListEntryCountsWhatIsInTheFile) {
    const auto entry = [this](const QString& name, const QByteArray& content) {
        write(out.filePath(name), content);
        return XmlFile::read(out.filePath(name));
    };
    const XmlFile read = entry(u"a b.xml"_s, sample);
    EXPECT_EQ(read.FullPath, out.filePath(u"a b.xml"_s));
    EXPECT_EQ(read.sFileName, u"a b.xml"_s);
    EXPECT_EQ(std::pair(read.measureRec, read.comment), std::pair(3U, 2U));
    EXPECT_FALSE(read.fault);
    const XmlFile nameless =
        entry(u"n.xml"_s, "<ZEL><Patient><ID> X </ID><GivenNames>Jo</GivenNames></Patient>"
                          "<Patient/><Comment><ID>Y</ID></Comment></ZEL>");
    EXPECT_EQ(nameless.patients, (QStringList{u"Jo"_s, {}}));
    EXPECT_TRUE(nameless.IDs.contains(u"X"_s) && nameless.IDs.contains(u"Y"_s));
    EXPECT_EQ(nameless.fault.value().code, Refusal::noID);
    EXPECT_EQ(read.backupTime, QFileInfo{read.FullPath}.birthTime().toString(u"yyyy/MM/dd"_s));
    for (const auto& [name, content] :
         {std::pair{u"a.XML"_s, sample}, std::pair{u"b.xml"_s, sample.left(99)}}) {
        const XmlFile unread = entry(name, content);
        EXPECT_FALSE(unread.isRead());
        EXPECT_EQ(unread.fault.has_value(), name == "b.xml"_L1);
        EXPECT_EQ(unread.sFileName, name);
        EXPECT_EQ(unread.measureRec + unread.comment, 0U);
    }
}

} // namespace
} // namespace zel
