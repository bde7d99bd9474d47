#pragma once
// Days and times of day as a user types them. What is not plainly one is none: nothing is guessed.

#include <QDate>
#include <QString>
#include <QTime>

namespace zel {

/// The day that was typed in the order of \p pattern ("dd/MM/yyyy"): its numbers with . / - or spaces between
/// them, or its eight digits; the year with four digits. An invalid one for anything else, and for a day that
/// there is not, as 31/02; also for points in an order that begins with the month, since who writes points
/// means the day first.
[[nodiscard]] QDate typedDay(const QString& text, const QString& pattern);

/// To the minute: "8:05", "08.05" or "0805", and with the words for morning or evening ("A", "AM" and those
/// of the language). An invalid one for anything else, and, where the clock has 12 hours, for a time without
/// these words that may be of either half of the day.
[[nodiscard]] QTime typedTimeOfDay(const QString& text, bool is12Hours);

} // namespace zel
