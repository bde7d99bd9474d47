#include "app/device/MonitorWorker.h"
#include "support/ManualClock.h"

#include <gtest/gtest.h>

#include <semaphore>

namespace zel {
namespace {

using namespace std::chrono_literals;

/// A device whose opening hangs until it is let go.
class BlockingPort final : public MonitorPort {
public:
    PortOpen open() override {
        entered.release();
        released.acquire();
        return PortOpen::absent;
    }
    bool isOpen() const override { return false; }
    bool disconnected() const override { return false; }
    bool write(std::span<const std::uint8_t>) override { return false; }
    int read(std::span<std::uint8_t>) override { return -1; }

    std::binary_semaphore entered{0};
    std::binary_semaphore released{0};
};

TEST(MonitorWorker, StopsInTimeThoughTheDeviceBlocks) {
    BlockingPort port;
    ManualClock clock;
    MonitorWorker worker(port, clock);
    const auto ask = [](BPMModel& model) { return model.checkIsConnected(); };
    worker.submit(&worker, ask, [](bool) { ADD_FAILURE() << "no result after the stop"; });
    port.entered.acquire();
    EXPECT_FALSE(worker.stop(1ms));
    EXPECT_FALSE(worker.stop()) << "nor is it waited for again";
    port.released.release();
}

TEST(MonitorWorker, StopsAtOnceWhenTheDeviceDoesNot) {
    BlockingPort port;
    ManualClock clock;
    MonitorWorker worker(port, clock);
    EXPECT_TRUE(worker.stop());
    EXPECT_TRUE(worker.stop());
}

} // namespace
} // namespace zel
