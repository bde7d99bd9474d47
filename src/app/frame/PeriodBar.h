#pragma once

#include "analysis/DisplayPeriod.h"
#include "store/DataStore.h"

#include <QWidget>

#include <span>

class QButtonGroup;
class QCheckBox;

namespace zel {

class DayEdit;
class FlowLayout;

/// The controls of the period that all views share: its first and last day, the choices of days and of a half
/// of the day, and the box for undated readings. Each page has one; all of them show the one DisplayPeriod.
class PeriodBar final : public QWidget {
    Q_OBJECT
public:
    PeriodBar(const DataStore& dataStore, DisplayPeriod& displayPeriod, MessagePanel& messagePanel,
              QWidget* parent);

    /// For a page that comes into view: a newly chosen patient gets the view that suits the data.
    void LoadData();
    void UpdateUIBySetting();
    /// A further box of the page, after those for all.
    void addOption(QWidget& option);

private:
    struct Choice;
    QWidget* makeDays();
    QWidget* makePeriods();
    QWidget* makeHalves();
    QWidget* makeGroup(QButtonGroup& group, const QString& title, std::span<const Choice> choices);
    void showPeriod();
    void offerUndated();
    void pick(const QString& refusal);
    void refuse(const QString& why);

    const DataStore& store;
    DisplayPeriod& period;
    MessagePanel& panel;
    DayEdit* beginDay;
    DayEdit* endDay;
    QButtonGroup* choices;
    QButtonGroup* halves;
    QCheckBox* btnAverage;
    FlowLayout* parts;
};

} // namespace zel
