#pragma once

#include "app/widgets/CallQueue.h"
#include "store/DataStore.h"
#include "store/SecondFolder.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

namespace zel {

/// Brings the day's copy of the data file to the second folder. A stick takes seconds, and a share may not
/// answer at all: everything there is done on a thread of its own, which is handed paths and gives its result
/// through a CallQueue.
class BackupCourier final : public QObject {
    Q_OBJECT
public:
    /// Both must outlive it.
    BackupCourier(const DataStore& dataStore, const Clock& wallClock, QObject* parent);
    /// What is under way may take two seconds more; what hangs is left to the end of the process.
    ~BackupCourier() override;

    /// Unless there is no second folder, no copy of today, or it was brought already.
    void bring();
    /// Lists the copies there; listed() follows, unless there is no second folder.
    void look();

signals:
    void brought();
    void listed(const zel::SecondFolder& folder, const std::vector<zel::Backup>& copies);
    void failed(const QString& why); ///< once a day; for the user

private:
    using Then = std::function<void()>;
    /// What both threads know.
    struct Mailbox {
        std::mutex mutex;
        std::condition_variable emptied;
        CallQueue* calls = nullptr; ///< null once nobody waits any more
        int underWay = 0;
    };
    void run(const std::function<Then()>& job);
    void ended(const SecondFolderResult& result, const QString& what);
    void tell(const SecondFolderError& error);
    [[nodiscard]] Instant now() const;

    const DataStore& store;
    const Clock& clock;
    CallQueue calls;
    std::shared_ptr<Mailbox> mailbox = std::make_shared<Mailbox>();
    QString last; ///< the place and day that are done
    DayNumber toldOn = noDay;
    bool isUnderWay = false;
    bool isWantedAgain = false;
};

} // namespace zel
