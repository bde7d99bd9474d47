#include "app/shell/WindowDialogs.h"

#include "app/graph/GraphViewController.h"
#include "app/patients/PatientViewController.h"
#include "app/printing/PrintController.h"
#include "app/settings/BackupDialog.h"
#include "app/settings/ExportController.h"
#include "app/settings/SettingController.h"
#include "app/shell/HelpWindow.h"
#include "app/table/TableViewController.h"
#include "app/widgets/Log.h"

#include <QDir>
#include <QStandardPaths>

#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

WindowDialogs::WindowDialogs(Parts needed, MainWindow& mainWindow)
    : QObject(&mainWindow), parts(std::move(needed)), window(mainWindow) {
    connect(&window, &MainWindow::settingWanted, this, &WindowDialogs::showSetting);
    connect(&window, &MainWindow::backupsWanted, this, &WindowDialogs::showBackups);
    connect(&window, &MainWindow::printWanted, this, &WindowDialogs::showPrint);
    connect(&window, &MainWindow::pdfWanted, this, &WindowDialogs::showSavePdf);
    connect(&window, &MainWindow::fhirWanted, this, &WindowDialogs::exportFhir);
    connect(&window, &MainWindow::helpWanted, this, &WindowDialogs::showHelp);
    connect(&window, &MainWindow::aboutWanted, this, &WindowDialogs::showAbout);
}

void WindowDialogs::showSetting() {
    parts.pageInView().checkToSaveComment();
    if (!settings) {
        settings =
            new SettingController({parts.store, parts.status, parts.monitor, parts.panel, parts.chooser,
                                   parts.languageFile, [this] { return parts.pageInView().readyToPrint(); }},
                                  &window);
        connect(settings, &SettingController::finished, this, &WindowDialogs::settingsChanged);
        connect(settings, &SettingController::imported, this, &WindowDialogs::imported);
    }
    settings->showSetting();
}

/// What is typed is settled first: a copy's patients are others.
void WindowDialogs::showBackups() {
    if (!parts.graphPage.leave() || !parts.tablePage.leave() || !parts.patientPage.settle()) return;
    if (!backupDialog) {
        backupDialog =
            new BackupDialog({parts.store, parts.panel, parts.chooser, parts.courier, parts.clock}, &window);
        connect(backupDialog, &BackupDialog::restored, this, &WindowDialogs::restored);
    }
    backupDialog->showBackups();
}

bool WindowDialogs::isShowingBackups() const { return backupDialog && backupDialog->isVisible(); }

void WindowDialogs::showPrint() { showPrintPreview(PrintPurpose::printer); }

void WindowDialogs::showSavePdf() { showPrintPreview(PrintPurpose::pdf); }

void WindowDialogs::showPrintPreview(PrintPurpose purpose) {
    if (!parts.pageInView().readyToPrint()) return;
    if (!printController) {
        printController = new PrintController(
            {parts.store, parts.period, parts.clock, parts.panel, parts.chooser, parts.printers}, &window);
        connect(printController, &PrintController::said, &window, &MainWindow::showOutcome);
    }
    ScreenViews views{.drawViewState = parts.graphPage.drawViewState(),
                      .getShowMam = parts.tablePage.getShowMam(),
                      .getShowPad = parts.tablePage.getShowPad(),
                      .isMonitorAFib = parts.status.state().isAFib,
                      .trendApart = parts.graphPage.isTrendApart()};
    parts.graphPage.setupDrawChart(views.lowerChart, views.bloodChart);
    printController->showPrintPreview(window.pageInView(), views, purpose);
}

void WindowDialogs::exportFhir() {
    if (!exporter)
        exporter = new ExportController(
            {parts.store, parts.panel, parts.chooser, [this] { return parts.pageInView().readyToPrint(); }},
            &window);
    exporter->exportFhir(parts.period.getWeekRule());
}

void WindowDialogs::showHelp() {
    parts.pageInView().checkToSaveComment();
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    const QString path = unpackHelp(manualResource(u":/help%1.pdf"_s), cache);
    qCInfo(lcApp, "showHelp %s", qUtf8Printable(path));
    if (!path.isEmpty() && parts.openDocument(path)) return;
    if (!helpWindow) helpWindow = new HelpWindow(&window);
    helpWindow->show();
    helpWindow->activateWindow();
}

void WindowDialogs::showAbout() {
    const QStringList lines{qtTrId("programPurpose"),
                            qtTrId("programVersion").arg(QLatin1String(ZEL_VERSION)),
                            qtTrId("aboutData").arg(QDir::toNativeSeparators(parts.store.getZELXMLPath())),
                            qtTrId("aboutLicence")};
    parts.panel.ShowMessage(lines.join(u"\n\n"_s), qtTrId("programName"));
}

} // namespace zel
