#include "SampleReport.h"
#include "chart/Drawing.h"
#include "report/FieldText.h"
#include "report/TableLegend.h"

#include <gmock/gmock.h>

#include <map>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

using testing::ElementsAre;

constexpr double wratio = 499.0 / 786;

/// The texts of a table's row by their column; the header is row 0.
class TableTest : public testing::Test {
protected:
    std::map<int, QString> row(int number, int page = 1) const {
        const PrintView view = sample.view();
        const Picture picture = view.page(Section::table, page);
        const double bottom = std::trunc(view.geometry(Section::table).drawingRect.top() - 20) - 20 * number;
        std::map<int, QString> cells;
        for (const TextLine& line : textsOf(picture))
            if (bottom <= line.origin.y && line.origin.y < bottom + 20 && line.attribute.size >= 10)
                cells[columnOf(line.origin.x)] = line.text;
        return cells;
    }
    static int columnOf(double x) {
        const int columns[] = {683, 600, 514, 427, 339, 261, 173, 86};
        for (const int column : columns)
            if (x >= 48 + column * wratio - 0.01) return column;
        return 3;
    }
    template <class Item>
    std::vector<Item> items() const {
        std::vector<Item> found;
        for (const PictureItem& item : sample.view().page(Section::table, 1))
            if (const auto* one = std::get_if<Item>(&item)) found.push_back(*one);
        return found;
    }
    SampleReport sample{40};
};

TEST_F(TableTest, eachValueStandsInItsColumn) {
    ReadingModel& reading = sample.readings[0];
    reading.sys = 171, reading.dia = 62, reading.pulse = 93, reading.map = 104, reading.pp = 85;
    reading.Arrhythmia = 0;
    std::map<int, QString> expected{{3, u"2019/01/01"_s}, {86, u"12:00"_s}, {261, u"N.A."_s}, {339, u"171"_s},
                                    {427, u"62"_s},       {514, u"93"_s},   {600, u"85"_s}};
    sample.settings.showPPorMap = 0;
    EXPECT_EQ(row(1), expected);
    sample.settings.showPPorMap = 1;
    expected[600] = u"104"_s;
    EXPECT_EQ(row(1), expected);
    sample.settings.timeFormat = u"12-hours"_s;
    reading.isPMData = true;
    EXPECT_EQ(row(1)[86], u"12:00 P"_s);
    reading.map = 1040;
    EXPECT_EQ(row(1)[600], u"1040"_s) << "into no other column";
}

TEST_F(TableTest, aRowIsOfOneTypeOnOneLineWithRoomBetween) {
    for (const char* format : {"yyyy mm dd", "dd mm yyyy", "mm dd yyyy"})
        for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
            sample.settings.dateFormat = QLatin1StringView(format);
            const auto texts = textsOf(sample.view(paper).page(Section::table, 1));
            const auto time = std::ranges::find(texts, u"12:00"_s, &TextLine::text);
            ASSERT_TRUE(time != texts.begin() && time != texts.end());
            const TextLine& date = *(time - 1);
            EXPECT_EQ(date.text, sample.readings[0].strDisplayDate(sample.settings));
            EXPECT_GE(time->origin.x, date.origin.x + textSize(date.text, date.attribute).width + 4);
            for (const auto* cell = &*time; cell < &*time + 4; ++cell) {
                EXPECT_EQ(cell->attribute, date.attribute) << qPrintable(cell->text);
                EXPECT_EQ(cell->origin.y, date.origin.y) << qPrintable(cell->text);
            }
        }
}

