#pragma once
// One stored reading as the monitor sends it, 32 bytes, made into a ReadingModel. Never fails: what is no
// number counts as 0, what is no date leaves none.

#include "monitor/ModelCapability.h"
#include "store/ReadingModel.h"

#include <string_view>

namespace zel {

/// \param capability of the model that the record comes from: it gives the flag byte its meaning
[[nodiscard]] ReadingModel initWithUSBData(std::string_view record, const QString& ID,
                                           ModelCapability capability);

[[nodiscard]] std::uint32_t convertPulse(std::string_view digits);    ///< 2 characters, beats per minute
[[nodiscard]] std::uint32_t convertDiastole(std::string_view digits); ///< 3 characters, mmHg
[[nodiscard]] std::uint32_t convertSystole(std::string_view digits);  ///< 2 characters, mmHg

} // namespace zel
