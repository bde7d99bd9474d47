#pragma once

#include "analysis/DisplayPeriod.h"
#include "app/widgets/SeenWork.h"
#include "app/widgets/SidePanel.h"
#include "store/DataStore.h"

class QCheckBox;

namespace zel {

class StatisticView;

/// The panel with the figures of the display period.
class StatisticViewController final : public SidePanel {
    Q_OBJECT
public:
    StatisticViewController(const DataStore& dataStore, DisplayPeriod& displayPeriod, QWidget* parent);

    void LoadData() { showing.want(); }
    void calcStattistic(); // spelled so in the interface

private:
    void showFigures();
    void setSelectViewUI();
    [[nodiscard]] QString counted() const;

    const DataStore& store;
    DisplayPeriod& period;
    QLabel* lblPatient;
    StatisticView* view;
    QLabel* lblCount;
    QCheckBox* btnViewAll;
    SeenWork showing{*this, [this] { showFigures(); }};
};

} // namespace zel
