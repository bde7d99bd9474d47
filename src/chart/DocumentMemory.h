#pragma once

#include "chart/StyleTable.h"

#include <QGlyphRun>
#include <QHash>
#include <QString>
#include <QSvgRenderer>

#include <map>
#include <memory>
#include <utility>

class QPainter;

namespace zel {

/// What the pages of one PDF have in common, so that it is worked out once for all of them: a table says the
/// same few numbers and times over and over, and finding a text's glyphs takes a third as long as all that is
/// done for it. For one document, painted by one painter.
class DocumentMemory {
public:
    /// The glyphs of the text in the painter's font, which is that of \p attribute, on a base line that
    /// begins at the origin. None where it is not known that they make the same page: of any text but a short
    /// one in ASCII, and on other paper than a PDF's. Holds until the next call.
    [[nodiscard]] const QGlyphRun* glyphs(const QPainter& painter, const QString& text,
                                          const TextAttribute& attribute);
    /// An image of the resources; in greys, those that are written as #rrggbb.
    [[nodiscard]] QSvgRenderer& image(const QString& name, bool isGrey = false);

private:
    using Glyphs = QHash<QString, QGlyphRun>;
    std::map<std::pair<int, bool>, Glyphs> texts;                             ///< by size and weight
    std::map<std::pair<QString, bool>, std::unique_ptr<QSvgRenderer>> images; ///< by name, and isGrey
};

} // namespace zel
