#pragma once

#include "analysis/DisplayPeriod.h"
#include "app/widgets/PictureView.h"
#include "app/widgets/SeenWork.h"
#include "store/DataStore.h"

namespace zel {

/// The period's readings as points of systolic and diastolic pressure, with the limits.
class CorrelationView final : public PictureView {
    Q_OBJECT
public:
    CorrelationView(const DataStore& dataStore, const DisplayPeriod& displayPeriod, QWidget* parent);
    void reload() { reading.want(); }

protected:
    [[nodiscard]] Picture makePicture(const Rect& rect) override;

private:
    void read();
    [[nodiscard]] QString words() const;

    const DataStore& store;
    const DisplayPeriod& period;
    SeenWork reading{*this, [this] { read(); }};
};

} // namespace zel
