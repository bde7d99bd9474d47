#include "app/PatientTableModel.h"

#include <algorithm>

namespace zel {

PatientTableModel::PatientTableModel(const DataStore& patients, QObject* parent)
    : QAbstractTableModel(parent), store(patients) {}

int PatientTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(store.getPatientArray().size());
}

int PatientTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columnTotal;
}

QVariant PatientTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
    const PatientModel& patient = store.getPatientArray().at(static_cast<std::size_t>(index.row()));
    return index.column() == name ? patient.DisplayName : patient.ID;
}

QVariant PatientTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    return section == name ? qtTrId("patientName") : qtTrId("patientID");
}

void PatientTableModel::reload() {
    beginResetModel();
    endResetModel();
}

QString PatientTableModel::IDAt(int row) const {
    return store.getPatientArray().at(static_cast<std::size_t>(row)).ID;
}

int PatientTableModel::rowOf(const QString& patientID) const {
    const auto& patients = store.getPatientArray();
    const auto found = std::ranges::find(patients, patientID, &PatientModel::ID);
    return found == patients.end() ? -1 : static_cast<int>(found - patients.begin());
}

} // namespace zel
