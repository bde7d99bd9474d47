#include "store/Records.h"

#include "store/XmlDate.h"
#include "store/XmlDocument.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include <sstream>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

pugi::xml_node element(pugi::xml_document& document, const char* xml) {
    EXPECT_TRUE(document.load_string(xml));
    return document.document_element();
}

std::string written(pugi::xml_node node) {
    std::ostringstream text;
    node.print(text, "", pugi::format_raw);
    return text.str();
}

/// A number is its text, however it is held.
TEST(RecordNumber, IsTheTextOfTheFile) {
    for (const char* text : {"0", "7", "1000001", "999999999999999999"}) {
        EXPECT_EQ(RecordNumber::fromUtf8(text).text(), QLatin1StringView{text});
        EXPECT_EQ(RecordNumber::fromUtf8(text).number(), std::stoll(text));
    }
    for (const char* text : {"", "00", "01", "-5", "+5", "5 ", " 5", "5x", "1000000000000000000",
                             "99999999999999999999999", "\xD9\xA3"}) {
        const RecordNumber number = RecordNumber::fromUtf8(text);
        EXPECT_EQ(number.text(), QString::fromUtf8(text));
        EXPECT_EQ(number.number(), std::nullopt) << text;
        EXPECT_FALSE(number.isNull()) << text;
        EXPECT_TRUE(number == RecordNumber{QString::fromUtf8(text)}) << text;
    }
    EXPECT_TRUE(RecordNumber{}.isNull() && RecordNumber{QString{}}.isNull());
    EXPECT_TRUE(RecordNumber{}.text().isNull());
    EXPECT_FALSE(RecordNumber{u"7"_s} == RecordNumber{u"07"_s});
    EXPECT_TRUE(RecordNumber{u"7"_s} == u"7"_s);
}

TEST(ReadingRecord, ReadsNumbersAsFarAsTheyGo) {
    pugi::xml_document document;
    const auto reading = ReadingModel::initWithXMLNode(
        element(document,
                "<MeasureRec><Sys>120abc</Sys><Dia></Dia><Pulse> 72</Pulse><PP>-16</PP><Map>4294967295</Map>"
                "<MAM>99999999999</MAM><sys>7</sys><Error>3</Error><Arrhythmia>x</Arrhythmia>"
                "<ID>A<!-- b -->B</ID></MeasureRec>"));
    EXPECT_EQ(reading.sys, 120U);
    EXPECT_EQ(reading.dia, 0U);
    EXPECT_EQ(reading.pulse, 72U);
    EXPECT_EQ(reading.pp, 4294967280U); // written with "%d" when it had wrapped
    EXPECT_EQ(reading.map, 4294967295U);
    EXPECT_EQ(reading.mam, 4294967295U);
    EXPECT_EQ(reading.erorr, 0U);
    EXPECT_EQ(reading.Arrhythmia, 0U);
    EXPECT_EQ(reading.ID, u"AB"_s);
    EXPECT_TRUE(reading.RecID.isNull());
    EXPECT_FALSE(reading.ReadingDate);
}

TEST(ReadingRecord, NewElementsHaveErrorButOnlyErorrIsReadAndWritten) {
    pugi::xml_document document;
    ReadingModel reading;
    reading.ID = u"A"_s;
    reading.sys = 120;
    reading.pp = 4294967280U;
    reading.erorr = 3;
    reading.updateXMLNode(ReadingModel::makeXmlNode(document));
    EXPECT_EQ(written(document),
              "<MeasureRec><ID>A</ID><RecID/><MAM>0</MAM><Arrhythmia>0</Arrhythmia>"
              "<ReadingDate>0001-01-01T00:00:00+08:00</ReadingDate><Sys>120</Sys><Dia>0</Dia><Map>0</Map>"
              "<PP>-16</PP><Pulse>0</Pulse><Error/></MeasureRec>");
    const auto older = element(document, "<MeasureRec><Erorr>3</Erorr><Own>kept</Own></MeasureRec>");
    EXPECT_EQ(ReadingModel::initWithXMLNode(older).erorr, 3U);
    reading.erorr = 4;
    reading.updateXMLNode(older);
    EXPECT_EQ(written(document), "<MeasureRec><Erorr>4</Erorr><Own>kept</Own></MeasureRec>");
}

