#include "chart/DocumentMemory.h"

#include "SampleReport.h"
#include "chart/Drawing.h"
#include "chart/PicturePainter.h"
#include "chart/TextWidths.h"
#include "report/ReportDocument.h"
#include "report/ReportPainter.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include <gmock/gmock.h>

#include <functional>

namespace zel {

using namespace Qt::StringLiterals;

// What the pages of a document share makes them faster, not different: not by a byte.

namespace {

QByteArray undatedPdf(const std::function<void(QPdfWriter&)>& write) {
    QBuffer buffer;
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly));
    {
        QPdfWriter writer(&buffer);
        write(writer);
    }
    QByteArray pdf = buffer.data();
    const qsizetype date = pdf.indexOf("/CreationDate");
    EXPECT_GT(date, 0);
    return pdf.remove(date, pdf.indexOf('\n', date) - date);
}

void paintOnPaper(QPainter& painter, const Picture& picture, double height, DocumentMemory* memory) {
    painter.save();
    painter.scale(painter.device()->logicalDpiX() / 72.0, painter.device()->logicalDpiY() / 72.0);
    paintPicture(painter, picture, height, memory);
    painter.restore();
}

/// Each page for itself, out of a view of its own.
QByteArray pagesAlone(const SampleReport& sample, const std::vector<Section>& which) {
    return undatedPdf([&](QPdfWriter& writer) {
        const PrintView view = sample.view();
        const ReportDocument document(view, which);
        QPainter painter;
        for (std::size_t index = 0; index < document.pages().size(); ++index) {
            const auto [section, number] = document.pages()[index];
            QPageLayout layout(view.paper(), getOrientation(section), QMarginsF());
            layout.setMode(QPageLayout::FullPageMode);
            ASSERT_TRUE(number > 1 || writer.setPageLayout(layout));
            ASSERT_TRUE(painter.isActive() ? writer.newPage() : painter.begin(&writer));
            const PrintView fresh = sample.view();
            paintOnPaper(painter, ReportDocument(fresh, which).page(index),
                         fresh.geometry(section).pageSize.height, nullptr);
        }
    });
}

TEST(DocumentMemory, aDocumentHasTheBytesThatItsPagesHaveAlone) {
    SampleReport sample(150, 5);
    sample.highFrom = {135, 85};
    sample.readings[9].sys = 1171;
    sample.readings[100].exclusion = u"Cuff over the sleeve"_s;
    for (const char* time : {"24-hours", "12-hours"}) {
        sample.settings.timeFormat = QLatin1StringView(time);
        const QByteArray together = undatedPdf(
            [&](QPdfWriter& writer) { EXPECT_TRUE(paintReport(writer, sample.view(), allSections())); });
        EXPECT_TRUE(together == pagesAlone(sample, allSections())) << time;
    }
}

/// Each text in several types and colours, as texts of a table come: again and again, mixed.
Picture manyTypes() {
    const QString texts =
        u"120|111|0|All that a head of a page says: (P-17)|2026/11/22|22.11.2026|AVAT.|fi ff| 7|7 | "
        u"||(1)-[2]|10:59 PM|a longer text|"
        u"4\u2193|ü|e\u0301|\u738B 7|\u05DB 12 a|\u05DB\u05D4|a\u0431|\t7|7\n8|7\u2028|\u200B7"_s;
    Picture picture;
    double y = 800;
    for (const QString& text : texts.split(u'|')) {
        double x = 10.3;
        for (const TextAttribute& type :
             {TextAttribute{}, TextAttribute{.bold = true}, TextAttribute{.size = 7},
              TextAttribute{.color = Qt::red}, TextAttribute{.size = 7, .bold = true}, TextAttribute{}})
            picture.emplace_back(TextLine{text, {x += 83.7, y}, type});
        y -= 21.3;
    }
    picture.emplace_back(ImageItem{u"printlogo"_s, {20, 20, 117, 54}});
    picture.emplace_back(ImageItem{u"CDRedF"_s, {200, 20, 32, 32}});
    return picture;
}

TEST(DocumentMemory, textsOfAllKindsAreWrittenAsIfForTheFirstTime) {
    const auto written = [](DocumentMemory* memory) {
        return undatedPdf([&](QPdfWriter& writer) {
            QPainter painter(&writer);
            for (int page = 0; page < 3; ++page) {
                paintOnPaper(painter, manyTypes(), 842, memory);
                writer.newPage();
            }
        });
    };
    DocumentMemory memory;
    EXPECT_TRUE(written(&memory) == written(nullptr));
}

TEST(DocumentMemory, keepsOnlyWhatComesAgain) {
    DocumentMemory memory;
    QBuffer buffer;
    ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
    QPdfWriter writer(&buffer);
    QPainter painter(&writer);
    painter.setFont(TextAttribute{}.font());
    const QGlyphRun* first = memory.glyphs(painter, u"120"_s, {});
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->glyphIndexes().size(), 3);
    EXPECT_EQ(memory.glyphs(painter, u"120"_s, {}), first) << "made once";
    int kept = 0;
    for (int number = 0; number < 10'000; ++number)
        kept += memory.glyphs(painter, QString::number(number), {}) ? 1 : 0;
    EXPECT_EQ(kept, 4000) << "and no more";
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    QPainter onScreen(&image);
    EXPECT_EQ(memory.glyphs(onScreen, u"120"_s, {}), nullptr) << "which has hints of its own";
}

TEST(TextWidths, areThoseOfEachTypeHoweverOftenAskedFor) {
    TextWidths widths;
    for (int round = 0; round < 2; ++round)
        for (const char* text : {"120", "Pulse"})
            for (const TextAttribute& type :
                 {TextAttribute{}, TextAttribute{.bold = true}, TextAttribute{.size = 7}})
                EXPECT_EQ(widths.of(QLatin1StringView(text), type),
                          textSize(QLatin1StringView(text), type).width)
                    << text << type.size << type.bold << round;
}

} // namespace

} // namespace zel
