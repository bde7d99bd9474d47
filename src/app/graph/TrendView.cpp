#include "app/graph/TrendView.h"

#include "app/graph/TrendInfo.h"
#include "chart/ChartScale.h"
#include "chart/StyleTable.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int trendRing = 9;

} // namespace

TrendView::TrendView(const DataStore& dataStore, const DisplayPeriod& displayPeriod, QWidget* parent)
    : PictureView(u"TrendView"_s, qtTrId("trendView"), parent), store(dataStore), period(displayPeriod) {
    setMouseTracking(true);
    setMinimumSize(static_cast<int>(leastTrendSize.width), static_cast<int>(leastTrendSize.height));
    reload();
}

void TrendView::read() {
    trend = calcTrendSeries(store.getReadingForCurID(), period.selection(), apart);
    invalidate();
}

void TrendView::invalidate() {
    point({});
    made.reset();
    PictureView::invalidate();
}

void TrendView::setApart(bool mornings) {
    apart = mornings;
    reload();
}

const TrendLayout& TrendView::layout() {
    const SettingModel& setting = store.getSetting();
    if (!made)
        made = drawTrend({.trend = trend,
                          .comments = store.getCommentForCurID(),
                          .selection = period.selection(),
                          .sysStandard = setting.sysStandard,
                          .diaStandard = setting.diaStandard,
                          .totalRect = area()},
                         LocalZone());
    return *made;
}

Picture TrendView::makePicture(const Rect&) { return layout().picture; }

/// Beside the numbers of the scale, which begin at the very edge.
QRect TrendView::focusRect() const { return rect().adjusted(scaleWidth, 0, 0, 0); }

const TrendColumn* TrendView::pointedColumn() {
    const auto& columns = layout().columns;
    const auto found = std::ranges::find(columns, pointed, &TrendColumn::begin);
    return found == columns.end() ? nullptr : &*found;
}

void TrendView::point(std::optional<DayNumber> step) {
    pointed = step;
    update();
    if (const TrendColumn* column = step ? pointedColumn() : nullptr) return showInfo(*column);
    isHovering = false;
    if (infoView) infoView->hide();
    setAccessibleDescription(words());
}

void TrendView::showInfo(const TrendColumn& column) {
    const ReadingInfo info = trendInfo(trend, column.begin, period.getTimePeriod(), store.getSetting());
    setAccessibleDescription(spokenInfo(info));
    if (!infoView) infoView = new BPInfoView(window());
    const Point mark = column.medians.empty() ? Point{column.x, layout().plot.top()} : column.medians.front();
    const QPoint at = mapTo(window(), toView(mark));
    infoView->showReading(info,
                          QRect(at - QPoint(trendRing / 2, trendRing / 2), QSize(trendRing, trendRing)));
}

void TrendView::paintOver(QPainter& painter) {
    const TrendColumn* column = pointed ? pointedColumn() : nullptr;
    if (!column) return;
    const Rect& plot = layout().plot;
    const QColor ring = shade(fixColor(gcViewBackgroundTop), colours());
    painter.setPen(QPen(ring, 1, Qt::DashLine));
    painter.drawLine(toView({column->x, plot.y}), toView({column->x, plot.top() - 1}));
    painter.setPen(QPen(ring, 2));
    for (const Point& median : column->medians)
        painter.drawEllipse(toView(median), trendRing / 2, trendRing / 2);
}

/// The step with a reading that is nearest from left to right, however high the pointer is.
void TrendView::mouseMoveEvent(QMouseEvent* event) {
    const Point at = toPicture(event->position().toPoint());
    const auto& columns = layout().columns;
    if (columns.empty() || !layout().plot.contains(at)) {
        if (isHovering) point({});
        return;
    }
    const auto nearest = std::ranges::min_element(
        columns, {}, [x = at.x](const TrendColumn& column) { return std::abs(column.x - x); });
    if (pointed == nearest->begin) return;
    point(nearest->begin);
    isHovering = true;
}

void TrendView::leaveEvent(QEvent*) {
    if (isHovering) point({});
}

bool TrendView::walked(int key) {
    const auto& columns = layout().columns;
    if (columns.empty()) return false;
    const auto last = std::ssize(columns) - 1;
    const TrendColumn* now = pointed ? pointedColumn() : nullptr;
    std::ptrdiff_t to = 0;
    switch (key) {
    case Qt::Key_Left: to = now ? now - columns.data() - 1 : last; break;
    case Qt::Key_Right: to = now ? now - columns.data() + 1 : 0; break;
    case Qt::Key_Home: break;
    case Qt::Key_End: to = last; break;
    default: return false;
    }
    point(columns[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(to, 0, last))].begin);
    isHovering = false;
    return true;
}

void TrendView::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier) {
        if (walked(event->key())) return;
        if (event->key() == Qt::Key_Escape && pointed) return point({});
    }
    PictureView::keyPressEvent(event);
}

void TrendView::focusOutEvent(QFocusEvent* event) {
    PictureView::focusOutEvent(event);
    if (!isHovering && event->reason() != Qt::PopupFocusReason
        && event->reason() != Qt::ActiveWindowFocusReason)
        point({}); // it could cover where the focus has gone
}

void TrendView::hideEvent(QHideEvent* event) {
    point({});
    PictureView::hideEvent(event);
}

QString TrendView::words() const {
    std::size_t readings = 0;
    for (const TrendSeries& series : trend.series)
        for (const TrendPoint& point : series.points)
            readings += point.count;
    const QString count = qtTrId("readingCount", static_cast<int>(readings));
    QString keys = qtTrId("trendKeys").arg(trendStepText(trend.step), count);
    DayNumber latest = noDay;
    for (const TrendSeries& series : trend.series)
        if (!series.points.empty()) latest = std::max(latest, series.points.back().begin);
    if (trend.ofOtherZone > 0) keys += u'\n' + qtTrId("weekOtherZone", trend.ofOtherZone);
    if (readings == 0) return keys;
    return keys + u'\n' + spokenInfo(trendInfo(trend, latest, period.getTimePeriod(), store.getSetting()));
}

} // namespace zel
