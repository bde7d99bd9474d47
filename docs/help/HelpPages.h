#pragma once

#include <QString>
#include <QTextDocument>

class QPdfWriter;

namespace help {

/// The words around the manual's own text.
struct Words {
    QString title;    ///< its first heading
    QString version;  ///< of the program, "Version 1.0"
    QString contents; ///< the heading of the list of chapters
};

/// Size of the text on a page, in points.
[[nodiscard]] QSizeF textSize();

/// A first page with the title and the contents, then the document, with its page numbers below.
/// \return false if the file could not be written
[[nodiscard]] bool paintPages(QPdfWriter& writer, QTextDocument& document, const Words& words);

} // namespace help
