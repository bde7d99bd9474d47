#pragma once

#include "store/CsvText.h"

namespace zel::cli {

using zel::csvLine;

} // namespace zel::cli
