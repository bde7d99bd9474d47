#include "store/AtomicFile.h"
#include "store/DataStore.h"
#include "store/XmlDate.h"
#include "support/DamageAfterWrite.h"
#include "support/InZone.h"
#include "support/ManualClock.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

/// A data file that two programs have read: \p store, and another one that writes to it by itself.
struct ChangeTest : testing::Test {
    QTemporaryDir home;
    ManualClock clock;
    DataStore store{{home.path(), home.path(), home.path()}, clock};
    QString path = store.getZELXMLPath();

    void write(const QByteArray& content) {
        QDir{}.mkpath(QFileInfo{path}.path());
        ASSERT_TRUE(replaceFile(path, content));
    }
    void setData(const QByteArray& records) {
        write("<ZEL>" + records + "</ZEL>");
        ASSERT_TRUE(store.loadXML());
    }
    [[nodiscard]] QByteArray data() const { return readFile(path).value_or(QByteArray{}).simplified(); }
    /// What another program does to the file while this one holds what it read before.
    void elsewhere(const QByteArray& before, const QByteArray& after) {
        QByteArray content = readFile(path).value_or(QByteArray{});
        ASSERT_TRUE(content.contains(before)) << before.constData();
        write(content.replace(before, after));
    }
    [[nodiscard]] const CommentModel& comment(std::size_t index) const {
        return *store.getCommentForCurID().at(index);
    }
    static ReadingModel reading(const Date& date, std::uint32_t sys = 120) {
        ReadingModel made;
        made.ReadingDate = date;
        made.sys = sys;
        return made;
    }
    std::size_t stored(const ReadingList& downloaded) {
        return store.newDataTransfer(u"A"_s, downloaded).value_or(TransferCounts{999}).added;
    }
};

TEST_F(ChangeTest, SavingWritesOnlyWhatWasChangedHere) {
    setData("<SystemSetting own='1'><SysStandard>0150</SysStandard><DiaStandard>90 mmHg</DiaStandard>"
            "<ShowPPorMap>0</ShowPPorMap></SystemSetting><Patient><ID>A</ID><Address>old</Address>"
            "<DateOfBirth>1956-04-12</DateOfBirth><Weight>1e300</Weight><Height> 170 </Height>"
            "<PatientNotes/></Patient>"
            "<Comment><ID>A</ID><CommentID>7</CommentID><Degree>x1</Degree><BeginDate>2019-03-22</BeginDate>"
            "<EndDate>2019-03-23T12:00:00-05:00</EndDate><Comment>old</Comment></Comment>");
    store.setCurrentID(u"A"_s);
    const PatientModel asRead = *store.getPatientByID(u"A"_s);
    const CommentModel commentAsRead = comment(0);
    elsewhere("0150", "130");
    elsewhere("<Address>old<", "<Address>new<");
    elsewhere("<Degree>x1<", "<Degree>3<");
    QByteArray expected = data();

    store.getSetting().showPPorMap = 1;
    ASSERT_TRUE(store.saveSetting());
    PatientModel patient = asRead;
    patient.PatientNotes = u"typed"_s;
    ASSERT_TRUE(store.saveXMLPatient(patient, asRead));
    CommentModel changed = commentAsRead;
    changed.comment = u"typed"_s;
    ASSERT_TRUE(store.saveCommentToXML(changed, commentAsRead));

    const auto flat = [](QByteArray text) { return text.replace("> <", "><"); };
    expected.replace("<ShowPPorMap>0<", "<ShowPPorMap>1<").replace("<Comment>old<", "<Comment>typed<");
    expected.replace("<PatientNotes />", "<PatientNotes>typed</PatientNotes>");
    expected.replace("<PatientNotes/>", "<PatientNotes>typed</PatientNotes>").replace('\'', '"');
    EXPECT_EQ(flat(data()), flat(expected));
}

TEST_F(ChangeTest, SettingWithoutItsPlaceIsLeftOutOrStopsTheWholeChange) {
    setData("<SystemSetting><SysStandard>140</SysStandard></SystemSetting>");
    const QByteArray before = data();
    SettingModel wanted = store.getSetting();
    wanted.sysStandard = 130;
    wanted.diaStandard = 80;
    const auto change = [&](auto withoutPlace) {
        return store.changeSetting(store.getSetting(), wanted, withoutPlace)->diaStandard;
    };
    EXPECT_EQ(change(DataStore::WithoutPlace::changeNothing), 0U);
    EXPECT_EQ(data(), before);
    EXPECT_EQ(change(DataStore::WithoutPlace::leaveOut), 0U);
    EXPECT_TRUE(data().contains("<SysStandard>130<"));
}

