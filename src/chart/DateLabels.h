#pragma once
// Which days, months and years the strips below a plot name, and where: numbers in, numbers out.

#include <QString>

#include <chrono>
#include <functional>
#include <span>
#include <vector>

namespace zel {

/// A day of the time axis, and where it begins.
struct AxisDay {
    std::chrono::year_month_day date;
    double x = 0;
};

/// A text of the strips.
struct DateLabel {
    QString text;
    double x = 0;     ///< its left edge
    double above = 0; ///< its lower edge, from the bottom of the strips
    bool bold = false;
};

/// What the texts have to keep within, from left to right.
struct LabelRoom {
    double left = 0;
    double right = 0;
};

/// The width of a text in that type.
using TextWidth = std::function<double(const QString& text, bool bold)>;

/// Every day that \p days holds, with month and year where they begin; days are left out evenly where their
/// numbers would touch. Of months, those that have room for their name until the next begins.
[[nodiscard]] std::vector<DateLabel> dayLabels(std::span<const AxisDay> days, const LabelRoom& room,
                                               const TextWidth& width);
/// Months, each that has room for its name until the next begins, and below them as many years as have room.
[[nodiscard]] std::vector<DateLabel> monthLabels(std::span<const AxisDay> days, const LabelRoom& room,
                                                 const TextWidth& width);

} // namespace zel
