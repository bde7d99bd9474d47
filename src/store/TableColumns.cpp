#include "store/TableColumns.h"

#include "store/CsvText.h"

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<TableWord, 2> yesOrNo{{{0, u"no"}, {1, u"yes"}}};
constexpr std::array<TableWord, 5> findings{
    {{0, u""}, {1, u"no PAD"}, {2, u"PAD"}, {4, u"no AFib"}, {5, u"AFib"}}};
constexpr std::array<TableWord, 4> colours{{{1, u"grey"}, {2, u"orange"}, {3, u"blue"}, {4, u"yellow"}}};

/// The column with that title, as in "MAP" or "map (mmHg)"; none where there are two, or where it was looked
/// for as another one.
std::optional<std::size_t> usualColumn(const CsvReader& header, const TableLayout& layout,
                                       const QString& title) {
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < header.cells().size(); ++i) {
        QString cell = header.cells()[i].simplified();
        cell.remove(u"(mmHg)"_s, Qt::CaseInsensitive).remove(u"[mmHg]"_s, Qt::CaseInsensitive);
        if (cell.trimmed().compare(title, Qt::CaseInsensitive) != 0) continue;
        if (found || std::ranges::find(layout.places, i) != layout.places.end()) return {};
        found = i;
    }
    return found;
}

tl::expected<TableLayout, QString> layoutOf(const CsvReader& header, QChar delimiter,
                                            const QStringList& titles) {
    TableLayout layout{.delimiter = delimiter, .places = {}, .cells = header.count()};
    for (const QString& title : titles) {
        const auto isTitle = [&title](const QString& cell) { return cell.trimmed() == title; };
        const auto found = std::ranges::find_if(header.cells(), isTitle);
        const auto end = header.cells().end();
        if (found == end || std::find_if(found + 1, end, isTitle) != end) return tl::unexpected{title};
        layout.places.push_back(static_cast<std::size_t>(found - header.cells().begin()));
    }
    layout.map = usualColumn(header, layout, u"map"_s);
    layout.pp = usualColumn(header, layout, u"pp"_s);
    return layout;
}

/// What a cell begins with that spreadsheets calculate, also in the wide forms of East Asian input.
bool wouldCalculate(const QString& text) {
    const auto* const first =
        std::ranges::find_if(text, [](QChar c) { return c != u'\'' && c != u' ' && c != QChar::Nbsp; });
    return first != text.end() && u"=+-@\t\r\n\uFF1D\uFF0B\uFF0D\uFF20"_s.contains(*first);
}

} // namespace

QStringList tableTitles() {
    return {u"patient"_s, u"family_name"_s,  u"given_names"_s, u"record"_s,        u"date_time"_s,
            u"sys"_s,     u"dia"_s,          u"pulse"_s,       u"map"_s,           u"pp"_s,
            u"mam"_s,     u"arrhythmia"_s,   u"source"_s,      u"excluded"_s,      u"reason"_s,
            u"comment"_s, u"comment_from"_s, u"comment_to"_s,  u"comment_colour"_s};
}

QString titleOf(TableColumn column) { return tableTitles().at(static_cast<qsizetype>(column)); }

tl::expected<TableLayout, QString> findColumns(QStringView table, const QStringList& titles) {
    QString missing = titles.value(0);
    std::size_t most = 0;
    for (const QChar delimiter : {u',', u';', u'\t'}) {
        CsvReader header{table, delimiter};
        if (!header.next() || !header.isWhole() || header.count() > CsvReader::mostCells) continue;
        auto layout = layoutOf(header, delimiter, titles);
        if (layout) return layout;
        // The delimiter that makes most of the line is the one that was meant.
        if (header.count() > most) missing = layout.error();
        most = std::max(most, header.count());
    }
    return tl::unexpected{missing};
}

std::span<const TableWord> mamWords() { return yesOrNo; }
std::span<const TableWord> arrhythmiaWords() { return findings; }
std::span<const TableWord> colourWords() { return colours; }

QString wordOf(std::uint32_t number, std::span<const TableWord> words) {
    const auto known = std::ranges::find(words, number, &TableWord::number);
    return known == words.end() ? QString::number(number) : known->word.toString();
}

std::optional<std::uint32_t> numberOf(const QString& cell, std::span<const TableWord> words) {
    const auto known = std::ranges::find(words, cell.trimmed(), &TableWord::word);
    if (known != words.end()) return known->number;
    return wholeNumber(cell);
}

std::optional<std::uint32_t> wholeNumber(const QString& cell) {
    const QString text = cell.trimmed();
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    const auto* const end = std::ranges::find_if_not(text, isDigit);
    const qsizetype digits = end - text.begin();
    if (digits == 0) return {};
    if (end != text.end()) {
        const bool isPoint = *end == u'.' || *end == u',';
        const bool isWhole = std::all_of(end + 1, text.end(), [](QChar c) { return c == u'0'; });
        if (!isPoint || !isWhole || digits + 1 == text.size()) return {};
    }
    bool fits = false;
    const std::uint32_t number = text.first(digits).toUInt(&fits);
    return fits ? std::optional{number} : std::nullopt;
}

QString safeText(const QString& text) { return wouldCalculate(text) ? u'\'' + text : text; }

QString plainText(const QString& cell) {
    return cell.startsWith(u'\'') && wouldCalculate(cell) ? cell.mid(1) : cell;
}

} // namespace zel
