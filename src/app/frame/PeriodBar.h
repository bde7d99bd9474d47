#pragma once

#include "analysis/DisplayPeriod.h"
#include "store/DataStore.h"

#include <QWidget>

class QBoxLayout;
class QButtonGroup;
class QCheckBox;

namespace zel {

class DayEdit;

/// The controls of the period that all views share: its first and last day, the view choices and the box for
/// undated readings. Each page has one; all of them show the one DisplayPeriod.
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
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QBoxLayout* makeDays();
    QBoxLayout* makeChoices();
    QBoxLayout* makeOptions();
    void showPeriod();
    void offerChoices(bool isViewChosen);
    void pick(const QString& refusal);

    const DataStore& store;
    DisplayPeriod& period;
    MessagePanel& panel;
    DayEdit* beginDay;
    DayEdit* endDay;
    QButtonGroup* choices;
    QCheckBox* btnAverage;
    QBoxLayout* options = nullptr;
    QBoxLayout* parts = nullptr;
};

} // namespace zel
