#include "app/device/MonitorWorker.h"

namespace zel {

using namespace Qt::StringLiterals;

MonitorWorker::MonitorWorker(MonitorPort& port, Clock& clock) : model(port, clock) {
    thread.setObjectName(u"monitor"_s);
    jobs.moveToThread(&thread);
    thread.start();
}

MonitorWorker::~MonitorWorker() { stop(); }

void MonitorWorker::run(std::function<void()> work) {
    if (!stopped) jobs.post(std::move(work));
}

void MonitorWorker::hand(const QPointer<QObject>& context, std::function<void()> call) {
    results.post([this, context, call = std::move(call)] {
        if (context && !stopped) call();
    });
}

void MonitorWorker::stop() {
    if (stopped) return;
    stopped = true;
    model.interrupt();
    thread.quit();
    thread.wait();
}

} // namespace zel
