// The table section of 10,000 readings as a PDF, beside writing the same texts once into a bare PDF. And what
// a page turn in the preview costs.

#include "Figure.h"
#include "report/ReportPainter.h"
#include "report/ReportPdf.h"
#include "report/TextApplication.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

using namespace zel;

constexpr std::array table{Section::table};

struct Report {
    PatientModel patient;
    SettingModel settings = SettingModel::initWithDefault();
    ReadingList list;
    CommentList comments;
    DataLogList downloads;
    LocalZone zone;

    explicit Report(std::uint32_t readings) {
        patient.ID = QStringLiteral("P1");
        const Instant first{std::chrono::sys_days{std::chrono::year{2010} / 1 / 1}};
        for (std::uint32_t number = 0; number < readings; ++number) {
            ReadingModel reading;
            reading.ReadingDate = first + std::chrono::hours{11 * static_cast<int>(number)};
            reading.sys = 110 + number % 60;
            reading.dia = 60 + number % 40;
            reading.pulse = 50 + number % 50;
            reading.Arrhythmia = 4;
            reading.postInit(list.empty() ? nullptr : &list.back(), settings, zone);
            list.push_back(reading);
        }
    }
    [[nodiscard]] PrintView view() const {
        const ReadingSelection all{{*list.front().ReadingDate, *list.back().ReadingDate},
                                   ViewSelection::viewAll};
        return {{.patient = patient,
                 .readings = list,
                 .comments = comments,
                 .downloads = downloads,
                 .settings = settings,
                 .selection = all,
                 .rows = assembleReadingRows({list, comments, downloads, all}, zone),
                 .now = *list.back().ReadingDate},
                QPageSize(QPageSize::A4)};
    }
};

std::vector<std::vector<TextLine>> textsOf(const PrintView& view) {
    std::vector<std::vector<TextLine>> pages;
    for (int number = 1; number <= view.getTotalPages(Section::table); ++number) {
        auto& page = pages.emplace_back();
        for (const PictureItem& item : view.page(Section::table, number))
            if (const auto* line = std::get_if<TextLine>(&item)) page.push_back(*line);
    }
    return pages;
}

void writeBare(const std::vector<std::vector<TextLine>>& pages) {
    QBuffer buffer;
    if (!buffer.open(QIODevice::WriteOnly)) std::abort();
    QPdfWriter writer(&buffer);
    writer.setResolution(72);
    QPainter painter(&writer);
    painter.setFont(TextAttribute{}.font());
    for (const auto& page : pages) {
        for (const TextLine& line : page)
            painter.drawText(QPointF(line.origin.x, 842 - line.origin.y), line.text);
        writer.newPage();
    }
}

/// The bare texts have no lines, marks or other fonts between them.
void tableAsPdf(const Report& report) {
    const auto texts = textsOf(report.view());
    constexpr int rounds = 7;
    const auto [ours, bare, ratio] = inTurn(
        rounds,
        [&] {
            if (!makePdf(report.view(), table)) std::abort();
        },
        [&] { writeBare(texts); }, processorSeconds);
    print({.what = "Table of " + std::to_string(report.list.size()) + " readings as PDF",
           .unit = "ms",
           .ours = 1000 * ours,
           .against = "the same texts drawn bare",
           .bare = 1000 * bare,
           .target = 2,
           .ratio = ratio});
}

/// The slowest of some turns to the last page.
void previewPage(const Report& report, Section section) {
    const PrintView view = report.view();
    QImage image(700, 500, QImage::Format_ARGB32_Premultiplied);
    double slowest = 0;
    for (int turn = 0; turn < 7; ++turn)
        slowest =
            std::max(slowest, seconds([&] {
                         QPainter painter(&image);
                         paintPreview(painter, image.rect(), view, section, view.getTotalPages(section));
                     }));
    print({.what = std::string("Page in the preview: ") + facts(section).key,
           .unit = "ms",
           .ours = 1000 * slowest,
           .against = {},
           .target = 50});
}

} // namespace

int main(int argc, char** argv) {
    const auto application = zel::makeTextApplication(argc, argv);
    QTranslator texts;
    if (!texts.load(QStringLiteral(":/zel_en.qm"))) return 1;
    QCoreApplication::installTranslator(&texts);
    const Report report(isSmall(argc, argv) ? 300 : 10'000);
    tableAsPdf(report);
    for (const SectionFacts& each : sections())
        if (each.section != Section::comment) previewPage(report, each.section);
    return 0;
}