TEST(ReadingRecord, TheMarkerForNoDateIsOneInEveryTimeZone) {
    pugi::xml_document document;
    for (const char* offset : {"+09:00", "-05:00", "+01:00", ""}) {
        const std::string date = std::string("2000-01-01T00:00:00") + offset;
        const auto marked =
            element(document, ("<MeasureRec><ReadingDate>" + date + "</ReadingDate></MeasureRec>").c_str());
        EXPECT_TRUE(isNilReadingDate(ReadingModel::initWithXMLNode(marked).ReadingDate)) << date;
    }
}

TEST(ReadingRecord, ArrhythmiaCodes) {
    struct Case {
        std::uint32_t code;
        bool isPad;
        bool isAFib;
        QString text;
    };
    for (const auto& [code, isPad, isAFib, text] :
         {Case{0, false, false, u"N/A"_s}, Case{1, true, false, u"No"_s}, Case{2, true, false, u"Yes"_s},
          Case{3, false, false, u"N/A"_s}, Case{4, false, true, u"No"_s}, Case{5, false, true, u"Yes"_s},
          Case{6, false, false, u"N/A"_s}}) {
        ReadingModel reading;
        reading.Arrhythmia = code;
        reading.mam = code;
        EXPECT_EQ(reading.isPad(), isPad) << code;
        EXPECT_EQ(reading.isAFib(), isAFib) << code;
        EXPECT_EQ(reading.getPadStr(), text) << code;
        EXPECT_EQ(reading.getMamStr(), code == 1 ? u"Yes"_s : u"No"_s) << code;
    }
}

TEST(ReadingRecord, SamenessLooksAtMeasuresOnly) {
    ReadingModel reading;
    reading.ReadingDate = getNilReadingDate();
    ReadingModel other = reading;
    other.ID = u"B"_s;
    other.RecID = u"7"_s;
    other.erorr = 1;
    EXPECT_TRUE(reading.isSame(other));
    for (auto member : {&ReadingModel::sys, &ReadingModel::dia, &ReadingModel::pulse, &ReadingModel::map,
                        &ReadingModel::pp, &ReadingModel::mam, &ReadingModel::Arrhythmia}) {
        ReadingModel changed = reading;
        changed.*member = 9;
        EXPECT_FALSE(reading.isSame(changed));
    }
    other.ReadingDate = *reading.ReadingDate + std::chrono::minutes{1};
    EXPECT_FALSE(reading.isSame(other));
}

TEST(ReadingRecord, DisplayTextsFollowTheSettings) {
    struct Case {
        const char* date;
        QString dateFormat;
        QString timeFormat;
        QString shown;
    };
    for (const auto& [date, dateFormat, timeFormat, shown] : {
             Case{"2019-03-22T21:05:00+01:00", u"dd mm yyyy"_s, u"12-hours"_s, u"22/03/2019 09:05 P"_s},
             Case{"2019-03-22T00:05:00+01:00", u"mm dd yyyy"_s, u"12-hours"_s, u"03/22/2019 12:05 A"_s},
             Case{"2019-03-22T12:00:00+01:00", u"yyyy mm dd"_s, u"24-hours"_s, u"2019/03/22 12:00"_s},
             Case{"2019-03-22T23:30:00+00:00", u"yyyy mm dd"_s, u""_s, u"2019/03/23 00:30"_s},
             Case{"2019-03-22T12:00:00+01:00", u"yyyy dd mm"_s, u"12-hours"_s, u" 12:00 P"_s},
             Case{"2000-01-01T08:00:00+01:00", u"dd mm yyyy"_s, u"12-hours"_s, u"n.a --:--"_s},
             Case{"", u"dd mm yyyy"_s, u"12-hours"_s, u"n.a --:--"_s},
         }) {
        SettingModel settings = SettingModel::initWithDefault();
        settings.dateFormat = dateFormat;
        settings.timeFormat = timeFormat;
        const LocalZone zone;
        ReadingModel reading;
        reading.ReadingDate = XMLStrToDate(date);
        reading.postInit(nullptr, settings, zone);
        EXPECT_EQ(reading.strDisplayDate(settings) + u' ' + reading.strDisplayTime(settings), shown) << date;
    }
}

