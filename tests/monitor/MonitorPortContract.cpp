#include "MonitorPortContract.h"

#include "monitor/FrameCodec.h"

namespace zel {
namespace {

/// Reads until the reply is complete, or nothing has come for long.
std::string readReply(PortOnTrial& trial, std::size_t wanted) {
    constexpr int patience = 3000;
    std::string reply;
    std::array<std::uint8_t, 256> report{};
    for (int idle = 0; reply.size() < wanted && idle < patience;) {
        const int length = trial.port->read(report);
        if (length < 0) return "failed after " + reply;
        if (length == 0) trial.settle();
        idle = length == 0 ? idle + 1 : 0;
        reply += reportPayload(std::span(report).first(static_cast<std::size_t>(length)), reply.empty());
    }
    return reply;
}

std::string askVersion(PortOnTrial& trial) {
    if (!trial.port->write(commandFrame(Command::version))) return "not written";
    return readReply(trial, 12);
}

void expectDead(MonitorPort& port) {
    std::array<std::uint8_t, 256> report{};
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(port.read(report), -1);
    EXPECT_TRUE(port.disconnected());
    EXPECT_FALSE(port.write(commandFrame(Command::version)));
    EXPECT_TRUE(port.disconnected());
}

} // namespace

TEST_P(MonitorPortContract, AbsentIsToldAndNothingIsOpen) {
    PortOnTrial trial = GetParam()();
    trial.unplug();
    EXPECT_EQ(trial.port->open(), PortOpen::absent);
    EXPECT_FALSE(trial.port->isOpen());
    std::array<std::uint8_t, 256> report{};
    EXPECT_EQ(trial.port->read(report), -1);
    EXPECT_FALSE(trial.port->write(commandFrame(Command::version)));
    trial.plug();
    EXPECT_EQ(trial.port->open(), PortOpen::opened);
}

TEST_P(MonitorPortContract, SilenceIsZeroAndRepliesComeBack) {
    PortOnTrial trial = GetParam()();
    ASSERT_EQ(trial.port->open(), PortOpen::opened);
    EXPECT_TRUE(trial.port->isOpen());
    std::array<std::uint8_t, 256> report{};
    for (int i = 0; i < 20; ++i) {
        trial.settle();
        EXPECT_EQ(trial.port->read(report), 0);
    }
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(askVersion(trial), "3035304131F7");
    EXPECT_FALSE(trial.port->disconnected());
    ASSERT_EQ(trial.port->open(), PortOpen::opened); // over an open handle
    EXPECT_EQ(askVersion(trial), "3035304131F7");
}

TEST_P(MonitorPortContract, UnpluggedHandleDeliversWhatIsQueuedAndNeverRevives) {
    PortOnTrial trial = GetParam()();
    ASSERT_EQ(trial.port->open(), PortOpen::opened);
    ASSERT_TRUE(trial.port->write(commandFrame(Command::version)));
    for (int i = 0; i < 500; ++i)
        trial.settle();
    trial.unplug();
    EXPECT_EQ(readReply(trial, 12), "3035304131F7");
    EXPECT_EQ(readReply(trial, 1), "failed after "); // a real bus may take a moment to notice
    expectDead(*trial.port);
    trial.plug();
    expectDead(*trial.port);
    ASSERT_EQ(trial.port->open(), PortOpen::opened);
    EXPECT_FALSE(trial.port->disconnected());
    EXPECT_EQ(askVersion(trial), "3035304131F7");
}

} // namespace zel
