#pragma once
// An import of several files with one write for all of them.

#include "store/PatientImport.h"

#include <QString>

#include <cstddef>
#include <vector>

namespace zel {

class DataStore;

/// One file of an import.
struct ImportedFile {
    QString path;
    ImportResult result;
};

/// Reads and checks each file when it is added, and has those that are good taken together. What is added and
/// not finished is not taken, unless it was so much that a part was written before.
class FileImport {
public:
    /// What is held until it is written, in bytes of the files, which take several times as much in memory:
    /// many patients, and far less than the largest file.
    static constexpr qint64 usuallyHeld = qint64{32} << 20;
    /// \p store must outlive the import.
    explicit FileImport(DataStore& store, qint64 mostHeld = usuallyHeld) : data{store}, most{mostHeld} {}

    void add(const QString& path);
    /// Writes what has been read, and begins anew. \return how each file went, in the order of adding
    [[nodiscard]] std::vector<ImportedFile> finish();

private:
    void write();

    DataStore& data;
    qint64 most;
    std::vector<ImportedFile> added;
    std::vector<ImportSource> read;  ///< not written yet
    std::vector<std::size_t> places; ///< theirs among those added
    qint64 size = 0;                 ///< of their files, in bytes
};

} // namespace zel
