#pragma once

#include <QTextDocument>

namespace help {

/// How the manual looks on its pages: type, space, tables, figures, where pages end.
void dress(QTextDocument& document);

/// The headings that the contents list: level 2 of the source.
inline constexpr int chapterLevel = 2;

} // namespace help
