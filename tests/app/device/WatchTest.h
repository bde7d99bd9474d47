#pragma once

#include "app/device/MonitorPanel.h"
#include "app/device/MonitorWatch.h"
#include "support/MonitorTest.h"

namespace zel {

/// The watch over a monitor, and the panel that shows what it finds.
class WatchTest : public MonitorTest {
protected:
    WatchTest() { addPatient(QStringLiteral("P1"), QStringLiteral("Adams")); }

    /// Starts the watch, as if for the first time.
    void start() {
        watch.reset();
        attach();
        prepare();
        panel.messages.clear();
        show(new MonitorPanel(status, nullptr));
        watch = std::make_unique<MonitorWatch>(MonitorWatch::Parts{*worker, status, panel, clock},
                                               std::chrono::milliseconds(1));
        QObject::connect(watch.get(), &MonitorWatch::setHWButtons, [this](bool on) { buttons += on; });
        watch->monitorBPM();
        watch->setSplashClosed();
    }
    /// Starts it and waits until the monitor's ID is known.
    void startConnected() {
        start();
        waitFor([this] { return status.state().IDOnDevice && !status.isBusy(); });
    }

    std::function<void()> prepare = [] {}; ///< the monitor, just attached
    std::unique_ptr<MonitorWatch> watch;
    QList<bool> buttons; ///< as it wanted the pages' buttons, in turn
};

} // namespace zel
