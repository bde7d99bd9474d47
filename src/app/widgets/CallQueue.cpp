#include "app/widgets/CallQueue.h"

#include <QCoreApplication>
#include <QEvent>

namespace zel {

CallQueue::~CallQueue() {
    const std::scoped_lock lock(mutex);
    calls.clear();
}

void CallQueue::post(std::function<void()> call) {
    {
        const std::scoped_lock lock(mutex);
        calls.push_back(std::move(call));
    }
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

std::function<void()> CallQueue::takeNext() {
    const std::scoped_lock lock(mutex);
    auto next = std::move(calls.front());
    calls.pop_front();
    return next;
}

/// One event was posted for each call.
bool CallQueue::event(QEvent* event) {
    if (event->type() != QEvent::User) return QObject::event(event);
    takeNext()();
    return true;
}

} // namespace zel
