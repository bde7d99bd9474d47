#include "cli/WireTest.h"

#include <QRegularExpression>

namespace zel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A look at a line on which nothing is: a slow computer's, so that a wait takes few of them.
constexpr auto idleLook = 9ms;

} // namespace

Wire::Wire(SimulatedMonitorPlan plan, ManualClock& wallClock)
    : clock(wallClock), monitor(std::make_unique<SimulatedMonitor>(std::move(plan), wallClock)) {}

void Wire::swapOnce(std::function<bool()> isPulled, SimulatedMonitorPlan plan) {
    other = std::make_unique<SimulatedMonitor>(std::move(plan), clock);
    pulled = std::move(isPulled);
}

std::size_t Wire::held() const { return monitor->count(); }

bool Wire::isGone() {
    if (place == Place::monitor && pulled()) place = Place::nowhere;
    return place == Place::nowhere;
}

PortOpen Wire::open() {
    if (isGone()) place = Place::other;
    isLost = false;
    return there().open();
}

bool Wire::write(std::span<const std::uint8_t> report) {
    isLost = isLost || isGone();
    return !isLost && there().write(report);
}

int Wire::read(std::span<std::uint8_t> report) {
    isLost = isLost || isGone();
    if (isLost) return -1;
    const int length = there().read(report);
    if (length > 0) ++delivered;
    if (length == 0) clock.advance(idleLook);
    return length;
}

WireTest::WireTest() : quickDisk(folder.path(), 0) {
    addPatient(u"M1"_s);
    before = data();
    EXPECT_TRUE(before.contains("<EraseRecAfterReading>1<"));
    attach(fullMonitor());
    EXPECT_EQ(download().outcome.out, "downloaded: 255\nnew: 255\n");
    whole = content();
    EXPECT_EQ(whole.count("<MeasureRec>"), 255);
    EXPECT_EQ(whole.count("<NumofRecord>255<"), 1);
}

SimulatedMonitorPlan WireTest::fullMonitor(const QByteArray& ID, int sys) {
    SimulatedMonitorPlan plan{.ID = ID.toStdString(), .reportSizes = {8}};
    for (int i = 0; i < 255; ++i) {
        const QString time =
            u"2610%1%2"_s.arg(i / 24 + 1, 2, 10, QChar(u'0')).arg(i % 24 * 100, 4, 10, QChar(u'0'));
        plan.records.push_back(
            encode({.time = time, .flag = 1, .sys = (sys + i) % 256, .dia = 80, .pulse = 60}));
    }
    return plan;
}

Wire& WireTest::attach(SimulatedMonitorPlan plan) {
    clock.set(start);
    setData(before);
    auto wire = std::make_unique<Wire>(std::move(plan), clock);
    Wire& attached = *wire;
    CliTest::plug(std::move(wire));
    return attached;
}

WireTest::Download WireTest::download(const QStringList& more) {
    const WallTime begin = clock.now();
    Download done;
    static QStringList warnings; // a message handler takes no context
    warnings.clear();
    const auto previous =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& line) {
            if (type == QtWarningMsg && QLatin1StringView(context.category) == "zel.monitor"_L1)
                warnings << line;
        });
    done.outcome = zel(QStringList{u"download"_s, u"--patient=M1"_s} + more);
    qInstallMessageHandler(previous);
    done.warnings = warnings;
    done.took = clock.now() - begin;
    EXPECT_LE(done.took, longestDownload);
    return done;
}

QByteArray WireTest::content() const {
    static const QRegularExpression time(u"<TransferDate>[^<]*<"_s);
    return QString::fromUtf8(data()).replace(time, u"<TransferDate><"_s).toUtf8();
}

} // namespace zel
