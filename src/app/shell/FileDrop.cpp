#include "app/shell/FileDrop.h"

#include "app/settings/ImportController.h"
#include "app/widgets/PatientTexts.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// By its name alone: a look at the file might wait for a share.
bool isXmlHere(const QUrl& url) { return url.isLocalFile() && url.path().endsWith(".xml"_L1); }

QString nameOfDropped(const QUrl& url) {
    constexpr int longest = 60;
    const QString name = url.fileName();
    return shortText(name.isEmpty() ? url.toDisplayString() : name, longest);
}

} // namespace

FileDrop::FileDrop(const Parts& needed, QWidget* over)
    : QObject(over), panel(needed.panel), window(over),
      importer(new ImportController({needed.store, needed.panel, needed.chooser}, over)) {
    window->setAcceptDrops(true);
    QCoreApplication::instance()->installEventFilter(this);
    connect(importer, &ImportController::imported, this, &FileDrop::imported);
}

bool FileDrop::isWanted(const QDropEvent& event) {
    if (!(event.possibleActions() & Qt::CopyAction)) return false;
    return std::ranges::any_of(event.mimeData()->urls(), &QUrl::isLocalFile);
}

/// While a question stands, nothing is begun: the pointer says so.
bool FileDrop::refuse(QDropEvent& event) {
    event.ignore();
    return true; // nor does a field behind the question take the files' names
}

/// Always a copy: after a move the other program would remove the file.
bool FileDrop::eventFilter(QObject* watched, QEvent* event) {
    const auto kind = event->type();
    if (kind == QEvent::WindowUnblocked && watched == window) takeSoon();
    if (kind != QEvent::DragEnter && kind != QEvent::DragMove && kind != QEvent::Drop) return false;
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (!widget || widget->window() != window) return false;
    auto& drop = *static_cast<QDropEvent*>(event);
    if (kind != QEvent::DragMove) isWelcome = isWanted(drop);
    if (!isWelcome) return false;
    // What was begun before the question came up is taken: the other program may tell nobody of a refusal.
    if (kind == QEvent::DragEnter) isRefused = QApplication::activeModalWidget();
    if (isRefused) return refuse(drop);
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    if (kind == QEvent::Drop) {
        waiting += drop.mimeData()->urls();
        QMetaObject::invokeMethod(this, &FileDrop::takeWaiting, Qt::QueuedConnection);
    }
    return true;
}

/// The list that comes up then must not take the keys that were meant for the question. It is no message of
/// the panel's: while it is open, others may still come up.
void FileDrop::takeSoon() {
    if (waiting.isEmpty()) return;
    panel.interject(
        this, [this] { QMetaObject::invokeMethod(this, &FileDrop::takeWaiting, Qt::QueuedConnection); });
}

/// Those that are dropped while a question stands wait for its end.
void FileDrop::takeWaiting() {
    if (waiting.isEmpty() || QApplication::activeModalWidget()) return;
    take(std::exchange(waiting, {}));
}

void FileDrop::take(const QList<QUrl>& dropped) {
    QStringList files;
    QStringList others;
    for (const QUrl& url : dropped) {
        if (!isXmlHere(url))
            others += nameOfDropped(url);
        else if (const QString path = url.toLocalFile(); !files.contains(path))
            files += path;
    }
    const QString remark = others.isEmpty() ? QString() : qtTrId("dropLeftOut").arg(listInShort(others));
    window->activateWindow();
    if (files.isEmpty()) return panel.ShowMessage(remark, qtTrId("importTitle"));
    importer->importAmong(files, remark);
}

} // namespace zel
