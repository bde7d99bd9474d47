#include "app/settings/BackupCourier.h"

#include <QFileInfo>

#include <utility>

namespace zel {

BackupCourier::BackupCourier(const DataStore& dataStore, const Clock& wallClock, QObject* parent,
                             std::chrono::milliseconds patience, Carry carrying)
    : QObject(parent), store(dataStore), clock(wallClock), carry(std::move(carrying)) {
    waited.setSingleShot(true);
    waited.setInterval(patience);
    connect(&waited, &QTimer::timeout, this, &BackupCourier::giveUp);
}

Instant BackupCourier::now() const { return std::chrono::floor<std::chrono::milliseconds>(clock.now()); }

void BackupCourier::bring() {
    isWantedAgain = !underWay.isEmpty();
    if (isWantedAgain) return;
    const auto second = secondFolder(store.getZELXMLPath());
    if (!second) return tell(second.error());
    const QString backups = store.backups().folder();
    const QString name = backupName(BackupKind::daily, now());
    if (!*second || !QFileInfo::exists(backups + u'/' + name)) return;
    const QString what = (*second)->path(name);
    if (what == last) return;
    const QString folder = (*second)->copies();
    isWantedAgain = hanging.contains(folder);
    if (isWantedAgain) return;
    underWay = folder;
    waited.start();
    jobs.run([this, act = carry, backups, to = **second, folder, what, day = LocalZone{}.day(now())] {
        SecondFolderResult result = act(backups, to, day);
        return [this, result = std::move(result), folder, what] { ended(result, folder, what); };
    });
}

/// What comes late and failed was told by then.
void BackupCourier::ended(const SecondFolderResult& result, const QString& folder, const QString& what) {
    const bool isLate = hanging.remove(folder);
    if (!isLate) {
        waited.stop();
        underWay.clear();
    }
    if (result) {
        last = what;
        emit brought();
    } else if (!isLate) {
        tell(result.error());
    }
    goOn();
}

void BackupCourier::giveUp() {
    const QString folder = std::exchange(underWay, QString());
    hanging.insert(folder);
    tell({SecondFolderProblem::failed, QFileInfo(folder).path(), {}});
    goOn();
}

void BackupCourier::goOn() {
    if (std::exchange(isWantedAgain, false)) bring();
}

void BackupCourier::look() {
    const auto second = secondFolder(store.getZELXMLPath());
    if (!second || !*second) return;
    jobs.run([this, folder = **second] {
        return [this, folder, copies = folder.list()] { emit listed(folder, copies); };
    });
}

/// A record that is broken cannot note that it was told.
void BackupCourier::tell(const SecondFolderError& error) {
    const DayNumber today = LocalZone{}.day(now());
    const bool isSameFolder = std::exchange(told, error.folder) == error.folder;
    if (std::exchange(toldOn, today) == today && isSameFolder) return;
    if (isFirstFailure(store.getZELXMLPath(), today)) emit failed(describe(error));
}

} // namespace zel
