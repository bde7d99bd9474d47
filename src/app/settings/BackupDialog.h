#pragma once

#include "store/DataStore.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTableWidget;

namespace zel {

/// The copies of the data file: what is in them, another one, and the way back to one.
class BackupDialog final : public QDialog {
    Q_OBJECT
public:
    /// Both must outlive it.
    BackupDialog(DataStore& store, MessagePanel& panel, QWidget* parent);
    void showBackups();

signals:
    /// The store shows the copy \p name now; what was there is \p kept.
    void restored(const QString& name, const QString& kept);

private:
    void build();
    QTableWidget* makeList();
    QWidget* makeButtons();
    QPushButton* addButton(const char* name, const QString& text, void (BackupDialog::*pressed)());
    void fill(const QString& chosen);
    void showChosen();
    void create();
    void restore();
    [[nodiscard]] QString chosenName() const;

    DataStore& store;
    MessagePanel& panel;
    QTableWidget* tblBackups;
    QLabel* lblBackup;
    QPushButton* btnRestore = nullptr;
};

} // namespace zel
