#pragma once

#include "store/Backups.h"
#include "store/ChangeHistory.h"
#include "store/Clock.h"
#include "store/DataFile.h"
#include "store/ManualReading.h"
#include "store/MessagePanel.h"
#include "store/PatientExport.h"
#include "store/PatientImport.h"
#include "store/Records.h"
#include "store/StepRecorder.h"
#include "store/StoreError.h"
#include "store/ViewLimits.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <functional>
#include <future>
#include <optional>
#include <utility>
#include <vector>

namespace zel {

struct TableImport;

/// What became of a download.
struct TransferCounts {
    std::size_t added = 0;   ///< readings that were not stored before
    std::size_t leftOut = 0; ///< typed ones that are left out from now on, since these have been measured
    bool operator==(const TransferCounts&) const = default;
};

/// The one XML file that holds everything, and the records read from it. Every change is written to the file
/// first, by reading it, editing it and replacing it; the lists are then read again. Main thread only.
class DataStore : public QObject {
    Q_OBJECT
public:
    /// \p clock must outlive the store.
    DataStore(StorePaths paths, Clock& clock);

    /// Start-up: makes sure that ".target" and the data file exist, then loads.
    StoreResult load();
    using Read = tl::expected<Records, StoreError>;
    /// The same in two halves, between which a window can be made: the file is read off this thread, and
    /// until finishLoad(), which emits reloaded(), the store is as it was, empty at the start. The result
    /// outlasts neither the store nor another load.
    [[nodiscard]] std::future<Read> beginLoad();
    StoreResult finishLoad(std::future<Read> reading);
    /// Reads the whole file. On an error all lists are empty, and a write reads the file first, and is
    /// refused if it cannot be read yet. Emits reloaded() in any case.
    StoreResult loadXML();
    /// How the last load went. A write that succeeded and reloads is a success, however its reload went: it
    /// shows here.
    [[nodiscard]] const StoreResult& lastLoad() const { return loaded; }

    /// Whether another program has changed the file since this one read or wrote it; costs next to nothing.
    [[nodiscard]] bool isChangedElsewhere() const;
    /// The same with a look that was taken at the file off this thread.
    [[nodiscard]] bool isChangedElsewhere(const FileStamp& now) const { return now != lastSeen; }
    /// Reads the file that another program has changed, and emits reloaded(). If it cannot be read, as while
    /// it is being written, all stays as it is.
    [[nodiscard]] StoreResult takeChanges();

    /// Copies of the data file: one is kept before the first change of a day.
    [[nodiscard]] const Backups& backups() const { return copies; }
    /// As Backups::restore(); reloads.
    [[nodiscard]] tl::expected<QString, StoreError> restoreBackup(const QString& name);

    /// What can be undone and redone: every change made here but a download, since the program started or
    /// went back to a copy of the file.
    [[nodiscard]] const ChangeHistory& changes() const { return history; }
    /// Takes the last step back, in the file as it is by now, all of it or nothing; reloads. A step that the
    /// file's state refuses (isStepRefusal()) is dropped; after any other error it can be tried again, but
    /// after notFlushed it is done.
    [[nodiscard]] StoreResult undo();
    /// Makes the step again that was undone last; as undo().
    [[nodiscard]] StoreResult redo();

    [[nodiscard]] QString getZELXMLPath() const;
    [[nodiscard]] QString getTargetString() const;
    /// Its patients are invented, which whatever is made of them has to say.
    [[nodiscard]] bool isDemonstration() const { return file.isDemonstration(); }
    /// \return false, after telling the user, if the data file may not be written
    bool checkXmlWritable(MessagePanel& panel) const;

    /// Writes one patient, over the one with its ID or as a new one; does not reload. The fields that are as
    /// in \p asRead, the patient before it was changed here, stay as they are in the file by now;
    /// noSuchRecord, after a reload, if that patient is no longer there.
    [[nodiscard]] StoreResult saveXMLPatient(const PatientModel& patient,
                                             const std::optional<PatientModel>& asRead = {});
    /// Writes a new patient; alreadyKnown if the file holds one of that ID by now. Does not reload.
    [[nodiscard]] StoreResult addXMLPatient(const PatientModel& patient);
    /// Removes the patient, its readings and comments; its download log stays. A patient without an ID is the
    /// one that getPatientByID() gives, and has no readings. Does not reload.
    [[nodiscard]] StoreResult deleteXMLPatient(const QString& ID);
    /// Writes what was changed in getSetting() since it was read.
    [[nodiscard]] StoreResult saveSetting();
    /// What becomes of a change of several settings when the file has no place for one of them.
    enum class WithoutPlace { leaveOut, changeNothing };
    /// Writes the settings in which \p wanted differs from \p shown; the others stay as they are in the file
    /// by now. Does not reload. \return what the file has place for, as it is written
    [[nodiscard]] tl::expected<SettingModel, StoreError>
    changeSetting(const SettingModel& shown, const SettingModel& wanted, WithoutPlace withoutPlace);

