#include "app/widgets/ScreenFit.h"

#include <QHeaderView>
#include <QScreen>
#include <QScrollArea>
#include <QTableView>

namespace zel {

QSize roomWithin(const QSize& freeArea) {
    constexpr QSize frame(8, 40); // its borders and its title bar
    return freeArea - frame;
}

QSize roomFor(const QWidget& window) { return roomWithin(window.screen()->availableSize()); }

void fitTo(QWidget& window, const QSize& wanted, const QSize& room) { window.resize(wanted.boundedTo(room)); }

void fitToScreen(QWidget& window, const QSize& wanted) { fitTo(window, wanted, roomFor(window)); }

QScrollArea* scrolling(const QString& name, QWidget* inside, QWidget* parent) {
    auto* area = new QScrollArea(parent);
    area->setObjectName(name);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(inside);
    area->viewport()->setAutoFillBackground(false); // over the window's own background
    inside->setAutoFillBackground(false);
    return area;
}

void takeWhatIsLeft(QTableView& table) {
    constexpr int leastRows = 4; // and its titles
    table.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    table.setMinimumHeight(table.verticalHeader()->defaultSectionSize() * (leastRows + 1));
}

} // namespace zel
