#include "app/device/MonitorWorker.h"

#include <QDeadlineTimer>

namespace zel {

using namespace Qt::StringLiterals;

MonitorWorker::MonitorWorker(MonitorPort& port, Clock& clock) : model(port, clock) {
    thread.setObjectName(u"monitor"_s);
    jobs.moveToThread(&thread);
    thread.start();
}

MonitorWorker::~MonitorWorker() {
    if (!stop()) thread.wait();
}

void MonitorWorker::run(std::function<void()> work) {
    if (!stopped) jobs.post(std::move(work));
}

void MonitorWorker::hand(const QPointer<QObject>& context, std::function<void()> call) {
    results.post([this, context, call = std::move(call)] {
        if (context && !stopped) call();
    });
}

bool MonitorWorker::stop(std::chrono::milliseconds longest) {
    if (stopped) return thread.isFinished();
    stopped = true;
    model.interrupt();
    thread.quit();
    return thread.wait(QDeadlineTimer(longest));
}

} // namespace zel
