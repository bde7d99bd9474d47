#include "analysis/Sample.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>

namespace zel {
namespace {

struct Span {
    const char* from;
    const char* to;
};

struct Case {
    const char* what;
    std::vector<const char*> readings;
    std::vector<Span> comments;
    const char* rows;
    Span shown{"2019-01-01", "2019-12-31"};
};

const Case cases[] = {
    {"days before, between and after",
     {"2019-03-03 08:30", "2019-03-10 09:00"},
     {{"2019-03-01", "2019-03-05 23:59:59"}},
     "(03-01/00:00) (03-02/00:00) 03-03/08:30 (03-04/08:30) (03-05/08:30) 03-10/09:00"},
    {"the last step is past the end",
     {"2019-03-03 08:30", "2019-03-10 09:00"},
     {{"2019-03-02", "2019-03-05 08:29:59"}},
     "(03-02/00:00) 03-03/08:30 (03-04/08:30) 03-10/09:00"},
    {"all after the last reading",
     {"2019-03-03 08:30"},
     {{"2019-03-05 07:00", "2019-03-06 23:59:59"}},
     "03-03/08:30 (03-05/07:00) (03-06/07:00)"},
    {"a step past the time of the next reading",
     {"2019-03-03 08:30", "2019-03-03 20:30", "2019-03-05 07:00"},
     {{"2019-03-03", "2019-03-05 23:59:59"}},
     "03-03/08:30 03-03/20:30 03-05/07:00"}, // 03-04/20:30 would be after 03-04/07:00
    {"the second begins behind the first one's end",
     {"2019-03-10 09:00"},
     {{"2019-03-01", "2019-03-03 12:00"}, {"2019-03-02", "2019-03-05 23:59:59"}},
     "(03-01/00:00) (03-02/00:00) (03-03/00:00) (03-04/12:00) (03-05/12:00) 03-10/09:00"},
    {"within another, with a third behind it",
     {"2019-03-02 09:00", "2019-03-05 09:00"},
     {{"2019-03-01", "2019-03-06 23:59:59"},
      {"2019-03-02", "2019-03-02"},
      {"2019-03-04", "2019-03-07 12:00"}},
     "(03-01/00:00) 03-02/09:00 (03-03/09:00) (03-04/09:00) 03-05/09:00 (03-06/09:00) (03-07/09:00)"},
    {"within another, on the day that its steps miss",
     {"2019-03-01 09:00", "2019-03-05 20:00", "2019-03-07 07:00"},
     {{"2019-03-01", "2019-03-09 23:59:59"}, {"2019-03-06", "2019-03-06 23:59:59"}},
     "03-01/09:00 (03-02/09:00) (03-03/09:00) (03-04/09:00) 03-05/20:00 (03-06/20:00) 03-07/07:00 "
     "(03-08/07:00) (03-09/07:00)"},
    {"the same with a third between, up to and beyond the next reading",
     {"2019-03-04 20:00", "2019-03-07 07:00", "2019-03-20 09:00"},
     {{"2019-03-03", "2019-03-09 23:59:59"},
      {"2019-03-03", "2019-03-04 23:59:59"},
      {"2019-03-06", "2019-03-08 23:59:59"},
      {"2019-03-06", "2019-03-06 23:59:59"}},
     "(03-03/00:00) 03-04/20:00 (03-05/20:00) (03-06/00:00) 03-07/07:00 (03-08/07:00) (03-09/07:00) "
     "03-20/09:00"},
    {"within another, up to the very instant that its row stands at",
     {"2019-03-01 09:00", "2019-03-05 20:00", "2019-03-07 07:00"},
     {{"2019-03-01", "2019-03-07 23:59:59"}, {"2019-03-06", "2019-03-06 20:00"}},
     "03-01/09:00 (03-02/09:00) (03-03/09:00) (03-04/09:00) 03-05/20:00 (03-06/20:00) 03-07/07:00"},
    {"the same, and no longer",
     {"2019-03-01 09:00", "2019-03-05 20:00", "2019-03-07 07:00"},
     {{"2019-03-01", "2019-03-07 23:59:59"}, {"2019-03-06", "2019-03-06 19:59:59"}},
     "03-01/09:00 (03-02/09:00) (03-03/09:00) (03-04/09:00) 03-05/20:00 03-07/07:00"},
    {"within another, on the day that its own steps miss, too",
     {"2019-03-01 09:00", "2019-03-05 20:00", "2019-03-07 07:00"},
     {{"2019-03-01", "2019-03-09 23:59:59"}, {"2019-03-06 18:00", "2019-03-07 23:59:59"}},
     "03-01/09:00 (03-02/09:00) (03-03/09:00) (03-04/09:00) 03-05/20:00 03-07/07:00 (03-08/07:00) "
     "(03-09/07:00)"},
    {"on the last day of another, which its steps miss",
     {"2019-03-05 09:00"},
     {{"2019-03-01 20:00", "2019-03-03 10:00"}, {"2019-03-03 08:00", "2019-03-03 09:00"}},
     "(03-01/20:00) (03-02/20:00) (03-03/08:00) 03-05/09:00"},
    {"wholly before, then within, then after the period",
     {"2019-03-10 09:00"},
     {{"2019-02-01", "2019-02-27"}, {"2019-03-08", "2019-03-09 23:59:59"}, {"2019-04-01", "2019-04-03"}},
     "(03-08/00:00) (03-09/00:00) 03-10/09:00",
     {"2019-03-01", "2019-03-31"}},
    {"the second begins on the last day of the first, before the period",
     {"2019-03-10 09:00"},
     {{"2019-03-01", "2019-03-03 12:00"}, {"2019-03-03 18:00", "2019-03-05 23:59:59"}},
     "(03-04/12:00) (03-05/12:00) 03-10/09:00",
     {"2019-03-04", "2019-03-31"}},
    {"clipped at both ends",
     {"2019-03-02 09:00"},
     {{"1970-01-01 11:00", "2100-01-01"}},
     "(03-01/00:00) 03-02/09:00 (03-03/09:00) (03-04/09:00)",
     {"2019-03-01", "2019-03-04"}},
    {"one reading serves two comments",
     {"2019-03-03 08:30", "2019-03-09 09:00"},
     {{"2019-03-02", "2019-03-03 07:00"}, {"2019-03-03 10:00", "2019-03-04 09:00"}},
     "(03-02/00:00) 03-03/08:30 (03-04/08:30) 03-09/09:00"},
    {"end before begin", {"2019-03-03 08:30"}, {{"2019-03-09", "2019-03-05"}}, "03-03/08:30"},
    {"dates that are none", {"2019-03-03 08:30"}, {{"0001-01-01", "0001-01-01"}}, "03-03/08:30"},
    {"begin that is none",
     {"2019-03-03 08:30"},
     {{"0001-01-01", "2019-03-03"}},
     "(03-02/00:00) 03-03/08:30",
     {"2019-03-02", "2019-03-31"}},
    {"no reading", {}, {{"2019-03-01", "2019-03-05"}}, ""},
    {"to summer time",
     {"2019-04-02 00:10"},
     {{"2019-03-29 23:30", "2019-04-01 23:59:59"}},
     "(03-29/23:30) (03-30/23:30) (03-31/23:30) (04-01/23:30) 04-02/00:10"}, // as on any other days
    {"to winter time",
     {"2019-10-29 09:00"},
     {{"2019-10-26", "2019-10-28 23:59:59"}},
     "(10-26/00:00) (10-27/00:00) (10-28/00:00) 10-29/09:00"},
};

TEST(PlaceholderRows, StandOnTheDaysThatOnlyACommentCovers) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Sample sample;
        for (const char* date : c.readings)
            sample.readings.push_back(readingAt(date));
        for (const Span& span : c.comments)
            sample.comment(span.from, span.to);
        sample.selection = during(c.shown.from, c.shown.to);
        EXPECT_EQ(sample.words(), c.rows);
    }
}

