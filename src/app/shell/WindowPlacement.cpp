#include "app/shell/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace zel {

void AdjustWindowFitToScreen(QWidget& window, bool keepSize) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return;
    const QRect free = screen->availableGeometry();
    if (keepSize) return window.move(free.center() - window.rect().center());
    window.setGeometry(free);
    window.setWindowState(window.windowState() | Qt::WindowMaximized); // the frame fits in as well
}

QSize leastSize(const QSize& freeArea) {
    constexpr int titleBar = 40;
    return QSize(640, 480).boundedTo(freeArea - QSize(0, titleBar));
}

} // namespace zel
