#include "app/frame/MeasuringWeekPanel.h"

#include "app/widgets/CalmComboBox.h"
#include "app/widgets/DayEdit.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/SeenName.h"
#include "app/widgets/Style.h"

#include <QHBoxLayout>

#include <chrono>
#include <functional>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Beside the rule's thresholds, like the next.
QString pressure(const PressureMeans& means, AverageRule rule) {
    const AverageRuleFacts& facts = factsOf(rule);
    return means.sys.roundedBeside(facts.sysThreshold) + u'/' + means.dia.roundedBeside(facts.diaThreshold);
}

/// To a tenth.
QString tenths(const PressureMeans& means, AverageRule rule) {
    const AverageRuleFacts& facts = factsOf(rule);
    return means.sys.withTenthsBeside(facts.sysThreshold) + u'/'
           + means.dia.withTenthsBeside(facts.diaThreshold);
}

/// Each as \p text has it; empty where there is neither a morning's nor an evening's reading.
QString halvesOf(const MeasuringWeek& week, const std::function<QString(const PressureMeans&)>& text) {
    QStringList halves;
    if (week.morning.count() > 0) halves += qtTrId("weekMornings").arg(text(week.morning));
    if (week.evening.count() > 0) halves += qtTrId("weekEvenings").arg(text(week.evening));
    return halves.join(qtTrId(", "));
}

QString countsOf(const MeasuringWeek& week) {
    const QString readings = qtTrId("weekReadings", static_cast<int>(week.readingsUsed()));
    QString counted = qtTrId("weekDays", week.daysUsed).arg(readings);
    if (week.readingsLeftOut > 0) counted += qtTrId("; ") + qtTrId("weekFirstDay", week.readingsLeftOut);
    if (week.excluded > 0) counted += qtTrId("; ") + qtTrId("weekExcluded", week.excluded);
    if (week.excludedLater > 0) counted += qtTrId("; ") + qtTrId("weekExcludedLater", week.excludedLater);
    if (week.unmeasured > 0) counted += qtTrId("; ") + qtTrId("weekUnmeasured", week.unmeasured);
    return counted;
}

/// Of the means before they are rounded: 134.9/84.9 is below what stands above it as 135/85.
QString comparison(const MeasuringWeek& week) {
    const AverageRuleFacts& facts = factsOf(week.rule);
    const QString threshold = u"%1/%2"_s.arg(facts.sysThreshold).arg(facts.diaThreshold);
    const QString words = week.reachesThreshold() ? qtTrId("weekReached") : qtTrId("weekBelow");
    return words.arg(threshold, tenths(week.all, week.rule));
}

/// Its first instant.
Date instantOf(DayNumber day) { return StrToDate(dayText(day), u"yyyy/MM/dd"_s); }

} // namespace

MeasuringWeekPanel::MeasuringWeekPanel(const DataStore& dataStore, DisplayPeriod& displayPeriod,
                                       const Clock& wallClock, QWidget* parent)
    : SidePanel(u"weekPanel"_s, qtTrId("weekPanel"), parent), store(dataStore), period(displayPeriod),
      clock(wallClock), cboWeekRule(new CalmComboBox(this)),
      weekEnd(new DayEdit(u"weekEnd"_s, qtTrId("weekEnd"), this)) {
    auto* content = static_cast<QVBoxLayout*>(layout());
    content->addSpacing(Style::tight);
    content->addLayout(makeChoices());
    content->addSpacing(Style::near);
    lblWeekMean = addLine(u"lblWeekMean"_s);
    Style::setType(*lblWeekMean, Style::Type::heading);
    lblWeekThreshold = addLine(u"lblWeekThreshold"_s);
    lblWeekHalves = addLine(u"lblWeekHalves"_s);
    lblWeekMissing = addLine(u"lblWeekMissing"_s);
    Style::setType(*lblWeekMissing, Style::Type::text);
    lblWeekCount = addLine(u"lblWeekCount"_s);
    lblWeekZone = addLine(u"lblWeekZone"_s);
    connect(&store, &DataStore::reloaded, this, &MeasuringWeekPanel::LoadData);
    connect(&store, &DataStore::currentIDChanged, this, &MeasuringWeekPanel::LoadData);
    connect(&period, &DisplayPeriod::weekChanged, this, &MeasuringWeekPanel::LoadData);
    LoadData();
}

