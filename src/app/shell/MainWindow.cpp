#include "app/shell/MainWindow.h"

#include "app/device/MonitorPanel.h"
#include "app/patients/DataPanel.h"
#include "app/shell/MainMenu.h"
#include "app/widgets/PageController.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLineEdit>
#include <QScrollArea>
#include <QShortcut>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

MainWindow::MainWindow(const DataStore& store, const MonitorStatus& monitorStatus)
    : status(monitorStatus), tabs{new TabButton(u"patientBtn"_s, qtTrId("tabPatients"), this),
                                  new TabButton(u"graphBtn"_s, qtTrId("tabChart"), this),
                                  new TabButton(u"tableBtn"_s, qtTrId("tabReadings"), this)},
      contentBox(new QStackedWidget(this)), lblOutcome(new QLabel(this)), lblMonitor(new QLabel(this)) {
    setObjectName(u"mainWndow"_s); // spelled so in the interface
    setWindowIcon(QIcon(u":/icons/zel.svg"_s));
    contentBox->setObjectName(u"contentBox"_s);
    auto* body = new QHBoxLayout;
    body->setContentsMargins(16, 14, 16, 12);
    body->setSpacing(16);
    body->addWidget(contentBox, 1);
    body->addWidget(makeSideColumn(store));
    auto* central = new QWidget(this);
    auto* column = new QVBoxLayout(central);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeTabBar());
    column->addLayout(body, 1);
    setCentralWidget(central);
    setMenuBar(makeMainMenu(*this));
    makeStatusLine();
    makeShortcuts();
}

QWidget* MainWindow::makeTabBar() {
    auto* bar = new QWidget(this);
    bar->setAutoFillBackground(true);
    bar->setBackgroundRole(QPalette::Base);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(8, 0, 8, 0);
    row->setSpacing(4);
    for (int tag = 0; tag < tabTotal; ++tag) {
        TabButton* tab = tabs.at(static_cast<std::size_t>(tag));
        tab->setToolTip(qtTrId("tabHint").arg(tab->accessibleName()).arg(tag + 1));
        connect(tab, &TabButton::clicked, this, [this, tag] { emit tabWanted(tag); });
        row->addWidget(tab);
    }
    row->addStretch(1);
    row->addWidget(makeSettingButton());
    auto* line = new QFrame(bar);
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Mid);
    line->setFrameShadow(QFrame::Plain);
    auto* column = new QVBoxLayout(bar);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(row);
    column->addWidget(line);
    return bar;
}

QWidget* MainWindow::makeSettingButton() {
    auto* button = new QToolButton(this);
    button->setObjectName(u"settingBtn"_s);
    button->setText(qtTrId("settingsButton"));
    button->setAccessibleName(qtTrId("settings"));
    button->setToolTip(qtTrId("settingsHint"));
    button->setIcon(QIcon(u":/icons/settingBtn.svg"_s));
    button->setIconSize({20, 20});
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setCursor(Qt::PointingHandCursor);
    connect(button, &QToolButton::clicked, this, &MainWindow::settingWanted);
    return button;
}

QWidget* MainWindow::makeSideColumn(const DataStore& store) {
    auto* panels = new QWidget;
    auto* column = new QVBoxLayout(panels);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(new MonitorPanel(status, panels));
    dataPanel = new DataPanel(store, panels);
    column->addWidget(dataPanel);
    column->addStretch(1);
    auto* scroll = new QScrollArea(this);
    scroll->setObjectName(u"sideColumn"_s);
    scroll->setAccessibleName(qtTrId("sideColumn"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidgetResizable(true);
    scroll->setWidget(panels);
    scroll->viewport()->setAutoFillBackground(false);
    panels->setAutoFillBackground(false);
    sideColumn = scroll;
    return scroll;
}

void MainWindow::makeStatusLine() {
    lblOutcome->setObjectName(u"lblOutcome"_s);
    lblOutcome->setTextFormat(Qt::PlainText);
    lblOutcome->setContentsMargins(12, 0, 0, 0);
    lblOutcome->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblMonitor->setObjectName(u"lblMonitor"_s);
    lblMonitor->setContentsMargins(0, 0, 12, 0);
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(lblOutcome, 1);
    statusBar()->addPermanentWidget(lblMonitor);
    connect(&status, &MonitorStatus::changed, this, &MainWindow::showMonitor);
    showMonitor();
}

void MainWindow::makeShortcuts() {
    constexpr std::array keys{Qt::Key_1, Qt::Key_2, Qt::Key_3};
    for (std::size_t tag = 0; tag < keys.size(); ++tag)
        connect(new QShortcut(QKeySequence(Qt::CTRL | keys.at(tag)), this), &QShortcut::activated,
                tabs.at(tag), &TabButton::click);
}

void MainWindow::showMonitor() {
    const MonitorState& state = status.state();
    lblMonitor->setText(describeShortly(state));
    lblMonitor->setToolTip(describe(state));
    lblMonitor->setAccessibleName(lblMonitor->text());
    lblMonitor->setAccessibleDescription(describe(state));
}

void MainWindow::UpdateUIBySetting() { dataPanel->showState(); }

void MainWindow::showOutcome(const QString& text) {
    lblOutcome->setText(text);
    lblOutcome->setToolTip(text);
    lblOutcome->setAccessibleName(text);
}

void MainWindow::addPage(PageController& page) { contentBox->addWidget(&page); }

void MainWindow::showPage(PageController& page) {
    contentBox->setCurrentWidget(&page);
    page.setFocus();
}

void MainWindow::setShownTab(int tabTag) {
    for (int tag = 0; tag < tabTotal; ++tag)
        tabs.at(static_cast<std::size_t>(tag))->setShown(tag == tabTag);
}

void MainWindow::setPatientPanelsVisible(bool visible) { sideColumn->setVisible(visible); }

void MainWindow::enable2Tabs(bool enabled) {
    tabs[1]->setEnabled(enabled);
    tabs[2]->setEnabled(enabled);
}

int MainWindow::pageInView() const { return contentBox->currentIndex(); }

bool MainWindow::makeFirstResponder() {
    setFocus(); // a field that has the focus ends its editing
    const auto fields = contentBox->currentWidget()->findChildren<QLineEdit*>();
    const auto isInvalid = [](const QLineEdit* field) { return !field->hasAcceptableInput(); };
    const auto invalid = std::ranges::find_if(fields, isInvalid);
    if (invalid == fields.end()) return true;
    (*invalid)->setFocus();
    return false;
}

/// The page beside them keeps the room that it needs.
void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    const int letter = fontMetrics().averageCharWidth();
    sideColumn->setFixedWidth(letter * (width() < letter * 130 ? 22 : 34));
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // whoever quits the program closes it
    emit closeWanted();
}

} // namespace zel
