#include "store/TypedTime.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <optional>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype yearDigits = 4, otherDigits = 2;
constexpr int hoursOfDial = 12;

/// 'y', 'M' and 'd' as they follow each other.
QString letters(const QString& pattern) {
    QString order;
    for (const QChar letter : pattern)
        if (letter.isLetter() && !order.contains(letter)) order += letter;
    return order;
}

QStringList numbers(const QString& text, const QString& order) {
    static const QRegularExpression digitsOnly(u"^[0-9]{8}$"_s), between(u"[\\s./-]+"_s);
    if (!digitsOnly.match(text).hasMatch()) return text.split(between);
    QStringList parts;
    parts.reserve(order.size());
    qsizetype at = 0;
    for (const QChar letter : order) {
        parts += text.mid(at, letter == u'y' ? yearDigits : otherDigits);
        at += parts.back().size();
    }
    return parts;
}

bool isNumber(const QString& part, bool isYear) {
    static const QRegularExpression digits(u"^[0-9]+$"_s);
    if (!digits.match(part).hasMatch()) return false;
    return isYear ? part.size() == yearDigits : part.size() <= otherDigits;
}

enum class Half { none, morning, evening, unknown };

/// Of the words before or behind a time.
Half halfIn(const QString& words) {
    const auto plain = [](QString text) { return text.remove(u'.').simplified().toLower(); };
    const QString typed = plain(words);
    if (typed.isEmpty()) return Half::none;
    const QString morning = plain(qtTrId("%1 A").arg(QString()));
    const QString evening = plain(qtTrId("%1 P").arg(QString()));
    if (QStringList{u"a"_s, u"am"_s, morning}.contains(typed)) return Half::morning;
    if (QStringList{u"p"_s, u"pm"_s, evening}.contains(typed)) return Half::evening;
    return Half::unknown;
}

/// 0 to 23, or -1.
int hourOfDay(int typed, Half half, bool is12Hours) {
    const bool isOnDial = 1 <= typed && typed <= hoursOfDial;
    if (half == Half::none) return is12Hours && isOnDial ? -1 : typed;
    if (half == Half::unknown || !isOnDial) return -1;
    return typed % hoursOfDial + (half == Half::evening ? hoursOfDial : 0);
}

} // namespace

QDate typedDay(const QString& text, const QString& pattern) {
    const QString order = letters(pattern);
    if (order.startsWith(u'M') && text.contains(u'.')) return {};
    const QStringList parts = numbers(text.trimmed(), order);
    if (parts.size() != order.size()) return {};
    QHash<QChar, int> number;
    for (qsizetype at = 0; at < parts.size(); ++at) {
        if (!isNumber(parts[at], order[at] == u'y')) return {};
        number[order[at]] = parts[at].toInt();
    }
    return {number[u'y'], number[u'M'], number[u'd']};
}

QTime typedTimeOfDay(const QString& text, bool is12Hours) {
    static const QRegularExpression form(
        u"^([^0-9]*?)\\s*(?:([0-9]{1,2})\\s*[:.]\\s*([0-9]{2})|([0-9]{2})([0-9]{2}))\\s*([^0-9]*)$"_s);
    const QRegularExpressionMatch found = form.match(text.trimmed());
    if (!found.hasMatch()) return {};
    const auto number = [&found](int parted, int joined) {
        return (found.hasCaptured(parted) ? found.captured(parted) : found.captured(joined)).toInt();
    };
    const QString before = found.captured(1), behind = found.captured(6);
    const Half half = !before.isEmpty() && !behind.isEmpty() ? Half::unknown : halfIn(before + behind);
    const int hour = hourOfDay(number(2, 4), half, is12Hours);
    const int minute = number(3, 5);
    return QTime::isValid(hour, minute, 0) ? QTime(hour, minute) : QTime();
}

} // namespace zel
