#include "SampleReport.h"
#include "chart/Drawing.h"
#include "report/CommentNumbers.h"
#include "report/GraphPage.h"

#include <gmock/gmock.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// All words of a page, however its lines are broken.
QString wordsOf(const SampleReport& sample, Section section) {
    QStringList words;
    for (const TextLine& line : textsOf(sample.view().page(section, 1)))
        words += line.text;
    return words.join(u' ').simplified();
}

std::ptrdiff_t linesOn(const Picture& page, auto isCounted) {
    return std::ranges::count_if(page, [&](const PictureItem& item) {
        const auto* line = std::get_if<StraightLine>(&item);
        return line && isCounted(*line);
    });
}

/// Empty where each text lies in the area and over no other. Arrows of days side by side may touch.
QString misplaced(const Picture& picture, const Rect& area) {
    std::vector<std::pair<Rect, QString>> boxes;
    for (const TextLine& line : textsOf(picture)) {
        const Size size = textSize(line.text, line.attribute);
        const Rect box{line.origin.x, line.origin.y, size.width, size.height};
        if (box.x < area.x || box.right() > area.right() || box.y < area.y || box.top() > area.top())
            return line.text + u" leaves the page"_s;
        for (const auto& [other, text] : boxes)
            if ((text != line.text || text != u"\u2193"_s) && box.x < other.right() && other.x < box.right()
                && box.y < other.top() && other.y < box.top())
                return line.text + u" is written over "_s + text;
        boxes.emplace_back(box, line.text);
    }
    return {};
}

TEST(ChartPage, textsStandApartInEachPeriod) {
    SampleReport sample(60);
    sample.readings[4].sys = sample.readings[5].pulse = 500;
    sample.downloads.push_back(sample.downloads.front());
    sample.downloads.back().transferDay += 11;
    *sample.downloads.back().transferDate += std::chrono::days{11};
    for (const char* begin :
         {"2018-12-01", "2019-01-01", "2019-01-02", "2019-01-02", "2019-01-02", "2019-01-03", "2019-01-04",
          "2019-01-30", "2019-01-30", "2019-02-01", "2019-02-14"})
        for (int twice = 0; twice < 2; ++twice)
            sample.addComment(begin, "2019-02-14", 2, u"Felt dizzy."_s);
    const Instant new2019 = DateToDayBoundary(noonOf("2019-01-01"), true);
    int numbered = 0;
    for (int first = 0; first < 31; first += 2)
        for (int total = 1; total <= 1096; total += total < 60 ? 1 : 37) {
            const Instant begin =
                DateToDayBoundary(new2019 + std::chrono::days{first} + std::chrono::hours{12}, true);
            const Instant end = begin + std::chrono::days{total - 1} + std::chrono::hours{12};
            sample.selection.period = {begin, DateToDayBoundary(end, false)};
            const PrintView view = sample.view();
            const Rect across{48, 132, 746, 300}, along{48, 300, 499, 230};
            Picture charts, trend;
            const ChartMarks marks = drawGraph(charts, view.report(), across);
            numbered += static_cast<int>(marks.comments);
            drawBloodGraph(trend, view.report(), along);
            ASSERT_EQ(misplaced(charts, across), u""_s) << first << " days on, " << total << " days";
            ASSERT_EQ(misplaced(trend, along), u""_s) << first << " days on, " << total << " days";
        }
    EXPECT_GT(numbered, 300) << "comments are among the texts";
}

TEST(ChartPage, limitsAreNamedDownToTheSmallest) {
    EXPECT_EQ(limitsText({}), QString());
    EXPECT_EQ(limitsText({1, 1}), u"1/1 mmHg"_s);
    EXPECT_EQ(limitsText({1, 0}), u"1 mmHg systolic"_s);
    EXPECT_EQ(limitsText({0, 1}), u"1 mmHg diastolic"_s);
}

TEST(ChartPage, numbersOfCommentsStandAboveTheirBoxes) {
    const TextAttribute type{.size = 8, .bold = true};
    const double row = textSize(u"1"_s, type).height;
    const double end = 10 + 200 - 3 - textSize(u"12"_s, type).width;
    const struct {
        std::vector<NumberedBox> boxes;
        std::vector<std::pair<QString, Point>> numbers;
    } cases[]{
        {{}, {}},
        {{{50, 1}, {90, 2}}, {{u"1"_s, {53, 20}}, {u"2"_s, {93, 20}}}},
        {{{50, 2}, {50, 3}, {50, 1}, {50, 7}, {50, 9}, {50, 10}}, {{u"1\u20133, 7, 9, 10"_s, {53, 20}}}},
        {{{50, 1}, {55, 2}, {60, 3}, {75, 4}},
         {{u"1"_s, {53, 20}}, {u"2"_s, {58, 20 + row}}, {u"3"_s, {63, 20}}, {u"4"_s, {78, 20}}}},
        {{{-40, 1}, {209, 12}}, {{u"1"_s, {13, 20}}, {u"12"_s, {end, 20}}}},
    };
    for (const auto& each : cases) {
        std::vector<std::pair<QString, Point>> numbers;
        for (const CommentNumber& number : commentNumbers(each.boxes, {10, 20}, 200, type))
            numbers.emplace_back(number.text, number.origin);
        EXPECT_EQ(numbers, each.numbers) << each.boxes.size();
    }
}

