#include "DataStoreTest.h"
#include "support/InZone.h"
#include "support/RealTexts.h"

namespace zel {
namespace {

using enum StoreErrorCode;

const QByteArray ofMonitor =
    "<MeasureRec tag='x'><ID>A</ID><RecID>1000001</RecID><ReadingDate>2026-11-20T07:30:00+00:00</ReadingDate>"
    "<Sys>0150</Sys><Dia>90</Dia><Map>110</Map><PP>60</PP><Pulse>70</Pulse><Own>kept</Own></MeasureRec>"
    "<MeasureRec><ID>A</ID><RecID>1000002</RecID><ReadingDate>2026-11-20T07:30:00+00:00</ReadingDate>"
    "<Sys>150</Sys><Dia>90</Dia><Map>110</Map><PP>60</PP><Pulse>70</Pulse></MeasureRec>"
    "<MeasureRec><ID>B</ID><RecID>1000001</RecID><Sys>150</Sys></MeasureRec>";

/// The computer's clock stands at 2026-11-21 08:00 UTC.
struct ReadingChangeTest : DataStoreTest {
    const InZone zone{"UTC"};

    ReadingChangeTest() { setData(ofMonitor); }
    void setData(const QByteArray& records) {
        dataFileOfA("<Patient><ID>B</ID></Patient>" + records);
        ASSERT_TRUE(store.load());
        store.setCurrentID(u"A"_s);
    }
    [[nodiscard]] const ReadingList& readings() const { return store.getReadingForCurID(); }
    void elsewhere(const QByteArray& before, const QByteArray& after) {
        QByteArray changed = content();
        ASSERT_TRUE(changed.contains(before)) << before.constData();
        write(path, changed.replace(before, after));
    }
    static QByteArray flat(const QByteArray& text) {
        return text.simplified().replace("> <", "><").replace('\'', '"').replace(" />", "/>");
    }
    template <class Result>
    static std::optional<StoreErrorCode> codeOf(const Result& result) {
        return result ? std::nullopt : std::optional{result.error().code};
    }
    static ManualReading typed(const char* time, std::uint32_t sys = 120, std::uint32_t dia = 80,
                               std::uint32_t pulse = 65) {
        return {StrToDate(QString::fromLatin1(time), u"yyyy-MM-dd HH:mm"_s), sys, dia, pulse};
    }
    static ReadingModel downloaded(const char* time, std::uint32_t arrhythmia = 1) {
        ReadingModel reading = typed(time).writtenOver({});
        reading.isManual = false;
        reading.Arrhythmia = arrhythmia;
        return reading;
    }
    /// The patient's readings: values, then ! for one that is left out, with its reason, and m for a typed
    /// one.
    [[nodiscard]] std::string shown() const {
        std::string text;
        for (const ReadingModel& reading : readings()) {
            text += std::to_string(reading.sys) + '/' + std::to_string(reading.dia);
            if (reading.isExcluded()) text += '!' + describeExclusion(reading).toStdString();
            text += reading.isManual ? "m " : " ";
        }
        return text;
    }
};

TEST_F(ReadingChangeTest, LeavingOutAndTakingInWriteTheMarkOnly) {
    const QByteArray before = content();
    ASSERT_TRUE(store.excludeReadings({readings().front()}, u"  cuff\n too  loose\x07 "_s));
    EXPECT_EQ(shown(), "150/90!cuff too loose 150/90 ");
    QByteArray expected = before;
    expected.replace("<Own>kept</Own>", "<Own>kept</Own><Excluded>cuff too loose</Excluded>");
    EXPECT_EQ(flat(content()), flat(expected));
    ASSERT_TRUE(store.excludeReadings({readings().front()}, u"another"_s));
    EXPECT_EQ(content().count("<Excluded>"), 1);
    ASSERT_TRUE(store.includeReadings({readings().front()}));
    EXPECT_FALSE(content().contains("Excluded")) << content().constData();
    EXPECT_TRUE(content().contains("<Sys>0150</Sys>"));
}

TEST_F(ReadingChangeTest, MarkWithoutTextOrTwiceIsTakenAwayWhole) {
    const RealTexts texts;
    for (const QByteArray& mark : {QByteArray{"<Excluded/>"}, QByteArray{"<Excluded></Excluded>"},
                                   QByteArray{"<Excluded> \n </Excluded><Excluded>2</Excluded>"}}) {
        setData(QByteArray{ofMonitor}.replace("<Own>", mark + "<Own>"));
        EXPECT_EQ(shown(), "150/90!no reason given 150/90 ");
        ASSERT_TRUE(store.includeReadings({readings().front()}));
        EXPECT_EQ(shown(), "150/90 150/90 ") << mark.constData();
        EXPECT_TRUE(readings().front().exclusion.isNull());
    }
}

TEST_F(ReadingChangeTest, EqualReadingsOfOneNumberAreEachFoundOnce) {
    const QByteArray one = "<MeasureRec><ID>A</ID><Sys>150</Sys></MeasureRec>";
    setData(one + one + one);
    ASSERT_TRUE(store.excludeReadings({readings()[0], readings()[1]}, u"x"_s));
    EXPECT_EQ(content().count("<Excluded>"), 2);
    EXPECT_EQ(codeOf(store.excludeReadings({readings()[2], readings()[2]}, u"x"_s)), changedElsewhere);
    EXPECT_EQ(content().count("<Excluded>"), 2);
}

TEST_F(ReadingChangeTest, WhatOthersChangedOrRemovedIsRefusedWhole) {
    const struct {
        QByteArray before, after;
        StoreErrorCode code;
    } cases[] = {
        {"<RecID>1000002</RecID>", "<RecID>1000009</RecID>", readingGone},
        {"<Sys>150</Sys><Dia>90</Dia>", "<Sys>151</Sys><Dia>90</Dia>", changedElsewhere},
        {"<RecID>1000002</RecID>", "<RecID>1000002</RecID><Excluded/>", changedElsewhere},
        {"<RecID>1000002</RecID>", "<RecID>1000002</RecID><Source>manual</Source>", changedElsewhere},
    };
    for (const auto& [before, after, code] : cases) {
        setData(ofMonitor);
        const ReadingList both = readings();
        elsewhere(before, after);
        const QByteArray changed = content();
        EXPECT_EQ(codeOf(store.excludeReadings(both, u"x"_s)), code) << after.constData();
        EXPECT_EQ(content(), changed);
        EXPECT_EQ(store.changes().undoable(), nullptr);
    }
    for (const QString& blank : {u""_s, u" \n\t"_s, u"\x01\x7F"_s, u"\u200B"_s, u"\u202E \u2060\U000E0041"_s})
        EXPECT_EQ(codeOf(store.excludeReadings(readings(), blank)), noReason);
    EXPECT_EQ(exclusionReason(u"a\u202E b\u2067\u200Dc"_s), u"a b\u200Dc"_s);
}

TEST_F(ReadingChangeTest, TypedReadingIsStoredLikeOthersAndMarked) {
    ASSERT_EQ(store.addReading(u"A"_s, typed("2026-11-19 23:59", 135, 85)).value_or(QString{}), u"1000003"_s);
    EXPECT_EQ(order(), "SystemSetting: Patient:A Patient:B MeasureRec:A1000001 MeasureRec:A1000002 "
                       "MeasureRec:A1000003 MeasureRec:B1000001");
    const ReadingModel& added = readings().back();
    EXPECT_TRUE(added.isManual);
    EXPECT_EQ(added.values(), (ReadingModel::Values{0, 65, 85, 135, 101, 50, 0}));
    EXPECT_EQ(added.minuteOfDay, 23 * 60 + 59);
    EXPECT_TRUE(content().contains("<Source>manual</Source>"));
    EXPECT_TRUE(content().contains("<MAM>0</MAM>"));

    ASSERT_TRUE(store.changeReading(added, typed("2026-11-19 23:59", 136, 85)));
    EXPECT_EQ(readings().back().values(), (ReadingModel::Values{0, 65, 85, 136, 102, 51, 0}));
    ASSERT_TRUE(store.excludeReadings({readings().back()}, u"x"_s));
    ASSERT_TRUE(store.deleteReadings({readings().back()}));
    EXPECT_EQ(shown(), "150/90 150/90 ");
    while (store.changes().undoable())
        ASSERT_TRUE(store.undo());
    EXPECT_EQ(shown(), "150/90 150/90 ");
    EXPECT_FALSE(content().contains("manual"));
}

TEST_F(ReadingChangeTest, TypedReadingHasToBeOne) {
    const RealTexts texts;
    const struct {
        ManualReading typed;
        std::optional<ManualProblem> problem;
    } cases[] = {
        {typed("2026-11-21 08:00"), {}},
        {typed("2026-11-21 08:01"), ManualProblem::inFuture},
        {typed("2026-02-29 08:00"), ManualProblem::noDate},
        {typed("2000-01-01 08:00"), ManualProblem::noDate},
        {typed("0001-05-05 08:00"), ManualProblem::noDate},
        {typed("0206-11-20 08:00"), ManualProblem::tooEarly},
        {typed("1899-12-31 23:59"), ManualProblem::tooEarly},
        {typed("1900-01-01 00:00"), {}},
        {typed("2026-11-20 08:00", 300, 30, 30), {}},
        {typed("2026-11-20 08:01", 31, 30, 300), {}},
        {typed("2026-11-20 08:00", 301), ManualProblem::sys},
        {typed("2026-11-20 08:00", 29, 20), ManualProblem::sys},
        {typed("2026-11-20 08:00", 120, 29), ManualProblem::dia},
        {typed("2026-11-20 08:00", 120, 301), ManualProblem::dia},
        {typed("2026-11-20 08:00", 120, 120), ManualProblem::diaNotBelowSys},
        {typed("2026-11-20 08:00", 120, 80, 29), ManualProblem::pulse},
        {typed("2026-11-20 08:00", 120, 80, 301), ManualProblem::pulse},
    };
    const Instant now = std::chrono::floor<Instant::duration>(clock.now()) + std::chrono::seconds{59};
    for (const auto& [typed, problem] : cases) {
        const QByteArray before = content();
        EXPECT_EQ(manualProblem(typed, now), problem);
        const auto added = store.addReading(u"A"_s, typed);
        EXPECT_EQ(codeOf(added), problem ? std::optional{readingRefused} : std::nullopt);
        if (problem) {
            EXPECT_EQ(describe(added.error()), u"The reading was not stored.\n"_s + describe(*problem));
        }
        EXPECT_EQ(content() == before, problem.has_value());
    }
    EXPECT_EQ(describe(ManualProblem::sys), u"The systolic pressure is to be a number from 30 to 300."_s);
    EXPECT_EQ(codeOf(store.addReading(u"C"_s, typed("2026-11-20 08:00"))), noSuchRecord);
}

TEST_F(ReadingChangeTest, ClocksThatAreChangedMoveNoReading) {
    const InZone berlin{"Europe/Berlin"};
    const QByteArray second = "<ReadingDate>2025-10-26T02:30:15+01:00</ReadingDate>";
    setData("<MeasureRec><ID>A</ID><RecID>1</RecID>" + second
            + "<Sys>150</Sys><Source>manual</Source></MeasureRec>");
    ASSERT_TRUE(store.changeReading(readings().front(), typed("2025-10-26 02:30")));
    EXPECT_TRUE(content().contains(second)) << "not an hour earlier";
    EXPECT_EQ(shown(), "120/80m ") << "values without a place in the file get one";
    EXPECT_EQ(typedTime(u"2025-03-30"_s, u"02:30"_s), Date{}) << "there was no such hour";
    EXPECT_TRUE(typedTime(u"2025-03-30"_s, u"03:00"_s));
}

TEST_F(ReadingChangeTest, NoReadingIsThereTwice) {
    EXPECT_EQ(codeOf(store.addReading(u"A"_s, typed("2026-11-20 07:30", 150, 90, 70))), readingKnown);
    ASSERT_TRUE(store.addReading(u"A"_s, typed("2026-11-20 07:30", 150, 90, 71)))
        << "equal times alone are none";
    const ReadingModel first = readings().back();
    ASSERT_TRUE(store.addReading(u"A"_s, typed("2026-11-20 07:31", 150, 90, 70)));
    EXPECT_EQ(codeOf(store.changeReading(first, typed("2026-11-20 07:31", 150, 90, 70))), readingKnown);
    EXPECT_TRUE(store.changeReading(first, ManualReading::of(first))) << "not changed";
    ASSERT_TRUE(store.addReading(u"B"_s, typed("2026-11-20 07:30", 150, 90, 71))) << "another patient's";
}

TEST_F(ReadingChangeTest, WhatTheMonitorsClockShowedIsNotTypedInAgainElsewhere) {
    setData({});
    const InZone tokyo{"Asia/Tokyo"};
    ASSERT_TRUE(store.newDataTransfer({downloaded("2026-11-19 08:00")}));
    ASSERT_TRUE(store.addReading(u"A"_s, typed("2026-11-19 10:00")));
    const InZone berlin{"Europe/Berlin"};
    EXPECT_EQ(codeOf(store.addReading(u"A"_s, typed("2026-11-19 08:00"))), readingKnown);
    EXPECT_EQ(codeOf(store.addReading(u"A"_s, typed("2026-11-19 00:00"))), readingKnown) << "by its instant";
    EXPECT_EQ(codeOf(store.changeReading(readings().back(), typed("2026-11-19 08:00"))), readingKnown);
    EXPECT_EQ(codeOf(store.addReading(u"A"_s, typed("2026-11-19 02:00"))), readingKnown);
    EXPECT_TRUE(store.addReading(u"A"_s, typed("2026-11-19 10:00"))) << "what was typed has an instant only";
    EXPECT_EQ(shown(), "120/80 120/80m 120/80m ");
}

TEST_F(ReadingChangeTest, SavingNothingWritesNothing) {
    ASSERT_TRUE(store.addReading(u"A"_s, typed("2026-11-20 07:30", 150, 90, 71)));
    const ReadingModel added = readings().back();
    ASSERT_TRUE(store.excludeReadings({readings().front()}, u"x"_s));
    elsewhere("<ZEL>", "<ZEL>\n\n\n"); // a write would lay it out anew
    const QByteArray before = content();
    EXPECT_TRUE(store.excludeReadings({readings().front()}, u" x "_s));
    EXPECT_TRUE(store.changeReading(added, ManualReading::of(added)));
    EXPECT_EQ(content(), before);
    EXPECT_EQ(store.changes().undoable()->name.kind, StepKind::excludeReadings);
}

TEST_F(ReadingChangeTest, OnlyTypedReadingsAreChangedAndDeleted) {
    for (const char* source : {"", "<Source/>", "<Source>import</Source>", "<Source>Manual</Source>"}) {
        setData(QByteArray{ofMonitor}.replace("<Own>", QByteArray{source} + "<Own>"));
        const QByteArray before = content();
        EXPECT_EQ(codeOf(store.changeReading(readings()[0], typed("2026-11-20 08:00"))), notManual) << source;
        EXPECT_EQ(codeOf(store.deleteReadings({readings()[0]})), notManual) << source;
        EXPECT_EQ(content(), before);
        ASSERT_TRUE(store.excludeReadings({readings()[0]}, u"x"_s));
        EXPECT_TRUE(flat(content()).contains(source)) << "a source that is not known stays";
    }
}

TEST_F(ReadingChangeTest, DownloadLeavesMarksAloneAndBringsNothingTwice) {
    ASSERT_EQ(store.newDataTransfer({downloaded("2026-11-18 07:00")}).value_or(TransferCounts{9}).added, 1U);
    ASSERT_TRUE(store.excludeReadings({readings().back()}, u"x"_s));
    const QByteArray before = content();
    const auto brings = [this](const char* time) {
        return store.newDataTransfer({downloaded(time)}).value_or(TransferCounts{9}).added;
    };
    EXPECT_EQ(brings("2026-11-18 07:00"), 0U);
    const InZone away{"Asia/Tokyo"};
    EXPECT_EQ(brings("2026-11-18 07:00"), 0U) << "by what the monitor's clock shows";
    EXPECT_EQ(brings("2026-11-18 16:00"), 0U) << "by its instant";
    EXPECT_EQ(content(), before);
}

TEST_F(ReadingChangeTest, WhatTheMonitorMeasuredIsStoredWhateverWasTyped) {
    const RealTexts texts;
    const std::string left = "120/80!measured by the monitor, toom 120/80 ";
    const struct {
        const char* what;
        const char* time;
        std::uint32_t arrhythmia;
        const char* zone;
        std::string shown;
    } cases[] = {
        {"with a finding that nobody types in", "2026-11-19 07:00", 2, "UTC", left},
        {"with nothing but what was typed", "2026-11-19 07:00", 0, "UTC", left},
        {"by what the monitor's clock shows", "2026-11-19 07:00", 1, "Asia/Tokyo", left},
        {"by its instant", "2026-11-19 16:00", 1, "Asia/Tokyo", left},
        {"a minute later", "2026-11-19 07:01", 1, "UTC", "120/80m 120/80 "},
    };
    for (const auto& [what, time, arrhythmia, zoneName, expected] : cases) {
        const InZone here{"UTC"};
        setData({});
        ASSERT_TRUE(store.addReading(u"B"_s, typed("2026-11-19 07:00")));
        ASSERT_TRUE(store.addReading(u"A"_s, typed("2026-11-19 07:00")));
        const InZone there{zoneName};
        ReadingModel measured = downloaded(time, arrhythmia);
        EXPECT_EQ(store.newDataTransfer({measured}), (TransferCounts{1, expected == left ? 1U : 0U})) << what;
        EXPECT_EQ(shown(), expected) << what;
        EXPECT_EQ(store.newDataTransfer({measured}), TransferCounts{}) << what;
        EXPECT_EQ(content().count("<Excluded>"), expected == left ? 1 : 0) << "not another patient's";
    }
    setData({});
    ASSERT_TRUE(store.addReading(u"A"_s, typed("2026-11-19 07:00")));
    ASSERT_TRUE(store.excludeReadings({readings().back()}, u"y"_s));
    ASSERT_TRUE(store.newDataTransfer({downloaded("2026-11-19 07:00")}));
    EXPECT_EQ(shown(), "120/80!ym 120/80 ") << "left out before: as it was";
}

TEST_F(ReadingChangeTest, WhatIsChangedIsNotWhatTheMonitorMeasured) {
    ASSERT_TRUE(store.addReading(u"A"_s, typed("2026-11-19 07:00")));
    ASSERT_EQ(store.newDataTransfer({downloaded("2026-11-19 07:00")}), (TransferCounts{1, 1}));
    for (const auto& [time, excluded] : {std::pair{"2026-11-19 07:00", 1}, {"2026-11-19 07:01", 0}}) {
        const ReadingModel byHand = *std::ranges::find_if(readings(), &ReadingModel::isManual);
        EXPECT_EQ(store.changeReading(byHand, typed(time)).has_value(), excluded == 0) << "it is there";
        EXPECT_EQ(content().count("<Excluded>"), excluded) << time;
    }
    const ReadingModel byHand = *std::ranges::find_if(readings(), &ReadingModel::isManual);
    ASSERT_TRUE(store.excludeReadings({byHand}, u"stairs"_s));
    ASSERT_TRUE(store.changeReading(*std::ranges::find_if(readings(), &ReadingModel::isManual),
                                    typed("2026-11-19 07:02")));
    EXPECT_EQ(content().count("<Excluded>"), 1) << "a reason of the user's own stays";
}

TEST_F(ReadingChangeTest, WhatIsTakenInAgainCountsOnceAndCouldBeTypedIn) {
    const RealTexts texts;
    const auto refused = [this](const ReadingList& takenIn) {
        const QByteArray before = content();
        QString why = describe(store.includeReadings(takenIn).value_or(TakenInAgain{}));
        EXPECT_EQ(content() == before, !why.isEmpty());
        return why;
    };
    const auto twice = u"1 reading that was typed in stays left out: one of that minute with the same values "
                       "counts already."_s;
    for (const char* place : {"UTC", "Asia/Tokyo"}) { // there by what the monitor's clock shows
        setData({});
        ASSERT_TRUE(store.addReading(u"A"_s, typed("2026-11-19 07:00")));
        const InZone there{place};
        ASSERT_TRUE(store.newDataTransfer({downloaded("2026-11-19 07:00")}));
        EXPECT_EQ(refused({readings()[0]}), twice);
        EXPECT_EQ(store.changes().undoable()->name.kind, StepKind::addReading);
        ASSERT_TRUE(store.excludeReadings({readings()[1]}, u"cuff"_s));
        EXPECT_EQ(refused({readings()[1]}), QString{}) << "one that was measured is taken in";
        ASSERT_TRUE(store.excludeReadings({readings()[1]}, u"cuff"_s));
        EXPECT_EQ(describe(*store.includeReadings(readings())), twice) << "both at once, the typed one first";
        EXPECT_EQ(store.changes().undoable()->name.count, 1U);
        ASSERT_TRUE(store.excludeReadings({readings()[1]}, u"cuff"_s));
        EXPECT_EQ(refused({readings()[0]}), QString{}) << "nothing else of that minute counts";

        const QByteArray before = content();
        EXPECT_EQ(shown(), "120/80m 120/80!cuff ");
        EXPECT_EQ(describe(*store.includeReadings({readings()[1]})),
                  u"1 reading that was typed in is left out from now on (measured by the monitor, too)."_s);
        EXPECT_EQ(store.changes().undoable()->name.count, 1U) << "one is taken in";
        const std::string after = "120/80!measured by the monitor, toom 120/80 ";
        EXPECT_EQ(shown(), after);
        EXPECT_TRUE(store.undo()) << "what the step itself takes away is in no one's way";
        EXPECT_EQ(content(), before);
        EXPECT_TRUE(store.redo());
        EXPECT_EQ(shown(), after);
    }
    const QByteArray typedIn =
        "<MeasureRec><ID>A</ID><ReadingDate>2026-11-19T07:00:00+00:00</ReadingDate><Sys>120"
        "</Sys><Dia>80</Dia><Pulse>65</Pulse><Excluded/><Source>manual</Source></MeasureRec>";
    const QByteArray later = QByteArray{typedIn}.replace("2026", "2099");
    const QByteArray tooHigh = QByteArray{typedIn}.replace("120", "500");
    setData(typedIn + typedIn + later + tooHigh + tooHigh
            + QByteArray{tooHigh}.remove(tooHigh.indexOf("<Source>"), 23));
    EXPECT_EQ(
        describe(*store.includeReadings(readings())),
        twice
            + u"\n1 reading that was typed in stays left out. The date and time are in the future.\n2 "
              u"readings "
              "that were typed in stay left out. The systolic pressure is to be a number from 30 to 300."_s);
    EXPECT_EQ(content().count("<Excluded"), 4) << "the first counts, and what a monitor has measured";
    EXPECT_EQ(store.changes().undoable()->name.count, 2U);
}

TEST_F(ReadingChangeTest, OneMeasuredReadingStandsForOneTypedOne) {
    const InZone berlin{"Europe/Berlin"};
    const RealTexts texts;
    setData({});
    ASSERT_TRUE(store.addReading(u"A"_s, typed("2026-11-19 07:00")));
    ASSERT_TRUE(store.addReading(u"A"_s, typed("2026-11-19 15:00")));
    const InZone tokyo{"Asia/Tokyo"}; // 15:00 there is the instant of 07:00
    ASSERT_TRUE(store.newDataTransfer({downloaded("2026-11-19 15:00")}));
    const std::string byWall = "120/80m 120/80!measured by the monitor, toom 120/80 ";
    EXPECT_EQ(shown(), byWall);
    ASSERT_TRUE(store.excludeReadings({readings()[2]}, u"x"_s));
    ASSERT_TRUE(store.includeReadings({readings()[1]}));
    EXPECT_EQ(store.includeReadings({readings()[2]}).value_or(TakenInAgain{}).leftOut, 1);
    EXPECT_EQ(shown(), byWall) << "as by a download";
}

TEST_F(ReadingChangeTest, NothingComesBackBesideWhatADownloadBrought) {
    const auto add = [this] { ASSERT_TRUE(store.addReading(u"A"_s, typed("2026-11-19 07:00"))); };
    const auto edit = [this] {
        ASSERT_TRUE(store.changeReading(readings().front(), typed("2026-11-19 07:00", 125)));
    };
    const struct {
        const char* what;
        std::function<void()> act;
        const char* measuredAt;
        std::optional<StoreErrorCode> refusal;
        std::string shown, redone;
    } cases[] = {
        {"deleted", [this] { ASSERT_TRUE(store.deleteReadings({readings().front()})); }, "2026-11-19 07:00",
         stepThere, "120/80 ", "120/80 "},
        {"deleted, its number taken", [this] { ASSERT_TRUE(store.deleteReadings({readings().front()})); },
         "2026-11-19 07:01", std::nullopt, "120/80m 120/80 ", "120/80 "},
        {"changed", edit, "2026-11-19 07:00", stepThere, "125/80m 120/80 ", "125/80m 120/80 "},
        {"changed, and another", edit, "2026-11-19 07:01", std::nullopt, "120/80m 120/80 ",
         "125/80m 120/80 "},
        {"left out", [this] { ASSERT_TRUE(store.excludeReadings({readings().front()}, u"x"_s)); },
         "2026-11-19 07:00", stepThere, "120/80!xm 120/80 ", "120/80!xm 120/80 "},
    };
    for (const auto& [what, act, measuredAt, refusal, expected, redone] : cases) {
        setData({});
        add();
        act();
        ASSERT_TRUE(store.newDataTransfer({downloaded(measuredAt)}));
        EXPECT_EQ(codeOf(store.undo()), refusal) << what;
        EXPECT_EQ(shown(), expected) << what;
        QSet<QString> numbers;
        for (const ReadingModel& reading : readings())
            numbers.insert(reading.RecID);
        EXPECT_EQ(numbers.size(), static_cast<qsizetype>(readings().size())) << what;
        EXPECT_EQ(codeOf(store.redo()), refusal ? std::optional{noStep} : std::nullopt) << what;
        EXPECT_EQ(shown(), redone) << what;
    }
    setData({});
    add();
    ASSERT_TRUE(store.excludeReadings({readings().front()}, u"x"_s));
    const InZone tokyo{"Asia/Tokyo"};
    ASSERT_TRUE(store.newDataTransfer({downloaded("2026-11-19 07:00")}));
    EXPECT_EQ(codeOf(store.undo()), stepThere) << "by what the monitor's clock showed";
}

TEST_F(ReadingChangeTest, ExportAndImportKeepMarks) {
    setData(
        "<MeasureRec><ID>A</ID><RecID>1</RecID><ReadingDate>2026-11-20T07:30:00+00:00</ReadingDate>"
        "<Sys>150</Sys><Excluded>cuff, \"loose\"</Excluded></MeasureRec>"
        "<MeasureRec><ID>A</ID><RecID>2</RecID><Sys>151</Sys><Excluded/><Source>manual</Source></MeasureRec>"
        "<MeasureRec><ID>A</ID><RecID>3</RecID><Sys>152</Sys><Source>import</Source></MeasureRec>");
    const std::string before = shown();
    auto out = store.beginExport();
    ASSERT_TRUE(out);
    ASSERT_TRUE(out->writeXml(u"A"_s, home.path(), Replace::yes));
    ASSERT_TRUE(store.exportCSV(home.path(), u"A"_s, Replace::yes));
    const QByteArray exported = readFile(home.filePath(u"A.xml"_s)).value_or(QByteArray{});
    ASSERT_TRUE(store.deleteXMLPatient(u"A"_s));
    ASSERT_TRUE(store.importXml(home.filePath(u"A.xml"_s)));
    ASSERT_TRUE(store.loadXML());
    store.setCurrentID(u"A"_s);
    EXPECT_EQ(shown(), before);
    EXPECT_TRUE(content().contains("<Source>import</Source>"));
    ASSERT_TRUE(store.beginExport()->writeXml(u"A"_s, home.path(), Replace::yes));
    EXPECT_EQ(readFile(home.filePath(u"A.xml"_s)).value_or(QByteArray{}), exported);

    const QByteArray csv = readFile(home.filePath(u"A.csv"_s)).value_or(QByteArray{});
    EXPECT_TRUE(csv.contains(",150,0,0,0,No,N/A,\"excluded: cuff, \"\"loose\"\"\"\n")) << csv.constData();
    EXPECT_TRUE(csv.contains(",,151,0,0,0,No,N/A,manual; excluded:\n")) << csv.constData();
    EXPECT_TRUE(csv.contains(",,152,0,0,0,No,N/A,\n")) << csv.constData();
}

} // namespace
} // namespace zel
