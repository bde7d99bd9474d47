#include "SampleReport.h"
#include "report/PdfCharacters.h"
#include "report/PdfFacts.h"
#include "report/ReportPdf.h"
#include "store/AtomicFile.h"
#include "support/FullDisk.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// What a program of poppler-utils says about the PDF.
QString said(const QString& program, const QByteArray& pdf, QStringList options = {}) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"report.pdf"_s);
    if (!replaceFile(path, pdf)) return {};
    QProcess process;
    process.start(program,
                  options << path << (program == "pdftotext"_L1 ? QStringList(u"-"_s) : QStringList()));
    process.waitForFinished();
    EXPECT_EQ(process.exitCode(), 0) << program.toStdString();
    EXPECT_THAT(process.readAllStandardError().toStdString(), testing::IsEmpty());
    return QString::fromUtf8(process.readAllStandardOutput());
}

QByteArray pdfOf(const SampleReport& sample, const std::vector<Section>& which) {
    const auto pdf = makePdf(sample.view(), which);
    EXPECT_TRUE(pdf.has_value());
    return pdf.value_or(QByteArray());
}

TEST(Pdf, aTextSearchFindsEveryNumberOfTheTable) {
    const SampleReport sample(729, 3);
    const QString text = said(u"pdftotext"_s, pdfOf(sample, {Section::table}), {u"-layout"_s});
    QStringList found;
    static const QRegularExpression row(
        u"^ *(\\d{4}/\\d\\d/\\d\\d) +(\\d\\d:\\d\\d)\\D+(\\d+) +(\\d+) +(\\d+) +(\\d+)"_s,
        QRegularExpression::MultilineOption);
    for (auto match = row.globalMatch(text); match.hasNext();)
        found += match.next().capturedTexts().mid(1).join(u' ');
    QStringList expected;
    for (const ReadingModel& reading : sample.readings)
        expected += u"%1 %2 %3 %4 %5 %6"_s
                        .arg(reading.strDisplayDate(sample.settings), reading.strDisplayTime(sample.settings))
                        .arg(reading.sys)
                        .arg(reading.dia)
                        .arg(reading.pulse)
                        .arg(sample.settings.showPPorMap == 0 ? reading.pp : reading.map);
    ASSERT_EQ(found.size(), expected.size());
    for (qsizetype i = 0; i < found.size(); ++i)
        EXPECT_EQ(found[i].toStdString(), expected[i].toStdString());
}

TEST(Pdf, everySectionIsPrintedForAYearOfDataAndForNone) {
    static const QRegularExpression embeddedWithText(u" yes +(yes|no) +yes +\\d"_s);
    for (const auto& [readings, comments] : {std::pair(729, 12), std::pair(0, 0)}) {
        SampleReport sample(readings, comments);
        sample.patient.FamilyName = u"\u738B\u5C0F\u660E \u05DB\u05D4\u05DF"_s;
        int pages = 0;
        for (const Section section : allSections())
            pages += sample.view().getTotalPages(section);
        const QByteArray pdf = pdfOf(sample, allSections());
        EXPECT_TRUE(said(u"pdfinfo"_s, pdf).contains(QRegularExpression(u"Pages: +%1\n"_s.arg(pages))));
        EXPECT_TRUE(said(u"pdftotext"_s, pdf).contains(u"\u738B\u5C0F\u660E"_s));
        for (const QString& font : said(u"pdffonts"_s, pdf).split(u'\n', Qt::SkipEmptyParts).mid(2))
            EXPECT_TRUE(font.contains(embeddedWithText)) << qPrintable(font);
        EXPECT_EQ(said(u"pdfimages"_s, pdf, {u"-list"_s}).count(u'\n'), 2) << "pictures are vectors";
    }
}

