#include "store/SettingKeys.h"

#include "store/PressureLimits.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

TEST(SettingKeys, TakeWhatAControlCouldStore) {
    struct Case {
        const char* key;
        QStringList taken;
        QStringList refused;
    };
    const Case cases[] = {
        {"DateFormat", {u"dd mm yyyy"_s, u"mm dd yyyy"_s, u"yyyy mm dd"_s}, {u"yyyy dd mm"_s, u""_s}},
        {"TimeFormat", {u"12-hours"_s, u"24-hours"_s}, {u"24"_s}},
        {"MetricFormat", {u"kg / cm"_s, u"lb / in"_s}, {u"kg/cm"_s}},
        {"EraseRecAfterReading", {u"0"_s, u"1"_s}, {u"2"_s, u"-1"_s, u"yes"_s, u""_s}},
        {"ShowPPorMap", {u"0"_s, u"1"_s}, {u"2"_s}},
        {"UserWhoStandard", {u"0"_s, u"1"_s}, {u"2"_s}},
        {"SysStandard",
         {u"0"_s, u"60"_s, u"260"_s},
         {u"59"_s, u"261"_s, u"1000"_s, u"-1"_s, u"+90"_s, u" 90"_s, u"90.5"_s, u"٩٩"_s, u""_s}},
        {"DiaStandard", {u"0"_s, u"30"_s, u"160"_s}, {u"29"_s, u"161"_s, u"9 9"_s}},
        {"PhysicianAddress", {u""_s, u" Dr. A\n\tB \"C\" 😀\n"_s}, {u"a\rb"_s, u"a\x1B[m"_s}},
    };
    ASSERT_EQ(settingKeys().size(), std::size(cases));
    for (const Case& one : cases) {
        SCOPED_TRACE(one.key);
        const SettingKey* key = settingKey(QString::fromLatin1(one.key));
        ASSERT_TRUE(key);
        SettingModel setting = SettingModel::initWithDefault();
        for (const QString& text : one.taken) {
            const SettingModel before = setting;
            EXPECT_TRUE(key->set(setting, text)) << text.toStdString();
            EXPECT_EQ(key->text(setting), text);
            EXPECT_EQ(setting == before, key->text(before) == text);
        }
        const SettingModel before = setting;
        for (const QString& text : one.refused)
            EXPECT_FALSE(key->set(setting, text)) << text.toStdString();
        EXPECT_EQ(setting, before);
    }
    EXPECT_FALSE(settingKey(u"dateFormat"_s));
}

TEST(SettingModel, OfThePractitionerOnlyWhatSomebodyFilledInIsShown) {
    SettingModel setting = SettingModel::initWithDefault();
    const QString suggested = setting.physicianAddress;
    EXPECT_EQ(setting.getPractitioner(), QString{});
    setting.physicianAddress = u"  Dr. Moreau\n"_s + suggested.section(u'\n', 1, 1) + u" \n\nSea Road 3\n"_s;
    EXPECT_EQ(setting.getPractitioner(), u"Dr. Moreau\n\nSea Road 3"_s);
    setting.physicianAddress.clear();
    EXPECT_EQ(setting.getPractitioner(), QString{});
}

TEST(PressureLimits, OneIsJudgedBesideTheOther) {
    struct Case {
        std::uint32_t systolic, diastolic;
        std::optional<LimitProblem> problem;
    };
    for (const Case& one : {Case{140, 90, {}},
                            {0, 0, {}},
                            {0, 160, {}},
                            {60, 0, {}},
                            {91, 90, {}},
                            {90, 90, LimitProblem::order},
                            {80, 90, LimitProblem::order},
                            {59, 90, LimitProblem::systolic},
                            {999, 999, LimitProblem::systolic},
                            {0, 29, LimitProblem::diastolic},
                            {260, 161, LimitProblem::diastolic}})
        EXPECT_EQ(limitProblem(one.systolic, one.diastolic), one.problem)
            << one.systolic << '/' << one.diastolic;
}

} // namespace
} // namespace zel
