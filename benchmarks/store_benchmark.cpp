// The data store on a file of 100,000 readings and 200 patients, beside the XML parser alone on the same
// file.

#include "MadeDataFile.h"
#include "store/AtomicFile.h"
#include "store/DataStore.h"
#include "store/XmlDocument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <malloc.h>

namespace {

using namespace zel;

constexpr int patients = 200;
constexpr int readings = 100'000;

/// A home folder whose data file is the made one.
struct Home {
    QTemporaryDir folder;
    SystemClock clock;
    DataStore store{{folder.path(), folder.path(), folder.path()}, clock};
    std::string path = store.getZELXMLPath().toStdString();

    Home() {
        QDir{}.mkpath(QFileInfo{store.getZELXMLPath()}.path());
        if (!replaceFile(store.getZELXMLPath(), makeDataFile(patients, readings))) std::abort();
    }
};

double seconds(auto&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The median of the ratios of runs in pairs, so that a drift of the machine's speed cancels out.
void reportRatio(benchmark::State& state, auto&& ours, auto&& bare) {
    std::vector<double> ratios;
    double oursTotal = 0;
    double bareTotal = 0;
    for ([[maybe_unused]] auto turn : state) {
        const double own = seconds(ours);
        const double parser = seconds(bare);
        oursTotal += own;
        bareTotal += parser;
        ratios.push_back(own / parser);
    }
    std::ranges::sort(ratios);
    const auto turns = static_cast<double>(ratios.size());
    state.counters["ours_ms"] = oursTotal / turns * 1000;
    state.counters["bare_ms"] = bareTotal / turns * 1000;
    state.counters["RATIO"] = ratios[ratios.size() / 2];
}

/// At most 3.
void loadXML(benchmark::State& state) {
    Home home;
    reportRatio(
        state, [&] { std::ignore = home.store.loadXML(); },
        [&] {
            pugi::xml_document document;
            document.load_file(home.path.c_str());
        });
}

/// At most 2: reading the file, changing one comment and writing it back, without the flush to the disk.
void changeComment(benchmark::State& state) {
    Home home;
    const std::string copy = home.path + ".copy";
    reportRatio(
        state,
        [&] {
            auto content = readFile(home.store.getZELXMLPath());
            auto document = XmlDocument::parse(std::move(*content));
            const pugi::xml_node element = document->root().child("Comment");
            CommentModel comment = CommentModel::initWithXMLNode(element, LocalZone{});
            comment.comment += QStringLiteral("!");
            comment.updateXMLNode(element);
            QFile file{QString::fromStdString(copy)};
            if (!file.open(QIODevice::WriteOnly)) std::abort();
            file.write(*document->serialise());
        },
        [&] {
            pugi::xml_document document;
            document.load_file(home.path.c_str());
            document.save_file(copy.c_str(), "    ");
        });
}

/// At most 3: one file for each patient, all on the disk at the end, beside reading and writing the data file
/// once and writing the same files plainly.
void exportAll(benchmark::State& state) {
    Home home;
    const QString folder = home.folder.path();
    const std::string copy = home.path + ".copy";
    const auto exportTo = [&home](const QString& place) {
        const auto all = home.store.beginExport();
        if (!all || all->patients().size() != patients) std::abort();
        for (const QString& ID : all->patients())
            if (!all->writeXml(ID, place, Replace::yes)) std::abort();
        if (!all->finish()) std::abort();
    };
    exportTo(folder);
    std::vector<std::pair<QString, QByteArray>> files;
    for (const QString& name : QDir{folder}.entryList({QStringLiteral("*.xml")}, QDir::Files))
        files.emplace_back(folder + u'/' + name, *readFile(folder + u'/' + name));
    reportRatio(
        state, [&] { exportTo(folder); },
        [&] {
            pugi::xml_document document;
            document.load_file(home.path.c_str());
            document.save_file(copy.c_str(), "    ");
            for (const auto& [path, content] : files) {
                QFile file{path};
                if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) std::abort();
            }
        });
}

/// At most 256 bytes.
void keptPerReading(benchmark::State& state) {
    Home home;
    std::size_t kept = 0;
    for ([[maybe_unused]] auto turn : state) {
        const auto before = mallinfo2();
        std::ignore = home.store.loadXML();
        const auto after = mallinfo2();
        kept = after.uordblks + after.hblkhd - before.uordblks - before.hblkhd;
    }
    state.counters["BYTES_PER_READING"] = static_cast<double>(kept) / readings;
}

BENCHMARK(keptPerReading)->Iterations(1);
BENCHMARK(loadXML)->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK(changeComment)->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK(exportAll)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

BENCHMARK_MAIN();
