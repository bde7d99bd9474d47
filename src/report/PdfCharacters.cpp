#include "report/PdfCharacters.h"

#include <QRegularExpression>
#include <QString>

#include <string_view>

namespace zel {

namespace {

/// The characters that look as the radicals from U+2E80 on do, in their order (Unicode's
/// Equivalent_Unified_Ideograph); a radical that has none of four digits stands for itself.
constexpr char16_t firstRadical = 0x2E80, lastRadical = 0x2FDF;
constexpr std::u16string_view sameAsRadical =
    u"⺀厂乛乚乙亻冂⺇刀刂卜㔾小小兀尣尢⺑巳幺彑彐忄心扌攵⺚旡日"
    u"月歺母民氵氺灬爫爫丬牛犭王⺪目示礻⺮糹纟罓罒㓁冗⺵羊⺷⺸耂"
    u"肀聿肉⺽艹艹艹虎衤覀西见角⻇讠贝⻊车辶辶辶邑钅長镸长门⻕阝"
    u"雨青韦页风飞食⻞飠饣⻡马骨鬼鱼鸟卤麦黄黾斉齐歯齿竜龙龜亀龟";

/// The character that people write where \p unit is only one of those that look the same.
char16_t written(char16_t unit) {
    if (unit == u'\t') return u' ';
    if (unit < firstRadical || unit > lastRadical) return unit;
    const std::size_t place = unit - firstRadical;
    if (place < sameAsRadical.size()) return sameAsRadical[place];
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
        QStringLiteral("<([0-9A-F]{4})> <([0-9A-F]{4})> (?:\\[((?:<[0-9A-F]{4}> )+)\\]|<([0-9A-F]{4})>)"),
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
