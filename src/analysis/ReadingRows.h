#pragma once

#include "analysis/ReadingSelection.h"
#include "store/RecordLinks.h"
#include "store/SettingModel.h"

#include <vector>

namespace zel {

/// A row of the reading list: a reading, or a placeholder for a day that a comment covers and that has none.
struct ReadingRow {
    const ReadingModel* reading = nullptr; ///< null for a placeholder; of those that the rows were made of
    const CommentModel* comment = nullptr; ///< the comment that covers the row, or null; likewise
    Instant ReadingDate{};                 ///< the placeholder's, too
    DayNumber day = noDay;
    bool bAtBegin = false;          ///< first row at or after a comment's begin
    bool bAtEnd = false;            ///< last row of a comment's run of rows
    bool bDrawTopLine = false;      ///< opens a new day; never the first row
    bool bYellowBackground = false; ///< on a day on which a download took place

    [[nodiscard]] bool isNA() const { return reading == nullptr; }
    /// Date in the user's format; "n.a" for an undated reading.
    [[nodiscard]] QString strDisplayDate(const SettingModel& settings) const;
};

/// What every view of the readings shows.
struct ReadingRows {
    std::vector<ReadingRow> rows; ///< by date; undated readings first
    bool isAFib = false;          ///< some reading is from an AFib-capable monitor
    bool isPad = false;           ///< some reading is from a PAD-capable monitor
    bool isCut = false;           ///< days without a reading are missing: no list has so many
};

/// That the list leaves out days of comments, and how many it can have; empty where it has them all.
[[nodiscard]] QString describeCut(const ReadingRows& list);

/// Everything the list is made of. The lists must outlive the rows.
struct ReadingRowSource {
    const ReadingList& readings;
    const CommentList& comments; ///< by begin date
    const DataLogList& downloads;
    ReadingSelection selection;
};

[[nodiscard]] ReadingRows assembleReadingRows(const ReadingRowSource& source, const LocalZone& zone);

} // namespace zel
