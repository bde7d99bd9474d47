#pragma once

class QWidget;

namespace zel {

/// Makes the window as large as the main screen's free area, or with \p keepSize centres it there.
void AdjustWindowFitToScreen(QWidget& window, bool keepSize);

} // namespace zel
