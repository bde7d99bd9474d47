#include "app/widgets/SelectOnClick.h"

#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>

#include <utility>

namespace zel {

namespace {

class ClickSelection final : public QObject {
public:
    explicit ClickSelection(QLineEdit& edit) : QObject(&edit), field(edit) { edit.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusIn)
            isEntered = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
        // Who has drawn the mouse over a part wants that part.
        if (event->type() == QEvent::MouseButtonRelease && std::exchange(isEntered, false)
            && !field.hasSelectedText())
            field.selectAll();
        return false;
    }

private:
    QLineEdit& field;
    bool isEntered = false;
};

} // namespace

void selectOnClick(QLineEdit& field) { new ClickSelection(field); }

} // namespace zel
