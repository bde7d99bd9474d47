#pragma once

#include "analysis/MeasuringWeek.h"
#include "analysis/ReadingSelection.h"
#include "store/RecordLinks.h"

#include <QObject>

#include <functional>

namespace zel {

/// The period that all views share, and what they show of it. Lives as long as the program; nothing of it is
/// saved. Main thread only.
class DisplayPeriod : public QObject {
    Q_OBJECT
public:
    explicit DisplayPeriod(Instant now);

    /// Always whole days: the first second of one to the last second of another.
    [[nodiscard]] const Period& getTimePeriod() const { return display; }
    /// A missing end becomes the first day of this year as it is. Other days than those of viewAll make the
    /// view custom.
    void setTimePeriod(Date begin, Date end);
    /// The instants of the patient's earliest dated reading and of the latest reading; without a dated
    /// reading the first day of this year.
    [[nodiscard]] const Period& getDataPeriod() const { return data; }
    /// The display period is the days of the data period.
    [[nodiscard]] bool isWholeDataPeriod() const;
    void setDataPeriod(const Period& period);

    [[nodiscard]] ViewSelection getSelectViewIndex() const { return view; }
    /// Choosing viewAll also shows the whole data period.
    void setSelectViewIndex(ViewSelection selection);
    [[nodiscard]] bool getIncludeNoDatetimeData() const { return includeUndated; }
    /// Undated readings are of no day: they are left out of a custom view.
    void setIncludeNoDatetimeData(bool include);
    /// Days that the user picked: sets the view selection to custom.
    /// \return false, and nothing changes, unless begin's day is before end's
    [[nodiscard]] bool pickTimePeriod(Instant begin, Instant end);

    /// Another patient has become current since a view was last loaded; true at the start.
    [[nodiscard]] bool isChangeUser() const { return changedUser; }
    /// True also resets the view selection to custom.
    void setChangeUser(bool changed);
    /// The patient's data period, and the default display period: the last three months of it.
    void setCurrentReadingTimePeriod(const ReadingList& readings);
    /// The same patient's readings were read anew: the data period follows them, and so does the display
    /// period where all are in view or none were there before. Picked days stay.
    void refreshDataPeriod(const ReadingList& readings);
    /// A newly chosen patient whose readings span fewer than 91 days opens with everything in view.
    void adjustViewAll();

    /// How the measuring week is averaged, and the day that it ends with; none: the last one with a reading.
    [[nodiscard]] AverageRule getWeekRule() const { return weekRule; }
    void setWeekRule(AverageRule rule);
    [[nodiscard]] std::optional<DayNumber> getWeekEnd() const { return weekEnd; }
    void setWeekEnd(std::optional<DayNumber> end); ///< another patient has none

    /// Comments may be placed on the chart: the display period spans fewer than 47 days.
    [[nodiscard]] bool isValidCommentTimeRange() const;
    [[nodiscard]] ReadingSelection selection() const { return {display, view, includeUndated}; }

    /// The later of three calendar months before \p end and \p begin.
    [[nodiscard]] static Instant getDefaultBeginDisplayDate(Instant begin, Instant end);

signals:
    /// A period, the view selection or the undated readings' inclusion changed: views show something else.
    void changed();
    void weekChanged(); ///< its rule or its end

private:
    /// Announces what \p assign changes, once and only if it is a change.
    void change(const std::function<void()>& assign);
    void leaveViewChoice();
    [[nodiscard]] Period dataPeriodOf(const ReadingList& readings) const;

    Instant firstDayOfThisYear;
    Period display;
    Period data;
    ViewSelection view = ViewSelection::custom;
    bool includeUndated = false;
    bool changedUser = true;
    AverageRule weekRule = AverageRule::esh;
    std::optional<DayNumber> weekEnd;
};

} // namespace zel
