#include "cli/CliTest.h"
#include "support/InZone.h"

#include <QFile>
#include <QRegularExpression>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The readings of planM1, and a comment on the days before, between and after them.
class AnalysisTest : public CliTest {
protected:
    AnalysisTest() {
        addPatient(u"M1"_s);
        EXPECT_EQ(zelWith(planM1, {u"download"_s, u"--patient=M1"_s}).status, 0);
        setData(data().replace("</ZEL>", "<Comment><ID>M1</ID><CommentID>10001</CommentID>"
                                         "<BeginDate>2026-11-01T00:00:00+01:00</BeginDate>"
                                         "<EndDate>2026-11-05T23:59:59+01:00</EndDate></Comment></ZEL>"));
    }

    Outcome run(const char* line) {
        return zel(QString::fromLatin1(line).split(u' ') + QStringList{u"--patient=M1"_s});
    }
    std::string of(const char* line) { return run(line).out; }
    [[nodiscard]] QByteArray flatData() const { return data().simplified().replace("> <", "><"); }
};

TEST_F(AnalysisTest, ReadingsAreTheListOfThePeriod) {
    const std::string header = "date,time,sys,dia,pulse,map,pp,mam,arrhythmia\n";
    const std::string undated = "n.a,--:--,118,79,64,92,39,Yes,No\n";
    const std::string morning = "2026-11-02,07:05,152,88,71,109,64,Yes,Yes\n";
    const std::string evening = "2026-11-02,19:30,120,80,66,93,40,No,No\n";
    const std::string next = "2026-11-03,06:59,99,60,102,73,39,No,No\n";
    const std::string nothing = ",n.a.,n.a.,n.a.,n.a.,n.a.,n.a.,n.a.,n.a.\n";
    EXPECT_EQ(of("readings --am"), header + morning + next);
    EXPECT_EQ(of("readings --pm --undated"), header + undated + evening + "2026-11-03" + nothing);
    EXPECT_EQ(of("readings --from 2026-10-30 --to 2026-11-04"),
              header + "2026-11-01" + nothing + morning + evening + next + "2026-11-04" + nothing);
    EXPECT_EQ(of("readings --to 2026-11-02 --undated"), header + undated + morning + evening);
    EXPECT_EQ(of("readings --last 1"), header + next);
    EXPECT_EQ(of("readings --last 1 --to 2026-11-02 --am"), header + morning);
    EXPECT_EQ(of("readings --last 36525 --to 2026-11-02"), of("readings --from 1926-11-03 --to 2026-11-02"));
}

TEST_F(AnalysisTest, StatisticsAreTheCellsOfTheTable) {
    EXPECT_EQ(of("statistics"), "sys: 124 99 152\ndia: 76 60 88\npulse: 80 66 102\npp: 48 39 64\n");
    EXPECT_EQ(of("statistics --to 2026-11-02 --undated"),
              "sys: 130 118 152\ndia: 82 79 88\npulse: 67 64 71\npp: 48 39 64\n");
    EXPECT_EQ(of("statistics --last 2"), of("statistics"));
    EXPECT_EQ(of("statistics --last 1"), of("statistics --from 2026-11-03"));
    ASSERT_EQ(zel({u"settings"_s, u"--set=ShowPPorMap=1"_s}).status, 0);
    EXPECT_EQ(of("statistics --from 2026-11-03"),
              "sys: 99 99 99\ndia: 60 60 60\npulse: 102 102 102\nmap: 73 73 73\n");
    EXPECT_EQ(of("statistics --from 2027-01-01"),
              "sys: n/a n/a n/a\ndia: n/a n/a n/a\npulse: n/a n/a n/a\nmap: n/a n/a n/a\n");
}

