#include "analysis/DisplayPeriod.h"

#include "analysis/Sample.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

class DisplayPeriodTest : public testing::Test {
protected:
    DisplayPeriodTest() {
        QObject::connect(&period, &DisplayPeriod::changed, &period, [this] { ++changes; });
    }

    void select(const ReadingList& readings) {
        period.setChangeUser(true);
        period.setCurrentReadingTimePeriod(readings);
        period.adjustViewAll();
        period.setChangeUser(false);
    }
    [[nodiscard]] std::string shown() const {
        const QString form = QStringLiteral("yyyy-MM-dd HH:mm:ss");
        return (DateToStr(period.getTimePeriod().begin, form) + u' '
                + DateToStr(period.getTimePeriod().end, form))
            .toStdString();
    }

    DisplayPeriod period{at("2026-11-21 08:00")};
    int changes = 0;
};

TEST_F(DisplayPeriodTest, NewPatientOpensWithAllOfAShortTimeOrTheLastMonthsOfALongOne) {
    struct Case {
        std::initializer_list<const char*> readings;
        ViewSelection view;
        const char* shown;
    };
    const Case cases[] = {
        {{"2019-03-10 23:50", "2019-06-08 00:10"}, // 90 days, across the change to summer time
         ViewSelection::viewAll,
         "2019-03-10 00:00:00 2019-06-08 23:59:59"},
        {{"2019-02-10 10:00", "2019-05-11 12:00"}, // 90 days, but more than three months
         ViewSelection::viewAll,
         "2019-02-10 00:00:00 2019-05-11 23:59:59"},
        {{"2019-03-10 23:50", "2019-06-09 00:10"}, // 91 days
         ViewSelection::custom,
         "2019-03-10 00:00:00 2019-06-09 23:59:59"},
        {{"2019-05-31 09:00", "2019-01-01 09:00"}, // stored the other way round, to the end of February
         ViewSelection::custom,
         "2019-02-28 00:00:00 2019-05-31 23:59:59"},
        {{"2000-01-01 08:00", "2019-05-31 09:00", "0001-01-01"},
         ViewSelection::viewAll,
         "2019-05-31 00:00:00 2019-05-31 23:59:59"},
        {{"1970-01-01 12:00", "2100-12-31 09:00"},
         ViewSelection::custom,
         "2100-09-30 00:00:00 2100-12-31 23:59:59"},
        {{}, ViewSelection::viewAll, "2026-01-01 00:00:00 2026-01-01 23:59:59"},
        {{"2000-01-01 08:00"}, ViewSelection::viewAll, "2026-01-01 00:00:00 2026-01-01 23:59:59"},
    };
    for (const Case& c : cases) {
        select(readingsAt({"2018-05-01 10:00"})); // somebody else before
        select(readingsAt(c.readings));
        EXPECT_EQ(period.getSelectViewIndex(), c.view) << c.shown;
        EXPECT_EQ(shown(), c.shown);
    }
    period.setSelectViewIndex(ViewSelection::viewAll);
    EXPECT_EQ(shown(), "2026-01-01 00:00:00 2026-01-01 23:59:59") << "not the days of somebody else";
    EXPECT_EQ(period.getChoice(), PeriodChoice::all);
}

TEST_F(DisplayPeriodTest, AViewOfAllDaysEndsWhereOtherDaysAreShown) {
    const ReadingList readings = readingsAt({"2019-03-01 10:00", "2019-03-08 18:00"});
    struct Case {
        const char* begin;
        const char* end;
        ViewSelection before;
        ViewSelection after;
    };
    const Case cases[] = {
        {"2019-03-01 20:00", "2019-03-08 07:00", ViewSelection::viewAll, ViewSelection::viewAll},
        {"2019-02-28", "2019-03-09", ViewSelection::viewAll, ViewSelection::custom},
        {"2019-03-01", "2019-03-07", ViewSelection::viewAll, ViewSelection::custom},
        {"2019-03-02", "2019-03-07", ViewSelection::pmOnly, ViewSelection::pmOnly},
    };
    for (const Case& c : cases) {
        select(readings);
        period.setSelectViewIndex(c.before);
        period.setIncludeNoDatetimeData(true);
        period.setTimePeriod(at(c.begin), at(c.end));
        EXPECT_EQ(period.getSelectViewIndex(), c.after) << c.begin;
        const bool isAll = c.after == ViewSelection::viewAll;
        EXPECT_EQ(period.getChoice(), isAll ? PeriodChoice::all : PeriodChoice::picked) << c.begin;
        EXPECT_EQ(period.getIncludeNoDatetimeData(), isAll) << c.begin;
    }
}

