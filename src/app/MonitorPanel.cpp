#include "app/MonitorPanel.h"

namespace zel {

using namespace Qt::StringLiterals;

MonitorPanel::MonitorPanel(const MonitorSession& monitorSession, QWidget* parent)
    : SidePanel(u"monitorPanel"_s, qtTrId("monitorPanel"), parent), session(monitorSession),
      lblState(addValue(u"lblMonitorState"_s, qtTrId("monitorState"))),
      lblID(addValue(u"lblMonitorID"_s, qtTrId("monitorID"))),
      lblClock(addValue(u"lblMonitorClock"_s, qtTrId("monitorClock"))) {
    connect(&session, &MonitorSession::changed, this, &MonitorPanel::showState);
    showState();
}

void MonitorPanel::showState() {
    const MonitorState& state = session.state();
    lblState->setText(describe(state));
    const QString ID = state.IDOnDevice.value_or(qtTrId("notKnown"));
    lblID->setText(ID.isEmpty() ? qtTrId("noID") : ID);
    lblClock->setText(describeClock(state));
}

} // namespace zel
