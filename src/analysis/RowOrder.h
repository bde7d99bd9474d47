#pragma once

#include "analysis/ReadingRows.h"

#include <vector>

namespace zel {

/// By date; rows of the same instant keep their order. In linear time, however the rows are mixed.
void sortByDate(std::vector<ReadingRow>& rows);

} // namespace zel
