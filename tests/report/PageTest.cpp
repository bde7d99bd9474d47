#include "SampleReport.h"
#include "analysis/HighValues.h"
#include "chart/Drawing.h"
#include "report/FieldText.h"
#include "report/LimitShares.h"
#include "report/ReportDocument.h"

#include <QRegularExpression>

#include <gmock/gmock.h>

#include <map>
#include <tuple>
#include <vector>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

TEST(Page, geometryFollowsThePaperAndItsMargins) {
    const PageGeometry at = pageGeometry({595, 842}, 45);
    EXPECT_EQ(at.totalRect, (Rect{48, 32, 499, 778}));
    EXPECT_EQ(at.footerRect, (Rect{48, 32, 499, 100}));
    EXPECT_EQ(at.bodyRect, (Rect{48, 132, 499, 633}));
    EXPECT_EQ(at.titleRect, (Rect{48, 765, 499, 45}));
    EXPECT_EQ(at.drawingRect, (Rect{48, 132, 499, 588}));
    EXPECT_EQ(mapRectToRect({50, 100}, {10, 20, 300, 200}), (Rect{110, 20, 100, 200}));
    EXPECT_EQ(mapRectToRect({100, 50}, {10, 20, 200, 300}), (Rect{10, 120, 200, 100}));
}

TEST(Page, sectionsAreFoundByKeyAndHaveTheirOrientation) {
    EXPECT_EQ(sectionByKey(u"SWStatistics"_s), Section::SWStatistics);
    EXPECT_EQ(sectionByKey(u"Graph"_s), std::nullopt);
    EXPECT_EQ(getOrientation(std::nullopt), QPageLayout::Landscape);
    std::vector<Section> upright;
    for (const Section section : allSections())
        if (getOrientation(section) == QPageLayout::Portrait) upright.push_back(section);
    EXPECT_THAT(upright, testing::ElementsAre(Section::summary, Section::table, Section::comment,
                                              Section::SWStatistics));
}

struct Count {
    std::optional<Section> section;
    int readings;
    int comments;
    int pages;
};

// A4: 28 rows on a page of the table, 10 below the statistics, 9 comments on a page.
TEST(Page, countsFollowRowsAndComments) {
    const Count table[] = {
        {Section::summary, 0, 0, 1},       {Section::summary, 500, 90, 1},
        {Section::graph, 0, 0, 1},         {Section::PatientProfile, 0, 0, 1},
        {Section::histogram, 0, 0, 1},     {Section::correlation, 0, 0, 1},
        {std::nullopt, 100, 10, 1},        {Section::table, 0, 0, 0},
        {Section::table, 1, 0, 1},         {Section::table, 28, 0, 1},
        {Section::table, 29, 0, 2},        {Section::table, 56, 0, 2},
        {Section::table, 57, 0, 3},        {Section::SWStatistics, 0, 0, 1},
        {Section::SWStatistics, 10, 0, 1}, {Section::SWStatistics, 11, 0, 2},
        {Section::SWStatistics, 38, 0, 2}, {Section::SWStatistics, 39, 0, 3},
        {Section::comment, 0, 0, 0},       {Section::comment, 0, 9, 1},
        {Section::comment, 0, 10, 2},      {Section::trend, 0, 0, 1},
        {Section::trend, 100, 10, 1},
    };
    for (const Count& row : table) {
        const SampleReport sample(row.readings, row.comments);
        EXPECT_EQ(sample.view().getTotalPages(row.section), row.pages)
            << (row.section ? facts(*row.section).key : "none") << ", " << row.readings << " readings, "
            << row.comments << " comments";
    }
}

/// All that a page says, with its places.
std::vector<std::tuple<QString, double, double, bool>> saidOn(const Picture& picture) {
    std::vector<std::tuple<QString, double, double, bool>> said;
    for (const TextLine& line : textsOf(picture))
        said.emplace_back(line.text, line.origin.x, line.origin.y, line.attribute.bold);
    return said;
}

