#pragma once

#include "analysis/ExactMean.h"
#include "store/ReadingModel.h"

namespace zel {

/// Of the same readings.
struct PressureMeans {
    ExactMean sys; ///< mmHg
    ExactMean dia;
    ExactMean pulse; ///< beats per minute

    void add(const ReadingModel& reading) {
        sys.add(reading.sys);
        dia.add(reading.dia);
        pulse.add(reading.pulse);
    }
    /// Of the readings that were added since they were \p earlier.
    PressureMeans operator-(const PressureMeans& earlier) const {
        return {sys - earlier.sys, dia - earlier.dia, pulse - earlier.pulse};
    }
    [[nodiscard]] std::uint64_t count() const { return sys.count(); }
};

} // namespace zel
