#pragma once

#include "analysis/DisplayPeriod.h"
#include "app/graph/ChartComments.h"
#include "app/graph/ChartView.h"
#include "app/widgets/SeenWork.h"

class QScrollBar;

namespace zel {

class BloodView;
class PointedReading;
class PulseView;

/// Both charts with their scroll bars: moves and widens the period, and walks from reading to reading.
class DrawGraphicVC final : public QWidget {
    Q_OBJECT
public:
    DrawGraphicVC(const DataStore& dataStore, DisplayPeriod& displayPeriod, ChartComments& chartComments,
                  QWidget* parent);

    void addDay();   ///< the period grows by a day at each end
    void minusDay(); ///< and shrinks, unless it is of two days or one
    /// Reads everything anew.
    void reload();
    /// The same period may be shown in another way, of readings that are the same.
    void takePeriod();
    /// The styles of the charts on the screen, for a pair that is to look like them.
    void setupDrawChart(ChartStyle& pulse, ChartStyle& blood) const;
    [[nodiscard]] PulseView& getPulseView() { return *pulseView; }
    /// The reading that the context menu was opened on, or else the one that is pointed at; null for none.
    [[nodiscard]] const ReadingModel* chosenReading() const;
    /// The menu that menuWanted() asked for: until it goes it stands for the reading below it.
    void keepReadingFor(const QObject& menu);
    /// The day that a comment is for that is made by a key: that under the pointer or of the reading that the
    /// keys have come to, whichever was later; else the first of the period.
    [[nodiscard]] Instant commentDay() const;

signals:
    /// The context menu, for a time of the day where the pointer asked for it, or of the commentDay().
    void menuWanted(QPoint global, Instant day);
    void chosenReadingChanged();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QScrollBar* addValueScroller(const QString& name, const QString& title, ChartView& view);
    QScrollBar* addTimeScroller();
    void setTimePeriod(const Period& period);
    void showPeriod();
    void setTimeScrollRange();
    void move(int days);
    void widen(int days, double fraction);
    bool movedByKey(int key);
    [[nodiscard]] int keyStep() const;

    void walk(bool forward);
    void forgetPointed();
    void describe();

    const DataStore& store;
    DisplayPeriod& period;
    ChartSource source;
    bool isRead = false; ///< the source has the patient's readings
    BloodView* bloodView;
    PulseView* pulseView;
    PointedReading* pointed;
    const ReadingModel* menuReading = nullptr; ///< the pointer leaves the chart for the menu
    const QObject* keptFor = nullptr;          ///< the menu that it is kept for; only compared
    QScrollBar* bloodScroller;
    QScrollBar* pulseScroller;
    QScrollBar* timeScroller;
    QPoint wheelled; ///< parts of a wheel's step, of both axes, that did not make a move yet
    SeenWork showing{*this, [this] { showPeriod(); }};
};

} // namespace zel
