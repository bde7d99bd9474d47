#pragma once
// The order in which the table shows its rows, which are by date as they come.

#include "analysis/ReadingRows.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace zel {

/// What each row is put in order by; none for a row that has nothing to say, which comes last either way.
using SortKeys = std::vector<std::optional<std::int64_t>>;

/// One key for each number or time, or other whole value, of a row's reading. Days without a reading have
/// none.
[[nodiscard]] SortKeys keysOf(const std::vector<ReadingRow>& rows,
                              std::optional<std::int64_t> (*key)(const ReadingModel&));
/// Keys in the order of the texts as the language sorts them, whatever their case; none for an empty one.
[[nodiscard]] SortKeys keysOf(const std::vector<QString>& texts);

/// The places of the rows in the order of their keys. Equal ones stay by date, in both directions.
[[nodiscard]] std::vector<int> placesInOrder(const SortKeys& keys, bool descending);

} // namespace zel
