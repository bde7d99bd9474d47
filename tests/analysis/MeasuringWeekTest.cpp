#include "analysis/MeasuringWeek.h"

#include "analysis/Sample.h"

#include <gtest/gtest.h>

#include <ranges>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

/// SYS/DIA/pulse, "xN" for N of the one before; "mornings, evenings", days between bars; "-" for no reading.
void addHalfDay(ReadingList& readings, const QString& day, const char* hour, const QString& values) {
    int count = 0;
    const auto add = [&](const QStringList& pressures) {
        const QString date = day + QLatin1String(hour) + u":%1"_s.arg(count++, 2, 10, QLatin1Char{'0'});
        ReadingModel& reading = readings.emplace_back(readingAt(qPrintable(date)));
        reading.sys = pressures[0].toUInt();
        reading.dia = pressures[1].toUInt();
        reading.pulse = pressures[2].toUInt();
    };
    QStringList last;
    for (const QString& word : values.split(u' ', Qt::SkipEmptyParts)) {
        const int more = word.startsWith(u'x') ? word.mid(1).toInt() - 1 : 1;
        if (!word.startsWith(u'x')) last = word.split(u'/');
        for (int i = 0; i < more; ++i)
            add(last);
    }
}

/// Up to 14 March 2026.
ReadingList readingsOf(const char* days) {
    ReadingList readings;
    const QStringList texts = QString::fromLatin1(days).split(u'|');
    for (int i = 0; i < texts.size(); ++i) {
        const QString day = u"2026-03-%1 "_s.arg(15 - texts.size() + i, 2, 10, QLatin1Char{'0'});
        if (texts[i].trimmed() == "-"_L1) continue;
        const QStringList halves = texts[i].split(u',');
        addHalfDay(readings, day, "07", halves[0]);
        addHalfDay(readings, day, "19", halves.value(1));
    }
    return readings;
}

constexpr DayNumber lastOfWeek = 20526; // 14 March 2026

QString pair(const PressureMeans& means) { return means.sys.withTenths() + u'/' + means.dia.withTenths(); }

std::string means(const MeasuringWeek& week) {
    if (week.readingsUsed() == 0) return "";
    QString text = pair(week.all) + u'/' + week.all.pulse.withTenths();
    text += u" (%1/%2/%3)"_s.arg(week.all.sys.rounded())
                .arg(week.all.dia.rounded())
                .arg(week.all.pulse.rounded());
    if (week.morning.count() > 0) text += u" am "_s + pair(week.morning);
    if (week.evening.count() > 0) text += u" pm "_s + pair(week.evening);
    return (week.reachesThreshold() ? text + u" reached"_s : text).toStdString();
}

std::string missing(const MeasuringWeek& week) {
    QStringList parts;
    const auto add = [&parts](const char* what, int count) {
        if (count > 0) parts += QLatin1String(what) + u' ' + QString::number(count);
    };
    add("days", week.missingDays);
    add("readings", week.missingReadings);
    add("mornings", week.missingMornings);
    add("evenings", week.missingEvenings);
    return parts.join(u", "_s).toStdString();
}

std::string counts(const MeasuringWeek& week) {
    return u"%1+%2 days, %3+%4"_s.arg(week.daysUsed)
        .arg(week.daysLeftOut)
        .arg(week.readingsUsed())
        .arg(week.readingsLeftOut)
        .toStdString();
}

struct WeekCase {
    AverageRule rule;
    const char* what;
    const char* days;
    const char* counts; ///< days and readings: used + left out
    const char* means;  ///< with tenths, (whole), of the mornings, of the evenings
    const char* missing;
};

