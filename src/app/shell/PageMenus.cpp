#include "app/shell/PageMenus.h"

#include "app/shell/MenuMnemonics.h"
#include "app/widgets/Log.h"
#include "app/widgets/Mnemonic.h"

#include <QMenu>

#include <array>

namespace zel {

using namespace Qt::StringLiterals;

/// Without a name it is a line between others.
struct PageMenus::Entry {
    QString source{}; ///< object name of what it stands for
    QString text{};   ///< none: the source's own
    QKeySequence key{};
};

PageMenus::PageMenus(QWidget& window, QMenuBar& bar) : QObject(&bar), shown(window) {
    if (auto* edit = bar.findChild<QMenu*>(u"editMenu"_s)) {
        fillEdit(*edit);
        dress(*edit);
    }
    auto* view = insertMenu(bar, u"viewMenu"_s, qtTrId("menuView"));
    fillView(*view);
    dress(*view);
    monitor = insertMenu(bar, u"monitorMenu"_s, qtTrId("monitorPanel"));
    fillMonitor(*monitor);
    dress(*monitor);
}

/// Before the menu Help, the last one. A title whose letters are nearly all taken marks its own.
QMenu* PageMenus::insertMenu(QMenuBar& bar, const QString& name, const QString& title) {
    const bool isMarked = !mnemonicOf(title).isNull();
    auto* menu = new QMenu(isMarked ? title : withMnemonic(title, mnemonicsIn(shown)), &bar);
    menu->setObjectName(name);
    menu->setAccessibleName(withoutMnemonic(title));
    bar.insertMenu(bar.actions().constLast(), menu);
    return menu;
}

void PageMenus::dress(QMenu& menu) {
    giveMnemonics(menu);
    connect(&menu, &QMenu::aboutToShow, this, [&menu] {
        for (auto* entry : menu.findChildren<MirrorAction*>())
            entry->follow(); // a text may have changed
        giveMnemonics(menu);
    });
}

void PageMenus::add(QMenu& menu, std::span<const Entry> entries) {
    for (const Entry& entry : entries) {
        const auto sources = shown.findChildren<QObject*>(entry.source);
        if (entry.source.isEmpty()) {
            menu.addSeparator();
        } else if (sources.isEmpty()) {
            qCWarning(lcApp, "There is no %s for the menu", qUtf8Printable(entry.source));
        } else {
            auto* action = new MirrorAction(sources, {entry.text, entry.key}, &menu);
            action->setObjectName(entry.source + u"Entry"_s);
            menu.addAction(action);
        }
    }
}

void PageMenus::addGroup(QMenu& menu, const QString& name, const QString& title,
                         std::span<const Entry> entries) {
    auto* group = menu.addMenu(title);
    group->setObjectName(name);
    group->setAccessibleName(title);
    add(*group, entries);
    dress(*group);
}

void PageMenus::fillEdit(QMenu& menu) {
    const std::array entries{
        Entry{},
        Entry{u"btnNewPatient"_s, qtTrId("menuNewPatient"), Qt::CTRL | Qt::Key_N},
        Entry{u"btnSavePatient"_s, qtTrId("menuSavePatient"), QKeySequence::Save},
        Entry{u"btnDeletePatient"_s, qtTrId("menuDeletePatient")},
        Entry{u"searchPatients"_s, qtTrId("menuFindPatient"), QKeySequence::Find},
        Entry{},
        Entry{u"newReading"_s},
        Entry{u"changeReading"_s},
        Entry{u"leaveOutReadings"_s},
        Entry{u"takeInReadings"_s},
        Entry{u"deleteReadings"_s},
        Entry{u"copyRows"_s, qtTrId("menuCopyRows")},
        Entry{u"selectAllRows"_s, qtTrId("menuSelectRows")},
        Entry{},
        Entry{u"addComment"_s},
        Entry{u"btnPreviousComment"_s},
        Entry{u"btnNextComment"_s},
    };
    const std::array colours{Entry{u"colour1"_s}, Entry{u"colour2"_s}, Entry{u"colour3"_s},
                             Entry{u"colour4"_s}};
    const std::array last{Entry{u"btnDeleteComment"_s, qtTrId("menuDeleteComment")}};
    add(menu, entries);
    addGroup(menu, u"coloursMenu"_s, qtTrId("colourButton"), colours);
    add(menu, last);
}

void PageMenus::fillView(QMenu& menu) {
    const std::array pages{Entry{u"patientBtn"_s, {}, Qt::CTRL | Qt::Key_1},
                           Entry{u"graphBtn"_s, {}, Qt::CTRL | Qt::Key_2},
                           Entry{u"tableBtn"_s, {}, Qt::CTRL | Qt::Key_3},
                           Entry{},
                           Entry{u"toggleGraph"_s, qtTrId("menuTimeChart")},
                           Entry{u"toggleHistogram"_s},
                           Entry{u"toggleCorrelation"_s},
                           Entry{u"toggleTrend"_s},
                           Entry{u"trendApart"_s},
                           Entry{}};
    const std::array days{Entry{u"viewLast7"_s},
                          Entry{u"viewLast30"_s},
                          Entry{u"viewLast90"_s},
                          Entry{u"viewWeek"_s},
                          Entry{u"viewAll"_s},
                          Entry{},
                          Entry{u"btnAverage"_s},
                          Entry{},
                          Entry{u"minusDay"_s, qtTrId("menuFewerDays")},
                          Entry{u"addDay"_s, qtTrId("menuMoreDays")}};
    const std::array halves{Entry{u"viewBoth"_s}, Entry{u"amOnly"_s}, Entry{u"pmOnly"_s}};
    const std::array parts{Entry{}, Entry{u"btnShowMam"_s}, Entry{u"btnShowPad"_s}, Entry{u"btnSide"_s}};
    add(menu, pages);
    addGroup(menu, u"daysMenu"_s, qtTrId("viewDays"), days);
    addGroup(menu, u"halvesMenu"_s, qtTrId("viewHalf"), halves);
    add(menu, parts);
}

void PageMenus::fillMonitor(QMenu& menu) {
    const std::array entries{Entry{u"btnDataTransfer"_s, qtTrId("menuDownload"), Qt::CTRL | Qt::Key_D},
                             Entry{u"btnSendID"_s, qtTrId("menuSendID")}};
    add(menu, entries);
}

} // namespace zel
