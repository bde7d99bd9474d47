// Patients out of the data file and into it.

#include "store/DataStore.h"
#include "store/Log.h"
#include "store/RecordXml.h"

#include <QFileInfo>

#include <algorithm>
#include <vector>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// As the list has them: by date, those of one instant in the file's order, but undated ones at the marker's
/// date, the last stored before the others.
std::vector<const ReadingModel*> inOrderOfTime(const ReadingList& readings) {
    std::vector<const ReadingModel*> sorted;
    sorted.reserve(readings.size());
    for (const ReadingModel& reading : readings)
        sorted.push_back(&reading);
    const auto dated = std::stable_partition(
        sorted.begin(), sorted.end(), [](const ReadingModel* reading) { return reading->isUndated(); });
    std::reverse(sorted.begin(), dated);
    const Instant marker = getNilReadingDate();
    std::ranges::stable_sort(
        sorted, {}, [marker](const ReadingModel* reading) { return reading->ReadingDate.value_or(marker); });
    return sorted;
}

QString csvText(const PatientModel& patient, const ReadingList& readings, const SettingModel& settings,
                const QString& target) {
    QString text = u'\n' + patient.exportCSV(settings) + u'\n';
    text += u"date,time,sys(mmHg),dia(mmHg),pulse(P/min),map,mam,%1,\n"_s.arg(target);
    for (const ReadingModel* reading : inOrderOfTime(readings))
        text += reading->exportCSV(settings);
    return text + u'\n';
}

/// The data file itself is at fault, not a record in it.
bool isReadingError(const StoreError& error) {
    using enum StoreErrorCode;
    return error.code == notReadable || error.code == readFailed || error.code == notParsed;
}

QStringList pathsOf(const std::vector<ImportSource>& files) {
    QStringList paths;
    paths.reserve(static_cast<qsizetype>(files.size()));
    for (const ImportSource& file : files)
        paths += file.path;
    return paths;
}

tl::unexpected<ImportRefusal> alreadyKnown(const QString& path, const QString& ID) {
    return tl::unexpected{ImportRefusal{ImportRefusalCode::alreadyKnown, path, ID, {}}};
}

/// Into the document, as a step of its own.
ImportResult takeSource(const ImportSource& file, ImportTarget& target, std::vector<ChangeStep>& steps) {
    const pugi::xml_node imported = file.document.root();
    if (const QString known = target.knownPatient(imported); !known.isNull())
        return alreadyKnown(file.path, known);
    StepRecorder recorder;
    const ImportCounts counts = target.take(imported, recorder);
    recorder.setName({.kind = StepKind::importPatients,
                      .subject = QFileInfo{file.path}.fileName(),
                      .patientID = childText(firstElement(imported, "Patient"), "ID"),
                      .commentID = {}});
    steps.push_back(recorder.step());
    return counts;
}

/// None is stored. One that only another of them stood in the way of is refused as that other is. \p before:
/// a patient of each that was there before; null text for none, and nothing where that was not looked for.
std::vector<ImportResult> asRefused(const QStringList& paths, const QStringList& before,
                                    const StoreError& error) {
    std::vector<ImportResult> results;
    results.reserve(static_cast<std::size_t>(paths.size()));
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const QString known = before.value(i);
        results.emplace_back(known.isNull() ? tl::unexpected{refusalOf(error, paths.at(i))}
                                            : alreadyKnown(paths.at(i), known));
    }
    return results;
}

/// All are stored that were not refused.
std::vector<ImportResult> asUnflushed(std::vector<ImportResult> results, const QStringList& paths,
                                      const StoreError& error) {
    for (std::size_t i = 0; i < results.size(); ++i)
        if (results[i]) results[i] = tl::unexpected{refusalOf(error, paths.at(static_cast<qsizetype>(i)))};
    return results;
}

} // namespace

tl::expected<PatientExport, StoreError> DataStore::beginExport() const {
    auto document = file.read();
    if (!document) {
        qCWarning(lcStore, "_export  create xml doc failed");
        return tl::unexpected{document.error()};
    }
    return PatientExport{std::move(*document), file.getZELXMLPath(), file.isDemonstration()};
}

StoreResult DataStore::exportCSV(const QString& folder, const QString& ID, Replace replace) const {
    const PatientModel* patient = getPatientByID(ID);
    if (!patient) return tl::unexpected{StoreError{StoreErrorCode::noSuchRecord, ID, {}}};
    const QString text =
        csvText(*patient, records.readingsOf(ID), records.gSettingModel, file.getTargetString());
    const QString path = exportPath(folder, ID, u".csv"_s, file.isDemonstration());
    return writeExport(path, text.toUtf8(), replace, file.getZELXMLPath()).and_then([&folder] {
        return flushExports(folder);
    });
}

ImportResult DataStore::importXml(const QString& path) {
    auto read = readImportSource(path);
    if (!read) return tl::unexpected{read.error()};
    std::vector<ImportSource> files;
    files.push_back(std::move(*read));
    return importXml(std::move(files)).front();
}

std::vector<ImportResult> DataStore::importXml(std::vector<ImportSource> files) {
    const QStringList paths = pathsOf(files);
    std::vector<ImportResult> results;
    QStringList before;
    std::vector<ChangeStep> steps;
    // Checked against the file as it is at the write: another program may have added a patient.
    const StoreResult stored = edit([&](pugi::xml_node root) {
        ImportTarget target{root};
        for (ImportSource& file : files) {
            results.push_back(takeSource(file, target, steps));
            before += results.back() ? QString{} : target.patientThereBefore(file.document.root());
            file.document = {}; // a large file would stand in memory twice
        }
        return steps.empty() ? DataFile::Edit::unchanged : DataFile::Edit::changed;
    });
    if (isInPlace(stored)) addSteps(std::move(steps));
    if (stored) return results;
    if (isInPlace(stored)) return asUnflushed(std::move(results), paths, stored.error());
    if (isReadingError(stored.error())) qCWarning(lcStore, "import  create xml doc failed");
    // One of them may be what the data file cannot hold beside the rest.
    if (stored.error().code == StoreErrorCode::unreadable && paths.size() > 1) return importEach(paths);
    return asRefused(paths, before, stored.error());
}

std::vector<ImportResult> DataStore::importEach(const QStringList& paths) {
    std::vector<ImportResult> results;
    results.reserve(static_cast<std::size_t>(paths.size()));
    for (const QString& path : paths)
        results.push_back(importXml(path));
    return results;
}

void DataStore::addSteps(std::vector<ChangeStep> steps) {
    bool isAny = false;
    for (ChangeStep& step : steps)
        isAny = history.add(std::move(step)) || isAny;
    if (isAny) emit historyChanged();
}

} // namespace zel
