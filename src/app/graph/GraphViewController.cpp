#include "app/graph/GraphViewController.h"

#include "app/frame/CommentViewController.h"
#include "app/frame/ReadingActions.h"
#include "app/frame/ReadingFrame.h"
#include "app/graph/ChartComments.h"
#include "app/graph/ChartTools.h"
#include "app/graph/CorrelationView.h"
#include "app/graph/DrawGraphicVC.h"
#include "app/graph/HistogramView.h"
#include "app/graph/TrendView.h"
#include "app/widgets/EmptyState.h"
#include "app/widgets/SeenName.h"
#include "app/widgets/Spoken.h"
#include "app/widgets/Style.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

// The charts read a new load of the records before the panels beside them do: these answer to it.
GraphViewController::GraphViewController(const Parts& needed)
    : parts(needed), comments(new ChartComments(needed.store, needed.panel, this)),
      content(new QWidget(this)), charts(new DrawGraphicVC(needed.store, needed.period, *comments, content)),
      histogram(new HistogramView(needed.store, needed.period, content)),
      correlation(new CorrelationView(needed.store, needed.period, content)),
      trend(new TrendView(needed.store, needed.period, content)),
      noReadings(new EmptyState(u"noChart"_s, u":/icons/graphBtn.InactiveImg.svg"_s, content)),
      views(new QStackedWidget(content)), tools(new ChartTools(*charts, *comments, needed.period, content)),
      trendApart(makeTrendChoice()),
      frame(new ReadingFrame({needed.store, needed.period, needed.panel, needed.clock}, *content, this)),
      readingActions(new ReadingActions(
          {needed.store, needed.panel, needed.clock}, [this] { return chosenReading(); }, *views)) {
    setObjectName(u"GraphViewController"_s);
    setAccessibleName(qtTrId("pageChart"));
    comments->setPanel(frame->comments());
    build();
    connect(&parts.store, &DataStore::reloaded, this, &GraphViewController::reload);
    connect(&parts.store, &DataStore::currentIDChanged, this, &GraphViewController::reload);
    connect(&parts.period, &DisplayPeriod::changed, this, &GraphViewController::reload);
    reload();
}

