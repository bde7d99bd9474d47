#pragma once

#include <QTextBlock>
#include <QTextDocument>

namespace help {

/// Whether a picture stands in the block.
[[nodiscard]] bool isFigure(const QTextBlock& block);

/// Where the picture that opens a chapter does not fit on the rest of the page, moves it behind the texts
/// that fill that rest. \p heading is the chapter's.
void floatFigure(QTextDocument& document, const QTextBlock& heading);

} // namespace help
