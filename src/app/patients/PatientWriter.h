#pragma once

#include "app/patients/PatientForm.h"
#include "store/DataStore.h"

namespace zel {

/// Writes patients' records to the data file and takes them out of it, with the checks and questions before;
/// whatever stands against it is told to the user.
class PatientWriter {
public:
    PatientWriter(DataStore& dataStore, MessagePanel& messagePanel) : store(dataStore), panel(messagePanel) {}

    /// Whether the ID leads to one record only. One without an ID is found by all that it holds.
    [[nodiscard]] bool isUnique(const QString& ID);
    /// Tells why, if the data file takes no patient.
    [[nodiscard]] bool canWrite();
    /// What keeps an entry from being saved, an ID that another patient has among it.
    [[nodiscard]] std::vector<PatientProblem> problems(const PatientForm& form, const PatientEntry& entry,
                                                       Instant today) const;
    /// Nobody is there to be asked: what leaving would ask about is taken to be wanted.
    [[nodiscard]] bool isSavedQuietly(const PatientForm& form, const PatientEntry& entry, Instant today);
    /// Says why an entry is not written. \p found: at least one problem
    void refuse(const std::vector<PatientProblem>& found);
    /// Writes what \p record has other than \p shown. \return false if it could not be written
    [[nodiscard]] bool write(const PatientModel& record, const PatientModel& shown);
    /// Writes all of one who is not in the file. \return false if it could not be written
    [[nodiscard]] bool add(const PatientModel& record);
    /// Takes the patient out after a question. \return false if the patient is still there
    [[nodiscard]] bool remove(const PatientModel& patient);
    /// Asks whether a new patient for whom something was typed, and nothing saved, may go.
    [[nodiscard]] bool dropNew(const PatientModel& patient);
    /// Reads the file anew after a write, with that patient as the current one.
    void loadAnew(const QString& ID);

private:
    bool tell(const StoreResult& result);

    DataStore& store;
    MessagePanel& panel;
};

} // namespace zel
