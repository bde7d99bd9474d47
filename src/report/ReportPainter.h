#pragma once

#include "report/PrintView.h"

#include <QColor>

#include <span>

class QPagedPaintDevice;
class QPainter;
class QRectF;

namespace zel {

/// Paints all pages of the sections as one document, each on a page of its own orientation: on a printer or
/// into a PDF. \return false if the device failed, or there is no page
[[nodiscard]] bool paintReport(QPagedPaintDevice& device, const PrintView& view,
                               std::span<const Section> sections);

inline const QColor grayBackgroundcolor(245, 245, 245); ///< around the preview's page
/// Size of the preview's page, in the units of the screen.
[[nodiscard]] Size previewPageSize(QPageLayout::Orientation orientation);
/// Paints one page, on white paper in the middle of \p bounds, as the preview shows it. Of a page that there
/// is not, such as the first of an empty table, the frame is shown.
void paintPreview(QPainter& painter, const QRectF& bounds, const PrintView& view,
                  std::optional<Section> printSelection, int page);

} // namespace zel
