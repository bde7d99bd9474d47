// Patients into the data file and out of it, a file for each.

#include "BenchHome.h"
#include "Figure.h"
#include "MadeDataFile.h"
#include "store/AtomicFile.h"
#include "store/FileImport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <pugixml.hpp>

#include <utility>
#include <vector>

namespace {

using namespace zel;
using namespace Qt::StringLiterals;

struct BareWriter final : pugi::xml_writer {
    QByteArray bytes;
    void write(const void* data, std::size_t size) override {
        bytes.append(static_cast<const char*>(data), static_cast<qsizetype>(size));
    }
};

void exportAll(const DataStore& store, const QString& folder) {
    const auto all = store.beginExport();
    require(all.has_value(), "nothing could be exported");
    for (const QString& ID : all->patients())
        require(all->writeXml(ID, folder, Replace::yes).has_value(), "not exported");
    require(all->finish().has_value(), "the folder could not be flushed");
}

QStringList filesIn(const QString& folder) {
    QStringList paths;
    for (const QString& name : QDir{folder}.entryList({u"*.xml"_s}, QDir::Files))
        paths += folder + u'/' + name;
    return paths;
}

/// Into a data file that has as much again, in others' names. Both flush one file, and the waits for the disk
/// are in neither figure.
void measureImport(int patients, int readingsEach, int rounds) {
    QTemporaryDir exported;
    const BenchHome source{makeDataFile(patients, patients * readingsEach)};
    exportAll(source.store, exported.path());
    const QStringList files = filesIn(exported.path());
    require(files.size() == patients, "not all were exported");
    QByteArray before = makeDataFile(patients, patients * readingsEach);
    before.replace(">P0", ">Q0");
    BenchHome home{before};
    require(home.store.loadXML().has_value(), "the data file could not be loaded");
    const QString copy = home.path + u".copy"_s;
    std::vector<double> own, other, ratios;
    for (int round = 0; round < rounds; ++round) {
        require(replaceFile(home.path, before).has_value(), "not written");
        own.push_back(processorSeconds([&] {
            FileImport together{home.store};
            for (const QString& file : files)
                together.add(file);
            for (const ImportedFile& file : together.finish())
                require(file.result.has_value(), "not imported");
        }));
        pugi::xml_document all;
        all.load_file(home.name().c_str());
        other.push_back(processorSeconds([&] {
            for (const QString& file : files) {
                pugi::xml_document one;
                one.load_file(QFile::encodeName(file).constData());
            }
            BareWriter writer;
            all.save(writer, "    ");
            require(replaceFile(copy, writer.bytes).has_value(), "not written");
        }));
        ratios.push_back(own.back() / other.back());
    }
    print({.what = "Import of " + std::to_string(patients) + " one-patient files",
           .unit = "ms",
           .ours = median(own) * 1e3,
           .against = "pugixml parses them, and one save",
           .bare = median(other) * 1e3,
           .target = 3,
           .ratio = median(ratios)});
}

void measureExport(int patients, int readings, int rounds) {
    const BenchHome home{makeDataFile(patients, readings)};
    QTemporaryDir folder;
    const std::string copy = home.name() + ".copy";
    exportAll(home.store, folder.path());
    std::vector<std::pair<QString, QByteArray>> files;
    for (const QString& path : filesIn(folder.path()))
        files.emplace_back(path, readFile(path).value_or(QByteArray{}));
    const Pair pair = inTurn(
        rounds, [&] { exportAll(home.store, folder.path()); },
        [&] {
            pugi::xml_document document;
            document.load_file(home.name().c_str());
            document.save_file(copy.c_str(), "    ");
            for (const auto& [path, content] : files) {
                QFile file{path};
                require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "full");
            }
        });
    print({.what = "Export of " + std::to_string(patients) + " patients, a file each",
           .unit = "ms",
           .ours = pair.ours * 1e3,
           .against = "parse and save, the same files unflushed",
           .bare = pair.bare * 1e3,
           .target = 3,
           .ratio = pair.ratio});
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application{argc, argv};
    const bool small = isSmall(argc, argv);
    measureImport(small ? 10 : 300, small ? 10 : 100, small ? 1 : 9);
    measureExport(small ? 10 : 200, small ? 1'000 : 100'000, small ? 1 : 5);
}
