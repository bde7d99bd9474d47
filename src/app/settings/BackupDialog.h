#pragma once

#include "app/settings/BackupCourier.h"
#include "app/widgets/FileChooser.h"
#include "store/DataStore.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace zel {

/// The copies of the data file: what is in them, another one, and the way back to one.
class BackupDialog final : public QDialog {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        MessagePanel& panel;
        FileChooser& chooser;
        BackupCourier& courier;
        const Clock& clock;
    };
    /// All of them must outlive it.
    BackupDialog(const Parts& needed, QWidget* parent);
    void showBackups();

signals:
    /// The store shows the copy \p name now; what was there is \p kept.
    void restored(const QString& name, const QString& kept);

private:
    void build();
    QTableWidget* makeList();
    QWidget* makeButtons();
    QWidget* makeSecondFolder();
    void showSecondFolder();
    void chooseSecondFolder();
    void stopSecondFolder();
    void nameFolder(const QString& folder);
    void takeFarCopies(const SecondFolder& folder, const std::vector<Backup>& copies);
    void showFarCopies(const SecondFolder& folder, const std::vector<Backup>& copies);
    void addFarRows(const QString& chosen);
    void addRow(const Backup& copy, const QString& path, const QString& kind, const QString& chosen);
    [[nodiscard]] tl::expected<QString, StoreError> nearName(const QString& name) const;
    QPushButton* addButton(const char* name, const QString& text, void (BackupDialog::*pressed)());
    void fill(const QString& chosen);
    void showChosen();
    void create();
    void restore();
    [[nodiscard]] QString chosenName() const;

    DataStore& store;
    MessagePanel& panel;
    FileChooser& chooser;
    BackupCourier& courier;
    const Clock& clock;
    QTableWidget* tblBackups;
    QLabel* lblBackup;
    QPushButton* btnRestore = nullptr;
    QPushButton* btnStopSecondFolder = nullptr;
    QLineEdit* edtSecondFolder = nullptr;
    SecondFolder far;
    std::vector<Backup> farCopies; ///< once they are known
    int nearTotal = 0;             ///< rows of the usual folder, which come first
};

} // namespace zel
