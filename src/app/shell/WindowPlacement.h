#pragma once

#include <QSize>

class QWidget;

namespace zel {

/// Makes the window as large as the main screen's free area, or with \p keepSize centres it there.
void AdjustWindowFitToScreen(QWidget& window, bool keepSize);

/// The least size of the main window: 640 x 480, or less where the free area, in the pixels that large type
/// makes larger, has no room for that and a frame.
[[nodiscard]] QSize leastSize(const QSize& freeArea);

} // namespace zel
