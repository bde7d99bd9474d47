#pragma once

#include "app/shell/AppController.h"
#include "store/ViewMemory.h"
#include "support/MonitorTest.h"
#include "support/ScriptedChooser.h"
#include "support/ScriptedPrinters.h"

#include <QPushButton>
#include <QTest>

namespace zel {

/// The whole program over a home of its own.
class AppTest : public MonitorTest {
protected:
    void TearDown() override;
    [[nodiscard]] QWidget& window() override { return app->mainWndow(); }

    /// Starts the program, as if for the first time.
    void launch(AppController::Timing timing);
    void launch();
    /// Starts the program and waits until the splash screen has gone.
    void start();
    /// Starts it and waits until the monitor's ID is known.
    void startConnected();
    void download();

    ScriptedChooser chooser;
    ScriptedPrinters printers;
    QStringList opened; ///< documents that were handed to the desktop
    bool hasViewer = true;
    AppController::Demonstration demonstration; ///< none to be started unless told
    DisplayPeriod period{std::chrono::floor<std::chrono::milliseconds>(clock.now())};
    std::unique_ptr<ViewMemory> memory; ///< none unless a test makes one
    std::unique_ptr<AppController> app;
};

} // namespace zel
