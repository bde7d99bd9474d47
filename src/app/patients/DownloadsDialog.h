#pragma once

#include "store/DataStore.h"

#include <QDialog>

class QLabel;
class QTableWidget;

namespace zel {

/// When the current patient's readings were downloaded, and how many that brought; the latest first.
class DownloadsDialog final : public QDialog {
    Q_OBJECT
public:
    DownloadsDialog(const DataStore& dataStore, QWidget* parent);

private:
    void build();
    void fill();
    [[nodiscard]] QString summary() const;

    const DataStore& store;
    QLabel* lblDownloads;
    QTableWidget* tblDownloads;
};

} // namespace zel
