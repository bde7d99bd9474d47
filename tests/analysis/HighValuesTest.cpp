#include "analysis/HighValues.h"

#include "analysis/Sample.h"
#include "support/RealTexts.h"

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
                          Case{200, 120, {135, 0}, true, false}, Case{0, 0, {0, 0}, false, false},
                          Case{1, 1, {1, 1}, true, true}}) {
        ReadingModel reading = readingAt("2026-03-01 08:00", c.sys, c.dia);
        EXPECT_EQ(isSysHigh(reading, c.limits), c.isSysHigh) << c.sys;
        EXPECT_EQ(isDiaHigh(reading, c.limits), c.isDiaHigh) << c.dia;
        reading.exclusion = u"wrong cuff"_s;
        EXPECT_FALSE(isSysHigh(reading, c.limits) || isDiaHigh(reading, c.limits)) << "left out";
    }
}

TEST(HighValuesTest, TheLegendNamesTheLimitsThatThereAre) {
    const RealTexts texts;
    EXPECT_EQ(describeHighMark({}), u"No values are marked as high"_s);
    EXPECT_EQ(describeHighMark({135, 85}), u"\u25B2 and bold: at or above 135/85 mmHg"_s);
    for (const auto& [limits, words] : {std::pair(LimitPair{}, QString()),
                                        {{135, 0}, u"SYS 135 mmHg"_s},
                                        {{0, 85}, u"DIA 85 mmHg"_s},
                                        {{1, 1}, u"1/1 mmHg"_s},
                                        {{1, 0}, u"SYS 1 mmHg"_s},
                                        {{0, 1}, u"DIA 1 mmHg"_s}})
        EXPECT_EQ(describe(limits).toStdString(), words.toStdString());
    EXPECT_EQ(ViewLimits{}.limits(), (LimitPair{135, 85}));
}

} // namespace
} // namespace zel
