#pragma once

#include "monitor/FrameCodec.h"
#include "monitor/MonitorPort.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <numeric>
#include <optional>
#include <string>

namespace zel {

/// A port that does as it is told: each command frame written releases the next of the answers.
class ScriptedPort final : public MonitorPort {
public:
    std::deque<std::vector<Report>> answers;
    std::optional<std::vector<Report>> versionAnswer; ///< instead of the next one, to that question
    std::deque<Report> queued;
    std::vector<Report> written;
    PortOpen opening = PortOpen::opened;
    bool failWrites = false;
    bool failReads = false; ///< once nothing is queued
    int opens = 0;
    int reads = 0;
    std::function<void()> onRead = [] {};
    std::function<void()> onWrite = [] {};

    PortOpen open() override {
        ++opens;
        failed = false;
        opened = opening == PortOpen::opened;
        return opening;
    }
    bool isOpen() const override { return opened; }
    bool disconnected() const override { return failed; }
    bool write(std::span<const std::uint8_t> report) override {
        if (failWrites) failed = true;
        if (failWrites) return false;
        written.emplace_back(report.begin(), report.end());
        onWrite();
        if (report[0] != commandPreamble[0]) return true;
        if (versionAnswer && report.back() == static_cast<std::uint8_t>(Command::version)) {
            queued.insert(queued.end(), versionAnswer->begin(), versionAnswer->end());
            return true;
        }
        if (answers.empty()) return true;
        for (Report& answer : answers.front())
            queued.push_back(std::move(answer));
        answers.pop_front();
        return true;
    }
    int read(std::span<std::uint8_t> report) override {
        ++reads;
        onRead();
        if (queued.empty() && failReads) failed = true;
        if (failed) return -1;
        if (queued.empty()) return 0;
        const Report next = std::move(queued.front());
        queued.pop_front();
        std::copy(next.begin(), next.end(), report.begin());
        return static_cast<int>(next.size());
    }

private:
    bool opened = false;
    bool failed = false;
};

/// A reply with its check field, reckoned here and not by the code under test.
inline std::string checked(const std::string& text) {
    const unsigned sum = std::accumulate(
        text.begin(), text.end(), 0U, [](unsigned s, char c) { return s + static_cast<unsigned char>(c); });
    const std::string digits = "0123456789ABCDEF";
    return text + digits[sum / 16 % 16] + digits[sum % 16];
}

/// Data as reports of \p size bytes each.
inline std::vector<Report> reportsOf(std::string data, std::size_t size) {
    std::vector<Report> reports;
    for (; !data.empty(); data.erase(0, size)) {
        const std::string part = data.substr(0, size);
        Report& report = reports.emplace_back(Report{static_cast<std::uint8_t>(0x50 | part.size())});
        report.insert(report.end(), part.begin(), part.end());
    }
    return reports;
}

/// A whole reply as reports, acknowledgement first.
inline std::vector<Report> reply(const std::string& payload, std::size_t size = reportCapacity) {
    return reportsOf('\x06' + payload, size);
}

} // namespace zel
