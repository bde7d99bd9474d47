#pragma once

#include "app/MonitorSession.h"
#include "app/SidePanel.h"

namespace zel {

/// What is known of the monitor.
class MonitorPanel final : public SidePanel {
    Q_OBJECT
public:
    MonitorPanel(const MonitorSession& monitorSession, QWidget* parent);

private:
    void showState();

    const MonitorSession& session;
    QLabel* lblState;
    QLabel* lblID;
    QLabel* lblClock;
};

} // namespace zel
