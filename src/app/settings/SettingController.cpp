#include "app/settings/SettingController.h"

#include "app/settings/ExportController.h"
#include "app/settings/ImportController.h"
#include "app/settings/SettingForm.h"
#include "app/widgets/Log.h"
#include "app/widgets/ScreenFit.h"
#include "app/widgets/SeenName.h"
#include "app/widgets/Style.h"
#include "store/LanguageChoice.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// An element of an older version may have no place for all of them.
bool isPartlySaved(const SettingModel& saved, const SettingModel& shown, const SettingModel& wanted) {
    SettingModel meant = saved;
    meant.takeChanges(shown, wanted);
    return saved != meant;
}

} // namespace

SettingController::SettingController(const Parts& needed, QWidget* parent)
    : QDialog(parent), parts(needed), form(new SettingForm),
      exporter(new ExportController(
          {needed.store, needed.panel, needed.selectFolderController, needed.isReadyToExport}, this)),
      importer(new ImportController({needed.store, needed.panel, needed.selectFolderController}, this)),
      sendButton(addButton(u"sendButton"_s, qtTrId("sendClockButton"), qtTrId("sendClock"))),
      csvButton(addButton(u"csvButton"_s, qtTrId("exportCSVButton"), qtTrId("exportCSV"))),
      exportButton(addButton(u"exportButton"_s, qtTrId("exportButton"), qtTrId("exportAll"))),
      importButton(addButton(u"importButton"_s, qtTrId("importFilesButton"), qtTrId("importTitle"))) {
    setObjectName(u"SettingController"_s);
    setWindowTitle(qtTrId("settings"));
    setAccessibleName(qtTrId("settings"));
    build();
    awakeFromNib();
}

void SettingController::awakeFromNib() {
    qCInfo(lcApp, "awakeFromNib of setting");
    connect(sendButton, &QPushButton::clicked, this, &SettingController::send);
    connect(exportButton, &QPushButton::clicked, exporter, &ExportController::exportFiles);
    connect(csvButton, &QPushButton::clicked, exporter, &ExportController::exportCSV);
    connect(importButton, &QPushButton::clicked, importer, &ImportController::importFiles);
    connect(importer, &ImportController::imported, this, &SettingController::imported);
    connect(&parts.status, &MonitorStatus::changed, this, &SettingController::enableButtons);
    connect(&parts.store, &DataStore::currentIDChanged, this, &SettingController::enableButtons);
    connect(&parts.store, &DataStore::reloaded, this, &SettingController::enableButtons);
    enableButtons();
}

QPushButton* SettingController::addButton(const QString& name, const QString& text, const QString& title) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    nameAsSeen(*button, text, title);
    button->setAutoDefault(false); // Enter in a field means OK
    return button;
}

void SettingController::build() {
    auto* controls = new QWidget;
    auto* inside = new QVBoxLayout(controls);
    inside->setContentsMargins(Style::edge, Style::near, Style::edge, Style::near);
    inside->setSpacing(Style::near);
    form->monitorColumn().addWidget(sendButton, 0, Qt::AlignLeft);
    form->monitorColumn().addStretch(1);
    inside->addWidget(form, 1);
    inside->addWidget(makeDataGroup());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::none);
    QScrollArea* scroll = scrolling(u"settingScroll"_s, controls, this);
    column->addWidget(scroll, 1);
    QWidget* buttons = makeButtons();
    column->addWidget(buttons);
    // All of it at once where the screen is large enough; a scroll area by itself would ask for less.
    QSize whole = controls->sizeHint();
    whole.setHeight(std::max(whole.height(), inside->heightForWidth(whole.width())));
    whole.rheight() += buttons->sizeHint().height();
    // With room for its bar, or it would need one across as well.
    const int bar = scroll->verticalScrollBar()->sizeHint().width();
    if (whole.height() > roomFor(*this).height()) whole.rwidth() += bar;
    fitToScreen(*this, whole);
}

QWidget* SettingController::makeDataGroup() {
    auto* group = new QGroupBox(qtTrId("settingData"), this);
    exportButton->setToolTip(qtTrId("exportHint"));
    csvButton->setToolTip(qtTrId("exportCSVHint"));
    importButton->setToolTip(qtTrId("importHint"));
    auto* row = new QHBoxLayout(group);
    for (QPushButton* button : {exportButton, csvButton, importButton}) {
        nameAsSeen(*button, button->text(), button->accessibleDescription());
        row->addWidget(button, 1);
    }
    return group;
}

