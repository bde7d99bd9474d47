#include "report/PdfCharacters.h"

#include <QRegularExpression>
#include <QString>

namespace zel {

namespace {

/// The character that people write where \p unit is only one of those that look the same.
char16_t written(char16_t unit) {
    constexpr char16_t firstRadical = 0x2E80, lastRadical = 0x2FDF;
    if (unit == u'\t') return u' ';
    if (unit < firstRadical || unit > lastRadical) return unit;
    const QString same = QString(QChar(unit)).normalized(QString::NormalizationForm_KC);
    return same.size() == 1 ? same.front().unicode() : unit;
}

void mend(QByteArray& pdf, qsizetype digitsAt) {
    constexpr qsizetype digits = 4;
    const auto unit = static_cast<char16_t>(pdf.mid(digitsAt, digits).toUShort(nullptr, 16));
    const QByteArray hex = QByteArray::number(written(unit), 16).rightJustified(digits, '0').toUpper();
    pdf.replace(digitsAt, digits, hex);
}

} // namespace

void mendCharacters(QByteArray& pdf) {
    // A character map's ranges: <first glyph> <last glyph> and a character for each, or one for a single
    // glyph.
    static const QRegularExpression range(
        QStringLiteral("<([0-9A-F]{4})> <([0-9A-F]{4})> (?:\\[((?:<[0-9A-F]{4}> ?)+)\\]|<([0-9A-F]{4})>)"),
        QRegularExpression::CaseInsensitiveOption);
    for (qsizetype begin = pdf.indexOf("beginbfrange\n"); begin >= 0;
         begin = pdf.indexOf("beginbfrange\n", begin + 1)) {
        const qsizetype end = pdf.indexOf("endbfrange", begin);
        if (end < 0) return;
        const QString map = QString::fromLatin1(pdf.mid(begin, end - begin));
        for (auto each = range.globalMatch(map); each.hasNext();) {
            const auto match = each.next();
            for (qsizetype at = match.capturedStart(3); at < match.capturedEnd(3); at += 7)
                mend(pdf, begin + at + 1);
            if (match.hasCaptured(4) && match.captured(1) == match.captured(2))
                mend(pdf, begin + match.capturedStart(4));
        }
    }
}

} // namespace zel
