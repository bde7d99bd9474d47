#pragma once
// The table of readings as a spreadsheet has it: its columns, and what stands in their cells.

#include <QString>
#include <QStringList>
#include <QStringView>

#include <tl/expected.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace zel {

/// The columns, in the order in which they are written.
enum class TableColumn {
    patient,
    familyName,
    givenNames,
    record,
    dateTime,
    sys,
    dia,
    pulse,
    map,
    pp,
    mam,
    arrhythmia,
    source,
    excluded,
    reason,
    comment,
    commentFrom,
    commentTo,
    commentColour,
};

/// The titles of all columns, the same in every language.
[[nodiscard]] QStringList tableTitles();
[[nodiscard]] QString titleOf(TableColumn column);

/// Where a table has the columns that are looked for.
struct TableLayout {
    QChar delimiter;
    std::vector<std::size_t> places; ///< as the titles that were looked for
    std::size_t cells = 0;           ///< of a line
    // Columns that were not looked for, but are known by their usual titles, with or without a unit.
    std::optional<std::size_t> map{}; ///< mean arterial pressure
    std::optional<std::size_t> pp{};  ///< pulse pressure
};

/// Looks for the titles in the table's first line, whose cells are parted by commas, semicolons or tabs.
/// \return the first title that is not there, or there twice
[[nodiscard]] tl::expected<TableLayout, QString> findColumns(QStringView table, const QStringList& titles);

/// A word of the table for a number of the data file.
struct TableWord {
    std::uint32_t number;
    QStringView word;
};
[[nodiscard]] std::span<const TableWord> mamWords();
[[nodiscard]] std::span<const TableWord> arrhythmiaWords();
[[nodiscard]] std::span<const TableWord> colourWords();
/// What has no word is its number.
[[nodiscard]] QString wordOf(std::uint32_t number, std::span<const TableWord> words);
[[nodiscard]] std::optional<std::uint32_t> numberOf(const QString& cell, std::span<const TableWord> words);

/// A whole number of 32 bits, also with a decimal point or comma and nothing but zeros behind
/// it; none for anything else.
[[nodiscard]] std::optional<std::uint32_t> wholeNumber(const QString& cell);

/// The text with an apostrophe before it if a spreadsheet would take it for a formula, also behind other
/// apostrophes, so that plainText() gives back each text.
[[nodiscard]] QString safeText(const QString& text);
[[nodiscard]] QString plainText(const QString& cell);

} // namespace zel
