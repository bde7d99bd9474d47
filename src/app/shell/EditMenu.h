#pragma once

#include "app/device/MonitorStatus.h"
#include "store/DataStore.h"

#include <QMenu>

namespace zel {

/// Undo and Redo, each with the name of the step that it is about; not while something is done with the
/// monitor, whose end depends on what the file holds.
class EditMenu final : public QMenu {
    Q_OBJECT
public:
    EditMenu(const DataStore& dataStore, const MonitorStatus& monitorStatus, QWidget* parent);

signals:
    void undoWanted();
    void redoWanted();

private:
    QAction* add(const QString& name, QKeySequence::StandardKey key);
    void showSteps();

    const DataStore& store;
    const MonitorStatus& status;
    QAction* undo;
    QAction* redo;
};

} // namespace zel
