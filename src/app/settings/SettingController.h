#pragma once

#include "app/device/MonitorStatus.h"
#include "app/device/MonitorWorker.h"
#include "app/widgets/FileChooser.h"
#include "store/DataStore.h"

#include <QDialog>

#include <functional>
#include <optional>

class QPushButton;

namespace zel {

class ExportController;
class ImportController;
class SettingForm;

/// The settings dialog, with the data commands and the monitor's clock. Modal; made on first use and kept.
/// The settings are written when it is closed with OK, and only then.
class SettingController final : public QDialog {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        MonitorStatus& status;
        MonitorWorker& monitor;
        MessagePanel& panel;
        FileChooser& selectFolderController;
        QString languageFile; ///< of the user's choice
        /// Settles what is typed on a page and not saved. \return false if nothing is to be exported
        std::function<bool()> isReadyToExport = [] { return true; };
    };
    SettingController(const Parts& needed, QWidget* parent);

    /// Opens the dialog with the settings as they are now.
    void showSetting();
    /// OK: stores and saves. When that fails the dialog stays, with all that was entered.
    void closeSetting();
    /// Cancel, Esc and the window's close button.
    void cancelSetting() { QDialog::reject(); }
    void reject() override { cancelSetting(); }

signals:
    void imported(); ///< patients were brought in

private:
    void awakeFromNib();
    void build();
    QWidget* makeDataGroup();
    QWidget* makeButtons();
    QPushButton* addButton(const QString& name, const QString& text, const QString& title);
    void scrollToFocus();
    void enableButtons();
    void send();
    void writeOnSendButton(const QString& text);
    void clockSent(MonitorResult result);
    void fillLanguage();
    void saveLanguage();

    Parts parts;
    SettingForm* form;
    SettingModel shown{};                 ///< what the controls held when they were filled
    std::optional<QString> shownLanguage; ///< none: it could not be read
    ExportController* exporter;
    ImportController* importer;
    QPushButton* sendButton;
    QPushButton* csvButton;
    QPushButton* exportButton;
    QPushButton* importButton;
};

} // namespace zel
