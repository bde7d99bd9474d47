#include "SampleReport.h"
#include "analysis/HighValues.h"
#include "chart/Drawing.h"
#include "chart/PicturePainter.h"
#include "report/FieldText.h"
#include "report/SummaryComments.h"

#include <QImage>
#include <QPainter>
#include <QRegularExpression>

#include <gmock/gmock.h>

#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int smallest = 8;

QStringList wordsOf(const PrintView& view) {
    QStringList words;
    for (const TextLine& line : textsOf(view.page(Section::summary, 1)))
        words += line.text;
    return words;
}

void exclude(SampleReport& sample, int count, const QString& reason) {
    for (int i = 0; i < count; ++i)
        sample.readings[2 * static_cast<std::size_t>(i)].exclusion = reason;
}

ReadingModel& add(SampleReport& sample, const char* time, std::uint32_t sys, std::uint32_t dia,
                  std::uint32_t arrhythmia = 4) {
    ReadingModel& reading = sample.readings.emplace_back();
    reading.ReadingDate = StrToDate(QLatin1String(time), u"yyyy-MM-dd HH:mm"_s);
    reading.sys = sys;
    reading.dia = dia;
    reading.pulse = 70;
    reading.Arrhythmia = arrhythmia;
    reading.postInit(nullptr, sample.settings, sample.zone);
    return reading;
}

void addUndated(SampleReport& sample) {
    ReadingModel undated;
    undated.ReadingDate = getNilReadingDate();
    undated.postInit(nullptr, sample.settings, sample.zone);
    sample.readings.insert(sample.readings.begin(), undated);
}

struct Spoiled {
    const char* what;
    SampleReport sample;
};

/// More than any patient has.
SampleReport crowded() {
    SampleReport sample(700);
    sample.highFrom = {120, 70};
    exclude(sample, 30, u"Measured after four flights of stairs, cuff over the sleeve. "_s.repeated(9));
    const QString note = u"Dose changed after the visit, dizzy when getting up. "_s;
    for (int i = 0; i < 40; ++i)
        sample.addComment(qPrintable(u"2019-%1-10"_s.arg(1 + i % 12, 2, 10, QLatin1Char{'0'})), "2019-12-20",
                          3, note.repeated(i % 9));
    sample.patient.GivenNames = u"Maximiliane Alexandra Wilhelmina Josephine"_s;
    sample.patient.FamilyName = u"Wolfeschlegelsteinhausen-Montgomery of the Upper Valley"_s;
    sample.settings.physicianAddress = u"Practice for everything\n"_s.repeated(9).trimmed();
    addUndated(sample);
    return sample;
}

