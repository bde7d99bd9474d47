#pragma once

#include "analysis/DisplayPeriod.h"
#include "analysis/Histogram.h"
#include "app/widgets/PictureView.h"
#include "app/widgets/SeenWork.h"
#include "chart/DrawHistogram.h"
#include "store/DataStore.h"

namespace zel {

/// How the values of the period's readings are distributed.
class HistogramView final : public PictureView {
    Q_OBJECT
public:
    HistogramView(const DataStore& dataStore, const DisplayPeriod& displayPeriod, QWidget* parent);
    void reload() { reading.want(); }

protected:
    [[nodiscard]] Picture makePicture(const Rect& rect) override;

private:
    void read();
    [[nodiscard]] QString words() const;

    const DataStore& store;
    const DisplayPeriod& period;
    HistogramFigures figures; ///< their percent axes stay where no reading counts
    HistogramOffScale offScale{};
    SeenWork reading{*this, [this] { read(); }};
};

} // namespace zel
