#include "chart/Drawing.h"

#include <QFontMetricsF>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <vector>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar lineFeed(u'\n');

/// A space with an accent of its own is no place to break.
bool isBlank(const QString& text, int index) {
    return text.at(index) == u' ' && (index + 1 == text.size() || !text.at(index + 1).isMark());
}

/// Where characters end, as people see them: a letter with its accents, both halves of a surrogate pair.
std::vector<qsizetype> characterEnds(QStringView text) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
    std::vector<qsizetype> ends;
    for (auto end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary())
        ends.push_back(end);
    return ends;
}

QStringView upToLineFeed(QStringView text) {
    const auto feed = text.indexOf(lineFeed);
    return feed < 0 ? text : text.first(feed);
}

/// The text's first line, or as much of it as is surely too wide: the cost grows with the line, not with the
/// text, also where no line feed comes.
QStringView reachOf(QStringView text, double width, const QFontMetricsF& metrics) {
    constexpr qsizetype restOfCharacter = 32;
    for (qsizetype reach = 32; reach < text.size(); reach *= 2) {
        const QStringView part = upToLineFeed(text.first(reach));
        if (part.size() < reach) return part;
        if (metrics.horizontalAdvance(part.toString()) > width)
            return upToLineFeed(text.first(std::min(reach + restOfCharacter, text.size())));
    }
    return upToLineFeed(text);
}

/// Length of the longest beginning that is not wider.
qsizetype fittingLength(QStringView text, double width, const QFontMetricsF& metrics) {
    const auto fits = [&](qsizetype length) {
        return metrics.horizontalAdvance(text.first(length).toString()) <= width;
    };
    const auto ends = characterEnds(text);
    const auto tooWide = std::partition_point(ends.begin(), ends.end(), fits);
    return tooWide == ends.begin() ? 0 : *(tooWide - 1);
}

bool isIdeograph(QChar c) { return c.script() == QChar::Script_Han; }

/// Ideographs stand without blanks; only what closes or ends something stays with what it stands behind.
bool isBetweenIdeographs(const QString& text, int at) {
    const QChar before = text[at], next = text[at + 1];
    const bool staysBefore =
        next.category() == QChar::Punctuation_Close || u"、。，．：；！？％"_s.contains(next);
    const bool staysBehind = before.category() == QChar::Punctuation_Open;
    const bool endsSentence = u"、。，：；）」"_s.contains(before);
    return (isIdeograph(before) || isIdeograph(next) || endsSentence) && !staysBefore && !staysBehind;
}

} // namespace

Size textSize(const QString& text, const TextAttribute& attribute) {
    const QFontMetricsF metrics(attribute.font());
    return {metrics.horizontalAdvance(text), metrics.height()};
}

void textOut(Picture& picture, const QString& text, Point at, const TextAttribute& attribute, XPos x,
             YPos y) {
    // Where it begins at the place, nobody needs to know how large it is.
    if (x == XPos::left && y == YPos::bottom) {
        picture.emplace_back(TextLine{text, at, attribute});
        return;
    }
    const Size size = textSize(text, attribute);
    if (x == XPos::centre) at.x -= size.width / 2;
    if (x == XPos::right) at.x -= size.width;
    if (y == YPos::centre) at.y -= size.height / 2;
    if (y == YPos::top) at.y -= size.height;
    picture.emplace_back(TextLine{text, at, attribute});
}

int getLineIndex(const QString& text, int from, double width, const TextAttribute& attribute) {
    if (from >= text.size()) return -1;
    const QFontMetricsF metrics(attribute.font());
    const QStringView line = reachOf(QStringView(text).sliced(from), width, metrics);
    const auto fitting = fittingLength(line, width, metrics);
    const auto end = from + line.size();
    const bool hasFeed = end < text.size() && text[end] == lineFeed;
    if (fitting == line.size() && (hasFeed || end == text.size()))
        return static_cast<int>(fitting) + (hasFeed ? 1 : 0);

    const int last = from + static_cast<int>(fitting) - 1;
    const int broken = adjustWordBreak(text, from, last);
    return (broken < 0 ? last : broken) - from + 1;
}

int adjustWordBreak(const QString& text, int from, int to) {
    if (to < from) return -1;
    if (to + 1 >= text.size() || isBlank(text, to + 1)) return to;
    while (to >= from && !isBlank(text, to) && !isBetweenIdeographs(text, to))
        --to;
    return to < from ? -1 : to;
}

} // namespace zel
