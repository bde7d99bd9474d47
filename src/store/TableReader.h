#pragma once
// One line of a table of readings to one reading.

#include "store/CsvText.h"
#include "store/ReadingTable.h"
#include "store/TableColumns.h"

#include <QString>

#include <tl/expected.hpp>

#include <optional>

namespace zel {

/// What one line of a table says.
struct TableLine {
    QString ID;
    QString familyName;
    QString givenNames;
    ReadingModel reading;
    std::optional<CommentModel> comment;
};

/// The present, and where the computer is.
struct TablePlace {
    Instant now;
    LocalZone zone;
};

// The reason why a line cannot be taken is in words for the user.

/// Of a table of this program.
[[nodiscard]] tl::expected<TableLine, QString> readOwnLine(const CsvReader& line, const TableLayout& layout,
                                                           const TablePlace& place);

/// The titles to look for in another program's table, for readForeignLine().
[[nodiscard]] QStringList titlesOf(const ForeignColumns& columns);
/// Of another program's; without a patient.
[[nodiscard]] tl::expected<TableLine, QString>
readForeignLine(const CsvReader& line, const TableLayout& layout, DateOrder dates, const TablePlace& place);

/// The beginning of a cell, as a reason names it.
[[nodiscard]] QString shortCell(const QString& cell);

} // namespace zel