TEST_F(AnalysisTest, AverageIsThatOfTheRulesWeek) {
    const Outcome esh = run("average");
    EXPECT_EQ(esh.out,
              "rule: esh\ncomplete: no\nmissing: 1 more day, 11 more readings\ndays: 1\nreadings: 1\n"
              "sys: 99.0\ndia: 60.0\npulse: 102.0\nmorning: 99.0/60.0\n"
              "threshold: 135/85 not reached\n");
    EXPECT_EQ(esh.err, "2 readings of the first measuring day are not counted.\n");
    EXPECT_EQ(of("average --rule aha --to 2026-11-02"),
              "rule: aha\ncomplete: no\nmissing: 2 more days, 10 more readings\ndays: 1\nreadings: 2\n"
              "sys: 136.0\ndia: 84.0\npulse: 68.5\nmorning: 152.0/88.0\nevening: 120.0/80.0\n"
              "threshold: 130/80 reached\n");
    EXPECT_EQ(of("average --rule nice --to 2026-11-08"),
              "rule: nice\ncomplete: no\nmissing: 2 more days, 1 more morning, 2 more evenings\ndays: "
              "1\nreadings: 1\n"
              "sys: 99.0\ndia: 60.0\npulse: 102.0\nmorning: 99.0/60.0\n"
              "threshold: 135/85 not reached\n");
    const Outcome none = run("average --to 2036-11-01");
    EXPECT_EQ(none.out,
              "rule: esh\ncomplete: no\nmissing: 3 more days, 12 more readings\ndays: 0\nreadings: 0\n");
    EXPECT_EQ(none.err, "");
    clock.set(std::chrono::sys_days{std::chrono::year{2026} / 11 / 2} + std::chrono::hours{8});
    EXPECT_EQ(run("average --rule aha").err, "The week ends on 2026-11-03, a day that is yet to come.\n");
    EXPECT_EQ(run("average --rule aha --to 2026-11-03").err, "") << "as it was asked for";
    setData(data().replace("<Dia>60</Dia>", "<Dia>0</Dia>").replace("<Pulse>66</Pulse>", "<Pulse>0</Pulse>"));
    const Outcome damaged = run("average --rule aha");
    EXPECT_THAT(damaged.out, testing::HasSubstr("sys: 136.0\ndia: 84.0\npulse: 71.0\n"));
    EXPECT_EQ(damaged.err, "1 reading without pressures is not counted.\n");
}

TEST_F(AnalysisTest, AverageOfReadingsOfAnotherTimeZoneSaysSo) {
    QString records = u"<MeasureRec><ID>M1</ID><ReadingDate>2026-07-10T07:00:00+02:00</ReadingDate><Sys>130"
                      "</Sys><Dia>80</Dia><Pulse>60</Pulse></MeasureRec>"_s;
    for (int day = 9; day <= 15; ++day)
        for (const auto& [hour, sys] : {std::pair("07", 140), {"19", 120}})
            records +=
                u"<MeasureRec><ID>M1</ID><ReadingDate>2026-11-%1T%2:00:00-05:00</ReadingDate>"
                "<Sys>%3</Sys><Dia>80</Dia><Pulse>60</Pulse></MeasureRec>"_s.arg(day, 2, 10, QLatin1Char('0'))
                    .arg(QLatin1String(hour))
                    .arg(sys);
    setData(data().replace("</ZEL>", records.toUtf8() + "</ZEL>"));
    const std::string firstDay = "2 readings of the first measuring day are not counted.\n";
    const auto words = [](const Outcome& outcome) { return outcome.out.substr(0, outcome.out.find("dia")); };
    const auto halves = [](const Outcome& outcome) {
        return outcome.out.substr(outcome.out.find("morning"));
    };
    {
        const InZone there("America/New_York");
        const Outcome week = run("average");
        EXPECT_EQ(words(week), "rule: esh\ncomplete: yes\ndays: 6\nreadings: 12\nsys: 130.0\n");
        EXPECT_EQ(halves(week), "morning: 140.0/80.0\nevening: 120.0/80.0\nthreshold: 135/85 not reached\n");
        EXPECT_EQ(week.err, firstDay);
        EXPECT_THAT(run("average --to 2026-07-10").err,
                    testing::HasSubstr("1 reading of the week was stored"));
    }
    const Outcome week = run("average");
    EXPECT_EQ(words(week),
              "rule: esh\ncomplete: no\nmissing: 1 more reading\ndays: 6\nreadings: 11\nsys: 129.1\n");
    EXPECT_EQ(halves(week), "morning: 120.0/80.0\nevening: 140.0/80.0\nthreshold: 135/85 not reached\n");
    EXPECT_EQ(week.err, firstDay
                            + "13 readings of the week were stored in another time zone; days and times are "
                              "those of this computer.\n");
    EXPECT_EQ(run("average --to 2026-07-10").err, "1 reading of the first measuring day is not counted.\n")
        << "summer time is of the same zone";
}

