#include "chart/OffScale.h"

#include "chart/Drawing.h"

#include <QCoreApplication>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int noteAttribute = 2;

QString shortText(const OffScale& counts) {
    QStringList sides;
    if (counts.above > 0) sides += qtTrId("aboveScaleShort").arg(counts.above);
    if (counts.below > 0) sides += qtTrId("belowScaleShort").arg(counts.below);
    return sides.join(u", "_s);
}

} // namespace

void countOffScale(OffScale& counts, std::initializer_list<ScaledValue> reading) {
    const auto isAbove = [](const ScaledValue& one) { return one.value > one.scale.most; };
    const auto isBelow = [](const ScaledValue& one) { return one.value < one.scale.least; };
    counts.above += static_cast<int>(std::ranges::any_of(reading, isAbove));
    counts.below += static_cast<int>(std::ranges::any_of(reading, isBelow));
}

QString offScaleText(const OffScale& counts) {
    QStringList sides;
    if (counts.above > 0) sides += qtTrId("aboveScale", counts.above);
    if (counts.below > 0) sides += qtTrId("belowScale", counts.below);
    return sides.join(u", "_s);
}

void drawOffScale(Picture& picture, const OffScale& counts, const Rect& room) {
    const TextAttribute type = attribute(noteAttribute);
    QString text = offScaleText(counts);
    if (text.isEmpty()) return;
    if (textSize(text, type).width > room.width) text = shortText(counts);
    const Size size = textSize(text, type);
    if (size.width > room.width || size.height > room.height) return;
    // What lies behind the words shines through.
    const QColor pale(255, 255, 255, 200);
    const Rect box{room.right() - size.width, room.top() - size.height, size.width, size.height};
    picture.emplace_back(FillRect{box, pale});
    picture.emplace_back(TextLine{text, {box.x, box.y}, type});
}

} // namespace zel
