#include "app/shell/MainWindow.h"

#include "app/device/MonitorBar.h"
#include "app/device/MonitorPanel.h"
#include "app/patients/DataPanel.h"
#include "app/shell/MainMenu.h"
#include "app/widgets/PageController.h"
#include "app/widgets/ScreenFit.h"
#include "app/widgets/SeenName.h"
#include "app/widgets/Spoken.h"
#include "app/widgets/Style.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The pages, in no less room than the one in view needs at its width, rather than what it would like.
class PageBox final : public QStackedWidget {
public:
    using QStackedWidget::QStackedWidget;
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }
    [[nodiscard]] QSize minimumSizeHint() const override {
        const QSize least = QStackedWidget::minimumSizeHint();
        const QLayout* page = currentWidget() ? currentWidget()->layout() : nullptr;
        if (!page || !page->hasHeightForWidth()) return least;
        return {least.width(), page->minimumHeightForWidth(std::max(width(), least.width()))};
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QStackedWidget::resizeEvent(event);
        if (event->oldSize().width() != width()) updateGeometry();
    }
};

} // namespace

MainWindow::MainWindow(const DataStore& store, const MonitorStatus& monitorStatus)
    : status(monitorStatus), tabs{new TabButton(u"patientBtn"_s, qtTrId("tabPatients"), this),
                                  new TabButton(u"graphBtn"_s, qtTrId("tabChart"), this),
                                  new TabButton(u"tableBtn"_s, qtTrId("tabReadings"), this)},
      contentBox(new PageBox(this)), lblOutcome(new QLabel(this)), lblMonitor(new QLabel(this)) {
    setObjectName(u"mainWndow"_s); // spelled so in the interface
    setWindowIcon(QIcon(u":/icons/zel.svg"_s));
    contentBox->setObjectName(u"contentBox"_s);
    auto* central = new QWidget(this);
    auto* column = new QVBoxLayout(central);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::none);
    column->addWidget(makeTabBar());
    offer = new MonitorBar(status, store, this); // Tab goes to it next
    column->addWidget(offer);
    column->addWidget(makeBody(store), 1);
    setCentralWidget(central);
    setMenuBar(makeMainMenu(*this, store, status));
    makeStatusLine();
    makeShortcuts();
}

QWidget* MainWindow::makeTabBar() {
    auto* bar = new QWidget(this);
    bar->setAutoFillBackground(true);
    bar->setBackgroundRole(QPalette::Base);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(Style::near, 0, Style::near, 0);
    row->setSpacing(Style::tight);
    auto* list = new QWidget(bar);
    list->setAccessibleName(qtTrId("pageTabs"));
    speakAs(*list, QAccessible::PageTabList);
    auto* inside = new QHBoxLayout(list);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->setSpacing(Style::tight);
    for (int tag = 0; tag < tabTotal; ++tag) {
        TabButton* tab = tabs.at(static_cast<std::size_t>(tag));
        tab->setToolTip(qtTrId("tabHint").arg(tab->accessibleName()).arg(tag + 1));
        connect(tab, &TabButton::clicked, this, [this, tag] { emit tabWanted(tag); });
        inside->addWidget(tab);
    }
    row->addWidget(list);
    row->addStretch(1);
    row->addWidget(makeSettingButton());
    auto* line = new QFrame(bar);
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Mid);
    line->setFrameShadow(QFrame::Plain);
    auto* column = new QVBoxLayout(bar);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::none);
    column->addLayout(row);
    column->addWidget(line);
    return bar;
}

QWidget* MainWindow::makeSettingButton() {
    auto* button = new QToolButton(this);
    button->setObjectName(u"settingBtn"_s);
    button->setText(qtTrId("settingsButton"));
    button->setToolTip(qtTrId("settingsHint"));
    nameAsSeen(*button, button->text());
    button->setIcon(QIcon(u":/icons/settingBtn.svg"_s));
    button->setIconSize({Style::smallIcon, Style::smallIcon});
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setCursor(Qt::PointingHandCursor);
    connect(button, &QToolButton::clicked, this, &MainWindow::settingWanted);
    return button;
}

/// A page that needs more room than there is, as with large type on a small screen, is scrolled.
QWidget* MainWindow::makeBody(const DataStore& store) {
    auto* body = new QWidget;
    auto* row = new QHBoxLayout(body);
    row->setContentsMargins(Style::edge, Style::apart, Style::edge, Style::apart);
    row->setSpacing(Style::edge);
    row->addWidget(contentBox, 1);
    row->addWidget(makeSideColumn(store));
    return scrolling(u"bodyScroll"_s, body, this);
}

QWidget* MainWindow::makeSideColumn(const DataStore& store) {
    auto* panels = new QWidget;
    auto* column = new QVBoxLayout(panels);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::apart);
    column->addWidget(new MonitorPanel(status, panels));
    dataPanel = new DataPanel(store, panels);
    column->addWidget(dataPanel);
    column->addStretch(1);
    sideColumn = scrolling(u"sideColumn"_s, panels, this);
    sideColumn->setAccessibleName(qtTrId("sideColumn"));
    sideColumn->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return sideColumn;
}

void MainWindow::makeStatusLine() {
    lblOutcome->setObjectName(u"lblOutcome"_s);
    lblOutcome->setTextFormat(Qt::PlainText);
    lblOutcome->setContentsMargins(Style::apart, 0, 0, 0);
    lblOutcome->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblMonitor->setObjectName(u"lblMonitor"_s);
    lblMonitor->setContentsMargins(0, 0, Style::apart, 0);
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

void MainWindow::showAtHead(QWidget& strip) {
    qobject_cast<QVBoxLayout*>(centralWidget()->layout())->insertWidget(0, &strip);
}

void MainWindow::addPage(PageController& page) { contentBox->addWidget(&page); }

void MainWindow::showPage(PageController& page) {
    for (int tag = 0; tag < contentBox->count(); ++tag) { // only the one in view needs room
        QWidget* one = contentBox->widget(tag);
        const auto policy = one == &page ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        one->setSizePolicy(policy, policy);
    }
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

/// The page below and beside them keeps the room that it needs, and so do the panels' words beside their bar.
void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    const int letter = fontMetrics().averageCharWidth();
    const int words = sideColumn->widget()->minimumSizeHint().width();
    const int least = words + sideColumn->verticalScrollBar()->sizeHint().width();
    const bool isNarrow = width() < letter * 130;
    sideColumn->setFixedWidth(isNarrow ? std::clamp(least, letter * 22, letter * 34) : letter * 34);
    for (TabButton* tab : tabs)
        tab->setSlim(height() < letter * 75);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // whoever quits the program closes it
    emit closeWanted();
}

} // namespace zel
