#include "report/PageGeometry.h"

#include <algorithm>

namespace zel {

PageGeometry pageGeometry(Size paper, double patientTitleHeight, const PageMargins& margins) {
    const Rect total{margins.left, margins.bottom, paper.width - margins.left - margins.right,
                     paper.height - margins.top - margins.bottom};
    const Rect footer{total.x, total.y, total.width, fFooterHeight};
    const Rect body{total.x, footer.top(), total.width, total.height - fFooterHeight - fTitleHeight};
    const Rect title{total.x, body.top(), total.width, fTitleHeight};
    const Rect drawing{body.x, body.y, body.width, body.height - patientTitleHeight};
    return {paper, total, footer, body, title, drawing};
}

Rect mapRectToRect(Size content, const Rect& bounds) {
    const double scale = std::min(bounds.width / content.width, bounds.height / content.height);
    const Size size{content.width * scale, content.height * scale};
    return {bounds.x + (bounds.width - size.width) / 2, bounds.y + (bounds.height - size.height) / 2,
            size.width, size.height};
}

} // namespace zel
