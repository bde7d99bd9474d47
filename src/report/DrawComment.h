#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// The patient's comments on a report's pages.
class DrawComment {
public:
    static constexpr double xMargin = 8, yMargin = 4;

    /// \p source must outlive it.
    explicit DrawComment(const ReportSource& source) : report(source) {}

    [[nodiscard]] static int iItemsPerPage(const Rect& rect);
    /// None for no comments.
    [[nodiscard]] int needPages(const Rect& rect) const;
    /// The comments of a page, counted from 1.
    void drawRect(Picture& picture, const Rect& rect, int page) const;

private:
    void drawItem(Picture& picture, const Rect& item, const CommentModel& comment) const;

    const ReportSource& report;
};

} // namespace zel
