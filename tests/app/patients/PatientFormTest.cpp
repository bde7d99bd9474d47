#include "app/patients/PatientForm.h"

#include "app/patients/PatientMeasures.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace zel {

using namespace Qt::StringLiterals;
using enum PatientField;

namespace {

SettingModel units(bool isMetric) {
    SettingModel settings = SettingModel::initWithDefault();
    settings.metricFormat = isMetric ? u"kg / cm"_s : u"lb / in"_s;
    return settings;
}

PatientModel sample() {
    PatientModel patient = PatientForm::newPatient();
    patient.ID = u"P1"_s;
    patient.FamilyName = u"Adams"_s;
    patient.GivenNames = u"Kim"_s;
    patient.DateOfBirth = StrToDate(u"19560229"_s, u"yyyyMMdd"_s);
    patient.Weight = 72.54F;
    patient.Height = 175.26F;
    patient.Cholestrol = 201.25F;
    patient.makeUpDisplayName();
    return patient;
}

/// Not before main(), which sets the time zone.
Instant today() { return *StrToDate(u"202611210900"_s, u"yyyyMMddHHmm"_s); }

std::string shown(const QString& text) { return text.toStdString(); }

PatientForm stored(bool isMetric = true) { return {sample(), units(isMetric), false}; }
PatientForm blank() { return {PatientForm::newPatient(), units(true), true}; }

/// The sample's entry with one field replaced.
PatientEntry with(const PatientForm& form, PatientField field, const QString& text) {
    PatientEntry entry = form.entryOf();
    entry[field] = text;
    return entry;
}

/// A new patient's entry that can be saved.
PatientEntry complete() {
    PatientEntry entry = blank().entryOf();
    entry[ID] = u"P9"_s;
    entry[FamilyName] = u"Baker"_s;
    entry[GivenNames] = u"Lou"_s;
    return entry;
}

constexpr const char* refused = nullptr;

/// Entries that are all taken as the same text.
struct Typed {
    const char* taken;
    std::vector<const char*> typed;
};

void expectTaken(const std::function<std::optional<QString>(QString)>& read,
                 const std::vector<Typed>& cases) {
    for (const auto& [taken, all] : cases) {
        for (const char* typed : all) {
            const auto text = read(QString::fromUtf8(typed));
            EXPECT_EQ(text.has_value(), taken != refused) << typed;
            EXPECT_EQ(shown(text.value_or(QString())), taken ? taken : "") << typed;
        }
    }
}

} // namespace

TEST(PatientMeasuresTest, takesWhatIsPlainlyMeantAndRefusesTheRest) {
    const auto kg = [](const QString& typed) { return weightText(typed, units(true)); };
    const auto lb = [](const QString& typed) { return weightText(typed, units(false)); };
    const auto cm = [](const QString& typed) { return heightText(typed, units(true)); };
    const auto feet = [](const QString& typed) { return heightText(typed, units(false)); };
    expectTaken(kg, {{"72.5", {"72.5", "72,5", " 72.5 kg "}},
                     {"72", {"72kg", "72\u00A0kg"}},
                     {"", {"", "  ", "0"}},
                     {"0.2", {"0.2"}},
                     {"1000", {"1000"}},
                     {refused,
                      {"-3", "\u22123", "+72", "1,200", "1.200,5", "72.5.1", "1e2", "nan", "72 lb", "seventy",
                       "1001", "0.1", "99999999999999999999"}}});
    expectTaken(lb, {{"160.5", {"160.5 lbs"}},
                     {"160", {"160 pounds"}},
                     {"2200", {"2200"}},
                     {refused, {"2205", "72 kg"}}});
    expectTaken(cm, {{"175", {"175"}},
                     {"20", {"20"}},
                     {"300", {"300"}},
                     {"175.26", {"175,26 cm"}},
                     {refused, {"1.75", "5/9", "301", "-3"}}});
    expectTaken(
        feet, {{"5/9", {"5/9", "5 / 9", "5'9\"", "5\u2019 9\u201D", "5\u20329\u2033", "5'9''", "5 ft 9 in"}},
               {"5/0", {"5ft"}},
               {"6/0", {"6/0"}},
               {"5/9.5", {"5/9.5", "5/9,5"}},
               {"", {"0/0", ""}},
               {refused, {"5/13", "5/12", "5/-1", "69", "-3", "5/", "5/9/1", "0/5", "175 cm"}}});
    expectTaken(cholestrolText, {{"200", {"200", "200 mg/dL"}},
                                 {"201.5", {"201,5"}},
                                 {"5000", {"5000"}},
                                 {"", {""}},
                                 {refused, {"5.2", "5001"}}});
}

