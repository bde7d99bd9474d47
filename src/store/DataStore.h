#pragma once

#include "store/Clock.h"
#include "store/DataFile.h"
#include "store/MessagePanel.h"
#include "store/PatientExport.h"
#include "store/PatientImport.h"
#include "store/Records.h"
#include "store/StoreError.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <vector>

namespace zel {

/// The one XML file that holds everything, and the records read from it. Every change is written to the file
/// first, by reading it, editing it and replacing it; the lists are then read again. Main thread only.
class DataStore : public QObject {
    Q_OBJECT
public:
    /// \p clock must outlive the store.
    DataStore(StorePaths paths, Clock& clock);

    /// Start-up: makes sure that ".target" and the data file exist, then loads.
    StoreResult load();
    /// Reads the whole file. On an error all lists are empty, and every write is refused until the file can
    /// be read again. Emits reloaded() in any case.
    StoreResult loadXML();
    /// How the last load went.
    [[nodiscard]] const StoreResult& lastLoad() const { return loaded; }

    [[nodiscard]] QString getZELXMLPath() const;
    [[nodiscard]] QString getTargetString() const;
    /// \return false, after telling the user, if the data file may not be written
    bool checkXmlWritable(MessagePanel& panel) const;

    /// Writes one patient, replacing the one with its ID or adding a new one; does not reload.
    [[nodiscard]] StoreResult saveXMLPatient(const PatientModel& patient);
    /// Writes a new patient; alreadyKnown if the file holds one of that ID by now. Does not reload.
    [[nodiscard]] StoreResult addXMLPatient(const PatientModel& patient);
    /// Removes the patient, its readings and comments; its download log stays. Does not reload.
    [[nodiscard]] StoreResult deleteXMLPatient(const QString& ID);
    /// Writes getSetting().
    [[nodiscard]] StoreResult saveSetting();

    /// Stores what a download brought for the current patient, in the monitor's order, leaving out what is
    /// stored already, with one log entry if anything is new; reloads.
    /// \return how many readings were new; on an error nothing was stored
    [[nodiscard]] tl::expected<std::size_t, StoreError> newDataTransfer(ReadingList downloaded);

    /// Reads the data file for an export of its patients.
    [[nodiscard]] tl::expected<PatientExport, StoreError> beginExport() const;
    /// Writes the patient and its readings as exportPath(folder, ID, ".csv").
    /// \return noSuchRecord for an ID that is not in the list; see PatientExport::writeXml() for others
    [[nodiscard]] StoreResult exportCSV(const QString& folder, const QString& ID, Replace replace) const;
    /// Takes the patients of the file with their readings and comments, all or none. Does not reload.
    [[nodiscard]] tl::expected<ImportCounts, ImportRefusal> importXml(const QString& path);

    using Counter = Records::Counter;
    /// The next free record number: the largest in use, at least the counter's floor, plus 1.
    [[nodiscard]] QString getMaxID(Counter kind) const;

    /// Stores a new comment of the current patient, numbered anew if its number is missing or taken; reloads.
    /// \return the number it has
    [[nodiscard]] tl::expected<QString, StoreError> addCommentForCurID(CommentModel comment);
    [[nodiscard]] StoreResult saveCommentToXML(const CommentModel& comment);
    [[nodiscard]] StoreResult deleteSelectedCommentToXML();
    void setSelectedComment(const QString& commentID); ///< null text: none
    [[nodiscard]] const CommentModel* getSelectedComment() const;

    void setCurrentID(const QString& ID); ///< emits currentIDChanged() on a change
    [[nodiscard]] const QString& getCurrentID() const;
    [[nodiscard]] const ReadingList& getReadingForCurID() const;
    [[nodiscard]] const CommentList& getCommentForCurID() const;
    [[nodiscard]] const DataLogList& getTrasferLogForCurID() const; // spelled so in the interface
    /// Sorted by DisplayName. Valid until the next load.
    [[nodiscard]] const std::vector<PatientModel>& getPatientArray() const;
    [[nodiscard]] const PatientModel* getPatientByID(const QString& ID) const; ///< null if there is none
    [[nodiscard]] bool validIDinXML(const QString& ID) const;

    [[nodiscard]] SettingModel& getSetting();
    [[nodiscard]] const SettingModel& getSetting() const;

signals:
    void reloaded();
    void currentIDChanged();

private:
    StoreResult readRecords();
    [[nodiscard]] StoreResult editAndReload(const DataFile::Change& change);
    [[nodiscard]] DataTransferLogModel newDataLog(const Records& stored, std::size_t count) const;
    void keepSelectedComment();

    DataFile file;
    Clock& clock;
    Records records;
    StoreResult loaded;
    QString currentID;
    QString selectedCommentID;
};

} // namespace zel
