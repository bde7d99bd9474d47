#pragma once

#include "cli/Surroundings.h"
#include "monitor/SimulatedMonitor.h"
#include "support/ManualClock.h"

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <string>

namespace zel {

/// What a command left behind.
struct Outcome {
    int status = -1;
    std::string out;
    std::string err;
};

/// Runs commands on a home of its own, with a clock that stands still.
class CliTest : public testing::Test {
protected:
    CliTest();

    Outcome zel(const QStringList& arguments);
    /// As zel(), with a monitor in software of this plan.
    Outcome zelWith(const QByteArray& plan, const QStringList& arguments);
    /// Plugs in a monitor that keeps its state from one command to the next; a null one unplugs it.
    void plug(const QByteArray& plan);
    void plug(std::unique_ptr<MonitorPort> port) { plugged = std::move(port); }
    [[nodiscard]] std::unique_ptr<MonitorPort> monitor(const QByteArray& plan) const;

    void addPatient(const QString& ID);
    [[nodiscard]] QString dataFile() const;
    [[nodiscard]] QByteArray data() const; ///< the whole data file
    void setData(const QByteArray& content) const;

    QTemporaryDir folder;
    ManualClock clock;
    QPageSize usualPaper{QPageSize::A4};
    PortOpen whenUnplugged = PortOpen::absent;

private:
    [[nodiscard]] QString write(const QByteArray& plan) const;
    cli::AttachedMonitor attach(const std::optional<QString>& simulated);

    std::unique_ptr<MonitorPort> plugged;
};

/// Four readings: averaged with a finding, two later, one undated; a monitor that detects AFib with the ID
/// M1.
extern const QByteArray planM1;

} // namespace zel
