#include "store/ReadingTable.h"

#include "store/DataStoreTest.h"
#include "store/ExportFile.h"
#include "store/TableColumns.h"
#include "support/InZone.h"
#include "support/RealTexts.h"

#include <QStringEncoder>

#include <gmock/gmock.h>

namespace zel {
namespace {

using Refusal = ImportRefusalCode;
using testing::HasSubstr;

const QByteArray titles =
    "patient,family_name,given_names,record,date_time,sys,dia,pulse,map,pp,mam,arrhythmia,"
    "source,excluded,reason,comment,comment_from,comment_to,comment_colour\r\n";

QByteArray measured(const QByteArray& ID, const QByteArray& number, const QByteArray& date,
                    const QByteArray& values, const QByteArray& more = {}) {
    const QList<QByteArray> v = values.split(' ');
    return "<MeasureRec><ID>" + ID + "</ID><RecID>" + number + "</RecID><MAM>" + v[0] + "</MAM><Arrhythmia>"
           + v[1] + "</Arrhythmia><ReadingDate>" + date + "</ReadingDate><Sys>" + v[2] + "</Sys><Dia>" + v[3]
           + "</Dia><Map>" + v[4] + "</Map><PP>" + v[5] + "</PP><Pulse>" + v[6] + "</Pulse>" + more
           + "</MeasureRec>\n";
}

/// Whatever a cell can have: signs of CSV and of formulas, every kind of reading and mark, ties and no dates.
const QByteArray everything =
    "<SystemSetting/>\n"
    "<Patient><ID>A</ID><FamilyName>O'Hara, \"Jo\"</FamilyName><GivenNames>=1+1</GivenNames></Patient>\n"
    "<Patient><ID>-5</ID><FamilyName>'t Hooft</FamilyName><GivenNames>\xEF\xBC\x9D"
    "A\nB</GivenNames></Patient>\n"
    "<Patient><ID>C</ID></Patient>\n"
    + measured("A", "1000007", "2026-11-20T07:05:00+01:00", "1 5 131 84 99 47 66")
    + measured("A", "1000002", "2000-01-01T00:00:00+01:00", "0 4 121 80 93 41 60")
    + measured("A", "7", "2026-11-19T21:30:31-05:00", "0 1 140 90 106 50 70",
               "<Excluded>=cuff, \"loose\"\nx</Excluded>")
    + measured("-5", "1000003", "2026-11-19T08:00:00+01:00", "0 2 150 95 113 55 75")
    + measured("A", "1000004", "2026-11-18T08:00:00+01:00", "0 0 141 92 109 49 71",
               "<Source>manual</Source><Excluded/>")
    + measured("A", "1000005", "2026-11-18T08:00:00+01:00", "2 3 141 92 108 48 71")
    + measured("-5", "1000010", "2026-11-18T09:00:00+01:00", "0 0 141 92 90 51 71")
    + measured("-5", "1000011", "2026-11-18T10:00:00+01:00", "0 0 141 92 143 47 71")
    + measured("A", "1000006", "2026-11-17T08:00:00+01:00", "0 0 142 93 109 49 72", "<Source>manual</Source>")
    + measured("A", "1000008", "2000-01-01T00:00:00+01:00", "0 4 121 80 93 41 60")
    + measured("A", "1000009", "2027-01-01T00:00:00+01:00", "0 0 0 255 4294967211 4294967041 0",
               "<Excluded>clock</Excluded>")
    + "<Comment><ID>A</ID><CommentID>10004</CommentID><Degree>3</Degree>"
      "<BeginDate>2026-11-18T00:00:00+01:00</BeginDate><EndDate>2026-11-19T23:59:59+01:00</EndDate>"
      "<Comment>@new, tablets</Comment></Comment>\n"
      "<Comment><ID>A</ID><CommentID>10002</CommentID><Degree>7</Degree>"
      "<BeginDate>2026-11-17T00:00:00+01:00</BeginDate><EndDate>2026-11-17T23:59:59+01:00</EndDate>"
      "<Comment>x</Comment></Comment>\n";

struct ReadingTableTest : DataStoreTest {
    QString table = home.filePath(u"all.csv"_s);

