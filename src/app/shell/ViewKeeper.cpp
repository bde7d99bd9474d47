#include "app/shell/ViewKeeper.h"

#include "analysis/DisplayPeriod.h"
#include "app/frame/PeriodFollower.h"
#include "app/graph/GraphViewController.h"
#include "app/patients/PatientViewController.h"
#include "app/shell/FolderName.h"
#include "app/table/ReadingColumns.h"
#include "app/table/TableViewController.h"
#include "app/widgets/Log.h"

#include <QMainWindow>

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr auto windowKey = "window"_L1, pageKey = "page"_L1, chartKey = "chart"_L1, patientKey = "patient"_L1,
               periodKey = "period"_L1, tableKey = "table"_L1, weekRuleKey = "weekRule"_L1,
               trendApartKey = "trendApart"_L1;

/// By the numbers of the choices; what stands first is usual, and not kept.
constexpr std::array dayNames{""_L1, "last7"_L1, "last30"_L1, "last90"_L1, "measuringWeek"_L1, "all"_L1};
constexpr std::array halfNames{""_L1, "morning"_L1, "evening"_L1};
constexpr std::array chartNames{""_L1, "histogram"_L1, "correlation"_L1, "trend"_L1};

/// 0 for a name that there is not.
template <std::size_t N>
int numberOf(const std::array<QLatin1StringView, N>& names, const QJsonValue& name) {
    const auto found =
        std::ranges::find_if(names, [text = name.toString()](auto each) { return text == each; });
    return found == names.end() ? 0 : static_cast<int>(found - names.begin());
}

template <std::size_t N>
QJsonValue nameOf(const std::array<QLatin1StringView, N>& names, int number) {
    return number > 0 ? QJsonValue(names.at(static_cast<std::size_t>(number)))
                      : QJsonValue(QJsonValue::Undefined);
}

QJsonValue unlessEmpty(const QJsonObject& object) {
    return object.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(object);
}

constexpr AverageRule usualRule = AverageRule::esh;

QJsonValue nameOfRule(AverageRule rule) {
    return rule == usualRule ? QJsonValue(QJsonValue::Undefined)
                             : QJsonValue(QLatin1StringView(factsOf(rule).key));
}

/// The days that somebody picked are not kept: they are those of one look at one patient's readings.
QJsonObject choiceOf(const DisplayPeriod& period) {
    QJsonObject kept;
    const auto put = [&kept](const QString& name, const QJsonValue& value) {
        if (!value.isUndefined()) kept[name] = value;
    };
    put(u"days"_s, nameOf(dayNames, static_cast<int>(period.getChoice())));
    put(u"half"_s, nameOf(halfNames, static_cast<int>(period.getHalfOfDay())));
    if (period.getIncludeNoDatetimeData()) kept[u"undated"_s] = true;
    return kept;
}

} // namespace

void ViewKeeper::restoreWindow() {
    const auto geometry = QByteArray::fromBase64(parts.memory.value(windowKey).toString().toLatin1());
    if (!geometry.isEmpty()) parts.window.restoreGeometry(geometry);
    parts.table.columns().restore(parts.memory.value(tableKey).toObject());
    parts.chart.showTrendApart(parts.memory.value(trendApartKey).toBool());
    parts.period.setWeekRule(
        averageRuleNamed(parts.memory.value(weekRuleKey).toString()).value_or(usualRule));
}

QString ViewKeeper::restorePatient() {
    const auto& patients = parts.store.getPatientArray();
    const QJsonValue mask = parts.memory.value(patientKey);
    const auto found =
        std::ranges::find_if(patients, [&mask](const PatientModel& each) { return isMaskOf(mask, each.ID); });
    if (found != patients.end()) {
        parts.patients.showPatient(QString(found->ID)); // the roster is read anew meanwhile
        restorePeriod();
    }
    if (const int view = numberOf(chartNames, parts.memory.value(chartKey)); view > 0)
        parts.chart.showView(view);
    return parts.memory.value(pageKey).toString();
}

/// Days that would show nothing are the usual ones.
void ViewKeeper::restorePeriod() {
    const QJsonObject kept = parts.memory.value(periodKey).toObject();
    if (kept.isEmpty()) return;
    DisplayPeriod& period = parts.period;
    parts.follower.prepare();
    const auto days = static_cast<PeriodChoice>(numberOf(dayNames, kept[u"days"_s]));
    period.choose(days);
    period.setHalfOfDay(static_cast<HalfOfDay>(numberOf(halfNames, kept[u"half"_s])));
    period.setIncludeNoDatetimeData(kept[u"undated"_s].toBool());
    const auto isShown = [shown = period.selection()](const ReadingModel& each) {
        return isListed(each, shown);
    };
    if (!std::ranges::any_of(parts.store.getReadingForCurID(), isShown)) {
        parts.follower.startAnew();
        return parts.follower.prepare();
    }
    // Or a page that comes into view would choose for a patient who is new to it.
    if (days != PeriodChoice::picked) period.setChangeUser(false);
}

void ViewKeeper::keep(const QString& page) {
    if (!parts.window.isVisible()) return;
    ViewMemory& memory = parts.memory;
    memory.set(windowKey, QString::fromLatin1(parts.window.saveGeometry().toBase64()));
    memory.set(pageKey, page);
    memory.set(chartKey, nameOf(chartNames, parts.chart.drawViewState()));
    memory.set(trendApartKey,
               parts.chart.isTrendApart() ? QJsonValue(true) : QJsonValue(QJsonValue::Undefined));
    memory.set(weekRuleKey, nameOfRule(parts.period.getWeekRule()));
    memory.set(tableKey, unlessEmpty(parts.table.columns().state()));
    const QString ID = parts.store.getCurrentID();
    const bool isAnyone = parts.store.validIDinXML(ID);
    if (!isAnyone)
        memory.set(patientKey, QJsonValue::Undefined);
    else if (!isMaskOf(memory.value(patientKey), ID))
        memory.set(patientKey, maskedID(ID));
    memory.set(periodKey, isAnyone ? unlessEmpty(choiceOf(parts.period)) : QJsonValue(QJsonValue::Undefined));
    if (const QString folder = memory.value(rememberedFolder).toString(); !folder.isEmpty())
        memory.set(rememberedFolder, folderNamingNobody(folder, parts.store.getPatientArray()));
    if (const StoreResult kept = memory.save(); !kept)
        qCWarning(lcApp, "what is to be remembered of the window could not be written");
}

} // namespace zel
