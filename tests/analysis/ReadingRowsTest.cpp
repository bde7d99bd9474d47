#include "analysis/Sample.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

TEST(ReadingRows, HoldTheReadingsOfThePeriodByDate) {
    Sample sample;
    sample.selection = during("2019-03-02", "2019-03-03");
    sample.readings = readingsAt({"2019-03-04", "2019-03-03 23:59:59", "2019-03-02", "2019-03-03 11:59",
                                  "2019-03-01 23:59:59", "2019-03-03 12:00", "2000-01-01", "0001-01-01"});
    EXPECT_EQ(sample.words(), "03-02/00:00 03-03/11:59 03-03/12:00 03-03/23:59");
    sample.selection.view = ViewSelection::amOnly;
    EXPECT_EQ(sample.words(), "03-02/00:00 03-03/11:59");
    sample.selection.view = ViewSelection::pmOnly;
    EXPECT_EQ(sample.words(), "03-03/12:00 03-03/23:59");
    sample.selection.period = {at("0001-01-01"), at("2019-03-02")};
    sample.selection.view = ViewSelection::viewAll;
    EXPECT_EQ(sample.words(), "03-01/23:59 03-02/00:00");
}

TEST(ReadingRows, UndatedReadingsStandFirstTheLastStoredBeforeTheOthers) {
    Sample sample;
    sample.readings = readingsAt(
        {"2000-01-01", "2019-03-02 08:00", "2000-01-01", "0001-01-01", "2000-01-01", "2019-03-01"});
    sample.readings[2].ReadingDate = std::nullopt;
    sample.readings[2].postInit(nullptr, {}, LocalZone{});
    sample.selection = during("2019-03-02", "2019-03-03");
    sample.selection.view = ViewSelection::pmOnly;
    sample.selection.includeUndated = true;
    const auto rows = sample.rows().rows;
    ASSERT_EQ(rows.size(), 3U);
    for (const std::size_t i : {0U, 1U, 2U}) {
        EXPECT_EQ(rows[i].reading, &sample.readings[4 - 2 * i]);
        EXPECT_EQ(rows[i].strDisplayDate(SettingModel::initWithDefault()), u"n.a"_s);
        EXPECT_FALSE(rows[i].bDrawTopLine);
    }
}

TEST(ReadingRows, MixedReadingsAreSortedAndThoseOfAnInstantStayAsStored) {
    Sample sample;
    std::mt19937 random{1};
    for (int i = 0; i < 3000; ++i) {
        ReadingModel& reading = sample.readings.emplace_back(readingAt("1970-01-01"));
        reading.ReadingDate = at("1970-01-01") + std::chrono::hours{30} * (random() % 38'000);
        reading.postInit(nullptr, {}, LocalZone{});
    }
    sample.selection = during("1970-01-01", "2100-12-31");
    const auto rows = sample.rows().rows;
    EXPECT_EQ(rows.size(), 3000U);
    EXPECT_TRUE(std::ranges::is_sorted(rows, {}, [](const ReadingRow& row) {
        return std::pair{row.ReadingDate, row.reading};
    }));
}

TEST(ReadingRows, TopLinesOpenADayAndKindsAreNoted) {
    Sample sample;
    sample.readings = readingsAt({"2019-03-02 23:59", "2019-03-03", "2019-03-03 08:00", "2019-03-09"});
    sample.comment("2019-03-08", "2019-03-08");
    sample.readings[3].Arrhythmia = 4;
    const ReadingRows list = sample.rows();
    std::string lines;
    for (const ReadingRow& row : list.rows)
        lines += row.bDrawTopLine ? '-' : '.';
    EXPECT_EQ(lines, ".-.--");
    EXPECT_TRUE(list.isAFib);
    EXPECT_FALSE(list.isPad);
    EXPECT_EQ(list.rows[3].strDisplayDate(SettingModel::initWithDefault()), u"08/03/2019"_s);
    sample.readings[0].Arrhythmia = 1;
    EXPECT_TRUE(sample.rows().isPad);
    sample.selection.view = ViewSelection::amOnly;
    EXPECT_FALSE(sample.rows().isPad) << "of the rows shown";
}

/// A word for each row: the number of its comment, or none, between marks for the first and last of a run.
std::string links(const Sample& sample) {
    std::string text;
    for (const ReadingRow& row : sample.rows().rows) {
        const auto comment =
            std::ranges::find(sample.comments, row.comment, &std::unique_ptr<CommentModel>::get);
        text += row.bAtBegin ? "[" : " ";
        text += comment == sample.comments.end()
                    ? '-'
                    : static_cast<char>('0' + (comment - sample.comments.begin()));
        text += row.bAtEnd ? "]" : " ";
    }
    return text;
}

TEST(ReadingRows, CommentsAreAttachedByDay) {
    struct Case {
        const char* what;
        std::vector<std::pair<const char*, const char*>> comments;
        const char* links;
    };
    const Case cases[] = {
        {"days, not times", {{"2019-03-02 20:00", "2019-03-03 01:00"}}, "[0  0  0] -  - "},
        {"without a row", {{"2019-03-05 09:00", "2019-03-04"}}, " -  -  -  - [- "},
        {"the later one has it, the marks stay",
         {{"2019-03-02", "2019-03-04"}, {"2019-03-03", "2019-03-03"}},
         "[0 [1  1] 0] - "},
        {"nested, with placeholders",
         {{"2019-03-02", "2019-03-09"}, {"2019-03-03", "2019-03-03"}, {"2019-03-03", "2019-03-04"}},
         "[0 [2  2] 2] 0  0  0  0]"},
        {"after all rows", {{"2019-03-10", "2019-03-10"}}, " -  -  -  -  - "},
        {"dates that are none", {{"0001-01-01", "0001-01-01"}}, "[-  -  -  -  - "},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Sample sample;
        sample.readings = readingsAt({"2019-03-02 08:00", "2019-03-03 08:00", "2019-03-03 20:00",
                                      "2019-03-04 08:00", "2019-03-09 08:00"});
        for (const auto& [from, to] : c.comments)
            sample.comment(from, to);
        EXPECT_EQ(links(sample), c.links);
    }
}

TEST(ReadingRows, DaysOfDownloadsAreMarkedWithTheirPlaceholders) {
    Sample sample;
    sample.readings = readingsAt({"2019-03-02 08:00", "2019-03-03", "2019-03-03 23:59:59", "2019-03-04"});
    sample.comment("2019-03-05", "2019-03-06 12:00");
    for (const char* date :
         {"2019-03-03 09:00", "2019-03-03 21:00", "2019-03-05 23:00", "2018-03-04", "2020-01-01"})
        sample.download(date);
    std::string marks;
    for (const ReadingRow& row : sample.rows().rows)
        marks += row.bYellowBackground ? 'y' : '.';
    EXPECT_EQ(marks, ".yy.y.");
}

} // namespace
} // namespace zel
