#include "cli/CliTest.h"
#include "support/DamageAfterWrite.h"

#include <QFile>
#include <QFileInfo>

namespace zel {

using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

const QStringList downloadM1{u"download"_s, u"--patient"_s, u"M1"_s};
const QStringList readingsM1{u"readings"_s, u"--patient"_s, u"M1"_s};

/// With the patient whose ID the monitor holds.
struct JobTest : CliTest {
    JobTest() {
        addPatient(u"M1"_s);
        before = data();
    }
    void expectRefused(const Outcome& outcome, const char* reason) const {
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, HasSubstr(reason));
        EXPECT_EQ(data(), before);
    }
    QByteArray before;
};

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

/// Does something when its readings are asked for.
class WatchedPort final : public MonitorPort {
public:
    WatchedPort(std::unique_ptr<MonitorPort> device, std::function<void()> act)
        : port(std::move(device)), whenAsked(std::move(act)) {}
    PortOpen open() override { return port->open(); }
    bool isOpen() const override { return port->isOpen(); }
    bool disconnected() const override { return port->disconnected(); }
    bool write(std::span<const std::uint8_t> report) override {
        if (report.back() == '"') whenAsked();
        return port->write(report);
    }
    int read(std::span<std::uint8_t> report) override { return port->read(report); }

private:
    std::unique_ptr<MonitorPort> port;
    std::function<void()> whenAsked;
};

TEST_F(JobTest, MonitorSwappedDuringTheDownloadIsRefused) {
    plug(std::make_unique<SwappedPort>(monitor(planM1), monitor(QByteArray(planM1).replace("M1", "M2"))));
    expectRefused(zel(downloadM1), "another monitor");
}

TEST_F(JobTest, PatientWhoGoesDuringTheDownloadIsTold) {
    const QByteArray without = QByteArray(before).replace("<ID>M1</ID>", "<ID>M9</ID>");
    plug(std::make_unique<WatchedPort>(monitor(planM1), [this, &without] { setData(before = without); }));
    expectRefused(zel(downloadM1), "no patient with the ID “M1”");
    EXPECT_THAT(zel({u"monitor"_s}).out, HasSubstr("readings: 4\n")) << "nothing is erased";
}

TEST_F(JobTest, DownloadThatCannotBeReadBackIsStored) {
    plug(planM1);
    const DamageAfterWrite damage(dataFile());
    const Outcome outcome = zel(downloadM1);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "downloaded: 4\nnew: 4\n");
    EXPECT_THAT(outcome.err, HasSubstr("The readings are stored, but"));
    EXPECT_THAT(zel({u"monitor"_s}).out, HasSubstr("readings: 4\n"));
}

TEST_F(JobTest, ReadingsWhoseDateIsNoneAreUndated) {
    const QByteArray plan =
        R"({"model": "37", "id": "M1", "records": [{"raw": "zz13450000c000000481407800000000"}]})";
    ASSERT_EQ(zelWith(plan, downloadM1).out, "downloaded: 1\nnew: 1\n");
    EXPECT_EQ(zelWith(plan, downloadM1).out, "downloaded: 1\nnew: 0\n");
    EXPECT_THAT(zel(readingsM1).out, HasSubstr("\nn.a,--:--,120,"));
    EXPECT_THAT(zel(readingsM1 + QStringList{u"--to=2026-11-03"_s}).out, testing::Not(HasSubstr("n.a")));
}

TEST_F(JobTest, WholeJobFromMonitorToReadings) {
    const Outcome download = zelWith(planM1, downloadM1);
    EXPECT_EQ(download.status, 0) << download.err;
    EXPECT_EQ(download.out, "downloaded: 4\nnew: 4\n");
    EXPECT_THAT(download.err, HasSubstr("Received 4 of 4 readings\n"));
    EXPECT_EQ(zel(readingsM1).out, "date,time,sys,dia,pulse,map,pp,mam,arrhythmia\n"
                                   "n.a,--:--,118,79,64,92,39,Yes,No\n"
                                   "2026-11-02,07:05,152,88,71,109,64,Yes,Yes\n"
                                   "2026-11-02,19:30,120,80,66,93,40,No,No\n"
                                   "2026-11-03,06:59,99,60,102,73,39,No,No\n");

    before = data();
    const QByteArray blanks = QByteArray(planM1).replace("\"M1\"", "\" M1 \""); // around the ID
    EXPECT_EQ(zelWith(blanks, downloadM1).out, "downloaded: 4\nnew: 0\n");
    EXPECT_EQ(data(), before);
}

