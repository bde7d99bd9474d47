#pragma once
// Text rules shared by the records.

#include <QString>

#include <cstdint>
#include <string_view>

namespace zel {

/// Without white space and line ends at both ends.
[[nodiscard]] QString TrimStr(const QString& text);
/// Leading hexadecimal number, either case; 0 when there is none, 0xFFFFFFFF when it does not fit.
[[nodiscard]] std::uint32_t HexStrToInt(std::string_view text);
/// Absent, empty or exactly "-", the placeholder of a new patient.
[[nodiscard]] bool IsEmptyID(const QString& text);
/// The text of the number after the one that the text begins with.
[[nodiscard]] QString IncreaseID(const QString& number);

/// Leading integer: blanks, a sign, digits up to the first other character; 0 when there are none, the
/// nearest 64-bit number for one out of range.
[[nodiscard]] std::int64_t leadingInteger(std::string_view text);
[[nodiscard]] std::int64_t leadingInteger(const QString& text);
/// Leading decimal number with a point, whatever the locale; 0 when there is none.
[[nodiscard]] double leadingNumber(std::string_view text);

} // namespace zel