TEST_F(TableTest, theLegendExplainsWhatTheTableShowsAndNoMore) {
    const auto explains = [&](const char* key) {
        const auto texts = textsOf(sample.view().page(Section::table, 1));
        return std::ranges::count(texts, qtTrId(key), &TextLine::text) == 1;
    };
    sample.downloads.clear();
    for (const char* key : {"reportDownloadDay", "reportNoReading", "reportNoDate", "reportCommentBars"})
        EXPECT_FALSE(explains(key)) << key;
    EXPECT_TRUE(explains("reportFindingUnknown"));
    sample.addComment("2020-02-03", "2020-02-04", 4, u"Travelling"_s); // after the last reading
    sample.selection.period.end = DateToDayBoundary(noonOf("2020-12-31"), false);
    EXPECT_TRUE(explains("reportNoReading") && explains("reportCommentBars"));
    sample.readings.insert(sample.readings.begin(), ReadingModel{});
    sample.selection.includeUndated = true;
    EXPECT_TRUE(explains("reportNoDate"));
    sample.downloads.emplace_back().transferDay = sample.zone.day(noonOf("2019-01-02"));
    sample.downloads[0].transferDate = noonOf("2019-01-02");
    EXPECT_TRUE(explains("reportDownloadDay"));
    sample.addComment("2019-01-03", "2019-01-04", 4, u"Bus"_s);
    EXPECT_FALSE(explains("reportCutComments"));
    sample.comments[1]->comment = u"Travelling by bus"_s;
    EXPECT_TRUE(explains("reportCutComments"));
    for (const char* key : {"reportDownloadDay", "reportNoReading", "reportNoDate", "reportCommentBars",
                            "reportFindingUnknown", "reportAverage"})
        EXPECT_TRUE(explains(key)) << key << " is whole where there is much to explain";
    const auto commentPageExplains = [&] {
        const auto texts = textsOf(sample.view().page(Section::comment, 1));
        return std::ranges::count(texts, qtTrId("reportNoDate"), &TextLine::text) == 1;
    };
    EXPECT_FALSE(commentPageExplains());
    sample.comments[0]->beginDay = ReadingModel{}.day;
    EXPECT_TRUE(commentPageExplains());
}

TEST_F(TableTest, aLegendWithoutRoomHasNoEmptyLine) {
    Picture picture;
    drawTableLegend(picture, sample.view().report(), false, {100, 50}, 12);
    const auto texts = textsOf(picture);
    ASSERT_GE(texts.size(), 6U);
    const double line = lineHeight({.size = 6});
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_NEAR(texts[i].origin.y, 50 + line * static_cast<double>(texts.size() - 1 - i), 0.01) << i;
    picture.clear();
    drawTableLegend(picture, sample.view().report(), false, {100, 50}, 25);
    for (const TextLine& text : textsOf(picture))
        EXPECT_LE(text.origin.x + textSize(text.text, text.attribute).width, 125.01) << qPrintable(text.text);
}

TEST_F(TableTest, theHeaderNamesTheFourthMeasure) {
    sample.settings.showPPorMap = 0;
    const QString pp = row(0)[600];
    sample.settings.showPPorMap = 1;
    EXPECT_NE(row(0)[600], pp);
    EXPECT_EQ(row(0).size(), 9U);
    sample.getShowMam = sample.getShowPad = false;
    EXPECT_EQ(row(0).size(), 7U);
    EXPECT_TRUE(items<Circle>().empty()) << "nor in the legend";
}

TEST_F(TableTest, pagesHoldEachReadingOnceWhicheverIsDrawnFirst) {
    for (const Section section : {Section::table, Section::SWStatistics}) {
        const PrintView view = sample.view();
        QStringList times;
        for (int page = view.getTotalPages(section); page >= 1; --page) {
            QStringList here;
            for (const TextLine& line : textsOf(view.page(section, page)))
                if (line.text.size() == 5 && line.text[2] == u':') here += line.text;
            times = here + times;
        }
        QStringList expected;
        for (const ReadingModel& reading : sample.readings)
            expected += reading.strDisplayTime(sample.settings);
        EXPECT_EQ(times, expected) << facts(section).key;
    }
}

TEST_F(TableTest, aDayWithoutReadingIsAPlaceholder) {
    sample.readings.erase(sample.readings.begin() + 4, sample.readings.begin() + 8);
    sample.addComment("2019-01-03", "2019-01-04", 4, u"Travelling"_s);
    EXPECT_THAT(row(5), ElementsAre(std::pair(3, u"2019/01/04"_s), std::pair(339, u"n.a."_s)));
}