TEST_F(ChangeTest, WriteAfterAFailedLoadLoadsFirst) {
    write("<ZEL>");
    EXPECT_FALSE(store.loadXML());
    int announced = 0;
    QObject::connect(&store, &DataStore::reloaded, [&announced] { ++announced; });
    store.getSetting().showPPorMap = 1;
    EXPECT_FALSE(store.saveSetting());
    EXPECT_EQ(announced, 0);
    write("<ZEL><SystemSetting><SysStandard>130</SysStandard><ShowPPorMap>0</ShowPPorMap></SystemSetting>"
          "<Patient><ID>A</ID></Patient></ZEL>");
    ASSERT_TRUE(store.saveSetting());
    EXPECT_TRUE(data().contains("<SysStandard>130<")) << data().constData();
    EXPECT_EQ(announced, 1);
    EXPECT_TRUE(store.validIDinXML(u"A"_s));
    EXPECT_EQ(store.getSetting().sysStandard, 130U);
}

TEST_F(ChangeTest, CommentsOfOneNumberAreToldApart) {
    for (const QByteArray& number :
         {QByteArray{"<CommentID>7</CommentID>"}, QByteArray{"<CommentID/>"}, QByteArray{}}) {
        const auto of = [&number](const char* ID, const char* text) {
            return "<Comment><ID>" + QByteArray{ID} + "</ID>" + number + "<Comment>" + text
                   + "</Comment></Comment>";
        };
        setData("<Patient><ID>A</ID></Patient><Patient><ID>B</ID></Patient><SystemSetting/>" + of("B", "of B")
                + of("A", "first of A") + of("A", "second of A"));
        store.setCurrentID(u"A"_s);
        CommentModel changed = comment(1);
        changed.comment = u"typed"_s;
        ASSERT_TRUE(store.saveCommentToXML(changed, comment(1)));
        EXPECT_TRUE(data().contains(">of B<") && data().contains(">first of A<")) << data().constData();
        EXPECT_EQ(comment(1).comment, u"typed"_s);
        EXPECT_FALSE(data().contains('#'))
            << "what is only known here is not written: " << data().constData();
        EXPECT_NE(comment(0).CommentID, comment(1).CommentID);
        store.setSelectedComment(comment(1).CommentID);
        EXPECT_EQ(store.getSelectedComment(), &comment(1));
        for (const QString& ID : {u"B"_s, u"A"_s}) {
            store.setCurrentID(ID);
            EXPECT_EQ(store.getSelectedComment(), nullptr) << "another patient's is selected";
            store.setSelectedComment(comment(0).CommentID);
            ASSERT_NE(store.getSelectedComment(), nullptr);
        }
        ASSERT_TRUE(store.deleteSelectedCommentToXML());
        EXPECT_TRUE(data().contains(">of B<") && data().contains(">typed<"));
        EXPECT_FALSE(data().contains(">first of A<"));
        CommentModel recoloured = comment(0);
        recoloured.degree = 3;
        elsewhere(">typed<", ">newer<");
        ASSERT_TRUE(store.saveCommentToXML(recoloured, comment(0)));
        EXPECT_TRUE(data().contains(">newer<") && data().count("</Comment> </Comment>") == 2)
            << "found by both";
    }
}

TEST_F(ChangeTest, CommentThatAnotherProgramChangedAmongItsLikesIsNotFoundByGuess) {
    const auto of = [](const char* text) {
        return "<Comment><ID>A</ID><CommentID>7</CommentID><Comment>" + QByteArray{text}
               + "</Comment></Comment>";
    };
    setData("<Patient><ID>A</ID></Patient><SystemSetting/>" + of("one") + of("two"));
    store.setCurrentID(u"A"_s);
    store.setSelectedComment(comment(0).CommentID);
    const CommentModel asRead = comment(1);
    elsewhere(">one<", ">1<");
    elsewhere(">two<", ">2<");
    const QByteArray before = data();
    EXPECT_EQ(store.deleteSelectedCommentToXML().error().code, StoreErrorCode::changedElsewhere);
    EXPECT_EQ(data(), before);
    CommentModel typed = asRead;
    typed.comment = u"mine"_s;
    ASSERT_TRUE(store.saveCommentToXML(typed, asRead));
    EXPECT_TRUE(data().contains(">1<") && data().contains(">2<") && data().contains(">mine<"));
    EXPECT_EQ(data().count("<CommentID>7<"), 2) << "the one that is kept beside them has a number of its own";
}

