#pragma once

#include "store/ExportFile.h"
#include "store/WrittenNames.h"
#include "store/XmlDocument.h"

#include <QHash> // of texts
#include <QString>
#include <QStringList>

#include <memory>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace zel {

/// An export of patients to one XML file each, from the data file as it was when the export began: it is
/// read once. Holds no reference to the store. DataStore::beginExport() makes one.
class PatientExport {
public:
    /// \p path is the data file's, which no export replaces. \p isDemonstration: see exportFileName()
    PatientExport(XmlDocument document, QString path, bool isDemonstration);

    /// The IDs of all patients in the file, in its order, by the rule of AllPatients. The file of an ID that
    /// several have is of all of them.
    [[nodiscard]] const QStringList& patients() const { return IDs; }

    /// Writes the data file's whole content without other patients' Patient, Comment and MeasureRec elements
    /// at exportPath() in the folder, with ".xml". Settings and the log of downloads stay, also other
    /// patients'. Never replaces a file of this export: IDs that differ in their case only have one file on
    /// some disks. \return noSuchRecord for an ID that is not in the file; alreadyExists, isDataFile,
    /// sameFileName, notWritable or writeFailed with the file's path
    [[nodiscard]] StoreResult writeXml(const QString& ID, const QString& folder, Replace replace) const;

    /// Waits until all that was written is on the disk. Done at the latest when the export goes; only here is
    /// a failure told.
    [[nodiscard]] StoreResult finish() const;

private:
    /// A child of the root element with its place among them.
    struct Child {
        std::size_t place;
        pugi::xml_node node;
    };
    /// Where files were written that may not be on the disk yet.
    struct Unflushed {
        QString folder;
        Unflushed() = default;
        ~Unflushed() { std::ignore = flush(); }
        Unflushed(const Unflushed&) = delete;
        Unflushed& operator=(const Unflushed&) = delete;
        StoreResult flush();
    };
    void sort(const Child& child);
    [[nodiscard]] std::vector<pugi::xml_node> childrenFor(const std::vector<Child>& own) const;

    std::unique_ptr<const XmlDocument> document;
    std::unique_ptr<Unflushed> unflushed = std::make_unique<Unflushed>();
    std::unique_ptr<WrittenNames> written = std::make_unique<WrittenNames>();
    QString dataFile;
    bool isInvented;
    QStringList IDs;
    std::vector<Child> common;                                ///< in every patient's file
    std::unordered_map<QString, std::vector<Child>> personal; ///< by patient ID
};

} // namespace zel
