#include "chart/DateLabels.h"

#include "chart/ChartScale.h"
#include "store/Languages.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace zel {

namespace {

constexpr double dayIndent = 2;        ///< a day's number stands so far right of the day's beginning
constexpr double betweenNumbers = 0.5; ///< between the numbers of two days, which would read as one number

using Days = std::span<const AxisDay>;

/// The days on which something begins that \p same tells of two days: the first one, and each that differs
/// from the one before.
std::vector<AxisDay> beginnings(Days days, auto same) {
    std::vector<AxisDay> found;
    for (std::size_t i = 0; i < days.size(); ++i)
        if (i == 0 || !same(days[i].date, days[i - 1].date)) found.push_back(days[i]);
    return found;
}

QString yearText(const AxisDay& day) {
    return QString::number(static_cast<int>(day.date.year())).rightJustified(4, u'0');
}

/// Looked up once for each month of the year: a chart may show hundreds of months.
class MonthNames {
public:
    MonthNames() {
        const QLocale locale = textLocale();
        for (std::size_t month = 0; month < names.size(); ++month)
            names[month] = locale.standaloneMonthName(static_cast<int>(month) + 1);
    }
    [[nodiscard]] const QString& of(const AxisDay& day) const {
        return names[static_cast<unsigned>(day.date.month()) - 1];
    }

private:
    std::array<QString, 12> names;
};

void addMonths(std::vector<DateLabel>& labels, Days days, const LabelRoom& room, const TextWidth& width,
               double above, auto name) {
    const auto months = beginnings(days, [](const auto& a, const auto& b) { return a.month() == b.month(); });
    for (std::size_t i = 0; i < months.size(); ++i) {
        const QString text = name(months[i]);
        const double x = std::max(months[i].x, room.left);
        const double end = i + 1 < months.size() ? months[i + 1].x : room.right;
        if (x + width(text, true) <= end) labels.push_back({text, x, above, true});
    }
}

/// From the right, as the later ones tell more.
void addYears(std::vector<DateLabel>& labels, Days days, const LabelRoom& room, const TextWidth& width) {
    auto years = beginnings(days, [](const auto& a, const auto& b) { return a.year() == b.year(); });
    std::ranges::reverse(years);
    double end = room.right;
    for (const AxisDay& year : years) {
        const QString text = yearText(year);
        const double x = std::max(year.x, room.left);
        if (x + width(text, true) > end) continue;
        labels.push_back({text, x, 0, true});
        end = x;
    }
}

DateLabel dayNumber(const AxisDay& day, const LabelRoom& room) {
    const std::chrono::weekday name{std::chrono::sys_days{day.date}};
    return {QString::number(static_cast<unsigned>(day.date.day())), std::max(day.x + dayIndent, room.left),
            dateHeight - 1, name == std::chrono::Saturday || name == std::chrono::Sunday};
}

/// Every which day has room for its number.
std::size_t labelStep(std::span<const DateLabel> numbers, std::span<const double> ends) {
    const auto fits = [&](std::size_t step) {
        for (std::size_t i = step; i < numbers.size(); i += step)
            if (ends[i - step] + betweenNumbers > numbers[i].x) return false;
        return true;
    };
    std::size_t step = 1;
    while (step < numbers.size() && !fits(step))
        ++step;
    return step;
}

void addNumbers(std::vector<DateLabel>& labels, Days days, const LabelRoom& room, const TextWidth& width) {
    std::vector<DateLabel> numbers;
    std::vector<double> ends;
    for (const AxisDay& day : days) {
        numbers.push_back(dayNumber(day, room));
        ends.push_back(numbers.back().x + width(numbers.back().text, numbers.back().bold));
    }
    const std::size_t step = labelStep(numbers, ends);
    for (std::size_t i = 0; i < numbers.size(); i += step) {
        // The last one may do without its indent.
        const double over = std::max(0.0, ends[i] - room.right);
        const double least = std::max(days[i].x, i == 0 ? room.left : ends[i - step] + betweenNumbers);
        if (numbers[i].x - over < least) continue;
        numbers[i].x -= over;
        labels.push_back(numbers[i]);
    }
}

} // namespace

std::vector<DateLabel> dayLabels(Days days, const LabelRoom& room, const TextWidth& width) {
    std::vector<DateLabel> labels;
    addNumbers(labels, days, room, width);
    addMonths(labels, days, room, width, 0, [names = MonthNames()](const AxisDay& month) {
        return qtTrId("monthOfYear").arg(names.of(month), yearText(month));
    });
    return labels;
}

std::vector<DateLabel> monthLabels(Days days, const LabelRoom& room, const TextWidth& width) {
    std::vector<DateLabel> labels;
    addYears(labels, days, room, width);
    addMonths(labels, days, room, width, dateHeight,
              [names = MonthNames()](const AxisDay& month) { return names.of(month); });
    return labels;
}

} // namespace zel
