#pragma once

#include "app/widgets/BackgroundJobs.h"
#include "store/DataStore.h"
#include "store/SecondFolder.h"

#include <QSet>
#include <QTimer>

#include <chrono>
#include <functional>

namespace zel {

/// Brings the day's copy of the data file to the second folder. A stick takes seconds, and a share may not
/// answer at all: everything there is done on a thread of its own, which is handed paths and gives its result
/// through a CallQueue.
class BackupCourier final : public QObject {
    Q_OBJECT
public:
    using Carry = std::function<SecondFolderResult(const QString&, const SecondFolder&, DayNumber)>;
    /// Both must outlive it. \param patience with a folder, before it is told and others are not held up by
    /// it
    BackupCourier(const DataStore& dataStore, const Clock& wallClock, QObject* parent,
                  std::chrono::milliseconds patience = std::chrono::minutes(1), Carry carrying = bringCopy);

    /// Unless there is no second folder, no copy of today, or it was brought already. A folder that does not
    /// answer is not asked again before it has.
    void bring();
    /// Lists the copies there; listed() follows, unless there is no second folder.
    void look();

signals:
    void brought();
    void listed(const zel::SecondFolder& folder, const std::vector<zel::Backup>& copies);
    void failed(const QString& why); ///< once a day for each folder; for the user

private:
    void ended(const SecondFolderResult& result, const QString& folder, const QString& what);
    void giveUp();
    void goOn();
    void tell(const SecondFolderError& error);
    [[nodiscard]] Instant now() const;

    const DataStore& store;
    const Clock& clock;
    QString last; ///< the place and day that are done
    Carry carry;
    QTimer waited;
    QSet<QString> hanging; ///< folders that have not answered in time, nor since
    QString underWay;      ///< the folder that is waited for
    QString told;          ///< the folder of the last failure,
    DayNumber toldOn = noDay;
    bool isWantedAgain = false;
    BackgroundJobs jobs{std::chrono::seconds{2}}; // a copy under way may be whole by then
};

} // namespace zel
