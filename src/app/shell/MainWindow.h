#pragma once

#include "app/device/MonitorStatus.h"
#include "app/shell/TabButton.h"
#include "store/DataStore.h"

#include <QLabel>
#include <QMainWindow>
#include <QStackedWidget>

#include <array>

class QScrollArea;

namespace zel {

class DataPanel;
class MonitorBar;
class PageController;

/// The one window: tabs at the top, the content box with the page in view, the panels that stand beside the
/// roster, and a line at the bottom for what has happened and for the monitor.
class MainWindow final : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(const DataStore& store, const MonitorStatus& monitorStatus);

    static constexpr int tabTotal = 3;
    void addPage(PageController& page);
    void showPage(PageController& page);
    void setShownTab(int tabTag);
    void setPatientPanelsVisible(bool visible);
    /// Enables or disables the chart's and the table's tab.
    void enable2Tabs(bool enabled);
    /// The settings may have changed.
    void UpdateUIBySetting();
    void showOutcome(const QString& text);
    [[nodiscard]] MonitorBar& monitorBar() { return *offer; }
    /// Something that is said for as long as the window is open, above all else.
    void showAtHead(QWidget& strip);
    [[nodiscard]] int pageInView() const;
    /// Ends the editing of any field. \return false if one holds an entry that does not validate; it then has
    /// the focus
    [[nodiscard]] bool makeFirstResponder();

signals:
    void tabWanted(int tabTag);
    void settingWanted();
    void backupsWanted();
    void undoWanted();
    void redoWanted();
    void printWanted();
    void pdfWanted();
    void fhirWanted();
    void helpWanted();
    void aboutWanted();
    void closeWanted();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* makeTabBar();
    QWidget* makeSettingButton();
    QWidget* makeBody(const DataStore& store);
    QWidget* makeSideColumn(const DataStore& store);
    void makeStatusLine();
    void makeShortcuts();
    void showMonitor();

    const MonitorStatus& status;
    std::array<TabButton*, tabTotal> tabs;
    QStackedWidget* contentBox;
    MonitorBar* offer = nullptr;
    QScrollArea* sideColumn = nullptr;
    DataPanel* dataPanel = nullptr;
    QLabel* lblOutcome;
    QLabel* lblMonitor;
};

} // namespace zel
