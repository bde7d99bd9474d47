#include "app/shell/ContextMenus.h"

#include "app/shell/MenuMnemonics.h"
#include "app/shell/MirrorAction.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QMenu>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

void addMirror(QMenu& menu, const QWidget& window, const QString& source, const QString& text = {}) {
    const auto sources = window.findChildren<QObject*>(source);
    if (sources.isEmpty()) return;
    auto* action = new MirrorAction(sources, {text, {}}, &menu);
    action->setObjectName(source + u"Here"_s);
    menu.addAction(action);
}

} // namespace

ContextMenus::ContextMenus(QWidget& window, const QList<QAction*>& ofPatient)
    : QObject(&window), shown(window) {
    if (auto* roster = window.findChild<QWidget*>(u"tblPatients"_s)) {
        auto* menu = new QMenu(&window);
        menu->setObjectName(u"patientMenu"_s);
        addMirror(*menu, window, u"btnNewPatient"_s, qtTrId("menuNewPatient"));
        addMirror(*menu, window, u"btnDeletePatient"_s, qtTrId("menuDeletePatient"));
        menu->addSeparator();
        addMirror(*menu, window, u"btnDataTransfer"_s, qtTrId("menuDownload"));
        addMirror(*menu, window, u"btnSendID"_s, qtTrId("menuSendID"));
        menu->addActions(ofPatient);
        offer(*roster, *menu);
    }
    auto* comments = new QMenu(&window);
    comments->setObjectName(u"commentMenu"_s);
    for (const QString& source : {u"btnPreviousComment"_s, u"btnNextComment"_s})
        addMirror(*comments, window, source);
    addMirror(*comments, window, u"btnDeleteComment"_s, qtTrId("menuDeleteComment"));
    for (auto* panel : window.findChildren<QWidget*>(u"commentPanel"_s))
        offer(*panel, *comments);
}

/// A right click may choose another patient, and so bring a question: the menu waits for it, and stays away
/// if it stands.
void ContextMenus::offer(QWidget& over, QMenu& menu) {
    giveMnemonics(menu);
    over.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&over, &QWidget::customContextMenuRequested, this, [this, &over, &menu](QPoint place) {
        const auto* scrolled = qobject_cast<QAbstractScrollArea*>(&over);
        const QPoint global = (scrolled ? scrolled->viewport() : &over)->mapToGlobal(place);
        const auto open = [this, &over, &menu, global] {
            if (QApplication::activeModalWidget() || !shown.isVisible() || !over.isVisible()) return;
            for (auto* entry : menu.findChildren<MirrorAction*>())
                entry->follow();
            menu.popup(global);
        };
        QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
    });
}

} // namespace zel
