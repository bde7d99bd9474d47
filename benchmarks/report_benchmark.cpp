// The table section of 10,000 readings as a PDF, beside writing the same texts once into a bare PDF. And what
// a page turn in the preview costs.

#include "report/ReportPainter.h"
#include "report/ReportPdf.h"
#include "report/TextApplication.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTranslator>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

using namespace zel;

constexpr int readings = 10'000;
constexpr std::array table{Section::table};

struct Report {
    PatientModel patient;
    SettingModel settings = SettingModel::initWithDefault();
    ReadingList list;
    CommentList comments;
    DataLogList downloads;
    LocalZone zone;

    Report() {
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

double seconds(auto&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

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

/// At most 2 s, and 4 times the bare texts, which have no lines, marks or other fonts between them.
void tableAsPdf(benchmark::State& state) {
    const Report report;
    const auto texts = textsOf(report.view());
    std::vector<double> ratios;
    double slowest = 0;
    qsizetype bytes = 0;
    for ([[maybe_unused]] auto turn : state) {
        const double own = seconds([&] {
            const auto pdf = makePdf(report.view(), table);
            if (!pdf) std::abort();
            bytes = pdf->size();
        });
        ratios.push_back(own / seconds([&] { writeBare(texts); }));
        slowest = std::max(slowest, own);
    }
    std::ranges::sort(ratios);
    state.counters["RATIO"] = ratios[ratios.size() / 2];
    state.counters["slowest_s"] = slowest;
    state.counters["pages"] = static_cast<double>(texts.size());
    state.counters["BYTES_PER_READING"] = static_cast<double>(bytes) / readings;
}

/// At most 50 ms for each section.
void previewPage(benchmark::State& state) {
    const Report report;
    const PrintView view = report.view();
    const auto section = static_cast<Section>(state.range(0));
    state.SetLabel(facts(section).key);
    QImage image(700, 500, QImage::Format_ARGB32_Premultiplied);
    for ([[maybe_unused]] auto turn : state) {
        QPainter painter(&image);
        paintPreview(painter, image.rect(), view, section, view.getTotalPages(section));
    }
}

BENCHMARK(tableAsPdf)->Unit(benchmark::kMillisecond)->Iterations(7);
BENCHMARK(previewPage)->Unit(benchmark::kMillisecond)->DenseRange(0, 6);

} // namespace

int main(int argc, char** argv) {
    const auto application = zel::makeTextApplication(argc, argv);
    QTranslator texts;
    if (!texts.load(QStringLiteral(":/zel_en.qm"))) return 1;
    QCoreApplication::installTranslator(&texts);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
