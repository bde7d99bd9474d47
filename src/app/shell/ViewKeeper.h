#pragma once

#include "store/ViewMemory.h"

class QMainWindow;

namespace zel {

class DataStore;
class DisplayPeriod;
class GraphViewController;
class PatientViewController;
class PeriodFollower;
class TableViewController;

/// Has window, patient, days, the measuring week's rule, columns and the chart page's view found again as
/// they were left. What is gone or cannot be understood is as at a first start, without a word.
class ViewKeeper {
public:
    struct Parts {
        ViewMemory& memory;
        QMainWindow& window;
        DataStore& store;
        DisplayPeriod& period;
        PeriodFollower& follower;
        PatientViewController& patients;
        GraphViewController& chart;
        TableViewController& table;
    };
    explicit ViewKeeper(const Parts& needed) : parts(needed) {}

    /// What is the same for all patients: where the window was, how the table's columns were arranged, the
    /// measuring week's rule, and whether the trend has mornings and evenings apart.
    void restoreWindow();
    /// The patient, with the days that were chosen. \return the name of the page that was in view
    [[nodiscard]] QString restorePatient();
    /// Keeps how it is now; a window that was never shown changes nothing. \p page: the name of the one in
    /// view
    void keep(const QString& page);

private:
    void restorePeriod();

    Parts parts;
};

} // namespace zel