TEST_F(DisplayPeriodTest, UndatedReadingsAreOutWhereTheirChoiceIs) {
    const ReadingList readings = readingsAt({"2019-03-01 10:00", "2019-03-08 18:00"});
    const auto include = [&] {
        period.setSelectViewIndex(ViewSelection::viewAll);
        period.setIncludeNoDatetimeData(true);
        EXPECT_TRUE(period.getIncludeNoDatetimeData());
    };
    select(readings);
    include();
    EXPECT_TRUE(period.pickTimePeriod(at("2019-03-01"), at("2019-03-08")));
    EXPECT_FALSE(period.getIncludeNoDatetimeData());
    period.setIncludeNoDatetimeData(true);
    EXPECT_FALSE(period.getIncludeNoDatetimeData());
    include();
    period.choose(PeriodChoice::last30);
    EXPECT_FALSE(period.getIncludeNoDatetimeData());
    include();
    select(readingsAt({"2000-01-01 08:00", "2019-01-01", "2019-07-08"})); // somebody else
    EXPECT_FALSE(period.getIncludeNoDatetimeData());
}

TEST_F(DisplayPeriodTest, PickedDaysAreAtLeastTwoAndEndTheViewChoice) {
    period.setCurrentReadingTimePeriod(readingsAt({"2019-03-01 10:00", "2019-07-08 18:00"}));
    period.setSelectViewIndex(ViewSelection::pmOnly);
    EXPECT_EQ(shown(), "2019-04-08 00:00:00 2019-07-08 23:59:59");
    changes = 0;
    EXPECT_FALSE(period.pickTimePeriod(at("2019-05-02 08:00"), at("2019-05-02 20:00")));
    EXPECT_FALSE(period.pickTimePeriod(at("2019-05-03"), at("2019-05-02")));
    EXPECT_EQ(period.getSelectViewIndex(), ViewSelection::pmOnly);
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(period.pickTimePeriod(at("2019-05-02 20:00"), at("2019-05-03 08:00")));
    EXPECT_EQ(period.getSelectViewIndex(), ViewSelection::pmOnly) << "still of the days that are picked";
    EXPECT_EQ(shown(), "2019-05-02 00:00:00 2019-05-03 23:59:59");
    EXPECT_EQ(changes, 1);
    period.setSelectViewIndex(ViewSelection::viewAll);
    EXPECT_EQ(shown(), "2019-03-01 00:00:00 2019-07-08 23:59:59");
    EXPECT_EQ(changes, 2);
}

TEST_F(DisplayPeriodTest, ReadingsThatCameMeanwhileMoveAViewOfAllOfNoneOrUpToTheLast) {
    select({});
    period.setSelectViewIndex(ViewSelection::custom);
    period.refreshDataPeriod(readingsAt({"2019-03-01 10:00", "2019-07-08 18:00"}));
    EXPECT_EQ(shown(), "2019-04-08 00:00:00 2019-07-08 23:59:59");
    changes = 0;
    period.refreshDataPeriod(readingsAt({"2019-03-01 10:00", "2019-07-08 18:00"}));
    EXPECT_EQ(changes, 0);
    period.refreshDataPeriod(readingsAt({"2019-07-09 18:00", "2019-01-01 10:00"}));
    EXPECT_EQ(shown(), "2019-04-08 00:00:00 2019-07-09 23:59:59") << "they reached to the last reading";
    EXPECT_EQ(changes, 1);
    period.setTimePeriod(at("2019-05-02"), at("2019-07-08"));
    period.refreshDataPeriod(readingsAt({"2019-07-10 18:00", "2019-01-01 10:00"}));
    EXPECT_EQ(shown(), "2019-05-02 00:00:00 2019-07-08 23:59:59");
    period.refreshDataPeriod(readingsAt({"2019-07-09 18:00", "2019-01-01 10:00"}));
    period.setSelectViewIndex(ViewSelection::viewAll);
    EXPECT_EQ(shown(), "2019-01-01 00:00:00 2019-07-09 23:59:59");
    period.refreshDataPeriod(readingsAt({"2019-07-09 18:00", "2018-01-01 10:00"}));
    EXPECT_EQ(shown(), "2018-01-01 00:00:00 2019-07-09 23:59:59");
    select({}); // somebody without readings, until there are some of the same days
    period.refreshDataPeriod(readingsAt({"2019-07-09 18:00", "2018-01-01 10:00"}));
    EXPECT_EQ(shown(), "2018-01-01 00:00:00 2019-07-09 23:59:59");
    EXPECT_EQ(period.getSelectViewIndex(), ViewSelection::viewAll);
    changes = 0;
    period.refreshDataPeriod(readingsAt({"2000-01-01 08:00"})); // the dated ones are gone
    EXPECT_EQ(shown(), "2026-01-01 00:00:00 2026-01-01 23:59:59");
    EXPECT_EQ(changes, 1);
    period.setTimePeriod(at("2019-05-02"), at("2019-05-03"));
    period.setSelectViewIndex(ViewSelection::viewAll);
    EXPECT_EQ(shown(), "2026-01-01 00:00:00 2026-01-01 23:59:59");
}

