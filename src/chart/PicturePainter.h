#pragma once

#include "chart/Picture.h"

class QPainter;

namespace zel {

class DocumentMemory;

/// Paints the picture into the painter's area of that height (in the picture's units): the one place where y
/// is turned over. Marks, ticks and lines that fall on one pixel column of an image or a screen are drawn
/// together; the result is the same, pixel for pixel, as drawing each alone.
/// \p memory: of the document that the picture is a page of; makes no difference to what is painted.
void paintPicture(QPainter& painter, const Picture& picture, double height, DocumentMemory* memory = nullptr);

} // namespace zel