TEST(Pdf, namesTheCharacterThatWasWrittenWhereAFontHasOneGlyphForSeveral) {
    const QByteArray glyph = "1 beginbfrange\n<0001> <0001> ", end = "\nendbfrange";
    for (const auto& [before, after] : {
             std::pair(glyph + "<2F29>" + end, glyph + "<5C0F>" + end),
             {glyph + "[<738B> <2F29> <0009> <2EE2> <2EE9> <2EF0> <2ED1> <2E9F> <2E80> ]" + end,
              glyph + "[<738B> <5C0F> <0020> <9A6C> <9EC4> <9F99> <9577> <6BCD> <2E80> ]" + end},
             {glyph + "[<00B2> <00B5> <FF21> ]" + end, glyph + "[<00B2> <00B5> <FF21> ]" + end},
             {"1 beginbfrange\n<0001> <0002> <2F29>" + end, "1 beginbfrange\n<0001> <0002> <2F29>" + end},
             {glyph + "<2F29>", glyph + "<2F29>"}, // without an end it is no map
             {glyph + "<2F29>" + end + glyph + "<2EE2>" + end,
              glyph + "<5C0F>" + end + glyph + "<9A6C>" + end},
             {"(<0001> <0001> <2F29>) Tj", "(<0001> <0001> <2F29>) Tj"},
         }) {
        QByteArray pdf = before;
        mendCharacters(pdf);
        EXPECT_EQ(pdf, after) << before.constData();
    }
}

/// Of two pages.
const QByteArray smallPdf = "%PDF-1.4\n1 0 obj\n<<\n/Title ()\n>>\nendobj\n"
                            "2 0 obj\n<<\n/Type /Catalog\n/Pages 3 0 R\n>>\nendobj\n"
                            "3 0 obj\n<<\n/Type /Pages\n/Kids \n[\n4 0 R\n15 0 R\n]\n/Count 2\n>>\nendobj\n"
                            "trailer\n<<\n/Size 16\n/Info 1 0 R\n/Root 2 0 R\n>>\nstartxref\n123\n%%EOF";

TEST(Pdf, factsAreAppendedAsAnUpdate) {
    const auto update = [](std::vector<PdfBookmark> bookmarks) {
        const PdfFacts facts{u"T"_s, u"A"_s, u"C"_s, noonOf("2020-01-15"), std::move(bookmarks)};
        const QByteArray pdf = withPdfFacts(smallPdf, facts);
        EXPECT_TRUE(pdf.startsWith(smallPdf + '\n'));
        return pdf.sliced(smallPdf.size() + 1);
    };
    QByteArray info = "1 0 obj\n<<\n/Title <feff0054>\n/Author <feff0041>\n/Creator <feff0043>\n"
                      "/Producer (Qt VERSION)\n/CreationDate (D:20200115110000Z)\n>>\nendobj\n";
    info.replace("VERSION", qVersion());
    const QByteArray end = "/Lang (en)\n/ViewerPreferences << /DisplayDocTitle true >>\n>>\nendobj\n";
    const QByteArray root = "2 0 obj\n<<\n/Type /Catalog\n/Pages 3 0 R\n";
    const QByteArray rest = "\n/Info 1 0 R\n/Root 2 0 R\n/Prev 123\n>>\nstartxref\n";
    const auto place = [&](const QByteArray& objects, const char* number) {
        const qsizetype at = smallPdf.size() + 1 + objects.indexOf(QByteArray(number) + " 0 obj\n");
        return QByteArray(number) + " 1\n" + QByteArray::number(at).rightJustified(10, '0') + " 00000 n \n";
    };
    const auto closed = [&](const QByteArray& objects, std::initializer_list<const char*> numbers,
                            const char* size) {
        QByteArray table;
        for (const char* number : numbers)
            table += place(objects, number);
        return objects + "xref\n" + table + "trailer\n<<\n/Size " + size + rest
               + QByteArray::number(smallPdf.size() + 1 + objects.size()) + "\n%%EOF\n";
    };
    EXPECT_EQ(update({}), closed(info + root + end, {"1", "2"}, "16"));
    const QByteArray oneMark =
        "16 0 obj\n<<\n/Type /Outlines\n/First 17 0 R\n/Last 17 0 R\n/Count 1\n>>\nendobj\n"
        "17 0 obj\n<<\n/Title <feff0050>\n/Parent 16 0 R\n/Dest [ 15 0 R /Fit]\n>>\nendobj\n";
    EXPECT_EQ(update({{u"P"_s, 1}}),
              closed(info + oneMark + root + "\n/Outlines 16 0 R\n" + end, {"1", "16", "17", "2"}, "18"));
    const QByteArray marks =
        "16 0 obj\n<<\n/Type /Outlines\n/First 17 0 R\n/Last 18 0 R\n/Count 2\n>>\nendobj\n"
        "17 0 obj\n<<\n/Title <feff0050>\n/Parent 16 0 R\n/Next 18 0 R\n/Dest [ 4 0 R /Fit]\n>>\nendobj\n"
        "18 0 obj\n<<\n/Title <feff0051>\n/Parent 16 0 R\n/Prev 17 0 R\n/Dest [ 15 0 R /Fit]\n>>\nendobj\n";
    EXPECT_EQ(update({{u"P"_s, 0}, {u"Q"_s, 1}}),
              closed(info + marks + root + "\n/Outlines 16 0 R\n/PageMode /UseOutlines\n" + end,
                     {"1", "16", "17", "18", "2"}, "19"));
}

