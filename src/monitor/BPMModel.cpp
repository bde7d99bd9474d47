#include "monitor/BPMModel.h"

#include "monitor/Log.h"
#include "monitor/MonitorFrames.h"
#include "monitor/ReadingDecoder.h"
#include "store/Text.h"

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

struct CapabilityRow {
    std::string_view code;
    ModelCapability capability;
};

constexpr ModelCapability afib{.isAFib = true};
constexpr ModelCapability pad{.isPAD = true};
constexpr ModelCapability neither{};

constexpr std::array<CapabilityRow, 16> gsVersionSpec{{
    {"35", pad},
    {"36", pad},
    {"41", afib},
    {"42", afib},
    {"37", neither},
    {"38", neither},
    {"31", pad},
    {"32", pad},
    {"43", afib},
    {"44", afib},
    {"33", neither},
    {"34", neither},
    {"39", pad},
    {"3A", pad},
    {"3B", pad},
    {"3C", pad},
}};

constexpr int mostTries = 3;
const QString timePattern = u"yyyyMMddHHmmss"_s;

/// Tries up to three times and says in the log what failed; an interrupted try is the last one.
/// \param attempt called with the number of the try
/// \param failed logs one failed try
template <class Attempt, class Failed>
auto withRetries(const char* command, const Attempt& attempt, const Failed& failed) {
    auto outcome = attempt(1);
    for (int tries = 1; !outcome && outcome.error() != MonitorResult::interrupted; ++tries) {
        failed(tries, outcome.error());
        if (tries == mostTries) {
            qCWarning(lcMonitor, "%s fail at %i times, give up!\n", command, tries);
            break;
        }
        outcome = attempt(tries + 1);
    }
    return outcome;
}

template <class Attempt>
auto withRetries(const char* command, const Attempt& attempt) {
    return withRetries(command, attempt, [command](int tries, MonitorResult) {
        qCWarning(lcMonitor, "%s fail at %i times\n", command, tries);
    });
}

QString fromMonitor(std::string_view bytes) {
    return QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
}

Instant inMilliseconds(WallTime time) { return std::chrono::floor<std::chrono::milliseconds>(time); }

} // namespace

struct BPMModel::Link {
    Link(MonitorPort& port, Clock& wallClock)
        : clock(wallClock), transport(port, wallClock), commands(transport) {}

    Clock& clock;
    MonitorTransport transport;
    MonitorCommands commands;
    QString gsVersion; ///< model code of the monitor last asked; empty after a failure
    MonitorResult lastResult = MonitorResult::noDevice;
};

BPMModel::BPMModel(MonitorPort& port, Clock& clock) : link(std::make_unique<Link>(port, clock)) {}
BPMModel::~BPMModel() = default;

bool BPMModel::isAFib() const { return capability(link->gsVersion).isAFib; }
bool BPMModel::isPAD() const { return capability(link->gsVersion).isPAD; }
bool BPMModel::IsConnected() const { return link->lastResult == MonitorResult::success; }
MonitorResult BPMModel::lastResult() const { return link->lastResult; }

bool BPMModel::checkIsConnected() {
    const auto version = getBPMVersion();
    link->lastResult = version ? MonitorResult::success : version.error();
    return IsConnected();
}

MonitorExpected<QString> BPMModel::getBPMVersion() {
    link->gsVersion.clear();
    const auto reply = link->commands.getBPMVersion();
    if (!reply) return tl::unexpected(reply.error());
    link->gsVersion = fromMonitor(std::string_view(*reply).substr(versionPrefix.size(), 2)).toUpper();
    return link->gsVersion;
}

MonitorExpected<QString> BPMModel::getBPMID() {
    return link->commands.getBPMID().map([](const std::string& ID) { return TrimStr(fromMonitor(ID)); });
}

MonitorResult BPMModel::sendID(const QString& ID, bool clear) {
    qCDebug(lcMonitor, "sendID %ls", qUtf16Printable(ID));
    if (!fitsMonitor(ID)) return MonitorResult::unfitID;
    const MonitorResult result = link->commands.sendID(ID.toLatin1().toStdString(), clear);
    qCInfo(lcMonitor, "sendID result:%i", static_cast<int>(result));
    return result;
}

MonitorResult BPMModel::eraseData(const QString& currentID) { return sendID(currentID, true); }

MonitorExpected<int> BPMModel::getBPMCycleDataCount() {
    return withRetries("getBPMCycleDataCount", [this](int) { return link->commands.getBPMCycleDataCount(); });
}

MonitorExpected<std::vector<ReadingModel>> BPMModel::getBPMCycleData(const DownloadProgress& progress) {
    const auto data = withRetries(
        "getBPMCycleData", [&](int attempt) { return link->commands.getBPMCycleData(progress, attempt); },
        [](int tries, MonitorResult result) {
            qCWarning(lcMonitor, "getBPMCycleData fail at %i times, error code:%i\n", tries,
                      static_cast<int>(result));
        });
    if (!data) return tl::unexpected(data.error());
    std::vector<ReadingModel> readings;
    const ModelCapability model = capability(link->gsVersion);
    const QString ID = fromMonitor(data->ID);
    for (int i = 0; i < data->count; ++i) {
        const auto offset = recordsHeaderLength + static_cast<std::size_t>(i) * recordLength;
        readings.push_back(
            initWithUSBData(std::string_view(data->bytes).substr(offset, recordLength), ID, model));
    }
    qCInfo(lcMonitor, "%s", data->count == 0 ? "get Cycle Data -->  no data" : "get Cycle Data -->  OK");
    return readings;
}

MonitorExpected<Instant> BPMModel::readBPMDate() {
    // The log says the download's name here, as it always has.
    const auto reply = withRetries("getBPMCycleData", [this](int) { return link->commands.getBPMDate(); });
    if (!reply) return tl::unexpected(reply.error());
    const QString r = fromMonitor(*reply);
    const Date date = StrToDate(u"20"_s + r.mid(4, 2) + r.left(4) + r.mid(8, 6), timePattern);
    if (!date) return tl::unexpected(MonitorResult::badFixedContent);
    return *date;
}

MonitorResult BPMModel::setBPMDate() {
    const QString now = DateToStr(inMilliseconds(link->clock.now()), timePattern);
    return link->commands.setBPMDate(now.toLatin1().toStdString());
}

void BPMModel::quietLine() {
    const auto lock = link->transport.exchange();
    link->transport.clearAndClose();
}

void BPMModel::interrupt() { link->transport.interrupt(); }
void BPMModel::resume() { link->transport.resume(); }

bool BPMModel::fitsMonitor(const QString& ID) {
    const auto printable = [](QChar c) { return c >= u' ' && c <= u'~'; };
    return !ID.isEmpty() && ID.size() <= qsizetype(longestID) && std::ranges::all_of(ID, printable)
           && ID == TrimStr(ID);
}

ModelCapability BPMModel::capability(const QString& version) {
    const auto row = std::ranges::find(gsVersionSpec, version.toStdString(), &CapabilityRow::code);
    return row == gsVersionSpec.end() ? neither : row->capability;
}

} // namespace zel
