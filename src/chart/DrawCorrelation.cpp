#include "chart/DrawCorrelation.h"

#include "chart/Drawing.h"
#include "chart/FigurePanel.h"

#include <cmath>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int sysRange = 240; ///< mmHg
constexpr int diaRange = 200; ///< mmHg
constexpr double noteInset = 5;

/// Where a value lies; single precision, as the positions always were.
double position(std::uint32_t value, int range, double length, double from) {
    return static_cast<float>(value) / static_cast<float>(range) * static_cast<float>(length)
           + static_cast<float>(from);
}
double sysToX(std::uint32_t sys, const Rect& plot) { return position(sys, sysRange, plot.width, plot.x); }
double diaToY(std::uint32_t dia, const Rect& plot) { return position(dia, diaRange, plot.height, plot.y); }

/// The title stands at the scale's last division, the unit with it where there is room.
void drawDiaScale(Picture& picture, const Rect& plot) {
    const PanelScale scale{Axis::vertical, 10, valueStep, plot.height};
    drawGrid(picture, plot, scale);
    drawNumbers(picture, plot, scale);
    const double height = textSize(qtTrId("dia"), attribute(1)).height;
    const Point at{plot.x - numberGap, plot.top() - edgeGap};
    textOut(picture, qtTrId("dia"), at, attribute(1), XPos::right, YPos::top);
    if (2 * stepLength(scale) < 2.5 * height) return;
    drawUnit(picture, plot, qtTrId("mmHg"), at.y - height, true);
}

void drawSysScale(Picture& picture, const Rect& plot) {
    const PanelScale scale{Axis::horizontal, 12, valueStep, plot.width};
    drawGrid(picture, plot, scale);
    drawNumbers(picture, plot, scale);
    QString title = u"%1 %2"_s.arg(qtTrId("sys"), qtTrId("mmHg"));
    if (textSize(title, attribute(1)).width > 1.6 * stepLength(scale)) title = qtTrId("sys");
    textOut(picture, title, {plot.right() - edgeGap, plot.y - bottomMargin / 2}, attribute(1), XPos::right,
            YPos::centre);
}

/// What the zones mean, in the corners; left out where two would touch. A limit that is none divides nothing.
void showQuadrantLabels(Picture& picture, const Rect& plot, bool hasSys, bool hasDia) {
    const Rect box = plot.inset(noteInset);
    const auto row = [&](const QString& left, const QString& right, double y, YPos hang) {
        const double width = textSize(left, attribute(1)).width + textSize(right, attribute(1)).width;
        if (width + noteInset > box.width || textSize(left, attribute(1)).height * 2 > box.height) return;
        textOut(picture, left, {box.x, y}, attribute(1), XPos::left, hang);
        if (hasSys) textOut(picture, right, {box.right(), y}, attribute(1), XPos::right, hang);
    };
    row(qtTrId("normal"), qtTrId("sys too high"), box.y, YPos::bottom);
    if (hasDia) row(qtTrId("dia too high"), qtTrId("sys and dia too high"), box.top(), YPos::top);
}

void drawLimits(Picture& picture, std::uint32_t sysStandard, std::uint32_t diaStandard, const Rect& plot) {
    const double x = sysToX(sysStandard, plot);
    const double y = diaToY(diaStandard, plot);
    const QColor color = fixColor(gcBloodRedLinecolor);
    if (sysStandard > 0) picture.emplace_back(StraightLine{{x, plot.y}, {x, plot.top()}, 2, color});
    if (diaStandard > 0) picture.emplace_back(StraightLine{{plot.x, y}, {plot.right(), y}, 2, color});
}

PointMarks marks(std::span<const CorrelationPoint> points, const Rect& plot) {
    PointMarks marks{{}, false};
    marks.points.reserve(points.size());
    for (const CorrelationPoint& point : points)
        marks.points.push_back({std::trunc(sysToX(point.sys, plot)), std::trunc(diaToY(point.dia, plot))});
    return marks;
}

/// Below the names of the zones.
Rect belowZoneNames(const Rect& plot) {
    Rect room = plot.inset(noteInset);
    room.height -= textSize(qtTrId("normal"), attribute(1)).height;
    return room;
}

} // namespace

OffScale correlationOffScale(const ReadingList& readings, const ReadingSelection& selection) {
    OffScale counts;
    for (const ReadingModel& reading : readings)
        if (isCounted(reading, selection))
            countOffScale(counts, {{reading.sys, {0, sysRange}}, {reading.dia, {0, diaRange}}});
    return counts;
}

Picture drawCorrelation(std::span<const CorrelationPoint> points, const OffScale& offScale,
                        std::uint32_t sysStandard, std::uint32_t diaStandard, const Rect& rect) {
    Picture picture{BeginClip{rect}, FillRect{rect, fixColor(gcScaleBackgroundColor)}};
    const Rect plot{rect.x + leftMargin, rect.y + bottomMargin, rect.width - leftMargin,
                    rect.height - bottomMargin};
    if (plot.width > 0 && plot.height > 0) {
        picture.emplace_back(FillRect{plot, Qt::white});
        drawDiaScale(picture, plot);
        drawSysScale(picture, plot);
        if (sysStandard > 0 || diaStandard > 0)
            showQuadrantLabels(picture, plot, sysStandard > 0, diaStandard > 0);
        picture.emplace_back(BeginClip{plot});
        drawLimits(picture, sysStandard, diaStandard, plot);
        picture.emplace_back(marks(points, plot));
        picture.emplace_back(EndClip{});
        drawOffScale(picture, offScale, belowZoneNames(plot));
    }
    picture.emplace_back(EndClip{});
    return picture;
}

} // namespace zel
