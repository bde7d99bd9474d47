// Tables of readings out of the data file and into it.

#include "store/AtomicFile.h"
#include "store/DataStore.h"
#include "store/ReadingTable.h"

#include <QFileInfo>

namespace zel {

StoreResult DataStore::exportTable(const QString& path, const QStringList& IDs, Replace replace) const {
    QByteArray table = tableHeader();
    for (const QString& ID : IDs) {
        const PatientModel* patient = getPatientByID(ID);
        if (!patient) return tl::unexpected{StoreError{StoreErrorCode::noSuchRecord, ID, {}}};
        table += tableLines(*patient, records.readingsOf(ID));
    }
    return writeExport(path, table, replace, file.getZELXMLPath());
}

tl::expected<ImportCounts, ImportRefusal> DataStore::importTable(const QString& path,
                                                                 const TableImport& wanted) {
    const auto content = readFile(path);
    if (!content) {
        const bool isTooLarge = content.error().code == StoreErrorCode::tooLarge;
        return tl::unexpected{
            ImportRefusal{isTooLarge ? ImportRefusalCode::tooLarge : ImportRefusalCode::notReadable,
                          path,
                          {},
                          content.error().detail}};
    }
    auto table = readReadingTable(*content, path, wanted, std::chrono::floor<Instant::duration>(clock.now()));
    if (!table) return tl::unexpected{table.error()};
    ImportCounts counts;
    std::optional<ImportRefusal> refusal;
    const QString first = table->patients.front().ID;
    // Compared and numbered against the file as it is at the write: another program may have changed it.
    const StoreResult stored = editAsStep([&](pugi::xml_node root, StepRecorder& recorder) {
        refusal = mergeTable(root, *table, path, wanted, recorder, counts);
        recorder.setName({.kind = StepKind::importPatients,
                          .subject = QFileInfo{path}.fileName(),
                          .patientID = first,
                          .commentID = {}});
        const bool isAnything = counts.patients + counts.readings + counts.comments > 0;
        return isAnything ? DataFile::Edit::changed : DataFile::Edit::unchanged;
    });
    if (!stored) return tl::unexpected{refusalOf(stored.error(), path)};
    if (refusal) return tl::unexpected{*refusal};
    return counts;
}

} // namespace zel
