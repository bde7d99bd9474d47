#include "app/widgets/Spoken.h"

#include "app/widgets/SpokenGrid.h"
#include "app/widgets/SpokenText.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QSplitter>

namespace zel {

namespace {

constexpr const char* roleProperty = "spokenRole";

/// Its name is its caption, and what it holds is its text.
class SpokenContent : public QAccessibleWidget, public SpokenText {
public:
    using QAccessibleWidget::QAccessibleWidget;

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? whole() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QString text(int begin, int end) const override { return SpokenText::text(begin, end); }
};

/// What is chosen in the list is its text.
class SpokenChoice final : public SpokenContent {
public:
    explicit SpokenChoice(QComboBox& box) : SpokenContent(&box, QAccessible::ComboBox), choice(box) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State now = QAccessibleWidget::state();
        now.expandable = now.hasPopup = true;
        now.expanded = choice.view()->isVisible();
        return now;
    }
    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(choice.view()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return child && child->object() == choice.view() ? 0 : -1;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return {showMenuAction(), pressAction(), increaseAction(), decreaseAction(), setFocusAction()};
    }
    /// The next one and the one before as the arrow keys choose them, so that whoever listens is told.
    void doAction(const QString& name) override {
        if (name == setFocusAction()) return QAccessibleWidget::doAction(name);
        if (!choice.isEnabled()) return;
        if (name == increaseAction()) return press(Qt::Key_Down);
        if (name == decreaseAction()) return press(Qt::Key_Up);
        if (choice.view()->isVisible())
            choice.hidePopup();
        else
            choice.showPopup();
    }

protected:
    [[nodiscard]] QString whole() const override { return choice.currentText(); }

private:
    void press(Qt::Key key) const {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QCoreApplication::sendEvent(&choice, &event);
        }
    }

    QComboBox& choice;
};

class SpokenValue final : public SpokenContent {
public:
    explicit SpokenValue(QLabel& label) : SpokenContent(&label, QAccessible::StaticText), value(label) {}

protected:
    [[nodiscard]] QString whole() const override { return value.text(); }

private:
    QLabel& value;
};

/// A page tab, or a box or radio button. Qt's own turn those without a click, to which the program would not
/// answer.
class SpokenSwitch final : public QAccessibleWidget {
public:
    SpokenSwitch(QAbstractButton& button, QAccessible::Role role)
        : QAccessibleWidget(&button, role), shown(button) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Accelerator ? shown.shortcut().toString(QKeySequence::NativeText)
                                                : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State now = QAccessibleWidget::state();
        const bool isTab = role() == QAccessible::PageTab;
        now.selectable = isTab;
        now.selected = isTab && shown.isChecked();
        now.checkable = !isTab;
        now.checked = !isTab && shown.isChecked();
        return now;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return shown.isEnabled() ? QStringList{click(), setFocusAction()} : QStringList();
    }
    void doAction(const QString& name) override {
        if (name != click()) return QAccessibleWidget::doAction(name);
        if (shown.isEnabled()) shown.click();
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& name) const override {
        if (name != click() || shown.shortcut().isEmpty()) return {};
        return {shown.shortcut().toString()};
    }

private:
    [[nodiscard]] QString click() const {
        return role() == QAccessible::PageTab ? pressAction() : toggleAction();
    }

    QAbstractButton& shown;
};

} // namespace

/// What has been made of it before would go on to speak for it.
void speakAs(QWidget& widget, QAccessible::Role role) {
    widget.setProperty(roleProperty, static_cast<int>(role));
    if (QAccessibleInterface* former = QAccessible::queryAccessibleInterface(&widget))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(former));
}

void speakAsValue(QLabel& value, QLabel& caption) {
    speakAs(value, QAccessible::StaticText);
    value.setAccessibleName(caption.text());
    caption.setBuddy(&value);
}

QAccessibleInterface* makeSpoken(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget) return nullptr;
    auto* choice = qobject_cast<QComboBox*>(widget);
    if (choice && !choice->isEditable()) return new SpokenChoice(*choice);
    if (const auto* table = dynamic_cast<const SpokenTable*>(widget)) return new SpokenGrid(*widget, *table);
    if (auto* box = qobject_cast<QCheckBox*>(widget)) return new SpokenSwitch(*box, QAccessible::CheckBox);
    if (auto* one = qobject_cast<QRadioButton*>(widget))
        return new SpokenSwitch(*one, QAccessible::RadioButton);
    if (qobject_cast<QSplitterHandle*>(widget)) return new QAccessibleWidget(widget, QAccessible::Separator);
    const QVariant role = widget->property(roleProperty);
    if (!role.isValid()) return nullptr;
    if (auto* label = qobject_cast<QLabel*>(widget)) return new SpokenValue(*label);
    if (auto* tab = qobject_cast<QAbstractButton*>(widget))
        return new SpokenSwitch(*tab, static_cast<QAccessible::Role>(role.toInt()));
    return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

} // namespace zel
