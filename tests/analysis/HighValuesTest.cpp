#include "analysis/HighValues.h"

#include "analysis/Sample.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

TEST(HighValuesTest, AValueIsHighFromItsLimitOnAndWithoutALimitNever) {
    struct Case {
        std::uint32_t sys, dia;
        LimitPair limits;
        bool isSysHigh, isDiaHigh;
    };
    for (const Case& c : {Case{134, 84, {135, 85}, false, false}, Case{135, 84, {135, 85}, true, false},
                          Case{134, 85, {135, 85}, false, true}, Case{200, 120, {0, 85}, false, true},
                          Case{200, 120, {135, 0}, true, false}, Case{0, 0, {0, 0}, false, false}}) {
        ReadingModel reading = readingAt("2026-03-01 08:00", c.sys, c.dia);
        EXPECT_EQ(isSysHigh(reading, c.limits), c.isSysHigh) << c.sys;
        EXPECT_EQ(isDiaHigh(reading, c.limits), c.isDiaHigh) << c.dia;
        reading.exclusion = u"wrong cuff"_s;
        EXPECT_FALSE(isSysHigh(reading, c.limits) || isDiaHigh(reading, c.limits)) << "left out";
    }
}

TEST(HighValuesTest, TheLegendNamesTheLimitsThatThereAre) {
    EXPECT_EQ(describe(LimitPair{}), QString());
    EXPECT_EQ(describeHighMark({}), qtTrId("noHighMark"));
    EXPECT_EQ(describe(LimitPair{135, 0}), qtTrId("limitSysAlone").arg(135));
    EXPECT_EQ(describe(LimitPair{0, 85}), qtTrId("limitDiaAlone").arg(85));
    EXPECT_EQ(ViewLimits{}.limits(), (LimitPair{135, 85}));
}

} // namespace
} // namespace zel
