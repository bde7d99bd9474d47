#pragma once
// Patients from an exported file into the data file.

#include "store/AtomicFile.h"
#include "store/Records.h"
#include "store/StepRecorder.h"
#include "store/StoreError.h"
#include "store/XmlDocument.h"

#include <QSet>
#include <QString>

#include <tl/expected.hpp>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zel {

enum class ImportRefusalCode {
    notReadable,  ///< the file cannot be read, or is no XML of this program; detail says why
    tooLarge,     ///< above largestImport
    noPatient,    ///< there is no patient in it
    noID,         ///< a patient in it has no ID
    badID,        ///< an ID in it has a control character, with which it could never be saved or sent
    sameIDTwice,  ///< two patients in it have the same ID
    alreadyKnown, ///< a patient of the list has the ID
    notStored,    ///< the data file could not be read or written; detail says why
    notFlushed,   ///< all of it was taken, but may be gone after a power cut
    // Of a table of readings:
    badLines,      ///< lines that cannot be taken; detail says which and why
    noReading,     ///< there is none in it
    tooManyLines,  ///< above mostTableReadings
    missingColumn, ///< the column, the ID, is missing or there twice
    noSuchPatient, ///< the patient whose readings are to be added to is not in the list
    otherNames,    ///< the patient with that ID has other names in the list
};

/// Why a file was not imported. Nothing of it was taken, but for notFlushed.
struct ImportRefusal {
    ImportRefusalCode code;
    QString path;   ///< the file
    QString ID;     ///< the patient's, for badID, sameIDTwice, alreadyKnown, noSuchPatient and otherNames
    QString detail; ///< words for the user; may be empty

    bool operator==(const ImportRefusal&) const = default;
};

/// The refusal in plain words for the user, from the translation table; names the file.
[[nodiscard]] QString describe(const ImportRefusal& refusal);

/// How much of each kind was taken.
struct ImportCounts {
    std::size_t patients = 0;
    std::size_t readings = 0;
    std::size_t comments = 0;
    std::size_t known = 0; ///< readings of a table that are there already, and were not taken again
    /// Typed readings of the list that count nowhere from now on: a table has the same ones from a monitor.
    std::size_t leftOut = 0;
};

/// How the import of one file went.
using ImportResult = tl::expected<ImportCounts, ImportRefusal>;

/// The largest file that is read, in bytes.
inline constexpr qint64 largestImport = largestFile;

/// Why nothing was imported when the data file could not be changed; notFlushed if all of it was.
[[nodiscard]] ImportRefusal refusalOf(const StoreError& error, const QString& path);

// The steps of DataStore::importXml().

/// The file, without the blanks around IDs.
[[nodiscard]] tl::expected<XmlDocument, ImportRefusal> readImport(const QString& path);

/// What is wrong with the patients of the document read from \p path, if anything.
[[nodiscard]] std::optional<ImportRefusal> importFault(pugi::xml_node imported, const QString& path);

/// A file that may be imported, but for what is in the data file.
struct ImportSource {
    QString path;
    XmlDocument document;
};

/// Reads it, and looks for faults.
[[nodiscard]] tl::expected<ImportSource, ImportRefusal> readImportSource(const QString& path);

/// Of the \p imported records of all kinds that belong to a patient.
[[nodiscard]] QSet<QString> recordIDs(pugi::xml_node imported);

/// The data file's document while files are imported into it. It is gone through once for all of them.
class ImportTarget {
public:
    explicit ImportTarget(pugi::xml_node data);
    /// An ID of the \p imported records, also of readings and comments without their patient, that a patient
    /// in the data file has by now; null if there is none.
    [[nodiscard]] QString knownPatient(pugi::xml_node imported) const;
    /// The same without the patients that were taken meanwhile.
    [[nodiscard]] QString patientThereBefore(pugi::xml_node imported) const;
    /// Copies patients, comments and readings, each kind after the last of its kind. They stay as they are,
    /// but that a comment whose number is taken gets a new one, since comments are found by their numbers.
    ImportCounts take(pugi::xml_node imported, StepRecorder& recorder);

private:
    std::vector<pugi::xml_node> copyAll(const char* kind, pugi::xml_node imported, StepRecorder& recorder);
    void renumber(const std::vector<pugi::xml_node>& comments);

    pugi::xml_node root;
    QSet<QString> patients; ///< that were there
    QSet<QString> taken;    ///< patients, too
    QSet<QString> commentNumbers;
    Records counters;                             ///< of the numbers alone
    std::map<std::string, pugi::xml_node> lastOf; ///< by the kind of element
};

} // namespace zel
