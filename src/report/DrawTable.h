#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// The reading rows of a report's pages.
class DrawTable {
public:
    static constexpr double rowHeight = 20, baseWidth = 786;

    /// \p source must outlive it.
    explicit DrawTable(const ReportSource& source) : report(source) {}

    [[nodiscard]] static int itemsPerPage(const Rect& rect);
    /// Where the rows of the first page stand: the whole rectangle, or without \p forTable the lower half of
    /// what the statistics leave of it.
    [[nodiscard]] static Rect firstPageRect(const Rect& rect, bool forTable);
    /// Pages for all rows of the source in such rectangles; none for no rows with \p forTable.
    [[nodiscard]] int needPages(const Rect& rect, bool forTable) const;

    /// The rows of a page, counted from 1, in that rectangle. \p forTable as for needPages().
    void drawRect(Picture& picture, const Rect& rect, int page, bool forTable) const;

private:
    [[nodiscard]] int rowTotal() const { return static_cast<int>(report.rows.rows.size()); }
    void drawHeader(Picture& picture, const Rect& row) const;
    /// \p opensPage: names its comment, which may have begun on the page before.
    void drawReading(Picture& picture, const Rect& row, const ReadingRow& reading, bool opensPage) const;
    void drawMeasures(Picture& picture, const Rect& row, const ReadingModel& reading) const;
    void drawMarks(Picture& picture, const Rect& row, const ReadingModel& reading) const;
    void drawComment(Picture& picture, const Rect& row, const ReadingRow& reading, bool isNamed) const;

    const ReportSource& report;
};

} // namespace zel