TEST(Pdf, whatHasNoPlaceForFactsGetsNone) {
    PdfFacts facts{{}, {}, {}, {}, {{u"P"_s, 1}}};
    EXPECT_FALSE(withPdfFacts(smallPdf, facts).isNull());
    for (const char* part :
         {"/Size", "/Info", "/Root", "startxref", "/Pages 3", "/Kids", "]\n", "123", "2 0 obj"})
        EXPECT_TRUE(withPdfFacts(QByteArray(smallPdf).replace(part, "-"), facts).isNull()) << part;
    facts.bookmarks[0].page = 2;
    EXPECT_TRUE(withPdfFacts(smallPdf, facts).isNull()) << "a page that is not there";
}

TEST(Pdf, saysWhatItIsAndTurnsItsPages) {
    const QByteArray pdf = pdfOf(SampleReport(1), {Section::graph, Section::table});
    const QString info = said(u"pdfinfo"_s, pdf, {u"-l"_s, u"2"_s});
    for (const char* line : {"Title: +Blood-pressure report: Ada Byron \\(P-17\\)\n", "Author: +Dr. Moreau\n",
                             "CreationDate: +Wed Jan 15", "1 size: +842 x 595", "2 size: +595 x 842"})
        EXPECT_TRUE(info.contains(QRegularExpression(QLatin1StringView(line)))) << line << qPrintable(info);
    EXPECT_TRUE(pdf.contains("/Lang (en)"));
    SampleReport endless(1);
    endless.patient.GivenNames = u"g"_s.repeated(300);
    endless.patient.FamilyName = u"f"_s.repeated(300);
    endless.patient.ID = u"i"_s.repeated(300);
    endless.settings.physicianAddress = u"a"_s.repeated(300);
    const QString ofEndless = said(u"pdfinfo"_s, pdfOf(endless, {Section::table}));
    for (const char* line : {"report: g{200} f{200} \\(i{200}\\)\n", "Author: +a{200}\n"})
        EXPECT_TRUE(ofEndless.contains(QRegularExpression(QLatin1StringView(line)))) << qPrintable(ofEndless);
    SampleReport invented(40);
    invented.isDemonstration = true;
    const QByteArray marked = pdfOf(invented, {Section::summary, Section::graph, Section::table});
    EXPECT_TRUE(said(u"pdfinfo"_s, marked)
                    .contains(QRegularExpression(u"Title: +Demonstration: invented data – Blood"_s)));
    const QStringList pages = said(u"pdftotext"_s, marked).split(u'\f', Qt::SkipEmptyParts);
    EXPECT_EQ(pages.size(), 4);
    EXPECT_EQ(pages.filter(qtTrId("reportDemonstration")).size(), 4) << "also as text that can be searched";
    SampleReport own(1);
    own.needPhysicianInfo = false;
    const auto isFromZEL = [&] {
        static const QRegularExpression author(u"Author: +ZEL\n"_s);
        return said(u"pdfinfo"_s, pdfOf(own, {Section::table})).contains(author);
    };
    EXPECT_TRUE(isFromZEL());
    own.needPhysicianInfo = true;
    EXPECT_FALSE(isFromZEL());
    own.settings.physicianAddress = SettingModel::initWithDefault().physicianAddress;
    EXPECT_TRUE(isFromZEL()) << "placeholders are nobody";
}

