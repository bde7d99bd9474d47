#include "cli/CliTest.h"

#include <QFile>

namespace zel {

using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

const QStringList downloadM1{u"download"_s, u"--patient"_s, u"M1"_s};
const QStringList readingsM1{u"readings"_s, u"--patient"_s, u"M1"_s};

/// One monitor that is pulled out when its readings are asked for, and another in its place.
class SwappedPort final : public MonitorPort {
public:
    SwappedPort(std::unique_ptr<MonitorPort> one, std::unique_ptr<MonitorPort> other)
        : port(std::move(one)), next(std::move(other)) {}
    PortOpen open() override {
        if (pulled && next) port = std::move(next);
        pulled = false;
        return port->open();
    }
    bool isOpen() const override { return port->isOpen(); }
    bool disconnected() const override { return pulled || port->disconnected(); }
    bool write(std::span<const std::uint8_t> report) override {
        pulled = next && report.back() == '"';
        return !pulled && port->write(report);
    }
    int read(std::span<std::uint8_t> report) override { return pulled ? -1 : port->read(report); }

private:
    std::unique_ptr<MonitorPort> port;
    std::unique_ptr<MonitorPort> next;
    bool pulled = false;
};

TEST_F(CliTest, MonitorSwappedDuringTheDownloadIsRefused) {
    addPatient(u"M1"_s);
    const QByteArray before = data();
    plug(std::make_unique<SwappedPort>(monitor(planM1), monitor(QByteArray(planM1).replace("M1", "M2"))));
    const Outcome outcome = zel(downloadM1);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.err, HasSubstr("another monitor"));
    EXPECT_EQ(data(), before);
}

TEST_F(CliTest, ReadingsWhoseDateIsNoneAreUndated) {
    addPatient(u"M1"_s);
    const QByteArray plan =
        R"({"model": "37", "id": "M1", "records": [{"raw": "zz13450000c000000481407800000000"}]})";
    ASSERT_EQ(zelWith(plan, downloadM1).out, "downloaded: 1\nnew: 1\n");
    EXPECT_THAT(zel(readingsM1).out, HasSubstr("\nn.a,--:--,120,"));
    EXPECT_THAT(zel(readingsM1 + QStringList{u"--to=2026-11-03"_s}).out, testing::Not(HasSubstr("n.a")));
}

TEST_F(CliTest, WholeJobFromMonitorToReadings) {
    addPatient(u"M1"_s);
    const Outcome download = zelWith(planM1, downloadM1);
    EXPECT_EQ(download.status, 0) << download.err;
    EXPECT_EQ(download.out, "downloaded: 4\nnew: 4\n");
    EXPECT_THAT(download.err, HasSubstr("Received 4 of 4 readings\n"));
    EXPECT_EQ(zel(readingsM1).out, "date,time,sys,dia,pulse,map,pp,mam,arrhythmia\n"
                                   "n.a,--:--,118,79,64,92,39,Yes,No\n"
                                   "2026-11-02,07:05,152,88,71,109,64,Yes,Yes\n"
                                   "2026-11-02,19:30,120,80,66,93,40,No,No\n"
                                   "2026-11-03,06:59,99,60,102,73,39,No,No\n");

    const QByteArray before = data();
    EXPECT_EQ(zelWith(planM1, downloadM1).out, "downloaded: 4\nnew: 0\n");
    EXPECT_EQ(data(), before);
}

TEST_F(CliTest, ReadingsOfAPeriodAreSortedByTheirDates) {
    addPatient(u"M1"_s);
    const QByteArray later =
        R"({"model": "37", "id": "M1", "records": [{"time": "2026-11-05T10:00", "sys": 130, "dia": 70, "pulse": 50}]})";
    ASSERT_EQ(zelWith(later, downloadM1).out, "downloaded: 1\nnew: 1\n");
    ASSERT_EQ(zelWith(planM1, downloadM1).out, "downloaded: 4\nnew: 4\n");
    const auto days = [this](const QStringList& period) {
        QStringList found;
        for (const QString& line :
             QString::fromStdString(zel(readingsM1 + period).out).split(u'\n', Qt::SkipEmptyParts).mid(1))
            found += line.section(u',', 0, 0).right(2);
        return found.join(u' ').toStdString();
    };
    EXPECT_EQ(days({}), ".a 02 02 03 05");
    EXPECT_EQ(days({u"--from"_s, u"2026-11-03"_s}), "03 05");
    EXPECT_EQ(days({u"--to"_s, u"2026-11-03"_s}), "02 02 03");
    EXPECT_EQ(days({u"--from=2026-11-03"_s, u"--to=2026-11-03"_s}), "03");
    EXPECT_EQ(days({u"--from=2027-01-01"_s}), "");
}

