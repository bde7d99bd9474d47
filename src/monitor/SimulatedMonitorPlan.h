#pragma once
// What a simulated monitor is and holds, and which faults it shows: described in docs/simulated-monitor.md.

#include "monitor/FrameCodec.h"
#include "monitor/MonitorFrames.h"
#include "store/Clock.h"

#include <QByteArray>
#include <QString>

#include <tl/expected.hpp>

#include <optional>

namespace zel {

struct SimulatedFault {
    enum class Kind {
        noAnswer,
        wrongAcknowledgement,
        badCheckField,
        badFixedContent,
        halfAnswer,
        late,
        wrongByte,
        surplusByte,
        notTaken, ///< acknowledged, but nothing changes
        unplug,
        readError,
        writeError,
        absent, ///< at open, as denied
        denied,
    };
    Kind kind = Kind::noAnswer;
    std::optional<Command> command{}; ///< none: the opening of the device
    std::optional<int> times{};       ///< how often it shows; always when none
    std::optional<int>
        afterReports{}; ///< reports of the answer that come before it, or before the one it hits
    std::chrono::milliseconds delay{0};    ///< of a late answer
    std::optional<int> replugAfterOpens{}; ///< after an unplug: openings that fail before it is back
    std::optional<std::chrono::milliseconds> replugAfter{};
};

/// One stored reading as it is described; encode() makes the 32 bytes of it.
struct SimulatedReading {
    QString time; ///< "yyMMddHHmm", digits
    char flag = '0';
    int sys = 0;
    int dia = 0;
    int pulse = 0;
};
inline constexpr int largestSys = 0xFF;
inline constexpr int largestDia = 0x3FF;
inline constexpr int largestPulse = 0xFF;
[[nodiscard]] std::string encode(const SimulatedReading& reading);

struct SimulatedMonitorPlan {
    std::string model = "41";
    std::string ID = "DEMO1";
    std::chrono::seconds clockOffset{0};                  ///< the monitor's clock minus the computer's
    bool isClockSet = true;                               ///< else it says zeros until it is set
    std::vector<std::string> records{};                   ///< 32 bytes each
    std::vector<std::size_t> reportSizes{reportCapacity}; ///< data bytes of a reply's reports, in turn
    std::vector<SimulatedFault> faults{};
};

/// Why a text is no plan.
struct PlanError {
    enum class Code {
        notJson, ///< detail: the parser's words
        unknownKey,
        missing,
        notText,
        notWhole, ///< no whole number in the range that detail tells
        notList,
        notObject,
        notAllowed,  ///< detail: what is
        wrongLength, ///< detail: the lengths that fit
        notTime,
        unencodable, ///< characters that the monitor does not have
        tooMany,     ///< detail: the most
    };
    Code code;
    QString key{}; ///< such as records[3].sys
    QString detail{};
};
[[nodiscard]] QString describe(const PlanError& error);

[[nodiscard]] tl::expected<SimulatedMonitorPlan, PlanError> readPlan(const QByteArray& json);
/// A month of readings up to \p now's day, the same ones for the same day.
[[nodiscard]] SimulatedMonitorPlan builtInPlan(WallTime now);

} // namespace zel
