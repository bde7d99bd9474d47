#pragma once

#include "chart/Picture.h"
#include "chart/TextWidths.h"
#include "report/ReportSource.h"

namespace zel {

/// The place of a row, and the type of all that it says.
struct TableRow : Rect {
    TextAttribute font;
    double threeDigits = 0; ///< width of a number
    TextWidths* widths = nullptr;
};

/// The reading rows of a report's pages.
class DrawTable {
public:
    static constexpr double rowHeight = 20, baseWidth = 786;

    /// \p source and \p widths must outlive it.
    explicit DrawTable(const ReportSource& source, TextWidths* known = nullptr)
        : report(source), widths(known) {}

    [[nodiscard]] static int itemsPerPage(const Rect& rect);
    /// Where the rows of the first page stand: the whole rectangle, or without \p forTable the lower half of
    /// what the statistics leave of it.
    [[nodiscard]] static Rect firstPageRect(const Rect& rect, bool forTable);
    /// Pages for all rows of the source in such rectangles; none for no rows with \p forTable.
    [[nodiscard]] int needPages(const Rect& rect, bool forTable) const;

    /// The rows of a page, counted from 1, in that rectangle. \p forTable as for needPages().
    /// \return whether a comment has more words than its column
    [[nodiscard]] bool drawRect(Picture& picture, const Rect& rect, int page, bool forTable) const;

private:
    [[nodiscard]] int rowTotal() const { return static_cast<int>(report.rows.rows.size()); }
    void drawHeader(Picture& picture, const TableRow& row) const;
    /// \p opensRun: names its comment, which the row above does not have. \return whether that is cut
    bool drawReading(Picture& picture, const TableRow& row, const ReadingRow& reading, bool opensRun) const;
    void drawMeasures(Picture& picture, const TableRow& row, const ReadingModel& reading) const;
    void drawMarks(Picture& picture, const TableRow& row, const ReadingModel& reading) const;
    bool drawComment(Picture& picture, const TableRow& row, const ReadingRow& reading, bool isNamed) const;

    static void drawBar(Picture& picture, const TableRow& row, const ReadingRow& reading);

    const ReportSource& report;
    TextWidths* widths; ///< of one report's cells, or none
};

} // namespace zel
