#include "analysis/RowOrder.h"

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>

namespace zel {

namespace {

constexpr std::uint64_t digitBits = 11;
constexpr std::uint64_t digitValues = std::uint64_t{1} << digitBits;

std::uint64_t since(Instant earliest, Instant date) {
    return static_cast<std::uint64_t>((date - earliest).count());
}

} // namespace

void sortByDate(std::vector<ReadingRow>& rows) {
    // Mostly they are in order already.
    if (std::ranges::is_sorted(rows, {}, &ReadingRow::ReadingDate)) return;
    const auto [first, last] = std::ranges::minmax_element(rows, {}, &ReadingRow::ReadingDate);
    const Instant earliest = first->ReadingDate;
    const std::uint64_t bits = std::bit_width(since(earliest, last->ReadingDate));
    std::vector<ReadingRow> sorted(rows.size());
    // A pass for each digit of the time since the earliest, from the last digit to the first.
    for (std::uint64_t shift = 0; shift < bits; shift += digitBits) {
        const auto digit = [&](const ReadingRow& row) {
            return (since(earliest, row.ReadingDate) >> shift) % digitValues;
        };
        std::array<std::size_t, digitValues> place{};
        for (const ReadingRow& row : rows)
            ++place[digit(row)];
        std::exclusive_scan(place.begin(), place.end(), place.begin(), std::size_t{0});
        for (const ReadingRow& row : rows)
            sorted[place[digit(row)]++] = row;
        rows.swap(sorted);
    }
}

} // namespace zel