TEST_F(DisplayPeriodTest, AReadingLeftOutStaysInViewButNoPatientOpensWithItAlone) {
    ReadingList readings = readingsAt({"2019-03-01 10:00", "2027-01-05 18:00"});
    select(readings);
    EXPECT_EQ(shown(), "2026-10-05 00:00:00 2027-01-05 23:59:59");
    readings.back().exclusion = QStringLiteral("wrong date");
    period.refreshDataPeriod(readings);
    EXPECT_EQ(shown(), "2026-10-05 00:00:00 2027-01-05 23:59:59");
    select(readings);
    EXPECT_EQ(shown(), "2019-03-01 00:00:00 2019-03-01 23:59:59");
    EXPECT_EQ(period.getChoice(), PeriodChoice::picked);
    readings.push_back(readingAt("2019-03-04 07:00"));
    period.refreshDataPeriod(readings);
    EXPECT_EQ(shown(), "2019-03-01 00:00:00 2019-03-04 23:59:59") << "what came is in view";
}

TEST_F(DisplayPeriodTest, DaysAreChosenFromTheLastReadingBack) {
    using enum PeriodChoice;
    ReadingList readings = readingsAt({"2000-01-01 08:00", "2019-03-01 23:59", "2019-04-02 00:00"});
    readings.back().exclusion = QStringLiteral("wrong cuff");
    readings.push_back(readingAt("2019-03-30 07:00"));
    ReadingList wrong = readings; // and one with a wrong date, left out as well
    wrong.push_back(readingAt("2020-07-01 09:00"));
    wrong.back().exclusion = QStringLiteral("wrong date");
    const char* const year = "2026-01-01 00:00:00 2026-01-01 23:59:59"; // as without any choice
    struct Case {
        ReadingList readings;
        std::optional<DayNumber> weekEnd;
        PeriodChoice choice;
        const char* shown;
    };
    const Case cases[] = {
        {readings, {}, last7, "2019-03-27 00:00:00 2019-04-02 23:59:59"}, // across the change to summer time
        {readings, {}, last30, "2019-03-04 00:00:00 2019-04-02 23:59:59"},
        {readings, {}, last90, "2019-01-03 00:00:00 2019-04-02 23:59:59"}, // also where there are fewer
        {readings, {}, all, "2019-03-01 00:00:00 2019-04-02 23:59:59"},
        {readings, {}, measuringWeek, "2019-03-24 00:00:00 2019-03-30 23:59:59"},    // the last that counts
        {readings, 17957, measuringWeek, "2019-02-24 00:00:00 2019-03-02 23:59:59"}, // a Saturday
        {readings, {}, picked, "2019-03-01 00:00:00 2019-04-02 23:59:59"},
        {wrong, {}, last7, "2019-03-24 00:00:00 2019-03-30 23:59:59"},
        {wrong, {}, last30, "2019-03-01 00:00:00 2019-03-30 23:59:59"},
        {wrong, {}, last90, "2018-12-31 00:00:00 2019-03-30 23:59:59"},
        {wrong, {}, picked, "2019-03-01 00:00:00 2019-03-30 23:59:59"}, // the usual ones
        {wrong, {}, all, "2019-03-01 00:00:00 2020-07-01 23:59:59"},
        {{wrong.back()}, {}, last7, "2020-06-25 00:00:00 2020-07-01 23:59:59"}, // none counts anywhere
        {readingsAt({"2019-03-01"}), {}, last30, "2019-01-31 00:00:00 2019-03-01 23:59:59"},
        {readingsAt({"2019-03-01"}), {}, measuringWeek, "2019-02-23 00:00:00 2019-03-01 23:59:59"},
        {readingsAt({"2000-01-01 08:00"}), {}, last7, year},
        {{}, {}, measuringWeek, year},
    };
    for (const Case& c : cases) {
        for (const HalfOfDay half : {HalfOfDay::both, HalfOfDay::morning, HalfOfDay::evening}) {
            select(c.readings);
            period.setWeekEnd(c.weekEnd);
            period.setHalfOfDay(half);
            period.choose(c.choice);
            EXPECT_EQ(shown(), c.shown) << static_cast<int>(c.choice);
            EXPECT_EQ(period.getChoice(), c.choice);
            EXPECT_EQ(period.getHalfOfDay(), half) << "whatever the days";
        }
    }
}

