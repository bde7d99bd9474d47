#include "chart/DateLabels.h"

#include "chart/ChartScale.h"
#include "chart/Drawing.h"
#include "chart/TimeAxis.h"

#include <QLocale>

#include <gmock/gmock.h>

#include <map>

namespace zel {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono;

double measure(const QString& text, bool bold) {
    static std::map<std::pair<QString, bool>, double> widths; // of the same words in all periods
    const auto [width, isNew] = widths.try_emplace({text, bold});
    if (isNew) width->second = textSize(text, attribute(bold ? 2 : 1)).width;
    return width->second;
}

/// A period's strips: its days, where they begin, and what is written there.
struct Strips {
    int dayTotal;
    LabelRoom room;
    std::vector<AxisDay> days;
    std::vector<DateLabel> labels;

    Strips(year_month_day first, int total, double width, double gap)
        : dayTotal(total), room{29 + gap, 29 + width - 0.25} {
        for (int day = 0; day < total; day += gridStep(total - 1))
            days.push_back({year_month_day{sys_days{first} + std::chrono::days{day}}, xOf(day, width)});
        labels = (isShort() ? dayLabels : monthLabels)(days, room, measure);
    }
    [[nodiscard]] bool isShort() const { return isShortPeriod(dayTotal - 1); }
    [[nodiscard]] double xOf(int day, double width) const { return 29 + day * width / dayTotal; }
    [[nodiscard]] QStringList row(double above) const {
        QStringList texts;
        for (const DateLabel& label : labels)
            if (label.above == above) texts += label.text;
        return texts;
    }
};

/// Empty where each text lies in the room, and beside the others of its row.
QString overprinted(const Strips& strips) {
    std::map<double, std::map<double, const DateLabel*>> rows;
    for (const DateLabel& label : strips.labels)
        rows[label.above][label.x] = &label;
    std::size_t total = 0;
    for (const auto& [above, row] : rows) {
        double end = strips.room.left;
        for (const auto& [x, label] : row) {
            if (x < end) return label->text;
            end = x + measure(label->text, label->bold);
        }
        if (end > strips.room.right) return u"the last one"_s;
        total += row.size();
    }
    return total == strips.labels.size() ? QString() : u"two begin at one place"_s;
}

/// Names of months that have room, and are missing.
QString missingMonths(const Strips& strips) {
    const auto isWritten = [&](const QString& text, double x) {
        return std::ranges::any_of(
            strips.labels, [&](const DateLabel& label) { return label.text == text && label.x == x; });
    };
    QStringList missing;
    for (std::size_t from = 0, until = 0; from < strips.days.size(); from = until) {
        const year_month_day date = strips.days[from].date;
        while (until < strips.days.size() && strips.days[until].date.month() == date.month())
            ++until;
        QString name = QLocale::c().standaloneMonthName(static_cast<int>(unsigned(date.month())));
        if (strips.isShort()) name += u' ' + QString::number(int(date.year()));
        double end = strips.room.right;
        if (until < strips.days.size()) end = std::min(end, strips.days[until].x);
        const double begin = std::max(strips.days[from].x, strips.room.left);
        if (measure(name, true) + 1e-6 < end - begin && !isWritten(name, begin)) missing += name;
    }
    return missing.join(u' ');
}

// On the screen, and across and along the smaller paper.
TEST(DateLabels, StandAloneAndWholeInEveryPeriodOfThreeYears) {
    ASSERT_LE(textSize(u"2019"_s, attribute(2)).height, dateHeight - 1) << "the rows stand apart";
    for (const auto& [width, gap] : {std::pair{1000.0, 0.0}, {667.0, 4.0}, {459.0, 4.0}})
        for (int first = 1; first <= 31; ++first)
            for (int total = 1; total <= 1096; ++total) {
                const Strips strips(year{2019} / August / first, total, width, gap);
                ASSERT_EQ(overprinted(strips), u""_s) << width << ", " << first << " August, " << total;
                ASSERT_EQ(missingMonths(strips), u""_s) << width << ", " << first << " August, " << total;
            }
}

TEST(DateLabels, NameDaysMonthsAndYearsWhereTheyBegin) {
    const struct {
        year_month_day first;
        int total;
        QStringList lower, upper;
    } cases[]{
        {2019y / March / 5, 1, {u"March 2019"_s}, {u"5"_s}},
        {2019y / December / 31, 2, {u"December 2019"_s, u"January 2020"_s}, {u"31"_s, u"1"_s}},
        {2019y / August / 19, 93, {u"2019"_s}, {u"August"_s, u"September"_s, u"October"_s, u"November"_s}},
        {2018y / December / 31, 60, {u"2019"_s}, {u"January"_s, u"February"_s}},
    };
    for (const auto& each : cases) {
        const Strips strips(each.first, each.total, 1000, 0);
        EXPECT_EQ(strips.row(0), each.lower) << each.total;
        EXPECT_EQ(strips.row(each.total < 48 ? dateHeight - 1 : dateHeight), each.upper) << each.total;
    }
    const Strips january(2019y / January / 29, 45, 1000, 0);
    EXPECT_EQ(january.row(0), (QStringList{u"February 2019"_s, u"March 2019"_s})) << "three days of January";
    EXPECT_EQ(january.row(dateHeight - 1).size(), 45);
    for (const DateLabel& label : january.labels) // Saturdays and Sundays, and names
        EXPECT_EQ(label.bold,
                  label.above == 0 || u" 2 3 9 10 16 17 23 24 "_s.contains(u' ' + label.text + u' '))
            << label.text.toStdString();
    const Strips tight(2019y / June / 1, 47, 643, 4);
    EXPECT_EQ(tight.row(dateHeight - 1).back(), u"17"_s) << "without its indent";
    const Strips narrow(2019y / January / 29, 45, 459, 0);
    EXPECT_EQ(narrow.row(dateHeight - 1).mid(0, 3), (QStringList{u"29"_s, u"31"_s, u"2"_s}));
}

} // namespace
} // namespace zel