    void load(const QByteArray& records) {
        dataFile(records);
        ASSERT_TRUE(store.load());
    }
    QByteArray exported() {
        QStringList IDs;
        for (const PatientModel& patient : store.getPatientArray())
            IDs += patient.ID;
        EXPECT_TRUE(store.exportTable(table, IDs, Replace::yes));
        return readFile(table).value_or(QByteArray{});
    }
    /// The data file with these records after an import of the content.
    tl::expected<ImportCounts, ImportRefusal> import(const QByteArray& content,
                                                     const TableImport& wanted = {}) {
        write(table, content);
        auto counts = store.importTable(table, wanted);
        EXPECT_TRUE(store.loadXML());
        return counts;
    }
    /// Why not; the data file has to be as it was.
    QString refusal(const QByteArray& content, const TableImport& wanted, Refusal code) {
        const QByteArray before = this->content();
        const auto taken = import(content, wanted);
        EXPECT_EQ(this->content(), before);
        if (taken) return u"taken"_s;
        EXPECT_EQ(static_cast<int>(taken.error().code), static_cast<int>(code)) << content.constData();
        return describe(taken.error()).remove(table);
    }
    /// A patient's readings, all that a table has of them.
    std::string readings(const QString& ID) {
        store.setCurrentID(ID);
        std::string all;
        for (const ReadingModel& r : store.getReadingForCurID()) {
            all += r.RecID.text().toStdString() + ' '
                   + DateToStr_EN(r.ReadingDate, u"yyyyMMdd HHmmss"_s).toStdString()
                   + (r.isUndated() ? " undated" : ' ' + std::to_string(r.utcOffset));
            for (const std::uint32_t value : r.values())
                all += ' ' + std::to_string(value);
            all += (r.isManual ? " manual" : "") + (r.isExcluded() ? " !" + r.exclusion.toStdString() : "")
                   + '\n';
        }
        return all;
    }
    std::string comments() {
        std::string all;
        for (const auto& comment : store.getCommentForCurID())
            all += comment->strBeginDate().toStdString() + '-' + comment->strEndDate().toStdString() + ' '
                   + std::to_string(comment->degree) + ' ' + comment->comment.toStdString() + '\n';
        return all;
    }
    static QByteArray line(const QByteArray& ID, const QByteArray& date, const QByteArray& rest) {
        return ID + ",,,," + date + ',' + rest + ",,,,,\r\n";
    }
};

TEST_F(ReadingTableTest, WhatGoesOutComesBackTheSameAndOnlyOnce) {
    load(everything);
    const QByteArray gone = exported();
    const std::string ofA = readings(u"A"_s);
    const std::string commentsOfA = comments();
    const std::string of5 = readings(u"-5"_s);
    EXPECT_EQ(std::count(ofA.begin(), ofA.end(), '\n'), 9) << "one reason has two lines";

    load("<SystemSetting/>");
    const auto counts = import(gone);
    ASSERT_TRUE(counts) << describe(counts.error()).toStdString();
    EXPECT_EQ(counts->patients, 2U) << "C has no reading";
    EXPECT_EQ(counts->readings, 11U);
    EXPECT_EQ(counts->comments, 2U);
    ASSERT_TRUE(store.undo());
    EXPECT_TRUE(store.getPatientArray().empty());
    ASSERT_TRUE(store.redo());
    EXPECT_EQ(exported(), gone) << "the order, too";
    const auto sorted = [](const std::string& lines) {
        QStringList list = QString::fromStdString(lines).split(u'\n');
        list.sort();
        return list.join(u'\n').toStdString();
    };
    EXPECT_EQ(sorted(readings(u"A"_s)), sorted(ofA));
    EXPECT_EQ(comments(), commentsOfA);
    EXPECT_EQ(sorted(readings(u"-5"_s)), sorted(of5));
    EXPECT_EQ(store.getPatientByID(u"A"_s)->FamilyName, u"O'Hara, \"Jo\""_s);
    EXPECT_EQ(store.getPatientByID(u"-5"_s)->GivenNames, u"＝A\nB"_s);

    const QByteArray before = content();
    EXPECT_EQ(import(gone).error().code, Refusal::alreadyKnown);
    for (const char* zone : {"Europe/Berlin", "Asia/Taipei", "America/St_Johns"}) {
        const InZone elsewhere{zone};
        ASSERT_TRUE(store.loadXML());
        ASSERT_TRUE(store.exportTable(table, {u"A"_s}, Replace::yes));
        const auto again = store.importTable(table, {u"A"_s, {}});
        ASSERT_TRUE(again) << describe(again.error()).toStdString();
        EXPECT_EQ(again->readings + again->comments + again->patients, 0U) << zone;
        EXPECT_EQ(again->known, 8U) << zone;
        EXPECT_EQ(content(), before) << zone;
    }
}

TEST_F(ReadingTableTest, AlikeReadingsAnHourApartAreNotTakenForEachOtherElsewhere) {
    const QByteArray later = measured("A", "1000002", "2026-11-20T07:12:00+01:00", "0 0 131 84 99 47 66");
    load("<SystemSetting/>\n<Patient><ID>A</ID></Patient>\n"
         + measured("A", "1000001", "2026-11-20T06:12:00+01:00", "0 0 131 84 99 47 66") + later);
    const InZone elsewhere{"UTC"};
    ASSERT_TRUE(store.loadXML());
    const QByteArray both = exported();
    EXPECT_EQ(import(both, {u"A"_s, {}})->known, 2U);
    load("<SystemSetting/>\n<Patient><ID>A</ID></Patient>\n" + later);
    const auto counts = import(both, {u"A"_s, {}});
    EXPECT_EQ(counts->readings, 1U);
    EXPECT_EQ(counts->known, 1U);
}

TEST_F(ReadingTableTest, TableIsPlainCsvThatNoSpreadsheetCalculates) {
    load(everything);
    const QByteArray lines = exported();
    EXPECT_TRUE(lines.startsWith(titles));
    EXPECT_TRUE(lines.endsWith("\r\n"));
    EXPECT_THAT(
        lines.toStdString(),
        HasSubstr("\r\nA,\"O'Hara, \"\"Jo\"\"\",'=1+1,1000007,2026-11-20T07:05:00+01:00,131,84,66,99,47,yes,"
                  "AFib,monitor,no,,,,,\r\n"));
    EXPECT_THAT(lines.toStdString(),
                HasSubstr("7,2026-11-19T21:30:31-05:00,140,90,70,106,50,no,no PAD,monitor,yes,"
                          "\"'=cuff, \"\"loose\"\"\nx\",,,,\r\n"))
        << "here it is the 20th, which the comment does not cover";
    EXPECT_THAT(lines.toStdString(),
                HasSubstr("1000004,2026-11-18T08:00:00+01:00,141,92,71,109,49,no,,manual,yes,,"
                          "\"'@new, tablets\",2026-11-18,2026-11-19,blue\r\n"));
    EXPECT_THAT(lines.toStdString(), HasSubstr("\r\n'-5,'t Hooft,\"'＝A\nB\",1000003,"));
    EXPECT_EQ(QFile::permissions(table) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions{});
    EXPECT_EQ(store.exportTable(table, {u"A"_s}, Replace::no).error().code, StoreErrorCode::alreadyExists);
    EXPECT_EQ(store.exportTable(path, {u"A"_s}, Replace::yes).error().code, StoreErrorCode::isDataFile);
    EXPECT_EQ(store.exportTable(table, {u"nobody"_s}, Replace::yes).error().code,
              StoreErrorCode::noSuchRecord);

    for (const QString& text : {u""_s, u"'"_s, u"=a"_s, u"'=a"_s, u"''-1"_s, u" +1"_s, u"\u00A0@"_s, u"\t1"_s,
                                u"\r"_s, u"'t Hooft"_s, u"a=b"_s, u"＋1"_s, u"－1"_s, u"＠x"_s}) {
        EXPECT_EQ(plainText(safeText(text)), text);
        const bool isHarmless = text.isEmpty() || text == u"'" || text == u"'t Hooft" || text == u"a=b";
        EXPECT_EQ(safeText(text), isHarmless ? text : u'\'' + text);
    }
}

TEST_F(ReadingTableTest, KnownPatientIsAddedToOnlyWhenNamedAndAsByADownload) {
    const RealTexts words;
    load("<SystemSetting/><Patient><ID>A</ID><FamilyName>Ann</FamilyName></Patient><Patient><ID>B</ID></"
         "Patient>"
         + measured("A", "1000001", "2026-11-20T07:00:00+01:00", "0 4 131 84 99 47 66")
         + measured("A", "1000002", "2026-11-19T07:00:00+01:00", "0 0 141 92 108 49 71",
                    "<Source>manual</Source>"));
    const TableImport intoA{u"A"_s, {}};
    const QByteArray known = line("A", "2026-11-20T06:00:00Z", "131,84,66,99,47,no,no AFib,monitor,no");
    const QByteArray typed = line("A", "2026-11-19T07:00:00+01:00", "141,92,71,108,49,no,,monitor,no");
    const QByteArray fresh = "A,Ann,,1000001,,120,80,60,93,40,no,no AFib,monitor,no,,,,,\r\n";
    EXPECT_EQ(refusal(titles + known, {}, Refusal::alreadyKnown).isEmpty(), false);
    EXPECT_EQ(refusal(titles + known, {u"N"_s, {}}, Refusal::badLines).section(u'\n', 1),
              u"Line 2: The reading is of the patient “A”, not of “N”."_s);
    EXPECT_EQ(refusal(titles + line("N", "", "120,80,60,93,40,no,,monitor,no"), {u"N"_s, {}},
                      Refusal::noSuchPatient)
                  .isEmpty(),
              false);
    EXPECT_THAT(
        refusal(titles + QByteArray{fresh}.replace("Ann", "Bob"), intoA, Refusal::otherNames).toStdString(),
        HasSubstr("another person"));

    const std::string before = readings(u"A"_s);
    const auto counts = import(titles + QByteArray{known}.replace("A,,", "A,Ann,")
                                   + QByteArray{typed}.replace("A,,", "A,Ann,") + fresh,
                               intoA);
    ASSERT_TRUE(counts) << describe(counts.error()).toStdString();
    EXPECT_EQ(counts->readings, 2U);
    EXPECT_EQ(counts->known, 1U);
    EXPECT_EQ(counts->leftOut, 1U);
    EXPECT_EQ(readings(u"A"_s),
              "1000001 20261120 060000 60 4 66 84 131 99 47 0\n"
              "1000002 20261119 060000 60 0 71 92 141 108 49 0 manual !measured by the monitor, too\n"
              "1000003 20261119 060000 60 0 71 92 141 108 49 0\n"
              "1000004 19991231 230000 undated 4 60 80 120 93 40 0\n");
    EXPECT_TRUE(store.undo());
    EXPECT_EQ(readings(u"A"_s), before) << "what was typed counts again";
}

TEST_F(ReadingTableTest, EveryLineThatCannotBeTakenIsTold) {
    const RealTexts words;
    load("<SystemSetting/>");
    const QByteArray good = "A,,,,2026-11-20T07:00:00+01:00,131,84,66,99,47,no,,monitor,no,,,,,\r\n";
    const struct {
        QByteArray before, after;
        QString reason;
    } cases[] = {
        {"A,", ",", u"“” cannot stand in the column “patient”."_s},
        {"A,", "\"A\x07\",", u"column “patient”"_s},
        {"A,,", "A,Other,", u"another name in an earlier line"_s},
        {",131,", ",301,", u"The systolic pressure is to be a number from 30 to 300."_s},
        {",131,", ",131.5,", u"“131.5” cannot stand in the column “sys”."_s},
        {",131,", ",-131,", u"column “sys”"_s},
        {",131,", ",4294967427,", u"column “sys”"_s},
        {",84,", ",29,", u"diastolic pressure is to be"_s},
        {",84,", ",131,", u"below the systolic"_s},
        {",66,", ",,", u"“” cannot stand in the column “pulse”."_s},
        {",66,", ",400,", u"pulse is to be"_s},
        {",99,", ",x,", u"column “map”"_s},
        {",47,no,", ",47,perhaps,", u"column “mam”"_s},
        {",99,47,", ",99,44,", u"A pulse pressure of 44 does not go with 131/84"_s},
        {",99,47,", ",47,99,", u"A pulse pressure of 99 does not go with 131/84"_s},
        {",99,47,", ",81,47,", u"A mean arterial pressure of 81 does not go with 131/84"_s},
        {",99,47,", ",134,0,", u"A mean arterial pressure of 134 does not go with 131/84"_s},
        {"no,,monitor", "no,flutter,monitor", u"column “arrhythmia”"_s},
        {"monitor", "Monitor", u"column “source”"_s},
        {"monitor,no", "monitor,", u"column “excluded”"_s},
        {"monitor,no,", "monitor,no,cuff", u"column “reason”"_s},
        {"2026-11-20T07:00:00+01:00,131,84,66,99,47,no,,monitor",
         "2026-11-21T08:01:00Z,131,84,66,99,47,no,,manual", u"in the future"_s},
        {"2026-11-20T07", "1899-11-20T07", u"before the year 1900"_s},
        {"2026-11-20T07", "2000-01-01T07", u"no such date"_s},
        {"2026-11-20T07", "2026-02-29T07", u"is no date"_s},
        {"2026-11-20T07", "2026-11-20T24", u"is no date"_s},
        {"2026-11-20T07:00:00+01:00", "20/11/2026 07:00", u"is no date"_s},
        {"2026-11-20T07:00:00+01:00", "2026-03-29T02:30:00", u"no such date"_s},
        {",,,,\r", ",x,,,\r", u"column “comment_colour”"_s},
        {",,,,\r", ",x,2026-11-20,2026-11-19,blue\r", u"column “comment_to”"_s},
        {",,,,\r", ",,,\r", u"It has 18 cells, and the line of titles 19."_s},
        {",,,,\r", ",,,,,\r", u"It has 20 cells"_s},
        {",131,", ",\"131\" ,", u"quotation mark is not closed"_s},
        {",131,", ",\"131,", u"quotation mark is not closed"_s},
    };
    for (const auto& [before, after, reason] : cases) {
        QByteArray bad = good;
        ASSERT_TRUE(bad.contains(before)) << before.constData();
        bad.replace(bad.indexOf(before), before.size(), after);
        const QString told = refusal(titles + good + "\r\n" + bad, {}, Refusal::badLines);
        EXPECT_THAT(told.toStdString(), HasSubstr("Line 4: ")) << after.constData();
        EXPECT_THAT(told.toStdString(), HasSubstr(reason.toStdString())) << after.constData();
        EXPECT_EQ(told.count(u'\n'), 1) << told.toStdString();
    }
    EXPECT_THAT(refusal(titles + QByteArray{good}.replace("131", "1") + "\"\n" + good, {}, Refusal::badLines)
                    .toStdString(),
                testing::EndsWith("Line 2: The systolic pressure is to be a number from 30 to 300.\n"
                                  "Line 3: A quotation mark is not closed at the end of its cell."));
    EXPECT_THAT(refusal(titles + QByteArray{good}.replace("131", "1").repeated(25), {}, Refusal::badLines)
                    .toStdString(),
                testing::EndsWith("\n… and 5 more lines"));
    EXPECT_THAT(refusal(titles + "\r\n,,,,,,,,,,,,,,,,,,\r\n", {}, Refusal::noReading).toStdString(),
                HasSubstr("no reading"));
    EXPECT_THAT(refusal(QByteArray{titles}.replace(",reason", ",sys") + good, {}, Refusal::missingColumn)
                    .toStdString(),
                HasSubstr("“sys”"));
    EXPECT_THAT(refusal(titles + QByteArray{good}.replace("A,,", "A,M\xFCller,"), {}, Refusal::notReadable)
                    .toStdString(),
                HasSubstr("not UTF-8"));
    // What is left out counts nowhere, whatever its values are.
    const auto leftOut =
        import(titles + QByteArray{good}.replace("131,84", "84,131").replace("monitor,no,", "monitor,yes,"));
    EXPECT_TRUE(leftOut.has_value());
    const auto ahead = import(titles + QByteArray{good}.replace("2026-11-20", "2027-11-20"), {u"A"_s, {}});
    EXPECT_TRUE(ahead) << describe(ahead.error()).toStdString();
}

TEST_F(ReadingTableTest, ColumnsThatMeanAndPulsePressureContradictAreNotTaken) {
    const RealTexts words;
    load("<SystemSetting/><Patient><ID>A</ID></Patient>");
    const auto wanted = [](const QString& dia) {
        return TableImport{u"A"_s, ForeignColumns{u"Date"_s, {}, u"Sys"_s, dia, u"Pulse"_s}};
    };
    const struct {
        const char *titles, *cells;
        const char* reason; ///< none: it is taken
    } cases[] = {
        {"MAP,PP", "99,47", ""},
        {"map (mmHg),pp [mmHg]", "\"99,7\",47.0", ""},
        {"MAP,PP", "84,", ""},
        {"MAP,PP", "n/a,0", ""},
        {"PP,PP", "46,45", ""}, // which one it is cannot be told
        {"MAP,PPG", "99,60", ""},
        {"MAP,PP", "82,49", ""}, // three numbers, each rounded
        {"MAP,PP", "133,45", ""},
        {"Pp,Map", "44,99", "Line 2: A pulse pressure of 44 does not go with 131/84"},
        {"Pp,Map", "49.5,99", "Line 2: A pulse pressure of 49.5 does not go with 131/84"},
        {"MAP,PP", "81.5,47", "Line 2: A mean arterial pressure of 81.5 does not go with 131/84"},
        {"MAP,note", "140,x", "Line 2: A mean arterial pressure of 140 does not go with 131/84"},
    };
    for (const auto& [more, cells, reason] : cases) {
        const QByteArray content =
            QByteArray{"Date,Sys,Dia,Pulse,"} + more + "\n2026-11-20 07:05,131,84,66," + cells + "\n";
        if (qstrlen(reason) == 0) {
            EXPECT_TRUE(import(content, wanted(u"Dia"_s))) << content.constData();
            continue;
        }
        const QString told = refusal(content, wanted(u"Dia"_s), Refusal::badLines);
        EXPECT_THAT(told.toStdString(), HasSubstr(reason)) << content.constData();
    }
    // The columns taken for one another.
    EXPECT_THAT(refusal("Date,Sys,Dia,Pulse,MAP,PP\n2026-11-20 08:05,131,84,66,99,47\n", wanted(u"MAP"_s),
                        Refusal::badLines)
                    .toStdString(),
                HasSubstr("A pulse pressure of 47 does not go with 131/99"));
    // A column that was named is what it was named to be.
    const TableImport pulseIsPP{u"A"_s, ForeignColumns{u"Date"_s, {}, u"Sys"_s, u"Dia"_s, u"PP"_s}};
    EXPECT_TRUE(import("Date,Sys,Dia,PP\n2026-11-20 09:05,131,84,66\n", pulseIsPP));
}

TEST_F(ReadingTableTest, AnotherProgramsColumnsAreNamed) {
    const RealTexts words;
    const ForeignColumns two{u"Date"_s, u"Time"_s, u"Sys, mmHg"_s, u"Dia"_s, u"Puls"_s, DateOrder::onlyIso};
    const ForeignColumns one{u"Date"_s, {}, u"Sys, mmHg"_s, u"Dia"_s, u"Puls"_s, DateOrder::onlyIso};
    const auto with = [](ForeignColumns columns, DateOrder order) {
        columns.dates = order;
        return TableImport{u"A"_s, columns};
    };
    const QByteArray bom = "\xEF\xBB\xBF";
    const struct {
        QByteArray table;
        TableImport wanted;
        const char* time; ///< of the reading in UTC, or the refusal
    } cases[] = {
        {"Date,Time,\"Sys, mmHg\",Dia,Puls\n2026-11-20,7:05,131,84,66\n", with(two, DateOrder::onlyIso),
         "1120 060500"},
        {bom + "Note;Puls;Dia;Sys, mmHg;Date\r\n\"a;b\";66,0;84;131,00;2026-11-20 07:05:30\r\n;;;;\r\n",
         with(one, DateOrder::onlyIso), "1120 060530"},
        {"Date\tSys, mmHg\tDia\tPuls\r20.11.2026 7:05\t131.0\t 84 \t66\r", with(one, DateOrder::dmy),
         "1120 060500"},
        {"Date;Sys, mmHg;Dia;Puls\n11/20/2026 12:05 AM;131;84;66\n", with(one, DateOrder::mdy),
         "1119 230500"},
        {"Date;Sys, mmHg;Dia;Puls\n2026/11/20 12:05pm;131;84;66\n", with(one, DateOrder::ymd), "1120 110500"},
        {"Date;Sys, mmHg;Dia;Puls\n2026-11-20T07:05-0500;131;84;66\n", with(one, DateOrder::dmy),
         "1120 120500"},
        {"Date;Sys, mmHg;Dia;Puls\n03/04/2026 07:05;131;84;66\n", with(one, DateOrder::onlyIso),
         "Line 2: “03/04/2026"},
        {"Date;Sys, mmHg;Dia;Puls\n20.11.26 07:05;131;84;66\n", with(one, DateOrder::dmy),
         "year of four digits"},
        {"Date;Sys, mmHg;Dia;Puls\n20.11.2026 07:05;131;84;66\n", with(one, DateOrder::mdy), "is no date"},
        {"Date;Sys, mmHg;Dia;Puls\n2026-11-20;131;84;66\n", with(one, DateOrder::onlyIso), "is no date"},
        {"Date;Sys, mmHg;Dia;Puls\n;131;84;66\n", with(one, DateOrder::onlyIso), "is no date"},
        {"Date;Sys, mmHg;Dia;Puls\n2026-11-20 13:05 PM;131;84;66\n", with(one, DateOrder::onlyIso),
         "is no date"},
        {"Date;Sys, mmHg;Dia;Puls\n2026-11-20 07:05;131,5;84;66\n", with(one, DateOrder::onlyIso),
         "column “sys”"},
        {"Date;Sys, mmHg;Dia;Puls\n2026-11-20 07:05;131;84;\n", with(one, DateOrder::onlyIso),
         "column “pulse”"},
        {"Date,Sys, mmHg,Dia,Puls\n2026-11-20 07:05,131,84,66\n", with(one, DateOrder::onlyIso),
         "no column “Sys, mmHg”"},
    };
    for (const auto& [content, wanted, expected] : cases) {
        load("<SystemSetting/><Patient><ID>A</ID><FamilyName>Ann</FamilyName></Patient>");
        const auto taken = import(content, wanted);
        if (!taken) {
            EXPECT_THAT(describe(taken.error()).toStdString(), HasSubstr(expected)) << content.constData();
            continue;
        }
        const QByteArray offset = content.contains("-0500") ? " -300" : " 60";
        EXPECT_EQ(readings(u"A"_s),
                  "1000001 2026" + (expected + offset).toStdString() + " 0 66 84 131 99 47 0 manual\n")
            << content.constData();
        EXPECT_EQ(import(content, wanted)->known, 1U);
    }
}

TEST_F(ReadingTableTest, WhatIsThereFromAnywhereIsNotTakenFromAnotherProgram) {
    load("<SystemSetting/><Patient><ID>A</ID></Patient>"
         + measured("A", "1000001", "2026-11-20T07:00:20+01:00", "0 4 131 84 99 47 66"));
    const ForeignColumns columns{u"Date"_s, {}, u"S"_s, u"D"_s, u"P"_s, DateOrder::onlyIso};
    const QByteArray two = "2026-11-20 07:00,131,84,66\n2026-11-20 07:01,131,84,66\n";
    const auto counts = import("Date,S,D,P\n" + two + two, {u"A"_s, columns});
    ASSERT_TRUE(counts);
    EXPECT_EQ(counts->readings, 1U);
    EXPECT_EQ(counts->known, 3U);
}

TEST_F(ReadingTableTest, RecognisedByItsTitlesInWhateverTextASpreadsheetSaves) {
    load(everything);
    const QByteArray gone = exported();
    const QString text = QString::fromUtf8(gone);
    QStringEncoder wide{QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom};
    for (const QByteArray& saved : {gone, "\xEF\xBB\xBF" + gone, QByteArray{wide(text)}}) {
        load("<SystemSetting/>");
        write(table, saved);
        EXPECT_TRUE(isReadingTable(table));
        EXPECT_EQ(import(saved).value_or(ImportCounts{}).readings, 11U);
    }
    for (const QByteArray& other : {QByteArray{}, everything, QByteArray{"id,family-name,given-names\n"}}) {
        write(table, other);
        EXPECT_FALSE(isReadingTable(table));
    }
    EXPECT_FALSE(isReadingTable(home.path()));
    EXPECT_FALSE(isReadingTable(u"/nowhere"_s));
}

TEST_F(ReadingTableTest, LargeTableIsRefusedBeforeItTakesMemory) {
    load("<SystemSetting/>");
    const QByteArray good = line("A", "", "131,84,66,99,47,no,,monitor,no");
    EXPECT_EQ(import(titles + good.repeated(200'001)).error().code, Refusal::tooManyLines);
    EXPECT_EQ(import(titles + "x" + QByteArray(20 << 20, ',')).error().code, Refusal::badLines);
    EXPECT_EQ(import(QByteArray(20 << 20, ',')).error().code, Refusal::missingColumn);
}

} // namespace
} // namespace zel
