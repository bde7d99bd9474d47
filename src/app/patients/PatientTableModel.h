#pragma once

#include "store/DataStore.h"

#include <QAbstractTableModel>

namespace zel {

/// The roster by name, ID and date of birth, in the store's order, below a new patient that is not saved yet.
class PatientTableModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit PatientTableModel(const DataStore& patients, QObject* parent = nullptr);

    enum Column { name, ID, birth, columnTotal };
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The roster was read anew, or a new patient came or went.
    void reload(bool withNewPatient);
    [[nodiscard]] bool isNewPatient(int row) const { return hasNewPatient && row == 0; }
    [[nodiscard]] QString IDAt(int row) const;
    [[nodiscard]] int rowOf(const QString& patientID) const; ///< -1 if there is none

private:
    [[nodiscard]] const PatientModel& patientAt(int row) const;
    [[nodiscard]] QString text(int row, int column) const;

    const DataStore& store;
    PatientModel newPatient;
    bool hasNewPatient = false;
};

} // namespace zel
