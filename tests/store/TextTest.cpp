#include "store/Text.h"

#include <gtest/gtest.h>

#include <limits>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

TEST(Text, LeadingNumbers) {
    struct Case {
        std::string_view text;
        std::int64_t integer;
        double number;
    };
    for (const auto& [text, integer, number] : {
             Case{"120abc", 120, 120},
             Case{"", 0, 0},
             Case{" \t-7.5kg", -7, -7.5},
             Case{"+3", 3, 3},
             Case{"abc", 0, 0},
             Case{"--5", 0, 0},
             Case{"1,5", 1, 1},
             Case{".5", 0, 0.5},
             Case{"nan", 0, 0},
             Case{"inf", 0, 0},
             Case{"- 5", 0, 0},
             Case{"72.500000", 72, 72.5},
             Case{"1e400", 1, 0},
         }) {
        EXPECT_EQ(leadingInteger(text), integer) << text;
        EXPECT_EQ(leadingInteger(QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()))),
                  integer)
            << text;
        EXPECT_DOUBLE_EQ(leadingNumber(text), number) << text;
    }
    EXPECT_EQ(leadingInteger(u"99999999999999999999"_s), std::numeric_limits<std::int64_t>::max());
}

TEST(Text, HexadecimalNumbersStopAtTheFirstOtherCharacter) {
    EXPECT_EQ(HexStrToInt("78"), 0x78U);
    EXPECT_EQ(HexStrToInt("fFg"), 0xFFU);
    EXPECT_EQ(HexStrToInt("g"), 0U);
    EXPECT_EQ(HexStrToInt("-1"), 0U);
    EXPECT_EQ(HexStrToInt("1FFFFFFFF"), 0xFFFFFFFFU);
}

TEST(Text, SmallRules) {
    EXPECT_TRUE(IsEmptyID(u"-"_s));
    EXPECT_FALSE(IsEmptyID(u" -"_s));
    EXPECT_EQ(IncreaseID(u"1000041"_s), u"1000042"_s);
    EXPECT_EQ(IncreaseID(u"99999999999999999999"_s), u"9223372036854775807"_s);
}

} // namespace
} // namespace zel
