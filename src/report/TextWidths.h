#pragma once

#include "chart/StyleTable.h"

#include <QHash>
#include <QString>

#include <map>
#include <utility>

namespace zel {

/// How wide texts are, each measured once: a table says the same few numbers and times over and over, and
/// measuring a text takes as long as writing it.
class TextWidths {
public:
    /// In the units of the picture.
    [[nodiscard]] double of(const QString& text, const TextAttribute& attribute);

private:
    std::map<std::pair<int, bool>, QHash<QString, double>> known; ///< by size and weight
};

} // namespace zel
