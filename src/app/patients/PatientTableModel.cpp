#include "app/patients/PatientTableModel.h"

#include "app/patients/PatientForm.h"
#include "app/widgets/PatientTexts.h"

namespace zel {

using namespace Qt::StringLiterals;

PatientTableModel::PatientTableModel(const DataStore& patients, QObject* parent)
    : QAbstractTableModel(parent), store(patients), newPatient(PatientForm::newPatient()) {}

int PatientTableModel::rowCount(const QModelIndex& parent) const {
    if (parent.isValid()) return 0;
    return static_cast<int>(store.getPatientArray().size()) + (hasNewPatient ? 1 : 0);
}

int PatientTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columnTotal;
}

const PatientModel& PatientTableModel::patientAt(int row) const {
    if (isNewPatient(row)) return newPatient;
    return store.getPatientArray().at(static_cast<std::size_t>(row - (hasNewPatient ? 1 : 0)));
}

QVariant PatientTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
    const QString shown = text(index.row(), index.column());
    if (role == Qt::DisplayRole || shown.isEmpty()) return shown;
    constexpr int longest = 300;
    return QString("<span>"_L1 + shortText(shown, longest).toHtmlEscaped()
                   + "</span>"_L1); // no name is markup
}

QString PatientTableModel::text(int row, int column) const {
    const PatientModel& patient = patientAt(row);
    if (column == name) return isNewPatient(row) ? patient.DisplayName : listedName(patient);
    return column == ID ? patient.ID : birthText(patient, store.getSetting());
}

QVariant PatientTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    if (section == birth) return qtTrId("fieldDateOfBirth");
    return section == name ? qtTrId("patientName") : qtTrId("patientID");
}

void PatientTableModel::reload(bool withNewPatient) {
    beginResetModel();
    hasNewPatient = withNewPatient;
    endResetModel();
}

QString PatientTableModel::IDAt(int row) const { return patientAt(row).ID; }

int PatientTableModel::rowOf(const QString& patientID) const {
    for (int row = 0; row < rowCount(); ++row) {
        if (patientAt(row).ID == patientID) return row;
    }
    return -1;
}

} // namespace zel
