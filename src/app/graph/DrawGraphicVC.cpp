#include "app/graph/DrawGraphicVC.h"

#include "analysis/ReadingCount.h"
#include "app/frame/PeriodMoves.h"
#include "app/graph/BloodView.h"
#include "app/graph/ChartWords.h"
#include "app/graph/PointedReading.h"
#include "app/graph/PulseView.h"
#include "app/widgets/Style.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int bloodShare = 7, pulseShare = 3; ///< of the height, as on paper
constexpr int wheelStep = 120;

} // namespace

DrawGraphicVC::DrawGraphicVC(const DataStore& dataStore, DisplayPeriod& displayPeriod,
                             ChartComments& chartComments, QWidget* parent)
    : QWidget(parent), store(dataStore), period(displayPeriod), bloodView(new BloodView(source, this)),
      pulseView(new PulseView(source, chartComments, this)),
      pointed(new PointedReading(store, source, {bloodView, pulseView}, this)) {
    setObjectName(u"DrawGraphicVC"_s);
    setFocusProxy(bloodView);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(Style::tight);
    bloodScroller = addValueScroller(u"bloodScroller"_s, qtTrId("bloodScroller"), *bloodView);
    pulseScroller = addValueScroller(u"pulseScroller"_s, qtTrId("pulseScroller"), *pulseView);
    timeScroller = addTimeScroller();
    grid->addWidget(bloodView, 0, 0);
    grid->addWidget(bloodScroller, 0, 1);
    grid->addWidget(pulseView, 1, 0);
    grid->addWidget(pulseScroller, 1, 1);
    grid->addWidget(timeScroller, 2, 0);
    grid->setRowStretch(0, bloodShare);
    grid->setRowStretch(1, pulseShare);
    connect(&store, &DataStore::reloaded, this, &DrawGraphicVC::reload);
    connect(&store, &DataStore::currentIDChanged, this, &DrawGraphicVC::reload);
    connect(&period, &DisplayPeriod::changed, this, &DrawGraphicVC::takePeriod);
    connect(pointed, &PointedReading::changed, this, [this] {
        if (!pointed->reading()) describe(); // the charts have said that reading's values until now
        emit chosenReadingChanged();
    });
    reload();
}

/// Moves the scale of the chart beside it: up to higher values.
QScrollBar* DrawGraphicVC::addValueScroller(const QString& name, const QString& title, ChartView& view) {
    constexpr int hundred = 100, page = 20, step = 10, start = 40, lowestBase = 20;
    auto* scroller = new QScrollBar(Qt::Vertical, this);
    scroller->setObjectName(name);
    scroller->setAccessibleName(title);
    scroller->setToolTip(title);
    scroller->setInvertedAppearance(true);
    scroller->setInvertedControls(false);
    scroller->setRange(0, hundred);
    scroller->setPageStep(page);
    scroller->setSingleStep(step);
    scroller->setValue(start);
    connect(scroller, &QScrollBar::valueChanged, &view, [this, &view](int value) {
        view.setScaleBase(value + lowestBase);
        pointed->hideInfo();
    });
    return scroller;
}

QScrollBar* DrawGraphicVC::addTimeScroller() {
    auto* scroller = new QScrollBar(Qt::Horizontal, this);
    scroller->setObjectName(u"timeScroller"_s);
    scroller->setAccessibleName(qtTrId("timeScroller"));
    scroller->setToolTip(qtTrId("timeScrollerHint"));
    QSizePolicy policy = scroller->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the charts keep their height
    scroller->setSizePolicy(policy);
    connect(scroller, &QScrollBar::valueChanged, this, [this](int daysBefore) {
        move(daysBefore - timeScroll(period.getTimePeriod(), period.getDataPeriod()).daysBefore);
    });
    return scroller;
}

