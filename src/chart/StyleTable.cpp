#include "chart/StyleTable.h"

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int firstFixColor = 4;
constexpr std::array fixColors{
    QColor(8, 96, 168),       QColor(158, 183, 211),      QColor(173, 193, 216),      QColor(206, 219, 239),
    QColor(200, 220, 229),    QColor(216, 216, 216),      QColor(255, 255, 205),      QColor(127, 127, 127),
    QColor(12, 98, 170, 204), QColor(186, 149, 149, 204), QColor(255, 255, 255, 153), QColor(211, 211, 211)};

constexpr int firstTextAttribute = 1;
const std::array<TextAttribute, 8>& textAttributes() {
    static const std::array<TextAttribute, 8> table{{{11, false, Alignment::left},
                                                     {11, true, Alignment::left},
                                                     {11, false, Alignment::right},
                                                     {12, false, Alignment::centre, Qt::red},
                                                     {12, false, Alignment::left},
                                                     {12, false, Alignment::right},
                                                     {10, false, Alignment::right},
                                                     {12, true, Alignment::left}}};
    return table;
}

struct CommentColor {
    QColor color;
    QLatin1StringView deleteImage;
};
constexpr std::int64_t highestDegree = 4;
constexpr std::int64_t redIndex = 2;
constexpr std::array commentColors{
    CommentColor{QColor(255, 194, 0), "CDYellowDelA"_L1}, CommentColor{QColor(20, 88, 155), "CDBlueDelA"_L1},
    CommentColor{QColor(255, 120, 0), "CDRedDelA"_L1}, CommentColor{QColor(102, 102, 102), "CDBlackDelA"_L1}};

const CommentColor& commentColor(std::int64_t index) {
    const bool known = 0 <= index && index < std::ssize(commentColors);
    return commentColors[static_cast<std::size_t>(known ? index : redIndex)];
}

template <class Table>
auto entry(const Table& table, int index) {
    using Entry = std::optional<typename Table::value_type>;
    if (index < 0 || index >= static_cast<int>(table.size())) return Entry();
    return Entry(table[static_cast<std::size_t>(index)]);
}

} // namespace

QFont TextAttribute::font() const {
    QFont made(u"Arial"_s);
    made.setStyleHint(QFont::SansSerif);
    made.setPixelSize(size);
    made.setBold(bold);
    made.setHintingPreference(QFont::PreferNoHinting);
    return made;
}

std::optional<QColor> getFixColor(int index) { return entry(fixColors, index - firstFixColor); }

std::optional<TextAttribute> getTextAttribute(int index) {
    return entry(textAttributes(), index - firstTextAttribute);
}

TextAttribute attribute(int index) { return getTextAttribute(index).value_or(TextAttribute{}); }

QColor fixColor(int index) { return getFixColor(index).value_or(Qt::black); }

QColor getCommentColor(std::int64_t number, bool degreeIndex) {
    return commentColor(degreeIndex ? highestDegree - number : number).color;
}

QString getCommentDeleteImage(std::int64_t degree) {
    return commentColor(highestDegree - degree).deleteImage;
}

} // namespace zel
