#include "chart/PicturePainter.h"

#include "chart/CurvePieces.h"
#include "chart/DensePicture.h"
#include "chart/DocumentMemory.h"
#include "chart/GridLines.h"
#include "chart/MarkLayer.h"
#include "chart/PictureSurface.h"
#include "chart/RoundPath.h"
#include "chart/TickLayers.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <list>
#include <span>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Paints one item after the other.
class ItemPainter {
public:
    ItemPainter(QPainter& onto, double height, DocumentMemory* document)
        : surface(onto, height), painter(onto), memory(document) {}

    /// Paints the first item, or several alike. \return how many
    std::size_t next(std::span<const PictureItem> items) {
        constexpr std::size_t few = 10;
        const std::size_t alike = surface.hasPixels() ? uprightLines(items) : 0;
        if (alike < few) {
            std::visit(*this, items.front());
            return 1;
        }
        paintUprightLines(surface, items.first(alike));
        return alike;
    }

    void operator()(const FillRect& item) { painter.fillRect(surface.rect(item.rect), item.color); }

    void operator()(const RoundRect& item) {
        // A stroke runs through the middle of the pixels, so that it is sharp.
        const double shift = item.strokeWidth > 0 ? 0.5 : 0;
        const Rect box{item.rect.x + shift, item.rect.y + shift, item.rect.width - 1, item.rect.height - 1};
        painter.setPen(item.strokeWidth > 0 ? QPen(item.color, surface.length(item.strokeWidth),
                                                   Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin)
                                            : QPen(Qt::NoPen));
        painter.setBrush(item.strokeWidth > 0 ? QBrush(Qt::NoBrush) : QBrush(item.color));
        const Smooth smooth(painter);
        painter.drawPath(surface.exact().map(getRoundPath(box, item.radius)));
    }

    void operator()(const StraightLine& item) {
        const bool straight = item.from.x == item.to.x || item.from.y == item.to.y;
        if (surface.hasPixels() && straight) return fillLine(item);
        painter.setPen(QPen(item.color, item.width * surface.scale(), Qt::SolidLine, Qt::FlatCap));
        const Smooth smooth(painter);
        painter.drawLine(surface.exact().map(QLineF(item.from.x, item.from.y, item.to.x, item.to.y)));
    }

    void operator()(const Circle& item) {
        const double radius = item.diameter / 2 * surface.scale();
        painter.setPen(item.filled ? QPen(Qt::NoPen) : QPen(item.color, surface.scale()));
        painter.setBrush(item.filled ? QBrush(item.color) : QBrush(Qt::NoBrush));
        const Smooth smooth(painter);
        painter.drawEllipse(surface.exact().map(QPointF(item.centre.x, item.centre.y)), radius, radius);
    }

    void operator()(const TextLine& item) {
        const Type& type = typeOf(item.attribute);
        // Most texts are in the type of the one before.
        if (written != &type) painter.setFont(type.font);
        written = &type;
        painter.setPen(item.attribute.color);
        surface.moveTo(item.origin, true);
        const QPointF base(0, -type.descent);
        const QGlyphRun* glyphs = memory ? memory->glyphs(painter, item.text, item.attribute) : nullptr;
        if (glyphs)
            painter.drawGlyphRun(base, *glyphs);
        else
            painter.drawText(base, item.text);
        surface.moveTo({}, false);
    }

    void operator()(const PolyLine& item) {
        const double width = surface.length(1);
        // Qt places lines of one pixel by that pixel, all others by their middle.
        const double middle = surface.hasPixels() && width == 1 ? 0 : width / 2;
        const auto at = [&](Point point) {
            return QPointF(surface.x(point.x) + middle, surface.y(point.y + 1) + middle);
        };
        const bool eachUnitIsAPixel = surface.hasPixels() && surface.scale() == 1;
        const auto strokes = joinedStrokes(item.points, surface.sight(), eachUnitIsAPixel);
        QList<QLineF> lines;
        lines.reserve(std::ssize(strokes));
        for (const Segment& stroke : strokes)
            lines.emplace_back(at(stroke.from), at(stroke.to));
        painter.setPen(QPen(item.color, width, Qt::SolidLine, Qt::SquareCap));
        painter.drawLines(lines);
    }