QWidget* SettingController::makeButtons() {
    auto* buttons = new QWidget(this);
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(Style::edge, Style::near, Style::edge, Style::near);
    row->addStretch(1);
    QPushButton* ok = addButton(u"okButton"_s, qtTrId("ok"), qtTrId("settingOK"));
    QPushButton* cancel = addButton(u"cancelButton"_s, qtTrId("cancel"), qtTrId("settingCancel"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &SettingController::closeSetting);
    connect(cancel, &QPushButton::clicked, this, &SettingController::cancelSetting);
    row->addWidget(ok);
    row->addWidget(cancel);
    return buttons;
}

void SettingController::showSetting() {
    form->fill(std::as_const(parts.store).getSetting());
    form->store(shown);
    fillLanguage();
    enableButtons();
    open();
    form->begin();
}

void SettingController::fillLanguage() {
    const auto chosen = readLanguageChoice(parts.languageFile);
    shownLanguage = chosen ? std::optional(*chosen) : std::nullopt;
    form->fillLanguage(chosen.value_or(QString()),
                       chosen ? QString() : describeUnreadLanguage(chosen.error()));
}

/// Also over one that could not be read, which would be told at every start.
void SettingController::saveLanguage() {
    if (shownLanguage == form->language()) return;
    if (const StoreResult saved = writeLanguageChoice(parts.languageFile, form->language()); !saved)
        parts.panel.ShowMessage(describeWithin(qtTrId("languageNotSaved"), saved.error()), qtTrId("Warning"));
}

void SettingController::scrollToFocus() {
    auto* scroll = findChild<QScrollArea*>(u"settingScroll"_s);
    if (QWidget* field = focusWidget()) scroll->ensureWidgetVisible(field);
}

void SettingController::enableButtons() {
    const QString& ID = parts.store.getCurrentID();
    sendButton->setEnabled(parts.status.state().isConnected && !parts.status.isBusy());
    csvButton->setEnabled(!ID.isEmpty() && parts.store.validIDinXML(ID));
}

void SettingController::closeSetting() {
    if (!form->takesLimits()) return scrollToFocus();
    SettingModel wanted;
    form->store(wanted);
    const auto saved = parts.store.changeSetting(shown, wanted, DataStore::WithoutPlace::leaveOut);
    if (!saved)
        parts.panel.ShowMessage(describeWithin(qtTrId("settingsNotSaved"), saved.error()), qtTrId("Warning"));
    if (!isInPlace(saved)) return;
    saveLanguage();
    accept();
    if (const StoreResult loaded = parts.store.loadXML(); !loaded)
        parts.panel.ShowMessage(qtTrId("storedNotReadBack").arg(describe(loaded.error())),
                                qtTrId("dataFileUnreadable"));
    else if (saved && isPartlySaved(*saved, shown, wanted))
        parts.panel.ShowMessage(qtTrId("settingsPartlySaved"), qtTrId("Warning"));
}

void SettingController::writeOnSendButton(const QString& text) {
    sendButton->setText(text);
    nameAsSeen(*sendButton, text, qtTrId("sendClock"));
}

void SettingController::send() {
    parts.status.setActivity(MonitorActivity::settingClock);
    writeOnSendButton(qtTrId("sendClockBusy"));
    const auto set = [](BPMModel& monitor) { return monitor.setBPMDate(); };
    parts.monitor.submit(this, set, [this](MonitorResult result) { clockSent(result); });
}

void SettingController::clockSent(MonitorResult result) {
    const bool isSet = result == MonitorResult::success;
    writeOnSendButton(qtTrId("sendClockButton"));
    parts.status.update([=](MonitorState& next) {
        next.activity = MonitorActivity::none;
        if (!isSet) return;
        next.secondsAhead = 0;
        next.isClockUnset = false;
    });
    const QString how = isSet ? qtTrId("clockSet") : qtTrId("clockNotSet").arg(describe(result));
    const QString told = qtTrId("TimeSyncMsg").arg(how);
    parts.panel.interject(this, [this, told] { parts.panel.ShowMessage(told, qtTrId("TimeSync")); });
}

} // namespace zel
