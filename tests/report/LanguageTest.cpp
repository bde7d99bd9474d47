// The pages in every language: what has room in English has room in the longest.
#include "SampleReport.h"
#include "chart/Drawing.h"
#include "store/Languages.h"
#include "store/ManualReading.h"

#include <gmock/gmock.h>

#include <utility>
#include <vector>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

SampleReport reportInLanguage() {
    SampleReport sample(62, 2);
    sample.patient.DateOfBirth = noonOf("1958-03-05");
    sample.patient.GivenNames = u"Anna"_s;
    sample.patient.FamilyName = u"Adams"_s;
    sample.patient.Weight = 71;
    sample.patient.Height = 168;
    sample.settings.physicianAddress = u"Dr. Grey\nHigh Street 1"_s;
    sample.settings.timeFormat = u"12-hours"_s;
    sample.settings.sysStandard = 230; // outside the trend's scale: a sentence more
    sample.settings.diaStandard = 90;
    sample.highFrom = {135, 85};
    sample.readings[60].exclusion = measuredReason.toString();
    sample.readings[59].isManual = sample.readings[60].isManual = true;
    ReadingModel undated;
    undated.ReadingDate = getNilReadingDate();
    undated.postInit(nullptr, sample.settings, sample.zone);
    sample.readings.insert(sample.readings.begin(), undated);
    return sample;
}

Rect roomOf(const TextLine& line) {
    const Size size = textSize(line.text, line.attribute);
    return {line.origin.x, line.origin.y, size.width, size.height};
}

bool isOver(const Rect& a, const Rect& b) {
    constexpr double aside = 1, above = 3; // a letter's own margins
    return a.x + aside < b.right() && b.x + aside < a.right() && a.y + above < b.top()
           && b.y + above < a.top();
}

/// Words that leave the page, that lie over others, and that are cut.
QStringList faults(const PrintView& view, Section section, int page) {
    const Rect total = view.geometry(section).totalRect;
    const auto texts = textsOf(view.page(section, page));
    QStringList found;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const Rect room = roomOf(texts[i]);
        if (room.x < total.x - 1 || room.right() > total.right() + 1) found += u"outside: "_s + texts[i].text;
        if (texts[i].text.contains(u'\u2026')) found += u"cut: "_s + texts[i].text;
        for (std::size_t k = 0; k < i; ++k)
            if (isOver(room, roomOf(texts[k])))
                found += u"over: "_s + texts[i].text + u" / "_s + texts[k].text;
    }
    return found;
}

/// Of both kinds of monitor, which the table has columns of their own for.
QStringList faultsOfAllPages(SampleReport& sample, Section section) {
    QStringList found;
    for (const bool isAfib : {true, false})
        for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
            sample.getIsAfib = isAfib;
            const PrintView view = sample.view(paper);
            for (int page = 1; page <= view.getTotalPages(section); ++page)
                found += faults(view, section, page);
        }
    return found;
}

TEST(ReportLanguage, nothingIsCutOrCovered) {
    SampleReport sample = reportInLanguage();
    sample.isDemonstration = true; // its mark has no more room than what else stands there
    for (const Section section : allSections()) {
        const auto usual =
            faultsOfAllPages(sample, section).size(); // names of a histogram's neighbours may touch
        for (const Language& language : languages()) {
            const ProgramTexts texts(language);
            const QStringList found = faultsOfAllPages(sample, section);
            EXPECT_LE(found.size(), usual) << facts(section).key << ' ' << language.tag.data() << ":\n"
                                           << found.join(u'\n').toStdString();
        }
    }
}

