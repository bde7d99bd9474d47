#pragma once

#include "chart/StyleTable.h"

#include <QFontMetricsF>
#include <QHash>
#include <QString>

#include <map>
#include <utility>

namespace zel {

/// How wide texts are, each measured once: a table says the same few numbers and times over and over, and
/// measuring a text takes as long as writing it. Looking up the font takes as long as measuring, and is done
/// once, too.
class TextWidths {
public:
    /// In the units of the picture.
    [[nodiscard]] double of(const QString& text, const TextAttribute& attribute);

private:
    struct Type {
        QFontMetricsF metrics;
        QHash<QString, double> widths;
    };
    [[nodiscard]] Type& typeOf(const TextAttribute& attribute);

    std::map<std::pair<int, bool>, Type> known; ///< by size and weight
};

/// \p widths: where those that were measured are kept, or none.
[[nodiscard]] double widthOf(const QString& text, const TextAttribute& attribute, TextWidths* widths);

} // namespace zel
