#include "app/frame/ReadingActions.h"

#include "app/frame/ExclusionDialog.h"
#include "app/frame/ManualReadingDialog.h"
#include "app/widgets/PatientTexts.h"
#include "store/ManualReading.h"
#include "store/Text.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

bool isCounting(const ReadingModel& reading) { return !reading.isExcluded(); }
bool isLeftOut(const ReadingModel& reading) { return reading.isExcluded(); }
bool isTypedIn(const ReadingModel& reading) { return reading.isManual; }

bool isAsTyped(const ReadingModel& reading, const ManualReading& typed) {
    const auto minute = [](const Date& date) { return std::chrono::floor<std::chrono::minutes>(*date); };
    return reading.isManual && reading.ReadingDate && typed.time
           && minute(reading.ReadingDate) == minute(typed.time) && reading.sys == typed.sys
           && reading.dia == typed.dia && reading.pulse == typed.pulse;
}

} // namespace

QString readingsInWords(const ReadingList& readings, const SettingModel& settings) {
    if (readings.size() != 1) return qtTrId("readingCount", static_cast<int>(readings.size()));
    const ReadingModel& one = readings.front();
    return qtTrId("readingInWords")
        .arg(one.strDisplayDate(settings), one.strDisplayTime(settings))
        .arg(one.sys)
        .arg(one.dia)
        .arg(one.pulse);
}

QString storedInWords(const ReadingModel& reading, const ReadingSelection& selection,
                      const SettingModel& settings) {
    const QString inWords = readingsInWords({reading}, settings);
    if (isListed(reading, selection)) return qtTrId("readingStored").arg(inWords);
    const bool isInDays = reading.ReadingDate && selection.period.contains(*reading.ReadingDate);
    return (isInDays ? qtTrId("readingStoredOtherHalf") : qtTrId("readingStoredOutside")).arg(inWords);
}

ReadingActions::ReadingActions(const Parts& needed, std::function<Readings()> chosen, QWidget& view)
    : QObject(&view), parts(needed), chosenNow(std::move(chosen)), shownIn(view),
      leaveOutAction(add(u"leaveOutReadings"_s, qtTrId("leaveOutAction"), Qt::CTRL | Qt::Key_E,
                         &ReadingActions::leaveOut)),
      takeInAction(add(u"takeInReadings"_s, qtTrId("takeInAction"), Qt::CTRL | Qt::SHIFT | Qt::Key_E,
                       &ReadingActions::takeIn)),
      typeInAction(
          add(u"newReading"_s, qtTrId("newReadingAction"), Qt::CTRL | Qt::Key_N, &ReadingActions::typeIn)),
      changeAction(
          add(u"changeReading"_s, qtTrId("changeReadingAction"), Qt::Key_F2, &ReadingActions::change)),
      removeAction(add(u"deleteReadings"_s, qtTrId("deleteReadingsAction"), Qt::SHIFT | Qt::Key_Delete,
                       &ReadingActions::remove)) {
    connect(&parts.store, &DataStore::reloaded, this, &ReadingActions::update);
    connect(&parts.store, &DataStore::currentIDChanged, this, &ReadingActions::update);
    update();
}

QAction* ReadingActions::add(const QString& name, const QString& text, const QKeySequence& keys,
                             void (ReadingActions::*act)()) {
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setAutoRepeat(false);
    connect(action, &QAction::triggered, this, act);
    shownIn.addAction(action);
    all += action;
    return action;
}

void ReadingActions::update() {
    const Readings chosen = chosenNow();
    const auto isSome = [&chosen](auto rule) {
        return std::ranges::any_of(chosen, [rule](const ReadingModel* reading) { return rule(*reading); });
    };
    leaveOutAction->setEnabled(!chosen.empty());
    takeInAction->setEnabled(isSome(isLeftOut));
    typeInAction->setEnabled(!IsEmptyID(parts.store.getCurrentID()));
    changeAction->setEnabled(chosen.size() == 1 && isSome(isTypedIn));
    removeAction->setEnabled(!chosen.empty() && std::ranges::all_of(chosen, &ReadingModel::isManual));
}