    /// Stores what a download brought for the patient, in the monitor's order, leaving out what is stored
    /// already, with one log entry if anything is new; reloads. A typed reading with minute, pressures and
    /// pulse of a new one is left out from now on.
    /// On an error nothing was stored: noSuchRecord if the patient is no longer in the file.
    [[nodiscard]] tl::expected<TransferCounts, StoreError> newDataTransfer(const QString& ID,
                                                                           ReadingList downloaded);
    /// For the current patient.
    [[nodiscard]] tl::expected<TransferCounts, StoreError> newDataTransfer(ReadingList downloaded) {
        return newDataTransfer(QString{currentID}, std::move(downloaded));
    }

    /// Reads the data file for an export of its patients.
    [[nodiscard]] tl::expected<PatientExport, StoreError> beginExport() const;
    /// Writes the patient and its readings at exportPath() in the folder, with ".csv".
    /// \return noSuchRecord for an ID that is not in the list; see PatientExport::writeXml() for others
    [[nodiscard]] StoreResult exportCSV(const QString& folder, const QString& ID, Replace replace) const;
    /// Takes the patients of the file with their readings and comments, all or none. Does not reload.
    [[nodiscard]] ImportResult importXml(const QString& path);
    /// The same of several files in one write, each of them all or not at all: one that is refused holds up
    /// no other. Each is a step of its own. \return how each went, in their order. FileImport reads them.
    [[nodiscard]] std::vector<ImportResult> importXml(std::vector<ImportSource> files);
    /// Writes the readings of these patients of the list as one table for spreadsheets, in their order. It
    /// outlasts a power cut after flushExports(). \return noSuchRecord for an ID that is not in the list; as
    /// writeExport() for others
    [[nodiscard]] StoreResult exportTable(const QString& path, const QStringList& IDs, Replace replace) const;
    /// Takes the readings of a table that are not there yet, all or none, in one write. Does not reload.
    [[nodiscard]] tl::expected<ImportCounts, ImportRefusal> importTable(const QString& path,
                                                                        const TableImport& wanted);

    using Counter = Records::Counter;
    /// The next free record number: the largest in use, at least the counter's floor, plus 1.
    [[nodiscard]] QString getMaxID(Counter kind) const;

    /// Stores a new comment of the current patient, numbered anew if its number is missing or taken; reloads.
    /// \return the number it has; noSuchRecord if the patient is no longer in the file
    [[nodiscard]] tl::expected<QString, StoreError> addCommentForCurID(CommentModel comment);
    /// Writes one comment, found by its patient and number, or adds it if it has gone; reloads. The fields
    /// that are as in \p asRead, the comment before it was changed here, stay as they are in the file by now.
    /// \return noSuchRecord if the patient has gone, too
    [[nodiscard]] StoreResult saveCommentToXML(CommentModel comment, std::optional<CommentModel> asRead = {});
    [[nodiscard]] StoreResult deleteSelectedCommentToXML(); ///< reloads
    /// Selects a comment of the current patient. Null text: none.
    void setSelectedComment(const QString& commentID);
    [[nodiscard]] const CommentModel* getSelectedComment() const;

    // Readings: each is looked for by its patient and number, and as it was read; all of them are one
    // patient's. readingGone or changedElsewhere if one of them is not there so any more, and nothing is
    // changed. Each call is one step, and reloads.

    /// Leaves the readings out of all that counts; those that are left out already get this reason.
    /// \return noReason if exclusionReason() makes nothing of it
    [[nodiscard]] StoreResult excludeReadings(const ReadingList& asRead, const QString& reason);
    /// Has them count again, but for typed ones that cannot: nothing counts twice, and what nobody can type
    /// in counts nowhere. For each that was measured, one typed in with its minute and values is left out.
    /// \return those, how many and why
    [[nodiscard]] tl::expected<TakenInAgain, StoreError> includeReadings(const ReadingList& asRead);
    /// Stores a reading that was typed in. \return its number; readingRefused as manualProblem() has it;
    /// readingKnown if the patient has one of that minute with these values, for one that was measured also
    /// by the minute that the monitor's clock showed; noSuchRecord without the patient
    [[nodiscard]] tl::expected<QString, StoreError> addReading(const QString& ID, const ManualReading& typed);
    /// As addReading(); notManual for one that was downloaded.
    [[nodiscard]] StoreResult changeReading(const ReadingModel& asRead, const ManualReading& typed);
    /// notManual if one of them was downloaded.
    [[nodiscard]] StoreResult deleteReadings(const ReadingList& asRead);

