#pragma once

#include "app/patients/PatientTableModel.h"

#include <QSortFilterProxyModel>

namespace zel {

/// The patients whose name or ID holds every word that is searched for, whatever its case and accents; the
/// new patient stays in any case.
class PatientFilter final : public QSortFilterProxyModel {
    Q_OBJECT
public:
    explicit PatientFilter(PatientTableModel& patients, QObject* parent = nullptr);
    void search(const QString& text);

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    PatientTableModel& roster;
    QStringList words;
};

} // namespace zel
