#pragma once
// The table of readings for spreadsheets, out of records and as it is read.

#include "store/CommentModel.h"
#include "store/PatientImport.h"
#include "store/PatientModel.h"
#include "store/RecordLinks.h"
#include "store/TableTime.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <tl/expected.hpp>

#include <cstddef>
#include <optional>
#include <vector>

namespace zel {

/// As many readings are taken from one table: ten a day over more than fifty years.
inline constexpr std::size_t mostTableReadings = 200'000;

/// The line of titles of a table, with its end.
[[nodiscard]] QByteArray tableHeader();
/// A line for each of the patient's readings, in the order of time; before them those without a date, in the
/// order in which they are stored. UTF-8, by RFC 4180.
[[nodiscard]] QByteArray tableLines(const PatientModel& patient, const ReadingList& readings);

/// Whether a file is such a table, by its line of titles. False for one that cannot be read.
[[nodiscard]] bool isReadingTable(const QString& path);

/// The titles that another program's table has for what is taken from it.
struct ForeignColumns {
    QString date;
    QString time; ///< empty: it stands in the column of the date
    QString sys;
    QString dia;
    QString pulse;
    DateOrder dates = DateOrder::onlyIso;
};

/// What is to be done with a table.
struct TableImport {
    QString patient; ///< into whose readings, one of the list; empty: the patients of the table, as new ones
    std::optional<ForeignColumns> columns; ///< none: it is a table of this program. Needs the patient
};

/// One patient's part of a table.
struct TablePatient {
    QString ID;
    QString familyName; ///< may be empty, as may the other one
    QString givenNames;
    /// In the table's order. One without a date has getNilReadingDate(). RecID as the table has it.
    ReadingList readings;
    CommentList comments; ///< each once, without a number
};

/// What a table holds.
struct ReadingTable {
    std::vector<TablePatient> patients;
    bool isForeign = false; ///< lines that are equal are one reading
};

/// Reads the whole table; \p path is for the refusals. Nothing is taken from one with a line that cannot be
/// taken: badLines then, with each line's number and reason as detail, or noReading, tooManyLines,
/// missingColumn or notReadable. \p now: the present, after which no reading is
[[nodiscard]] tl::expected<ReadingTable, ImportRefusal>
readReadingTable(const QByteArray& content, const QString& path, const TableImport& wanted, Instant now);

/// Adds to the data file's root what it does not hold yet; \p counts says how much. A patient of the list is
/// added to only as \p wanted has it. \return why not, and then nothing is changed
[[nodiscard]] std::optional<ImportRefusal> mergeTable(pugi::xml_node root, const ReadingTable& table,
                                                      const QString& path, const TableImport& wanted,
                                                      StepRecorder& recorder, ImportCounts& counts);

} // namespace zel
