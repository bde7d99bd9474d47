#include "store/RecordXml.h"

#include "store/Text.h"

#include <algorithm>
#include <limits>

namespace zel {

namespace {

bool isText(pugi::xml_node node) {
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

bool isXmlCharacter(char16_t c) {
    return c >= 0x20 ? c != 0xFFFE && c != 0xFFFF : c == u'\t' || c == u'\n' || c == u'\r';
}

/// Without control characters and lone surrogates.
QString storable(const QString& text) {
    QString kept;
    kept.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool isPair = c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair) {
            kept += c;
            kept += text[++i];
        } else if (!c.isSurrogate() && isXmlCharacter(c.unicode())) {
            kept += c;
        }
    }
    return kept;
}

} // namespace

std::string_view elementText(pugi::xml_node element, std::string& scratch) {
    const pugi::xml_node first = element.first_child();
    if (!first) return element.value(); // the parser puts the first text into the element itself
    scratch = element.value();
    for (pugi::xml_node child = first; child; child = child.next_sibling()) {
        if (isText(child)) scratch += child.value();
    }
    return scratch;
}

QString elementText(pugi::xml_node element) {
    std::string scratch;
    const std::string_view text = elementText(element, scratch);
    return toQString(text);
}

void setElementText(pugi::xml_node element, const QString& value) {
    const QString wanted = storable(value);
    if (elementText(element) == wanted) return;
    for (pugi::xml_node child = element.first_child(); child;) {
        const pugi::xml_node next = child.next_sibling();
        if (isText(child)) element.remove_child(child);
        child = next;
    }
    pugi::xml_text text = element.text();
    if (text || !wanted.isEmpty()) text.set(wanted.toUtf8().constData());
}

QString toQString(std::string_view utf8) {
    using namespace Qt::StringLiterals;
    // An empty text is not the null text of a child that is missing.
    return utf8.empty() ? u""_s : QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString toDecimal(std::uint32_t value) { return QString::number(static_cast<std::int32_t>(value)); }

std::uint32_t toUnsigned(std::string_view text) {
    constexpr std::int64_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t most = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::clamp(leadingInteger(text), least, most));
}

std::int32_t toSigned(std::string_view text) {
    constexpr std::int64_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(leadingInteger(text), least, most));
}

} // namespace zel
