#pragma once

#include <QFrame>
#include <QLabel>

class QVBoxLayout;

namespace zel {

/// A titled card of named values, beside the roster.
class SidePanel : public QFrame {
    Q_OBJECT
public:
    SidePanel(const QString& name, const QString& title, QWidget* parent);

protected:
    /// A new value under its title.
    QLabel* addValue(const QString& name, const QString& title);

private:
    QVBoxLayout* column;
};

} // namespace zel
