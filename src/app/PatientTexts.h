#pragma once

#include "store/DataStore.h"

#include <QString>

namespace zel {

/// The current patient's name and ID as a page shows them; says so when none is selected.
[[nodiscard]] QString patientHeading(const DataStore& store);
/// How many readings the current patient has, and from when to when.
[[nodiscard]] QString readingSummary(const DataStore& store);

} // namespace zel