    void operator()(const Curve& item) {
        if (surface.hasPixels()) return drawPieces(item);
        QPen pen(item.color, item.width * surface.scale(), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        if (!item.dashes.empty()) {
            QList<qreal> inWidths;
            for (const double length : item.dashes)
                inWidths.push_back(length / item.width);
            pen.setDashPattern(inWidths);
        }
        painter.setPen(pen);
        const Smooth smooth(painter);
        painter.drawPolyline(polygon(item.points));
    }

    /// Not smooth: that takes ten times as long, and pale areas have no edges that are looked at.
    void operator()(const Area& item) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(item.color);
        painter.drawPolygon(polygon(item.outline));
    }

    void operator()(const PointMarks& item) { paintMarks(surface, item); }

    void operator()(const Ticks& item) { paintTicks(surface, item); }

    void operator()(const ImageItem& item) {
        DocumentMemory own;
        QSvgRenderer& image = (memory ? *memory : own).image(item.name, item.isGrey);
        const Smooth smooth(painter);
        image.render(&painter, surface.rect(item.rect));
    }

    void operator()(const BeginClip& item) { surface.beginClip(item.rect, item.radius); }
    void operator()(const EndClip&) {
        surface.endClip();
        written = nullptr; // the painter has the font again that it had before the clip
    }

private:
    class Smooth {
    public:
        explicit Smooth(QPainter& onto) : painter(onto) { painter.setRenderHint(QPainter::Antialiasing); }
        ~Smooth() { painter.setRenderHint(QPainter::Antialiasing, false); }
        Smooth(const Smooth&) = delete;
        Smooth& operator=(const Smooth&) = delete;

    private:
        QPainter& painter;
    };

    struct Type {
        TextAttribute attribute;
        QFont font;
        double descent;
    };
    /// A picture has few of them, and looking one up takes as long as writing a short text.
    const Type& typeOf(const TextAttribute& attribute) {
        const auto known = std::ranges::find(types, attribute, &Type::attribute);
        if (known != types.end()) return *known;
        const QFont font = attribute.font();
        return types.emplace_back(Type{attribute, font, QFontMetricsF(font).descent()});
    }

    /// Qt's stroker takes a hundred times as long for a line across the screen as for its pieces.
    void drawPieces(const Curve& item) {
        const Qt::PenCapStyle cap = item.dashes.empty() ? Qt::SquareCap : Qt::FlatCap;
        painter.setPen(QPen(item.color, item.width * surface.scale(), Qt::SolidLine, cap));
        const Smooth smooth(painter);
        QList<QLineF> lines;
        for (const Segment& piece : curvePieces(item))
            lines.push_back(surface.exact().map(QLineF(piece.from.x, piece.from.y, piece.to.x, piece.to.y)));
        painter.drawLines(lines);
    }

    [[nodiscard]] QPolygonF polygon(const std::vector<Point>& points) const {
        QPolygonF corners;
        corners.reserve(static_cast<qsizetype>(points.size()));
        for (const Point& point : points)
            corners.emplace_back(point.x, point.y);
        return surface.exact().map(corners);
    }

    /// Grid lines lie on the pixels that a reading of the same value lies on.
    void fillLine(const StraightLine& item) {
        const double before = (item.width - 1) / 2;
        const bool upright = item.from.x == item.to.x;
        const Rect box = Rect{std::min(item.from.x, item.to.x), std::min(item.from.y, item.to.y),
                              std::abs(item.from.x - item.to.x), std::abs(item.from.y - item.to.y)};
        const double width = surface.length(item.width);
        const QRectF filled = surface.rect(box);
        painter.fillRect(
            upright ? QRectF(surface.x(std::floor(box.x - before)), filled.top(), width, filled.height())
                    : QRectF(filled.left(), surface.y(std::floor(box.y - before) + item.width),
                             filled.width(), width),
            item.color);
    }

    PictureSurface surface;
    QPainter& painter;
    DocumentMemory* memory;        ///< or none
    std::list<Type> types;         ///< that the picture is written in
    const Type* written = nullptr; ///< the painter's now; none: unknown
};

} // namespace

void paintPicture(QPainter& painter, const Picture& picture, double height, DocumentMemory* memory) {
    ItemPainter paint(painter, height, memory);
    for (std::span<const PictureItem> rest(picture); !rest.empty();)
        rest = rest.subspan(paint.next(rest));
}

} // namespace zel
