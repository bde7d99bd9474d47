#include "cli/CliTest.h"

#include "cli/Commands.h"

#include <QDir>
#include <QFile>

#include <sstream>

namespace zel {

using namespace Qt::StringLiterals;

const QByteArray planM1 = R"({"model": "41", "id": "M1", "clockOffsetSeconds": 30, "records": [
    {"time": "2026-11-02T07:05", "flag": 1, "sys": 152, "dia": 88, "pulse": 71},
    {"time": "2026-11-02T19:30", "flag": "0", "sys": 120, "dia": 80, "pulse": 66},
    {"time": "undated", "flag": "1", "sys": 118, "dia": 79, "pulse": 64},
    {"time": "2026-11-03T06:59", "flag": "0", "sys": 99, "dia": 60, "pulse": 102}]})";

namespace {

/// A cable to a monitor that goes on existing when the command that used it has ended.
class Cable final : public MonitorPort {
public:
    Cable(MonitorPort* device, PortOpen without) : monitor(device), absence(without) {}
    PortOpen open() override { return monitor ? monitor->open() : absence; }
    [[nodiscard]] bool isOpen() const override { return monitor && monitor->isOpen(); }
    [[nodiscard]] bool disconnected() const override { return monitor && monitor->disconnected(); }
    bool write(std::span<const std::uint8_t> report) override { return monitor && monitor->write(report); }
    int read(std::span<std::uint8_t> report) override { return monitor ? monitor->read(report) : -1; }

private:
    MonitorPort* monitor;
    PortOpen absence;
};

} // namespace

CliTest::CliTest() {
    QDir(folder.path()).mkdir(u"home"_s);
    QDir(folder.path()).mkdir(u"program"_s);
}

Outcome CliTest::zel(const QStringList& arguments) {
    std::ostringstream out;
    std::ostringstream err;
    cli::Surroundings around{.out = out,
                             .err = err,
                             .clock = clock,
                             .usualPaper = usualPaper,
                             .paths = {.home = folder.filePath(u"home"_s),
                                       .applicationFolder = folder.filePath(u"program"_s),
                                       .templateFolder = u":/templates"_s},
                             .attach = [this](const auto& simulated) { return attach(simulated); }};
    const int status = cli::run(arguments, around);
    return {status, out.str(), err.str()};
}

Outcome CliTest::zelWith(const QByteArray& plan, const QStringList& arguments) {
    return zel(QStringList{u"--simulated-monitor="_s + write(plan)} + arguments);
}

void CliTest::plug(const QByteArray& plan) { plugged = plan.isNull() ? nullptr : monitor(plan); }

cli::AttachedMonitor CliTest::attach(const std::optional<QString>& simulated) {
    if (simulated) return makeSimulatedMonitor(*simulated, clock);
    return std::make_unique<Cable>(plugged.get(), whenUnplugged);
}

std::unique_ptr<MonitorPort> CliTest::monitor(const QByteArray& plan) const {
    return std::move(*makeSimulatedMonitor(write(plan), clock));
}

QString CliTest::write(const QByteArray& plan) const {
    QFile file(folder.filePath(u"plan.json"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(plan) == plan.size());
    return file.fileName();
}

void CliTest::addPatient(const QString& ID) {
    ASSERT_EQ(zel({u"patients"_s, u"--add"_s, u"--id"_s, ID, u"--family-name"_s, u"Adams"_s,
                   u"--given-names"_s, u"Anna"_s})
                  .status,
              0);
}

QString CliTest::dataFile() const {
    return folder.filePath(u"home/Library/Application Support/ZELMac/ZEL.xml"_s);
}

QByteArray CliTest::data() const {
    QFile file(dataFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void CliTest::setData(const QByteArray& content) const {
    QFile file(dataFile());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

} // namespace zel
