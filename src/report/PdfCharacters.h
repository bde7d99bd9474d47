#pragma once

#include <QByteArray>

namespace zel {

/// Mends what a PDF says that its glyphs mean, for who searches or copies its text. Where a font draws
/// several characters by one glyph, Qt names the one with the lowest number: a Chinese radical instead of the
/// character that was written, a tabulator instead of a blank. No byte moves. Two radicals in a row whose
/// numbers follow each other, too, are left as they are.
void mendCharacters(QByteArray& pdf);

} // namespace zel