TEST_F(AnalysisTest, AverageOfTheDemonstrationIsTheOneOfTheDocument) {
    clock.set(std::chrono::sys_days{std::chrono::year{2026} / 11 / 22} + std::chrono::hours{8});
    addPatient(u"DEMO"_s);
    ASSERT_EQ(zel({u"--simulated-monitor"_s, u"download"_s, u"--patient=DEMO"_s, u"--any-monitor"_s}).status,
              0);
    QFile file(QStringLiteral(ZEL_TEST_DATA "/../../docs/clinical.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString document = QString::fromUtf8(file.readAll());
    static const QRegularExpression row(
        u"\\| (\\d+) November[^|]*\\| (\\d+)/(\\d+),\\D*(\\d+) \\| (\\d+)/(\\d+),\\D*(\\d+) \\|"_s);
    int days = 0;
    for (const QRegularExpressionMatch& match : row.globalMatch(document)) {
        const QString day = u"2026-11-"_s + match.captured(1);
        const QString readings = QString::fromStdString(
            zel({u"readings"_s, u"--patient=DEMO"_s, u"--from"_s, day, u"--to"_s, day}).out);
        for (const int at : {2, 5}) {
            const QStringList values{match.captured(at), match.captured(at + 1), match.captured(at + 2)};
            EXPECT_TRUE(readings.section(u'\n', at == 2 ? 1 : 2, at == 2 ? 1 : 2)
                            .contains(u',' + values.join(u',') + u','))
                << readings.toStdString() << values.join(u',').toStdString();
        }
        ++days;
    }
    EXPECT_EQ(days, 7);
    const QString command = u"    $ zel average --patient DEMO --rule esh\n"_s;
    const QString printed = document.section(command, 1).section(u"\n\n"_s, 0, 0);
    const Outcome average = zel({u"average"_s, u"--patient"_s, u"DEMO"_s, u"--rule"_s, u"esh"_s});
    EXPECT_EQ(average.out, QString(printed + u'\n').replace(u"    "_s, QString()).toStdString());
    EXPECT_EQ(average.err, "2 readings of the first measuring day are not counted.\n");
}

TEST_F(AnalysisTest, WhatIsLeftOutIsTold) {
    EXPECT_EQ(run("statistics").err, "3 readings; 1 undated one not counted\n");
    EXPECT_EQ(run("statistics --undated").err, "") << "all are counted";
    EXPECT_EQ(run("statistics --from 2026-11-03").err,
              "1 reading; 2 outside the period, 1 undated one not counted\n");
    EXPECT_EQ(run("readings").err, "");
    setData(data().replace("2026-11-01T", "1700-11-01T"));
    EXPECT_THAT(run("readings --from 1700-01-01").err, testing::HasSubstr("at most 36525"));
}

TEST_F(AnalysisTest, ReadingIsLeftOutAndTakenInAgain) {
    const std::string titles = "date,time,sys,dia,pulse,map,pp,mam,arrhythmia,record,excluded\n";
    const std::string plain = of("readings");
    const QByteArray before = flatData();
    EXPECT_THAT(of("readings --numbers --to 2026-11-04"),
                testing::AllOf(testing::StartsWith(titles), testing::HasSubstr(",102,73,39,No,No,1000004,\n"),
                               testing::HasSubstr("2026-11-04,n.a.,n.a.,n.a.,n.a.,n.a.,n.a.,n.a.,n.a.,,\n")));
    const QStringList exclude{u"readings"_s, u"--patient=M1"_s, u"--exclude=1000004"_s,
                              u"--reason=cuff, loose"_s};
    const Outcome done = zel(exclude);
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.out + done.err, "");
    EXPECT_EQ(of("readings"), plain) << "it stays in the list";
    EXPECT_THAT(of("readings --numbers"), testing::HasSubstr(",1000004,\"cuff, loose\"\n"));
    EXPECT_EQ(run("readings").err,
              "1 of these readings is left out and counts nowhere; --numbers tells which, and why\n");
    EXPECT_EQ(of("statistics"), "sys: 136 120 152\ndia: 84 80 88\npulse: 69 66 71\npp: 52 40 64\n");
    EXPECT_EQ(run("statistics").err, "2 readings; 1 left out, 1 undated one not counted\n");
    EXPECT_EQ(of("statistics --last 1"), of("statistics")) << "the last day that counts";
    EXPECT_EQ(run("average --to 2026-11-03 --rule aha").err, "1 reading of the week is left out.\n");
    EXPECT_EQ(run("average --rule aha").err, "1 reading of later days is left out, too.\n");
    EXPECT_EQ(zelWith(planM1, {u"download"_s, u"--patient=M1"_s}).status, 0);
    EXPECT_EQ(flatData().count("<Excluded>"), 1);
    EXPECT_EQ(run("readings --include 1000004").status, 0);
    EXPECT_EQ(flatData(), before);
    for (const auto& [line, words] :
         {std::pair{"readings --include 1000004", "1000004 is not left out"},
          std::pair{"readings --include 1000009", "no reading with the number 1000009"},
          std::pair{"readings --delete 1000004", "neither changed nor deleted"},
          std::pair{"readings --change 1000004 --sys 120", "neither changed nor deleted"}}) {
        const Outcome refused = run(line);
        EXPECT_EQ(refused.status, 1) << line;
        EXPECT_THAT(refused.err, testing::HasSubstr(words));
    }
    EXPECT_EQ(flatData(), before);
}

TEST_F(AnalysisTest, ReadingIsTypedInChangedAndDeleted) {
    const QByteArray before = flatData();
    const char* add = "readings --add --date 2026-11-04 --time 07:05 --sys 128 --dia 82 --pulse 64";
    EXPECT_EQ(of(add), "record: 1000005\n");
    EXPECT_THAT(of("readings"), testing::HasSubstr("2026-11-04,07:05,128,82,64,97,46,No,N/A\n"));
    EXPECT_THAT(run(add).err, testing::HasSubstr("with these values already"));
    EXPECT_EQ(run("readings --change 1000005 --time 07:06 --dia 80").status, 0);
    EXPECT_THAT(of("readings"), testing::HasSubstr("2026-11-04,07:06,128,80,64,96,48,No,N/A\n"));
    EXPECT_EQ(run("readings --change 1000005 --dia 128").status, 2);
    EXPECT_EQ(run("readings --delete 1000005").status, 0);
    EXPECT_EQ(flatData(), before);
    EXPECT_EQ(zel({u"readings"_s, u"--patient=B"_s, u"--delete=1000005"_s}).status, 1);
}

TEST_F(AnalysisTest, ReadingThatTheMonitorMeasuredTooIsToldAndStaysLeftOut) {
    ASSERT_EQ(run("readings --add --date 2026-11-04 --time 07:05 --sys 128 --dia 82 --pulse 64").status, 0);
    const QByteArray measured =
        R"({"model": "37", "id": "M1", "records": [{"time": "2026-11-04T07:05", "sys": 128, "dia": 82, "pulse": 64}]})";
    const QStringList download{u"download"_s, u"--patient=M1"_s};
    EXPECT_EQ(zelWith(measured, download).out, "downloaded: 1\nnew: 1\nleft-out: 1\n");
    EXPECT_EQ(zelWith(measured, download).out, "downloaded: 1\nnew: 0\n");
    const QByteArray before = flatData();
    const Outcome refused = run("readings --include 1000005");
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.err, testing::HasSubstr("the same values counts already"));
    EXPECT_EQ(flatData(), before);
    EXPECT_EQ(zel({u"readings"_s, u"--patient=M1"_s, u"--exclude=1000006"_s, u"--reason=x"_s}).status, 0);
    EXPECT_EQ(of("readings --include 1000005"), "");
    EXPECT_EQ(of("readings --include 1000006"), "left-out: 1\n") << "what was measured is taken in";
    EXPECT_EQ(flatData(), before);
}

} // namespace

} // namespace zel
