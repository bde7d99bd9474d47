#include "report/FieldText.h"

#include <QFontMetricsF>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// More than any field of a page has room for.
constexpr qsizetype mostCharacters = 1000;

/// What a field can show at most, with a blank for each line end, tab and other control character.
QString oneLine(const QString& text) {
    QString line = text.left(mostCharacters);
    std::ranges::replace_if(
        line, [](QChar c) { return c.category() == QChar::Other_Control; }, u' ');
    return line;
}

/// A space with an accent of its own is written.
bool isBreakingBlank(const QString& text, qsizetype index) {
    return index < text.size() && text[index] == u' '
           && (index + 1 == text.size() || !text[index + 1].isMark());
}

QStringView withoutBlanksAtEnd(QStringView line) {
    while (line.endsWith(u' '))
        line.chop(1);
    return line;
}

/// Where the line after one that was broken for its width begins.
qsizetype afterBreak(const QString& text, qsizetype index) {
    while (isBreakingBlank(text, index))
        ++index;
    return index < text.size() && text[index] == u'\n' ? index + 1 : index;
}

} // namespace

double lineHeight(const TextAttribute& attribute) { return textSize(u"2013"_s, attribute).height; }

QString elided(const QString& text, double width, const TextAttribute& attribute) {
    if (isWhole(text, width, attribute)) return oneLine(text);
    // A character more than fits makes sure that the ellipsis comes where the text was cut before.
    return QFontMetricsF(attribute.font()).elidedText(oneLine(text) + u'\u2026', Qt::ElideRight, width);
}

bool isWhole(const QString& text, double width, const TextAttribute& attribute) {
    return text.size() <= mostCharacters && textSize(oneLine(text), attribute).width <= width;
}

void fieldText(Picture& picture, const QString& text, Point at, double width, const TextAttribute& attribute,
               XPos x) {
    if (!text.isEmpty()) textOut(picture, elided(text, width, attribute), at, attribute, x);
}

void fieldFigure(Picture& picture, const QString& text, Point at, double width, TextAttribute attribute,
                 XPos x, int smallest, TextWidths* widths) {
    const auto measured = [&] { return widthOf(text, attribute, widths); };
    double own = measured();
    while (own > width && attribute.size > smallest) {
        --attribute.size;
        own = measured();
    }
    if (own > width) return fieldText(picture, text, at, width, attribute, x);
    // Measured once: there are many of them.
    if (x == XPos::right) at.x -= own;
    picture.emplace_back(TextLine{text, at, attribute});
}

QStringList wrapped(const QString& text, double width, const TextAttribute& attribute, qsizetype mostLines) {
    QString shown = text;
    shown.remove(u'\r');
    std::ranges::replace(shown, u'\t', u' ');
    QStringList lines;
    for (qsizetype from = 0; from < shown.size() && lines.size() < mostLines;) {
        const qsizetype end =
            from + std::max(1, getLineIndex(shown, static_cast<int>(from), width, attribute));
        const bool isEnded = shown[end - 1] == u'\n';
        const QStringView line = QStringView(shown).sliced(from, end - from - (isEnded ? 1 : 0));
        from = isEnded ? end : afterBreak(shown, end);
        lines += (isEnded || from >= shown.size() ? line : withoutBlanksAtEnd(line)).toString();
    }
    return lines;
}

QString printable(const QString& text) {
    if (text.size() <= longestPrinted) return text;
    const auto end = longestPrinted - (text[longestPrinted - 1].isHighSurrogate() ? 1 : 0);
    return text.left(end) + u'\n' + qtTrId("reportTextTooLong").arg(text.size() - end);
}

void fieldParagraph(Picture& picture, const QString& text, Point at, double width,
                    const TextAttribute& attribute, int mostLines) {
    QStringList lines = wrapped(text.left(mostCharacters * mostLines), width, attribute, mostLines + 1);
    if (lines.size() > mostLines) {
        lines.removeLast();
        lines.last() = elided(lines.last() + u'\u2026', width, attribute);
    }
    const double height = lineHeight(attribute);
    for (const QString& line : std::as_const(lines)) {
        textOut(picture, line, at, attribute, XPos::left, YPos::top);
        at.y -= height;
    }
}

} // namespace zel
