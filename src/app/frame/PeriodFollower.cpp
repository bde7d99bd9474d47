#include "app/frame/PeriodFollower.h"

namespace zel {

PeriodFollower::PeriodFollower(const DataStore& dataStore, DisplayPeriod& displayPeriod, QObject* parent)
    : QObject(parent), store(dataStore), period(displayPeriod) {
    connect(&store, &DataStore::currentIDChanged, this, &PeriodFollower::changeUser);
    connect(&store, &DataStore::reloaded, this,
            [this] { period.refreshDataPeriod(store.getReadingForCurID()); });
}

void PeriodFollower::prepare() {
    if (period.isChangeUser()) period.setCurrentReadingTimePeriod(store.getReadingForCurID());
}

void PeriodFollower::startAnew() { period.setChangeUser(true); }

/// Another patient is shown, over the default period of the data.
void PeriodFollower::changeUser() {
    startAnew();
    prepare();
}

} // namespace zel