const WeekCase weekCases[] = {
    {AverageRule::esh, "a full week; only the diastolic mean reaches",
     "200/120/99 | 136/86/70 x2, 132/84/66 x2 | 136/86/70 x2, 132/84/66 x2 | 136/86/70 x2, 132/84/66 x2 | "
     "136/86/70 x2, 132/84/66 x2 | 136/86/70 x2, 132/84/66 x2 | 136/86/70 x2, 132/84/66 x2",
     "6+1 days, 24+1", "134.0/85.0/68.0 (134/85/68) am 136.0/86.0 pm 132.0/84.0 reached", ""},
    {AverageRule::esh, "134.92 is shown as 135 and is below it",
     "- | - | - | 90/60/50 x4 | 135/84/70 x2, 135/84/70 x2 | 135/84/70 x2, 135/84/70 x2 | 135/84/70 x2, "
     "135/84/70 134/84/70",
     "3+1 days, 12+4", "134.9/84.0/70.0 (135/84/70) am 135.0/84.0 pm 134.8/84.0", ""},
    {AverageRule::esh, "quarters go up",
     "- | - | - | 90/60/50 | 133/80/61 x2, 133/81/61 x2 | 133/81/61 x2, 133/81/61 x2 | 133/81/61 x2, "
     "136/81/61 133/80/62",
     "3+1 days, 12+1", "133.3/80.8/61.1 (133/81/61) am 133.0/80.7 pm 133.5/80.8", ""},
    {AverageRule::esh, "one day short", "- | - | - | - | - | 130/80/60 x2, 120/70/50 | 140/90/70, 121/71/51",
     "1+1 days, 2+3", "130.5/80.5/60.5 (131/81/61) am 140.0/90.0 pm 121.0/71.0", "days 1, readings 10"},
    {AverageRule::esh, "the first day alone", "- | - | - | - | - | - | 180/110/90 x4, 180/110/90 x4",
     "0+1 days, 0+8", "", "days 2, readings 12"},
    {AverageRule::esh, "none", "- | - | - | - | - | - | -", "0+0 days, 0+0", "", "days 3, readings 12"},
    {AverageRule::esh, "three days suffice",
     "- | - | - | - | 160/100/80 x2, 160/100/80 x2 | 120/70/60 x3, 110/60/50 x3 | 118/68/58 x3, 108/58/48 x3",
     "2+1 days, 12+4", "114.0/64.0/54.0 (114/64/54) am 119.0/69.0 pm 109.0/59.0", ""},
    {AverageRule::esh, "gaps; mornings prevail",
     "- | 150/95/80 x2, 150/95/80 x2 | - | 125/75/65 x6 | - | 129/79/69 x6, 127/77/67 x3 | -",
     "2+1 days, 15+4", "127.0/77.0/67.0 (127/77/67) am 127.0/77.0 pm 127.0/77.0", ""},
    {AverageRule::esh, "what is before the week is none of it",
     "200/130/100 x4 | 180/110/90 x4 | 120/80/70 x2, 122/78/70 x2 | 120/80/70 x2, 122/78/70 x2 | 120/80/70 "
     "x2, 122/78/70 x2 | - | - | -",
     "3+1 days, 12+4", "121.0/79.0/70.0 (121/79/70) am 120.0/80.0 pm 122.0/78.0", ""},
    {AverageRule::esh, "exactly 135.0 is reached",
     "- | - | - | 99/59/49 | 140/70/60 x4 | , 129/84/66 x4 | 137/70/60 x2, 135/70/60 x2", "3+1 days, 12+1",
     "135.0/74.7/62.0 (135/75/62) am 139.0/70.0 pm 131.0/79.3 reached", ""},
    {AverageRule::esh, "one reading short", "- | - | - | - | 100/60/50 | 131/81/71 x6 | 133/83/73 x5",
     "2+1 days, 11+1", "131.9/81.9/71.9 (132/82/72) am 131.9/81.9", "readings 1"},
    {AverageRule::esh, "values at the ends; what is no pressure counts nowhere",
     "- | - | - | 0/0/0 4294967295/80/60 | 1/1/1 | 1/1/1 x6, 0/80/60 120/0/60 1000/80/60 | 999/999/0 x3 "
     "999/999/1 x3",
     "2+1 days, 12+1", "500.0/500.0/1.0 (500/500/1) am 500.0/500.0 reached", ""},
    {AverageRule::nice, "a full week",
     "200/120/99 | 136/86/70 x2, 132/84/66 x2 | 136/86/70 x2, 132/84/66 x2 | 136/86/70 x2, 132/84/66 x2 | "
     "136/86/70 x2, 132/84/66 x2 | 136/86/70 x2, 132/84/66 x2 | 136/86/70 x2, 132/84/66 x2",
     "6+1 days, 24+1", "134.0/85.0/68.0 (134/85/68) am 136.0/86.0 pm 132.0/84.0 reached", ""},
    {AverageRule::nice, "four days suffice",
     "- | - | - | 150/90/70 x2, 150/90/70 x2 | 130/80/60 x2, 120/78/58 x2 | 131/81/61 x2, 121/79/59 x2 | "
     "132/82/62 x2, 122/77/57 x2",
     "3+1 days, 12+4", "126.0/79.5/59.5 (126/80/60) am 131.0/81.0 pm 121.0/78.0", ""},
    {AverageRule::nice, "three do not",
     "- | - | - | - | 150/90/70 x2 | 130/80/60 x2, 120/78/58 x2 | 131/81/61 x2, 121/79/59 x2",
     "2+1 days, 8+2", "125.5/79.5/59.5 (126/80/60) am 130.5/80.5 pm 120.5/78.5", "days 1"},
    {AverageRule::nice, "a day and an evening short",
     "- | - | - | - | 150/90/70 | 130/80/60 x2, 120/78/58 x2 | 131/81/61 x2, 121/79/59", "2+1 days, 7+1",
     "126.1/79.6/59.6 (126/80/60) am 130.5/80.5 pm 120.3/78.3", "days 1, evenings 1"},
    {AverageRule::nice, "two evenings short",
     "- | - | - | 150/90/70 | 138/80/60 x2, 134/78/58 x2 | 138/81/61 x2, 134/79/59 | 138/82/62 x2, 134/77/57",
     "3+1 days, 10+1", "136.4/79.8/59.8 (136/80/60) am 138.0/81.0 pm 134.0/78.0 reached", "evenings 2"},
    {AverageRule::nice, "three mornings short",
     "- | - | - | 150/90/70 | 138/80/60 x2, 134/78/58 x2 | , 134/79/59 x2 | 138/82/62, 134/77/57 x2",
     "3+1 days, 9+1", "135.3/78.9/58.9 (135/79/59) am 138.0/80.7 pm 134.0/78.0 reached", "mornings 3"},
    {AverageRule::nice, "more of one half are none of the other",
     "150/90/70 | 130/80/60 x3, 120/70/50 | - | 130/80/60 x4 | - | 128/78/58 x2, 126/76/56 x2 | 124/74/54 "
     "x2, 122/72/52 x2",
     "4+1 days, 16+1", "126.9/76.9/56.9 (127/77/57) am 128.5/78.5 pm 123.2/73.2", "evenings 3"},
    {AverageRule::nice, "the first day alone", "- | - | - | - | - | - | 160/100/80 x2, 160/100/80 x2",
     "0+1 days, 0+4", "", "days 3"},
    {AverageRule::nice, "none", "- | - | - | - | - | - | -", "0+0 days, 0+0", "", "days 4"},
    {AverageRule::nice, "the week's first day is left out, the day before is none of it",
     "150/90/70 x2 | 150/90/70 x2, 150/90/70 x2 | 130/80/60 x2, 120/70/50 x2 | - | - | 130/80/60 x2, "
     "120/70/50 x2 | - | 133/83/63 x2, 124/74/54 x2",
     "3+1 days, 12+4", "126.2/76.2/56.2 (126/76/56) am 131.0/81.0 pm 121.3/71.3", ""},
    {AverageRule::nice, "at the systolic threshold",
     "- | - | - | 100/60/50 | 135/80/60 x2, 135/80/60 x2 | 135/80/60 x2, 135/80/60 x2 | 135/80/60 x2, "
     "135/80/60 x2",
     "3+1 days, 12+1", "135.0/80.0/60.0 (135/80/60) am 135.0/80.0 pm 135.0/80.0 reached", ""},
    {AverageRule::nice, "84.92 is below",
     "- | - | - | 100/60/50 | 130/85/60 x2, 130/85/60 x2 | 130/85/60 x2, 130/85/60 x2 | 130/85/60 x2, "
     "130/84/60 130/85/60",
     "3+1 days, 12+1", "130.0/84.9/60.0 (130/85/60) am 130.0/85.0 pm 130.0/84.8", ""},
    {AverageRule::nice, "an evening at the end",
     "110/70/60 | 111/71/61 x2, 112/72/62 x2 | 113/73/63 x2, 114/74/64 x2 | 115/75/65 x2, 116/76/66 x2 | "
     "117/77/67 x2, 118/78/68 x2 | 119/79/69 x2, 120/80/70 x2 | , 121/81/71",
     "6+1 days, 21+1", "115.8/75.8/65.8 (116/76/66) am 115.0/75.0 pm 116.5/76.5", "mornings 2, evenings 1"},
    {AverageRule::aha, "the first day counts",
     "200/120/99 | 136/86/70 x2, 132/84/66 x2 | 136/86/70 x2, 132/84/66 x2 | 136/86/70 x2, 132/84/66 x2 | "
     "136/86/70 x2, 132/84/66 x2 | 136/86/70 x2, 132/84/66 x2 | 136/86/70 x2, 132/84/66 x2",
     "7+0 days, 25+0", "136.6/86.4/69.2 (137/86/69) am 140.9/88.6 pm 132.0/84.0 reached", ""},
    {AverageRule::aha, "at the systolic threshold",
     "- | - | - | - | 130/79/60 x2, 130/79/60 x2 | 130/79/60 x2, 130/79/60 x2 | 130/79/60 x2, 130/79/60 x2",
     "3+0 days, 12+0", "130.0/79.0/60.0 (130/79/60) am 130.0/79.0 pm 130.0/79.0 reached", ""},
    {AverageRule::aha, "129.92 is below",
     "- | - | - | - | 130/79/60 x2, 130/79/60 x2 | 130/79/60 x2, 130/79/60 x2 | 130/79/60 x2, 130/79/60 "
     "129/79/60",
     "3+0 days, 12+0", "129.9/79.0/60.0 (130/79/60) am 130.0/79.0 pm 129.8/79.0", ""},
    {AverageRule::aha, "at the diastolic threshold",
     "- | - | - | - | 120/80/60 x2, 120/80/60 x2 | 120/80/60 x2, 120/80/60 x2 | 120/80/60 x2, 120/80/60 x2",
     "3+0 days, 12+0", "120.0/80.0/60.0 (120/80/60) am 120.0/80.0 pm 120.0/80.0 reached", ""},
    {AverageRule::aha, "79.92 is below",
     "- | - | - | - | 120/80/60 x2, 120/80/60 x2 | 120/80/60 x2, 120/80/60 x2 | 120/80/60 x2, 120/80/60 "
     "120/79/60",
     "3+0 days, 12+0", "120.0/79.9/60.0 (120/80/60) am 120.0/80.0 pm 120.0/79.8", ""},
    {AverageRule::aha, "a day short", "- | - | - | - | - | 128/78/58 x6 | , 126/76/56 x6", "2+0 days, 12+0",
     "127.0/77.0/57.0 (127/77/57) am 128.0/78.0 pm 126.0/76.0", "days 1"},
    {AverageRule::aha, "a reading short", "- | - | - | - | 121/71/61 x4 | 122/72/62 x4 | 123/73/63 x3",
     "3+0 days, 11+0", "121.9/71.9/61.9 (122/72/62) am 121.9/71.9", "readings 1"},
    {AverageRule::aha, "one", "- | - | - | - | - | - | 140/90/70", "1+0 days, 1+0",
     "140.0/90.0/70.0 (140/90/70) am 140.0/90.0 reached", "days 2, readings 11"},
    {AverageRule::aha, "none", "- | - | - | - | - | - | -", "0+0 days, 0+0", "", "days 3, readings 12"},
    {AverageRule::aha, "gaps",
     "119/69/59 | - | 121/71/61, 123/73/63 | - | 125/75/65 x4 | - | 127/77/67 x2, 128/78/68 x4",
     "4+0 days, 13+0", "125.3/75.3/65.3 (125/75/65) am 124.3/74.3 pm 127.0/77.0", ""},
    {AverageRule::aha, "the day before is none of it",
     "150/90/70 x4 | - | - | - | 120/70/60 x4 | - | 110/60/50 x4 | 100/59/49 x4", "3+0 days, 12+0",
     "110.0/63.0/53.0 (110/63/53) am 110.0/63.0", ""},
    {AverageRule::aha, "125.5 is 126",
     "- | - | - | - | 125/75/65 x3, 126/75/65 x3 | 125/75/65 x3, 126/75/65 x3 | 125/75/65 x4, 126/75/65 x4",
     "3+0 days, 20+0", "125.5/75.0/65.0 (126/75/65) am 125.0/75.0 pm 126.0/75.0", ""},
};

