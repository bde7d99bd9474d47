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
constexpr std::chrono::seconds headerWait{24};
constexpr std::chrono::seconds quietTime{3};
constexpr std::chrono::seconds silentModelWait{6}; ///< twice as long as for one answer
/// A clock that was just set is off by the time that setting and reading it took.
constexpr auto clockTolerance = std::chrono::seconds{30};
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

/// How long a monitor that says nothing keeps the tries waiting that come after this one. Each waits for the
/// header, longer than the one before, and then for a quiet line.
std::chrono::seconds laterDownloads(int attempt) {
    std::chrono::seconds time = quietTime;
    for (int later = attempt + 1; later <= mostTries; ++later)
        time += later * headerWait + quietTime;
    return time;
}

WaitNotice withLaterTries(const WaitNotice& waiting, std::chrono::seconds later) {
    if (!waiting) return {};
    return [=](std::chrono::seconds left) { waiting(left + later); };
}

/// The computer's local time.
QString localTimeText(const Clock& clock) {
    return DateToStr(std::chrono::floor<std::chrono::milliseconds>(clock.now()), timePattern);
}

/// Whether a change that was acknowledged was made: some other report may have been taken for the
/// acknowledgement, and no monitor acknowledges the frame behind it.
/// \param held what the monitor says afterwards
template <class T, class Right>
MonitorResult confirmed(const MonitorExpected<T>& held, const Right& isRight) {
    if (held) return isRight(*held) ? MonitorResult::success : MonitorResult::notTaken;
    switch (held.error()) {
    case MonitorResult::interrupted: return MonitorResult::interrupted;
    case MonitorResult::clockNotSet: return MonitorResult::notTaken;
    default: return MonitorResult::unconfirmed;
    }
}

} // namespace

struct BPMModel::Link {
    Link(MonitorPort& port, Clock& wallClock)
        : clock(wallClock), transport(port, wallClock), commands(transport) {}

    MonitorExpected<QString> askVersion();
    /// One try of a download. Its records are read by what the model can find, so the model is asked first;
    /// records of a device that was opened anew since may be another model's.
    MonitorExpected<CycleData> downloadOnce(const DownloadProgress& progress, int attempt,
                                            const WaitNotice& waiting);

    Clock& clock;
    MonitorTransport transport;
    MonitorCommands commands;
    QString gsVersion; ///< model code of the monitor last asked; empty after a failure
    MonitorResult lastResult = MonitorResult::noDevice;
};

MonitorExpected<QString> BPMModel::Link::askVersion() {
    gsVersion.clear();
    const auto reply = commands.getBPMVersion();
    if (!reply) return tl::unexpected(reply.error());
    const QByteArray code = QByteArray::fromStdString(*reply).mid(qsizetype(versionPrefix.size()), 2);
    gsVersion = QString::fromLatin1(code.toUpper()); // that of bytes makes none longer
    return gsVersion;
}

MonitorExpected<CycleData> BPMModel::Link::downloadOnce(const DownloadProgress& progress, int attempt,
                                                        const WaitNotice& waiting) {
    auto version = askVersion();
    if (!version && version.error() == MonitorResult::timeOut) {
        if (waiting) waiting(silentModelWait * (mostTries - attempt) + silentModelWait / 2);
        version = askVersion(); // the first may have been a probe
    }
    if (!version) return tl::unexpected(version.error());
    const int asked = transport.openings();
    auto data = commands.getBPMCycleData(progress, attempt, withLaterTries(waiting, laterDownloads(attempt)));
    if (data && transport.openings() != asked) return tl::unexpected(MonitorResult::readFailed);
    return data;
}

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

MonitorExpected<QString> BPMModel::getBPMVersion() { return link->askVersion(); }

MonitorExpected<QString> BPMModel::getBPMID() {
    return link->commands.getBPMID().map([](const std::string& ID) { return TrimStr(fromMonitor(ID)); });
}

MonitorResult BPMModel::sendID(const QString& ID, bool clear) {
    qCDebug(lcMonitor, "sendID %ls", qUtf16Printable(ID));
    if (!fitsMonitor(ID)) return MonitorResult::unfitID;
    const int asked = link->transport.openings();
    const MonitorResult result = link->commands.sendID(ID.toLatin1().toStdString(), clear);
    qCInfo(lcMonitor, "sendID result:%i", static_cast<int>(result));
    if (result != MonitorResult::success) return result;
    auto held = getBPMID();
    for (int tries = 1; !held && tries < mostTries && held.error() != MonitorResult::interrupted; ++tries)
        held = getBPMID();
    const MonitorResult taken = confirmed(held, [&](const QString& now) { return now == ID; });
    if (taken == MonitorResult::interrupted || !clear) return taken;
    const MonitorResult emptied =
        taken != MonitorResult::success
            ? taken
            : confirmed(getBPMCycleDataCount(), [](int count) { return count == 0; });
    // What was opened anew may be another monitor, which says nothing about the memory of the one that was
    // meant.
    return link->transport.openings() == asked ? emptied : MonitorResult::unconfirmed;
}

MonitorResult BPMModel::eraseData(const QString& currentID) { return sendID(currentID, true); }

MonitorExpected<int> BPMModel::getBPMCycleDataCount(const WaitNotice& waiting) {
    return withRetries("getBPMCycleDataCount", [&](int attempt) {
        return link->commands.getBPMCycleDataCount(
            withLaterTries(waiting, headerWait * (mostTries - attempt)));
    });
}

MonitorExpected<std::vector<ReadingModel>> BPMModel::getBPMCycleData(const DownloadProgress& progress,
                                                                     const WaitNotice& waiting) {
    const auto data = withRetries(
        "getBPMCycleData", [&](int attempt) { return link->downloadOnce(progress, attempt, waiting); },
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
    if (r.startsWith("0000"_L1)) return tl::unexpected(MonitorResult::clockNotSet); // no month and no day
    const Date date = digitsToDate(u"20"_s + r.mid(4, 2) + r.left(4) + r.mid(8, 6), timePattern);
    if (!date) return tl::unexpected(MonitorResult::badFixedContent);
    return *date;
}

MonitorResult BPMModel::setBPMDate() {
    const QString now = localTimeText(link->clock);
    const MonitorResult result = link->commands.setBPMDate(now.toLatin1().toStdString());
    if (result != MonitorResult::success) return result;
    // Both by way of the same text, so that an hour that comes twice is the same one.
    const auto isRight = [this](Instant held) {
        const Date right = StrToDate(localTimeText(link->clock), timePattern);
        return right && std::chrono::abs(*right - held) < clockTolerance;
    };
    return confirmed(readBPMDate(), isRight);
}

int BPMModel::openings() const { return link->transport.openings(); }

void BPMModel::quietLine() {
    const auto lock = link->transport.exchange();
    link->transport.clearAndClose();
}

void BPMModel::interrupt() { link->transport.interrupt(); }
void BPMModel::resume() { link->transport.resume(); }
bool BPMModel::isInterrupted() const { return link->transport.isInterrupted(); }

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
