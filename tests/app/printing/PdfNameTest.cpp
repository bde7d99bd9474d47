#include "app/printing/PdfName.h"

#include "support/InZone.h"
#include "support/WidgetTest.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class PdfNameTest : public WidgetTest {
protected:
    QString add(const QString& ID, const QString& family, const QString& given) {
        PatientModel patient;
        patient.ID = ID;
        patient.FamilyName = family;
        patient.GivenNames = given;
        EXPECT_TRUE(store.addXMLPatient(patient));
        EXPECT_TRUE(store.loadXML());
        return ID;
    }
    /// Whom it is about: what stands before section and day.
    QString whose(const QString& ID) {
        const QString name = pdfName(store, *store.getPatientByID(ID), Section::table, at("23:30"));
        const QString rest = u" - "_s + qtTrId("pdfReadings") + u" 2026-11-21.pdf"_s;
        EXPECT_TRUE(name.endsWith(rest)) << qPrintable(name);
        return name.chopped(rest.size());
    }
    static Instant at(const char* time) {
        return *StrToDate(u"2026-11-21 "_s + QLatin1StringView(time), u"yyyy-MM-dd HH:mm"_s);
    }
};

} // namespace

TEST_F(PdfNameTest, namesWhoWhatAndTheDayThatItIsHere) {
    add(u"P1"_s, u" Smith "_s, u"Margaret\nAnn"_s);
    EXPECT_EQ(whose(u"P1"_s), u"Smith, Margaret Ann"_s);
    const Instant late = at("23:30");
    const InZone tokyo("Asia/Tokyo");
    EXPECT_TRUE(pdfName(store, *store.getPatientByID(u"P1"_s), Section::trend, late)
                    .endsWith(qtTrId("pdfTrend") + u" 2026-11-22.pdf"_s));
}

TEST_F(PdfNameTest, patientsOfOneNameAreToldApart) {
    add(u"P1"_s, u"Smith"_s, u"Margaret"_s);
    add(u"P/2"_s, u"SMITH"_s, u" margaret"_s);
    add(u"P3"_s, u"Smith"_s, u"Mary"_s);
    EXPECT_EQ(whose(u"P1"_s), u"Smith, Margaret (P1)"_s);
    EXPECT_EQ(whose(u"P/2"_s), u"SMITH, margaret (P_2)"_s);
    EXPECT_EQ(whose(u"P3"_s), u"Smith, Mary"_s);
}

TEST_F(PdfNameTest, saysFirstOfAllThatAPatientIsInvented) {
    add(u"P1"_s, u"Smith"_s, u"Margaret"_s);
    DataStore invented({home.path(), {}, {}, true}, clock);
    ASSERT_TRUE(invented.loadXML());
    EXPECT_EQ(pdfName(invented, *invented.getPatientByID(u"P1"_s), Section::table, at("08:00")),
              qtTrId("demonstrationTitle")
                  .arg(pdfName(store, *store.getPatientByID(u"P1"_s), Section::table, at("08:00"))));
}

TEST_F(PdfNameTest, everyFileSystemTakesIt) {
    add(u"1"_s, u"../a:b"_s, u"<c>?%\u202e"_s);
    EXPECT_EQ(whose(u"1"_s), u"_._a_b, _c____"_s);
    add(u"2"_s, {}, u"Jo"_s);
    EXPECT_EQ(whose(u"2"_s), u"Jo"_s);
    add(u"3"_s, QString(300, u'名'), u"\U0001F600"_s.repeated(100));
    const QString longest = whose(u"3"_s);
    EXPECT_EQ(longest, QString(20, u'名') + u", "_s + u"\U0001F600"_s.repeated(15)) << "no half characters";
    for (const SectionFacts& facts : sections())
        EXPECT_LT(pdfName(store, *store.getPatientByID(u"3"_s), facts.section, at("08:00")).toUtf8().size(),
                  240);
}

} // namespace zel
