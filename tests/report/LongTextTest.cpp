// Texts that are longer than the place that a page has for them.
#include "SampleReport.h"
#include "chart/Drawing.h"
#include "report/FieldText.h"
#include "report/TextPages.h"

#include <QRegularExpression>

#include <gmock/gmock.h>

#include <set>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

using testing::ElementsAre;

/// Words that are told apart, so that none can be lost.
QString numberedWords(const QString& word, int total) {
    QStringList words;
    for (int i = 1; i <= total; ++i)
        words += word + QString::number(i);
    return words.join(u' ');
}

/// Of the bodies of a section's pages, all of which must lie above the footer.
QString textOfBody(const PrintView& view, Section section, int from = 1) {
    const PageGeometry at = view.geometry(section);
    QStringList lines;
    for (int page = from; page <= view.getTotalPages(section); ++page)
        for (const TextLine& line : textsOf(view.page(section, page))) {
            if (line.origin.y >= at.drawingRect.top()) continue;
            const bool isInFooter = line.origin.y + 12 < at.footerRect.top();
            EXPECT_TRUE(isInFooter || line.origin.y >= at.footerRect.top() - 0.01) << qPrintable(line.text);
            if (!isInFooter) lines += line.text;
        }
    return lines.join(u' ');
}

TEST(LongText, noLineBeginsWithTheBlankThatItWasBrokenAt) {
    const TextAttribute plain;
    const double width = textSize(u"one two"_s, plain).width + 1;
    EXPECT_EQ(
        wrapped(u"one two three  four\n\n  five\r\nsix   \nseven"_s, width, plain),
        (QStringList{u"one two"_s, u"three"_s, u"four"_s, QString(), u"  five"_s, u"six   "_s, u"seven"_s}));
    EXPECT_EQ(wrapped(u"one two   \nthree"_s, width, plain), (QStringList{u"one two"_s, u"three"_s}))
        << "the end of a line that is full is no line of its own";
    EXPECT_EQ(wrapped(u"one two three"_s, 1, plain).join(QString()), u"onetwothree"_s);
    EXPECT_EQ(wrapped(u"a\nb\nc"_s, width, plain, 2), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_TRUE(wrapped({}, width, plain).isEmpty());
    const QString accented = u" \u0301three"_s; // which is no blank to break at
    EXPECT_EQ(wrapped(u"onetwo"_s + accented, textSize(u"onetwo"_s, plain).width + 1, plain),
              (QStringList{u"onetwo"_s, accented}));
}

TEST(LongText, itemsGrowWhereThePageHasRoomAndGoOnWhereNot) {
    const auto pages = [](std::vector<TextItem> items) { return textPages(items, 100, 10, 8); };
    EXPECT_TRUE(pages({}).empty());
    EXPECT_THAT(pages({{0, 50}, {3, 50}, {1, 50}}),
                ElementsAre(ElementsAre(TextPart{0, 0, 0, 50}, TextPart{1, 0, 3, 50}),
                            ElementsAre(TextPart{2, 0, 1, 50})));
    EXPECT_THAT(pages({{8, 50}}), ElementsAre(ElementsAre(TextPart{0, 0, 8, 98})));
    EXPECT_THAT(pages({{9, 50}}),
                ElementsAre(ElementsAre(TextPart{0, 0, 7, 100, true}), ElementsAre(TextPart{0, 7, 2, 50})));
    EXPECT_THAT(pages({{0, 50}, {12, 50}, {1, 50}}),
                ElementsAre(ElementsAre(TextPart{0, 0, 0, 50}, TextPart{1, 0, 2, 50, true}),
                            ElementsAre(TextPart{1, 2, 7, 100, true}),
                            ElementsAre(TextPart{1, 9, 3, 50}, TextPart{2, 0, 1, 50})));
}

TEST(LongText, aHeadEndsBeforeTheTextAtItsRight) {
    Picture picture;
    drawTextPart(picture, {10, 0, 200, 50}, {u"head "_s.repeated(30), u"right"_s}, {}, {});
    const auto texts = textsOf(picture);
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].origin.x, 10);
    EXPECT_LT(texts[0].origin.x + textSize(texts[0].text, texts[0].attribute).width, texts[1].origin.x);
    EXPECT_NEAR(texts[1].origin.x + textSize(texts[1].text, texts[1].attribute).width, 210, 0.01);
}

/// Below a comment's text where there are no readings.
QString notMeasured() { return u" Average in mmHg (readings): no reading before or since"_s; }

TEST(LongText, commentsStandInFull) {
    SampleReport sample;
    sample.addComment("2019-01-05", "2019-01-06", 2, u"before"_s);
    sample.addComment("2019-01-05", "2019-01-06", 3, numberedWords(u"word"_s, 1500));
    sample.addComment("2019-01-05", "2019-01-06", 1, u"after"_s);
    for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
        const PrintView view = sample.view(paper);
        QString text = textOfBody(view, Section::comment);
        EXPECT_GE(text.count(u"goes on on the next page"_s), 2);
        EXPECT_EQ(text.count(u"goes on on the next page"_s), text.count(u"(2 days), continued"_s));
        text.remove(u" goes on on the next page"_s)
            .remove(u" 2   2019/01/05 – 2019/01/06  (2 days), continued Blue"_s);
        EXPECT_TRUE(text.contains(sample.comments[1]->comment));
        EXPECT_TRUE(text.contains(u"before"_s) && text.endsWith(u" after"_s + notMeasured()));
    }
}

