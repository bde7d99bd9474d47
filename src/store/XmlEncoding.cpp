#include "store/XmlEncoding.h"

#include <QRegularExpression>
#include <QString>
#include <QUtf8StringView>

#include <unicode/ucnv.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace zel {

namespace {

struct Signature {
    std::string_view bytes;
    const char* encoding;
    bool isMark;
};

// Longer signatures first: the mark of UTF-32LE begins with that of UTF-16LE.
using namespace std::string_view_literals;
constexpr std::array<Signature, 9> signatures{{
    {"\x00\x00\xFE\xFF"sv, "UTF-32BE", true},
    {"\xFF\xFE\x00\x00"sv, "UTF-32LE", true},
    {"\x00\x00\x00<"sv, "UTF-32BE", false},
    {"<\x00\x00\x00"sv, "UTF-32LE", false},
    {"\xEF\xBB\xBF"sv, "UTF-8", true},
    {"\x00<"sv, "UTF-16BE", false},
    {"<\x00"sv, "UTF-16LE", false},
    {"\xFE\xFF"sv, "UTF-16BE", true},
    {"\xFF\xFE"sv, "UTF-16LE", true},
}};

/// The value of encoding="..." in the declaration; empty when there is none. No other attribute's name or
/// value is taken for it, since the parser would not do so either.
QByteArray declaredEncoding(const QByteArray& file) {
    if (!file.startsWith("<?xml")) return {};
    static const QRegularExpression declaration(QStringLiteral(
        R"re(^<\?xml(?:\s+[^\s='"]+\s*=\s*(?:"[^"]*"|'[^']*'))*?\s+encoding\s*=\s*(?:"([^"]*)"|'([^']*)'))re"));
    const auto found = declaration.match(QString::fromLatin1(file.left(file.indexOf("?>"))));
    return (found.captured(1) + found.captured(2)).toLatin1();
}

struct CloseConverter {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, CloseConverter>;

/// Anything else would make markup of its own where it is written back, or ask the converter for options.
bool isEncodingName(const QByteArray& name) {
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    const auto isOfName = [&](char c) {
        return isLetter(c) || (c >= '0' && c <= '9') || c == '.' || c == '_' || c == '-';
    };
    return !name.isEmpty() && isLetter(name.front()) && std::ranges::all_of(name, isOfName);
}

Converter openConverter(const XmlEncoding& encoding) {
    if (!isEncodingName(encoding.name)) return nullptr;
    UErrorCode status = U_ZERO_ERROR;
    Converter converter{ucnv_open(encoding.name.constData(), &status)};
    return U_SUCCESS(status) ? std::move(converter) : nullptr;
}

bool isUtf8(const XmlEncoding& encoding) { return encoding.name.compare("UTF-8", Qt::CaseInsensitive) == 0; }

tl::unexpected<QString> wrong(const QString& words, const XmlEncoding& encoding) {
    return tl::unexpected{words.arg(QString::fromLatin1(encoding.name))};
}

} // namespace

XmlEncoding detectEncoding(const QByteArray& file) {
    for (const Signature& signature : signatures) {
        if (!file.startsWith(
                QByteArrayView{signature.bytes.data(), static_cast<qsizetype>(signature.bytes.size())}))
            continue;
        const QByteArray bytes{signature.bytes.data(), static_cast<qsizetype>(signature.bytes.size())};
        return {signature.encoding, signature.isMark ? bytes : QByteArray{}};
    }
    const QByteArray declared = declaredEncoding(file);
    return declared.isEmpty() ? XmlEncoding{} : XmlEncoding{declared, {}};
}

tl::expected<QByteArray, QString> decodeXml(QByteArray file, const XmlEncoding& encoding) {
    file.remove(0, encoding.mark.size());
    if (isUtf8(encoding)) {
        if (QUtf8StringView{file}.isValidUtf8()) return file;
        return wrong(qtTrId("XmlBytesNotInEncoding"), encoding);
    }
    const Converter converter = openConverter(encoding);
    if (!converter) return wrong(qtTrId("XmlEncodingUnknown"), encoding);
    UErrorCode status = U_ZERO_ERROR;
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    const icu::UnicodeString text{file.constData(), static_cast<std::int32_t>(file.size()), converter.get(),
                                  status};
    if (U_FAILURE(status)) return wrong(qtTrId("XmlBytesNotInEncoding"), encoding);
    std::string utf8;
    text.toUTF8String(utf8);
    return QByteArray::fromStdString(utf8);
}

tl::expected<QByteArray, QString> encodeXml(QByteArray utf8, const XmlEncoding& encoding) {
    if (isUtf8(encoding)) return encoding.mark.isEmpty() ? std::move(utf8) : encoding.mark + utf8;
    const Converter converter = openConverter(encoding);
    if (!converter) return wrong(qtTrId("XmlEncodingUnknown"), encoding);
    UErrorCode status = U_ZERO_ERROR;
    ucnv_setFromUCallBack(converter.get(), UCNV_FROM_U_CALLBACK_ESCAPE, UCNV_ESCAPE_XML_DEC, nullptr, nullptr,
                          &status);
    const auto text =
        icu::UnicodeString::fromUTF8({utf8.constData(), static_cast<std::int32_t>(utf8.size())});
    const std::int32_t length = text.extract(nullptr, 0, converter.get(), status);
    status = U_ZERO_ERROR; // asking for the length overflows by design
    QByteArray bytes{length, Qt::Uninitialized};
    text.extract(bytes.data(), length, converter.get(), status);
    if (U_FAILURE(status)) return wrong(qtTrId("XmlBytesNotInEncoding"), encoding);
    return encoding.mark + bytes;
}

} // namespace zel