TEST(Page, isTheSameWhicheverPagesWereAskedForBefore) {
    SampleReport sample(100, 3);
    sample.comments.back()->comment = QString(500, u'W'); // is cut on its page alone
    sample.highFrom = {135, 85};
    const PrintView used = sample.view();
    for (const Section section : allSections()) {
        const PagePlace first{.number = 1, .total = 9, .emptySections = {u"Comments"_s}};
        EXPECT_EQ(saidOn(used.page(section, 1, first)), saidOn(sample.view().page(section, 1, first)));
        for (int page = used.getTotalPages(section); page > 0; --page)
            EXPECT_EQ(saidOn(used.page(section, page)), saidOn(sample.view().page(section, page)))
                << facts(section).key << ", page " << page;
        EXPECT_EQ(saidOn(used.page(section, 1, first)), saidOn(sample.view().page(section, 1, first)));
    }
}

/// A patient whose every text is that one.
SampleReport patientOf(const QString& text) {
    SampleReport sample(60);
    PatientModel& patient = sample.patient;
    for (QString* field : {&patient.GivenNames, &patient.FamilyName, &patient.ID, &patient.Address,
                           &patient.PhoneEmail, &patient.FamilyHistory, &patient.PatientNotes})
        *field = text;
    sample.settings.physicianAddress = text;
    for (int i = 0; i < 9; ++i)
        sample.addComment("2019-01-05", "2019-01-06", 3, text);
    for (ReadingModel& reading : sample.readings)
        reading.sys = reading.dia = reading.pulse = reading.pp = UINT32_MAX;
    return sample;
}

