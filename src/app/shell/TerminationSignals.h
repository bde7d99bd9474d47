#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

namespace zel {

/// Turns SIGINT, SIGTERM and SIGHUP into a Qt signal. Made before any other thread is, which then inherits
/// that they are not delivered to it.
class TerminationSignals final : public QObject {
    Q_OBJECT
public:
    TerminationSignals();
    ~TerminationSignals() override;
    /// Once there is an application to be told.
    void watch();

signals:
    void terminated();

private:
    int descriptor;
    std::unique_ptr<QSocketNotifier> notifier;
};

} // namespace zel
