#include "app/GraphViewController.h"

#include "app/EmptyState.h"
#include "app/PageHeading.h"
#include "app/PatientTexts.h"

#include <QFrame>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

GraphViewController::GraphViewController(const DataStore& readings)
    : store(readings), heading(new PageHeading(this)),
      chart(new EmptyState(u"chart"_s, u":/icons/graphBtn.InactiveImg.svg"_s)) {
    setObjectName(u"GraphViewController"_s);
    setAccessibleName(qtTrId("pageChart"));
    auto* frame = new QFrame(this);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setBackgroundRole(QPalette::Base);
    frame->setAutoFillBackground(true);
    auto* inside = new QVBoxLayout(frame);
    inside->addWidget(chart);
    chart->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(chart);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(heading);
    column->addWidget(frame, 1);
    connect(&store, &DataStore::reloaded, this, &GraphViewController::LoadData);
    connect(&store, &DataStore::currentIDChanged, this, &GraphViewController::LoadData);
    LoadData();
}

void GraphViewController::LoadData() {
    heading->setTexts(patientHeading(store), readingSummary(store));
    const bool any = !store.getReadingForCurID().empty();
    chart->setTexts(any ? qtTrId("chartLater") : qtTrId("NoData"),
                    any ? qtTrId("chartLaterAdvice") : qtTrId("NoDataAdvice"));
}

void GraphViewController::UpdateUIBySetting() { LoadData(); }

void GraphViewController::switchToGraph() { chart->setFocus(); }

} // namespace zel
