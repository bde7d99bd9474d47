#pragma once

#include "analysis/DisplayPeriod.h"
#include "app/widgets/PageController.h"
#include "chart/DrawChart.h"
#include "store/Clock.h"
#include "store/DataStore.h"

#include <array>

class QCheckBox;
class QStackedWidget;
class QToolButton;

namespace zel {

class ChartComments;
class ChartTools;
class CorrelationView;
class DrawGraphicVC;
class EmptyState;
class HistogramView;
class ReadingActions;
class ReadingFrame;
class TrendView;

/// The chart page: the chart, the histogram, the correlation or the trend of the current patient's readings.
class GraphViewController final : public PageController {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        DisplayPeriod& period;
        MessagePanel& panel;
        const Clock& clock;
    };
    explicit GraphViewController(const Parts& needed);

    void LoadData() override;
    void UpdateUIBySetting() override;
    void setHWButtons(bool) override {}
    [[nodiscard]] bool leave() override;
    [[nodiscard]] bool isEdited() const override;
    void checkToSaveComment() override;
    [[nodiscard]] bool readyToPrint() override;
    [[nodiscard]] QJsonArray saveQuietly() override;
    [[nodiscard]] bool takeUp(const QJsonObject& draft) override;

    /// Brings the chart to the front of the page.
    void switchToGraph();
    /// 0 chart, 1 histogram, 2 correlation, 3 trend.
    void showView(int state) { setView(state); }
    [[nodiscard]] int drawViewState() const { return viewState; }
    /// The trend has mornings and evenings as lines of their own.
    [[nodiscard]] bool isTrendApart() const;
    void showTrendApart(bool isApart);
    /// The styles of the charts on the screen, for a pair that is to look like them.
    void setupDrawChart(ChartStyle& pulse, ChartStyle& blood) const;

private:
    void build();
    QWidget* makeSwitch();
    QCheckBox* makeTrendChoice();
    void offerTrendApart();
    void setView(int state);
    void reload();
    [[nodiscard]] std::vector<const ReadingModel*> chosenReading() const;

    static constexpr std::size_t viewTotal = 4;
    Parts parts;
    ChartComments* comments;
    QWidget* content; ///< what the frame shows: the switch and the tools over one of the views
    DrawGraphicVC* charts;
    HistogramView* histogram;
    CorrelationView* correlation;
    TrendView* trend;
    EmptyState* noReadings;
    QStackedWidget* views;
    ChartTools* tools;
    QCheckBox* trendApart;
    ReadingFrame* frame;
    ReadingActions* readingActions;
    std::array<QToolButton*, viewTotal> choices{};
    int viewState = 0;
};

} // namespace zel
