#include "store/RecordNumber.h"

#include "store/RecordXml.h"

#include <algorithm>
#include <charconv>

namespace zel {

namespace {

/// \return -1 for what would not be written so again
std::int64_t plainNumber(std::string_view text) {
    constexpr std::size_t mostDigits = 18; // any number of so many fits
    const bool isPlain = !text.empty() && text.size() <= mostDigits && (text == "0" || text.front() != '0')
                         && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
    std::int64_t value = -1;
    if (isPlain) std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

} // namespace

RecordNumber::RecordNumber(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    plain = plainNumber({utf8.constData(), static_cast<std::size_t>(utf8.size())});
    if (plain < 0) other = text;
}

RecordNumber RecordNumber::fromUtf8(std::string_view text) {
    RecordNumber number;
    number.plain = plainNumber(text);
    if (number.plain < 0) number.other = toQString(text);
    return number;
}

} // namespace zel