TEST_F(DisplayPeriodTest, ChosenDaysFollowReadingsAndWeekUntilOthersAreShown) {
    using enum PeriodChoice;
    const ReadingList earlier = readingsAt({"2019-03-01 10:00", "2019-07-08 18:00"});
    const ReadingList later = readingsAt({"2019-03-01 10:00", "2019-07-08 18:00", "2019-07-20 08:00"});
    for (const auto& [choice, before, after] : {std::tuple(last7, "2019-07-02 00:00:00 2019-07-08 23:59:59",
                                                           "2019-07-14 00:00:00 2019-07-20 23:59:59"),
                                                {measuringWeek, "2019-07-02 00:00:00 2019-07-08 23:59:59",
                                                 "2019-07-14 00:00:00 2019-07-20 23:59:59"}}) {
        select(earlier);
        period.choose(choice);
        period.setHalfOfDay(HalfOfDay::evening);
        EXPECT_EQ(shown(), before);
        period.refreshDataPeriod(later);
        EXPECT_EQ(shown(), after);
        ReadingList excluded = later;
        excluded.back().exclusion = QStringLiteral("not at rest");
        period.refreshDataPeriod(excluded);
        EXPECT_EQ(shown(), before) << "the other week would hold none that counts";
        const Period days = period.getTimePeriod();
        period.setTimePeriod(days.begin, days.end);
        EXPECT_EQ(period.getChoice(), choice) << "the same days";
        period.setTimePeriod(days.begin - std::chrono::days{1}, days.end);
        EXPECT_EQ(period.getChoice(), picked);
        EXPECT_EQ(period.getHalfOfDay(), HalfOfDay::evening);
    }
    select(later);
    EXPECT_EQ(period.getHalfOfDay(), HalfOfDay::both) << "of a newly chosen patient";
    period.choose(measuringWeek);
    changes = 0;
    period.setWeekEnd(18085); // 8 July
    EXPECT_EQ(shown(), "2019-07-02 00:00:00 2019-07-08 23:59:59");
    EXPECT_EQ(changes, 1);
    period.choose(last30);
    period.setWeekEnd({});
    EXPECT_EQ(changes, 2);
}

TEST_F(DisplayPeriodTest, AnnouncesChangesOnlyAndEachOnce) {
    period.setTimePeriod(at("2019-05-02 20:00"), std::nullopt);
    EXPECT_EQ(shown(), "2019-05-02 00:00:00 2026-01-01 00:00:00");
    EXPECT_EQ(changes, 1);
    period.setTimePeriod(at("2019-05-02 10:00"), std::nullopt);
    period.setIncludeNoDatetimeData(false);
    period.setSelectViewIndex(ViewSelection::custom);
    period.setChangeUser(true);
    EXPECT_EQ(changes, 1);
    period.setSelectViewIndex(ViewSelection::amOnly);
    period.setIncludeNoDatetimeData(true);
    period.setChangeUser(true);
    EXPECT_EQ(changes, 3) << "undated readings are of no picked days";
    EXPECT_EQ(period.getSelectViewIndex(), ViewSelection::custom);
    period.choose(PeriodChoice::last7);
    period.choose(PeriodChoice::last7);
    EXPECT_EQ(changes, 4);
    period.choose(PeriodChoice::last90); // the same day, since there is no reading
    EXPECT_EQ(changes, 5) << "who shows the choice has to know";
    period.choose(PeriodChoice::picked);
    changes = 5;
    period.setChangeUser(false);
    period.setCurrentReadingTimePeriod(readingsAt({"2019-03-01 10:00", "2019-03-08 18:00"}));
    period.adjustViewAll();
    EXPECT_EQ(period.getSelectViewIndex(), ViewSelection::custom) << "only with another patient";
}

TEST_F(DisplayPeriodTest, CommentsArePlacedOnUpTo46DaysMore) {
    period.setTimePeriod(at("2019-03-01"), at("2019-04-16"));
    EXPECT_TRUE(period.isValidCommentTimeRange());
    period.setTimePeriod(at("2019-03-01"), at("2019-04-17"));
    EXPECT_FALSE(period.isValidCommentTimeRange());
}

} // namespace
} // namespace zel