TEST(PatientFormTest, whatIsLeftAloneKeepsItsValueToTheLastDigit) {
    for (const bool isMetric : {true, false}) {
        PatientModel record = sample();
        record.Sex = 5;
        record.Address = QString();
        record.PhoneEmail = u"a\u00A0b\r\nc"_s;
        PatientForm form(record, units(isMetric), false);
        PatientEntry fields = form.entryOf();
        fields[PhoneEmail] = u"a b\nc"_s; // what an input makes of it
        form.setShown(fields);
        EXPECT_FALSE(form.isChanged(fields, today()));
        fields[PatientNotes] = u"new"_s;
        const PatientModel changed = form.record(fields);
        EXPECT_EQ(changed.Weight, 72.54F);
        EXPECT_EQ(changed.Height, 175.26F);
        EXPECT_EQ(changed.Cholestrol, 201.25F);
        EXPECT_EQ(changed.Sex, 5);
        EXPECT_EQ(changed.PhoneEmail, record.PhoneEmail);
        EXPECT_EQ(changed.DateOfBirth, record.DateOfBirth);
        EXPECT_EQ(changed.PatientNotes, u"new"_s);
        EXPECT_TRUE(form.problems(fields, today()).empty());
    }
}

TEST(PatientFormTest, measuresAreTakenInTheUnitsOfTheSettings) {
    const PatientForm imperial = stored(false);
    EXPECT_EQ(shown(imperial.entryOf()[Height]), "5/8") << "whole inches are not rounded up";
    EXPECT_EQ(imperial.record(with(imperial, Height, u"5'9\""_s)).Height, 175.26F);
    EXPECT_EQ(imperial.record(with(imperial, Height, u""_s)).Height, 0.0F);
    EXPECT_EQ(imperial.record(with(imperial, Height, u"69"_s)).Height, 175.26F) << "refused";
    EXPECT_NEAR(imperial.record(with(imperial, Weight, u"159,8 lb"_s)).Weight, 72.484F, 0.001F);
    const PatientForm metric = stored();
    EXPECT_EQ(metric.record(with(metric, Weight, u"72,5"_s)).Weight, 72.5F);
    EXPECT_EQ(metric.record(with(metric, Weight, u"0"_s)).Weight, 0.0F);
    EXPECT_EQ(metric.record(with(metric, Cholestrol, u""_s)).Cholestrol, 0.0F);
}

TEST(PatientFormTest, aChangeOfUnitsKeepsWhatIsTypedToTheLastDigit) {
    const PatientForm metric = stored();
    PatientEntry entry = with(metric, Weight, u"80"_s);
    entry[Height] = u"tall"_s;
    const PatientEntry imperial = metric.inUnitsOf(units(false), entry);
    EXPECT_EQ(shown(imperial[Weight]), "80 kg");
    EXPECT_EQ(shown(imperial[Height]), "tall") << "nothing typed is lost";
    EXPECT_EQ(metric.inUnitsOf(units(true), entry), entry);
    EXPECT_EQ(shown(metric.inUnitsOf(units(false), metric.entryOf())[Height]), "5/8") << "not typed";
    struct Case {
        bool isMetric;
        QString typed;
    };
    for (const auto& [isMetric, typed] : {Case{true, u"175"_s},
                                          {true, u"180,5 cm"_s},
                                          {true, u"5'9"_s},
                                          {false, u"5/9"_s},
                                          {false, u"5/9\""_s}}) {
        const PatientForm before = stored(isMetric), after = stored(!isMetric);
        const PatientEntry height = with(before, Height, typed);
        const PatientEntry kept = before.inUnitsOf(units(!isMetric), height);
        EXPECT_EQ(after.record(kept).Height, before.record(height).Height) << shown(kept[Height]);
        EXPECT_TRUE(after.problems(kept, today()).empty());
    }
    const PatientEntry inches = with(stored(false), Height, u"69"_s);
    EXPECT_FALSE(metric.problems(stored(false).inUnitsOf(units(true), inches), today()).empty()) << "not cm";
}

