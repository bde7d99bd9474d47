#pragma once

#include "store/Dates.h"

#include <QByteArray>
#include <QString>

namespace zel {

/// What a PDF says about itself.
struct PdfFacts {
    QString title;
    QString author;
    QString creator;
    Instant created{};
    QByteArray language = "en"; ///< as in BCP 47
};

/// The PDF with those facts in place of its own, as an incremental update behind what is there. A null array
/// for bytes that are no PDF with a plain cross-reference table.
[[nodiscard]] QByteArray withPdfFacts(QByteArray pdf, const PdfFacts& facts);

} // namespace zel
