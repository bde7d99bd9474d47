#include "app/settings/BackupCourier.h"

#include <QFileInfo>

#include <thread>
#include <utility>

namespace zel {

namespace {

constexpr std::chrono::seconds longestWaitAtEnd{2};

} // namespace

BackupCourier::BackupCourier(const DataStore& dataStore, const Clock& wallClock, QObject* parent)
    : QObject(parent), store(dataStore), clock(wallClock) {
    mailbox->calls = &calls;
}

BackupCourier::~BackupCourier() {
    std::unique_lock lock(mailbox->mutex);
    // By the system's clock, whose waiting the thread sanitizer knows.
    mailbox->emptied.wait_until(lock, std::chrono::system_clock::now() + longestWaitAtEnd,
                                [this] { return mailbox->underWay == 0; });
    mailbox->calls = nullptr;
}

Instant BackupCourier::now() const { return std::chrono::floor<std::chrono::milliseconds>(clock.now()); }

void BackupCourier::run(const std::function<Then()>& job) {
    {
        const std::scoped_lock lock(mailbox->mutex);
        ++mailbox->underWay;
    }
    std::thread([box = mailbox, job] {
        Then then = job();
        const std::scoped_lock lock(box->mutex);
        --box->underWay;
        if (box->calls) box->calls->post(std::move(then));
        box->emptied.notify_all();
    }).detach();
}

void BackupCourier::bring() {
    isWantedAgain = isUnderWay;
    if (isUnderWay) return;
    const auto second = secondFolder(store.getZELXMLPath());
    if (!second) return tell(second.error());
    const QString backups = store.backups().folder();
    const QString name = backupName(BackupKind::daily, now());
    if (!*second || !QFileInfo::exists(backups + u'/' + name)) return;
    const QString what = (*second)->path(name);
    if (what == last) return;
    isUnderWay = true;
    run([this, backups, to = **second, what, day = LocalZone{}.day(now())] {
        SecondFolderResult result = bringCopy(backups, to, day);
        return [this, result = std::move(result), what] { ended(result, what); };
    });
}

void BackupCourier::ended(const SecondFolderResult& result, const QString& what) {
    isUnderWay = false;
    if (result) {
        last = what;
        emit brought();
    } else {
        tell(result.error());
    }
    if (std::exchange(isWantedAgain, false)) bring();
}

void BackupCourier::look() {
    const auto second = secondFolder(store.getZELXMLPath());
    if (!second || !*second) return;
    run([this, folder = **second] {
        return [this, folder, copies = folder.list()] { emit listed(folder, copies); };
    });
}

/// A record that is broken cannot note that it was told.
void BackupCourier::tell(const SecondFolderError& error) {
    const DayNumber today = LocalZone{}.day(now());
    if (std::exchange(toldOn, today) == today) return;
    if (isFirstFailure(store.getZELXMLPath(), today)) emit failed(describe(error));
}

} // namespace zel
