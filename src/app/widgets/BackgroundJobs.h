#pragma once

#include "app/widgets/CallQueue.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

namespace zel {

/// Runs jobs that a stick or a share may hold up for seconds, or for ever, each on a thread of its own.
class BackgroundJobs final {
public:
    using Then = std::function<void()>;

    /// \p longestWait: at the end, for what is under way; none for what only looks.
    explicit BackgroundJobs(std::chrono::milliseconds longestWait);
    BackgroundJobs(const BackgroundJobs&) = delete;
    BackgroundJobs& operator=(const BackgroundJobs&) = delete;
    /// What hangs longer than the longest wait is left to the end of the process.
    ~BackgroundJobs();

    /// \p job must own all that it uses. What it returns is called on the thread that this lives on, and
    /// dropped if this is gone by then.
    void run(const std::function<Then()>& job);

private:
    /// What both threads know.
    struct Mailbox {
        std::mutex mutex;
        std::condition_variable emptied;
        CallQueue* calls = nullptr; ///< null once nobody waits any more
        int underWay = 0;
    };
    std::chrono::milliseconds longestWait;
    CallQueue calls;
    std::shared_ptr<Mailbox> mailbox = std::make_shared<Mailbox>();
};

} // namespace zel
