#pragma once

#include "app/settings/SettingController.h"
#include "store/LanguageChoice.h"
#include "support/MonitorTest.h"
#include "support/ScriptedChooser.h"

#include <QTest>

namespace zel {

/// The settings dialog over an empty window; what it imports is read anew, as in the whole program.
class SettingDialogTest : public MonitorTest {
protected:
    SettingDialogTest() { startsPlugged = false; }
    /// The same dialog each time while there is a window.
    void open() {
        if (!host) {
            attach();
            show(new QWidget);
            auto* made = new SettingController(
                {store, status, *worker, panel, chooser, languageFile(home.path())}, host.get());
            QObject::connect(made, &SettingController::imported, made,
                             [this] { EXPECT_TRUE(store.loadXML()); });
        }
        dialog().showSetting();
        ASSERT_TRUE(dialog().isVisible());
    }
    SettingController& dialog() { return find<SettingController>("SettingController"); }

    ScriptedChooser chooser;
};

} // namespace zel
