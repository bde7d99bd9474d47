#pragma once

#include "analysis/DisplayPeriod.h"
#include "app/device/MonitorStatus.h"
#include "app/device/MonitorWorker.h"
#include "app/printing/Printers.h"
#include "app/shell/HelpDocument.h"
#include "app/shell/MainWindow.h"
#include "app/widgets/FileChooser.h"
#include "store/DataStore.h"

#include <functional>

namespace zel {

class BackupCourier;
class BackupDialog;
class ExportController;
class GraphViewController;
class HelpWindow;
class PatientViewController;
class PrintController;
class SettingController;
class TableViewController;
enum class PrintPurpose;

/// What the main window opens when it is asked to: settings, backups, print window, export, help. Each is
/// made on first use and kept.
class WindowDialogs final : public QObject {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        MonitorStatus& status;
        MonitorWorker& monitor;
        MessagePanel& panel;
        const Clock& clock;
        FileChooser& chooser;
        DisplayPeriod& period;
        Printers& printers;
        DocumentOpener openDocument;
        QString languageFile; ///< of the user's choice
        BackupCourier& courier;
        PatientViewController& patientPage;
        GraphViewController& graphPage;
        TableViewController& tablePage;
        std::function<PageController&()> pageInView;
    };
    WindowDialogs(Parts needed, MainWindow& mainWindow);

    void showSetting();
    void showBackups();
    void showPrint();
    void showSavePdf();
    void exportFhir();
    void showHelp();
    void showAbout();
    /// A copy may be put in the data file's place.
    [[nodiscard]] bool isShowingBackups() const;

signals:
    void settingsChanged();
    void imported();
    void restored(const QString& name, const QString& kept); ///< as BackupDialog has it

private:
    void showPrintPreview(PrintPurpose purpose);

    Parts parts;
    MainWindow& window;
    SettingController* settings = nullptr;
    BackupDialog* backupDialog = nullptr;
    PrintController* printController = nullptr;
    ExportController* exporter = nullptr;
    HelpWindow* helpWindow = nullptr;
};

} // namespace zel
