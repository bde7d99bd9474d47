#include "app/widgets/PaletteWatch.h"

#include <QCoreApplication>
#include <QEvent>

namespace zel {

PaletteWatch::PaletteWatch(QObject* parent) : QObject(parent) { parent->installEventFilter(this); }

PaletteWatch& PaletteWatch::ofApplication() {
    QObject* application = QCoreApplication::instance();
    auto* watch = application->findChild<PaletteWatch*>(QString(), Qt::FindDirectChildrenOnly);
    return watch ? *watch : *new PaletteWatch(application);
}

/// The filter of an application sees all its events: of the application itself there is one for each change.
bool PaletteWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange && watched == parent()) emit changed();
    return false;
}

} // namespace zel
