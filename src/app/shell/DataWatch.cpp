#include "app/shell/DataWatch.h"

#include "app/widgets/Log.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace zel {

namespace {

/// Whoever answers or drags has begun with the records that are shown.
bool isUserAtWork() {
    return QApplication::activeModalWidget() || QApplication::activePopupWidget()
           || QApplication::mouseButtons() != Qt::NoButton;
}

} // namespace

DataWatch::DataWatch(DataStore& dataStore, QWidget& window, std::chrono::milliseconds interval)
    : store(dataStore), keyboard(interval) {
    window.installEventFilter(this);
    connect(&timer, &QTimer::timeout, this, &DataWatch::look);
    timer.start(interval);
}

bool DataWatch::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::WindowActivate) look();
    return false;
}

void DataWatch::look() {
    if (!store.isChangedElsewhere()) {
        if (std::exchange(isUnreadable, false)) emit readable();
        return;
    }
    if (!std::exchange(isWaiting, true)) keyboard.whenStill(this, [this] { takeChanges(); });
}

void DataWatch::takeChanges() {
    isWaiting = false;
    if (isUserAtWork() || !store.isChangedElsewhere()) return;
    const StoreResult taken = store.takeChanges();
    if (std::exchange(isUnreadable, !taken) && !taken) return; // it is told once
    if (taken) return emit shown();
    qCWarning(lcApp, "The changed data file cannot be read: %s", qUtf8Printable(describe(taken.error())));
    emit unreadable();
}

} // namespace zel