TEST(PatientFormTest, textsAreCleanedOfWhatCannotBeMeant) {
    const PatientForm form = blank();
    struct Case {
        PatientField field;
        QString typed, taken;
        QString PatientModel::*text;
    };
    const QString longName(10000, u'x');
    for (const auto& [field, typed, taken, text] : std::initializer_list<Case>{
             {ID, u"  P7\t"_s, u"P7"_s, &PatientModel::ID},
             {ID, u"\"O'N\""_s, u"\"O'N\""_s, &PatientModel::ID},
             {FamilyName, u"van\nder\r\nBerg"_s, u"van der Berg"_s, &PatientModel::FamilyName},
             {FamilyName, u"A\u2028B"_s, u"A B"_s, &PatientModel::FamilyName},
             {GivenNames, u"\x07Kim\x00\x1B"_s, u"Kim"_s, &PatientModel::GivenNames},
             {GivenNames, u"Kim \"K\" O'Neil \U0001F600"_s, u"Kim \"K\" O'Neil \U0001F600"_s,
              &PatientModel::GivenNames},
             {FamilyName, longName, longName, &PatientModel::FamilyName},
             {Address, u"One\r\n\"Two\"\n"_s, u"One\n\"Two\"\n"_s, &PatientModel::Address},
             {Address, u"One\tTwo"_s, u"One\tTwo"_s, &PatientModel::Address},
             {PatientNotes, u" \n "_s, u""_s, &PatientModel::PatientNotes},
         }) {
        PatientEntry entry = complete();
        entry[field] = typed;
        EXPECT_TRUE(form.problems(entry, today()).empty()) << shown(typed.left(40));
        EXPECT_EQ(shown(form.record(entry).*text), shown(taken));
    }
}

TEST(PatientFormTest, namesAndIDAreRequired) {
    using Kind = PatientProblem::Kind;
    for (const PatientField field : {ID, FamilyName, GivenNames}) {
        for (const auto& typed : {u""_s, u"-"_s, u"  "_s, u" - "_s, u"\n"_s}) {
            PatientEntry entry = complete();
            entry[field] = typed;
            const auto found = blank().problems(entry, today());
            ASSERT_EQ(found.size(), 1U) << shown(typed);
            EXPECT_EQ(found.front(), (PatientProblem{field, Kind::missing, qtTrId("fieldMissing")}));
        }
    }
    EXPECT_TRUE(blank().problems(complete(), today()).empty());
}

TEST(PatientFormTest, aNewIDIsOneThatAMonitorKeeps) {
    for (const auto& typed :
         {u"\U0001F600"_s, u"Øre"_s, u"twelve-chars"_s, QString(10000, u'9'), u"a\nb\u2028é"_s}) {
        PatientEntry entry = complete();
        entry[ID] = typed;
        EXPECT_EQ(shown(blank().refusal(ID, entry, today())), shown(qtTrId("IDRefused")));
    }
    PatientModel old = sample();
    old.ID = u"an older, longer identifier"_s;
    const PatientForm form(old, units(true), false);
    EXPECT_TRUE(form.problems(with(form, PatientNotes, u"new"_s), today()).empty())
        << "an ID that is there is not judged";
}