TEST(PlaceholderRows, CommentWithoutAnyDateMakesNone) {
    Sample sample;
    sample.readings = readingsAt({"2019-03-03 08:30"});
    sample.comments.push_back(std::make_unique<CommentModel>());
    EXPECT_EQ(sample.words(), "03-03/08:30");
}

bool isOn(const CommentModel& comment, const ReadingRow& row) {
    return comment.beginDay <= row.day && row.day <= comment.endDay;
}

/// Among readings at any time, with comments of whole days, one in another or not.
Sample randomMonth(std::mt19937& random) {
    const auto upTo = [&](unsigned most) { return static_cast<int>(random() % most); };
    Sample sample;
    sample.selection = during("2019-02-25", "2019-03-28");
    for (int left = 1 + upTo(6); left > 0; --left) {
        sample.readings.push_back(readingAt("2019-03-01"));
        sample.readings.back().ReadingDate = at("2019-03-01") + std::chrono::hours{upTo(24 * 28)};
        sample.readings.back().postInit(nullptr, {}, LocalZone{});
    }
    const auto date = [](int day) { return at("2019-02-20") + std::chrono::days{day}; };
    for (int day = upTo(12), left = upTo(6); left > 0; --left, day += upTo(4)) {
        sample.comment("2019-03-01", "2019-03-01");
        CommentModel& comment = *sample.comments.back();
        comment.beginDate = date(day);
        comment.endDate = DateToDayBoundary(date(day + (upTo(2) ? 0 : upTo(15))), false);
        comment.beginDay = LocalZone{}.day(comment.beginDate);
        comment.endDay = LocalZone{}.day(comment.endDate);
    }
    return sample;
}

TEST(PlaceholderRows, GiveEachCommentARowThatItHasWhenItIsAlone) {
    std::mt19937 random{1};
    for (int round = 0; round < 400; ++round) {
        Sample sample = randomMonth(random);
        const auto rows = sample.rows().rows;
        SCOPED_TRACE(sample.words());
        for (std::size_t i = 1; i < rows.size(); ++i)
            EXPECT_FALSE(rows[i].day == rows[i - 1].day && (rows[i].isNA() || rows[i - 1].isNA()));
        const CommentList all = std::exchange(sample.comments, {});
        for (const auto& comment : all) {
            const auto has = [&comment](const ReadingRow& row) { return isOn(*comment, row); };
            sample.comments.clear();
            sample.comments.push_back(std::make_unique<CommentModel>(*comment));
            EXPECT_EQ(std::ranges::any_of(rows, has), std::ranges::any_of(sample.rows().rows, has))
                << comment->beginDay - LocalZone{}.day(at("2019-03-01")) + 1;
        }
    }
}

/// A reading of a clock gone wrong must not make millions of rows.
TEST(PlaceholderRows, AreNoMoreThanACentury) {
    Sample sample;
    sample.readings = readingsAt({"1000-01-01 09:00", "9999-12-31 09:00"});
    sample.comment("1000-01-01", "9999-12-31");
    sample.selection = during("1000-01-01", "9999-12-31");
    EXPECT_EQ(sample.rows().rows.size(), 36'527U);
    EXPECT_TRUE(sample.rows().isCut);
    sample.comments.clear();
    sample.comment("2000-01-02", "2100-01-01"); // a century just so
    EXPECT_EQ(sample.rows().rows.size(), 36'527U);
    EXPECT_FALSE(sample.rows().isCut);
}

} // namespace
} // namespace zel
