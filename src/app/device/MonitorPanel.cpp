#include "app/device/MonitorPanel.h"

namespace zel {

using namespace Qt::StringLiterals;

MonitorPanel::MonitorPanel(const MonitorStatus& monitorStatus, QWidget* parent)
    : SidePanel(u"monitorPanel"_s, qtTrId("monitorPanel"), parent), status(monitorStatus),
      lblState(addValue(u"lblMonitorState"_s, qtTrId("monitorState"))),
      lblID(addValue(u"lblMonitorID"_s, qtTrId("monitorID"))),
      lblClock(addValue(u"lblMonitorClock"_s, qtTrId("monitorClock"))) {
    connect(&status, &MonitorStatus::changed, this, &MonitorPanel::showState);
    showState();
}

void MonitorPanel::showState() {
    const MonitorState& state = status.state();
    lblState->setText(describe(state));
    const QString ID = state.IDOnDevice.value_or(qtTrId("notKnown"));
    lblID->setText(ID.isEmpty() ? qtTrId("noID") : ID);
    lblClock->setText(describeClock(state));
}

} // namespace zel