TEST(ChartPage, numbersOfManyBoxesThatBeginTogetherAreAllToldOrCounted) {
    const TextAttribute type{.size = 8, .bold = true};
    for (const auto& [total, x] : {std::pair{60, 100.0}, {60, 740.0}, {60, 0.0}, {1000, 400.0}}) {
        std::vector<NumberedBox> boxes;
        boxes.reserve(static_cast<std::size_t>(total));
        for (int i = 0; i < total; ++i)
            boxes.push_back({x, 2 * i + 1});
        Picture picture;
        QStringList rows;
        for (const CommentNumber& number : commentNumbers(boxes, {10, 20}, 730, type)) {
            picture.emplace_back(TextLine{number.text, number.origin, type});
            rows.prepend(number.text);
        }
        EXPECT_EQ(misplaced(picture, {10, 20, 730, 60}), u""_s);
        const QString last = total > 60 ? rows.takeLast() : QString();
        const QStringList told = rows.join(u' ').split(u", "_s);
        for (int i = 0; i < told.size(); ++i)
            EXPECT_EQ(told[i], QString::number(2 * i + 1));
        EXPECT_TRUE(told.size() == total
                    || last == qtTrId("reportMoreNumbers", total - static_cast<int>(told.size())))
            << qPrintable(last);
    }
}

// In black and white, and with the days of a year.
TEST(ChartPage, limitsStandOutAndReadingsHaveMarks) {
    SampleReport sample(60, 1);
    const auto lines = [&](auto isCounted) {
        return linesOn(sample.view().page(Section::graph, 1), isCounted);
    };
    const auto isDash = [](const StraightLine& line) {
        return line.color == Qt::black && line.from.y == line.to.y && line.width == 0.75;
    };
    const auto isHairline = [](const StraightLine& line) {
        return line.from.x == line.to.x && line.width < 0.5;
    };
    EXPECT_GT(lines(isDash), 100);
    EXPECT_GT(lines(isHairline), 700) << "a year, in two charts";
    sample.selection.period.end = DateToDayBoundary(noonOf("2019-01-30"), false);
    EXPECT_EQ(lines(isHairline), 0);
    sample.settings.sysStandard = sample.settings.diaStandard = 999;
    EXPECT_EQ(lines(isDash), 0) << "outside the scale";
    for (const auto& [section, marks] : {std::pair{Section::graph, 3U}, {Section::SWStatistics, 2U}}) {
        std::size_t total = 0;
        for (const PictureItem& item : SampleReport(1).view().page(section, 1))
            if (const auto* found = std::get_if<PointMarks>(&item)) total += found->points.size();
        EXPECT_EQ(total, marks) << facts(section).key;
    }

    const Rect area = sample.view().geometry(Section::graph).drawingRect;
    const auto isBetweenCharts = [&](const StraightLine& line) {
        return line.width == 0.5 && line.from.y == line.to.y
               && std::abs(line.to.y - area.y - 0.3 * area.height) < 1e-6;
    };
    EXPECT_EQ(lines(isBetweenCharts), 2) << "blood pressure has the larger part";
}

TEST(ChartPage, legendTellsOfWhatIsThereAndOfNothingElse) {
    for (const Section section : {Section::graph, Section::SWStatistics}) {
        SampleReport sample(60, 1); // a download on 20 January, a comment on 1 to 3 February
        const auto says = [&](const QString& words) { return wordsOf(sample, section).contains(words); };
        const QString downloads = u"day of a download. "_s, comments = u"Numbered boxes: comments."_s;
        const auto lastDay = [&](const char* day) {
            sample.selection.period.end = DateToDayBoundary(noonOf(day), false);
        };
        EXPECT_TRUE(says(u"lower line: diastolic pressure. Dashed lines: the limits of 140/90 mmHg."_s));
        EXPECT_FALSE(says(comments)) << "no boxes in a year";
        lastDay("2019-01-31");
        EXPECT_FALSE(says(comments)) << "the comment is later";
        lastDay("2019-02-01");
        EXPECT_TRUE(says(downloads + comments));
        lastDay("2019-01-19");
        EXPECT_FALSE(says(u"\u2193: day of a download"_s));
        sample.readings.clear();
        lastDay("2019-02-01");
        EXPECT_FALSE(says(comments) || says(u"\u2193: day of a download"_s) || says(u"Upper line"_s));
        EXPECT_TRUE(says(u"Dashed lines: the limits of 140/90 mmHg."_s));
    }
}

