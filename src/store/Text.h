#pragma once
// Text rules shared by the records.

#include <QString>

#include <cstdint>
#include <string_view>

namespace zel {

/// Without white space and line ends at both ends.
[[nodiscard]] QString TrimStr(const QString& text);
/// The text after the first character of the separator's first occurrence; empty when not found or at the
/// end.
[[nodiscard]] QString getStrAfter(const QString& text, const QString& separator);
/// Leading hexadecimal number, either case; 0 when there is none, 0xFFFFFFFF when it does not fit.
[[nodiscard]] std::uint32_t HexStrToInt(std::string_view text);
/// True when every character is one of "0123456789."; so for the empty text too.
[[nodiscard]] bool isDecimalString(const QString& text);
/// Absent, empty or exactly "-", the placeholder of a new patient.
[[nodiscard]] bool IsEmptyID(const QString& text);
/// The text of the number after the one that the text begins with.
[[nodiscard]] QString IncreaseID(const QString& number);
/// The first \p lines lines, joined by CR LF.
[[nodiscard]] QString TruncateLines(const QString& text, int lines);

/// Leading integer: blanks, a sign, digits up to the first other character; 0 when there are none, the
/// nearest 64-bit number for one out of range.
[[nodiscard]] std::int64_t leadingInteger(std::string_view text);
[[nodiscard]] std::int64_t leadingInteger(const QString& text);
/// Leading decimal number with a point, whatever the locale; 0 when there is none.
[[nodiscard]] double leadingNumber(std::string_view text);

} // namespace zel
