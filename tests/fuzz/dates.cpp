// Dates of the data file: the usual form and the others agree, and what is written is read again. The first
// byte chooses the time zone.

#include "Fuzzing.h"
#include "store/IcuTime.h"
#include "store/XmlDate.h"

#include <algorithm>
#include <array>

using namespace zel;
using zel::fuzz::require;

namespace {

// None in which a day of the calendar was left out: it cannot be shown there.
constexpr std::array zones{"UTC",
                           "Europe/Berlin",
                           "America/New_York",
                           "Asia/Kolkata",
                           "Pacific/Chatham",
                           "America/St_Johns",
                           "Africa/Monrovia",
                           "Australia/Lord_Howe"};

/// As the slow reader takes every form.
Date readSlowly(const QString& text, bool hasMilliseconds) {
    const QString pattern = hasMilliseconds ? QStringLiteral("yyyy-MM-dd'T'HH:mm:ss'.'SSSZZZ")
                                            : QStringLiteral("yyyy-MM-dd'T'HH:mm:ssZZZ");
    return parseAsUtc(QString{text}.remove(text.lastIndexOf(u':'), 1), pattern);
}

/// In which d stands for a digit, and + for either sign.
bool hasForm(std::string_view text, std::string_view form) {
    return std::ranges::equal(text, form, [](char c, char wanted) {
        if (wanted == 'd') return c >= '0' && c <= '9';
        return c == wanted || (wanted == '+' && c == '-');
    });
}

void requireFormsAgree(std::string_view text, Instant date) {
    constexpr std::size_t usual = 25;
    if (!hasForm(text, "dddd-dd-ddTdd:dd:dd+dd:dd") && !hasForm(text, "dddd-dd-ddTdd:dd:dd.ddd+dd:dd"))
        return;
    const Date slow =
        readSlowly(QString::fromUtf8(text.data(), qsizetype(text.size())), text.size() != usual);
    if (slow) require(*slow == date, "the quick reader takes a date as the slow one does");
}

void requireWrittenForm(Instant date) {
    using namespace std::chrono;
    const QString written = XMLDateToStr(date);
    const Date again = XMLStrToDate(written.toStdString());
    require(again.has_value(), "a date that is written can be read");
    // Offsets of the times before time zones have seconds, which the file's form has not.
    const bool isWhole = offsetAt(*systemZone(), date, false) % minutes{1} == milliseconds{0};
    const auto second = floor<seconds>(date);
    require(isWhole ? *again == second : abs(*again - second) < minutes{1}, "it is the same second");
    require(!isWhole || XMLDateToStr(*again) == written, "it is written the same again");
    require(!isWhole || LocalZone{}.day(*again) == LocalZone{}.day(date), "it is on the same day");
}

void requireSameDay(std::string_view text) {
    const Date wall = XMLStrToWallClock(text);
    const Date local = XMLStrToLocalDate(text);
    require(local.has_value(), "what is a date is a local date, too");
    if (!wall) return;
    const auto shown = std::chrono::floor<std::chrono::days>(*wall).time_since_epoch().count();
    require(LocalZone{}.day(local) == shown, "a day stays the one in the text in every time zone");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(zones.at(data[0] % zones.size())));
    const std::string text(data + 1, data + size);
    const Date date = XMLStrToDate(text);
    if (!date || isNilDate(date)) return 0;
    requireFormsAgree(text, *date);
    requireWrittenForm(*date);
    requireSameDay(text);
    return 0;
}
