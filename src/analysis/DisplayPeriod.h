#pragma once

#include "analysis/MeasuringWeek.h"
#include "analysis/ReadingSelection.h"
#include "store/RecordLinks.h"

#include <QObject>

#include <functional>

namespace zel {

/// Which days are shown. All but picked follow the readings.
enum class PeriodChoice : std::int32_t {
    picked, ///< with the date pickers, or moved on the chart, or the usual ones of a newly chosen patient
    last7,  ///< days, as lastDaysOfData() has them
    last30, ///< likewise
    last90, ///< likewise
    measuringWeek, ///< the one that is averaged
    all,           ///< from the first day with a reading to the last
};

/// Which readings of the days are shown, whatever the days.
enum class HalfOfDay : std::int32_t { both, morning, evening };

/// The period that all views share, and what they show of it. Lives as long as the program, and saves
/// nothing. Main thread only.
class DisplayPeriod : public QObject {
    Q_OBJECT
public:
    explicit DisplayPeriod(Instant now);

    /// Always whole days: the first second of one to the last second of another.
    [[nodiscard]] const Period& getTimePeriod() const { return display; }
    /// A missing end becomes the first day of this year as it is. Other days than those of the choice end it.
    void setTimePeriod(Date begin, Date end);
    /// The instants of the patient's earliest dated reading and of the latest reading; without a dated
    /// reading the first day of this year.
    [[nodiscard]] const Period& getDataPeriod() const { return data; }

    /// So many days up to the last one with a reading, or up to the last one with a reading that counts where
    /// those hold none that counts. One day at least.
    [[nodiscard]] Period lastDaysOfData(int days) const;
    [[nodiscard]] PeriodChoice getChoice() const { return choice; }
    /// Shows the days of the choice; without a dated reading those of the data period. Picked leaves the
    /// days.
    void choose(PeriodChoice chosen);
    [[nodiscard]] HalfOfDay getHalfOfDay() const { return half; }
    void setHalfOfDay(HalfOfDay chosen);
    /// What the two come to for a view: custom for all readings of other days than viewAll's.
    [[nodiscard]] ViewSelection getSelectViewIndex() const;
    /// Custom and viewAll choose the days, and both halves of the day; the others a half of the day.
    void setSelectViewIndex(ViewSelection selection);
    [[nodiscard]] bool getIncludeNoDatetimeData() const { return includeUndated; }
    /// Undated readings are of no day: they are shown with all days only.
    void setIncludeNoDatetimeData(bool include);
    /// Days that the user picked; the half of the day stays.
    /// \return false, and nothing changes, unless begin's day is before end's
    [[nodiscard]] bool pickTimePeriod(Instant begin, Instant end);

    /// Another patient has become current since a view was last loaded; true at the start.
    [[nodiscard]] bool isChangeUser() const { return changedUser; }
    /// True also ends the choices of days and of a half of the day.
    void setChangeUser(bool changed);
    /// The patient's data period, and the default display period: the last three months of it that hold a
    /// reading that counts, or the last three where none counts.
    void setCurrentReadingTimePeriod(const ReadingList& readings);
    /// The same patient's readings were read anew: the data period follows them, and so does the display
    /// period where the days are not picked or none were there before. Picked days stay, but those that reach
    /// to the last reading, or to the end of the default period, go on doing so: what was just typed in is
    /// not out of view.
    void refreshDataPeriod(const ReadingList& readings);
    /// A newly chosen patient whose readings span fewer than 91 days opens with everything in view.
    void adjustViewAll();

    /// How the measuring week is averaged, and the day that it ends with; none: the last one with a reading.
    [[nodiscard]] AverageRule getWeekRule() const { return weekRule; }
    void setWeekRule(AverageRule rule);
    [[nodiscard]] std::optional<DayNumber> getWeekEnd() const { return weekEnd; }
    /// Another patient has none. The days shown follow where they are the measuring week's.
    void setWeekEnd(std::optional<DayNumber> end);

    /// Comments may be placed on the chart: the display period spans fewer than 47 days.
    [[nodiscard]] bool isValidCommentTimeRange() const;
    [[nodiscard]] ReadingSelection selection() const {
        return {display, getSelectViewIndex(), includeUndated};
    }

    /// The later of three calendar months before \p end and \p begin.
    [[nodiscard]] static Instant getDefaultBeginDisplayDate(Instant begin, Instant end);

signals:
    /// A period, a choice or the undated readings' inclusion changed: views show something else.
    void changed();
    void weekChanged(); ///< its rule or its end

private:
    /// Announces what \p assign changes, once and only if it is a change.
    void change(const std::function<void()>& assign);
    void leaveChoice();
    /// \p daysUpTo gives whole days that end with that of an instant.
    [[nodiscard]] Period upToLast(const std::function<Period(Instant)>& daysUpTo) const;
    [[nodiscard]] Period usualDays() const;
    [[nodiscard]] Period daysOf(PeriodChoice wanted) const;
    void take(const ReadingList& readings);

    Instant firstDayOfThisYear;
    Period display;
    Period data;
    bool isAnyDated = false;
    DayNumber lastMeasured = noDay; ///< where the measuring week ends unless told otherwise
    PeriodChoice choice = PeriodChoice::picked;
    HalfOfDay half = HalfOfDay::both;
    bool includeUndated = false;
    bool changedUser = true;
    AverageRule weekRule = AverageRule::esh;
    std::optional<DayNumber> weekEnd;
};

} // namespace zel
