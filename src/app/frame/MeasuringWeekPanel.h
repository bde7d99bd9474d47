#pragma once

#include "analysis/DisplayPeriod.h"
#include "app/widgets/SeenWork.h"
#include "app/widgets/SidePanel.h"
#include "store/Clock.h"
#include "store/DataStore.h"

class QComboBox;

namespace zel {

class DayEdit;

/// The average of the current patient's measuring week, by the rule and up to the day that all pages share.
class MeasuringWeekPanel final : public SidePanel {
    Q_OBJECT
public:
    MeasuringWeekPanel(const DataStore& dataStore, DisplayPeriod& displayPeriod, const Clock& wallClock,
                       QWidget* parent);

    void LoadData() { showing.want(); }

signals:
    void dayRefused(const QString& why); ///< what was typed is no day; the field shows the week's end again

private:
    void showWeek();
    QLayout* makeChoices();
    void showEnd(DayNumber end);
    void showMeans(const MeasuringWeek& week);
    void showCounts(const MeasuringWeek& week);
    void pickEnd();
    QLabel* addLine(const QString& name);

    const DataStore& store;
    DisplayPeriod& period;
    const Clock& clock;
    QComboBox* cboWeekRule;
    DayEdit* weekEnd;
    QLabel* lblWeekMean;
    QLabel* lblWeekHalves;
    QLabel* lblWeekThreshold;
    QLabel* lblWeekMissing;
    QLabel* lblWeekCount;
    QLabel* lblWeekZone; ///< empty unless readings of another time zone are among them
    SeenWork showing{*this, [this] { showWeek(); }};
};

} // namespace zel