TEST(PatientRecord, UnitsAsTypedAndShown) {
    SettingModel metric = SettingModel::initWithDefault();
    SettingModel imperial = metric;
    imperial.metricFormat = u"lb / in"_s;
    PatientModel patient;
    EXPECT_EQ(patient.getWeightStr(metric) + patient.getHeightStr(imperial) + patient.getCholestrolStr(),
              u""_s);
    patient.convertAndSetWeight(u"72.5"_s, metric);
    EXPECT_EQ(patient.getWeightStr(metric), u"72.5"_s);
    EXPECT_EQ(patient.getWeightStr(imperial), u"159.8"_s);
    EXPECT_TRUE(patient.convertAndSetHeight(u"5/9"_s, imperial));
    EXPECT_FLOAT_EQ(patient.Height, 175.26F);
    EXPECT_EQ(patient.getHeightStr(imperial), u"5/8"_s); // truncated, deliberately
    EXPECT_FALSE(patient.convertAndSetHeight(u"69"_s, imperial));
    EXPECT_FLOAT_EQ(patient.Height, 175.26F);
    EXPECT_TRUE(patient.convertAndSetHeight(u"6/0"_s, imperial));
    EXPECT_EQ(patient.getHeightStr(imperial), u"6/0"_s);
}

TEST(PatientRecord, ComparisonRules) {
    EXPECT_FALSE(StrModified({}, u""_s));
    EXPECT_FALSE(StrModified(u""_s, {}));
    EXPECT_TRUE(StrModified({}, {}));
    EXPECT_TRUE(StrModified(u"a"_s, u"b"_s));
    const Instant date = getNilReadingDate();
    EXPECT_FALSE(DateModified(date, date + std::chrono::hours{24} - std::chrono::milliseconds{1}));
    EXPECT_TRUE(DateModified(date, date + std::chrono::hours{24}));
    pugi::xml_document document;
    auto patient = PatientModel::initWithXMLNode(PatientModel::makeXmlNode(document.append_child("ZEL")));
    PatientModel other = patient;
    other.Weight = 70;
    other.DateOfBirth = patient.DateOfBirth = date;
    EXPECT_TRUE(patient.isTheSanme(other));
    const auto isSameWithout = [&](auto member, const auto& value) {
        PatientModel changed = other;
        changed.*member = value;
        return patient.isTheSanme(changed);
    };
    for (auto member :
         {&PatientModel::ID, &PatientModel::FamilyName, &PatientModel::GivenNames, &PatientModel::Address,
          &PatientModel::PhoneEmail, &PatientModel::FamilyHistory, &PatientModel::PatientNotes})
        EXPECT_FALSE(isSameWithout(member, u"x"_s));
    for (auto member : {&PatientModel::Sex, &PatientModel::Smoker, &PatientModel::Diabetic})
        EXPECT_FALSE(isSameWithout(member, 7));
    EXPECT_FALSE(isSameWithout(&PatientModel::DateOfBirth, date + std::chrono::hours{24}));
    other.Address = QString{};
    PatientModel third = other;
    EXPECT_FALSE(other.isTheSanme(third)); // two absent addresses count as different
}

/// 22, 23, 25 March and an undated reading of one patient, in the file's order.
const char* const linkedFile = R"(<ZEL>
<MeasureRec><ID>A</ID><RecID>1</RecID><ReadingDate>2019-03-25T08:00:00+01:00</ReadingDate></MeasureRec>
<MeasureRec><ID>A</ID><RecID>2</RecID><ReadingDate>2019-03-22T08:00:00+01:00</ReadingDate></MeasureRec>
<MeasureRec><ID>A</ID><RecID>3</RecID><ReadingDate>2019-03-22T23:59:59+01:00</ReadingDate></MeasureRec>
<MeasureRec><ID>A</ID><RecID>4</RecID><ReadingDate>2019-03-23T08:00:00+01:00</ReadingDate></MeasureRec>
<MeasureRec><ID>A</ID><RecID>5</RecID><ReadingDate>2000-01-01T08:00:00+01:00</ReadingDate></MeasureRec>
<MeasureRec><ID>B</ID><RecID>6</RecID><ReadingDate>2019-03-22T08:00:00+01:00</ReadingDate></MeasureRec>
<MeasureRec><ID></ID><RecID>7</RecID></MeasureRec>
<Comment><ID>A</ID><CommentID>two</CommentID><BeginDate>2019-03-24T00:00:00+01:00</BeginDate><EndDate>2019-03-24T23:59:59+01:00</EndDate></Comment>
<Comment><ID>A</ID><CommentID>one</CommentID><BeginDate>2019-03-22T12:00:00+01:00</BeginDate><EndDate>2019-03-22T12:00:00+01:00</EndDate></Comment>
<DataTransferLog><ID>A</ID><RecID>100001</RecID><TransferDate>2019-03-22T20:00:00+01:00</TransferDate><NumofRecord>2</NumofRecord></DataTransferLog>
</ZEL>)";

