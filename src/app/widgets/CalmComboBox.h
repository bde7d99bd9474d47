#pragma once

#include <QComboBox>

namespace zel {

/// A list that the mouse wheel passes over: what scrolls around it is scrolled, and nothing else is chosen.
class CalmComboBox final : public QComboBox {
    Q_OBJECT
public:
    explicit CalmComboBox(QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace zel
