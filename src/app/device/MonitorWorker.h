#pragma once

#include "app/widgets/CallQueue.h"
#include "monitor/BPMModel.h"

#include <QObject>
#include <QPointer>
#include <QThread>

#include <functional>
#include <utility>

namespace zel {

/// The one owner of the monitor: exchanges run on its thread one after the other, so the main thread never
/// waits for them. Everything but hand() is called on the main thread.
class MonitorWorker final : public QObject {
public:
    MonitorWorker(MonitorPort& port, Clock& clock);
    ~MonitorWorker() override;

    /// Runs \p job(BPMModel&) on the monitor's thread and then \p then(its result) on the main thread, unless
    /// \p context has died or the worker was stopped by then. Jobs and results keep their order.
    template <class Job, class Then>
    void submit(QObject* context, Job job, Then then) {
        run([this, home = QPointer<QObject>(context), job = std::move(job),
             then = std::move(then)]() mutable {
            hand(home, [result = job(model), then = std::move(then)]() mutable { then(std::move(result)); });
        });
    }
    /// For jobs that tell of their progress: runs \p call on the main thread, under submit()'s conditions.
    void hand(const QPointer<QObject>& context, std::function<void()> call);

    /// Ends the exchange that is under way, and later ones until resume(), with `interrupted`.
    void interrupt() { model.interrupt(); }
    void resume() { model.resume(); }
    /// Ends what is under way and joins the thread; later jobs are dropped.
    /// \return false when a device that blocks has held the thread for longer than this, and still does: it
    /// then uses the port, and the destructor waits for it
    bool stop(std::chrono::milliseconds longest = std::chrono::seconds{2});

private:
    void run(std::function<void()> work);

    BPMModel model;
    CallQueue jobs;    ///< lives on the thread
    CallQueue results; ///< lives on the main thread
    QThread thread;
    bool stopped = false;
};

} // namespace zel
