#pragma once

#include "chart/Picture.h"
#include "report/LeftOutReadings.h"
#include "report/TextPages.h"

#include <QStringList>

#include <vector>

namespace zel {

/// How the readings that are left out lie on pages behind a section that counts, each with its whole
/// reason.
struct LeftOutPages {
    std::vector<const ReadingModel*> readings;
    std::vector<QStringList> reasons; ///< of each of them
    TextPages pages;                  ///< none where none is left out
};
/// On pages with that body.
[[nodiscard]] LeftOutPages layOutLeftOut(const ReportSource& report, const LeftOutScope& scope,
                                         const Rect& rect);
/// One of these pages, counted from 1.
void drawLeftOut(Picture& picture, const ReportSource& report, const LeftOutPages& list, const Rect& rect,
                 int page);

} // namespace zel
