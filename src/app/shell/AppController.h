#pragma once

#include "analysis/DisplayPeriod.h"
#include "app/device/MonitorStatus.h"
#include "app/device/MonitorWatch.h"
#include "app/device/MonitorWorker.h"
#include "app/printing/Printers.h"
#include "app/shell/DataWatch.h"
#include "app/shell/HelpDocument.h"
#include "app/shell/MainWindow.h"
#include "app/shell/StartQuestions.h"
#include "app/shell/UnsavedWork.h"
#include "app/widgets/FileChooser.h"
#include "store/DataStore.h"

#include <array>
#include <chrono>
#include <functional>
#include <memory>

namespace zel {

class BackupCourier;
class GraphViewController;
class MonitorOffers;
class PatientViewController;
class PeriodFollower;
class ProgressWindowController;
class SplashWindow;
class TableViewController;
class UndoController;
class ViewKeeper;
class ViewMemory;
class WindowDialogs;
struct StepName;
struct DownloadOutcome;

/// The main window's controller: start-up, the switch between the pages, the download, quitting.
class AppController final : public QObject {
    Q_OBJECT
public:
    struct Demonstration {
        bool isOn = false;                ///< this is one
        std::function<QString()> start{}; ///< \return why it could not be started, in words
    };
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
        QString languageFile;         ///< of the user's choice
        ViewMemory* memory = nullptr; ///< how the window was left; none: nothing is remembered
        Demonstration demonstration{};
    };
    struct Timing {
        std::chrono::milliseconds polling{2000};
        std::chrono::milliseconds splash{2000};
        std::chrono::milliseconds watching{2000}; ///< the data file, see DataWatch
    };
    AppController(const Parts& parts, const Timing& timing);
    ~AppController() override;

    [[nodiscard]] MainWindow& mainWndow() { return window; } // spelled so in the interface
    [[nodiscard]] int selectedTab() const { return iSelectedTab; }

    /// Sets the window up and starts the polling. \p loaded is how the data file was loaded at start.
    void awakeFromNib(const StoreResult& loaded);
    /// Shows the window, says what is wrong with the data file, if anything, and shows the splash screen.
    void applicationDidFinishLaunching(const StoreResult& loaded);

    void changeTab(int tabTag);
    void displayViewController(PageController& controller, int tabTag);
    void enable2Tabs(bool enabled);
    void setHWButtons(bool connected);
    void dataTransfer();
    void displayAfterDataTransfer();
    void showSetting();
    void showBackups();
    void showPrint();
    void showHelp();
    void savePatient();
    /// Another start of the program wants the window: with the dialog in front that is open.
    void bringToFront();
    /// Quits, unless what was typed is to be saved and cannot be.
    void closeApplicaiton(); // spelled so in the interface
    /// Quits without a question: what was typed is saved if it can be, and else offered at the next start.
    void terminate();

signals:
    void closed(); ///< the monitor's thread has ended; nothing is left to do

private:
    void showPageInView();
    [[nodiscard]] bool showPatients();
    void startDemonstration();
    [[nodiscard]] PageController& pageInView() const;
    void makeDialogs();
    void makePageMenus();
    void connectDataWatch();
    void end();
    void showRestored(const QString& name, const QString& kept);
    void tellNotBackedUp(const QString& why);
    void takeUpView();
    [[nodiscard]] bool isEdited() const;
    void tellReplaced(const QString& name);
    void showStep(const StepName& name);
    void UpdateUIBySetting();
    void reload();
    void transferFinished(const DownloadOutcome& outcome);

    Parts parts;
    Timing timing;
    MainWindow window;
    MonitorWatch watch;
    DataWatch dataWatch;
    PatientViewController* patientPage; ///< the window owns the pages
    GraphViewController* graphPage;
    TableViewController* tablePage;
    std::array<PageController*, MainWindow::tabTotal> pages;
    StartQuestions questions;
    UnsavedWork unsaved;
    PeriodFollower* follower = nullptr;
    UndoController* undoer = nullptr;
    std::unique_ptr<ViewKeeper> viewKeeper; ///< if anything is remembered
    BackupCourier* courier = nullptr;
    WindowDialogs* dialogs = nullptr;
    MonitorOffers* offers = nullptr;
    ProgressWindowController* progressWindow = nullptr; ///< made on first use and kept
    SplashWindow* splash = nullptr;
    int iSelectedTab = 0;
    DayNumber toldNotBackedUp = noDay; ///< the last day on which it was
    bool isWantedInFront = false;      ///< as soon as the window is shown
    bool isClosing = false;
    bool isTerminated = false;
};

} // namespace zel
