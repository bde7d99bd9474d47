#include "store/XmlDocument.h"

#include <QUtf8StringView>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

// Blanks that are all of an element's text are kept; a fragment's text outside the root is kept to be
// refused. Texts embedded in their elements make the tree half as large.
constexpr unsigned parseFlags =
    pugi::parse_full | pugi::parse_ws_pcdata_single | pugi::parse_fragment | pugi::parse_embed_pcdata;

constexpr std::size_t longestReference = 12; // "&#1114111;" with room for leading zeros

struct ByteWriter final : pugi::xml_writer {
    QByteArray bytes;
    void write(const void* data, std::size_t size) override {
        bytes.append(static_cast<const char*>(data), static_cast<qsizetype>(size));
    }
};

/// Which characters that call for a closer look the text holds. Such files are rare, and the parser's tree
/// would have to be walked for them.
struct Survey {
    bool hasNul = false;
    bool hasAmpersand = false;
    bool hasEqualsSign = false; ///< after the declaration: perhaps an attribute's
};

Survey survey(std::string_view text) {
    Survey seen;
    if (text.starts_with("<?xml")) text.remove_prefix(std::min(text.find("?>"), text.size()));
    // Block by block, so that a large file goes through memory once and not three times.
    constexpr std::size_t blockSize = std::size_t{64} * 1024;
    for (; !text.empty(); text.remove_prefix(std::min(blockSize, text.size()))) {
        const std::string_view block = text.substr(0, blockSize);
        seen.hasNul = seen.hasNul || block.find('\0') != block.npos;
        seen.hasAmpersand = seen.hasAmpersand || block.find('&') != block.npos;
        seen.hasEqualsSign = seen.hasEqualsSign || block.find('=') != block.npos;
    }
    return seen;
}

struct DoubleAttributeSearch final : pugi::xml_tree_walker {
    bool found = false;
    bool for_each(pugi::xml_node& element) override {
        for (auto one = element.first_attribute(); one; one = one.next_attribute()) {
            for (auto other = one.next_attribute(); other; other = other.next_attribute()) {
                found = found || std::strcmp(one.name(), other.name()) == 0;
            }
        }
        return !found;
    }
};

bool hasDoubleAttribute(pugi::xml_document& tree) {
    DoubleAttributeSearch search;
    tree.traverse(search);
    return search.found;
}

bool isXmlCharacter(std::uint32_t code) {
    return code == '\t' || code == '\n' || code == '\r' || (code >= 0x20 && code <= 0xD7FF)
           || (code >= 0xE000 && code <= 0xFFFD) || (code >= 0x10000 && code <= 0x10FFFF);
}

/// "#228" or "#xE4", of a character that XML may hold.
bool isCharacterReference(std::string_view name) {
    if (!name.starts_with('#')) return false;
    const bool isHexadecimal = name.starts_with("#x");
    name.remove_prefix(isHexadecimal ? 2 : 1);
    std::uint32_t code = 0;
    const auto [end, error] =
        std::from_chars(name.data(), name.data() + name.size(), code, isHexadecimal ? 16 : 10);
    return error == std::errc{} && end == name.data() + name.size() && isXmlCharacter(code);
}

/// The text after "&" begins a reference that needs no definition.
bool isSafeReference(std::string_view text) {
    const auto end = text.substr(0, longestReference).find(';');
    const std::string_view name = text.substr(0, end);
    return end != text.npos
           && (name == "amp" || name == "lt" || name == "gt" || name == "quot" || name == "apos"
               || isCharacterReference(name));
}

/// Where what begins here and is no markup or text to be read ends: a comment, a CDATA section or a
/// processing instruction; 0 for anything else.
std::size_t unreadLength(std::string_view text) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 3> kinds{
        {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}}};
    for (const auto& [begin, end] : kinds) {
        if (text.starts_with(begin)) return std::min(text.find(end, begin.size()), text.size());
    }
    return 0;
}

