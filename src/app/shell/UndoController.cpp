#include "app/shell/UndoController.h"

#include "app/widgets/PatientTexts.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>

namespace zel {

namespace {

/// A field in which nothing was typed, or nothing that could be taken back or made again.
bool isUntouched(const QObject* field) {
    if (const auto* line = qobject_cast<const QLineEdit*>(field))
        return !line->isUndoAvailable() && !line->isRedoAvailable();
    const auto* text = qobject_cast<const QPlainTextEdit*>(field);
    return text && !text->document()->isUndoAvailable() && !text->document()->isRedoAvailable();
}

} // namespace

QString shortStepName(StepName name) {
    name.subject = shortText(name.subject);
    return describe(name);
}

UndoController::UndoController(const Parts& needed, QObject* parent) : QObject(parent), parts(needed) {
    QCoreApplication::instance()->installEventFilter(this);
}

/// A field asks for these keys whether it has use for them or not.
bool UndoController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride || !isUntouched(watched)) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (!key->matches(QKeySequence::Undo) && !key->matches(QKeySequence::Redo)) return false;
    if (parts.isEdited()) return false; // it is meant for what is typed
    event->ignore();
    return true;
}

void UndoController::retrace(bool back) {
    const ChangeStep* step = back ? parts.store.changes().undoable() : parts.store.changes().redoable();
    if (!step || parts.status.isBusy()) return;
    const StepName name = step->name;
    const QScopedValueRollback working(isAtWork, true);
    const StoreResult result = back ? parts.store.undo() : parts.store.redo();
    const QString text = shortStepName(name);
    if (isInPlace(result)) {
        emit retraced(name);
        emit said((back ? qtTrId("undone") : qtTrId("redone")).arg(text));
    }
    if (!result) return tell(back, text, result.error());
    if (const StoreResult& read = parts.store.lastLoad(); !read)
        parts.panel.ShowMessage(qtTrId("storedNotReadBack").arg(describe(read.error())), qtTrId("Warning"));
}

void UndoController::tell(bool back, const QString& name, const StoreError& error) {
    QString text = describe(error);
    if (error.code != StoreErrorCode::notFlushed)
        text = (back ? qtTrId("undoFailed") : qtTrId("redoFailed")).arg(name, text);
    if (isStepRefusal(error.code)) text += qtTrId("undoDropped");
    parts.panel.ShowMessage(text, qtTrId("Warning"));
}

} // namespace zel
