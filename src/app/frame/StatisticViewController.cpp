#include "app/frame/StatisticViewController.h"

#include "analysis/ReadingCount.h"
#include "app/frame/StatisticView.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/PatientTexts.h"
#include "app/widgets/Style.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

StatisticViewController::StatisticViewController(const DataStore& dataStore, DisplayPeriod& displayPeriod,
                                                 QWidget* parent)
    : SidePanel(u"statisticPanel"_s, qtTrId("statisticPanel"), parent), store(dataStore),
      period(displayPeriod), lblPatient(new QuietLabel({}, this)),
      view(new StatisticView(dataStore, displayPeriod, this)), lblCount(new QuietLabel({}, this)),
      btnViewAll(new QCheckBox(qtTrId("statisticAll"), this)) {
    lblPatient->setObjectName(u"lblStatisticPatient"_s);
    lblPatient->setTextFormat(Qt::PlainText);
    lblPatient->setWordWrap(true);
    lblCount->setObjectName(u"lblStatisticCount"_s);
    lblCount->setTextFormat(Qt::PlainText);
    lblCount->setWordWrap(true);
    btnViewAll->setObjectName(u"btnViewAll"_s);
    btnViewAll->setAccessibleName(btnViewAll->text());
    btnViewAll->setToolTip(qtTrId("statisticAllHint"));
    auto* content = static_cast<QVBoxLayout*>(layout());
    content->addWidget(lblPatient);
    content->addSpacing(Style::near);
    content->addWidget(view);
    content->addSpacing(Style::near);
    content->addWidget(lblCount);
    content->addSpacing(Style::near);
    content->addWidget(btnViewAll);
    // Whether it was ticked or not: other days are picked with the pickers.
    connect(btnViewAll, &QCheckBox::clicked, this, [this] {
        period.choose(PeriodChoice::all);
        setSelectViewUI();
    });
    connect(&store, &DataStore::reloaded, this, &StatisticViewController::LoadData);
    connect(&store, &DataStore::currentIDChanged, this, &StatisticViewController::LoadData);
    connect(&period, &DisplayPeriod::changed, this, &StatisticViewController::LoadData);
    LoadData();
    // On the panel's own background, a dark desktop's box could not be seen.
    Style::follow(*btnViewAll, [](QPalette colours) {
        if (Style::isDark(colours)) colours.setColor(QPalette::Base, colours.color(QPalette::Window));
        return colours;
    });
}

void StatisticViewController::showFigures() {
    lblPatient->setText(narrowPatientHeading(store));
    lblPatient->setAccessibleName(patientHeading(store));
    setSelectViewUI();
    calcStattistic();
}

void StatisticViewController::calcStattistic() {
    view->calc();
    lblCount->setText(counted());
    lblCount->setAccessibleName(lblCount->text());
}

/// The figures take all times of day also beside a list of only mornings or evenings.
QString StatisticViewController::counted() const {
    const ReadingSelection selection = period.selection();
    const QString count = describe(countReadings(store.getReadingForCurID(), selection, isInStatistic));
    const bool isHalfListed =
        selection.view == ViewSelection::amOnly || selection.view == ViewSelection::pmOnly;
    return isHalfListed ? qtTrId("statisticWholeDay").arg(count) : count;
}

void StatisticViewController::setSelectViewUI() {
    btnViewAll->setChecked(period.getChoice() == PeriodChoice::all);
}

} // namespace zel
