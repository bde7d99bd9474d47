#pragma once

#include "store/Dates.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace zel {

/// Where a part of a PDF begins.
struct PdfBookmark {
    QString title;
    std::size_t page = 0; ///< from 0
};

/// What a PDF says about itself.
struct PdfFacts {
    QString title;
    QString author;
    QString creator;
    Instant created{};
    std::vector<PdfBookmark> bookmarks{}; ///< in the order of their pages
    QByteArray language = "en";           ///< as in BCP 47
};

/// The PDF with those facts in place of its own, as an incremental update behind what is there. A null array
/// for bytes that are no PDF with a plain cross-reference table.
[[nodiscard]] QByteArray withPdfFacts(QByteArray pdf, const PdfFacts& facts);

} // namespace zel
