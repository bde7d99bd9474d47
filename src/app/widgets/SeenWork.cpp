#include "app/widgets/SeenWork.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace zel {

SeenWork::SeenWork(QWidget& shown, std::function<void()> toDo) : widget(shown), work(std::move(toDo)) {
    widget.installEventFilter(this);
}

void SeenWork::want() {
    isWanted = true;
    if (widget.isVisible()) doNow();
}

void SeenWork::doNow() {
    isWanted = false; // what the work itself changes is work again
    work();
}

bool SeenWork::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && isWanted) doNow();
    return QObject::eventFilter(watched, event);
}

} // namespace zel
