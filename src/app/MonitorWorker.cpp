#include "app/MonitorWorker.h"

namespace zel {

using namespace Qt::StringLiterals;

MonitorWorker::MonitorWorker(MonitorPort& port, Clock& clock) : model(port, clock) {
    thread.setObjectName(u"monitor"_s);
    executor.moveToThread(&thread);
    thread.start();
}

MonitorWorker::~MonitorWorker() { stop(); }

void MonitorWorker::run(std::function<void()> work) {
    if (stopped) return;
    QMetaObject::invokeMethod(&executor, std::move(work), Qt::QueuedConnection);
}

void MonitorWorker::hand(const QPointer<QObject>& context, std::function<void()> call) {
    QMetaObject::invokeMethod(
        this,
        [this, context, call = std::move(call)] {
            if (context && !stopped) call();
        },
        Qt::QueuedConnection);
}

void MonitorWorker::stop() {
    if (stopped) return;
    stopped = true;
    model.interrupt();
    thread.quit();
    thread.wait();
}

} // namespace zel
