#include "cli/CliTest.h"

namespace zel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::HasSubstr;

namespace {

TEST_F(CliTest, FaultLeavesFileAndMonitorInOrderAndTheNextDownloadWorks) {
    addPatient(u"M1"_s);
    const QByteArray before = data();
    ASSERT_TRUE(before.contains("<EraseRecAfterReading>1<"));
    const QStringList download{u"download"_s, u"--patient"_s, u"M1"_s};
    const QStringList readings{u"readings"_s, u"--patient"_s, u"M1"_s};
    const struct {
        const char* command;
        int reports; ///< of its answer
    } exchanges[] = {{">", 1}, {"$", 3}, {"\\\"", 12}};
    const char* kinds[] = {
        R"("kind": "unplug", "replugAfterOpens": 1)",
        R"("kind": "halfAnswer")",
        R"("kind": "wrongByte")",
        R"("kind": "surplusByte")",
        R"("kind": "late", "delayMs": 4000)",
        R"("kind": "late", "delayMs": 30000)",
    };
    for (const auto& [command, reports] : exchanges) {
        for (const char* kind : kinds) {
            for (const int report : {0, reports / 2, reports - 1}) {
                const QByteArray fault = QByteArray(R"({"times": 1, "afterReports": )")
                                         + QByteArray::number(report) + R"(, "command": ")" + command + "\", "
                                         + kind + "}";
                SCOPED_TRACE(fault.toStdString());
                setData(before);
                plug(planM1.chopped(1) + R"(, "faults": [{"times": 2, "command": ")" + command
                     + R"(", "kind": "late", "delayMs": 1}, )" + fault + "]}");
                const bool isAskedTwice =
                    command != std::string_view(">"); // the fault befalls the third time
                if (isAskedTwice) std::ignore = zel({u"monitor"_s});
                if (isAskedTwice && command == std::string_view("$")) std::ignore = zel({u"monitor"_s});
                if (command == std::string_view("\\\"")) std::ignore = zel({u"monitor"_s});

                const Outcome faulty = zel(download);
                clock.advance(30s); // so late is the latest answer
                const std::string held = zel({u"monitor"_s, u"--wait=20"_s}).out;
                EXPECT_THAT(held, HasSubstr("id: M1\n"));
                if (faulty.status == 0) {
                    EXPECT_EQ(faulty.out, "downloaded: 4\nnew: 4\n");
                    EXPECT_THAT(held, HasSubstr("readings: 0\n"));
                } else {
                    EXPECT_EQ(faulty.out, "");
                    EXPECT_NE(faulty.err, "");
                    EXPECT_EQ(data(), before);
                    EXPECT_THAT(held, HasSubstr("readings: 4\n"));
                    EXPECT_EQ(zel(download).out, "downloaded: 4\nnew: 4\n");
                }
                EXPECT_THAT(zel(readings).out, HasSubstr("\n2026-11-02,07:05,152,88,71,109,64,Yes,Yes\n"));
            }
        }
    }
}

TEST_F(CliTest, LongWaitSaysSo) {
    addPatient(u"M1"_s);
    plug(planM1.chopped(1) + R"(, "faults": [{"kind": "noAnswer", "command": "\""}]})");
    const Outcome silent = zel({u"download"_s, u"--patient"_s, u"M1"_s});
    EXPECT_THAT(silent.err,
                HasSubstr("Waiting for the monitor, for at most another 150 s. Ctrl-C cancels.\n"));
    EXPECT_THAT(silent.err, HasSubstr("another 72 s"));
    EXPECT_THAT(zel({u"monitor"_s}).err, HasSubstr("another 69 s"));
    plug(planM1.chopped(1) + R"(, "faults": [{"kind": "noAnswer", "command": ">"}]})");
    EXPECT_THAT(zel({u"monitor"_s, u"--wait=60"_s}).err, testing::StartsWith("Waiting for the monitor"));
    plug(QByteArray());
    EXPECT_THAT(zel({u"monitor"_s, u"--wait=60"_s}).err,
                testing::StartsWith("Waiting for the monitor, for at most another 57 s."));
}

} // namespace

} // namespace zel
