#include "app/shell/EditMenu.h"

#include "app/shell/UndoController.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// \p words: with a place for the step's name; \p none: where there is no step.
void showStep(QAction& action, const ChangeStep* step, bool isPossible, const QString& words,
              const QString& none) {
    const QString name = step ? shortStepName(step->name) : QString();
    action.setText(step ? words.arg(QString(name).replace(u'&', "&&"_L1)) : none);
    action.setEnabled(step && isPossible);
}

} // namespace

EditMenu::EditMenu(const DataStore& dataStore, const MonitorStatus& monitorStatus, QWidget* parent)
    : QMenu(qtTrId("menuEdit"), parent), store(dataStore), status(monitorStatus),
      undo(add(u"undoStep"_s, QKeySequence::Undo)), redo(add(u"redoStep"_s, QKeySequence::Redo)) {
    setObjectName(u"editMenu"_s);
    connect(undo, &QAction::triggered, this, &EditMenu::undoWanted);
    connect(redo, &QAction::triggered, this, &EditMenu::redoWanted);
    connect(&store, &DataStore::historyChanged, this, &EditMenu::showSteps);
    connect(&status, &MonitorStatus::changed, this, &EditMenu::showSteps);
    showSteps();
}

/// One step for each time that the key is pressed, however long.
QAction* EditMenu::add(const QString& name, QKeySequence::StandardKey key) {
    QAction* action = addAction(QString());
    action->setObjectName(name);
    action->setShortcuts(key);
    action->setAutoRepeat(false);
    action->setMenuRole(QAction::NoRole);
    return action;
}

void EditMenu::showSteps() {
    const ChangeHistory& changes = store.changes();
    showStep(*undo, changes.undoable(), !status.isBusy(), qtTrId("menuUndoStep"), qtTrId("menuUndo"));
    showStep(*redo, changes.redoable(), !status.isBusy(), qtTrId("menuRedoStep"), qtTrId("menuRedo"));
}

} // namespace zel
