#include "store/Text.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

std::string_view withoutLeadingBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n\v\f";
    while (!text.empty() && blanks.find(text.front()) != blanks.npos)
        text.remove_prefix(1);
    return text;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

} // namespace

QString TrimStr(const QString& text) { return text.trimmed(); }

std::uint32_t HexStrToInt(std::string_view text) {
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    return error == std::errc::result_out_of_range ? std::numeric_limits<std::uint32_t>::max() : value;
}

bool IsEmptyID(const QString& text) { return text.isEmpty() || text == "-"_L1; }

QString IncreaseID(const QString& number) {
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    const std::int64_t value = leadingInteger(number);
    return QString::number(value < most ? value + 1 : most);
}

std::int64_t leadingInteger(std::string_view text) {
    text = withoutLeadingBlanks(text);
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) text.remove_prefix(1);
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    std::int64_t value = 0;
    for (const char c : text) {
        if (!isDigit(c)) break;
        const int digit = c - '0';
        value = value > (most - digit) / 10 ? most : value * 10 + digit;
    }
    return isNegative ? -value : value;
}

std::int64_t leadingInteger(const QString& text) {
    // No number has more characters than this; the rest need not be looked at.
    constexpr qsizetype enough = 24;
    std::array<char, enough> narrow{};
    const qsizetype length = std::min(text.size(), enough);
    std::ranges::transform(text.constBegin(), text.constBegin() + length, narrow.begin(), &QChar::toLatin1);
    return leadingInteger(std::string_view{narrow.data(), static_cast<std::size_t>(length)});
}

double leadingNumber(std::string_view text) {
    text = withoutLeadingBlanks(text);
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) text.remove_prefix(1);
    // Only digits and a point begin a number; from_chars would take "inf" and "nan" as well.
    if (text.empty() || (!isDigit(text.front()) && text.front() != '.')) return 0;
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{}) return 0;
    return isNegative ? -value : value;
}

} // namespace zel
