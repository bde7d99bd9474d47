#pragma once

#include "chart/Geometry.h"

#include <QColor>
#include <QPainter>
#include <QTransform>

#include <cstdint>
#include <vector>

namespace zel {

/// Where a picture is painted: turns y over, and on screens and images places everything on whole device
/// pixels. Paper takes the numbers as they are. The painter gets its own transformation back at the end.
class PictureSurface {
public:
    PictureSurface(QPainter& painter, double height);
    ~PictureSurface();
    PictureSurface(const PictureSurface&) = delete;
    PictureSurface& operator=(const PictureSurface&) = delete;

    QPainter& painter;
    /// Made of pixels, and not turned or stretched.
    [[nodiscard]] bool hasPixels() const { return pixels; }
    /// Device pixels per pixel of the picture.
    [[nodiscard]] double scale() const { return perUnit; }
    /// A length of the picture on the device, at least one pixel.
    [[nodiscard]] double length(double units) const;
    [[nodiscard]] double x(double pictureX) const { return placed(pictureX * perUnit + toDevice.dx()); }
    [[nodiscard]] double y(double pictureY) const {
        return placed((height - pictureY) * perUnit + toDevice.dy());
    }
    [[nodiscard]] QRectF rect(const Rect& rect) const;
    /// From the picture's coordinates to the device, not rounded.
    [[nodiscard]] QTransform exact() const;
    /// From the painter's units at \p origin of the picture on, y downwards: for text and images.
    void moveTo(Point origin, bool moved);

    void beginClip(const Rect& rect, int radius);
    void endClip();
    /// What may be seen, in the picture's coordinates.
    [[nodiscard]] const Rect& sight() const { return sights.back(); }

private:
    [[nodiscard]] double placed(double value) const { return pixels ? nearest(value) : value; }
    /// On the nearest pixel; by hand, as this is done for every reading.
    [[nodiscard]] static double nearest(double value) {
        const double above = value + 0.5;
        const auto whole = static_cast<double>(static_cast<std::int64_t>(above));
        return whole > above ? whole - 1 : whole;
    }
    [[nodiscard]] Rect deviceSight() const;

    double height;
    QTransform toDevice;    ///< from the painter's units
    QTransform deviceUnits; ///< makes the painter's unit a pixel of the device
    bool pixels = false;
    double perUnit = 1;
    std::vector<Rect> sights;
};

} // namespace zel
