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

DataWatch::DataWatch(DataStore& dataStore, QWidget& window, const Timing& timing, Look seeing)
    : store(dataStore), looking(std::move(seeing)), keyboard(timing.interval) {
    window.installEventFilter(this);
    connect(&timer, &QTimer::timeout, this, &DataWatch::look);
    waited.setSingleShot(true);
    waited.setInterval(timing.patience);
    connect(&waited, &QTimer::timeout, this, &DataWatch::tellUnreadable);
    timer.start(timing.interval);
}

bool DataWatch::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::WindowActivate) look();
    return false;
}

void DataWatch::look() {
    if (std::exchange(isLooking, true)) return;
    waited.start();
    jobs.run([this, see = looking, path = store.getZELXMLPath()] {
        return [this, seen = see(path)] { looked(seen); };
    });
}

void DataWatch::looked(const FileStamp& seen) {
    isLooking = false;
    waited.stop();
    if (!store.isChangedElsewhere(seen)) {
        if (std::exchange(isUnreadable, false)) emit readable();
        return;
    }
    if (!std::exchange(isWaiting, true)) keyboard.whenStill(this, [this] { takeChanges(); });
}

void DataWatch::tellUnreadable() {
    if (!std::exchange(isUnreadable, true)) emit unreadable();
}

/// Its own save may have come between the look and this.
void DataWatch::takeChanges() {
    isWaiting = false;
    if (isUserAtWork() || !store.isChangedElsewhere()) return;
    const StoreResult taken = store.takeChanges();
    if (taken) {
        isUnreadable = false;
        return emit shown();
    }
    if (!isUnreadable)
        qCWarning(lcApp, "The changed data file cannot be read: %s", qUtf8Printable(describe(taken.error())));
    tellUnreadable();
}

} // namespace zel
