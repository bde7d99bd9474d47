#include "monitor/SimulatedDevice.h"

#include "store/Dates.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;
using Kind = SimulatedFault::Kind;

namespace {

constexpr std::uint8_t refusal = 0x15;
constexpr std::size_t reportLength = reportCapacity + 1;

std::string hexOf(std::string_view bytes, std::size_t length) {
    QByteArray padded(bytes.data(), static_cast<qsizetype>(bytes.size()));
    padded.append(static_cast<qsizetype>(length) - padded.size(), '\0');
    return padded.toHex().toUpper().toStdString();
}

std::string withCheckField(std::string reply) {
    reply.append(checkFieldLength, '0');
    const CheckField field = replyCheckField(reply);
    reply[reply.size() - 2] = field.high;
    reply.back() = field.low;
    return reply;
}

bool isCommand(std::span<const std::uint8_t> written) {
    return written.size() > commandPreamble.size()
           && std::equal(commandPreamble.begin(), commandPreamble.end(), written.begin());
}

/// Spoils what a fault spoils in a reply that has its check field.
std::string spoiled(std::string reply, Command command, Kind kind) {
    if (kind == Kind::badCheckField) reply.back() = reply.back() == '0' ? '1' : '0';
    if (kind != Kind::badFixedContent) return reply;
    reply[command == Command::version ? 0 : identityFixedOffset + 4] = '9';
    reply.resize(reply.size() - checkFieldLength);
    return withCheckField(std::move(reply));
}

/// Reports of an answer of \p all that come before the fault breaks it off.
std::size_t reportsBefore(const SimulatedFault& fault, std::size_t all) {
    const auto usual = fault.kind == Kind::halfAnswer ? all / 2 : 0;
    return std::min(all, fault.afterReports ? static_cast<std::size_t>(*fault.afterReports) : usual);
}

void spoilByte(Report& report) { report[report[0]] ^= 1U; }

/// Behind the data of a report; behind a full one, in a report of its own.
void addByte(std::vector<Report>& reports, std::size_t index) {
    Report& report = reports[index];
    if (report[0] < reportCapacity) {
        report[++report[0]] = '0';
        return;
    }
    Report extra(reportLength);
    extra[0] = 1;
    extra[1] = '0';
    reports.insert(reports.begin() + static_cast<std::ptrdiff_t>(index) + 1, std::move(extra));
}

std::chrono::milliseconds inMilliseconds(std::chrono::microseconds time) {
    return std::chrono::floor<std::chrono::milliseconds>(time);
}

} // namespace

SimulatedDevice::SimulatedDevice(SimulatedMonitorPlan given, const Clock& wallClock)
    : plan(std::move(given)), clock(wallClock), clockOffset(plan.clockOffset), isClockSet(plan.isClockSet),
      settings(ginitialParam) {}

void SimulatedDevice::reset() {
    queue.clear();
    frameFor.reset();
}

std::optional<SimulatedFault> SimulatedDevice::takeFault(std::optional<Command> command) {
    for (SimulatedFault& fault : plan.faults) {
        if (fault.command != command || fault.times == 0) continue;
        if (fault.times) --*fault.times;
        return fault;
    }
    return std::nullopt;
}

bool SimulatedDevice::take(std::span<const std::uint8_t> written) {
    if (!isCommand(written)) {
        takeChunk(written);
        return true;
    }
    frameFor.reset();
    const auto command = static_cast<Command>(written[commandPreamble.size()]);
    const auto fault = takeFault(command);
    if (fault && fault->kind == Kind::writeError) return false;
    if (!fault || fault->kind != Kind::noAnswer) answer(command, fault);
    return true;
}

std::optional<DeviceEvent> SimulatedDevice::next() {
    if (queue.empty() || queue.front().notBefore > clock.now()) return std::nullopt;
    DeviceEvent event = std::move(queue.front());
    queue.pop_front();
    return event;
}