std::vector<Spoiled> spoiledSamples() {
    std::vector<Spoiled> samples;
    samples.push_back({"no readings", SampleReport()});
    samples.push_back({"one", SampleReport(1)});
    samples.push_back({"62", SampleReport(62, 2)});
    samples.back().sample.highFrom = {0, 85};
    samples.back().sample.readings[60].exclusion = u"of the last week"_s;
    for (ReadingModel& reading : samples.back().sample.readings)
        reading.isManual = true;
    samples.push_back({"100,000", SampleReport(100'000)});
    samples.back().sample.selection.period.end = DateToDayBoundary(noonOf("2160-01-01"), false);
    samples.push_back({"crowded", crowded()});
    samples.push_back({"no date of birth", SampleReport(60, 1)});
    samples.back().sample.patient.DateOfBirth = getNilDate();
    samples.push_back({"other days", SampleReport(60, 4)});
    samples.back().sample.selection.period = {DateToDayBoundary(noonOf("2030-01-01"), true),
                                              DateToDayBoundary(noonOf("2030-01-31"), false)};
    samples.push_back({"off the scale", SampleReport(60, 1)});
    for (ReadingModel& reading : samples.back().sample.readings)
        reading.sys = reading.dia = reading.pulse =
            &reading == &samples.back().sample.readings[0] ? UINT32_MAX : 999;
    samples.back().sample.highFrom = {135, 85};
    samples.push_back({"all in one minute", SampleReport(60, 1)});
    for (ReadingModel& reading : samples.back().sample.readings) {
        reading.ReadingDate = noonOf("2019-05-05");
        reading.postInit(nullptr, samples.back().sample.settings, samples.back().sample.zone);
    }
    samples.push_back({"another time zone", SampleReport(62, 2)});
    for (ReadingModel& reading : samples.back().sample.readings)
        reading.isOfOtherZone = true;
    samples.back().sample.readings[60].exclusion = u"of the last week"_s;
    samples.push_back({"all undated", SampleReport()});
    for (int i = 0; i < 50; ++i)
        addUndated(samples.back().sample);
    return samples;
}

Rect boxOf(const TextLine& line) {
    const Size size = textSize(line.text, line.attribute);
    return {line.origin.x, line.origin.y, size.width, size.height};
}

bool overlap(const Rect& a, const Rect& b) {
    constexpr double touching = 0.01;
    return a.x + touching < b.right() && b.x + touching < a.right() && a.y + touching < b.top()
           && b.y + touching < a.top();
}

TEST(Summary, isOnePageThatCanBeReadWhateverTheData) {
    for (const auto& [what, sample] : spoiledSamples())
        for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
            const PrintView view = sample.view(paper);
            ASSERT_EQ(view.getTotalPages(Section::summary), 1) << what;
            const Rect total = view.geometry(Section::summary).totalRect;
            const auto texts = textsOf(view.page(Section::summary, 1));
            EXPECT_GT(texts.size(), 40U) << what;
            EXPECT_THAT(wordsOf(view), testing::Contains(testing::Truly([](const QString& words) {
                            return words.endsWith("shortened."_L1);
                        })))
                << what << ": how to read it is cut";
            for (std::size_t i = 0; i < texts.size(); ++i) {
                const Rect box = boxOf(texts[i]);
                const auto told = [what = what, &text = texts[i].text] {
                    return (QLatin1String(what) + u": "_s + text).toStdString();
                };
                EXPECT_GE(texts[i].attribute.size, smallest) << told();
                EXPECT_EQ(texts[i].attribute.color, QColor(Qt::black)) << told();
                EXPECT_TRUE(total.x <= box.x + 0.01 && box.right() <= total.right() + 0.01
                            && total.y <= box.y + 0.01 && box.top() <= total.top() + 0.01)
                    << told();
                for (std::size_t k = 0; k < i; ++k)
                    EXPECT_FALSE(overlap(box, boxOf(texts[k])))
                        << told() << " over " << texts[k].text.toStdString();
            }
        }
}

TEST(Summary, tellsHowManyMoreThereAre) {
    const SampleReport sample = crowded();
    for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
        const QStringList words = wordsOf(sample.view(paper));
        const auto rest = [&](const char* what) {
            const QStringList found =
                words.filter(QRegularExpression(u"^and (\\d+) more "_s + QLatin1String(what)));
            return found.isEmpty() ? 0 : found.front().section(u' ', 1, 1).toInt();
        };
        const auto comments =
            words.filter(QRegularExpression(u"^\\d+   2019/\\d\\d/10 \u2013 2019/12/20$"_s)).size();
        EXPECT_GT(comments, 2);
        EXPECT_EQ(comments + rest("comments"), 40);
        const auto excluded = words.filter(u"Measured after"_s).size();
        EXPECT_GT(excluded, 2);
        EXPECT_EQ(excluded + rest("left out"), 30);
        EXPECT_THAT(words, testing::Contains(u"30 left out, 1 undated one not counted"_s));
    }
}

TEST(Summary, commentsOfOtherDaysAreToldBesideThoseOfThePeriod) {
    SampleReport sample(20);
    sample.selection.period.begin = DateToDayBoundary(noonOf("2019-01-03"), true);
    const auto told = [&] {
        return wordsOf(sample.view())
            .filter(
                QRegularExpression(u"comments? |other days"_s, QRegularExpression::CaseInsensitiveOption));
    };
    const auto expectTold = [&](const char* words) {
        EXPECT_THAT(told(), testing::Contains(QString::fromUtf8(words)));
        EXPECT_EQ(told().filter(u"other days"_s).size(), sample.comments.empty() ? 0 : 1);
    };
    expectTold("No comments in this period");
    sample.addComment("2019-01-01", "2019-01-02", 1, u"Started a tablet."_s);
    expectTold("No comments in this period; 1 on other days");
    sample.addComment("2019-01-03", "2019-01-04", 1, u"Dose halved."_s);
    expectTold("1 comment of other days");
    for (int i = 0; i < 30; ++i)
        sample.addComment("2019-01-03", "2019-01-04", 1, u"Dose halved."_s);
    EXPECT_THAT(told(), testing::Contains(testing::Truly([](const QString& words) {
                    return words.startsWith("and "_L1)
                           && words.endsWith("more comments; 1 comment of other days"_L1);
                })));
}

TEST(Summary, theWeekEndsAsChosenOrWithThePeriodsLastReading) {
    SampleReport sample(20); // to 10 January
    sample.selection.period.end = DateToDayBoundary(noonOf("2019-01-08"), false);
    const auto expectWeek = [&](const char* words) {
        EXPECT_THAT(wordsOf(sample.view()), testing::Contains(QString::fromUtf8(words)));
    };
    expectWeek("Measuring week (ESH)  2019/01/02 \u2013 2019/01/08");
    sample.weekRule = AverageRule::nice;
    sample.weekEnd = sample.zone.day(noonOf("2019-01-20"));
    expectWeek("Measuring week (NICE)  2019/01/14 \u2013 2019/01/20");
    expectWeek("No readings in this week");
    expectWeek("Incomplete, needs 4 more days");
    EXPECT_THAT(wordsOf(sample.view()), testing::Not(testing::Contains(QString()))) << "no empty text";
    sample.weekRule = AverageRule::aha;
    sample.weekEnd = sample.zone.day(noonOf("2019-01-03"));
    expectWeek("Measuring week (AHA)  2018/12/28 \u2013 2019/01/03");
    sample.selection.period.begin = DateToDayBoundary(noonOf("2019-01-04"), true);
    expectWeek("Measuring week (AHA)  2019/01/02 \u2013 2019/01/08");
}

TEST(Summary, inventsNoDaysForAPatientWithoutADatedReading) {
    SampleReport sample;
    for (const char* kind : {"No dated readings", "1 undated one not counted"}) {
        const QStringList words = wordsOf(sample.view());
        EXPECT_TRUE(words.contains(u"Measuring week (ESH)"_s)) << kind;
        EXPECT_THAT(words.filter(u"From "_s), testing::IsEmpty());
        EXPECT_TRUE(words.contains(QString::fromUtf8(kind))) << words.join(u'|').toStdString();
        addUndated(sample);
    }
}

TEST(Summary, saysThatNoReadingOfTheWeekCountsYetWhereThereAreSome) {
    for (const auto& [reason, words] :
         {std::pair(QString(), "0 readings on 0 days; 2 of the first day not counted"),
          {u"loose cuff"_s, "2 of the week left out"}}) {
        SampleReport sample;
        add(sample, "2019-03-02 07:00", 150, 80).exclusion = reason;
        add(sample, "2019-03-02 19:00", 150, 80).exclusion = reason;
        sample.weekEnd = sample.zone.day(noonOf("2019-03-02"));
        const QStringList shown = wordsOf(sample.view());
        EXPECT_TRUE(shown.contains(QString::fromUtf8(words))) << words;
        EXPECT_TRUE(shown.contains(u"No reading counts yet"_s)
                    && !shown.contains(u"No readings in this week"_s))
            << words;
    }
}

TEST(Summary, tellsWhatWasStoredInAnotherTimeZone) {
    SampleReport sample(20);
    const QString told = u" stored in another time zone; times are those of this computer"_s;
    sample.readings[0].isOfOtherZone = true; // on 1 January
    EXPECT_EQ(wordsOf(sample.view()).filter(told), QStringList(u"1 counted reading was"_s + told))
        << "of the period, none of the week";
    sample.readings[0].exclusion = u"does not count"_s;
    EXPECT_EQ(wordsOf(sample.view()).filter(told), QStringList());
    sample.readings[17].isOfOtherZone = sample.readings[18].isOfOtherZone = true;
    sample.readings[16].exclusion = u"loose cuff"_s;
    for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
        const QStringList words = wordsOf(sample.view(paper));
        EXPECT_EQ(words.filter(told), (QStringList{u"2 counted readings were"_s + told, u"2"_s + told}));
        EXPECT_TRUE(words.contains(u"1 of the week left out"_s));
    }
}

