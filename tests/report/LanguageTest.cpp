// The pages in every language: what has room in English has room in the longest.
#include "SampleReport.h"
#include "chart/Drawing.h"
#include "store/Languages.h"
#include "store/ManualReading.h"

#include <gmock/gmock.h>

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
    sample.settings.sysStandard = 140;
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