TEST_F(TableTest, commentsAreMarkedByColourAndNumber) {
    sample.addComment("2018-12-01", "2018-12-02", 1, u"before the period"_s);
    sample.addComment("2019-01-02", "2019-01-03", 4, u"New pills"_s);
    EXPECT_TRUE(row(2)[683].startsWith("2 New"_L1)) << qPrintable(row(2)[683]);
    sample.addComment("2019-01-14", "2019-01-16", 2, u"Fever"_s);
    EXPECT_TRUE(row(1, 2)[683].startsWith("3 Fever"_L1)) << "goes on from the page before";
    sample.addComment("2019-01-05", "2019-01-08", 1, u"Holiday"_s);
    sample.addComment("2019-01-06", "2019-01-06", 3, u"Wine"_s);
    constexpr int first = 8; // of 5 January, which has two
    EXPECT_TRUE(row(first)[683].startsWith("4 Holi"_L1)) << qPrintable(row(first)[683]);
    EXPECT_EQ(row(first + 1)[683], QString()) << "named once";
    EXPECT_TRUE(row(first + 2)[683].startsWith("5 Wine"_L1));
    EXPECT_TRUE(row(first + 4)[683].startsWith("4 Holi"_L1)) << "goes on after one in between";
    const QColor yellow = getCommentColor(4, true);
    const auto bars = items<FillRect>();
    EXPECT_EQ(std::ranges::count_if(
                  bars, [&](const FillRect& bar) { return bar.color == yellow && bar.rect.height == 20; }),
              4);
}

TEST_F(TableTest, findingsAveragesAndDownloadsShowWithoutColour) {
    sample.downloads[0].transferDate = noonOf("2019-01-02");
    sample.downloads[0].transferDay = sample.zone.day(noonOf("2019-01-02"));
    const auto circles = items<Circle>();
    const auto finding = [&](int from, bool filled) {
        return std::ranges::count_if(circles, [&](const Circle& circle) {
            return columnOf(circle.centre.x) == from && circle.filled == filled && circle.centre.y > 132;
        });
    };
    EXPECT_EQ(finding(261, true), 3);
    EXPECT_EQ(finding(261, false), 25);
    EXPECT_EQ(finding(173, true), 14);
    const auto fills = items<FillRect>();
    EXPECT_EQ(std::ranges::count(fills, QColor(Qt::yellow), &FillRect::color), 2);
    const auto texts = textsOf(sample.view().page(Section::table, 1));
    EXPECT_EQ(std::ranges::count(texts, u"\u2193"_s, &TextLine::text), 2);
}

TEST_F(TableTest, whatIsLeftOutIsStruckThroughAndListedWithItsReason) {
    const auto allTexts = [this](Section section) {
        QStringList texts;
        for (int page = 1; page <= sample.view().getTotalPages(section); ++page)
            for (const TextLine& line : textsOf(sample.view().page(section, page)))
                texts += line.text;
        return texts;
    };
    const auto strikes = [this] {
        return std::ranges::count_if(items<StraightLine>(), [](const StraightLine& line) {
            return line.from.y == line.to.y && line.width < 1 && line.to.x < 48 + 683 * wratio;
        });
    };
    sample.readings[2].isManual = true;
    EXPECT_EQ(row(3)[683], u"typed in"_s);
    const int pagesBefore = sample.view().getTotalPages(Section::table);
    EXPECT_EQ(strikes(), 0);
    QString longReason = u"the cuff was loose and "_s;
    while (longReason.size() < 6000)
        longReason += u"the arm moved and "_s;
    sample.readings[0].exclusion = longReason + u"END"_s;
    sample.readings[1].exclusion = u""_s;
    sample.readings[1].isManual = true;
    EXPECT_EQ(strikes(), 2);
    EXPECT_GT(sample.view().getTotalPages(Section::table), pagesBefore);
    for (const Section section : {Section::table, Section::SWStatistics}) {
        const QString all = allTexts(section).join(u' ');
        EXPECT_TRUE(all.contains(u"END"_s)) << "no reason is cut";
        EXPECT_TRUE(all.contains(qtTrId("reportLeftOutTitle", 2)));
        EXPECT_EQ(all.count(u", typed in"_s), 1) << "in the list of the reasons";
        EXPECT_TRUE(all.contains(qtTrId("ExcludedWithoutReason")));
        EXPECT_TRUE(all.contains(qtTrId("reportStruckThrough")));
    }
    sample.selection.period.begin = noonOf("2019-01-02"); // both lie before it
    EXPECT_EQ(strikes(), 0);
    EXPECT_FALSE(allTexts(Section::table).contains(qtTrId("reportLeftOutTitle", 2)));
}

} // namespace

} // namespace zel