TEST(Summary, theWeekNamesWhatTheUserLeftOutAlsoBeforeThePeriod) {
    SampleReport sample;
    add(sample, "2019-02-28 07:00", 130, 80).exclusion = u"the week before"_s;
    add(sample, "2019-03-01 07:00", 191, 81).exclusion = u"first day"_s;
    add(sample, "2019-03-02 07:00", 190, 80).exclusion = u"loose cuff"_s;
    add(sample, "2019-03-03 07:00", 150, 80);
    ReadingModel& typed = add(sample, "2019-03-05 07:00", 180, 80);
    typed.exclusion = u"after stairs"_s;
    typed.isManual = true;
    add(sample, "2019-03-07 07:00", 130, 80);
    sample.selection.period.begin = DateToDayBoundary(noonOf("2019-03-04"), true);
    const QStringList words = wordsOf(sample.view());
    EXPECT_THAT(words, testing::Contains(u"3 of the week left out"_s));
    EXPECT_EQ(words.filter(u"191/81"_s), (QStringList{u"2019/03/01 07:00  191/81: first day"_s}));
    EXPECT_EQ(words.filter(u"190/80"_s), (QStringList{u"2019/03/02 07:00  190/80: loose cuff"_s}));
    EXPECT_EQ(words.filter(u"180/80"_s),
              (QStringList{u"2019/03/05 07:00  180/80: typed in; after stairs"_s}));
    EXPECT_EQ(words.filter(u"the week before"_s), QStringList());
    EXPECT_EQ(words.filter(u"yped in"_s).size(), 1) << "not counted as one that was typed in";
    sample.selection.period.end = DateToDayBoundary(noonOf("2019-03-06"), false);
    sample.weekEnd = sample.zone.day(noonOf("2019-03-08"));
    add(sample, "2019-03-08 07:00", 130, 80).exclusion = u"last day"_s;
    add(sample, "2019-03-09 07:00", 130, 80).exclusion = u"the week after"_s;
    EXPECT_EQ(wordsOf(sample.view()).filter(u"last day"_s).size(), 1);
    EXPECT_EQ(wordsOf(sample.view()).filter(u"the week after"_s).size(), 0);
}

