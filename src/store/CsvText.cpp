#include "store/CsvText.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QString csvCell(QString cell) {
    const bool isQuoted = std::ranges::any_of(cell, [](QChar c) { return u",\"\r\n"_s.contains(c); });
    return isQuoted ? u'"' + cell.replace(u'"', "\"\""_L1) + u'"' : cell;
}

} // namespace

QString csvLine(const QStringList& cells) {
    QStringList line;
    line.reserve(cells.size());
    for (const QString& cell : cells)
        line.append(csvCell(cell));
    return line.join(u',');
}

bool CsvReader::next() {
    if (at == text.size()) return false;
    kept.clear();
    total = 0;
    whole = true;
    firstLine = nextLine;
    while (takeCell()) {
    }
    return true;
}

bool CsvReader::isBlank() const {
    return std::ranges::all_of(kept, [](const QString& cell) { return cell.trimmed().isEmpty(); });
}

/// \return whether another cell of the record follows
bool CsvReader::takeCell() {
    const bool isQuoted = at < text.size() && text[at] == u'"';
    QString cell = isQuoted ? quoted() : plain().toString();
    if (++total <= mostCells) kept.push_back(std::move(cell));
    if (at == text.size()) return false;
    const QChar end = text[at++];
    if (end == delimiter) return true;
    if (end == u'\r' && at < text.size() && text[at] == u'\n') ++at;
    ++nextLine;
    return false;
}

QString CsvReader::quoted() {
    QString cell;
    for (;;) {
        const qsizetype from = at + 1;
        const qsizetype mark = text.indexOf(u'"', from);
        const QStringView part = mark < 0 ? text.mid(from) : text.mid(from, mark - from);
        cell += part;
        countLines(part);
        at = mark < 0 ? text.size() : mark + 1;
        if (mark < 0) whole = false;
        if (at == text.size() || text[at] != u'"') break;
        cell += u'"';
    }
    if (at < text.size() && !isAtCellEnd()) {
        whole = false;
        cell += plain();
    }
    return cell;
}

QStringView CsvReader::plain() {
    const qsizetype from = at;
    while (at < text.size() && !isAtCellEnd())
        ++at;
    return text.mid(from, at - from);
}

bool CsvReader::isAtCellEnd() const {
    const QChar c = text[at];
    return c == delimiter || c == u'\n' || c == u'\r';
}

void CsvReader::countLines(QStringView part) {
    for (qsizetype i = 0; i < part.size(); ++i) {
        const bool isFirstOfTwo = part[i] == u'\r' && i + 1 < part.size() && part[i + 1] == u'\n';
        if (part[i] == u'\n' || (part[i] == u'\r' && !isFirstOfTwo)) ++nextLine;
    }
}

} // namespace zel
