#include "app/widgets/StillKeyboard.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace zel {

StillKeyboard::StillKeyboard(std::chrono::milliseconds stillness) {
    touched.setSingleShot(true);
    touched.setInterval(stillness);
    connect(&touched, &QTimer::timeout, this, &StillKeyboard::callWaiting);
    QCoreApplication::instance()->installEventFilter(this);
}

void StillKeyboard::whenStill(QObject* context, std::function<void()> call) {
    waiting.push_back({context, std::move(call)});
    QMetaObject::invokeMethod(this, &StillKeyboard::callWaiting, Qt::QueuedConnection);
}

bool StillKeyboard::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod: touched.start(); break;
    default: break;
    }
    return false;
}

/// A call may wait for an answer, and keys are pressed meanwhile: the next one waits anew.
void StillKeyboard::callWaiting() {
    if (isCalling) return;
    isCalling = true;
    while (!waiting.empty() && !touched.isActive()) {
        const Call next = std::move(waiting.front());
        waiting.pop_front();
        if (next.context) next.call();
    }
    isCalling = false;
}

} // namespace zel
