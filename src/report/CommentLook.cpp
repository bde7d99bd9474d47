#include "report/CommentLook.h"

#include <algorithm>

namespace zel {

QString commentNumber(const CommentList& comments, const CommentModel& comment) {
    const auto found = std::ranges::find(comments, &comment, [](const auto& listed) { return listed.get(); });
    return QString::number(found - comments.begin() + 1);
}

QString commentColorName(const CommentModel& comment) {
    switch (comment.degree) {
    case 1: return qtTrId("colourGrey");
    case 3: return qtTrId("colourBlue");
    case 4: return qtTrId("colourYellow");
    default: return qtTrId("colourOrange");
    }
}

} // namespace zel