TEST(MeasuringWeek, IsAveragedAsTheRuleSays) {
    for (const WeekCase& c : weekCases) {
        SCOPED_TRACE(std::string(factsOf(c.rule).key) + ": " + c.what);
        ReadingList readings = readingsOf(c.days);
        for (const bool isReversed : {false, true}) {
            if (isReversed) std::ranges::reverse(readings);
            const MeasuringWeek week = calcMeasuringWeek(readings, c.rule, lastOfWeek);
            EXPECT_EQ(counts(week), c.counts);
            EXPECT_EQ(means(week), c.means);
            EXPECT_EQ(missing(week), c.missing);
            EXPECT_EQ(week.isComplete(), *c.missing == 0);
        }
    }
}

TEST(MeasuringWeek, EndsWithTheLastDayThatHasAReading) {
    ReadingList readings = readingsOf("130/80/60 | 120/70/50 | -");
    readings.push_back(readingAt("2000-01-01", 200, 100)); // the monitor's clock was not set
    ReadingModel& withoutDate = readings.emplace_back(readingAt("2026-03-13", 200, 100));
    withoutDate.ReadingDate = std::nullopt;
    withoutDate.postInit(nullptr, {}, LocalZone{});
    const MeasuringWeek week = calcMeasuringWeek(readings, AverageRule::aha);
    EXPECT_EQ(week.end, lastOfWeek - 1);
    EXPECT_EQ(week.begin, lastOfWeek - 7);
    EXPECT_EQ(means(week), "125.0/75.0/55.0 (125/75/55) am 125.0/75.0");
    EXPECT_EQ(calcMeasuringWeek({}, AverageRule::aha).end, noDay);
    for (const DayNumber end : {lastOfWeek + 100, lastOfWeek - 100, noDay})
        EXPECT_EQ(calcMeasuringWeek(readings, AverageRule::aha, end).readingsUsed(), 0U) << end;
}