    void setCurrentID(const QString& ID); ///< emits currentIDChanged() on a change
    [[nodiscard]] const QString& getCurrentID() const;
    [[nodiscard]] const ReadingList& getReadingForCurID() const;
    [[nodiscard]] const ReadingList& getReadingForID(const QString& ID) const;
    [[nodiscard]] const CommentList& getCommentForCurID() const;
    [[nodiscard]] const DataLogList& getTrasferLogForCurID() const; // spelled so in the interface
    /// Sorted by DisplayName. Valid until the next load.
    [[nodiscard]] const std::vector<PatientModel>& getPatientArray() const;
    [[nodiscard]] const PatientModel* getPatientByID(const QString& ID) const; ///< null if there is none
    [[nodiscard]] bool validIDinXML(const QString& ID) const;

    [[nodiscard]] SettingModel& getSetting();
    [[nodiscard]] const SettingModel& getSetting() const;

    /// From where on views mark values as high, as chosen for this data file, which does not hold it.
    [[nodiscard]] const ViewLimits& viewLimits() const { return highFrom; }
    /// Whether an earlier choice could be read; the usual limits hold where it could not.
    [[nodiscard]] const StoreResult& viewLimitsRead() const { return highFromRead; }
    /// They hold from now on, also where they cannot be written down for the next start. What is as it was
    /// (choice or own limits) does not replace what another program chose since.
    [[nodiscard]] StoreResult chooseViewLimits(const ViewLimits& chosen);

signals:
    void viewLimitsChanged();
    void reloaded();
    void currentIDChanged();
    void historyChanged();
    /// A change was made without the copy that is due before it, or with one that may not last. \p why: for
    /// the user
    void notBackedUp(const QString& why);

private:
    void prepareLoad();
    StoreResult readRecords();
    StoreResult takeRead(Read read);
    void take(Records read);
    StoreResult tellLoaded(StoreResult how);
    [[nodiscard]] StoreResult write(const DataFile::Change& change);
    [[nodiscard]] StoreResult edit(const DataFile::Change& change);
    /// Tells the recorder what it changes, and what the step is called.
    using StepChange = std::function<DataFile::Edit(pugi::xml_node root, StepRecorder& recorder)>;
    [[nodiscard]] StoreResult editAsStep(const StepChange& change);
    [[nodiscard]] StoreResult retrace(bool back);
    [[nodiscard]] std::vector<ImportResult> importEach(const QStringList& paths);
    void addSteps(std::vector<ChangeStep> steps);
    void tellNotBackedUp(const StoreError& error);
    [[nodiscard]] StoreResult deleteWithoutID(const QString& ID);
    [[nodiscard]] StoreResult editAndReload(const DataFile::Change& change);
    [[nodiscard]] StoreResult editAsStepAndReload(const StepChange& change);
    template <class Change>
    [[nodiscard]] StoreResult
    changeReadings(StepKind kind, const ReadingList& asRead, const Change& change,
                   const std::function<void(pugi::xml_node root, StepRecorder& recorder)>& follow = {});
    [[nodiscard]] DataTransferLogModel newDataLog(const Records& stored, const QString& ID,
                                                  std::size_t count) const;
    void keepSelectedComment();
    void loadViewLimits();
    void takeViewLimits();

    DataFile file;
    Clock& clock;
    Backups copies{file, clock};
    ChangeHistory history;
    Records records;
    SettingModel settingAsRead = records.gSettingModel;
    ViewLimits highFrom;
    ViewLimits limitsSeen; ///< as read or written last
    StoreResult highFromRead;
    StoreResult loaded;
    FileStamp lastSeen; ///< of the file as it was read, or written since
    /// A file that is damaged, and how: it is not parsed again and again.
    std::optional<std::pair<FileStamp, StoreError>> damaged;
    QString currentID;
    QString selectedCommentID; ///< null: none; numbers of different patients may be equal
    QString selectedPatientID;
};

} // namespace zel
