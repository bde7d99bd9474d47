#pragma once

#include "store/PatientModel.h"

#include <QString>

#include <vector>

namespace zel {

/// The folder, or the first one above it whose path has no word of it that is a patient's family name or ID:
/// folders are named after patients, and the window's memory is no place for them. The user's own name is
/// none's.
[[nodiscard]] QString folderNamingNobody(const QString& folder, const std::vector<PatientModel>& patients);

} // namespace zel
