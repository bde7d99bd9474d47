#include "app/frame/StatisticViewController.h"

#include "app/frame/StatisticView.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/PatientTexts.h"

#include <QCheckBox>
#include <QEvent>
#include <QGuiApplication>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

StatisticViewController::StatisticViewController(const DataStore& dataStore, DisplayPeriod& displayPeriod,
                                                 QWidget* parent)
    : SidePanel(u"statisticPanel"_s, qtTrId("statisticPanel"), parent), store(dataStore),
      period(displayPeriod), lblPatient(new QuietLabel({}, this)),
      view(new StatisticView(dataStore, displayPeriod, this)),
      btnViewAll(new QCheckBox(qtTrId("statisticAll"), this)) {
    lblPatient->setObjectName(u"lblStatisticPatient"_s);
    lblPatient->setTextFormat(Qt::PlainText);
    lblPatient->setWordWrap(true);
    btnViewAll->setObjectName(u"btnViewAll"_s);
    btnViewAll->setAccessibleName(btnViewAll->text());
    btnViewAll->setToolTip(qtTrId("statisticAllHint"));
    auto* content = static_cast<QVBoxLayout*>(layout());
    content->addWidget(lblPatient);
    content->addSpacing(8);
    content->addWidget(view);
    content->addSpacing(6);
    content->addWidget(btnViewAll);
    // Whether it was ticked or not: other days are picked with the pickers.
    connect(btnViewAll, &QCheckBox::clicked, this, [this] {
        period.setSelectViewIndex(ViewSelection::viewAll);
        setSelectViewUI();
    });
    connect(&store, &DataStore::reloaded, this, &StatisticViewController::LoadData);
    connect(&store, &DataStore::currentIDChanged, this, &StatisticViewController::LoadData);
    connect(&period, &DisplayPeriod::changed, this, &StatisticViewController::LoadData);
    LoadData();
    colourBox();
}

void StatisticViewController::LoadData() {
    lblPatient->setText(patientHeading(store));
    setSelectViewUI();
    calcStattistic();
}

void StatisticViewController::calcStattistic() { view->calc(); }

void StatisticViewController::setSelectViewUI() {
    btnViewAll->setChecked(static_cast<int>(period.getSelectViewIndex()) >= 1);
}

void StatisticViewController::changeEvent(QEvent* event) {
    SidePanel::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange) colourBox();
}

/// On the panel's own background, a dark desktop's box could not be seen.
void StatisticViewController::colourBox() {
    QPalette colours = QGuiApplication::palette();
    if (colours.color(QPalette::Base).lightness() < 128)
        colours.setColor(QPalette::Base, colours.color(QPalette::Window));
    btnViewAll->setPalette(colours);
}

} // namespace zel
