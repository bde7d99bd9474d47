#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"
#include "report/TextPages.h"

#include <QStringList>

namespace zel {

/// How a patient's comments lie on pages: worked out once, since all before it decide where one stands.
struct CommentPages {
    /// The earliest, which have no room; a first item says so.
    std::size_t leftOut = 0;
    std::vector<QStringList> lines; ///< of each item: of that first one, and of each comment behind it
    TextPages pages;                ///< none for no comments
    bool isAnyUndated = false;      ///< a comment printed lacks its begin or its end
};
/// No patient has as many comments, nor as long ones; laying out more of them would take minutes.
inline constexpr std::size_t mostPrintedComments = 20'000;
inline constexpr qsizetype mostCommentCharacters = 2'000'000;
/// On pages with that body. All comments but for those limits; the latest then.
[[nodiscard]] CommentPages layOutComments(const ReportSource& report, const Rect& rect);

/// The patient's comments on a report's pages.
class DrawComment {
public:
    static constexpr double xMargin = 8, yMargin = textPartMargin;

    /// Both must outlive it.
    DrawComment(const ReportSource& source, const CommentPages& laidOut) : report(source), layout(laidOut) {}

    /// Short comments on a page; longer ones grow.
    [[nodiscard]] static int iItemsPerPage(const Rect& rect);
    /// The comments of a page, counted from 1.
    void drawRect(Picture& picture, const Rect& rect, int page) const;

private:
    void drawItem(Picture& picture, const Rect& item, const TextPart& part) const;
    void drawNote(Picture& picture, const Rect& box, const TextPart& part) const;

    const ReportSource& report;
    const CommentPages& layout;
};

} // namespace zel