/// The readings may be gone already: all are forgotten before anybody asks which it was, or where its marks
/// were.
void DrawGraphicVC::forgetPointed() {
    const bool hadMenu = std::exchange(menuReading, nullptr);
    bloodView->invalidate();
    pulseView->invalidate();
    pointed->forget();
    if (hadMenu) emit chosenReadingChanged();
}

void DrawGraphicVC::reload() {
    forgetPointed();
    isRead = false;
    if (!isVisible()) source.data = {}; // it points at readings that are gone
    takePeriod();
}

void DrawGraphicVC::takePeriod() {
    forgetPointed();
    source.period = period.getTimePeriod();
    source.view = period.getSelectViewIndex();
    source.sysStandard = store.getSetting().sysStandard;
    source.diaStandard = store.getSetting().diaStandard;
    source.zone = LocalZone();
    setTimeScrollRange();
    showing.want();
}

void DrawGraphicVC::showPeriod() {
    if (!isRead) {
        source.data = makeChartData(store.getReadingForCurID(), store.getTrasferLogForCurID());
        isRead = true;
    }
    bloodView->invalidate();
    pulseView->invalidate();
    describe();
}

/// A step is a day, and a page is the period that is in view.
void DrawGraphicVC::setTimeScrollRange() {
    const TimeScroll room = timeScroll(source.period, period.getDataPeriod());
    const QSignalBlocker quiet(timeScroller);
    timeScroller->setRange(0, room.total());
    timeScroller->setPageStep(daysIn(source.period));
    timeScroller->setSingleStep(1);
    timeScroller->setValue(room.daysBefore);
    timeScroller->setVisible(room.total() >= 1);
}

void DrawGraphicVC::setTimePeriod(const Period& chosen) { period.setTimePeriod(chosen.begin, chosen.end); }

void DrawGraphicVC::addDay() { setTimePeriod(zel::addDay(period.getTimePeriod(), 1)); }

void DrawGraphicVC::minusDay() {
    if (canBeNarrowed(period.getTimePeriod())) setTimePeriod(zel::addDay(period.getTimePeriod(), -1));
}

void DrawGraphicVC::move(int days) {
    if (days != 0) setTimePeriod(shifted(period.getTimePeriod(), period.getDataPeriod(), days));
}

void DrawGraphicVC::widen(int days, double fraction) {
    setTimePeriod(widened(period.getTimePeriod(), days, fraction));
}

void DrawGraphicVC::setupDrawChart(ChartStyle& pulse, ChartStyle& blood) const {
    const auto copy = [this](ChartStyle& to, const ChartStyle& from) {
        to.noBaseArea = from.noBaseArea;
        to.showBlood = from.showBlood;
        to.showDataType = source.view;
        to.iScaleBase = from.iScaleBase;
    };
    copy(pulse, pulseView->style());
    copy(blood, bloodView->style());
}

Instant DrawGraphicVC::commentDay() const {
    auto time = bloodView->pointedTime();
    if (!time) time = pulseView->pointedTime();
    if (time) return *time;
    const ReadingModel* reading = pointed->reading();
    return reading ? reading->ReadingDate.value_or(source.period.begin) : source.period.begin;
}

const ReadingModel* DrawGraphicVC::chosenReading() const {
    return menuReading ? menuReading : pointed->reading();
}

void DrawGraphicVC::keepReadingFor(const QObject& menu) {
    menuReading = pointed->reading();
    keptFor = &menu;
    connect(&menu, &QObject::destroyed, this, [this](const QObject* gone) {
        if (keptFor != gone) return; // another menu has been opened since
        menuReading = nullptr;
        emit chosenReadingChanged();
    });
    emit chosenReadingChanged();
}

void DrawGraphicVC::contextMenuEvent(QContextMenuEvent* event) {
    std::optional<Instant> there;
    if (event->reason() == QContextMenuEvent::Mouse) {
        pointed->forgetUnlessHovered();
        there = pulseView->timeAt(pulseView->mapFromGlobal(event->globalPos()).x());
    }
    emit menuWanted(event->globalPos(), there.value_or(commentDay()));
}

