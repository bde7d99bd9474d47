#include "app/frame/TypedCommentDay.h"

#include "store/TypedTime.h"

namespace zel {

using namespace Qt::StringLiterals;

QString commentDayText(const Date& date, const QString& pattern) {
    return isNilDate(date) ? QString() : DateToStr(date, pattern);
}

Date typedCommentDay(const QString& text, const QString& pattern) {
    const QDate day = typedDay(text, pattern);
    constexpr int firstYear = 1900; // one before is a slip of the finger
    if (!day.isValid() || day.year() < firstYear) return {};
    return StrToDate(day.toString(u"yyyyMMdd"_s), u"yyyyMMdd"_s);
}

bool isFarAhead(Instant day, Instant today) {
    constexpr int twoYears = 24;
    return greaterInDay(day, getDateMonthAgo(today, -twoYears));
}

} // namespace zel
