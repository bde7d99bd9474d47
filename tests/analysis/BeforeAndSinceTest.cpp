#include "analysis/BeforeAndSince.h"

#include "analysis/Sample.h"
#include "support/RealTexts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zel {
using namespace Qt::StringLiterals;

namespace {

/// "first day/last day: readings" on either side of the comment at \p chosen.
std::string spans(const Sample& sample, std::size_t chosen = 0) {
    const auto [before, since] =
        calcBeforeAndSince(DayMeans(sample.readings), sample.comments, *sample.comments[chosen]);
    QStringList parts;
    for (const SpanMeans* span : {&before, &since})
        parts += dayText(span->begin, u"MM-dd"_s) + u'/' + dayText(span->end, u"MM-dd"_s)
                 + u": %1"_s.arg(span->means.count());
    return parts.join(u", "_s).toStdString();
}

TEST(BeforeAndSince, IsOf14DaysAndUpTo28UntilAnotherCommentBegins) {
    const RealTexts texts;
    Sample sample;
    sample.readings =
        readingsAt({"2019-02-14 23:59", "2019-02-15", "2019-02-28 23:59:59", "2019-03-01", "2019-03-10",
                    "2019-03-11", "2019-03-28 23:59", "2019-03-29", "2000-01-01"});
    std::ranges::reverse(sample.readings);
    sample.comment("2019-01-01", "2019-12-31"); // begins earlier
    sample.comment("2019-03-01", "2019-03-02");
    EXPECT_EQ(spans(sample, 1), "02-15/02-28: 2, 03-01/03-28: 4");
    sample.comment("2019-03-01", "2019-03-05"); // begins with it
    sample.comment("2019-03-11", "2019-03-12");
    sample.comment("2019-03-29", "2019-03-30");
    EXPECT_EQ(spans(sample, 1), "02-15/02-28: 2, 03-01/03-10: 2");
    EXPECT_EQ(spans(sample, 2), "02-15/02-28: 2, 03-01/03-10: 2");
    EXPECT_EQ(spans(sample, 3), "02-25/03-10: 3, 03-11/03-28: 2");
    EXPECT_EQ(spans(sample, 4), "03-15/03-28: 1, 03-29/04-25: 1");
    sample.readings[1].exclusion = u"29 March"_s;
    sample.readings[7].exclusion = u"15 February"_s;
    EXPECT_EQ(spans(sample, 1), "02-15/02-28: 1, 03-01/03-10: 2");
    EXPECT_EQ(spans(sample, 4), "03-15/03-28: 1, 03-29/04-25: 0");
    for (const auto& [index, before, since] :
         {std::tuple(1U, 1, 0), std::tuple(4U, 0, 1), std::tuple(3U, 0, 0)}) {
        const auto change =
            calcBeforeAndSince(DayMeans(sample.readings), sample.comments, *sample.comments[index]);
        EXPECT_EQ(std::pair(change.before.excluded, change.since.excluded), std::pair(before, since))
            << index;
        const QString told = u"1 left out"_s;
        EXPECT_EQ(describe(change).endsWith(u"; "_s + told), before + since > 0)
            << qPrintable(describe(change));
    }
    sample.readings.push_back(readingAt("2019-03-05", 0, 0));
    for (const std::size_t index : {1U, 4U, 5U, 6U, 8U}) // left out, two since, one before, one too early
        sample.readings[index].isOfOtherZone = true;
    const auto moved = calcBeforeAndSince(DayMeans(sample.readings), sample.comments, *sample.comments[1]);
    EXPECT_EQ(std::pair(moved.before.ofOtherZone, moved.since.ofOtherZone), std::pair(1, 2));
    EXPECT_TRUE(describe(moved).endsWith(u"both sides; 1 left out; 1 without pressures not "
                                         u"counted; 3 stored in another time zone; "
                                         "times are those of this computer"_s))
        << qPrintable(describe(moved));
    for (const DayNumber undated : {noDay, LocalZone{}.day(at("2000-01-01"))}) {
        sample.comments[0]->beginDay = undated;
        EXPECT_EQ(spans(sample), "/: 0, /: 0");
        EXPECT_EQ(
            describe(calcBeforeAndSince(DayMeans(sample.readings), sample.comments, *sample.comments[0])),
            QString());
    }
}

TEST(BeforeAndSince, saysWhichSideHasFewReadingsAlsoWhereTheOtherHasNone) {
    const RealTexts texts;
    struct Case {
        int before, since;
        const char* words;
    };
    for (const Case& one :
         {Case{0, 0, "no reading before or since"},
          Case{0, 2, "no reading in the 14 days before, 130/80 (2) since; fewer than 6 readings since"},
          Case{0, 6, "no reading in the 14 days before, 130/80 (6) since"},
          Case{5, 0, "140/80 (5) before, no reading since; fewer than 6 readings before"},
          Case{6, 0, "140/80 (6) before, no reading since"},
          Case{5, 6, "140/80 (5) before, 130/80 (6) since: -10/0; fewer than 6 readings before"},
          Case{6, 5, "140/80 (6) before, 130/80 (5) since: -10/0; fewer than 6 readings since"},
          Case{5, 5, "140/80 (5) before, 130/80 (5) since: -10/0; fewer than 6 readings on both sides"},
          Case{6, 6, "140/80 (6) before, 130/80 (6) since: -10/0"}}) {
        Sample sample;
        sample.comment("2019-03-01", "2019-03-01");
        for (int i = 0; i < one.before; ++i)
            sample.readings.push_back(readingAt("2019-02-20", 140));
        for (int i = 0; i < one.since; ++i)
            sample.readings.push_back(readingAt("2019-03-02", 130));
        EXPECT_EQ(
            describe(calcBeforeAndSince(DayMeans(sample.readings), sample.comments, *sample.comments[0])),
            QLatin1String(one.words));
    }
}

} // namespace
} // namespace zel