TEST(PatientFormTest, aDateOfBirthIsADayThatHasBeenOrNone) {
    struct Case {
        QString refusal;
        std::vector<const char*> days; ///< year/month/day
    };
    for (const auto& [refusal, days] : std::initializer_list<Case>{
             {u""_s, {"/0/0", "1970/1/31", " 1970 /1/31", "2024/2/29", "2026/11/21", "1896/1/1"}},
             {qtTrId("birthYearRefused"),
              {"199/1/1", "19a0/1/1", "19 0/1/1", "-970/1/1", "1970./1/1", "\u0661\u0669\u0667\u0660/1/1"}},
             {qtTrId("birthDateIncomplete"), {"1970/0/0", "1970/5/0", "/5/1"}},
             {qtTrId("birthDayRefused").arg(30), {"1970/2/30"}},
             {qtTrId("birthDayRefused").arg(29), {"2025/2/29"}},
             {qtTrId("birthDateInFuture"), {"2026/11/22", "9999/1/1"}},
             {qtTrId("birthDateTooOld").arg(130), {"1895/1/1"}},
         }) {
        for (const char* day : days) {
            const PatientForm form = stored();
            PatientEntry entry = form.entryOf();
            const QStringList parts = QString::fromUtf8(day).split(u'/');
            for (const auto& [field, part] : {std::pair(BirthYear, 0), {BirthMonth, 1}, {BirthDay, 2}})
                entry[field] = parts[part];
            EXPECT_EQ(shown(form.refusal(BirthYear, entry, today())), shown(refusal)) << day;
        }
    }
    const PatientForm form = stored();
    PatientEntry entry = form.entryOf();
    EXPECT_EQ(entry[BirthYear] + entry[BirthMonth] + entry[BirthDay], u"1956229"_s);
    entry[BirthYear] = u"1960"_s;
    EXPECT_EQ(form.record(entry).DateOfBirth, StrToDate(u"19600229"_s, u"yyyyMMdd"_s));
    entry[BirthYear] = u""_s;
    entry[BirthMonth] = entry[BirthDay] = u"0"_s;
    EXPECT_EQ(form.record(entry).DateOfBirth, getNilDate());
}

TEST(PatientFormTest, everyChangeIsNoticedAndNoOtherIs) {
    const PatientForm form = stored();
    struct Case {
        PatientField field;
        QString typed;
        bool isChange;
    };
    for (const auto& [field, typed, isChange] : std::initializer_list<Case>{
             {FamilyName, u"Adams "_s, false},
             {FamilyName, u"adams"_s, true},
             {Weight, u"72.5 "_s, false},
             {Weight, u"72.6"_s, true},
             {Weight, u"-3"_s, true},
             {Height, u""_s, true},
             {Cholestrol, u"201"_s, true},
             {BirthYear, u"1960"_s, true},
             {BirthYear, u"19a0"_s, true},
             {BirthDay, u"28"_s, true},
             {Sex, u"1"_s, true},
             {Smoker, u"1"_s, true},
             {Diabetic, u"1"_s, true},
             {Address, u"x"_s, true},
             {PhoneEmail, u"x"_s, true},
             {FamilyHistory, u"x"_s, true},
             {PatientNotes, u"x"_s, true},
         })
        EXPECT_EQ(form.isChanged(with(form, field, typed), today()), isChange) << shown(typed);
    PatientModel inSpring = sample();
    inSpring.DateOfBirth = StrToDate(u"19800406"_s, u"yyyyMMdd"_s); // a day of 23 hours
    const PatientForm spring(inSpring, units(true), false);
    EXPECT_TRUE(spring.isChanged(with(spring, BirthDay, u"7"_s), today()));
    PatientModel withoutNotes = sample();
    withoutNotes.PatientNotes = QString();
    const PatientForm lacking(withoutNotes, units(true), false);
    EXPECT_TRUE(lacking.isChanged(with(lacking, PatientNotes, u"x"_s), today()));
    EXPECT_FALSE(blank().isChanged(blank().entryOf(), today()));
}

TEST(PatientFormTest, whatIsTypedStaysOverARecordThatHasChanged) {
    const PatientForm before = stored();
    PatientModel changed = sample();
    changed.Address = u"elsewhere"_s;
    changed.PatientNotes = u"theirs"_s;
    const PatientForm after(changed, units(true), false);
    const PatientEntry typed = with(before, PatientNotes, u"mine"_s);
    const PatientEntry kept = keepTyped(typed, before.entryOf(), after.entryOf());
    EXPECT_EQ(shown(kept[PatientNotes]), "mine");
    EXPECT_EQ(shown(kept[Address]), "elsewhere");
}

} // namespace zel
