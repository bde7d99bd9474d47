#include "app/device/MonitorBar.h"

#include "app/widgets/Mnemonic.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/Style.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

MonitorBar::MonitorBar(const MonitorStatus& monitorStatus, const DataStore& dataStore, QWidget* parent)
    : QFrame(parent), status(monitorStatus), store(dataStore), lblTitle(new QLabel(this)),
      lblText(new QLabel(this)) {
    setObjectName(u"monitorBar"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    build();
    makeKeys();
    afterRelease.setSingleShot(true);
    afterRelease.setInterval(50);
    connect(&afterRelease, &QTimer::timeout, this, &MonitorBar::follow);
    connect(&status, &MonitorStatus::changed, this, &MonitorBar::follow);
    connect(&store, &DataStore::reloaded, this, &MonitorBar::follow);
    hide();
    follow();
}

void MonitorBar::build() {
    lblTitle->setObjectName(u"lblMonitorBarTitle"_s);
    Style::setType(*lblTitle, Style::Type::text);
    lblText->setObjectName(u"lblMonitorBar"_s);
    auto* words = new QVBoxLayout;
    words->setSpacing(Style::none);
    for (QLabel* label : {lblTitle, lblText}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        words->addWidget(label);
    }
    downloadButton = makeButton(u"btnBarDownload"_s, withoutMnemonic(qtTrId("downloadButton")));
    newPatientButton = makeButton(u"btnBarNewPatient"_s, qtTrId("newPatientWithID"));
    closeButton = makeButton(u"btnBarClose"_s, qtTrId("closeWindow"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Style::edge, Style::near, Style::edge, Style::near);
    row->setSpacing(Style::near);
    row->addLayout(words, 1);
    for (QPushButton* button : {downloadButton, newPatientButton, closeButton})
        row->addWidget(button);
    connect(downloadButton, &QPushButton::clicked, this,
            [this] { emit downloadWanted(status.state().IDOnDevice.value_or(QString())); });
    connect(newPatientButton, &QPushButton::clicked, this,
            [this] { emit newPatientWanted(status.state().IDOnDevice.value_or(QString())); });
    connect(closeButton, &QPushButton::clicked, this, &MonitorBar::dismiss);
}

QPushButton* MonitorBar::makeButton(const QString& name, const QString& text) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAccessibleName(text);
    button->setAutoDefault(false);
    return button;
}

void MonitorBar::makeKeys() {
    auto* enter = new QShortcut(Qt::Key_F6, this);
    enter->setWhatsThis(qtTrId("keysToMonitorBar"));
    connect(enter, &QShortcut::activated, this, [this] {
        for (QPushButton* button : {downloadButton, newPatientButton, closeButton})
            if (button->isVisible() && button->isEnabled()) return button->setFocus(Qt::ShortcutFocusReason);
    });
    auto* escape = new QShortcut(Qt::Key_Escape, this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    escape->setWhatsThis(qtTrId("keysCloseMonitorBar"));
    connect(escape, &QShortcut::activated, this, &MonitorBar::dismiss);
}

void MonitorBar::dismiss() {
    dismissed = status.state().IDOnDevice;
    follow();
}

/// An ID is news once, however often it is read. The page below moves for the bar: never under a pointer that
/// holds something.
void MonitorBar::follow() {
    if (QGuiApplication::mouseButtons() != Qt::NoButton) return afterRelease.start();
    const MonitorState& state = status.state();
    const auto ID = state.isConnected ? state.IDOnDevice : std::nullopt;
    if (ID != dismissed) dismissed.reset();
    if (!ID || dismissed || !store.lastLoad()) { // whose it is cannot be told while the data file is not read
        said = {};
        return hide();
    }
    enableButtons();
    const MonitorNotice notice = monitorNotice(*ID, store);
    if (std::exchange(said, notice) != notice) say(notice);
}

void MonitorBar::say(const MonitorNotice& notice) {
    lblTitle->setText(notice.title);
    lblTitle->setAccessibleName(notice.title);
    lblText->setText(notice.text);
    lblText->setAccessibleName(notice.text);
    setAccessibleName(notice.title);
    setAccessibleDescription(notice.text);
    downloadButton->setAccessibleDescription(notice.title);
    downloadButton->setVisible(notice.offer == MonitorNotice::Offer::download);
    newPatientButton->setVisible(notice.offer == MonitorNotice::Offer::newPatient);
    show();
    QAccessibleEvent spoken(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&spoken);
}

/// Not while the monitor is busy or gives no proper answer: nothing would come of it.
void MonitorBar::enableButtons() {
    const bool isFree = !status.isBusy() && status.state().trouble == MonitorResult::success;
    downloadButton->setEnabled(isFree);
}

} // namespace zel