void GraphViewController::build() {
    noReadings->setTexts(qtTrId("NoData"), qtTrId("NoDataAdvice"));
    noReadings->setFocusPolicy(Qt::StrongFocus);
    for (QWidget* each :
         {static_cast<QWidget*>(charts), static_cast<QWidget*>(histogram), static_cast<QWidget*>(correlation),
          static_cast<QWidget*>(trend), static_cast<QWidget*>(noReadings)})
        views->addWidget(each);
    auto* between = new QAction(charts);
    between->setSeparator(true);
    charts->addAction(between);
    charts->addActions(readingActions->actions());
    noReadings->addAction(readingActions->newReading());
    noReadings->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(charts, &DrawGraphicVC::chosenReadingChanged, readingActions, &ReadingActions::update);
    connect(readingActions, &ReadingActions::readingStored, this, [this](const ReadingModel& reading) {
        emit said(storedInWords(reading, parts.period.selection(), parts.store.getSetting()));
    });
    auto* bar = new QHBoxLayout;
    bar->addWidget(makeSwitch());
    bar->addStretch(1);
    auto* ofView = new QGridLayout; // one over the other: they take the room of one
    ofView->addWidget(tools, 0, 0);
    ofView->addWidget(trendApart, 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    bar->addLayout(ofView);
    auto* inside = new QVBoxLayout(content);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->setSpacing(Style::tight);
    inside->addLayout(bar);
    inside->addWidget(views, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(frame);
}

QWidget* GraphViewController::makeSwitch() {
    auto* box = new QWidget(content);
    Style::followSheet(*box, &Style::switchSheet);
    box->setAccessibleName(qtTrId("viewTabs"));
    speakAs(*box, QAccessible::PageTabList);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Style::none);
    auto* group = new QButtonGroup(box);
    const std::array names{u"toggleGraph"_s, u"toggleHistogram"_s, u"toggleCorrelation"_s, u"toggleTrend"_s};
    const std::array texts{qtTrId("showGraph"), qtTrId("showHistogram"), qtTrId("showCorrelation"),
                           qtTrId("showTrend")};
    for (std::size_t state = 0; state < viewTotal; ++state) {
        auto* choice = new QToolButton(box);
        choice->setObjectName(names.at(state));
        choice->setText(texts.at(state));
        nameAsSeen(*choice, choice->text());
        speakAs(*choice, QAccessible::PageTab);
        choice->setCheckable(true);
        choice->setFocusPolicy(Qt::StrongFocus);
        group->addButton(choice, static_cast<int>(state));
        row->addWidget(choice);
        choices.at(state) = choice;
    }
    connect(group, &QButtonGroup::idClicked, this, &GraphViewController::setView);
    return box;
}

QCheckBox* GraphViewController::makeTrendChoice() {
    auto* choice = new QCheckBox(qtTrId("trendApart"), content);
    choice->setObjectName(u"trendApart"_s);
    connect(choice, &QCheckBox::toggled, trend, &TrendView::setApart);
    return choice;
}

/// What is out of reach says why, and how to get there.
void GraphViewController::offerTrendApart() {
    const bool isWholeDay = parts.period.getHalfOfDay() == HalfOfDay::both;
    trendApart->setEnabled(isWholeDay);
    trendApart->setToolTip(isWholeDay ? qtTrId("trendApartHint") : qtTrId("trendApartNeedsDay"));
    nameAsSeen(*trendApart, trendApart->text());
}

void GraphViewController::showTrendApart(bool isApart) { trendApart->setChecked(isApart); }

bool GraphViewController::isTrendApart() const { return trend->isApart(); }

/// Only the chart has points to choose.
std::vector<const ReadingModel*> GraphViewController::chosenReading() const {
    const ReadingModel* reading = viewState == 0 ? charts->chosenReading() : nullptr;
    return reading ? std::vector{reading} : std::vector<const ReadingModel*>{};
}

void GraphViewController::setView(int state) {
    viewState = state;
    readingActions->update();
    if (viewState == 1) histogram->reload();
    if (viewState == 2) correlation->reload();
    if (viewState == 3) trend->reload();
    const bool any = !parts.store.getReadingForCurID().empty();
    views->setCurrentIndex(any ? viewState : views->indexOf(noReadings));
    setFocusProxy(views->currentWidget());
    choices.at(static_cast<std::size_t>(viewState))->setChecked(true);
    for (QToolButton* choice : choices)
        choice->setEnabled(any);
    tools->setVisible(any && viewState == 0);
    trendApart->setVisible(any && viewState == 3);
    offerTrendApart();
    constexpr std::array<CountRule, 4> rules{isInChart, isCounted, isCounted, isInTrend}; // as on paper
    frame->setRule(rules.at(static_cast<std::size_t>(viewState)));
}

void GraphViewController::reload() { setView(viewState); }

void GraphViewController::switchToGraph() {
    setView(0);
    setFocus();
}

void GraphViewController::LoadData() {
    frame->LoadData();
    comments->forgetSelection();
    charts->takePeriod(); // new readings and other settings come by themselves
    reload();
}

void GraphViewController::UpdateUIBySetting() {
    frame->UpdateUIBySetting();
    charts->reload();
    reload();
}

bool GraphViewController::leave() { return frame->comments().leave(); }

bool GraphViewController::isEdited() const { return frame->comments().isEdited(); }

void GraphViewController::checkToSaveComment() { frame->comments().checkToSaveComment(); }

bool GraphViewController::readyToPrint() { return frame->comments().finish(); }

QJsonArray GraphViewController::saveQuietly() { return frame->comments().saveQuietly(); }

bool GraphViewController::takeUp(const QJsonObject& draft) {
    frame->comments().takeUp(draft);
    return true;
}

void GraphViewController::setupDrawChart(ChartStyle& pulse, ChartStyle& blood) const {
    charts->setupDrawChart(pulse, blood);
}

} // namespace zel
