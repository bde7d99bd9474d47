#include "app/table/ReadingOrder.h"

#include "store/Languages.h"

#include <QCollator>
#include <QHash>

#include <algorithm>
#include <numeric>

namespace zel {

SortKeys keysOf(const std::vector<ReadingRow>& rows,
                std::optional<std::int64_t> (*key)(const ReadingModel&)) {
    SortKeys keys;
    keys.reserve(rows.size());
    for (const ReadingRow& row : rows)
        keys.push_back(row.isNA() ? std::nullopt : key(*row.reading));
    return keys;
}

/// Each text is compared once, however many rows have it.
SortKeys keysOf(const std::vector<QString>& texts) {
    QHash<QString, std::int64_t> ranks;
    for (const QString& text : texts)
        if (!text.isEmpty()) ranks.insert(text, 0);
    QStringList sorted = ranks.keys();
    QCollator collator(textLocale());
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::sort(sorted, [&collator](const QString& a, const QString& b) {
        const int order = collator.compare(a, b);
        return order < 0 || (order == 0 && a < b);
    });
    for (std::int64_t rank = 0; rank < sorted.size(); ++rank)
        ranks[sorted.at(rank)] = rank;
    SortKeys keys;
    keys.reserve(texts.size());
    for (const QString& text : texts)
        keys.push_back(text.isEmpty() ? std::nullopt : std::optional(ranks.value(text)));
    return keys;
}

std::vector<int> placesInOrder(const SortKeys& keys, bool descending) {
    std::vector<int> places(keys.size());
    std::iota(places.begin(), places.end(), 0);
    std::ranges::stable_sort(places, [&](int a, int b) {
        const auto& first = keys[static_cast<std::size_t>(a)];
        const auto& second = keys[static_cast<std::size_t>(b)];
        if (!first || !second) return first.has_value() && !second.has_value();
        return descending ? *first > *second : *first < *second;
    });
    return places;
}

} // namespace zel