TEST(Records, CommentsAndDownloadsAreLinkedByDay) {
    const auto document = XmlDocument::parse(linkedFile);
    ASSERT_TRUE(document);
    const Records records = Records::read(document->root(), LocalZone{});
    ASSERT_EQ(records.mdReading.size(), 2U);                // the one without ID is dropped
    EXPECT_EQ(records.mdReading.at(u"A"_s).capacity(), 5U); // no memory for readings that there are not
    std::string seen;
    for (const ReadingModel& reading : records.mdReading.at(u"A"_s)) {
        seen += reading.RecID.text().toStdString() + ':'
                + (reading.comment ? reading.comment->CommentID.toStdString() : "-")
                + (reading.bAtBegin ? " begin" : "") + (reading.bAtEnd ? " end" : "")
                + (reading.bYellowBackground ? " yellow" : "") + (reading.bDrawTopLine ? " line" : "") + '\n';
    }
    // Comment "two" covers no reading; the first one after it is marked all the same.
    EXPECT_EQ(seen, "1:- begin\n2:one begin yellow line\n3:one end yellow\n4:- line\n5:- line\n");
    EXPECT_EQ(records.mdComment.at(u"A"_s).front()->CommentID, u"one"_s); // sorted by begin
    EXPECT_EQ(records.mdReading.at(u"B"_s).front().comment, nullptr);
}

/// Looked at pair by pair, these would be ten thousand million: minutes.
TEST(Records, ManyCommentsOverManyReadingsOfOneDayAreLinkedInTime) {
    ReadingList readings(100'000);
    for (ReadingModel& reading : readings)
        reading.day = 100;
    CommentList comments;
    DataLogList downloads(100'000);
    for (DataTransferLogModel& download : downloads) {
        download.transferDay = 100;
        auto comment = std::make_unique<CommentModel>();
        comment->beginDay = 99;
        comment->endDay = 101;
        comments.push_back(std::move(comment));
    }
    setCommentInReading(comments, readings);
    setDataLogInReading(downloads, readings);
    EXPECT_EQ(readings.front().comment, comments.back().get());
    EXPECT_EQ(readings.back().comment, comments.back().get());
    EXPECT_TRUE(readings.front().bAtBegin && readings.back().bAtEnd && readings.back().bYellowBackground);
}

TEST(Records, PatientsAreSortedByNameInAnyCaseAndThenByID) {
    const auto document = XmlDocument::parse(
        "<ZEL><Patient><ID>3</ID><FamilyName>abel</FamilyName></Patient><Patient><ID>1</ID><FamilyName>Bert"
        "</FamilyName></Patient><Patient><ID>2</ID><FamilyName>Abel</FamilyName></Patient></ZEL>");
    ASSERT_TRUE(document);
    QString order;
    for (const PatientModel& patient : Records::read(document->root(), LocalZone{}).gaPatient)
        order += patient.ID;
    EXPECT_EQ(order, u"231"_s);
}

TEST(Records, SettingsHaveTwoSetsOfDefaults) {
    pugi::xml_document document;
    const auto made = SettingModel::initWithXMLNode(SettingModel::makeXmlNode(document));
    SettingModel expected = SettingModel::initWithDefault();
    EXPECT_TRUE(expected.isMetric() && expected.is12Hours());
    EXPECT_EQ(std::tuple(expected.dateFormat, expected.eraseRecAfterReading, expected.showPPorMap,
                         expected.userWhoStandard, expected.sysStandard, expected.diaStandard),
              std::tuple(u"dd mm yyyy"_s, 1U, 0U, 1U, 140U, 90U));
    expected.metricFormat = u"lb / in"_s;
    EXPECT_EQ(made, expected);
    EXPECT_EQ(made.physicianAddress.count(u'\n'), 5);
    EXPECT_FALSE(SettingModel::initWithXMLNode(element(document, "<SystemSetting/>")).isMetric());
}

} // namespace
} // namespace zel