TEST(Summary, aMeanBelowALimitIsNotShownAsTheLimit) {
    struct Case {
        std::uint32_t last, dia;
        LimitPair limits;
        const char *threshold, *large, *half, *ofTable;
    };
    for (const Case& one : {Case{134,
                                 84,
                                 {135, 85},
                                 "Below the threshold of 135/85 (to a tenth: <135.0/84.0)",
                                 "<135/84",
                                 "<135/84 (13)",
                                 "<135.0"},
                            Case{134,
                                 85,
                                 {0, 0},
                                 "At or above the threshold of 135/85 (to a tenth: <135.0/85.0)",
                                 "<135/85\u25B2",
                                 "135/85 (13)",
                                 "135.0"},
                            Case{133,
                                 84,
                                 {135, 85},
                                 "Below the threshold of 135/85 (to a tenth: 134.9/84.0)",
                                 "<135/84",
                                 "<135/84 (13)",
                                 "134.9"},
                            Case{135,
                                 84,
                                 {140, 90},
                                 "At or above the threshold of 135/85 (to a tenth: 135.0/84.0)",
                                 "135\u25B2/84",
                                 "135/84 (13)",
                                 "135.0"}}) {
        SampleReport sample;
        sample.highFrom = one.limits;
        sample.selection.period.begin = DateToDayBoundary(noonOf("2019-03-02"), true);
        add(sample, "2019-03-01 07:00", 199, 99); // the first day, which does not count
        for (int i = 0; i < 24; ++i)
            add(sample, i % 2 == 0 ? "2019-03-02 07:00" : "2019-03-02 19:00", 135, one.dia);
        add(sample, "2019-03-02 07:30", one.last, one.dia);
        const QString large = QString::fromUtf8(one.large);
        for (const QString& words : {QString::fromUtf8(one.threshold), large, u"Morning "_s + large,
                                     QString::fromUtf8(one.half), QString::fromUtf8(one.ofTable)})
            EXPECT_THAT(wordsOf(sample.view()), testing::Contains(words));
    }
}

