#include "app/frame/ReadingFrame.h"

#include "app/frame/CommentViewController.h"
#include "app/frame/MeasuringWeekPanel.h"
#include "app/frame/PeriodBar.h"
#include "app/frame/StatisticViewController.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/PatientTexts.h"
#include "app/widgets/Style.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QStyle>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

ReadingFrame::ReadingFrame(const Parts& needed, QWidget& view, QWidget* parent)
    : QWidget(parent), parts(needed), shown(view), heading(new PageHeading(this)),
      period(new PeriodBar(needed.store, needed.period, needed.panel, this)),
      statisticPanel(new StatisticViewController(needed.store, needed.period, this)),
      weekPanel(new MeasuringWeekPanel(needed.store, needed.period, needed.clock, this)),
      commentPanel(new CommentViewController(needed.store, needed.panel, needed.clock, this)),
      btnSide(new QToolButton(this)), side(makeSide()) {
    auto* body = new QHBoxLayout;
    body->setSpacing(Style::apart);
    body->addWidget(&view, 1);
    body->addWidget(side);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::near);
    column->addWidget(makeHead());
    column->addWidget(period);
    column->addLayout(body, 1);
    connect(&needed.period, &DisplayPeriod::changed, this, &ReadingFrame::showHeading);
    connect(&needed.store, &DataStore::reloaded, this, &ReadingFrame::summarize);
    connect(&needed.store, &DataStore::currentIDChanged, this, &ReadingFrame::summarize);
    connect(weekPanel, &MeasuringWeekPanel::dayRefused, this,
            [this](const QString& why) { parts.panel.ShowMessage(why, qtTrId("DateError")); });
    connect(commentPanel, &CommentViewController::wanted, this, [this] { btnSide->setChecked(true); });
    connect(
        commentPanel, &CommentViewController::wanted, side,
        [this] {
            QWidget* focused = QApplication::focusWidget();
            if (focused && commentPanel->isAncestorOf(focused))
                static_cast<QScrollArea*>(side)->ensureWidgetVisible(focused);
        },
        Qt::QueuedConnection); // once the panels have been laid out
    showHeading();
}

QWidget* ReadingFrame::makeHead() {
    btnSide->setObjectName(u"btnSide"_s);
    btnSide->setText(qtTrId("sideButton"));
    btnSide->setAccessibleName(btnSide->text());
    btnSide->setToolTip(qtTrId("sideHint"));
    btnSide->setCheckable(true);
    btnSide->setChecked(true);
    btnSide->setFocusPolicy(Qt::StrongFocus);
    connect(btnSide, &QToolButton::toggled, side, &QWidget::setVisible);
    auto* head = new QWidget(this);
    auto* row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(heading, 1);
    row->addWidget(btnSide, 0, Qt::AlignTop);
    return head;
}

QWidget* ReadingFrame::makeSide() {
    auto* panels = new QWidget;
    auto* column = new QVBoxLayout(panels);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::apart);
    column->addWidget(statisticPanel);
    column->addWidget(weekPanel);
    column->addWidget(commentPanel, 1);
    auto* scroll = new QScrollArea(this);
    scroll->setObjectName(u"readingSide"_s);
    scroll->setAccessibleName(qtTrId("sideButton"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidgetResizable(true);
    scroll->setWidget(panels);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, scroll);
    scroll->setFixedWidth(
        std::max(fontMetrics().averageCharWidth() * 40, panels->minimumSizeHint().width() + bar));
    scroll->viewport()->setAutoFillBackground(false);
    panels->setAutoFillBackground(false);
    return scroll;
}

/// The period changes far more often than what there is at all.
void ReadingFrame::summarize() {
    summary = QString();
    showHeading();
}

void ReadingFrame::writeHeading() {
    if (summary.isNull()) summary = readingSummary(parts.store);
    const ReadingCount count =
        countReadings(parts.store.getReadingForCurID(), parts.period.selection(), counts);
    QString detail = summary;
    if (count.listedExcluded > 0)
        detail = qtTrId("readingsListed").arg(detail, describe(count));
    else if (!describeLeftOut(count).isEmpty())
        detail = qtTrId("readingsCounted").arg(detail, describe(count));
    if (!note.isEmpty()) detail = qtTrId("readingsNoted").arg(detail, note);
    heading->setTexts(patientHeading(parts.store), detail);
}

void ReadingFrame::setNote(const QString& sentence) {
    note = sentence;
    showHeading();
}

void ReadingFrame::setRule(CountRule rule) {
    if (std::exchange(counts, rule) != rule) showHeading();
}

void ReadingFrame::LoadData() {
    summarize();
    period->LoadData();
    statisticPanel->LoadData();
    weekPanel->LoadData();
    commentPanel->LoadData();
}

void ReadingFrame::UpdateUIBySetting() {
    summarize();
    period->UpdateUIBySetting();
    statisticPanel->LoadData();
    weekPanel->LoadData();
    commentPanel->LoadData();
}

bool ReadingFrame::isDisplayingComment() const { return commentPanel->isVisible(); }

/// The view keeps the room that it asks for; a page that is scrolled has no more than its parts need at
/// least.
bool ReadingFrame::isTooNarrow() const {
    const int allParts = shown.sizeHint().width() + Style::apart + side->minimumWidth();
    return width() <= std::max(allParts, fontMetrics().averageCharWidth() * 120 - 1);
}

/// Whoever opened or closed the panels by hand has it so until the window becomes narrow or wide.
void ReadingFrame::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const bool narrow = isTooNarrow();
    if (narrow == isNarrow) return;
    isNarrow = narrow;
    btnSide->setChecked(!narrow);
}

} // namespace zel