TEST_F(JobTest, ReadingsOfAPeriodAreSortedByTheirDates) {
    const QByteArray later =
        R"({"model": "37", "id": "M1", "records": [{"time": "2026-11-05T10:00", "sys": 130, "dia": 70, "pulse": 50}]})";
    ASSERT_EQ(zelWith(later, downloadM1).out, "downloaded: 1\nnew: 1\n");
    ASSERT_EQ(zelWith(planM1, downloadM1).out, "downloaded: 4\nnew: 4\n");
    const std::pair<QStringList, const char*> cases[] = {
        {{}, ".a 02 02 03 05"},
        {{u"--from"_s, u"2026-11-03"_s}, "03 05"},
        {{u"--to"_s, u"2026-11-03"_s}, "02 02 03"},
        {{u"--from=2026-11-03"_s, u"--to=2026-11-03"_s}, "03"},
        {{u"--from=2027-01-01"_s}, ""},
    };
    for (const auto& [period, days] : cases) {
        QStringList found;
        for (const QString& line :
             QString::fromStdString(zel(readingsM1 + period).out).split(u'\n', Qt::SkipEmptyParts).mid(1))
            found += line.section(u',', 0, 0).right(2);
        EXPECT_EQ(found.join(u' ').toStdString(), days);
    }
}

TEST_F(JobTest, AnotherPatientsMonitorIsRefusedUnlessAskedFor) {
    addPatient(u"P9"_s);
    before = data();
    plug(planM1);
    const QStringList download{u"download"_s, u"--patient"_s, u"P9"_s};
    for (const char* word : {"'M1'", "'P9'", "--any-monitor"})
        expectRefused(zel(download), word);

    EXPECT_EQ(zel(download + QStringList(u"--any-monitor"_s)).out, "downloaded: 4\nnew: 4\n");
    EXPECT_THAT(zel({u"monitor"_s}).out, testing::AllOf(HasSubstr("id: M1\n"), HasSubstr("readings: 0\n")))
        << "emptied, and still the other's";

    plug(QByteArray(planM1).replace("\"M1\"", "\"\""));
    EXPECT_THAT(zel(download).err, HasSubstr("holds no ID"));
}

TEST_F(JobTest, RealMonitorsReadingsDoNotGoAmongInventedOnes) {
    QFile mark(QFileInfo(dataFile()).path() + u"/Demonstration"_s);
    ASSERT_TRUE(mark.open(QIODevice::WriteOnly));
    plug(planM1);
    expectRefused(zel(downloadM1 + QStringList{u"--any-monitor"_s}), "take no readings from a real monitor");
    EXPECT_EQ(zelWith(planM1, downloadM1).status, 0) << "a simulated one is what they are for";
}

TEST_F(JobTest, MonitorIsEmptiedOnlyWhenTheSettingsSaySo) {
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

TEST_F(JobTest, FailedEraseIsToldAndTheReadingsAreKept) {
    const QByteArray plan =
        planM1.chopped(1) + R"(, "faults": [{"kind": "wrongAcknowledgement", "command": "#"}]})";
    const Outcome outcome = zelWith(plan, downloadM1);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "downloaded: 4\nnew: 4\n");
    EXPECT_THAT(outcome.err, HasSubstr("safely stored"));
    EXPECT_THAT(zel(readingsM1).out, HasSubstr("2026-11-03,06:59"));
}

TEST_F(JobTest, DownloadThatBreaksOffLeavesFileAndMonitorAsTheyWere) {
    const char* faults[] = {
        R"({"kind": "unplug", "command": "\"", "afterReports": 6})",
        R"({"kind": "badCheckField", "command": "\"", "times": 3})",
        R"({"kind": "halfAnswer", "command": "\"", "times": 3})",
    };
    for (const char* fault : faults) {
        SCOPED_TRACE(fault);
        plug(planM1.chopped(1) + R"(, "faults": [)" + fault + "]}");
        expectRefused(zel(downloadM1), "nothing was stored");
    }
    EXPECT_THAT(zel({u"monitor"_s}).out, HasSubstr("readings: 4\n")) << "after the last fault has shown";
}

TEST_F(JobTest, EmptyMonitorAddsNothingAndIsNotErased) {
    const QByteArray empty =
        R"({"model": "41", "id": "M1", "faults": [{"kind": "noAnswer", "command": "#"}]})";
    const Outcome outcome = zelWith(empty, downloadM1);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "downloaded: 0\nnew: 0\n");
    EXPECT_EQ(data(), before);
}

TEST_F(JobTest, UnreadableDataFileFailsEveryCommandAndIsLeftAlone) {
    const QByteArray spoiled[] = {before.left(before.size() / 2), "", "no XML at all",
                                  QByteArray(before).replace("ZEL>", "LEZ>"), before + "<ZEL/>"};
    const QStringList commands[] = {
        {u"patients"_s},
        {u"patients"_s, u"--add"_s, u"--id=X"_s, u"--family-name=F"_s, u"--given-names=G"_s},
        downloadM1,
        readingsM1,
    };
    for (const QByteArray& content : spoiled) {
        for (const QStringList& command : commands) {
            SCOPED_TRACE(content.left(30).toStdString() + " " + command.join(u' ').toStdString());
            setData(before = content);
            expectRefused(zelWith(planM1, command), "ZEL.xml");
        }
    }
}

} // namespace

} // namespace zel
