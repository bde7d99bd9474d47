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
    return error.code == StoreErrorCode::notReadable || error.code == StoreErrorCode::notParsed;
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

tl::expected<ImportCounts, ImportRefusal> DataStore::importXml(const QString& path) {
    auto imported = readImport(path);
    if (!imported) return tl::unexpected{imported.error()};
    if (const auto fault = importFault(imported->root(), path)) return tl::unexpected{*fault};
    ImportCounts counts;
    QString known;
    // Checked against the file as it is at the write: another program may have added the patient.
    const StoreResult stored = editAsStep([&](pugi::xml_node root, StepRecorder& recorder) {
        known = knownPatient(root, imported->root());
        if (!known.isNull()) return DataFile::Edit::unchanged;
        counts = importRecords(root, imported->root(), recorder);
        recorder.setName({.kind = StepKind::importPatients,
                          .subject = QFileInfo{path}.fileName(),
                          .patientID = childText(firstElement(imported->root(), "Patient"), "ID"),
                          .commentID = {}});
        *imported = {}; // a large file would stand in memory twice
        return DataFile::Edit::changed;
    });
    if (!stored) {
        if (isReadingError(stored.error())) qCWarning(lcStore, "import  create xml doc failed");
        return tl::unexpected{refusalOf(stored.error(), path)};
    }
    if (!known.isNull())
        return tl::unexpected{ImportRefusal{ImportRefusalCode::alreadyKnown, path, known, {}}};
    return counts;
}

} // namespace zel
