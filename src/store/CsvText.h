#pragma once
// Tables as text: records of cells, by RFC 4180.

#include <QString>
#include <QStringList>
#include <QStringView>

#include <cstddef>
#include <vector>

namespace zel {

/// The cells as one line without its end; a cell is quoted where RFC 4180 asks for it.
[[nodiscard]] QString csvLine(const QStringList& cells);

/// Goes through a text record by record. Lines end with LF, CR or both.
class CsvReader {
public:
    /// As many of a record's cells are kept; more are counted only.
    static constexpr std::size_t mostCells = 1000;

    CsvReader(QStringView table, QChar between) : text{table}, delimiter{between} {}
    /// Goes to the next record. \return false at the end
    [[nodiscard]] bool next();
    [[nodiscard]] const std::vector<QString>& cells() const { return kept; }
    /// Of all cells, also those that are not kept.
    [[nodiscard]] std::size_t count() const { return total; }
    /// Where the record begins, from 1 on.
    [[nodiscard]] std::size_t line() const { return firstLine; }
    /// Whether every quotation mark that opens a cell is closed at its end.
    [[nodiscard]] bool isWhole() const { return whole; }
    /// Nothing but empty cells, as spreadsheets have below a table.
    [[nodiscard]] bool isBlank() const;

private:
    [[nodiscard]] bool takeCell();
    [[nodiscard]] QString quoted();
    [[nodiscard]] QStringView plain();
    [[nodiscard]] bool isAtCellEnd() const;
    void countLines(QStringView part);

    QStringView text;
    QChar delimiter;
    qsizetype at = 0;
    std::vector<QString> kept;
    std::size_t total = 0;
    std::size_t firstLine = 1;
    std::size_t nextLine = 1;
    bool whole = true;
};

} // namespace zel