/// Means just below the limits, readings left out and of another time zone, on all sides of comments, of
/// which there are others.
TEST(ReportLanguage, theSummaryHasRoomForAllThatItSays) {
    SampleReport sample = reportInLanguage();
    sample.addComment("2019-01-29", "2019-01-30", 1, u"Dose halved."_s);
    sample.selection.period.end = DateToDayBoundary(noonOf("2019-01-31"), false);
    for (ReadingModel& reading : sample.readings) {
        reading.sys = 135;
        reading.dia = 85;
        reading.isOfOtherZone = true;
    }
    for (const std::size_t half : {56U, 57U}) { // of one day
        ReadingModel& below = sample.readings.emplace_back(sample.readings[half]);
        below.sys = 134;
        below.dia = 84;
    }
    for (const Language& language : languages()) {
        const ProgramTexts texts(language);
        for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
            const PrintView view = sample.view(paper);
            int means = 0;
            for (const TextLine& line : textsOf(view.page(Section::summary, 1)))
                means += (line.text.startsWith("<135/<85"_L1) || line.text == "<135.0"_L1) ? 1 : 0;
            EXPECT_EQ(means, 1 + 3 + 2) << "large, in the table, and of a day";
            const QStringList found = faults(view, Section::summary, 1);
            EXPECT_EQ(found.size(), 1) << language.tag.data() << ": beside the note that explains ellipses\n"
                                       << found.join(u'\n').toStdString();
        }
    }
}

/// What stands above the trend of a page, without the blanks that it may be broken at.
QString captionOf(const SampleReport& sample, Section section, QPageSize::PageSizeId paper) {
    QString all;
    for (const TextLine& line : textsOf(sample.view(paper).page(section, 1)))
        all += line.text;
    return all.remove(u' ');
}

TEST(ReportLanguage, theTrendsCaptionSaysWhatIsDrawn) {
    const struct {
        std::vector<std::size_t> readings; ///< day by day
        const char* band;
        bool hasGap;
    } cases[]{{{1, 2, 4}, "trendBandAll", false}, {{1, 0, 4}, "trendBandAll", true},
              {{5, 6}, "trendBandShort", false},  {{5, 0, 5}, "trendBandShort", true},
              {{4, 5}, "trendBand", false},       {{5, 0, 4}, "trendBand", true}};
    for (const Language& language : languages()) {
        const ProgramTexts texts(language);
        for (const auto& [readings, band, hasGap] : cases) {
            SampleReport sample(62); // two readings a day
            sample.selection.period.end = DateToDayBoundary(noonOf("2019-01-31"), false);
            const ReadingList all = std::exchange(sample.readings, {});
            for (std::size_t day = 0; day < readings.size(); ++day)
                sample.readings.insert(sample.readings.end(), readings[day], all[2 * day]);
            const QString words = qtTrId(band).arg(qtTrId("trendDay"));
            const QString dots = qtTrId("trendLinked").arg(QString()).remove(u' ');
            for (const Section section : {Section::trend, Section::summary})
                for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
                    const QString caption = captionOf(sample, section, paper);
                    EXPECT_TRUE(caption.contains(QString(words).remove(u' ') + (hasGap ? dots : u"SYS"_s)))
                        << language.tag.data() << ' ' << band << qPrintable(caption);
                }
        }
    }
}

/// Of one word in the language's own letters, so that what is drawn is the table's.
TEST(ReportLanguage, monthsAndTheFormAreInTheLanguage) {
    const SampleReport sample = reportInLanguage();
    const auto words = [&](Section section) {
        QStringList all;
        for (const TextLine& line : textsOf(sample.view().page(section, 1)))
            all += line.text;
        return all.join(u'\n');
    };
    const ProgramTexts texts(*languageFor(u"de"_s));
    EXPECT_TRUE(words(Section::graph).contains(u"Januar"_s));
    EXPECT_FALSE(words(Section::graph).contains(u"January"_s));
    EXPECT_TRUE(words(Section::PatientProfile).contains(u"Nachname"_s));
    EXPECT_FALSE(words(Section::PatientProfile).contains(u"Family"_s));
    EXPECT_TRUE(words(Section::table).contains(u"2019"_s));
}

} // namespace

} // namespace zel
