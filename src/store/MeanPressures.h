#pragma once
// What a table says of mean arterial and pulse pressure, held against systolic and diastolic pressure: where
// they are more than 2 mmHg from going together, the columns are most likely not what they are taken for.

#include "store/CsvText.h"
#include "store/ReadingModel.h"
#include "store/TableColumns.h"

#include <QString>

#include <optional>

namespace zel {

/// As a line has them, mmHg; none where it says nothing.
struct MeanPressures {
    std::optional<double> map;
    std::optional<double> pp;
};

/// Those of a reading of this program's table. 0 is none, as in the data file.
[[nodiscard]] MeanPressures meanPressuresOf(const ReadingModel& reading);
/// Those of another program's line; a cell without a number says nothing.
[[nodiscard]] MeanPressures meanPressuresOf(const CsvReader& line, const TableLayout& layout);

/// In words why they cannot be those of a reading with that systolic and diastolic pressure; null if they
/// can.
[[nodiscard]] QString meanPressureProblem(const MeanPressures& means, const ReadingModel& reading);

} // namespace zel
