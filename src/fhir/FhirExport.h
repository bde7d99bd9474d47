#pragma once

#include "analysis/MeasuringWeek.h"
#include "store/DataStore.h"
#include "store/WrittenNames.h"

#include <QString>

namespace zel::fhir {

/// ID.fhir.json, as exportFileName() has it.
inline constexpr QStringView fileExtension{u".fhir.json"};

/// An export of patients to one file each in a folder, of the records that the store has read.
class FhirExport {
public:
    /// \p store must outlive the export. \p rule: of the average
    FhirExport(const DataStore& store, QString folder, AverageRule rule);

    /// Writes the patient's bundle at exportPath() in the folder, with fileExtension. Never replaces a file
    /// of this export. \return noSuchRecord for an ID that is not in the list; see PatientExport::writeXml()
    /// for others
    [[nodiscard]] StoreResult write(const QString& ID, Replace replace);
    /// Waits until all that was written is on the disk.
    [[nodiscard]] StoreResult finish();

private:
    const DataStore& store;
    QString folder;
    AverageRule rule;
    WrittenNames names;
    bool isWritten = false;
};

} // namespace zel::fhir
