#pragma once

#include <QDialog>

class QTableWidget;

namespace zel {

/// The list of keys, beside the program; leads to the manual.
class KeysDialog final : public QDialog {
    Q_OBJECT
public:
    /// \p window: whose keys they are
    explicit KeysDialog(QWidget* window);

    void showKeys(); ///< as they are now

signals:
    void manualWanted();

private:
    QWidget* makeButtons();
    void fill();

    QTableWidget* tblKeys;
};

} // namespace zel