TEST_F(CliTest, AnotherPatientsMonitorIsRefusedUnlessAskedFor) {
    addPatient(u"P9"_s);
    plug(planM1);
    const QByteArray before = data();
    const Outcome refused = zel({u"download"_s, u"--patient"_s, u"P9"_s});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.err,
                testing::AllOf(HasSubstr("'M1'"), HasSubstr("'P9'"), HasSubstr("--any-monitor")));
    EXPECT_EQ(data(), before);

    EXPECT_EQ(zel({u"download"_s, u"--patient"_s, u"P9"_s, u"--any-monitor"_s}).out,
              "downloaded: 4\nnew: 4\n");
    EXPECT_THAT(zel({u"monitor"_s}).out, testing::AllOf(HasSubstr("id: M1\n"), HasSubstr("readings: 0\n")))
        << "emptied, and still the other's";

    plug(QByteArray(planM1).replace("\"M1\"", "\"\""));
    EXPECT_THAT(zel({u"download"_s, u"--patient"_s, u"P9"_s}).err, HasSubstr("holds no ID"));
}

TEST_F(CliTest, MonitorIsEmptiedOnlyWhenTheSettingsSaySo) {
    addPatient(u"M1"_s);
    plug(planM1);
    QByteArray kept = data();
    ASSERT_NE(kept.indexOf("<EraseRecAfterReading>1<"), -1);
    setData(kept.replace("<EraseRecAfterReading>1<", "<EraseRecAfterReading>0<"));
    ASSERT_EQ(zel(downloadM1).status, 0);
    EXPECT_THAT(zel({u"monitor"_s}).out, HasSubstr("readings: 4\n"));
    setData(data().replace("<EraseRecAfterReading>0<", "<EraseRecAfterReading>1<"));
    ASSERT_EQ(zel(downloadM1).out, "downloaded: 4\nnew: 0\n");
    EXPECT_THAT(zel({u"monitor"_s}).out, HasSubstr("readings: 0\n"));
}

TEST_F(CliTest, FailedEraseIsToldAndTheReadingsAreKept) {
    addPatient(u"M1"_s);
    const QByteArray plan =
        planM1.chopped(1) + R"(, "faults": [{"kind": "wrongAcknowledgement", "command": "#"}]})";
    const Outcome outcome = zelWith(plan, downloadM1);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "downloaded: 4\nnew: 4\n");
    EXPECT_THAT(outcome.err, HasSubstr("safely stored"));
    EXPECT_THAT(zel(readingsM1).out, HasSubstr("2026-11-03,06:59"));
}

TEST_F(CliTest, DownloadThatBreaksOffLeavesFileAndMonitorAsTheyWere) {
    addPatient(u"M1"_s);
    const QByteArray before = data();
    const char* faults[] = {
        R"({"kind": "unplug", "command": "\"", "afterReports": 6})",
        R"({"kind": "badCheckField", "command": "\"", "times": 3})",
        R"({"kind": "halfAnswer", "command": "\"", "times": 3})",
    };
    for (const char* fault : faults) {
        SCOPED_TRACE(fault);
        plug(planM1.chopped(1) + R"(, "faults": [)" + fault + "]}");
        const Outcome outcome = zel(downloadM1);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, HasSubstr("nothing was stored"));
        EXPECT_EQ(data(), before);
    }
    EXPECT_THAT(zel({u"monitor"_s}).out, HasSubstr("readings: 4\n")) << "after the last fault has shown";
}

TEST_F(CliTest, EmptyMonitorAddsNothingAndIsNotErased) {
    addPatient(u"M1"_s);
    const QByteArray before = data();
    const QByteArray empty =
        R"({"model": "41", "id": "M1", "faults": [{"kind": "noAnswer", "command": "#"}]})";
    const Outcome outcome = zelWith(empty, downloadM1);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "downloaded: 0\nnew: 0\n");
    EXPECT_EQ(data(), before);
}

TEST_F(CliTest, UnreadableDataFileFailsEveryCommandAndIsLeftAlone) {
    addPatient(u"M1"_s);
    const QByteArray good = data();
    const QByteArray spoiled[] = {good.left(good.size() / 2), "", "no XML at all",
                                  QByteArray(good).replace("ZEL>", "LEZ>"), good + "<ZEL/>"};
    const QStringList commands[] = {
        {u"patients"_s},
        {u"patients"_s, u"--add"_s, u"--id=X"_s, u"--family-name=F"_s, u"--given-names=G"_s},
        downloadM1,
        readingsM1,
    };
    for (const QByteArray& content : spoiled) {
        for (const QStringList& command : commands) {
            SCOPED_TRACE(content.left(30).toStdString() + " " + command.join(u' ').toStdString());
            setData(content);
            const Outcome outcome = zelWith(planM1, command);
            EXPECT_EQ(outcome.status, 1);
            EXPECT_EQ(outcome.out, "");
            EXPECT_THAT(outcome.err, HasSubstr("ZEL.xml"));
            EXPECT_EQ(data(), content);
        }
    }
}

} // namespace

} // namespace zel
