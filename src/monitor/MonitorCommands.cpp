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
    auto reply = transport.getBPMData(Command::version, versionReplyLength, versionUnits);
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

MonitorExpected<int> MonitorCommands::getBPMCycleDataCount() {
    qCInfo(lcMonitor, "getBPMCycleDataCount");
    const auto lock = transport.exchange();
    if (const auto sent = sendRecordsCommand(); sent != MonitorResult::success) return tl::unexpected(sent);
    const auto head = transport.gather({.wanted = recordsHeaderLength, .limit = headerLimit});
    if (!head) return tl::unexpected(head.error());
    const auto count = recordCount(*head);
    qCInfo(lcMonitor, "clear buffer for data count:");
    transport.clear_buffer(drainTime(bytesToCome(head->size(), count.value_or(mostRecords))));
    if (transport.isInterrupted()) return tl::unexpected(MonitorResult::interrupted);
    return count;
}

MonitorExpected<CycleData> MonitorCommands::getBPMCycleData(const DownloadProgress& progress, int attempt) {
    qCInfo(lcMonitor, "getBPMCycleData");
    const auto lock = transport.exchange();
    if (const auto sent = sendRecordsCommand(); sent != MonitorResult::success) return tl::unexpected(sent);
    auto data = download(progress, attempt);
    if (!data) transport.clearAndClose();
    return data;
}

MonitorExpected<CycleData> MonitorCommands::download(const DownloadProgress& progress, int attempt) {
    const auto head = transport.gather({.wanted = recordsHeaderLength, .limit = attempt * headerLimit});
    if (!head) return tl::unexpected(head.error());
    const auto count = recordCount(*head);
    if (!count) return tl::unexpected(count.error());
    progress(*count, 0);
    if (*count == 0) return CycleData{};
    auto bytes = gatherRecords(*head, *count, progress, attempt);
    if (!bytes) return tl::unexpected(bytes.error());
    progress(*count, *count);
    const std::string_view hexID = std::string_view(*head).substr(headerIDOffset, hexIDLength);
    bytes->resize(bytes->size() - checkFieldLength);
    qCInfo(lcMonitor, "Cycle Data return %d bytes data:\n", static_cast<int>(bytes->size()));
    return CycleData{convertAsciiArray(hexID), std::move(*bytes), *count};
}

MonitorExpected<std::string> MonitorCommands::gatherRecords(std::string_view head, int count,
                                                            const DownloadProgress& progress, int attempt) {
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
    const auto records =
        transport.gather({.wanted = rest, .limit = limit, .acknowledged = false, .onReport = onReport});
    if (!records) return tl::unexpected(records.error());
    const std::string_view fitting = std::string_view(*records).substr(0, size - recordsHeaderLength);
    bytes.replace(recordsHeaderLength, fitting.size(), fitting);
    qCInfo(lcMonitor, "test log 1");
    if (!checkSum(bytes)) {
        qCWarning(lcMonitor, "check sum error");
        return tl::unexpected(MonitorResult::badCheckField);
    }
    return bytes;
}

MonitorResult MonitorCommands::sendFrame(Command command, std::string_view frame) {
    const auto lock = transport.exchange();
    if (const auto opened = transport.my_hid_open(); opened != MonitorResult::success) return opened;
    if (const auto taken = transport.sendBMPData(command); taken != MonitorResult::success) return taken;
    transport.sendBMPData_8b(frame);
    return MonitorResult::success;
}

MonitorResult MonitorCommands::sendID(std::string_view ID, bool clear) {
    return sendFrame(Command::sendID, idFrame(ID, clear));
}

MonitorResult MonitorCommands::setBPMDate(std::string_view time) {
    return sendFrame(Command::setDate, clockFrame(time));
}

} // namespace zel
