#include "chart/OffScale.h"

#include "chart/Drawing.h"

#include <QCoreApplication>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int noteAttribute = 2;
constexpr int leastType = 7;

QString shortText(const OffScale& counts) {
    QStringList sides;
    if (counts.above > 0) sides += qtTrId("aboveScaleShort").arg(counts.above);
    if (counts.below > 0) sides += qtTrId("belowScaleShort").arg(counts.below);
    return sides.join(qtTrId(", "));
}

struct Note {
    QString text;
    TextAttribute type;
};

bool isWithin(const Note& note, const Rect& room) {
    const Size size = textSize(note.text, note.type);
    return size.width <= room.width && size.height <= room.height;
}

/// The least that there is to say.
Note arrowNote(const OffScale& counts) {
    QStringList sides;
    if (counts.above > 0) sides += u'\u2191' + QString::number(counts.above);
    if (counts.below > 0) sides += u'\u2193' + QString::number(counts.below);
    TextAttribute type = attribute(noteAttribute);
    type.size = leastType;
    return {sides.join(u' '), type};
}

/// In fewer words, and then in smaller type, where there is less room; something in any case.
Note fittingNote(const OffScale& counts, const Rect& room, OffScaleOf what) {
    const TextAttribute usual = attribute(noteAttribute);
    if (Note whole{offScaleText(counts, what), usual}; isWithin(whole, room)) return whole;
    Note least = arrowNote(counts);
    for (const QString& text : {shortText(counts), least.text})
        for (Note note{text, usual}; note.type.size >= leastType; --note.type.size)
            if (isWithin(note, room)) return note;
    return least;
}

} // namespace

void countOffScale(OffScale& counts, std::initializer_list<ScaledValue> reading) {
    const auto isAbove = [](const ScaledValue& one) { return one.value > one.scale.most; };
    const auto isBelow = [](const ScaledValue& one) { return one.value < one.scale.least; };
    counts.above += static_cast<int>(std::ranges::any_of(reading, isAbove));
    counts.below += static_cast<int>(std::ranges::any_of(reading, isBelow));
}

QString offScaleText(const OffScale& counts, OffScaleOf what) {
    const bool isPoints = what == OffScaleOf::points;
    QStringList sides;
    if (counts.above > 0)
        sides += isPoints ? qtTrId("abovePoints", counts.above) : qtTrId("aboveScale", counts.above);
    if (counts.below > 0)
        sides += isPoints ? qtTrId("belowPoints", counts.below) : qtTrId("belowScale", counts.below);
    return sides.join(qtTrId(", "));
}

bool hasRoomForOffScale(const OffScale& counts, const Rect& room) {
    return counts == OffScale{} || isWithin(arrowNote(counts), room);
}

void drawOffScale(Picture& picture, const OffScale& counts, const Rect& room, OffScaleOf what) {
    if (counts == OffScale{}) return;
    const auto [text, type] = fittingNote(counts, room, what);
    const Size size = textSize(text, type);
    // What lies behind the words shines through.
    const QColor pale(255, 255, 255, 200);
    const Rect box{room.right() - size.width, room.top() - size.height, size.width, size.height};
    picture.emplace_back(FillRect{box, pale});
    picture.emplace_back(TextLine{text, {box.x, box.y}, type});
}

} // namespace zel
