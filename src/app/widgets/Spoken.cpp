#include "app/widgets/Spoken.h"

#include "app/widgets/Mnemonic.h"
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

#include <algorithm>

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

/// Of several fields behind one label, one is its buddy; the names of all begin with its words.
QLabel* sharedLabel(const QWidget& field) {
    if (!field.parentWidget()) return nullptr;
    const auto siblings = field.parentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    const auto names = [&field](const QLabel* label) {
        const QString words = withoutMnemonic(label->text()).remove(u':').trimmed();
        return !label->isHidden() && !words.isEmpty() && field.accessibleName().startsWith(words);
    };
    const auto found = std::ranges::find_if(siblings, names);
    return found == siblings.end() ? nullptr : *found;
}

/// What is chosen in the list is its text.
class SpokenChoice final : public SpokenContent {
    using Relations = QList<std::pair<QAccessibleInterface*, QAccessible::Relation>>;

public:
    explicit SpokenChoice(QComboBox& box) : SpokenContent(&box, QAccessible::ComboBox), choice(box) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State now = QAccessibleWidget::state();
        now.expandable = now.hasPopup = true;
        now.expanded = choice.view()->isVisible();
        return now;
    }
    [[nodiscard]] Relations relations(QAccessible::Relation wanted) const override {
        Relations known = QAccessibleWidget::relations(wanted);
        const auto isLabel = [](const auto& each) { return each.second.testFlag(QAccessible::Label); };
        if (!wanted.testFlag(QAccessible::Label) || std::ranges::any_of(known, isLabel)) return known;
        if (QLabel* label = sharedLabel(choice))
            known.append({QAccessible::queryAccessibleInterface(label), QAccessible::Label});
        return known;
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
