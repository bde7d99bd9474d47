#pragma once

#include "analysis/MeasuringWeek.h"
#include "analysis/ReadingRows.h"
#include "analysis/ReadingSelection.h"
#include "chart/DrawChart.h"
#include "store/Clock.h"
#include "store/DataStore.h"
#include "store/PatientModel.h"
#include "store/RecordLinks.h"
#include "store/SettingModel.h"
#include "store/ViewLimits.h"

#include <optional>

namespace zel {

/// Everything that a report shows. What it refers to must outlive it.
struct ReportSource {
    const PatientModel& patient;
    const ReadingList& readings; ///< in date order
    const CommentList& comments; ///< by begin date
    const DataLogList& downloads;
    const SettingModel& settings;
    ReadingSelection selection; ///< the reporting period and what is shown of it
    ReadingRows rows;           ///< what the reading table shows of it
    LimitPair highFrom{};       ///< values at or above it are marked in the reading table
    Instant now{};              ///< today's date, and the day that the age is reached on

    AverageRule weekRule = AverageRule::esh; ///< of the summary's measuring week
    std::optional<DayNumber> weekEnd{};      ///< its last day; else the period's last one with a reading

    bool isDemonstration = false;      ///< all is invented, which every page says
    bool needPhysicianInfo = false;    ///< the practitioner's details stand in the footer
    bool getShowMam = true;            ///< the reading table shows its column of averages
    bool getShowPad = true;            ///< the reading table shows its arrhythmia column
    bool getIsAfib = false;            ///< which is titled for AFib, not for PAD
    bool trendApart = false;           ///< the trend has mornings and evenings as lines of their own
    ChartStyle lowerChart = DrawPulse; ///< the graph page's charts, for what they show on the screen
    ChartStyle bloodChart = DrawBlood;
};

/// The report of the store's current patient, none if there is no such; the rest as for a report that is
/// printed without a screen. Refers to the store's records, and so is good until the store's next load.
[[nodiscard]] std::optional<ReportSource> reportSource(const DataStore& store,
                                                       const ReadingSelection& selection, const Clock& clock);

} // namespace zel