TEST(Summary, theShareIsNeitherNoneNorAllUnlessItIs) {
    struct Case {
        int high, total;
        LimitPair limits;
        const char* share;
    };
    for (const Case& one : {Case{0, 500, {135, 85}, "0 %"}, Case{2, 500, {135, 0}, "< 1 %"},
                            Case{3, 500, {135, 85}, "1 %"}, Case{497, 500, {135, 85}, "99 %"},
                            Case{499, 500, {135, 0}, "> 99 %"}, Case{500, 500, {135, 85}, "100 %"}}) {
        SampleReport sample(one.total);
        for (std::size_t i = 0; i < sample.readings.size(); ++i) {
            sample.readings[i].sys = std::cmp_less(i, one.high) ? 135 : 134;
            sample.readings[i].dia = 80;
        }
        sample.highFrom = one.limits;
        const QStringList words = wordsOf(sample.view());
        EXPECT_THAT(words, testing::Contains(QString::fromUtf8(one.share)));
        EXPECT_EQ(words.contains(u"SYS or DIA or both"_s), one.limits.dia > 0) << "of two limits";
    }
}

TEST(Summary, explainsTheLimitsThatItsTrendHas) {
    struct Case {
        int readings;
        LimitPair limits;
        const char *shown, *hidden;
    };
    for (const Case& one :
         {Case{20, {130, 80}, "Fine straight lines in the trend: 130/80 mmHg. Morning", nullptr},
          Case{20, {0, 85}, "Fine straight lines in the trend: 85 mmHg diastolic. Morning", nullptr},
          Case{20, {0, 0}, nullptr, nullptr}, Case{0, {130, 80}, nullptr, nullptr},
          Case{20, {999, 85}, "lines in the trend: 85 mmHg diastolic.", "scale: 999 mmHg systolic. Morning"},
          Case{20, {999, 998}, nullptr, "scale: 999/998 mmHg. Morning"}}) {
        SampleReport sample(one.readings);
        sample.settings.sysStandard = 150; // which the chart goes by
        sample.highFrom = one.limits;
        const QString words = wordsOf(sample.view()).join(u' ');
        for (const auto& [text, part] :
             {std::pair(one.shown, "straight lines"), {one.hidden, "trend’s scale"}})
            EXPECT_TRUE(text ? words.contains(QString::fromUtf8(text))
                             : !words.contains(QString::fromUtf8(part)))
                << qPrintable(words);
        EXPECT_TRUE(words.contains(u"…: shortened."_s)) << "not cut";
    }
}

