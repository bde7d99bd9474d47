#include "app/shell/MainMenu.h"

#include "app/shell/EditMenu.h"
#include "app/shell/MainWindow.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {

struct Command {
    QString name;
    QString text;
    QKeySequence key;
    void (MainWindow::*wanted)();
};

void add(MainWindow& window, QMenu& menu, const Command& command) {
    QAction* action = menu.addAction(command.text);
    action->setObjectName(command.name);
    action->setShortcut(command.key);
    action->setMenuRole(QAction::NoRole);
    QObject::connect(action, &QAction::triggered, &window, command.wanted);
}

} // namespace

QMenuBar* makeMainMenu(MainWindow& window, const DataStore& store, const MonitorStatus& status) {
    auto* bar = new QMenuBar(&window);
    bar->setObjectName(u"mainMenu"_s);
    bar->setAccessibleName(qtTrId("mainMenu"));
    QMenu& file = *bar->addMenu(qtTrId("menuFile"));
    add(window, file, {u"showPrint"_s, qtTrId("menuPrint"), QKeySequence::Print, &MainWindow::printWanted});
    add(window, file,
        {u"showSavePdf"_s, qtTrId("menuSavePdf"), Qt::CTRL | Qt::SHIFT | Qt::Key_P, &MainWindow::pdfWanted});
    add(window, file, {u"exportFhir"_s, qtTrId("menuExportFhir"), {}, &MainWindow::fhirWanted});
    file.addSeparator();
    add(window, file,
        {u"showSetting"_s, qtTrId("menuSettings"), Qt::CTRL | Qt::Key_Comma, &MainWindow::settingWanted});
    add(window, file, {u"showBackups"_s, qtTrId("menuBackups"), {}, &MainWindow::backupsWanted});
    file.addSeparator();
    add(window, file,
        {u"closeApplicaiton"_s, qtTrId("menuQuit"), Qt::CTRL | Qt::Key_Q, &MainWindow::closeWanted});
    auto* edit = new EditMenu(store, status, bar);
    QObject::connect(edit, &EditMenu::undoWanted, &window, &MainWindow::undoWanted);
    QObject::connect(edit, &EditMenu::redoWanted, &window, &MainWindow::redoWanted);
    bar->addMenu(edit);
    QMenu& help = *bar->addMenu(qtTrId("menuHelp"));
    add(window, help, {u"showHelp"_s, qtTrId("menuManual"), Qt::SHIFT | Qt::Key_F1, &MainWindow::helpWanted});
    add(window, help, {u"showAbout"_s, qtTrId("menuAbout"), {}, &MainWindow::aboutWanted});
    return bar;
}

} // namespace zel