TEST_F(ChangeTest, NothingIsStoredForAPatientWhoIsGone) {
    setData("<SystemSetting/><Patient><ID>A</ID></Patient><Patient><ID>B</ID></Patient>");
    store.setCurrentID(u"A"_s);
    CommentModel typed;
    typed.ID = u"A"_s;
    const PatientModel patient = *store.getPatientByID(u"A"_s);
    const std::pair<const char*, std::function<StoreErrorCode()>> writes[] = {
        {"a download", [&] { return store.newDataTransfer(u"A"_s, {reading({})}).error().code; }},
        {"a new comment", [&] { return store.addCommentForCurID({}).error().code; }},
        {"a comment", [&] { return store.saveCommentToXML(typed).error().code; }},
        {"the patient", [&] { return store.saveXMLPatient(patient, patient).error().code; }},
    };
    for (const auto& [what, act] : writes) {
        setData("<SystemSetting/><Patient><ID>A</ID></Patient><Patient><ID>B</ID></Patient>");
        elsewhere("<Patient><ID>A</ID></Patient>", "");
        const QByteArray before = data();
        EXPECT_EQ(act(), StoreErrorCode::noSuchRecord) << what;
        EXPECT_EQ(data(), before) << what;
        EXPECT_FALSE(store.validIDinXML(u"A"_s)) << "known by now";
    }
}

TEST_F(ChangeTest, WriteThatCannotBeReadBackIsASuccess) {
    const QByteArray records = "<SystemSetting/><Patient><ID>A</ID></Patient>";
    store.setCurrentID(u"A"_s);
    const std::pair<const char*, std::function<bool()>> writes[] = {
        {"a download",
         [&] { return store.newDataTransfer({reading({})}).value_or(TransferCounts{}).added == 1U; }},
        {"a comment", [&] { return store.addCommentForCurID({}).has_value(); }},
    };
    for (const auto& [what, act] : writes) {
        setData(records);
        const DamageAfterWrite damage(path);
        EXPECT_TRUE(act()) << what;
        EXPECT_EQ(store.lastLoad().has_value(), false) << what;
    }
}

TEST_F(ChangeTest, DownloadIsComparedAsASetWithCounts) {
    setData(
        "<SystemSetting/><Patient><ID>A</ID></Patient><MeasureRec><ID>A</ID><ReadingDate>soon</ReadingDate>"
        "<Sys>120</Sys></MeasureRec>");
    const ReadingModel undated = reading({});
    const ReadingModel marked = reading(getNilReadingDate());
    EXPECT_EQ(stored({undated}), 0U) << "no date is no date";
    EXPECT_EQ(stored({undated, undated, marked, marked}), 3U);
    EXPECT_EQ(stored({marked, undated, marked, undated}), 0U);
    EXPECT_EQ(stored({reading({}, 121)}), 1U);
    EXPECT_EQ(stored({marked, marked, marked}), 1U);
}

TEST_F(ChangeTest, ReadingIsTheSameWhereverItIsDownloadedAgain) {
    setData("<SystemSetting/><Patient><ID>A</ID></Patient>");
    const auto monitor = [] { // what its clock showed, decoded in the computer's zone
        const auto shown = [](const QString& text) { return StrToDate(text, u"yyyyMMddHHmm"_s); };
        return ReadingList{reading(shown(u"201903220800"_s)), reading(shown(u"201903220900"_s)),
                           reading(shown(u"201903221000"_s), 130)};
    };
    EXPECT_EQ(stored(monitor()), 3U);
    for (const char* zone : {"Europe/London", "America/New_York", "Asia/Tokyo", "Europe/Berlin"}) {
        const InZone there{zone};
        EXPECT_EQ(stored(monitor()), 0U) << zone;
    }
    setData(readFile(path)
                ->replace("T08:00:00+01:00", "T07:00:00+00:00")
                .replace("<ZEL>", "")
                .replace("</ZEL>", ""));
    EXPECT_EQ(stored(monitor()), 0U) << "the same instant, written in another zone";
}