/// Of January, with the bars of comments on the summary.
struct TrendOfJanuary : SampleReport {
    TrendOfJanuary() : SampleReport(62) {
        selection.period.end = DateToDayBoundary(noonOf("2019-01-31"), false);
    }
    [[nodiscard]] std::vector<Rect> filled(const QColor& color) const {
        std::vector<Rect> rects;
        for (const PictureItem& item : view().page(Section::summary, 1))
            if (const auto* fill = std::get_if<FillRect>(&item); fill && fill->color == color)
                rects.push_back(fill->rect);
        return rects;
    }
    [[nodiscard]] std::vector<Rect> bars() const { return filled(QColor(170, 170, 170)); }
    [[nodiscard]] std::vector<double> widths() const {
        std::vector<double> all;
        for (const Rect& bar : bars())
            all.push_back(bar.width);
        return all;
    }
};

TEST(Summary, theTrendHasAllDaysOfAComment) {
    TrendOfJanuary sample;
    sample.addComment("2019-01-10", "2019-01-11", 1, u"Dose halved."_s);
    const auto whole = sample.widths();
    ASSERT_EQ(whole.size(), 1U);
    CommentModel& comment = *sample.comments[0];
    std::swap(comment.beginDay, comment.endDay);
    EXPECT_EQ(sample.widths(), whole);
    comment.beginDay = noDay;
    ASSERT_EQ(sample.bars().size(), 1U);
    EXPECT_NEAR(whole[0], 2 * sample.widths()[0], 0.01) << "two days are as long as two times one";
}

TEST(Summary, theTrendShowsBeginAndEndOfEachCommentAndCountsThoseWithoutNumber) {
    TrendOfJanuary sample;
    sample.addComment("2019-01-01", "2019-01-31", 1, u"Holiday."_s);
    sample.addComment("2019-01-10", "2019-01-20", 1, u"A cold."_s);
    sample.addComment("2019-01-12", "2019-01-14", 1, u"Fever."_s);
    const std::vector<Rect> bars = sample.bars(), ticks = sample.filled(Qt::black);
    ASSERT_EQ(bars.size(), 3U);
    const auto has = [&](double x, double y) {
        return std::ranges::any_of(ticks, [&](const Rect& tick) {
            return std::abs(tick.x - x) < 0.01 && std::abs(tick.y - y) < 0.01;
        });
    };
    for (const Rect& bar : bars) {
        EXPECT_TRUE(has(bar.x, bar.y));
        EXPECT_TRUE(has(bar.right() - 1, bar.y));
        for (const Rect& other : bars)
            EXPECT_TRUE(&other == &bar || std::abs(other.y - bar.y) > bar.height) << "one over the other";
    }
    EXPECT_THAT(wordsOf(sample.view()), testing::Contains(u"Trend, and below it the comments by number"_s));
    for (int i = 0; i < 60; ++i)
        sample.addComment("2019-01-15", "2019-01-15", 1, u"More."_s);
    EXPECT_EQ(sample.bars().size(), 63U);
    EXPECT_TRUE(wordsOf(sample.view()).join(u'\n').contains(u"by number; 59 have no room for theirs"_s));
}

TEST(Summary, tellsOfHowManyDaysTheLastDaysAre) {
    SampleReport sample(62);
    for (const auto& [begin, heading] : {std::pair("2019-01-01", "Last 14 days: mean (readings)"),
                                         {"2019-01-30", "Last 2 days: mean (readings)"},
                                         {"2019-01-31", "Last day: mean (readings)"}}) {
        sample.selection.period.begin = DateToDayBoundary(noonOf(begin), true);
        sample.selection.period.end = DateToDayBoundary(noonOf("2019-01-31"), false);
        EXPECT_THAT(wordsOf(sample.view()), testing::Contains(QString::fromUtf8(heading)));
    }
}

