#pragma once

#include "analysis/DisplayPeriod.h"
#include "analysis/Statistic.h"
#include "app/widgets/Spoken.h"
#include "store/DataStore.h"

#include <QWidget>

namespace zel {

/// The table of averages, minima and maxima.
class StatisticView final : public QWidget, public SpokenTable {
    Q_OBJECT
public:
    StatisticView(const DataStore& dataStore, const DisplayPeriod& displayPeriod, QWidget* parent);

    /// The figures may be others now.
    void calc();
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] std::vector<QStringList> spokenRows() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool showsMap() const { return store.getSetting().showPPorMap != 0; }
    [[nodiscard]] QString words() const;

    const DataStore& store;
    const DisplayPeriod& period;
    StatisticFigures figures; ///< kept, as a layout asks for the size many times
};

} // namespace zel
