#include "monitor/ReadingDecoder.h"

#include "monitor/Log.h"
#include "store/Text.h"

#include <algorithm>
#include <string>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t flagOffset = 10;
constexpr unsigned char lastRawFlag = 2;
const QString logPattern = u"yyyyMMddHHmm"_s;

unsigned char flagOf(std::string_view record) {
    return record.size() > flagOffset ? static_cast<unsigned char>(record[flagOffset]) : 0;
}

/// The record up to its first 0x00; a raw flag byte is made printable, so as not to end it.
std::string textOf(std::string_view record) {
    std::string text{record};
    if (text.size() > flagOffset && flagOf(record) <= lastRawFlag)
        text[flagOffset] = static_cast<char>(flagOf(record) + '0');
    return text.substr(0, text.find('\0'));
}

/// Part of a text, as much of it as there is.
std::string_view part(std::string_view text, std::size_t offset, std::size_t length) {
    return offset < text.size() ? text.substr(offset, length) : std::string_view{};
}

std::uint32_t hex(std::string_view digits, std::size_t position) {
    return HexStrToInt(part(digits, position, 1));
}

/// A monitor without a valid clock stores zeros from the month on.
Date dateOf(const std::string& text, const QString& ID) {
    if (text.size() < flagOffset) return {};
    const QString d =
        u"20"_s + QString::fromLatin1(text.data(), qsizetype(std::min<std::size_t>(text.size(), 10)));
    qCDebug(lcMonitor, "readBPMDate DateTime:%ls ID:[%ls]", qUtf16Printable(d), qUtf16Printable(ID));
    qCDebug(lcMonitor, "check fo no date data:%ls", qUtf16Printable(d));
    const Date date = digitsToDate(d, logPattern);
    if (d.mid(4, 8) != "00000000"_L1) return date;
    qCDebug(lcMonitor, "check fo no date data.. nildate 1:%ls", qUtf16Printable(DateToStr(date, logPattern)));
    const Instant nilDate = getNilReadingDate();
    qCDebug(lcMonitor, "check fo no date data.. nildate 2:%ls",
            qUtf16Printable(DateToStr(nilDate, logPattern)));
    return nilDate;
}

std::uint32_t arrhythmiaOf(unsigned char flag, ModelCapability capability) {
    const bool found = flag <= lastRawFlag;
    if (capability.isAFib) return found ? 5 : 4;
    if (capability.isPAD) return found ? 2 : 1;
    return 0;
}

} // namespace

std::uint32_t convertPulse(std::string_view digits) { return 16 * hex(digits, 0) + hex(digits, 1); }

std::uint32_t convertDiastole(std::string_view digits) {
    return 64 * hex(digits, 0) + 4 * hex(digits, 1) + hex(digits, 2) / 4;
}

std::uint32_t convertSystole(std::string_view digits) { return HexStrToInt(digits); }

ReadingModel initWithUSBData(std::string_view record, const QString& ID, ModelCapability capability) {
    const std::string text = textOf(record);
    qCDebug(lcMonitor, "initWithUSBData :%s", text.c_str());
    ReadingModel reading;
    reading.ID = ID;
    reading.ReadingDate = dateOf(text, ID);
    reading.pulse = convertPulse(part(text, 17, 2));
    reading.dia = convertDiastole(part(text, 19, 3));
    reading.sys = convertSystole(part(text, 22, 2));
    reading.map =
        reading.dia + (reading.sys - reading.dia) / 3; // wraps below the diastolic value, as it is meant to
    reading.pp = reading.sys - reading.dia;
    const unsigned char flag = flagOf(record);
    reading.mam = flag == 1 || flag == 2 || flag == '1' || flag == '2' ? 1 : 0;
    reading.Arrhythmia = arrhythmiaOf(flag, capability);
    return reading;
}

} // namespace zel