TEST_F(ChangeTest, DaysAreThoseOfTheFileInEveryZone) {
    setData(
        "<SystemSetting/><Patient><ID>A</ID><DateOfBirth>1956-04-12T00:00:00+01:00</DateOfBirth></Patient>"
        "<Comment><ID>A</ID><BeginDate>2019-03-22T00:00:00+01:00</BeginDate>"
        "<EndDate>2019-03-23T23:59:59+01:00</EndDate></Comment>");
    store.setCurrentID(u"A"_s);
    for (const char* zone : {"Europe/Berlin", "America/New_York", "Asia/Tokyo", "Pacific/Apia"}) {
        const InZone there{zone};
        ASSERT_TRUE(store.loadXML());
        const PatientModel& patient = *store.getPatientByID(u"A"_s);
        EXPECT_EQ(DateToStr(patient.DateOfBirth, u"yyyy-MM-dd"_s), u"1956-04-12"_s) << zone;
        EXPECT_EQ(GetAge(*patient.DateOfBirth, XMLStrToDate("2026-04-12T12:00:00+00:00").value()), 70)
            << zone;
        EXPECT_EQ(comment(0).strBeginDate() + comment(0).strEndDate(), u"2019/03/222019/03/23"_s) << zone;
    }
}

TEST_F(ChangeTest, DoubledChildIsReadAsTheFirstEverywhere) {
    setData("<SystemSetting><SysStandard>140</SysStandard><SysStandard>150</SysStandard></SystemSetting>"
            "<Patient><ID>A</ID><ID>B</ID><GivenNames>first</GivenNames>"
            "<GivenNames>second</GivenNames></Patient>"
            "<MeasureRec><ID>A</ID><ID>B</ID><RecID>1</RecID></MeasureRec>");
    store.setCurrentID(u"A"_s);
    ASSERT_TRUE(store.validIDinXML(u"A"_s));
    EXPECT_EQ(store.getReadingForCurID().size(), 1U);
    EXPECT_EQ(store.getSetting().sysStandard, 140U);
    EXPECT_EQ(store.beginExport()->patients(), QStringList{u"A"_s});
    PatientModel changed = *store.getPatientByID(u"A"_s);
    changed.GivenNames = u"typed"_s;
    ASSERT_TRUE(store.saveXMLPatient(changed));
    EXPECT_TRUE(data().contains("<GivenNames>typed</GivenNames> <GivenNames>second</GivenNames>"));
    EXPECT_EQ(store.importXml(path).error().code, ImportRefusalCode::alreadyKnown);
    ASSERT_TRUE(store.deleteXMLPatient(u"A"_s));
    EXPECT_FALSE(data().contains("<Patient>") || data().contains("<MeasureRec>"));
}

TEST_F(ChangeTest, PatientWithoutAnIDCanBeDeleted) {
    setData("<SystemSetting/><Patient><FamilyName>None</FamilyName></Patient>"
            "<Patient><ID/><FamilyName>Empty</FamilyName></Patient><Patient><ID>-</ID></Patient>"
            "<Patient><ID>A</ID></Patient><MeasureRec><ID/><Sys>1</Sys></MeasureRec>");
    for (const QString& ID : {u""_s, u""_s, u"-"_s}) {
        ASSERT_TRUE(store.validIDinXML(ID));
        EXPECT_FALSE(store.getPatientByID(ID)->ID.isNull());
        const QString shown = store.getPatientByID(ID)->FamilyName;
        ASSERT_TRUE(store.deleteXMLPatient(ID));
        EXPECT_FALSE(!shown.isNull() && data().contains(shown.toUtf8())) << "another one went";
        ASSERT_TRUE(store.loadXML());
    }
    ASSERT_EQ(store.getPatientArray().size(), 1U);
    EXPECT_EQ(store.getPatientArray().front().ID, u"A"_s);
    EXPECT_TRUE(data().contains("<Sys>1<")) << "perhaps somebody's";
    EXPECT_EQ(store.deleteXMLPatient(u""_s).error().code, StoreErrorCode::invalidRecord);
}

} // namespace
} // namespace zel