QLayout* MeasuringWeekPanel::makeChoices() {
    cboWeekRule->setObjectName(u"cboWeekRule"_s);
    // By the heading, which is its label.
    cboWeekRule->setAccessibleName(qtTrId("infoLine").arg(accessibleName(), qtTrId("weekRule")));
    for (const QString& name : {qtTrId("weekRuleEsh"), qtTrId("weekRuleNice"), qtTrId("weekRuleAha")})
        cboWeekRule->addItem(name);
    cboWeekRule->setToolTip(qtTrId("weekRuleHint"));
    connect(cboWeekRule, &QComboBox::activated, this,
            [this](int chosen) { period.setWeekRule(averageRules[static_cast<std::size_t>(chosen)].rule); });
    connect(weekEnd, &DayEdit::confirmed, this, &MeasuringWeekPanel::pickEnd);
    connect(weekEnd, &DayEdit::refused, this, [this](const QString& why) {
        showWeek();
        emit dayRefused(why);
    });
    auto* row = new QHBoxLayout;
    row->setSpacing(Style::near);
    auto* label = new QLabel(qtTrId("weekTo"), this);
    label->setBuddy(weekEnd);
    nameAsSeen(*weekEnd, label->text(), weekEnd->accessibleName());
    row->addWidget(cboWeekRule);
    row->addWidget(label);
    row->addWidget(weekEnd);
    row->addStretch(1);
    return row;
}

QLabel* MeasuringWeekPanel::addLine(const QString& name) {
    auto* line = new QLabel(this);
    line->setObjectName(name);
    line->setAccessibleName(accessibleName()); // until it has a text
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout()->addWidget(line);
    return line;
}

void MeasuringWeekPanel::showWeek() {
    const MeasuringWeek week =
        calcMeasuringWeek(store.getReadingForCurID(), period.getWeekRule(), period.getWeekEnd());
    cboWeekRule->setCurrentIndex(static_cast<int>(week.rule));
    showEnd(week.end);
    showMeans(week);
    showCounts(week);
    for (QLabel* line :
         {lblWeekMean, lblWeekHalves, lblWeekThreshold, lblWeekMissing, lblWeekCount, lblWeekZone}) {
        line->setVisible(!line->text().isEmpty());
        line->setAccessibleName(line->text().isEmpty() ? accessibleName() : line->text());
        line->setAccessibleDescription(line->toolTip());
    }
}

/// Where there is no week, today, and not the day of the patient before.
void MeasuringWeekPanel::showEnd(DayNumber end) {
    weekEnd->setFormat(store.getSetting().dateFormat);
    weekEnd->setEnabled(end != noDay);
    const Date last = end == noDay ? Date() : instantOf(end);
    weekEnd->showDay(last.value_or(std::chrono::floor<Instant::duration>(clock.now())));
}

void MeasuringWeekPanel::showMeans(const MeasuringWeek& week) {
    const PressureMeans& all = week.all;
    const bool isNone = week.readingsUsed() == 0;
    lblWeekMean->setText(isNone ? qtTrId("weekNoMean") : qtTrId("weekMean").arg(pressure(all, week.rule)));
    const bool hasPulse = all.pulse.count() > 0;
    lblWeekMean->setToolTip(isNone ? QString()
                                   : qtTrId("weekMeanHint")
                                         .arg(all.sys.withTenths(), all.dia.withTenths(),
                                              hasPulse ? all.pulse.withTenths() : u"–"_s));
    QString threshold = isNone ? QString() : comparison(week);
    if (hasPulse) threshold += qtTrId(", ") + qtTrId("weekPulse").arg(all.pulse.rounded());
    lblWeekThreshold->setText(threshold);
    lblWeekHalves->setText(
        halvesOf(week, [&week](const PressureMeans& half) { return pressure(half, week.rule); }));
    lblWeekHalves->setToolTip(
        halvesOf(week, [&week](const PressureMeans& half) { return tenths(half, week.rule); }));
}

void MeasuringWeekPanel::showCounts(const MeasuringWeek& week) {
    lblWeekMissing->setText(week.isComplete() ? QString() : qtTrId("weekMissing").arg(describeMissing(week)));
    lblWeekCount->setText(countsOf(week));
    lblWeekZone->setText(week.ofOtherZone == 0 ? QString() : qtTrId("weekOtherZone", week.ofOtherZone));
}

/// The last day with a reading is followed again as soon as it is chosen.
void MeasuringWeekPanel::pickEnd() {
    const DayNumber chosen = LocalZone{}.day(weekEnd->day());
    const MeasuringWeek last = calcMeasuringWeek(store.getReadingForCurID(), period.getWeekRule());
    period.setWeekEnd(chosen == last.end ? std::nullopt : std::optional(chosen));
    LoadData();
}

} // namespace zel
