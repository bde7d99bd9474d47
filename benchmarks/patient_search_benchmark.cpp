// A key stroke in the search field over 2,000 patients, until the narrowed list has been painted.

#include "MadeDataFile.h"
#include "app/patients/PatientRoster.h"
#include "store/AtomicFile.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>

namespace {

using namespace zel;

/// The typical one: at most 16 ms, a frame of the screen.
void keyStroke(benchmark::State& state) {
    QTemporaryDir home;
    SystemClock clock;
    DataStore store{{home.path(), home.path(), home.path()}, clock};
    QDir{}.mkpath(QFileInfo{store.getZELXMLPath()}.path());
    if (!replaceFile(store.getZELXMLPath(), makeDataFile(2000, 0)) || !store.loadXML()) std::abort();
    PatientRoster roster{store};
    roster.reload(false);
    roster.select(store.getPatientArray().front().ID);
    roster.show();
    QCoreApplication::processEvents();
    auto& field = *roster.findChild<QLineEdit*>();
    std::vector<double> taken;
    for ([[maybe_unused]] auto turn : state) {
        for (const char* typed : {"1", "19", "199", "1999", "199", "19", "1", "x", ""}) {
            const auto start = std::chrono::steady_clock::now();
            field.setText(QLatin1String{typed});
            QCoreApplication::processEvents();
            const auto end = std::chrono::steady_clock::now();
            taken.push_back(std::chrono::duration<double, std::milli>(end - start).count());
        }
    }
    std::ranges::sort(taken);
    state.counters["median_ms"] = taken[taken.size() / 2];
}

BENCHMARK(keyStroke)->Unit(benchmark::kMillisecond)->Iterations(15);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application{argc, argv};
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
