#pragma once

#include "store/PatientImport.h"

#include <QSet>
#include <QStringList>

#include <cstdint>

namespace zel {

/// A file as the chooser of files to import lists it.
struct XmlFile {
    QString FullPath;
    QString sFileName;            ///< last part of the path
    std::uint32_t measureRec = 0; ///< how many readings are in it
    std::uint32_t comment = 0;    ///< how many comments are in it
    /// The day on which it was made, or last changed where the file system does not tell, as "yyyy/MM/dd".
    QString backupTime;

    QStringList patients{}; ///< their names, as "Smith, Margaret"; of the first namedPatients only
    QSet<QString> IDs{};    ///< of all records in it that belong to a patient
    std::optional<ImportRefusal> fault{}; ///< why it cannot be imported, whoever is in the data file
    static constexpr qsizetype namedPatients = 20;

    bool isLarge = false; ///< above largestCounted: not read, though it may be imported
    /// Counting must neither hold up a list of files nor fill the memory.
    static constexpr qint64 largestCounted = qint64{64} << 20;

    /// Reads the file if its name ends in ".xml", in this case. One that is not read or is damaged has its
    /// names and its fault only.
    [[nodiscard]] static XmlFile read(const QString& path);
    [[nodiscard]] bool isRead() const { return !backupTime.isEmpty(); }
};

} // namespace zel