ReadingList ReadingActions::copies(bool (*isMeant)(const ReadingModel&)) const {
    ReadingList list;
    for (const ReadingModel* reading : chosenNow())
        if (isMeant(*reading)) list.push_back(*reading);
    return list;
}

/// What is in place but not safe is told, too, and done.
bool ReadingActions::isDone(const StoreResult& result) const {
    if (!result) parts.panel.ShowMessage(describe(result.error()), qtTrId("Warning"));
    if (!isInPlace(result)) return false;
    if (const StoreResult& read = parts.store.lastLoad(); !read)
        parts.panel.ShowMessage(qtTrId("storedNotReadBack").arg(describe(read.error())), qtTrId("Warning"));
    return true;
}

/// As ManualReadingDialog::Store has it.
template <class Result>
QString ReadingActions::refusalOf(const Result& result) const {
    using enum StoreErrorCode;
    const bool isTyped =
        !result && (result.error().code == readingKnown || result.error().code == readingRefused);
    if (isTyped) return describe(result.error());
    return isDone(result ? StoreResult{} : StoreResult{tl::unexpected{result.error()}}) ? QString() : u""_s;
}

/// Those that are left out already keep their reasons, unless it is all about them.
void ReadingActions::leaveOut() {
    ReadingList readings = copies(isCounting);
    if (readings.empty()) readings = copies(isLeftOut);
    if (readings.empty()) return;
    ExclusionDialog dialog(
        readingsInWords(readings, parts.store.getSetting()),
        [&](const QString& reason) { return isDone(parts.store.excludeReadings(readings, reason)); },
        shownIn.window());
    if (readings.size() == 1) dialog.setReason(describeReason(readings.front().exclusion));
    dialog.exec();
}

/// The others that are chosen count already.
void ReadingActions::takeIn() {
    const auto taken = parts.store.includeReadings(copies(isLeftOut));
    isDone(taken.map([](const TakenInAgain&) {}));
    const QString remark = taken ? describe(*taken) : QString();
    if (!remark.isEmpty()) parts.panel.ShowMessage(remark, qtTrId("Warning"));
}

void ReadingActions::typeIn() {
    const QString ID = parts.store.getCurrentID();
    ManualReading asked;
    ManualReadingDialog dialog(
        parts.store.getSetting(), parts.clock, narrowPatientHeading(parts.store),
        [&](const ManualReading& typed) {
            asked = typed;
            return refusalOf(parts.store.addReading(ID, typed));
        },
        shownIn.window());
    if (dialog.exec() == QDialog::Accepted) tellStored(asked);
}

void ReadingActions::change() {
    const ReadingList readings = copies(isTypedIn);
    if (readings.size() != 1) return;
    ManualReading asked;
    ManualReadingDialog dialog(
        parts.store.getSetting(), parts.clock, narrowPatientHeading(parts.store),
        [&](const ManualReading& typed) {
            asked = typed;
            return refusalOf(parts.store.changeReading(readings.front(), typed));
        },
        shownIn.window());
    dialog.setReading(ManualReading::of(readings.front()));
    if (dialog.exec() == QDialog::Accepted) tellStored(asked);
}

void ReadingActions::tellStored(const ManualReading& typed) {
    const ReadingList& readings = parts.store.getReadingForCurID();
    const auto found = std::ranges::find_if(
        readings, [&typed](const ReadingModel& reading) { return isAsTyped(reading, typed); });
    if (found != readings.end()) emit readingStored(*found);
}

void ReadingActions::remove() {
    const ReadingList readings = copies(isTypedIn);
    if (readings.empty()) return;
    const QString question =
        qtTrId("deleteReadingsQuestion").arg(readingsInWords(readings, parts.store.getSetting()));
    if (parts.panel.AskToErase(question, qtTrId("deleteReadingsTitle")))
        isDone(parts.store.deleteReadings(readings));
}

} // namespace zel