void SimulatedDevice::answer(Command command, const std::optional<SimulatedFault>& fault) {
    const Kind kind = fault ? fault->kind : Kind::noAnswer;
    std::vector<Report> reports = inReports(command, spoiled(replyTo(command), command, kind));
    const bool breaksOff = kind == Kind::halfAnswer || kind == Kind::unplug || kind == Kind::readError;
    if (fault && breaksOff) reports.resize(reportsBefore(*fault, reports.size()));
    if (kind == Kind::wrongAcknowledgement && !reports.empty()) reports.front()[1] = refusal;
    const std::size_t hit = fault ? reportsBefore(*fault, reports.size()) : 0;
    if (kind == Kind::wrongByte && hit < reports.size()) spoilByte(reports[hit]);
    if (kind == Kind::surplusByte && hit < reports.size()) addByte(reports, hit);
    for (std::size_t i = 0; i < reports.size(); ++i) {
        const bool isLate = kind == Kind::late && i >= hit;
        queue.push_back(
            {.report = std::move(reports[i]), .notBefore = isLate ? clock.now() + fault->delay : WallTime{}});
    }
    if (kind == Kind::unplug) queue.push_back({.kind = DeviceEvent::Kind::unplug, .fault = *fault});
    if (kind == Kind::readError) queue.push_back({.kind = DeviceEvent::Kind::readError});
    const bool taken = !fault || kind == Kind::late;
    if (taken && (command == Command::sendID || command == Command::setDate)) {
        frameFor = command;
        frame.clear();
    }
}

std::string SimulatedDevice::replyTo(Command command) const {
    switch (command) {
    case Command::id: return withCheckField(hexOf(plan.ID, longestID).append(identityFixed));
    case Command::version:
        return withCheckField(std::string{versionPrefix}.append(plan.model).append(versionSuffix));
    case Command::date: return dateReply();
    case Command::records: return recordsReply();
    case Command::sendID:
    case Command::setDate: break; // only acknowledged
    }
    return {};
}

std::string SimulatedDevice::dateReply() const {
    if (!isClockSet) return withCheckField("00000020000000" + settings);
    const Instant time = std::chrono::floor<std::chrono::milliseconds>(clock.now()) + clockOffset;
    return withCheckField(DateToStr(time, u"MMddyy'20'HHmmss"_s).toLatin1().toStdString() + settings);
}

std::string SimulatedDevice::recordsReply() const {
    const char count = static_cast<char>(plan.records.size());
    std::string reply = "00" + hexOf({&count, 1}, 1) + "0000" + hexOf(plan.ID, longestID) + "00";
    for (const std::string& record : plan.records)
        reply += record;
    return withCheckField(std::move(reply));
}

std::vector<Report> SimulatedDevice::inReports(Command command, std::string_view reply) const {
    const bool known = !reply.empty() || command == Command::sendID || command == Command::setDate;
    if (!known) return {};
    std::string data(1, static_cast<char>(acknowledgement));
    data += reply;
    const std::size_t headerEnd = 1 + (command == Command::records ? recordsHeaderLength : 0);
    std::vector<Report> reports;
    for (std::size_t done = 0; done < data.size();) {
        std::size_t size =
            std::min(plan.reportSizes[reports.size() % plan.reportSizes.size()], data.size() - done);
        if (done < headerEnd && headerEnd > 1)
            size = std::min(size, headerEnd - done); // a report ends with the header
        Report& report = reports.emplace_back(Report{static_cast<std::uint8_t>(size)});
        const auto begin = data.begin() + static_cast<std::ptrdiff_t>(done);
        report.insert(report.end(), begin, begin + static_cast<std::ptrdiff_t>(size));
        report.resize(reportLength);
        done += size;
    }
    return reports;
}

void SimulatedDevice::takeChunk(std::span<const std::uint8_t> chunk) {
    if (!frameFor || chunk.size() < 2 || chunk[0] != 0xFF || (chunk[1] & 0xF0U) != 0xF0U) return;
    const auto data = chunk.subspan(2, std::min<std::size_t>(chunk[1] & 0x0FU, chunk.size() - 2));
    frame.append(data.begin(), data.end());
    if (frame.size() >= (frameFor == Command::sendID ? idFrameLength : clockFrameLength)) takeFrame();
}

void SimulatedDevice::takeFrame() {
    const Command command = *frameFor;
    frameFor.reset();
    std::string checked = frame;
    if (!setCheckSum(checked) || checked != frame) return;
    if (command == Command::setDate) return takeClock(frame);
    plan.ID = convertAsciiArray(std::string_view(frame).substr(8, 2 * longestID));
    if (frame[3] == '0') plan.records.clear();
}

void SimulatedDevice::takeClock(std::string_view given) {
    const QString text = QString::fromLatin1(given.data(), static_cast<qsizetype>(clockTextLength));
    const Date time = StrToDate(u"20"_s + text.mid(4, 2) + text.left(4) + text.mid(8), u"yyyyMMddHHmmss"_s);
    if (!time) return;
    clockOffset = inMilliseconds(*time - clock.now());
    isClockSet = true;
    const std::string_view newSettings =
        given.substr(clockTextLength, given.size() - clockTextLength - checkFieldLength);
    settings.replace(0, newSettings.size(), newSettings);
}

} // namespace zel