/// The parser leaves references that it does not know as they stand, and writing them back would change what
/// they mean; others make text of what XML may not hold. Neither is taken.
bool referencesAreSafe(std::string_view text) {
    bool isSafe = true;
    for (auto at = text.find('&'); isSafe && at != text.npos; at = text.find('&', at + 1)) {
        isSafe = isSafeReference(text.substr(at + 1));
    }
    if (isSafe) return true;
    // Rarely needed: again, passing over the parts in which "&" means nothing.
    for (auto at = text.find_first_of("<&"); at != text.npos; at = text.find_first_of("<&", at + 1)) {
        if (text[at] == '<')
            at += unreadLength(text.substr(at));
        else if (!isSafeReference(text.substr(at + 1)))
            return false;
    }
    return true;
}

QString parserWords(const pugi::xml_parse_result& result, const QByteArray& utf8) {
    const auto offset = std::clamp<qsizetype>(result.offset, 0, utf8.size());
    const auto line = std::count(utf8.begin(), utf8.begin() + offset, '\n') + 1;
    return qtTrId("XmlErrorNearLine").arg(line).arg(QString::fromLatin1(result.description()));
}

/// What is wrong with the parsed document as a whole, or an empty text.
QString documentFault(const pugi::xml_document& tree) {
    qsizetype roots = 0;
    for (const pugi::xml_node node : tree.children()) {
        const auto type = node.type();
        if (type == pugi::node_element) ++roots;
        if (type == pugi::node_pcdata || type == pugi::node_cdata) return qtTrId("XmlTextOutsideRoot");
        const bool isMisplaced = (type == pugi::node_declaration && node != tree.first_child())
                                 || (type == pugi::node_doctype && roots > 0);
        if (isMisplaced) return qtTrId("XmlMisplacedDeclaration");
    }
    if (roots == 0) return qtTrId("XmlNoRoot");
    return roots > 1 ? qtTrId("XmlSeveralRoots") : QString{};
}

} // namespace

tl::expected<XmlDocument, QString> XmlDocument::parse(QByteArray file) {
    XmlDocument document;
    document.encoding = detectEncoding(file);
    auto utf8 = decodeXml(std::move(file), document.encoding);
    if (!utf8) return tl::unexpected{utf8.error()};
    document.buffer = std::move(*utf8);
    const std::string_view text{document.buffer.constData(),
                                static_cast<std::size_t>(document.buffer.size())};
    const Survey seen = survey(text);
    if (seen.hasNul) return tl::unexpected{qtTrId("XmlNulByte")};
    if (seen.hasAmpersand && !referencesAreSafe(text)) return tl::unexpected{qtTrId("XmlEntityNotTaken")};
    const auto result = document.tree.load_buffer_inplace(document.buffer.data(), text.size(), parseFlags,
                                                          pugi::encoding_utf8);
    if (!result) return tl::unexpected{parserWords(result, document.buffer)};
    if (const QString fault = documentFault(document.tree); !fault.isEmpty()) return tl::unexpected{fault};
    if (seen.hasEqualsSign && hasDoubleAttribute(document.tree))
        return tl::unexpected{qtTrId("XmlAttributeTwice")};
    return document;
}

XmlDocument XmlDocument::withChildren(std::span<const pugi::xml_node> kept) const {
    XmlDocument copy;
    copy.encoding = encoding;
    for (const pugi::xml_node part : tree.children()) {
        if (part != root()) {
            copy.tree.append_copy(part);
            continue;
        }
        pugi::xml_node element = copy.tree.append_child(part.name());
        for (const pugi::xml_attribute attribute : part.attributes())
            element.append_copy(attribute);
        if (*part.value() != '\0') element.text().set(part.value()); // the parser puts the first text there
        for (const pugi::xml_node child : kept)
            element.append_copy(child);
    }
    return copy;
}

tl::expected<QByteArray, QString> XmlDocument::serialise() const {
    ByteWriter writer;
    writer.bytes.reserve(buffer.size() + buffer.size() / 8);
    const bool isDeclared = tree.first_child().type() == pugi::node_declaration;
    const unsigned flags = pugi::format_indent | (isDeclared ? 0U : pugi::format_no_declaration);
    tree.save(writer, "    ", flags, pugi::encoding_utf8);
    // A line end that the user typed on another system would be read back as a plain one.
    if (writer.bytes.contains('\r')) writer.bytes.replace("\r", "&#13;");
    return encodeXml(std::move(writer.bytes), encoding);
}

} // namespace zel
