#pragma once

#include "app/device/MonitorStatus.h"
#include "app/widgets/SidePanel.h"

namespace zel {

/// What is known of the monitor.
class MonitorPanel final : public SidePanel {
    Q_OBJECT
public:
    MonitorPanel(const MonitorStatus& monitorStatus, QWidget* parent);

private:
    void showState();

    const MonitorStatus& status;
    QLabel* lblState;
    QLabel* lblID;
    QLabel* lblClock;
};

} // namespace zel
