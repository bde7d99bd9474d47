#pragma once

#include "analysis/DisplayPeriod.h"
#include "store/DataStore.h"

#include <QObject>

namespace zel {

/// Has the display period follow the current patient and the file. Pages that show readings hear of a change
/// before the period does, when this is made after them.
class PeriodFollower final : public QObject {
    Q_OBJECT
public:
    PeriodFollower(const DataStore& dataStore, DisplayPeriod& displayPeriod, QObject* parent);

    /// For a page about to be shown: a patient that no page has shown yet begins with the default period.
    void prepare();
    /// The patient's readings are shown as those of a newly chosen one.
    void startAnew();

private:
    void changeUser();

    const DataStore& store;
    DisplayPeriod& period;
};

} // namespace zel
