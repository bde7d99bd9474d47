#include "app/widgets/CalmComboBox.h"

#include <QWheelEvent>

namespace zel {

CalmComboBox::CalmComboBox(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus); // nor does the wheel bring the focus here
}

void CalmComboBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

} // namespace zel
