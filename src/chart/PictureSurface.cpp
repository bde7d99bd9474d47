#include "chart/PictureSurface.h"

#include "chart/RoundPath.h"

#include <QPaintDevice>
#include <QPaintEngine>

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

bool isUpright(const QTransform& transform) {
    return transform.type() <= QTransform::TxScale && transform.m11() > 0
           && qFuzzyCompare(transform.m11(), transform.m22());
}

Rect overlap(const Rect& a, const Rect& b) {
    const double x = std::max(a.x, b.x);
    const double y = std::max(a.y, b.y);
    return {x, y, std::max(0.0, std::min(a.right(), b.right()) - x),
            std::max(0.0, std::min(a.top(), b.top()) - y)};
}

} // namespace

PictureSurface::PictureSurface(QPainter& onto, double pictureHeight)
    : painter(onto), height(pictureHeight), toDevice(onto.deviceTransform()) {
    painter.save();
    pixels = painter.paintEngine()->type() == QPaintEngine::Raster && isUpright(toDevice);
    if (pixels) {
        deviceUnits = toDevice.inverted() * painter.worldTransform();
        perUnit = toDevice.m11();
    } else {
        deviceUnits = painter.worldTransform();
        toDevice = {};
    }
    sights.push_back(deviceSight());
    painter.setWorldTransform(deviceUnits);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

PictureSurface::~PictureSurface() { painter.restore(); }

Rect PictureSurface::deviceSight() const {
    constexpr double paper = 100000;
    if (!pixels) return {-paper, -paper, 2 * paper, 2 * paper};
    // A widget's size is in its own units, an image's in pixels: the larger of both is sure to hold it.
    const QPaintDevice& device = *painter.device();
    const QTransform untouched = painter.worldTransform().inverted() * toDevice;
    const QRectF area =
        toDevice.inverted().mapRect(untouched.mapRect(QRectF(0, 0, device.width(), device.height())));
    return {area.x(), height - area.bottom(), area.width(), area.height()};
}

double PictureSurface::length(double units) const {
    return pixels ? std::max(1.0, std::round(units * perUnit)) : units;
}

QRectF PictureSurface::rect(const Rect& rect) const {
    return QRectF(QPointF(x(rect.x), y(rect.top())), QPointF(x(rect.right()), y(rect.y))).normalized();
}

QTransform PictureSurface::exact() const {
    return {perUnit, 0, 0, -perUnit, toDevice.dx(), height * perUnit + toDevice.dy()};
}

void PictureSurface::moveTo(Point origin, bool moved) {
    painter.setWorldTransform(
        moved ? QTransform(perUnit, 0, 0, perUnit, x(origin.x), y(origin.y)) * deviceUnits : deviceUnits);
}

void PictureSurface::beginClip(const Rect& rect, int radius) {
    painter.save();
    sights.push_back(overlap(sight(), rect));
    if (radius == 0) {
        const QRectF area = this->rect(sight());
        if (pixels)
            painter.setClipRect(area.toRect(), Qt::IntersectClip);
        else
            painter.setClipRect(area, Qt::IntersectClip);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(exact().map(getRoundPath(rect, radius)), Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void PictureSurface::endClip() {
    if (sights.size() < 2) return;
    sights.pop_back();
    painter.restore();
}

} // namespace zel
