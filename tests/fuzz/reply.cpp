// A monitor that answers anything: every exchange ends, and what is taken for a good answer was one.
// The input is a list of answers. Each begins with a byte of flags and the number of its bytes (two, the
// higher first); a command releases the next one.

#include "Fuzzing.h"
#include "monitor/BPMModel.h"
#include "monitor/MonitorFrames.h"

#include <deque>
#include <span>

using namespace zel;
using zel::fuzz::require;

namespace {

enum Flag : unsigned { checkField = 1, acknowledged = 2, raw = 4, shortReports = 8, fails = 16, later = 32 };

std::string checkFieldOf(std::string_view text) {
    unsigned sum = 0;
    for (const char c : text)
        sum += static_cast<unsigned char>(c);
    constexpr std::string_view digits = "0123456789ABCDEF";
    return {digits[sum / 16 % 16], digits[sum % 16]};
}

/// Answers each command with the next of the input's answers.
class AnsweringPort final : public MonitorPort {
public:
    AnsweringPort(const std::uint8_t* data, std::size_t size) : input{data, size} {}
    std::string delivered;  ///< data bytes since the last command
    bool isRecords = false; ///< that command asked for the records

    PortOpen open() override {
        failed = false;
        return PortOpen::opened;
    }
    bool isOpen() const override { return true; }
    bool disconnected() const override { return failed; }
    bool write(std::span<const std::uint8_t> report) override {
        if (report.size() != commandFrame(Command::id).size() || report[0] != commandPreamble[0]) return true;
        isRecords = report.back() == static_cast<std::uint8_t>(Command::records);
        delivered.clear();
        answer();
        return true;
    }
    int read(std::span<std::uint8_t> report) override {
        if (failed) return -1;
        if (pause > 0) --pause;
        if (pause > 0 || reports.empty()) {
            failed = reports.empty() && failAtEnd;
            return failed ? -1 : 0;
        }
        const Report next = std::move(reports.front());
        reports.pop_front();
        const std::size_t length = std::min(next.size(), report.size());
        std::copy_n(next.begin(), length, report.begin());
        delivered += reportPayload(next, false);
        return static_cast<int>(length);
    }

private:
    std::size_t take() {
        if (input.empty()) return 0;
        const std::size_t byte = input.front();
        input = input.subspan(1);
        return byte;
    }
    void answer() {
        const std::size_t flags = take();
        const std::size_t high = take() % 40;
        const std::size_t length = std::min(high * 256 + take(), input.size());
        std::string text(input.begin(), input.begin() + static_cast<std::ptrdiff_t>(length));
        input = input.subspan(length);
        if (flags & checkField) text += checkFieldOf(text);
        if (flags & acknowledged) text.insert(0, 1, '\x06');
        failAtEnd = (flags & fails) != 0;
        pause = flags & later ? 40 : 0;
        queue(text, flags);
    }
    void queue(std::string_view text, std::size_t flags) {
        // The header of a download ends a report.
        std::size_t toHeader = isRecords ? recordsHeaderLength + 1 : text.size();
        const std::size_t most = flags & shortReports ? 5 : reportCapacity;
        while (!text.empty()) {
            const std::size_t length = std::min({most, text.size(), toHeader > 0 ? toHeader : most});
            toHeader -= std::min(toHeader, length);
            Report report(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(length));
            if (!(flags & raw)) report.insert(report.begin(), static_cast<std::uint8_t>(0x50 | length));
            reports.push_back(std::move(report));
            text.remove_prefix(length);
        }
    }

    std::span<const std::uint8_t> input;
    std::deque<Report> reports;
    bool failed = false;
    bool failAtEnd = false;
    int pause = 0; ///< reads until the answer comes
};

int digit(char c) {
    return c >= '0' && c <= '9' ? c - '0' : c >= 'A' && c <= 'F' ? c - 'A' + 10 : c - 'a' + 10;
}

bool isHex(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f'); }

/// Of a download with the readings \p count: as much as it says, with its check field.
void requireWhole(const std::string& delivered, std::size_t count) {
    const std::string_view all = std::string_view{delivered}.substr(1); // behind the acknowledgement
    require(all.size() >= recordsHeaderLength, "a header is whole");
    if (isHex(all[2]) && isHex(all[3]))
        require(16 * std::size_t(digit(all[2])) + std::size_t(digit(all[3])) == count,
                "as many readings as the header says");
    if (count == 0) return;
    const std::size_t whole = recordsHeaderLength + count * recordLength + checkFieldLength;
    require(all.size() >= whole && all.size() < whole + reportCapacity,
            "only the last report has bytes left over");
    const std::string_view text = all.substr(0, whole - checkFieldLength);
    require(all.substr(text.size(), checkFieldLength) == checkFieldOf(text),
            "the check field vouches for the readings");
}

void ask(BPMModel& model, AnsweringPort& port) {
    if (const auto version = model.getBPMVersion())
        require(version->size() == 2, "a model code is two characters");
    if (const auto ID = model.getBPMID()) require(ID->size() <= int(longestID), "an ID fits");
    if (const auto date = model.readBPMDate()) {
        const DayNumber day = LocalZone{}.day(*date);
        require(dayText(day) >= QStringLiteral("2000") && dayText(day) < QStringLiteral("2100"),
                "a clock shows a day of the century");
    }
    if (const auto readings = model.getBPMCycleData([](int, int) {})) {
        require(readings->size() <= mostRecords, "no more readings than it can hold");
        require(port.isRecords, "readings answer the command for them");
        requireWhole(port.delivered, readings->size());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::QuickClock clock;
    const WallTime begin = clock.now();
    AnsweringPort port{data, size};
    BPMModel model{port, clock};
    std::ignore = model.getBPMVersion(); // only a probe
    ask(model, port);
    if (model.getBPMCycleDataCount()) require(port.isRecords, "a count answers the command for the readings");
    if (model.sendID(QStringLiteral("A1"), true) == MonitorResult::success)
        require(port.isRecords, "an erased memory was counted");
    require(clock.now() - begin < std::chrono::hours{1}, "every exchange ends");
    return 0;
}