TEST(ChartPage, aLimitOfNoneIsCalledNone) {
    const struct {
        std::uint32_t sys, dia;
        QString legend, shares;
    } cases[]{
        {140, 90, u"Dashed lines: the limits of 140/90 mmHg."_s,
         u"At or below the limits of 140/90 mmHg: 17 (43 %) Only systolic above: 11"_s},
        {140, 0, u"Dashed line: the limit of 140 mmHg systolic."_s,
         u"At or below 140 mmHg systolic: 23 (58 %) Only systolic above: 17"_s},
        {0, 90, u"Dashed line: the limit of 90 mmHg diastolic."_s,
         u"At or below 90 mmHg diastolic: 28 (70 %) Only diastolic above: 12"_s},
        {0, 0, u"diastolic pressure. No limits are set."_s, u"readings No limits are set."_s},
        {260,
         90,
         u"limit of 90 mmHg diastolic. The limit of 260 mmHg systolic lies outside the scale."_s,
         {}},
    };
    for (const auto& each : cases) {
        SampleReport sample(40);
        sample.settings.sysStandard = each.sys;
        sample.settings.diaStandard = each.dia;
        EXPECT_TRUE(wordsOf(sample, Section::graph).contains(each.legend))
            << qPrintable(wordsOf(sample, Section::graph));
        for (const Section section : {Section::correlation, Section::SWStatistics})
            EXPECT_TRUE(wordsOf(sample, section).contains(each.shares))
                << qPrintable(wordsOf(sample, section));
        EXPECT_EQ(wordsOf(sample, Section::correlation).contains(u"are the limits"_s),
                  each.sys > 0 && each.dia > 0);
    }
}

TEST(ChartPage, tellsOfReadingsOutsideTheScales) {
    SampleReport sample(4);
    for (const Section section :
         {Section::graph, Section::SWStatistics, Section::correlation, Section::histogram}) {
        const auto total = [&] { return wordsOf(sample, section).count(u"1 reading above the scale"_s); };
        sample.readings[0].sys = 280;
        EXPECT_EQ(total(), 1) << facts(section).key;
        sample.readings[0].sys = sample.readings[1].pulse = 200;
        EXPECT_EQ(total(), section == Section::graph || section == Section::histogram) << facts(section).key;
        sample.readings[1].pulse = 60;
        EXPECT_EQ(total(), 0) << facts(section).key;
    }
}

TEST(TrendPage, textsStandApartAndTheLegendSaysWhatIsDrawn) {
    SampleReport sample(60, 7);
    sample.comments.back()->comment = u"a word and another "_s.repeated(200);
    const Instant begin = sample.selection.period.begin;
    for (const int days : {1, 7, 31, 100, 159, 400, 900, 2557, 40000})
        for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
            const Instant end = begin + std::chrono::days{days - 1} + std::chrono::hours{12};
            sample.selection.period = {begin, DateToDayBoundary(end, false)};
            const PrintView view = sample.view(paper);
            const PageGeometry at = view.geometry(Section::trend);
            ASSERT_EQ(misplaced(view.page(Section::trend, 1), at.totalRect), u""_s) << days << " days";
        }
    EXPECT_TRUE(
        wordsOf(sample, Section::trend).contains(u"Fine straight lines: the limits of 140/90 mmHg."_s));
    sample.settings.sysStandard = 250;
    EXPECT_TRUE(wordsOf(sample, Section::trend)
                    .contains(u"Fine straight line: the limit of 90 mmHg diastolic. "
                              "The limit of 250 mmHg systolic lies outside the scale."_s));
    sample.settings.sysStandard = sample.settings.diaStandard = 0;
    EXPECT_TRUE(wordsOf(sample, Section::trend).contains(u"No limits are set."_s));
    sample.readings[0].exclusion = u"cuff slipped"_s;
    EXPECT_TRUE(wordsOf(sample, Section::trend).contains(u"59 readings; "_s)) << "and one left out";
    for (const auto view : {ViewSelection::custom, ViewSelection::pmOnly}) {
        sample.selection.view = view;
        for (const std::size_t at : {1U, 2U}) // one of each half of the day
            sample.readings[at].isOfOtherZone = true;
        EXPECT_EQ(
            wordsOf(sample, Section::trend)
                .contains(u"1 reading was stored in another time zone; its time is that of this computer"_s),
            view == ViewSelection::pmOnly);
    }
}

TEST(ChartPage, figuresOfAllTimesSayThatTheyAre) {
    SampleReport sample(4, 1);
    const QString statistics = u"4 readings, all times of day"_s;
    EXPECT_FALSE(wordsOf(sample, Section::SWStatistics).contains(u"all times"_s));
    for (const auto view : {ViewSelection::amOnly, ViewSelection::pmOnly}) {
        sample.selection.view = view;
        EXPECT_TRUE(wordsOf(sample, Section::SWStatistics).contains(statistics));
        EXPECT_TRUE(wordsOf(sample, Section::correlation).contains(u"2 readings "_s));
    }
    EXPECT_TRUE(wordsOf(sample, Section::comment).contains(u"Comments of all times"_s));
}

} // namespace

} // namespace zel