TEST(Page, noTextLeavesItsPage) {
    const QString long5000(5'000, u'W');
    for (const QString& text :
         {u"Ada"_s, long5000, u"a\nb\n"_s.repeated(2'000), u"\u05D3\u05D5\u05D3 "_s.repeated(500),
          u"\u738B\u5C0F\u660E"_s.repeated(500)}) {
        const SampleReport sample = patientOf(text);
        for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
            const PrintView view = sample.view(paper);
            for (const Section section : allSections()) {
                const Rect total = view.geometry(section).totalRect;
                for (const TextLine& line : textsOf(view.page(section, 1))) {
                    const Size size = textSize(line.text, line.attribute);
                    EXPECT_GE(line.origin.x, total.x - 0.01) << qPrintable(line.text.left(40));
                    EXPECT_LE(line.origin.x + size.width, total.right() + 0.01)
                        << qPrintable(line.text.left(40)) << " in " << facts(section).key;
                    EXPECT_GE(line.origin.y, total.y - 0.01) << qPrintable(line.text.left(40));
                }
            }
        }
    }
}

/// The page's texts and where they stand, without the program's own line.
std::vector<std::pair<QString, double>> placesBesideTheMark(const Picture& page, const QString& mark) {
    std::vector<std::pair<QString, double>> places;
    for (const TextLine& line : textsOf(page))
        if (line.text != mark) places.emplace_back(line.text, line.origin.x + 10'000 * line.origin.y);
    return places;
}

TEST(Page, eachOneOfADemonstrationSaysSoAndIsElseAsAnyOther) {
    SampleReport sample(90, 12);
    sample.readings[3].exclusion = u"cuff"_s;
    const QString mark = qtTrId("reportDemonstration");
    const auto isMark = [&mark](const TextLine& line) { return line.text == mark; };
    for (const Section section : allSections()) {
        sample.isDemonstration = false;
        const PrintView usual = sample.view();
        sample.isDemonstration = true;
        const PrintView marked = sample.view();
        ASSERT_EQ(marked.getTotalPages(section), usual.getTotalPages(section));
        for (int number = 1; number <= marked.getTotalPages(section); ++number) {
            const Picture page = marked.page(section, number), plain = usual.page(section, number);
            EXPECT_EQ(std::ranges::count_if(textsOf(page), isMark), 1) << facts(section).key << number;
            EXPECT_EQ(std::ranges::count_if(textsOf(plain), isMark), 0);
            EXPECT_EQ(placesBesideTheMark(page, mark), placesBesideTheMark(plain, qtTrId("appDescrption")));
        }
    }
}

TEST(Page, aLongNameLeavesTheIDReadable) {
    SampleReport sample;
    sample.patient.GivenNames = QString(5000, u'x');
    const auto texts = textsOf(sample.view().page(Section::PatientProfile, 1));
    EXPECT_THAT(texts, testing::Contains(testing::Truly([](const TextLine& line) {
                    return line.text.startsWith("Patient Name=xx"_L1) && line.text.contains(u"\u2026 Byron"_s)
                           && line.text.endsWith("  ID=P-17"_L1);
                })));
}

TEST(Page, longNamesShareTheirRoomEvenly) {
    SampleReport sample;
    sample.patient.GivenNames = sample.patient.FamilyName = QString(5000, u'x');
    for (const TextLine& line : textsOf(sample.view().page(Section::PatientProfile, 1))) {
        static const QRegularExpression names(u"^Patient Name=(x+)\u2026 (x+)\u2026  ID=P-17$"_s);
        if (const auto found = names.match(line.text); found.hasMatch()) {
            EXPECT_EQ(found.captured(1), found.captured(2));
            return;
        }
    }
    FAIL() << "no line has both names";
}

TEST(Page, textsAreShortenedOnlyWhereTheyDoNotFit) {
    const TextAttribute plain;
    const double width = textSize(u"Hello, world"_s, plain).width;
    EXPECT_EQ(elided(u"Hello, world"_s, width + 0.01, plain), u"Hello, world"_s);
    EXPECT_TRUE(elided(u"Hello, world"_s, width - 1, plain).endsWith(u'\u2026'));
    EXPECT_EQ(elided(u"two\nlines"_s, 500, plain), u"two lines"_s);
    const double smallest = textSize(u"2019/12/31"_s, {.size = 6}).width;
    for (const auto& [room, isWhole] : {std::pair{smallest + 0.01, true}, {smallest - 0.01, false}}) {
        Picture figure;
        fieldFigure(figure, u"2019/12/31"_s, {0, 100}, room, plain);
        EXPECT_EQ(textsOf(figure).at(0).text == "2019/12/31"_L1, isWhole) << room;
    }
    Picture picture;
    fieldParagraph(picture, u"1\n2\n3\n4\n5\n6"_s, {0, 100}, 200, plain);
    const auto lines = textsOf(picture);
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines.back().text, u"5\u2026"_s);
    EXPECT_LT(lines.back().origin.y, lines.front().origin.y);
}

TEST(Page, footerShowsThePractitionerOnlyWhenAskedForAndApartFromTheLegend) {
    SampleReport sample(3);
    const auto linesOf = [&](const QString& details) {
        sample.settings.physicianAddress = details;
        const PrintView view = sample.view();
        const PageGeometry at = view.geometry(Section::table);
        QStringList lines;
        double legendTop = 0, detailsBottom = at.footerRect.top();
        for (const TextLine& line : textsOf(view.page(Section::table, 1))) {
            if (line.origin.y >= at.footerRect.top() || line.text.startsWith("Page"_L1)) continue;
            const bool isNotice = line.text == qtTrId("reportCutPractitioner");
            const QString words = QString(line.text).remove(u'\u2026');
            const bool isDetail =
                isNotice || (details + QString(details).replace(u'\n', u", "_s)).contains(words);
            if (isDetail && !isNotice) lines += line.text;
            (isDetail ? detailsBottom : legendTop) =
                isDetail ? std::min(detailsBottom, line.origin.y)
                         : std::max(legendTop, line.origin.y + textSize(line.text, line.attribute).height);
        }
        EXPECT_GT(detailsBottom, legendTop + 5) << qPrintable(details);
        return lines.join(u'|');
    };
    const QString suggested = SettingModel::initWithDefault().physicianAddress;
    EXPECT_EQ(linesOf(suggested), QString()) << "nobody has filled it in";
    EXPECT_EQ(linesOf(u"Dr. Moreau\n Street address\nSea Road 3\nPhone"_s), u"Dr. Moreau|Sea Road 3"_s);
    EXPECT_EQ(linesOf(u"Dr. Moreau\n2\n3\n4\n5\n6\nSeventh"_s), u"Dr. Moreau|2|3|4|5|6|Seventh"_s);
    QStringList many;
    for (int i = 1; i <= 20; ++i)
        many += u"Department %1"_s.arg(i);
    EXPECT_EQ(linesOf(many.join(u'\n')).replace(u'|', u' '), many.join(u", "_s)) << "no line for each";
    QString detail = u"A practice with more departments than any page has room for. "_s.repeated(20);
    const auto isSaidToBeCut = [&](const QString& details) {
        const QString words = linesOf(details).replace(u'|', u' '); // which sets them, too
        const auto texts = textsOf(sample.view().page(Section::table, 1));
        const bool isSaid = std::ranges::count(texts, qtTrId("reportCutPractitioner"), &TextLine::text) == 1;
        EXPECT_NE(words == details.trimmed(), isSaid);
        return isSaid;
    };
    EXPECT_FALSE(isSaidToBeCut(detail.trimmed()));
    EXPECT_TRUE(isSaidToBeCut(detail.repeated(5).trimmed()));
    sample.needPhysicianInfo = false;
    EXPECT_EQ(linesOf(u"Dr. Moreau"_s), QString());
}

bool shows(const PrintView& view, Section section, const QString& words, int page = 1) {
    const auto texts = textsOf(view.page(section, page));
    return std::ranges::any_of(texts, [&](const TextLine& line) { return line.text.contains(words); });
}

TEST(Page, figuresAndNamesOfUsualLengthAreWholeOnEachPaper) {
    SampleReport sample(2 * 365 * 10);
    sample.selection.period.end = DateToDayBoundary(noonOf("2029-12-31"), false);
    sample.patient.GivenNames = u"Maximiliane Alexandra Wilhelmina Josephine"_s;
    sample.patient.FamilyName = u"Wolfeschlegelsteinhausen-Montgomery"_s;
    for (const auto paper : {QPageSize::A4, QPageSize::Letter})
        for (const Section section : {Section::correlation, Section::SWStatistics})
            EXPECT_FALSE(shows(sample.view(paper), section, u"\u2026"_s)) << facts(section).key;
}

TEST(Page, countsTheReadingsAboveTheLimits) {
    SampleReport sample(40);
    const std::pair<std::uint32_t, std::uint32_t> kinds[] = {{140, 90}, {141, 90}, {140, 91}, {141, 91}};
    for (std::size_t i = 0; i < sample.readings.size(); ++i) // 4, 8, 12 and 16 of each
        std::tie(sample.readings[i].sys, sample.readings[i].dia) =
            kinds[(i % 10 > 0) + (i % 10 > 2) + (i % 10 > 5)];
    for (const Section section : {Section::correlation, Section::SWStatistics}) {
        for (const QString& words : {u"40 readings"_s, u"At or below the limits of 140/90 mmHg: 4 (10 %)"_s,
                                     u"Only systolic above: 8 (20 %)"_s, u"Only diastolic above: 12 (30 %)"_s,
                                     u"Both above: 16 (40 %)"_s})
            EXPECT_TRUE(shows(sample.view(), section, words)) << qPrintable(words);
    }
    EXPECT_FALSE(shows(sample.view(), Section::SWStatistics, u"Both above"_s, 2)) << "once is enough";
    EXPECT_FALSE(shows(sample.view(), Section::SWStatistics, u"n/a"_s));
    EXPECT_TRUE(shows(SampleReport().view(), Section::SWStatistics, u"n/a: no readings"_s));
    EXPECT_EQ(shareText(1, 1), u"1 (100 %)"_s);
    EXPECT_EQ(shareText(0, 0), u"0"_s);
}

TEST(Page, marksHighValuesOfTheReadingsAndNamesTheirLimits) {
    SampleReport sample(5);
    sample.highFrom = {135, 85};
    const std::pair<std::uint32_t, std::uint32_t> values[] = {
        {134, 84}, {135, 83}, {133, 85}, {199, 99}, {198, 98}};
    for (std::size_t i = 0; i < 5; ++i)
        std::tie(sample.readings[i].sys, sample.readings[i].dia) = values[i];
    sample.readings[4].exclusion = u"wrong cuff"_s;
    const auto found = [&](auto&& isSuch) {
        QStringList words;
        for (const TextLine& line : textsOf(sample.view().page(Section::table, 1)))
            if (isSuch(line)) words += line.text;
        return words;
    };
    static const QRegularExpression number(u"^[0-9]+$"_s);
    const auto isBold = [](const TextLine& line) {
        return line.attribute.bold && number.match(line.text).hasMatch();
    };
    const auto isMark = [](const TextLine& line) { return line.text == highMark; };
    EXPECT_EQ(found(isBold), (QStringList{u"135"_s, u"85"_s, u"199"_s, u"99"_s}))
        << "no reading that is left out";
    EXPECT_EQ(found(isMark).size(), 4);
    for (const Section section : {Section::table, Section::SWStatistics})
        EXPECT_TRUE(shows(sample.view(), section, describeHighMark(sample.highFrom))) << facts(section).key;
    sample.highFrom = {};
    EXPECT_EQ(found(isBold) + found(isMark), QStringList());
}

TEST(Page, tellsTheHalfOfTheDayThatItIsLimitedTo) {
    using enum ViewSelection;
    SampleReport sample(2);
    for (const auto& [view, am, pm] :
         {std::tuple{viewAll, false, false}, {amOnly, true, false}, {pmOnly, false, true}}) {
        sample.selection.view = view;
        for (const Section section : allSections()) {
            const bool isLimited = section != Section::PatientProfile && section != Section::comment
                                   && section != Section::summary; // which tells the halves apart
            EXPECT_EQ(shows(sample.view(), section, u"Only readings before noon"_s), am && isLimited)
                << facts(section).key;
            EXPECT_EQ(shows(sample.view(), section, u"Only readings from noon on"_s), pm && isLimited)
                << facts(section).key;
        }
    }
}

TEST(Page, tellsHowManyReadingsItCountsAndWhichItLeavesOut) {
    using enum ViewSelection;
    SampleReport sample(10); // at noon and at midnight in turn, of which two come before the period
    sample.selection.period.begin = DateToDayBoundary(noonOf("2019-01-02"), true);
    ReadingModel undated = sample.readings[0];
    undated.ReadingDate = StrToDate(u"2000-01-01"_s, u"yyyy-MM-dd"_s);
    undated.postInit(nullptr, sample.settings, sample.zone);
    sample.readings.insert(sample.readings.begin(), undated);
    const auto counts = [&](Section section) {
        QStringList found;
        for (const TextLine& line : textsOf(sample.view().page(section, 1)))
            if (line.attribute.size == 9 && line.text.contains("reading"_L1)) found += line.text;
        return found.join(u'|');
    };
    const QString before = QString::number(std::ranges::count_if(sample.readings, [&](const auto& reading) {
        return reading.ReadingDate < sample.selection.period.begin && !hasUndatedMarker(reading);
    }));
    const int dated = 10 - before.toInt();
    const auto outside = qtTrId("leftOutsidePeriod", before.toInt());
    const auto text = [&](int counted, const QStringList& left) {
        return qtTrId("readingCount", counted) + u"; "_s + qtTrId("leftOut").arg(left.join(u", "_s));
    };
    const QString anUndatedOne = qtTrId("leftUndated", 1);
    using enum Section;
    for (const Section section : {graph, histogram, correlation, trend, table, SWStatistics})
        EXPECT_EQ(counts(section), text(dated, {outside, anUndatedOne})) << facts(section).key;
    for (const Section section : {PatientProfile, comment})
        EXPECT_EQ(counts(section), QString()) << facts(section).key;
    sample.selection.includeUndated = true;
    EXPECT_EQ(counts(table), text(dated + 1, {outside}));
    EXPECT_EQ(counts(graph), text(dated, {outside, anUndatedOne})) << "which has no place on it";
    sample.selection = {sample.selection.period, pmOnly, false};
    const auto early = static_cast<int>(std::ranges::count_if(sample.readings, [&](const auto& reading) {
        return sample.selection.period.contains(*reading.ReadingDate) && !reading.isPMData;
    }));
    EXPECT_EQ(counts(table), text(dated - early, {outside, qtTrId("leftBeforeNoon", early), anUndatedOne}));
    EXPECT_EQ(counts(SWStatistics), text(dated, {outside, anUndatedOne})) << "of all times of day";
    sample = SampleReport(10);
    EXPECT_EQ(counts(table), qtTrId("readingCount", 10));
    EXPECT_EQ(counts(histogram), QString()) << "its heading says so";
    sample.readings.emplace(sample.readings.begin());
    sample.selection.includeUndated = true;
    EXPECT_EQ(counts(SWStatistics), text(10, {qtTrId("leftWithoutDate", 1)}));
    const auto onSummary = textsOf(sample.view().page(SWStatistics, 1));
    EXPECT_EQ(std::ranges::count(onSummary, qtTrId("reportReadings", 10), &TextLine::text), 1)
        << "limits and figures are of the same readings";
}

TEST(Page, sectionsThatCountNameWhatTheUserLeftOutOfAllTimesOfTheDay) {
    using enum Section;
    SampleReport sample(10);
    sample.selection.view = ViewSelection::amOnly;
    for (ReadingModel& reading : sample.readings)
        if (reading.isPMData && reading.sys < 120) reading.exclusion = u"in the evening"_s;
    sample.readings.back().exclusion = u"of another month"_s;
    sample.readings.back().ReadingDate = noonOf("2018-01-01");
    const auto excluded = static_cast<int>(
        std::ranges::count(sample.readings, std::optional(u"in the evening"_s), &ReadingModel::exclusion));
    ASSERT_GE(excluded, 1);
    const PrintView view = sample.view();
    const auto named = [&](std::initializer_list<Section> sections) {
        QStringList places;
        const ReportDocument document(view, sections);
        for (std::size_t index = 0; index < document.pages().size(); ++index) {
            const auto texts = textsOf(document.page(index));
            EXPECT_EQ(std::ranges::count(texts, u"of another month"_s, &TextLine::text), 0);
            if (const auto count = std::ranges::count(texts, u"in the evening"_s, &TextLine::text))
                places += u"%1 behind %2"_s.arg(count).arg(
                    QLatin1String(facts(document.pages()[index].section).key));
        }
        return places;
    };
    const auto behind = [&](const char* key) {
        return QStringList{u"%1 behind %2"_s.arg(excluded).arg(QLatin1String(key))};
    };
    for (const Section section : {graph, histogram, correlation, trend, table, SWStatistics}) {
        // The table has those of its half of the day, and leaves no other out for that.
        EXPECT_EQ(shows(view, section, qtTrId("leftExcluded", excluded)), section != table)
            << facts(section).key;
        EXPECT_EQ(named({section}), behind(facts(section).key));
    }
    EXPECT_EQ(named({trend, graph, comment, PatientProfile}), behind("graph"));
    EXPECT_EQ(named({graph, table, trend}), behind("table"));
    EXPECT_EQ(named({graph, summary}), QStringList()) << "which has them at its foot";
    EXPECT_EQ(named({comment, PatientProfile}), QStringList());
}

/// "40 on table" for each section that names readings left out for a reason that ends so.
QStringList namedOn(const PrintView& view, const std::vector<Section>& sections, const QString& ending) {
    std::map<Section, int> counts;
    const ReportDocument document(view, sections);
    for (std::size_t index = 0; index < document.pages().size(); ++index)
        for (const TextLine& line : textsOf(document.page(index)))
            if (line.text.endsWith(ending)) ++counts[document.pages()[index].section];
    QStringList places;
    for (const auto& [section, count] : counts)
        places += u"%1 on %2"_s.arg(count).arg(QLatin1String(facts(section).key));
    return places;
}

QString wholeText(const Picture& page) {
    QStringList texts;
    for (const TextLine& line : textsOf(page))
        texts += line.text;
    return texts.join(u' ');
}

TEST(Page, whatTheSummaryHasNoRoomForIsNamedBehindIt) {
    using enum Section;
    struct Case {
        int count;
        QString reason;
        std::vector<Section> sections;
        QStringList places;
        const char* note; ///< of the summary, which its last line ends with
    };
    const QString brief = u"loose cuff END"_s, lengthy = u"flights of stairs, "_s.repeated(9) + u"END"_s;
    for (const Case& one :
         {Case{2, brief, {summary, graph}, {u"2 on summary"_s}, "…: shortened."},
          Case{20, brief, {summary}, {u"5 on summary"_s}, "…: shortened."},
          Case{20,
               brief,
               {summary, trend, graph, PatientProfile},
               {u"5 on summary"_s, u"20 on graph"_s},
               "…: shortened; readings left out: in full in Blood-pressure and pulse chart."},
          Case{20,
               brief,
               {summary, comment},
               {u"5 on summary"_s, u"20 on comment"_s},
               "…: in full in Comments."},
          Case{1,
               lengthy,
               {summary, comment, graph},
               {u"1 on graph"_s},
               "…: in full in Comments, Blood-pressure and pulse chart."},
          Case{1,
               brief,
               {summary, comment, table},
               {u"1 on summary"_s, u"1 on table"_s},
               "…: in full in Comments, Readings."}}) {
        SampleReport sample(40, 1);
        for (int i = 0; i < one.count; ++i)
            sample.readings[static_cast<std::size_t>(i)].exclusion = one.reason;
        const PrintView view = sample.view();
        EXPECT_EQ(namedOn(view, one.sections, u"END"_s), one.places) << one.places.join(u';').toStdString();
        const QString page = wholeText(ReportDocument(view, one.sections).page(0));
        EXPECT_TRUE(page.contains(QString::fromUtf8(one.note))) << page.toStdString();
    }
}

TEST(Page, whatCommentsCountIsNamedAlsoOutsideThePeriod) {
    using enum Section;
    SampleReport sample(60); // January
    sample.addComment("2019-01-20", "2019-01-21", 1, u"New dose."_s);
    sample.selection.period = {DateToDayBoundary(noonOf("2019-01-20"), true),
                               DateToDayBoundary(noonOf("2019-01-22"), false)};
    const auto exclude = [&](const char* day, const char* reason) {
        for (ReadingModel& reading : sample.readings)
            if (reading.day == sample.zone.day(noonOf(day)) && reading.isPMData)
                reading.exclusion = QLatin1String(reason);
    };
    exclude("2019-01-05", "more than 14 days before OUT");
    exclude("2019-01-06", "before IN");
    exclude("2019-01-21", "since IN");
    exclude("2019-01-28", "behind the period IN");
    const auto named = [&](const std::vector<Section>& sections) {
        EXPECT_EQ(namedOn(sample.view(), sections, u"OUT"_s), QStringList());
        return namedOn(sample.view(), sections, u"IN"_s);
    };
    EXPECT_EQ(named({comment}), QStringList(u"3 on comment"_s));
    EXPECT_EQ(named({graph}), QStringList(u"1 on graph"_s));
    EXPECT_EQ(named({comment, graph}), QStringList(u"3 on graph"_s));
    EXPECT_EQ(named({comment, table}), QStringList(u"3 on table"_s));
    EXPECT_EQ(named({summary}), QStringList(u"3 on summary"_s)) << "whose comments count them, too";
    for (ReadingModel& reading : sample.readings)
        reading.exclusion = u"all of them IN"_s;
    EXPECT_TRUE(
        wholeText(sample.view().page(comment, 1)).contains(u"no reading before or since; 51 left out"_s));
}

TEST(Page, commentsTellTheirDaysAndColoursAndWhatWasMeasured) {
    const struct {
        const char* end;
        QString head, colour;
        bool hasBegin = true;
    } cases[] = {
        {"2019-01-05", u"1   2019/01/05 – 2019/01/05  (1 day)"_s, u"Dark grey"_s},
        {"2019-01-06", u"2   2019/01/05 – 2019/01/06  (2 days)"_s, u"Orange"_s},
        {"2019-02-04", u"3   2019/01/05 – 2019/02/04  (31 days)"_s, u"Blue"_s},
        {"2019-01-04", u"4   2019/01/05 – 2019/01/04"_s, u"Yellow"_s},
        {"2019-01-06", u"5   n.a – 2019/01/06"_s, u"Orange"_s, false},
        {"2019-01-06", u"6   2019/01/05 – 2019/01/06  (2 days)"_s, u"Orange"_s},
    };
    SampleReport sample;
    QStringList expected;
    for (const auto& [end, head, colour, hasBegin] : cases) {
        const auto degree = static_cast<std::uint32_t>(sample.comments.size() + 1);
        sample.addComment("2019-01-05", end, degree, u"Felt dizzy."_s);
        expected += {head, colour, u"Felt dizzy."_s};
        if (hasBegin)
            expected += u"Average in mmHg (readings): no reading before or since"_s;
        else
            sample.comments.back()->beginDay = noDay;
    }
    QStringList texts;
    for (const TextLine& line : textsOf(sample.view().page(Section::comment, 1)))
        texts += line.text;
    EXPECT_EQ(texts.mid(texts.indexOf(expected.front()), expected.size()), expected);
}

TEST(Page, thePatientsValuesStandBesideTheirLabels) {
    SampleReport sample;
    sample.patient.Sex = sample.patient.Smoker = 1;
    sample.patient.Diabetic = 2;
    const auto texts = textsOf(sample.view().page(Section::PatientProfile, 1));
    const std::pair<const char*, const char*> cases[] = {
        {"Family Name", "Byron"},
        {"Given Name(s)", "Ada"},
        {"ID", "P-17"},
        {"Address", "1 Long Lane"},
        {"Date of Birth", "2"},
        {"Sex", "Male"},
        {"Age", "59"},
        {"Weight(kg)", "71.5"},
        {"Heigt(cm)", "168.0"},
        {"Smoker", "Yes"},
        {"Diabetic", "No"},
        {"Cholesterol(mg/dL)", "190.0"},
    };
    for (const auto& [label, value] : cases) {
        const auto name = std::ranges::find(texts, QLatin1StringView(label), &TextLine::text);
        ASSERT_NE(name, texts.end()) << label;
        const TextLine* beside = nullptr;
        for (const TextLine& line : texts)
            if (std::abs(line.origin.y - name->origin.y) < 8 && line.origin.x > name->origin.x
                && (!beside || line.origin.x < beside->origin.x))
                beside = &line;
        ASSERT_TRUE(beside) << label;
        EXPECT_EQ(beside->text, QLatin1StringView(value)) << label;
    }
    const auto x = [&](const QString& text) {
        return std::ranges::find(texts, text, &TextLine::text)->origin.x;
    };
    EXPECT_EQ(x(u"190.0"_s), x(u"168.0"_s)) << "in the column of the values above";
}

TEST(Page, unitsAreClearOfTheFrames) {
    const SampleReport sample(40);
    for (const Section section : {Section::histogram, Section::correlation}) {
        const Picture page = sample.view().page(section, 1);
        int units = 0;
        for (const TextLine& line : textsOf(page)) {
            if (line.text != qtTrId("mmHg") && line.text != qtTrId("P/min")) continue;
            ++units;
            const double right = line.origin.x + textSize(line.text, line.attribute).width;
            for (const PictureItem& item : page) {
                const auto* frame = std::get_if<StraightLine>(&item);
                if (!frame || frame->from.x != frame->to.x || frame->color != QColor(Qt::black)) continue;
                EXPECT_TRUE(right + 1 < frame->from.x || frame->from.x + 1 < line.origin.x)
                    << facts(section).key;
            }
        }
        EXPECT_EQ(units, section == Section::histogram ? 2 : 1);
    }
}

} // namespace

} // namespace zel
