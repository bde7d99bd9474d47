#include "app/widgets/PatientTexts.h"

#include "store/Languages.h"
#include "support/WidgetTest.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class PatientTextsTest : public WidgetTest {
protected:
    const ProgramTexts texts{english()};
};

struct Named {
    QString given, family, ID;
    QString inQuestions, ofFile, heading;
};

} // namespace

TEST_F(PatientTextsTest, whoeverLacksANameOrAnIDIsNamedByWhatThereIs) {
    const Named everyone[]{
        {u"Kim"_s, u"Adams"_s, u"P1"_s, u"Kim Adams"_s, u"Kim Adams"_s, u"Kim Adams (ID P1)"_s},
        {u"Kim"_s, {}, u"P1"_s, u"Kim"_s, u"Kim"_s, u"Kim (ID P1)"_s},
        {{}, u"Adams"_s, {}, u"Adams"_s, u"Adams"_s, u"Adams"_s},
        {u" "_s, {}, u"P1"_s, u"ID P1"_s, u"ID P1"_s, u"ID P1"_s},
        {{}, {}, {}, u"New patient"_s, u"Patient without a name"_s, u"Patient without a name"_s},
        {u"%2"_s, u"%1"_s, u"%3"_s, u"%2 %1"_s, u"%2 %1"_s, u"%2 %1 (ID %3)"_s},
    };
    for (const Named& one : everyone) {
        SCOPED_TRACE(qPrintable(one.heading));
        PatientModel patient;
        patient.GivenNames = one.given;
        patient.FamilyName = one.family;
        patient.ID = one.ID;
        EXPECT_EQ(shortName(patient), one.inQuestions);
        EXPECT_EQ(knownName(patient), one.ofFile);
        replaceDataFile("<ZEL><Patient><ID>" + one.ID.toUtf8() + "</ID><GivenNames>" + one.given.toUtf8()
                        + "</GivenNames><FamilyName>" + one.family.toUtf8()
                        + "</FamilyName></Patient></ZEL>");
        ASSERT_TRUE(store.loadXML());
        store.setCurrentID(store.getPatientArray().front().ID);
        EXPECT_EQ(patientHeading(store), one.heading);
    }
}

TEST_F(PatientTextsTest, ofMoreThanSixNamesTheFirstSixAreListed) {
    const QStringList seven{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s};
    EXPECT_EQ(listInShort({}), QString());
    EXPECT_EQ(listInShort(seven.first(1)), u"a"_s);
    EXPECT_EQ(listInShort(seven.first(6)), u"a, b, c, d, e, f"_s);
    EXPECT_EQ(listInShort(seven), u"a, b, c, d, e, f, …"_s);
}

} // namespace zel
