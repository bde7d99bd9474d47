#include "app/frame/CommentDays.h"

#include <QDate>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype yearDigits = 4, otherDigits = 2;

/// 'y', 'M' and 'd' as they follow each other.
QString letters(const QString& pattern) {
    QString order;
    for (const QChar letter : pattern)
        if (letter.isLetter() && !order.contains(letter)) order += letter;
    return order;
}

QStringList numbers(const QString& text, const QString& order) {
    static const QRegularExpression digitsOnly(u"^[0-9]{8}$"_s), between(u"[^0-9]+"_s);
    if (!digitsOnly.match(text).hasMatch()) return text.split(between);
    QStringList parts;
    qsizetype at = 0;
    for (const QChar letter : order) {
        parts += text.mid(at, letter == u'y' ? yearDigits : otherDigits);
        at += parts.back().size();
    }
    return parts;
}

} // namespace

QString commentDayText(const Date& date, const QString& pattern) {
    return isNilDate(date) ? QString() : DateToStr(date, pattern);
}

Date typedCommentDay(const QString& text, const QString& pattern) {
    const QString order = letters(pattern);
    const QStringList parts = numbers(text.trimmed(), order);
    if (parts.size() != order.size()) return {};
    QHash<QChar, int> number;
    for (qsizetype at = 0; at < parts.size(); ++at) {
        const bool isYear = order[at] == u'y';
        const qsizetype size = parts[at].size();
        if (isYear ? size != yearDigits : size == 0 || size > otherDigits) return {};
        number[order[at]] = parts[at].toInt();
    }
    const QDate day(number[u'y'], number[u'M'], number[u'd']);
    constexpr int firstYear = 1900; // one before is a slip of the finger
    if (!day.isValid() || day.year() < firstYear) return {};
    return StrToDate(day.toString(u"yyyyMMdd"_s), u"yyyyMMdd"_s);
}

bool isFarAhead(Instant day, Instant today) {
    constexpr int twoYears = 24;
    return greaterInDay(day, getDateMonthAgo(today, -twoYears));
}

} // namespace zel