TEST(MeasuringWeek, WhatIsLeftOutIsCountedApart) {
    ReadingList readings = readingsOf("120/80/60|130/81/61, 131/81/61|140/82/62|-|-|-|150/83/63|160/84/64");
    for (const std::size_t place : {0U, 2U, 5U}) // before the week, in it, and its last day
        readings[place].exclusion = u""_s;
    const MeasuringWeek week = calcMeasuringWeek(readings, AverageRule::aha);
    EXPECT_EQ(week.end, lastOfWeek - 1) << "the last day with a reading that counts";
    EXPECT_EQ(week.readingsUsed(), 3U);
    EXPECT_EQ(week.excluded, 2) << "a day more belongs to this week";
    EXPECT_EQ(week.excludedLater, 1) << "it would be the last day of another one";
    readings.push_back(readingAt("2026-03-11 10:00", 130, 0));
    readings.push_back(readingAt("2027-03-11 10:00", 0, 0));
    EXPECT_EQ(calcMeasuringWeek(readings, AverageRule::aha).unmeasured, 2);
    for (const DayNumber end : {lastOfWeek - 1, lastOfWeek}) {
        const MeasuringWeek told = calcMeasuringWeek(readings, AverageRule::aha, end);
        EXPECT_EQ(told.excluded, 2);
        EXPECT_EQ(told.excludedLater, 0) << "nobody asked for later days";
        EXPECT_EQ(told.unmeasured, 1);
    }
    readings.erase(readings.end() - 2, readings.end());
    for (ReadingModel& reading : readings)
        reading.exclusion = u""_s;
    const MeasuringWeek none = calcMeasuringWeek(readings, AverageRule::aha);
    EXPECT_EQ(none.end, noDay);
    EXPECT_EQ(none.excluded, 5) << "of seven days";
}

