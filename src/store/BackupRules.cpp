#include "store/BackupRules.h"

#include <QDate>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <functional>
#include <set>
#include <tuple>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t daysKept = 14;
constexpr std::size_t monthsKept = 24;

const QDate firstDay{1970, 1, 1};

/// Months since year 0, so that they can be told apart and subtracted.
int monthOf(DayNumber day) {
    const QDate date = firstDay.addDays(day);
    return date.year() * 12 + date.month();
}

QString endingOf(BackupKind kind) {
    if (kind == BackupKind::replaced) return u"-replaced"_s;
    if (kind == BackupKind::damaged) return u"-damaged"_s;
    return {};
}

BackupKind kindOf(const QRegularExpressionMatch& name) {
    if (name.capturedLength(2) == 0) return BackupKind::daily;
    if (name.captured(3) == endingOf(BackupKind::replaced)) return BackupKind::replaced;
    return name.capturedLength(3) > 0 ? BackupKind::damaged : BackupKind::made;
}

} // namespace

QString backupName(BackupKind kind, Instant now) {
    const QString pattern = kind == BackupKind::daily ? u"yyyy-MM-dd"_s : u"yyyy-MM-dd-HHmmss"_s;
    return u"ZEL-"_s + DateToStr(now, pattern) + endingOf(kind) + u".xml"_s;
}

std::optional<Backup> backupOfName(const QString& name) {
    static const QRegularExpression form(
        u"^ZEL-(\\d{4}-\\d{2}-\\d{2})(?:(-\\d{6})(-replaced|-damaged)?)?\\.xml$"_s);
    const QRegularExpressionMatch match = form.match(name);
    const QDate date = QDate::fromString(match.captured(1), Qt::ISODate);
    if (!match.hasMatch() || !date.isValid()) return std::nullopt;
    return Backup{name, kindOf(match), static_cast<DayNumber>(firstDay.daysTo(date))};
}

void sortNewestFirst(std::vector<Backup>& copies) {
    std::ranges::sort(copies, std::greater{}, [](const Backup& copy) {
        return std::tuple{copy.day, copy.kind != BackupKind::daily, copy.name};
    });
}

std::vector<Backup> superfluousBackups(std::vector<Backup> copies, qint64 room) {
    std::erase_if(copies, [](const Backup& copy) { return copy.kind != BackupKind::daily; });
    sortNewestFirst(copies);
    std::set<int> months;
    std::size_t days = 0;
    bool isFull = false;
    std::erase_if(copies, [&](const Backup& copy) {
        const bool isRecent = days < daysKept;
        const bool isNewestOfMonth = months.insert(monthOf(copy.day)).second;
        const bool isDue = isRecent || (isNewestOfMonth && months.size() <= monthsKept);
        isFull = isFull || copy.size > room;
        const bool isKept = days == 0 || (isDue && !isFull);
        if (isKept) room -= copy.size;
        ++days;
        return isKept;
    });
    return copies;
}

} // namespace zel
