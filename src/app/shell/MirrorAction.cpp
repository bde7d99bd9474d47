#include "app/shell/MirrorAction.h"

#include "app/shell/KeyList.h"
#include "app/widgets/Mnemonic.h"
#include "app/widgets/PageController.h"

#include <QAbstractButton>
#include <QEvent>

#include <algorithm>
#include <utility>

namespace zel {

namespace {

/// The widget that an action belongs to: where that is not in view, its keys do nothing either.
QWidget* placeOf(QObject* source) {
    while (source && !source->isWidgetType())
        source = source->parent();
    return qobject_cast<QWidget*>(source);
}

bool isInView(QObject* source) {
    const QWidget* place = placeOf(source);
    return place && place->isVisible();
}

bool isReady(QObject* source) {
    const auto* action = qobject_cast<QAction*>(source);
    return isInView(source) && (!action || action->isEnabled()) && placeOf(source)->isEnabled();
}

QString wordsOf(const QObject* source) {
    if (const auto* action = qobject_cast<const QAction*>(source)) return withoutMnemonic(action->text());
    const auto* widget = qobject_cast<const QWidget*>(source);
    return widget ? widget->accessibleName() : QString();
}

} // namespace

MirrorAction::MirrorAction(const QList<QObject*>& mirrored, Look look, QObject* parent)
    : QAction(parent), sources(mirrored.begin(), mirrored.end()), ownText(std::move(look.text)) {
    setShortcut(look.key);
    setShortcutContext(Qt::WidgetShortcut); // only to be read
    setMenuRole(QAction::NoRole);
    for (QObject* source : mirrored)
        watch(source);
    connect(this, &QAction::triggered, this, &MirrorAction::act);
    follow();
}

void MirrorAction::watch(QObject* source) {
    placeOf(source)->installEventFilter(this);
    if (auto* button = qobject_cast<QAbstractButton*>(source)) {
        setCheckable(button->isCheckable());
        connect(button, &QAbstractButton::toggled, this, &MirrorAction::follow);
    } else if (auto* action = qobject_cast<QAction*>(source)) {
        setCheckable(action->isCheckable());
        setShortcut(action->shortcut());
        connect(action, &QAction::changed, this, &MirrorAction::follow);
    }
}

bool MirrorAction::eventFilter(QObject* watched, QEvent* event) {
    const auto kind = event->type();
    if (kind == QEvent::Show || kind == QEvent::Hide || kind == QEvent::EnabledChange) follow();
    return QAction::eventFilter(watched, event);
}

QObject* MirrorAction::meant() const {
    const auto found = std::ranges::find_if(sources, [](QObject* source) { return isInView(source); });
    return found == sources.end() ? sources.value(0).data() : found->data();
}

QStringList MirrorAction::pages() const {
    QStringList names;
    for (const QObject* source : sources)
        if (const auto* page = pageOf(source)) names += page->accessibleName();
    names.removeDuplicates();
    return names;
}

void MirrorAction::follow() {
    QObject* source = meant();
    if (!source) return setEnabled(false);
    const QString words = ownText.isEmpty() ? wordsOf(source) : ownText;
    if (withoutMnemonic(text()) != withoutMnemonic(words)) setText(words); // its own mnemonic stays
    setEnabled(isReady(source));
    if (const auto* button = qobject_cast<QAbstractButton*>(source); button && isCheckable())
        setChecked(button->isChecked());
}

/// A choice of one among several stays chosen, whatever the menu has made of its entry.
void MirrorAction::act() {
    QObject* source = meant();
    if (!source || !isReady(source)) return follow();
    const QPointer<MirrorAction> alive(this); // what is done may end the program
    if (auto* button = qobject_cast<QAbstractButton*>(source))
        button->click();
    else if (auto* action = qobject_cast<QAction*>(source))
        action->trigger();
    else
        placeOf(source)->setFocus(Qt::ShortcutFocusReason);
    if (alive) follow();
}

} // namespace zel