TEST(MeasuringWeek, MorningIsBeforeNoon) {
    ReadingList readings;
    for (const char* date :
         {"2026-03-14 00:00", "2026-03-14 11:59:59", "2026-03-14 12:00", "2026-03-14 23:59:59",
          "2026-03-13 23:59:59", "2026-03-08 00:00", "2026-03-07 23:59:59", "2026-03-15 00:00"})
        readings.push_back(readingAt(date));
    const MeasuringWeek week = calcMeasuringWeek(readings, AverageRule::aha, lastOfWeek);
    EXPECT_EQ(week.morning.count(), 3U);
    EXPECT_EQ(week.evening.count(), 3U);
    EXPECT_EQ(week.daysUsed, 3);
}

/// On the day on which clocks are put forward, which has no 02:30.
TEST(MeasuringWeek, AHundredThousandOfOneMinuteAreAsMany) {
    ReadingList readings(100'000, readingAt("2026-03-29 03:30", 131, 81));
    readings.back().sys = 135;
    readings.push_back(readingAt("2026-03-26 00:00"));
    const DayNumber wednesday = LocalZone{}.day(at("2026-04-01"));
    const MeasuringWeek week = calcMeasuringWeek(readings, AverageRule::aha, wednesday);
    EXPECT_EQ(counts(week), "2+0 days, 100001+0");
    EXPECT_EQ(means(week), "131.0/81.0/60.0 (131/81/60) am 131.0/81.0 reached");
    EXPECT_EQ(missing(week), "days 1");
}

TEST(MeasuringWeek, RulesHaveKeys) {
    for (const AverageRuleFacts& facts : averageRules)
        EXPECT_EQ(averageRuleNamed(QLatin1String(facts.key)), facts.rule);
    EXPECT_EQ(averageRuleNamed(u"ESH"_s), std::nullopt);
}

} // namespace
} // namespace zel
