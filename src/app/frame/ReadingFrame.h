#pragma once

#include "analysis/DisplayPeriod.h"
#include "analysis/ReadingCount.h"
#include "app/widgets/SeenWork.h"
#include "store/Clock.h"
#include "store/DataStore.h"

#include <QWidget>

class QToolButton;

namespace zel {

class CommentViewController;
class MeasuringWeekPanel;
class PageHeading;
class PeriodBar;
class StatisticViewController;

/// What the pages that show readings have in common: the patient's name, the period's controls, and beside
/// the page's own view the figures and the comments, which give way where the window is narrow.
class ReadingFrame final : public QWidget {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        DisplayPeriod& period;
        MessagePanel& panel;
        const Clock& clock;
    };
    ReadingFrame(const Parts& needed, QWidget& view, QWidget* parent);

    /// For a page that comes into view.
    void LoadData();
    void UpdateUIBySetting();
    /// A further sentence of the heading, or none.
    void setNote(const QString& sentence);
    /// Which readings the view counts, for the heading to say so; isListed unless told otherwise.
    void setRule(CountRule rule);
    [[nodiscard]] PeriodBar& periodBar() { return *period; }
    [[nodiscard]] CommentViewController& comments() { return *commentPanel; }
    [[nodiscard]] bool isDisplayingComment() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeHead();
    QWidget* makeSide();
    void showHeading() { headed.want(); }
    void writeHeading();
    void summarize();

    [[nodiscard]] bool isTooNarrow() const;

    Parts parts;
    QWidget& shown; ///< the page's own view
    PageHeading* heading;
    PeriodBar* period;
    StatisticViewController* statisticPanel;
    MeasuringWeekPanel* weekPanel;
    CommentViewController* commentPanel;
    QToolButton* btnSide;
    QWidget* side;
    QString note;
    QString summary; ///< of all readings, whatever the period
    CountRule counts = isListed;
    bool isNarrow = false;
    SeenWork headed{*this, [this] { writeHeading(); }};
};

} // namespace zel
