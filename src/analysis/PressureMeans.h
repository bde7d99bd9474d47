#pragma once

#include "analysis/ExactMean.h"
#include "analysis/ReadingSelection.h"

namespace zel {

/// Of the same readings, but that the pulse may be missing.
struct PressureMeans {
    ExactMean sys; ///< mmHg
    ExactMean dia;
    ExactMean pulse; ///< beats per minute

    void add(const ReadingModel& reading) {
        sys.add(reading.sys);
        dia.add(reading.dia);
        if (isMeasured(reading.pulse)) pulse.add(reading.pulse);
    }
    /// Of the readings that were added since they were \p earlier.
    PressureMeans operator-(const PressureMeans& earlier) const {
        return {sys - earlier.sys, dia - earlier.dia, pulse - earlier.pulse};
    }
    [[nodiscard]] std::uint64_t count() const { return sys.count(); }
};

} // namespace zel
