#pragma once

#include "app/widgets/SidePanel.h"
#include "store/DataStore.h"

namespace zel {

/// What is known of the data file and of the current patient's part of it.
class DataPanel final : public SidePanel {
    Q_OBJECT
public:
    DataPanel(const DataStore& dataStore, QWidget* parent);
    void showState();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showPath();

    const DataStore& store;
    QLabel* lblPatients;
    QLabel* lblReadings;
    QLabel* lblLastDownload;
    QLabel* lblDataFile;
};

} // namespace zel
