#pragma once

#include "store/ReadingModel.h"

#include <QString>

#include <cstdint>
#include <map>
#include <optional>

namespace zel {

/// A reading as the user types it.
struct ManualReading {
    Date time; ///< to the minute; none: what was typed is no date
    std::uint32_t sys = 0;
    std::uint32_t dia = 0;
    std::uint32_t pulse = 0;

    [[nodiscard]] static ManualReading of(const ReadingModel& reading);
    /// \p reading with these values and what follows from them. Of a minute that the clocks
    /// show alike, it keeps its instant.
    [[nodiscard]] ReadingModel writtenOver(ReadingModel reading) const;
};

/// Date and time as typed, in the forms yyyy-MM-dd and HH:mm; none for anything else, and for a time that the
/// clocks leave out when they are put forward.
[[nodiscard]] Date typedTime(const QString& date, const QString& time);

/// What each of the three values may be: mmHg, and beats per minute.
inline constexpr std::uint32_t leastManualValue = 30;
inline constexpr std::uint32_t mostManualValue = 300;

enum class ManualProblem {
    noDate,   ///< none, or a day that stands for none in the file format
    tooEarly, ///< before 1900: a slip of the year
    inFuture, ///< a minute after the present one
    sys,      ///< out of range, as are the next two
    dia,
    pulse,
    diaNotBelowSys,
};

/// What is wrong with it first; none: it can be stored. \p now: the present
[[nodiscard]] std::optional<ManualProblem> manualProblem(const ManualReading& typed, Instant now);
/// In plain words, from the translation table.
[[nodiscard]] QString describe(ManualProblem problem);

/// How many typed readings that were to be taken in again stay left out, and why.
struct StillLeftOut {
    int countTwice = 0;                   ///< one of that minute, with these values, counts
    std::map<ManualProblem, int> refused; ///< what nobody can type in, by what is wrong with it

    [[nodiscard]] bool isNone() const { return countTwice == 0 && refused.empty(); }
};
/// In plain words, a line for each reason; empty for none.
[[nodiscard]] QString describe(const StillLeftOut& readings);

/// What is to be told once readings were taken in again.
struct TakenInAgain {
    StillLeftOut still;
    int leftOut = 0; ///< typed ones that are left out from now on, since the same measured ones count again
};
/// In plain words, as above.
[[nodiscard]] QString describe(const TakenInAgain& readings);

/// Why a typed reading is left out when the monitor brings the same one: as it is stored, in every language.
inline constexpr QStringView measuredReason{u"measured by the monitor, too"};

/// The reason for leaving a reading out as it is stored, on one line, without characters that turn the
/// direction of writing; empty: there is none that can be seen. What describeExclusion() shows for
/// measuredReason is measuredReason again.
[[nodiscard]] QString exclusionReason(const QString& typed);

/// What is to be known of the reading beside its values: "typed in; left out: cuff was loose"; mostly empty.
[[nodiscard]] QString describeRemark(const ReadingModel& reading);

/// Why the reading is left out, also where the file has no words for it; empty if it is not.
[[nodiscard]] QString describeExclusion(const ReadingModel& reading);
/// A stored reason as it is shown.
[[nodiscard]] QString describeReason(const QString& stored);

} // namespace zel
