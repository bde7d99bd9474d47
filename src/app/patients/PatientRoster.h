#pragma once

#include "store/DataStore.h"

#include <QWidget>

#include <optional>

class QLineEdit;
class QStackedWidget;
class QTableView;

namespace zel {

class EmptyState;
class PatientFilter;
class PatientTableModel;

/// The list of patients under a field that narrows it by name or ID as one types. The selection is a
/// patient's ID, and stays with it whatever the list shows.
class PatientRoster final : public QWidget {
    Q_OBJECT
public:
    explicit PatientRoster(const DataStore& patients, QWidget* parent = nullptr);

    void reload(bool withNewPatient);
    /// Puts the mark on a patient, without a word to anyone.
    void select(const QString& ID);
    void showAll(); ///< ends a search
    /// The patient is in the list, which a search may narrow.
    [[nodiscard]] bool isListed(const QString& ID) const;
    /// Scrolls to the selected patient, and ends a search that leaves it out.
    void showSelected();
    [[nodiscard]] QString selectedID() const; ///< null if none is
    /// The next patient's ID, or the one before the last's; null if there is none.
    [[nodiscard]] QString neighbourOf(const QString& ID) const;

signals:
    void wanted(); ///< the user chose another patient, selectedID()

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void search(const QString& text);
    void chooseFirst();
    void layOutColumns();
    [[nodiscard]] QModelIndex placeOf(const QString& ID) const;

    PatientTableModel* roster;
    PatientFilter* found;
    QLineEdit* searchPatients;
    QTableView* tblPatients;
    EmptyState* noneFound;
    QStackedWidget* listOrAdvice;
    QString selected;
    struct Scroll {
        int value;
        bool isMarkInView;
    };
    std::optional<Scroll> scrolled; ///< as it was before a reload
    bool isMoving = false;          ///< the list changes, not the user's choice
};

} // namespace zel
