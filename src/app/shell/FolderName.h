#pragma once

#include "store/PatientModel.h"

#include <QString>

#include <vector>

namespace zel {

/// The folder, or the first one above it whose path has none that is named after a patient: by family name or
/// ID, also run together with given names, without accents, or in characters. The window's memory is no place
/// for them. The user's own name is none's.
[[nodiscard]] QString folderNamingNobody(const QString& folder, const std::vector<PatientModel>& patients);

} // namespace zel