// Thousands of comments or a note of megabytes must not hold up a table, which shows neither.
TEST(LongText, isLaidOutWhenItsSectionIsFirstAskedFor) {
    SampleReport sample(3, 1);
    const PrintView view = sample.view();
    EXPECT_EQ(view.getTotalPages(Section::table), 1);
    sample.comments[0]->comment = sample.patient.PatientNotes = numberedWords(u"word"_s, 1500);
    EXPECT_TRUE(textOfBody(view, Section::comment).contains(u"word1500"_s));
    EXPECT_TRUE(textOfBody(view, Section::PatientProfile).contains(u"word1500"_s));
}

TEST(LongText, whatTheProfilesFormCutsStandsInFullBehindIt) {
    QString PatientModel::*const fields[] = {&PatientModel::FamilyName,  &PatientModel::GivenNames,
                                             &PatientModel::ID,          &PatientModel::Address,
                                             &PatientModel::PhoneEmail,  &PatientModel::FamilyHistory,
                                             &PatientModel::PatientNotes};
    for (const auto field : fields) {
        for (const auto& [words, least] : {std::pair(1, 1), {150, 2}, {700, 3}}) {
            SampleReport sample;
            const QString text = numberedWords(u"part"_s, words);
            sample.patient.*field = text;
            const PrintView view = sample.view();
            const int pages = view.getTotalPages(Section::PatientProfile);
            EXPECT_GE(pages, least);
            EXPECT_TRUE(pages == 1 || words > 1);
            QString all = textOfBody(view, Section::PatientProfile, pages > 1 ? 2 : 1);
            static const QRegularExpression between(u" goes on on the next page [^,]+, continued"_s);
            EXPECT_TRUE(all.remove(between).contains(text)) << qPrintable(all.left(400));
            const auto first = textsOf(view.page(Section::PatientProfile, 1));
            EXPECT_EQ(std::ranges::count(first, qtTrId("reportCutTexts"), &TextLine::text), pages > 1);
        }
    }
}

TEST(LongText, theFormsUpperFieldsGrowWhereTheNotesLeaveRoom) {
    SampleReport sample;
    sample.patient.Address = u"1\n2\n3\n4\n5\n6\n7"_s;
    sample.patient.FamilyHistory = u"1\n2\n3\n4\n5\n6\n7\n8"_s;
    for (const auto& [notes, pages] :
         {std::pair(u"one line"_s, 1), {u"a\nb"_s, 2}, {u"a\nb\nc\nd\ne"_s, 2}}) {
        sample.patient.PatientNotes = notes;
        for (const auto paper : {QPageSize::A4, QPageSize::Letter})
            EXPECT_EQ(sample.view(paper).getTotalPages(Section::PatientProfile), pages) << qPrintable(notes);
    }
    sample.patient.PatientNotes = u"one line"_s;
    const auto lines = textsOf(sample.view().page(Section::PatientProfile, 1));
    const auto y = [&](const QString& text) {
        return std::ranges::find(lines, text, &TextLine::text)->origin.y;
    };
    EXPECT_GT(y(u"Risk Factor"_s), y(u"8"_s));
    EXPECT_GT(y(u"8"_s), y(u"Patient Notes"_s));
    EXPECT_GT(y(u"Patient Notes"_s), y(u"one line"_s));
}

/// A text that takes thousands of pages takes minutes as well.
TEST(LongText, isPrintedUpToSomeThirtyPages) {
    const QString note = u"word and another "_s.repeated(100'000);
    SampleReport sample;
    sample.addComment("2019-01-05", "2019-01-06", 2, note);
    sample.patient.PatientNotes = note;
    const PrintView view = sample.view();
    for (const Section section : {Section::comment, Section::PatientProfile}) {
        EXPECT_GT(view.getTotalPages(section), 10);
        EXPECT_LT(view.getTotalPages(section), 100);
        EXPECT_TRUE(textOfBody(view, section).remove(notMeasured()).endsWith(u"1600000 more characters."_s));
    }
    EXPECT_EQ(printable(u"x"_s.repeated(100'000)).size(), 100'000);
    EXPECT_TRUE(printable(QString(99'999, u'x') + u"\U0001F600"_s).isValidUtf16())
        << "no half of a character";
}

/// Hundreds of thousands of comments take as long.
TEST(LongText, ofTooManyCommentsTheLatestArePrintedAndTheOthersTold) {
    for (const auto& [total, text, left] : {std::tuple(20'003, u"word"_s, 3),
                                            {20'000, u"word"_s, 0},
                                            {23, u"word and another "_s.repeated(20'000), 3}}) {
        SampleReport sample;
        for (int i = 1; i <= total; ++i)
            sample.addComment("2019-01-05", "2019-01-06", 2, text + QString::number(i));
        const PrintView view = sample.view();
        const auto textOf = [&](int page) {
            QStringList lines;
            for (const TextLine& line : textsOf(view.page(Section::comment, page)))
                lines += line.text;
            return lines.join(u' ');
        };
        const QString told = u"%1 earlier comments are not printed"_s.arg(left);
        EXPECT_EQ(textOf(1).contains(told), left > 0);
        EXPECT_TRUE(textOf(1).contains(u" %1   2019/01/05"_s.arg(left + 1))) << "numbered as on the chart";
        std::set<double> begins; // of the lines below what is told and below each comment
        for (const PictureItem& item : view.page(Section::comment, 1))
            if (const auto* line = std::get_if<StraightLine>(&item); line && line->color == QColor(Qt::gray))
                begins.insert(line->from.x);
        EXPECT_EQ(begins.size(), 1U);
        const QString last = textOf(view.getTotalPages(Section::comment));
        EXPECT_TRUE(last.contains(total > 100 ? u"word%1"_s.arg(total) : u"more characters."_s));
    }
}

} // namespace

} // namespace zel