/// A day, and more of them where a day can hardly be seen.
int DrawGraphicVC::keyStep() const { return std::max(1, daysIn(source.period) / 30); }

bool DrawGraphicVC::movedByKey(int key) {
    constexpr int farAway = 1000000;
    const int page = daysIn(source.period);
    switch (key) {
    case Qt::Key_Left: move(-keyStep()); return true;
    case Qt::Key_Right: move(keyStep()); return true;
    case Qt::Key_PageUp: move(-page); return true;
    case Qt::Key_PageDown: move(page); return true;
    case Qt::Key_Home: move(-farAway); return true;
    case Qt::Key_End: move(farAway); return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal: widen(keyStep(), 0.5); return true;
    case Qt::Key_Minus: widen(-keyStep(), 0.5); return true;
    default: return false;
    }
}

void DrawGraphicVC::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    QScrollBar* values = pulseView->hasFocus() ? pulseScroller : bloodScroller;
    if (event->modifiers() & Qt::ControlModifier) {
        if (key == Qt::Key_Left || key == Qt::Key_Right) return walk(key == Qt::Key_Right);
    } else if (key == Qt::Key_Up || key == Qt::Key_Down) {
        return values->triggerAction(key == Qt::Key_Up ? QScrollBar::SliderSingleStepAdd
                                                       : QScrollBar::SliderSingleStepSub);
    } else if (key == Qt::Key_Escape && pointed->reading()) {
        return pointed->forget();
    } else if (movedByKey(key)) {
        return;
    }
    QWidget::keyPressEvent(event);
}

/// A tenth of the period a step: moved by the wheel alone, widened or narrowed around the pointer with Ctrl.
void DrawGraphicVC::wheelEvent(QWheelEvent* event) {
    wheelled += event->angleDelta();
    const QPoint steps = wheelled / wheelStep;
    wheelled -= steps * wheelStep;
    event->accept();
    if (steps.isNull()) return;
    const int tenth = std::max(1, daysIn(source.period) / 10);
    if (!(event->modifiers() & Qt::ControlModifier)) return move(-(steps.x() + steps.y()) * tenth);
    const Rect plot = pulseView->scale().chartRect;
    const double x = pulseView->mapFromGlobal(event->globalPosition()).x() - plot.x;
    const double fraction = plot.width > 0 ? std::clamp(x / plot.width, 0.0, 1.0) : 0.5;
    widen(-steps.y() * std::max(1, tenth / 2), fraction);
}

void DrawGraphicVC::hideEvent(QHideEvent* event) {
    pointed->forget();
    QWidget::hideEvent(event);
}

/// To the next reading or the one before, with the period after it where it lies outside.
void DrawGraphicVC::walk(bool forward) {
    const ReadingModel* found = pointed->next(forward);
    if (!found) return;
    bloodView->forgetPointer();
    pulseView->forgetPointer();
    setTimePeriod(movedTo(source.period, *found->ReadingDate));
    pointed->walkTo(pulseView->hasFocus() ? static_cast<ChartView&>(*pulseView) : *bloodView, *found);
}

void DrawGraphicVC::describe() {
    ReadingCount counts;
    for (const ChartReading& reading : source.data.maReading)
        if (source.period.contains(reading.date) && MatchedDataType(source.view, reading.isPMData))
            ++(reading.isExcluded ? counts.excluded : counts.counted);
    const QString keys = qtTrId("chartKeys").arg(zel::describe(counts));
    const ChartWords figures = spokenFigures(source);
    bloodView->setAccessibleDescription(figures.blood.isEmpty() ? keys : keys + u'\n' + figures.blood);
    pulseView->setAccessibleDescription(figures.pulse.isEmpty() ? keys : keys + u'\n' + figures.pulse);
}

} // namespace zel
