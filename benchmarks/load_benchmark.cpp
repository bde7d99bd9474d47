// Loading a data file beside the XML parser alone, what is kept of it in memory, and the most that a program
// takes meanwhile.

#include "BenchHome.h"
#include "Figure.h"
#include "MadeDataFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>

#include <pugixml.hpp>

#include <algorithm>
#include <cstdio>
#include <malloc.h>

namespace {

using namespace zel;
using namespace Qt::StringLiterals;

/// As many readings as somebody has who measures twice a day for most of a year.
constexpr int readingsEach = 500;

std::string counted(int readings) { return QLocale{QLocale::English}.toString(readings).toStdString(); }

std::string sizeOf(const BenchHome& home) {
    return QString::number(static_cast<double>(QFileInfo{home.path}.size()) / 1e6, 'f', 0).toStdString()
           + " MB";
}

/// \return a load of the file beside the bare parse, in seconds
Pair measureLoad(int readings, int rounds) {
    BenchHome home{makeDataFile(std::max(1, readings / readingsEach), readings)};
    return inTurn(
        rounds, [&] { require(home.store.loadXML().has_value(), "the data file could not be loaded"); },
        [&] {
            pugi::xml_document document;
            document.load_file(home.name().c_str());
        },
        processorSeconds);
}

/// Of all that is allocated, so that what the file's size has to do with it shows, and no page of a library.
double bytesKept(BenchHome& home, int readings) {
    const auto before = mallinfo2();
    require(home.store.loadXML().has_value(), "the data file could not be loaded");
    const auto after = mallinfo2();
    const std::size_t kept = after.uordblks + after.hblkhd - before.uordblks - before.hblkhd;
    return static_cast<double>(kept) / readings;
}

/// The most memory that this process has had since its start, in bytes.
double peakOfThis() {
    QFile status{u"/proc/self/status"_s};
    require(status.open(QIODevice::ReadOnly), "/proc is not there");
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:")) return line.simplified().split(' ').at(1).toDouble() * 1024;
    return 0;
}

/// Of a process of its own, that does nothing but load the file of that home.
double peakOfLoad(const BenchHome& home) {
    QProcess other;
    other.start(QCoreApplication::applicationFilePath(), {u"--load"_s, home.folder.path()});
    require(other.waitForFinished(-1) && other.exitCode() == 0, "the other process failed");
    return other.readAllStandardOutput().trimmed().toDouble();
}

int loadOnce(const QString& folder) {
    SystemClock clock;
    DataStore store{{folder, folder, folder}, clock};
    require(store.loadXML().has_value(), "the data file could not be loaded");
    std::printf("%.0f\n", peakOfThis());
    return 0;
}

void printTimes(int few, int many, int rounds) {
    const Pair small = measureLoad(few, rounds);
    const Pair large = measureLoad(many, std::max(3, rounds / 5));
    const auto row = [](int readings, const Pair& pair) {
        print({.what = "Load of " + counted(readings) + " readings",
               .unit = "ms",
               .ours = pair.ours * 1e3,
               .against = "pugixml parses the file",
               .bare = pair.bare * 1e3,
               .target = 2,
               .ratio = pair.ratio});
    };
    row(few, small);
    row(many, large);
    print({.what = "Load, time for each of " + counted(many) + " readings",
           .unit = "µs",
           .ours = large.ours / many * 1e6,
           .against = "for each of " + counted(few),
           .bare = small.ours / few * 1e6,
           .target = 1.2});
}

void printMemory(int readings) {
    BenchHome home{makeDataFile(std::max(1, readings / readingsEach), readings)};
    print({.what = "Memory kept of " + counted(readings) + " readings, for each",
           .unit = "bytes",
           .ours = bytesKept(home, readings),
           .against = {},
           .target = 170});
    print({.what = "Peak of a load of " + sizeOf(home) + ", whole process",
           .unit = "MB",
           .ours = peakOfLoad(home) / 1e6,
           .against = "size of the file",
           .bare = static_cast<double>(QFileInfo{home.path}.size()) / 1e6,
           .target = 5});
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application{argc, argv};
    const QStringList words = QCoreApplication::arguments();
    if (words.size() == 3 && words.at(1) == "--load"_L1) return loadOnce(words.at(2));
    const bool small = isSmall(argc, argv);
    printMemory(small ? 2'000 : 100'000);
    if (!small) printMemory(1'000'000);
    printTimes(small ? 1'000 : 100'000, small ? 2'000 : 1'000'000, small ? 3 : 15);
}
