#include "app/shell/FileDrop.h"

#include "app/settings/ImportController.h"
#include "app/widgets/PatientTexts.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

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

QString listOf(const QStringList& names) {
    constexpr qsizetype shown = 6;
    const QString listed = names.mid(0, shown).join(qtTrId(", "));
    return names.size() > shown ? listed + u", …"_s : listed;
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
    if (QApplication::activeModalWidget() || !(event.possibleActions() & Qt::CopyAction)) return false;
    return std::ranges::any_of(event.mimeData()->urls(), &QUrl::isLocalFile);
}

/// Always a copy: after a move the other program would remove the file.
bool FileDrop::eventFilter(QObject* watched, QEvent* event) {
    const auto kind = event->type();
    if (kind != QEvent::DragEnter && kind != QEvent::DragMove && kind != QEvent::Drop) return false;
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (!widget || widget->window() != window) return false;
    auto& drop = *static_cast<QDropEvent*>(event);
    if (kind != QEvent::DragMove) isWelcome = isWanted(drop);
    if (!isWelcome) return false;
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    if (kind == QEvent::Drop)
        QMetaObject::invokeMethod(
            this, [this, urls = drop.mimeData()->urls()] { take(urls); }, Qt::QueuedConnection);
    return true;
}

void FileDrop::take(const QList<QUrl>& dropped) {
    if (QApplication::activeModalWidget()) return; // a question came up in between
    QStringList files;
    QStringList others;
    for (const QUrl& url : dropped) {
        if (!isXmlHere(url))
            others += nameOfDropped(url);
        else if (const QString path = url.toLocalFile(); !files.contains(path))
            files += path;
    }
    const QString remark = others.isEmpty() ? QString() : qtTrId("dropLeftOut").arg(listOf(others));
    window->activateWindow();
    if (files.isEmpty()) return panel.ShowMessage(remark, qtTrId("importTitle"));
    importer->importAmong(files, remark);
}

} // namespace zel