TEST(Pdf, severalSectionsAreOneDocument) {
    using enum Section;
    const SampleReport sample(40);
    const QByteArray pdf = pdfOf(sample, {histogram, comment, table, SWStatistics});
    const QString outline = said(u"pdftohtml"_s, pdf, {u"-xml"_s, u"-stdout"_s, u"-i"_s});
    const QStringList expected{u"<item page=\"1\">%1</item>"_s.arg(facts(histogram).text()),
                               u"<item page=\"2\">%1</item>"_s.arg(facts(table).text()),
                               u"<item page=\"4\">%1</item>"_s.arg(facts(SWStatistics).text())};
    EXPECT_TRUE(outline.contains(expected.join(u'\n'))) << qPrintable(outline.right(500));
    EXPECT_EQ(outline.count(u"<item"_s), 3) << "none for a section without a page";
    static const QRegularExpression toTheOneBefore(u"/Prev \\d+ 0 R"_s), toTheNextOne(u"/Next \\d+ 0 R"_s);
    for (const QRegularExpression& link : {toTheOneBefore, toTheNextOne})
        EXPECT_EQ(QString::fromLatin1(pdf).count(link), 2) << qPrintable(link.pattern());
    const QStringList pages = said(u"pdftotext"_s, pdf).split(u'\f');
    ASSERT_EQ(pages.size(), 6 + 1) << "each page ends with a form feed";
    const QString empty = qtTrId("reportEmptySections").arg(facts(comment).text());
    for (int page = 1; page <= 6; ++page) {
        EXPECT_TRUE(pages[page - 1].contains(qtTrId("reportPage").arg(page).arg(6))) << page;
        EXPECT_EQ(pages[page - 1].contains(empty), page == 1) << page;
    }
}

TEST(Pdf, aReportWithoutPagesIsRefused) {
    const QTemporaryDir folder;
    const auto written = writePdf(SampleReport().view(), std::vector{Section::table, Section::comment},
                                  folder.filePath(u"report.pdf"_s));
    ASSERT_FALSE(written.has_value());
    EXPECT_EQ(written.error().code, ReportErrorCode::noData);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(Pdf, aFailedWriteLeavesWhatWasThere) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"report.pdf"_s);
    ASSERT_TRUE(replaceFile(path, "an older report"));
    const SampleReport sample(100);
    const PrintView view = sample.view();
    const std::vector which{Section::PatientProfile};
    {
        const FullDisk disk(2000);
        const auto written = writePdf(view, which, path);
        ASSERT_FALSE(written.has_value());
        EXPECT_EQ(written.error().code, ReportErrorCode::writeFailed);
        EXPECT_TRUE(describe(written.error()).contains(path));
    }
    EXPECT_EQ(readFile(path), "an older report");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    const auto nowhere = writePdf(view, which, folder.filePath(u"no/report.pdf"_s));
    ASSERT_FALSE(nowhere.has_value());
    EXPECT_EQ(nowhere.error().code, ReportErrorCode::notWritable);
}

} // namespace

} // namespace zel
