#pragma once

#include <QSize>
#include <QString>

class QScrollArea;
class QTableView;
class QWidget;

namespace zel {

/// The size that a window may have within a screen's free area, without the frame that the desktop adds.
[[nodiscard]] QSize roomWithin(const QSize& freeArea);
/// The same for a window on the screen that it opens on.
[[nodiscard]] QSize roomFor(const QWidget& window);

/// Resizes a window to what it would like, or to as much of that as there is room for. What it holds has to
/// scroll, in a list of its own or in scrolling(): a window is never smaller than what is in it asks for.
void fitTo(QWidget& window, const QSize& wanted, const QSize& room);
/// The same with the room that there is on its screen.
void fitToScreen(QWidget& window, const QSize& wanted);

/// Something that takes the room that it is given, and scrolls where that is too little. The area owns it.
[[nodiscard]] QScrollArea* scrolling(const QString& name, QWidget* inside, QWidget* parent);

/// A table in scrolling(): it takes what is left, and gives way down to a few rows before all of it scrolls.
void takeWhatIsLeft(QTableView& table);

} // namespace zel
