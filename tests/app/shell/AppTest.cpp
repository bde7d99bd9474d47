#include "AppTest.h"

#include "store/LanguageChoice.h"

namespace zel {

using namespace std::chrono_literals;

void AppTest::TearDown() {
    app.reset();
    MonitorTest::TearDown();
}

void AppTest::launch(AppController::Timing timing) {
    app.reset();
    attach();
    panel.messages.clear();
    const auto open = [this](const QString& path) {
        opened += path;
        return hasViewer;
    };
    auto reading = store.beginLoad();
    app = std::make_unique<AppController>(
        AppController::Parts{store, status, *worker, panel, clock, chooser, period, printers, open,
                             languageFile(home.path()), memory.get(), demonstration},
        timing);
    loaded = store.finishLoad(std::move(reading));
    app->awakeFromNib(loaded);
    app->applicationDidFinishLaunching(loaded);
}

void AppTest::launch() { launch({.polling = 1ms, .splash = 1ms, .watching = 1h}); }

void AppTest::start() {
    launch();
    waitFor([this] { return !find<QWidget>("splash").isVisible(); });
    app->mainWndow().activateWindow();
}

void AppTest::startConnected() {
    start();
    waitFor([this] { return status.state().IDOnDevice && !status.isBusy(); });
}

void AppTest::download() {
    find<QLabel>("lblOutcome").clear();
    click("btnDataTransfer");
    waitFor([this] { return !text("lblOutcome").isEmpty(); });
}

} // namespace zel
