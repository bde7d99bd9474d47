#include "monitor/MonitorCommands.h"

#include "monitor/Log.h"
#include "monitor/MonitorFrames.h"

#include <algorithm>

namespace zel {

using namespace std::chrono_literals;

namespace {

constexpr int identityUnits = 12;
constexpr int versionUnits = 6;
constexpr int dateUnits = 33;
constexpr auto headerLimit = 24s;
/// Behind the last byte of a download: what still comes then shows that the header's count was wrong.
constexpr auto surplusListening = 300ms;
constexpr std::size_t headerIDOffset = 8;
constexpr std::size_t hexIDLength = 2 * longestID;
/// Each started 300 bytes buys the monitor one unit of time.
constexpr std::size_t bytesPerUnit = 300;
constexpr std::size_t longDrainFrom = 6000;

/// The header's number of records. What no two digits can say comes from a header that is garbled.
MonitorExpected<int> recordCount(std::string_view header) {
    const int count = 16 * AsciiToInt(header[2]) + AsciiToInt(header[3]);
    if (count > static_cast<int>(mostRecords)) return tl::unexpected(MonitorResult::badFixedContent);
    return count;
}

/// Bytes of records and check field that follow a head of \p collected bytes; none when it holds more.
std::size_t bytesToCome(std::size_t collected, int count) {
    const std::size_t all =
        recordsHeaderLength + static_cast<std::size_t>(count) * recordLength + checkFieldLength;
    return all - std::min(all, collected);
}

std::chrono::seconds drainTime(std::size_t rest) {
    return rest < longDrainFrom ? std::chrono::seconds{rest / bytesPerUnit + 1} : 20s;
}

} // namespace

MonitorCommands::MonitorCommands(MonitorTransport& link) : transport(link) {}

MonitorExpected<std::string> MonitorCommands::getBPMID() {
    auto reply = transport.getBPMData(Command::id, identityReplyLength, identityUnits);
    if (!reply) return reply;
    if (!checkFixed(*reply, identityFixedOffset, identityFixed))
        return tl::unexpected(MonitorResult::badFixedContent);
    return convertAsciiArray(std::string_view(*reply).substr(0, hexIDLength));
}

MonitorExpected<std::string> MonitorCommands::getBPMVersion() {
    // Some monitors take two seconds for this one, and none is known before it has answered.
    auto reply = transport.getBPMData(Command::version, versionReplyLength, versionUnits,
                                      MonitorTransport::slowestAnswer);
    if (!reply) return reply;
    if (!checkFixed(*reply, 0, versionPrefix) || !checkFixed(*reply, versionSuffixOffset, versionSuffix))
        return tl::unexpected(MonitorResult::badFixedContent);
    return reply->substr(0, versionReplyLength);
}

MonitorExpected<std::string> MonitorCommands::getBPMDate() {
    return transport.getBPMData(Command::date, dateReplyLength, dateUnits);
}

MonitorResult MonitorCommands::sendRecordsCommand() {
    if (const auto opened = transport.my_hid_open(); opened != MonitorResult::success) return opened;
    const auto sent = transport.sendCommand(Command::records);
    if (sent == MonitorResult::success) qCInfo(lcMonitor, "[data begin]");
    return sent;
}

MonitorExpected<int> MonitorCommands::getBPMCycleDataCount(const WaitNotice& waiting) {
    qCInfo(lcMonitor, "getBPMCycleDataCount");
    const auto lock = transport.exchange();
    if (const auto sent = sendRecordsCommand(); sent != MonitorResult::success) return tl::unexpected(sent);
    const auto head =
        transport.gather({.wanted = recordsHeaderLength, .limit = headerLimit, .onWait = waiting});
    if (!head) return tl::unexpected(head.error());
    const auto count = recordCount(*head);
    qCInfo(lcMonitor, "clear buffer for data count:");
    const std::size_t rest = bytesToCome(head->size(), count.value_or(mostRecords));
    const std::size_t discarded = transport.clear_buffer(drainTime(rest));
    if (transport.isInterrupted()) return tl::unexpected(MonitorResult::interrupted);
    // The last report may bring a few bytes too many, but no record more than was announced.
    if (count && discarded > rest + reportCapacity) return tl::unexpected(MonitorResult::badCheckField);
    if (count && discarded < rest) {
        const auto behind = transport.listen(surplusListening);
        if (!behind) return tl::unexpected(behind.error());
        // It has stopped sending, and did not send as much as it announced.
        if (behind->empty()) return tl::unexpected(MonitorResult::badCheckField);
    }
    return count;
}

MonitorExpected<CycleData> MonitorCommands::getBPMCycleData(const DownloadProgress& progress, int attempt,
                                                            const WaitNotice& waiting) {
    qCInfo(lcMonitor, "getBPMCycleData");
    const auto lock = transport.exchange();
    if (const auto sent = sendRecordsCommand(); sent != MonitorResult::success) return tl::unexpected(sent);
    auto data = download(progress, attempt, waiting);
    if (!data) transport.clearAndClose();
    return data;
}

MonitorExpected<CycleData> MonitorCommands::download(const DownloadProgress& progress, int attempt,
                                                     const WaitNotice& waiting) {
    const auto head =
        transport.gather({.wanted = recordsHeaderLength, .limit = attempt * headerLimit, .onWait = waiting});
    if (!head) return tl::unexpected(head.error());
    const auto count = recordCount(*head);
    if (!count) return tl::unexpected(count.error());
    progress(*count, 0);
    if (*count == 0) return confirmEmpty(*head);
    auto bytes = gatherRecords(*head, *count, progress, attempt, waiting);
    if (!bytes) return tl::unexpected(bytes.error());
    progress(*count, *count);
    const std::string_view hexID = std::string_view(*head).substr(headerIDOffset, hexIDLength);
    bytes->resize(bytes->size() - checkFieldLength);
    qCInfo(lcMonitor, "Cycle Data return %d bytes data:\n", static_cast<int>(bytes->size()));
    return CycleData{convertAsciiArray(hexID), std::move(*bytes), *count};
}

/// No check field is asked for when the header announces nothing, but one that comes has to be right.
MonitorExpected<CycleData> MonitorCommands::confirmEmpty(std::string_view head) {
    const auto behind = transport.listen(surplusListening);
    if (!behind) return tl::unexpected(behind.error());
    const std::string all = std::string{head} + *behind;
    if (all.size() == recordsHeaderLength) return CycleData{};
    if (all.size() == recordsHeaderLength + checkFieldLength && checkSum(all)) return CycleData{};
    qCWarning(lcMonitor, "check sum error");
    return tl::unexpected(MonitorResult::badCheckField);
}

MonitorExpected<std::string> MonitorCommands::gatherRecords(std::string_view head, int count,
                                                            const DownloadProgress& progress, int attempt,
                                                            const WaitNotice& waiting) {
    qCInfo(lcMonitor, "read bytes iRead %d\n", static_cast<int>(head.size()));
    const std::size_t size =
        recordsHeaderLength + static_cast<std::size_t>(count) * recordLength + checkFieldLength;
    const std::size_t early = head.size() - recordsHeaderLength;
    const std::size_t rest = bytesToCome(head.size(), count);
    std::string bytes{head};
    bytes.resize(size, '\0');
    // The monitor ends a report at the end of its header. Should one run over, the records are still placed
    // right behind the header, so that the check field fails rather than that shifted readings are taken for
    // true ones.
    const auto onReport = [&](std::size_t gathered) {
        progress(count, static_cast<int>((gathered + early) / recordLength));
    };
    const auto limit = attempt * (static_cast<int>(rest / bytesPerUnit) + 1) * 2s;
    const auto records = transport.gather(
        {.wanted = rest, .limit = limit, .acknowledged = false, .onReport = onReport, .onWait = waiting});
    if (!records) return tl::unexpected(records.error());
    const std::string_view fitting = std::string_view(*records).substr(0, size - recordsHeaderLength);
    bytes.replace(recordsHeaderLength, fitting.size(), fitting);
    qCInfo(lcMonitor, "test log 1");
    if (!checkSum(bytes)) {
        qCWarning(lcMonitor, "check sum error");
        return tl::unexpected(MonitorResult::badCheckField);
    }
    const auto behind = transport.listen(surplusListening);
    if (!behind) return tl::unexpected(behind.error());
    if (behind->empty()) return bytes;
    qCWarning(lcMonitor, "more records than announced");
    return tl::unexpected(MonitorResult::badCheckField);
}

MonitorResult MonitorCommands::sendFrame(Command command, std::string_view frame, Opening opening) {
    const auto lock = transport.exchange();
    const int before = transport.openings();
    if (const auto opened = transport.my_hid_open(); opened != MonitorResult::success) return opened;
    if (opening == Opening::sameAsBefore && transport.openings() != before) return MonitorResult::readFailed;
    if (const auto taken = transport.sendBMPData(command); taken != MonitorResult::success) return taken;
    transport.sendBMPData_8b(frame);
    return MonitorResult::success;
}

/// Another monitor's readings would be those of the new ID's patient; of a memory that is emptied, nobody may
/// have them but those that were asked before.
MonitorResult MonitorCommands::sendID(std::string_view ID, bool clear) {
    const bool isKnown = clear || transport.openings() > 0;
    return sendFrame(Command::sendID, idFrame(ID, clear), isKnown ? Opening::sameAsBefore : Opening::any);
}

MonitorResult MonitorCommands::setBPMDate(std::string_view time) {
    return sendFrame(Command::setDate, clockFrame(time), Opening::any);
}

} // namespace zel
