#include "app/shell/AppController.h"

#include "app/device/MonitorBar.h"
#include "app/device/ProgressWindowController.h"
#include "app/frame/PeriodFollower.h"
#include "app/graph/GraphViewController.h"
#include "app/patients/PatientViewController.h"
#include "app/settings/BackupCourier.h"
#include "app/shell/ContextMenus.h"
#include "app/shell/Demonstration.h"
#include "app/shell/FileDrop.h"
#include "app/shell/MenuDialogs.h"
#include "app/shell/MonitorOffers.h"
#include "app/shell/PageMenus.h"
#include "app/shell/SplashWindow.h"
#include "app/shell/UndoController.h"
#include "app/shell/UnsavedFile.h"
#include "app/shell/ViewKeeper.h"
#include "app/shell/WindowDialogs.h"
#include "app/shell/WindowPlacement.h"
#include "app/table/TableViewController.h"
#include "app/widgets/Log.h"

#include <QApplication>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <tuple>
#include <utility>

namespace zel {

AppController::AppController(const Parts& needed, const Timing& times)
    : parts(needed), timing(times), window(needed.store, needed.status),
      watch({needed.monitor, needed.status, needed.panel, needed.clock}, times.polling),
      dataWatch(needed.store, window, {.interval = times.watching}),
      patientPage(new PatientViewController({needed.store, needed.status, needed.monitor, needed.panel,
                                             needed.clock, static_cast<bool>(needed.demonstration.start)})),
      graphPage(new GraphViewController({needed.store, needed.period, needed.panel, needed.clock})),
      tablePage(
          new TableViewController({needed.store, needed.status, needed.period, needed.panel, needed.clock})),
      pages{patientPage, graphPage, tablePage},
      questions({needed.store, needed.panel, needed.clock, needed.languageFile}),
      unsaved({needed.store, needed.panel, pages, [this] { return isClosing; }}) {
    for (PageController* page : pages) {
        window.addPage(*page);
        connect(page, &PageController::said, &window, &MainWindow::showOutcome);
    }
    courier = new BackupCourier(needed.store, needed.clock, this);
    makeDialogs();
    makePageMenus();
    connect(&window, &MainWindow::tabWanted, this, &AppController::changeTab);
    connect(&window, &MainWindow::closeWanted, this, &AppController::closeApplicaiton);
    connect(&parts.store, &DataStore::currentIDChanged, this, [this] { window.showOutcome({}); });
    connect(&questions, &StartQuestions::restored, this, &AppController::showRestored);
    connect(&questions, &StartQuestions::said, &window, &MainWindow::showOutcome);
    undoer =
        new UndoController({needed.store, needed.status, needed.panel, [this] { return isEdited(); }}, this);
    connect(&window, &MainWindow::undoWanted, undoer, &UndoController::undo);
    connect(&window, &MainWindow::redoWanted, undoer, &UndoController::redo);
    connect(undoer, &UndoController::retraced, this, &AppController::showStep);
    connect(undoer, &UndoController::said, &window, &MainWindow::showOutcome);
    connect(courier, &BackupCourier::failed, this, [this](const QString& why) {
        parts.panel.interject(this, [this, why] { parts.panel.ShowMessage(why, qtTrId("Warning")); });
    });
    connect(new FileDrop({needed.store, needed.panel, needed.chooser}, &window), &FileDrop::imported, this,
            &AppController::reload);
    connectDataWatch();
    follower = new PeriodFollower(parts.store, parts.period, this);
    if (parts.memory)
        viewKeeper =
            std::make_unique<ViewKeeper>(ViewKeeper::Parts{*parts.memory, window, parts.store, parts.period,
                                                           *follower, *patientPage, *graphPage, *tablePage});
    connect(&watch, &MonitorWatch::setHWButtons, this, &AppController::setHWButtons);
    connect(patientPage, &PatientViewController::dataTransferWanted, this, &AppController::dataTransfer);
    connect(patientPage, &PatientViewController::demonstrationWanted, this,
            &AppController::startDemonstration);
    connect(patientPage, &PatientViewController::backupsWanted, dialogs, &WindowDialogs::showBackups);
    connect(patientPage, &PatientViewController::updateUIWanted, &watch, &MonitorWatch::updateUI);
    connect(patientPage, &PatientViewController::rosterChanged, this, &AppController::enable2Tabs);
    connect(patientPage, &PatientViewController::replaced, this, &AppController::tellReplaced);
    offers = new MonitorOffers(window.monitorBar(),
                               {needed.store, needed.status, *patientPage, [this] { return showPatients(); }},
                               this);
    connect(offers, &MonitorOffers::downloadWanted, this, &AppController::dataTransfer);
    connect(offers, &MonitorOffers::said, &window, &MainWindow::showOutcome);
    connect(new QShortcut(QKeySequence::Save, &window), &QShortcut::activated, this,
            &AppController::savePatient);
}

void AppController::makeDialogs() {
    dialogs = new WindowDialogs({parts.store, parts.status, parts.monitor, parts.panel, parts.clock,
                                 parts.chooser, parts.period, parts.printers, parts.openDocument,
                                 parts.languageFile, *courier, *patientPage, *graphPage, *tablePage,
                                 [this]() -> PageController& { return pageInView(); }},
                                window);
    connect(dialogs, &WindowDialogs::settingsChanged, this, &AppController::UpdateUIBySetting);
    connect(dialogs, &WindowDialogs::imported, this, &AppController::reload);
    connect(dialogs, &WindowDialogs::restored, this, &AppController::showRestored);
}

void AppController::makePageMenus() {
    QMenuBar& bar = *window.menuBar();
    const auto* menus = new PageMenus(window, bar);
    auto* inMenus = new MenuDialogs(parts.store, *menus, bar, &window);
    connect(inMenus, &MenuDialogs::manualWanted, dialogs, &WindowDialogs::showHelp);
    new ContextMenus(window, {inMenus->downloads()});
}

void AppController::connectDataWatch() {
    connect(&dataWatch, &DataWatch::shown, this,
            [this] { window.showOutcome(qtTrId("dataChangedElsewhere")); });
    connect(&dataWatch, &DataWatch::unreadable, this,
            [this] { window.showOutcome(qtTrId("dataUnreadNow")); });
    connect(&dataWatch, &DataWatch::readable, this, [this] { window.showOutcome({}); });
}

AppController::~AppController() { parts.monitor.stop(); }

void AppController::awakeFromNib(const StoreResult& loaded) {
    // A file that could not even be read gets its own message once the window is there.
    if (loaded) parts.store.checkXmlWritable(parts.panel);
    // Not at the load at start, which is no change of the user's.
    connect(&parts.store, &DataStore::notBackedUp, this, &AppController::tellNotBackedUp);
    connect(&parts.store, &DataStore::reloaded, courier, &BackupCourier::bring);
    AdjustWindowFitToScreen(window, false);
    window.setPatientPanelsVisible(true);
    enable2Tabs(!parts.store.getPatientArray().empty());
    displayViewController(*pages[0], 0);
    qCInfo(lcApp, "monitorBPM 2 .... %i", iSelectedTab);
    watch.monitorBPM();
    patientPage->UpdateUIBySetting();
    setHWButtons(false);
    window.setWindowTitle(qtTrId("AP_Title"));
    if (parts.demonstration.isOn) markAsDemonstration(window, parts.store);
    window.setMinimumSize(leastSize(window.screen()->availableSize()));
    takeUpView();
}

/// What was typed when the program was ended the last time is offered on the page that comes first.
void AppController::takeUpView() {
    if (!viewKeeper) return;
    viewKeeper->restoreWindow();
    if (!UnsavedFile(parts.store.getZELXMLPath()).read().isEmpty()) return;
    const auto page = std::ranges::find(pages, viewKeeper->restorePatient(), &PageController::objectName);
    if (page == pages.end() || parts.store.getPatientArray().empty()) return;
    changeTab(static_cast<int>(page - pages.begin()));
}

void AppController::applicationDidFinishLaunching(const StoreResult& loaded) {
    if (isClosing) return;
    window.show();
    if (isWantedInFront) bringToFront();
    if (!loaded) questions.offerBackup(loaded.error());
    if (parts.store.lastLoad()) unsaved.offer();
    if (isClosing) return;
    questions.offerPrivacy();
    questions.tellUnreadLanguage();
    if (isClosing) return;
    splash = new SplashWindow(&window);
    connect(splash, &SplashWindow::splashClosed, this, [this] { watch.setSplashClosed(); });
    splash->showSplash(timing.splash);
}

void AppController::showRestored(const QString& name, const QString& kept) {
    if (const StoreResult& read = parts.store.lastLoad(); !read)
        return parts.panel.ShowMessage(describe(read.error()), qtTrId("dataFileUnreadable"));
    window.showOutcome(qtTrId("backupRestored").arg(name, kept));
}

/// Once a day: it is not in the way of the work.
void AppController::tellNotBackedUp(const QString& why) {
    const DayNumber today = LocalZone{}.day(std::chrono::floor<std::chrono::milliseconds>(parts.clock.now()));
    if (std::exchange(toldNotBackedUp, today) == today) return;
    parts.panel.interject(this, [this, why] { parts.panel.ShowMessage(why, qtTrId("Warning")); });
}

void AppController::changeTab(int tabTag) {
    iSelectedTab = tabTag;
    window.setPatientPanelsVisible(tabTag == 0);
    displayViewController(*pages.at(static_cast<std::size_t>(tabTag)), tabTag);
}

void AppController::displayViewController(PageController& controller, int tabTag) {
    window.setShownTab(tabTag);
    if (!window.makeFirstResponder()) {
        QApplication::beep();
        return showPageInView();
    }
    PageController& left = pageInView();
    if (&left != &controller && !left.leave()) return showPageInView();
    follower->prepare();
    controller.LoadData(); // before it shows, when all is computed once
    window.showPage(controller);
}

/// The tabs and panels of the page that stays in view, as it is not to be left.
void AppController::showPageInView() {
    window.setShownTab(window.pageInView());
    window.setPatientPanelsVisible(window.pageInView() == 0);
}

/// \return false if the page in view is not to be left
bool AppController::showPatients() {
    if (window.pageInView() != 0) changeTab(0);
    return window.pageInView() == 0;
}

void AppController::startDemonstration() {
    const QString why = parts.demonstration.start();
    if (why.isEmpty()) return window.showOutcome(qtTrId("demonstrationStarted"));
    parts.panel.ShowMessage(why, qtTrId("Warning"));
}

void AppController::savePatient() {
    if (patientPage->isVisible() && patientPage->isEdited()) patientPage->btnSavePatient();
}

void AppController::enable2Tabs(bool enabled) { window.enable2Tabs(enabled); }

void AppController::setHWButtons(bool connected) {
    for (PageController* page : pages)
        page->setHWButtons(connected);
}

void AppController::dataTransfer() {
    if (parts.status.isBusy()) return;
    // What was typed was saved, but could not be read back, which is told: nobody is there to download for.
    if (!parts.store.getPatientByID(parts.store.getCurrentID())) return;
    if (!progressWindow) {
        progressWindow = new ProgressWindowController({parts.store, parts.status, parts.monitor}, &window);
        connect(progressWindow, &ProgressWindowController::finished, this, &AppController::transferFinished);
    }
    window.showOutcome({});
    progressWindow->showProgress();
}

void AppController::transferFinished(const DownloadOutcome& outcome) {
    window.activateWindow();
    // Without anything new the page stays: what was pressed there may be tried again.
    const bool hasEnded = outcome.failure.isEmpty() && !outcome.cancelled;
    if (hasEnded) window.monitorBar().dismiss();
    if (hasEnded || (outcome.downloaded > 0 && parts.store.lastLoad())) displayAfterDataTransfer();
    window.showOutcome(describe(outcome));
    if (outcome.failure.isEmpty()) return;
    const auto tell = [this, told = outcome.failure] { parts.panel.ShowMessage(told, qtTrId("Warning")); };
    parts.panel.interject(this, tell);
}

void AppController::displayAfterDataTransfer() {
    follower->startAnew();
    changeTab(1);
    graphPage->switchToGraph();
}

PageController& AppController::pageInView() const {
    return *pages.at(static_cast<std::size_t>(window.pageInView()));
}

void AppController::showSetting() { dialogs->showSetting(); }

void AppController::showBackups() { dialogs->showBackups(); }

void AppController::showPrint() { dialogs->showPrint(); }

void AppController::showHelp() { dialogs->showHelp(); }

void AppController::reload() {
    if (const StoreResult read = parts.store.loadXML(); !read)
        parts.panel.ShowMessage(describe(read.error()), qtTrId("dataFileUnreadable"));
}

/// Unless the user did it: took a step back, or went back to a copy. A page with a comment typed tells it
/// itself.
void AppController::tellReplaced(const QString& name) {
    if (undoer->isRetracing() || dialogs->isShowingBackups() || isEdited()) return;
    const QString told = qtTrId("patientReplaced").arg(name);
    parts.panel.interject(this, [this, told] { parts.panel.ShowMessage(told, qtTrId("Warning")); });
}

bool AppController::isEdited() const { return pageInView().isEdited() || patientPage->isEdited(); }

/// Whom the step is about is shown, unless that took something typed away.
void AppController::showStep(const StepName& name) {
    if (!isEdited()) {
        patientPage->showPatient(name.patientID);
        const auto isIt = [&](const auto& comment) { return comment->CommentID == name.commentID; };
        if (parts.store.getCurrentID() == name.patientID
            && std::ranges::any_of(parts.store.getCommentForCurID(), isIt))
            parts.store.setSelectedComment(name.commentID);
    }
    UpdateUIBySetting();
    if (parts.store.getPatientArray().empty() && !patientPage->isVisible()) changeTab(0);
}

/// All pages, not only the one in view: none shows old settings when its tab is pressed.
void AppController::UpdateUIBySetting() {
    for (PageController* page : pages) {
        page->update();
        page->UpdateUIBySetting();
    }
    window.UpdateUIBySetting();
}

void AppController::closeApplicaiton() {
    if (!graphPage->leave() || !tablePage->leave()) return;
    if (patientPage->settle()) return end();
    if (!patientPage->isVisible()) changeTab(0); // what is still to be settled is there
}

void AppController::bringToFront() {
    isWantedInFront = !window.isVisible(); // it is about to be shown; a question may come before it
    QWidget* dialog = QApplication::activeModalWidget();
    QWidget* front = dialog ? dialog : &window;
    for (QWidget* shown : {static_cast<QWidget*>(&window), front}) {
        if (!shown->isVisible()) continue;
        shown->setWindowState(shown->windowState() & ~Qt::WindowMinimized);
        shown->raise();
    }
    if (front->isVisible()) front->activateWindow();
}

void AppController::terminate() {
    if (std::exchange(isTerminated, true)) return; // asked twice
    unsaved.keep();
    end();
}

void AppController::end() {
    isClosing = true;
    if (viewKeeper) viewKeeper->keep(pageInView().objectName());
    parts.monitor.stop();
    emit closed();
}

} // namespace zel