TEST(Summary, aloneHasNoColours) {
    SampleReport sample(62, 2);
    sample.highFrom = {135, 85};
    sample.isDemonstration = true;
    const PrintView view = sample.view();
    const auto isGrey = [&](Section section) {
        QImage image(600, 850, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintPicture(painter, view.page(section, 1), image.height());
        return painter.end() && image.allGray();
    };
    EXPECT_TRUE(isGrey(Section::summary));
    EXPECT_FALSE(isGrey(Section::table));
}

TEST(Summary, tellsWhoThePatientIs) {
    const std::pair<Date, const char*> births[] = {
        {noonOf("1960-01-15"), "Born 1960/01/15, 60 years     ID P-17"},
        {noonOf("1960-01-16"), "Born 1960/01/16, 59 years     ID P-17"},
        {noonOf("2018-12-01"), "Born 2018/12/01, 1 year     ID P-17"},
        {noonOf("2031-01-01"), "Born 2031/01/01     ID P-17"}, // next to be born
        {getNilDate(), "Date of birth not given     ID P-17"},
        {Date(), "Date of birth not given     ID P-17"},
    };
    SampleReport sample;
    for (const auto& [birth, line] : births) {
        sample.patient.DateOfBirth = birth;
        EXPECT_THAT(wordsOf(sample.view()), testing::Contains(QString::fromUtf8(line)));
    }
    EXPECT_TRUE(wordsOf(sample.view()).contains(u"Dr. Moreau"_s));
    EXPECT_TRUE(wordsOf(sample.view()).contains(describeHighMark({}))) << "in place of a share";
    sample.needPhysicianInfo = false;
    EXPECT_FALSE(wordsOf(sample.view()).contains(u"Dr. Moreau"_s));
}

TEST(Summary, theLineThatCountsTheOtherCommentsHasRoom) {
    for (const auto paper : {QPageSize::A4, QPageSize::Letter})
        for (int pattern = 0; pattern < 27; ++pattern) {
            SampleReport sample(1);
            const int lines[] = {pattern % 3, pattern / 3 % 3, pattern / 9};
            for (int i = 0; i < 30; ++i)
                sample.addComment("2019-02-01", "2019-02-01", 1,
                                  u"Long walk. "_s.repeated(qsizetype{6} * lines[i % 3]));
            const PrintView view = sample.view(paper);
            for (const TextLine& line : textsOf(view.page(Section::summary, 1))) {
                if (!line.text.contains("more comments"_L1)) continue;
                EXPECT_GE(line.origin.y, view.geometry(Section::summary).footerRect.top()) << pattern;
            }
        }
}

TEST(Summary, aCommentStandsWhereItsLinesHaveRoom) {
    SampleReport sample(1);
    for (int i = 0; i < 2; ++i)
        sample.addComment("2019-02-01", "2019-02-01", 1, u"Long walk."_s);
    const PrintView view = sample.view();
    const auto drawn = [&](double height) {
        Picture picture;
        drawSummaryComments(picture, view.report(), {0, 0, 300, height});
        return textsOf(picture);
    };
    constexpr double plenty = 500;
    const auto texts = drawn(plenty);
    ASSERT_EQ(texts.size(), 7U) << "the heading, and of each its days, its text and its figures";
    const double first = texts[1].origin.y, item = first - texts[4].origin.y;
    const double needed = plenty - boxOf(texts[1]).top() + 2 * item;
    EXPECT_EQ(drawn(needed + 0.01).size(), texts.size());
    EXPECT_EQ(drawn(needed - 0.01).back().text, u"and 1 more comment"_s);
    sample.addComment("2018-02-01", "2018-02-01", 1, u"Of another year."_s);
    const double withLine = needed + lineHeight(texts[1].attribute);
    EXPECT_EQ(drawn(withLine + 0.01).back().text, u"1 comment of other days"_s);
    EXPECT_EQ(drawn(withLine - 0.01).back().text, u"and 1 more comment; 1 comment of other days"_s);
}

TEST(Summary, namesAsManyExcludedReadingsAsFit) {
    int most = 0;
    for (int count = 1; count < 12; ++count) {
        SampleReport sample(40);
        exclude(sample, count, u"Cuff slipped"_s);
        const QStringList words = wordsOf(sample.view());
        const auto named = static_cast<int>(words.filter(u": Cuff slipped"_s).size());
        most = std::max(most, named);
        EXPECT_EQ(words.contains(qtTrId("summaryMoreExcluded", count - named)), named < count) << count;
        const auto texts = textsOf(sample.view().page(Section::summary, 1));
        const auto last = std::ranges::find_if(texts.rbegin(), texts.rend(), [](const TextLine& line) {
            return line.text.contains("more left out"_L1) || line.text.endsWith(": Cuff slipped"_L1);
        });
        const auto note = std::ranges::find_if(
            texts, [](const TextLine& line) { return line.text.startsWith("No values are marked"_L1); });
        EXPECT_GE(last->origin.y + 0.01, boxOf(*note).top()) << count;
    }
    EXPECT_GE(most, 5);
}

TEST(Summary, hasTheFiguresOfThePeriod) {
    SampleReport sample;
    sample.highFrom = {140, 85};
    add(sample, "2019-03-01 07:00", 150, 90, 4);
    add(sample, "2019-03-01 19:00", 140, 80, 4);
    add(sample, "2019-03-02 07:00", 130, 85, 5);
    add(sample, "2019-03-02 07:05", 133, 88, 0).isManual = true;
    add(sample, "2019-03-04 19:00", 120, 70, 4);
    sample.addComment("2019-03-02", "2019-03-02", 1, u"Started a tablet."_s);
    const QString lines[] = {
        u"Ada Byron"_s,
        u"Born 1960/05/02, 59 years     ID P-17"_s,
        u"From 2019/01/01 to 2019/12/31"_s,
        // The mean of 130/85, 133/88 and 120/70: the first day is left out.
        u"Measuring week (ESH)  2019/02/26 \u2013 2019/03/04"_s,
        u"128/81"_s,
        u"Morning 132/87\u25B2"_s,
        u"Evening 120/70"_s,
        u"Below the threshold of 135/85 (to a tenth: 127.7/81.0)"_s,
        u"Incomplete, needs 9 more readings"_s,
        u"3 readings on 2 days; 2 of the first day not counted"_s,
        // 150/90, 140/80, 130/85 and 133/88
        u"At or above 140/85 mmHg"_s,
        u"80 %"_s,
        u"4 of 5 readings"_s,
        u"Arrhythmia flagged (AFib): 1 of 4 readings"_s,
        u"1 reading was not examined for it"_s,
        u"Typed in: 1 of 5 readings"_s,
        u"1 of the week typed in"_s,
        // SYS 673/5; the squares from 134.6 are 503.2, a quarter of them 125.8
        u"134.6"_s,
        u"11.2"_s,
        u"150"_s,
        u"130"_s,
        u"132/87\u25B2 (2)"_s,
        u"140\u25B2/80"_s,
        u"Started a tablet."_s,
        u"145/85 (2) before, 128/81 (3) since: -17/-4; fewer than 6 readings on both sides"_s,
        u"Every reading is counted"_s,
    };
    const QStringList words = wordsOf(sample.view());
    for (const QString& line : lines)
        EXPECT_TRUE(words.contains(line)) << qPrintable(line);
    // SYS: the three maxima, of which one is at the limit; DIA: maxima of all and of mornings, their mean and
    // minimum, which is at the limit.
    EXPECT_EQ(words.count(QString(highMark)), 7);
    for (const TextLine& line : textsOf(sample.view().page(Section::summary, 1)))
        EXPECT_TRUE(line.attribute.bold || line.text == highMark || !line.text.contains(highMark)
                    || line.text.contains(u"threshold"_s))
            << line.text.toStdString();
    EXPECT_EQ(words.count(u"\u2013"_s), 2 * 14 - 4) << "halves of days without a reading";
}

} // namespace

} // namespace zel
