#pragma once

#include <QColor>
#include <QImage>
#include <QStringList>

class QWidget;

namespace zel {

/// What most of a picture is made of.
[[nodiscard]] QColor groundOf(const QImage& image);
[[nodiscard]] double bestContrast(const QImage& image, const QColor& ground);

/// As the window is painted: the words of each control, cell, column's title and entry of a menu that do not
/// stand out, or that stand on a ground which is light on a dark desktop or the other way round.
[[nodiscard]] QStringList unreadableIn(QWidget& window, bool isDark);

} // namespace zel
