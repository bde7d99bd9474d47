#include "report/FieldText.h"

#include <QFontMetricsF>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// More than any field of a page has room for.
constexpr qsizetype mostCharacters = 1000;
constexpr int smallestFigure = 6;

/// What a field can show at most, with a blank for each line end, tab and other control character.
QString oneLine(const QString& text) {
    QString line = text.left(mostCharacters);
    std::ranges::replace_if(
        line, [](QChar c) { return c.category() == QChar::Other_Control; }, u' ');
    return line;
}

QString paragraphText(const QString& text, int mostLines) {
    QString shown = text.left(mostCharacters * mostLines);
    shown.remove(u'\r');
    std::ranges::replace(shown, u'\t', u' ');
    return shown;
}

} // namespace

double lineHeight(const TextAttribute& attribute) { return textSize(u"2013"_s, attribute).height; }

QString elided(const QString& text, double width, const TextAttribute& attribute) {
    QString line = oneLine(text);
    if (line.size() == text.size() && textSize(line, attribute).width <= width) return line;
    // A character more than fits makes sure that the ellipsis comes where the text was cut before.
    return QFontMetricsF(attribute.font()).elidedText(line + u'\u2026', Qt::ElideRight, width);
}

void fieldText(Picture& picture, const QString& text, Point at, double width, const TextAttribute& attribute,
               XPos x) {
    if (!text.isEmpty()) textOut(picture, elided(text, width, attribute), at, attribute, x);
}

void fieldFigure(Picture& picture, const QString& text, Point at, double width, TextAttribute attribute,
                 XPos x) {
    double own = textSize(text, attribute).width;
    while (own > width && attribute.size > smallestFigure) {
        --attribute.size;
        own = textSize(text, attribute).width;
    }
    if (own > width) return fieldText(picture, text, at, width, attribute, x);
    // Measured once: there are many of them.
    if (x == XPos::right) at.x -= own;
    picture.emplace_back(TextLine{text, at, attribute});
}

void fieldParagraph(Picture& picture, const QString& text, Point at, double width,
                    const TextAttribute& attribute, int mostLines) {
    const QString shown = paragraphText(text, mostLines);
    const double height = lineHeight(attribute);
    qsizetype from = 0;
    for (int line = 1; line <= mostLines; ++line) {
        const int length = getLineIndex(shown, static_cast<int>(from), width, attribute);
        if (length < 1) return;
        const bool goesOn = line == mostLines && from + length < shown.size();
        QString words = shown.mid(from, length);
        if (words.endsWith(u'\n')) words.chop(1);
        if (goesOn) words = elided(words + u'\u2026', width, attribute);
        textOut(picture, words, {at.x, at.y - height * (line - 1)}, attribute, XPos::left, YPos::top);
        from += length;
    }
}

} // namespace zel
