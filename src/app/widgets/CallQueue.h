#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

namespace zel {

/// Runs calls on the thread that it lives on, in the order in which they came from others. They go through a
/// lock of its own rather than through Qt's events, so that the thread sanitizer, for which Qt is not built,
/// sees who hands what to whom.
class CallQueue final : public QObject {
public:
    CallQueue() = default;
    /// Drops the calls that have not run.
    ~CallQueue() override;
    /// From any thread.
    void post(std::function<void()> call);

protected:
    bool event(QEvent* event) override;

private:
    std::function<void()> takeNext();

    std::mutex mutex;
    std::deque<std::function<void()>> calls;
};

} // namespace zel
