#pragma once

#include "analysis/DisplayPeriod.h"
#include "app/device/MonitorStatus.h"
#include "app/device/MonitorWorker.h"
#include "app/settings/SelectFolderController.h"
#include "app/shell/AppController.h"
#include "app/widgets/MessageBoxPanel.h"
#include "store/DataStore.h"
#include "store/LanguageChoice.h"
#include "store/ViewMemory.h"

#include <memory>

namespace zel {

/// The composition root: made once, owns one object for each duty and hands them to those who need them.
class GlobalVar {
public:
    /// \p personHome: whose choices hold, if the data lie elsewhere.
    GlobalVar(StorePaths paths, std::unique_ptr<MonitorPort> monitorPort, Clock& clock,
              const AppController::Timing& timing = {},
              const AppController::Demonstration& demonstration = {}, const QString& personHome = {})
        : port(std::move(monitorPort)),
          languagePath(languageFile(personHome.isEmpty() ? paths.home : personHome)),
          memory(viewMemoryFile(paths.home, DataFile(paths, clock).getZELXMLPath())),
          store(std::move(paths), clock), reading(store.beginLoad()), monitor(*port, clock), chooser(&memory),
          period(std::chrono::floor<std::chrono::milliseconds>(clock.now())),
          appController({store, status, monitor, panel, clock, chooser, period, printers, openWithDesktop,
                         languagePath, &memory, demonstration},
                        timing) {
        panel.setWindow(&appController.mainWndow());
        loaded = store.finishLoad(std::move(reading));
    }

    std::unique_ptr<MonitorPort> port;
    QString languagePath;
    ViewMemory memory; ///< read once, and written at the end
    DataStore store;
    std::future<DataStore::Read> reading; ///< while the window is made
    StoreResult loaded;                   ///< how the data file was loaded at start
    MonitorStatus status;
    MonitorWorker monitor;
    MessageBoxPanel panel;
    SelectFolderController chooser;
    DisplayPeriod period;
    SystemPrinters printers;
    AppController appController;
};

} // namespace zel
