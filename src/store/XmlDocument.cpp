#include "store/XmlDocument.h"

#include <QUtf8StringView>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <unordered_set>

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

constexpr int mostLevels = 100;

/// How much a file may hold. What is parsed takes 64 bytes for each element, attribute and piece of text, and
/// a patient that is read 300 more, so that a file of nothing but short ones fills memory with many times its
/// size. Records that mean something take 20 bytes for each element and 100 in all, also without indentation;
/// a small file may hold shorter ones.
std::size_t mostParts(std::size_t size) { return 500'000 + size / 16; }
std::size_t mostRecords(std::size_t size) { return 200'000 + size / 50; }

/// What the text holds that calls for a closer look or for a refusal before it is parsed.
struct Survey {
    bool hasControl = false; ///< a control character, which would not be read again once written
    bool hasAmpersand = false;
    bool hasEqualsSign = false;   ///< after the declaration: perhaps an attribute's
    bool hasNonCharacter = false; ///< U+FFFE or U+FFFF
    bool hasCdata = false;
    bool hasBlankFirst = false;  ///< what a declaration behind it says of the encoding was not read
    bool hasLikeTags = false;    ///< comments and the like, within which may stand what looks like tags
    std::size_t equalsSigns = 0; ///< at least as many as attributes
    std::size_t elementsAndTexts = 0;
    int levels = 0; ///< of elements in each other, at most; means nothing beside attributes and hasLikeTags
};

/// What one pass over a block's bytes finds.
struct BlockMarks {
    unsigned control = 0, ampersand = 0, suspect = 0, equalsSigns = 0;
};

/// Of a few bytes: with a known number of rounds, and sums that are no struct's, the compiler takes many of
/// them at once.
template <int Size>
BlockMarks marksIn(const char* block) {
    unsigned control = 0, ampersand = 0, suspect = 0, equalsSigns = 0;
    for (int i = 0; i < Size; ++i) {
        const auto c = static_cast<std::uint8_t>(block[i]);
        control |= (c < ' ') & (c != '\t') & (c != '\n') & (c != '\r');
        ampersand |= c == '&';
        suspect |= c == 0xEF;
        equalsSigns += c == '=';
    }
    return {control, ampersand, suspect, equalsSigns};
}

void note(const BlockMarks& marks, Survey& seen) {
    seen.hasControl = seen.hasControl || marks.control != 0;
    seen.hasAmpersand = seen.hasAmpersand || marks.ampersand != 0;
    seen.hasNonCharacter = seen.hasNonCharacter || marks.suspect != 0; // until it has been looked at
    seen.equalsSigns += marks.equalsSigns;
}

void surveyBytes(std::string_view text, Survey& seen) {
    constexpr int blockSize = 64;
    const char* at = text.data();
    const char* const end = at + text.size();
    for (; at + blockSize <= end; at += blockSize)
        note(marksIn<blockSize>(at), seen);
    for (; at < end; ++at)
        note(marksIn<1>(at), seen);
}

bool isBlank(char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; }

/// What stands from a "<" to the next one.
enum class Tag { start, empty, end, other };

/// A start tag keeps the text that follows it.
Tag kindOf(std::string_view tag) {
    const char mark = tag.size() > 1 ? tag[1] : '\0';
    if (mark == '/') return Tag::end;
    if (mark == '!' || mark == '?') return Tag::other;
    const auto end = tag.find('>');
    return end != tag.npos && tag[end - 1] != '/' ? Tag::start : Tag::empty;
}

/// Comments and CDATA sections do, and of processing instructions those that do not end before the next "<".
bool mayHoldTags(std::string_view other) { return other[1] == '!' || other.find("?>") == other.npos; }

/// Behind the last tag.
bool hasTextAtEnd(std::string_view text) {
    auto end = text.size();
    while (end > 0 && isBlank(text[end - 1]))
        --end;
    return end > 0 && text[end - 1] != '>';
}

/// Elements, and pieces of text but for those that are kept in their elements; how deep they lie.
void surveyTags(std::string_view text, Survey& seen) {
    Tag before = Tag::other;
    int level = 0;
    for (auto at = text.find('<'); at != text.npos;) {
        const auto next = std::min(text.find('<', at + 1), text.size());
        const std::string_view whole = text.substr(at, next - at);
        const Tag tag = kindOf(whole);
        if (hasTextAtEnd(text.substr(0, at)) && (seen.hasCdata || before != Tag::start))
            ++seen.elementsAndTexts;
        if (tag != Tag::end) ++seen.elementsAndTexts;
        if (tag == Tag::other) seen.hasLikeTags = seen.hasLikeTags || mayHoldTags(whole);
        if (tag == Tag::start || tag == Tag::empty) seen.levels = std::max(seen.levels, level + 1);
        level += tag == Tag::start ? 1 : tag == Tag::end ? -1 : 0;
        before = tag;
        at = next < text.size() ? next : text.npos;
    }
}

bool hasCdata(std::string_view text) {
    // By its second character, since the first is everywhere.
    for (auto at = text.find("![CDATA["); at != text.npos; at = text.find("![CDATA[", at + 1))
        if (at > 0 && text[at - 1] == '<') return true;
    return false;
}

Survey survey(std::string_view text) {
    Survey seen;
    const auto declarationEnd = text.starts_with("<?xml") ? text.find("?>") : 0;
    seen.hasEqualsSign = text.find('=', std::min(declarationEnd, text.size())) != text.npos;
    seen.hasBlankFirst = text.find_first_not_of(" \t\r\n") != 0;
    seen.hasCdata = hasCdata(text);
    surveyBytes(text, seen);
    surveyTags(text, seen);
    seen.hasNonCharacter =
        seen.hasNonCharacter
        && (text.find("\xEF\xBF\xBE") != text.npos || text.find("\xEF\xBF\xBF") != text.npos);
    return seen;
}

/// What is wrong with a text before it is parsed, or an empty text.
QString textFault(std::string_view text, const Survey& seen) {
    if (seen.hasControl) return qtTrId("XmlControlCharacter");
    if (seen.hasNonCharacter) return qtTrId("XmlControlCharacter");
    const auto last = text.find_last_not_of(" \t\r\n");
    // The parser lets one more character pass.
    if (last != text.npos && text[last] != '>') return qtTrId("XmlTextOutsideRoot");
    const std::size_t most = mostParts(text.size());
    return seen.elementsAndTexts + seen.equalsSigns > most ? qtTrId("XmlTooManyParts").arg(most) : QString{};
}

bool hasDoubleAttribute(pugi::xml_node element) {
    // Linear, since an element may have any number of attributes.
    std::unordered_set<std::string_view> names;
    const auto isKnown = [&names](pugi::xml_attribute one) { return !names.insert(one.name()).second; };
    return element.first_attribute() && element.first_attribute().next_attribute()
           && std::ranges::any_of(element.attributes(), isKnown);
}

/// Looks at the elements one by one, without recursion.
struct TreeSearch final : pugi::xml_tree_walker {
    explicit TreeSearch(bool attributes) : looksAtAttributes{attributes} {}
    const bool looksAtAttributes;
    bool isDeep = false;
    bool hasDouble = false;
    bool for_each(pugi::xml_node& node) override {
        isDeep = node.type() == pugi::node_element && depth() >= mostLevels;
        hasDouble = looksAtAttributes && hasDoubleAttribute(node);
        return !isDeep && !hasDouble;
    }
};

QString treeFault(pugi::xml_document& tree, const Survey& seen, std::size_t size) {
    const auto records = tree.document_element().children();
    if (static_cast<std::size_t>(std::distance(records.begin(), records.end())) > mostRecords(size))
        return qtTrId("XmlTooManyRecords").arg(mostRecords(size));
    // Seldom needed: elements without attributes were counted as they lie in each other.
    const bool isPlain = !seen.hasEqualsSign && !seen.hasLikeTags;
    if (isPlain && seen.levels <= mostLevels) return {};
    TreeSearch search{seen.hasEqualsSign};
    tree.traverse(search);
    if (search.isDeep) return qtTrId("XmlTooDeep").arg(mostLevels);
    return search.hasDouble ? qtTrId("XmlAttributeTwice") : QString{};
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
/// processing instruction; 0 for anything else, also for a declaration, whose attributes are read.
std::size_t unreadLength(std::string_view text) {
    constexpr std::string_view declaration = "<?xml";
    if (text.starts_with(declaration) && text.find_first_of(" \t\r\n") == declaration.size()) return 0;
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

/// Read as UTF-8, and written as what it names, it would have other characters.
bool namesOtherEncoding(pugi::xml_node declaration) {
    const QByteArray named{declaration.attribute("encoding").value()};
    return !named.isEmpty() && named.compare("UTF-8", Qt::CaseInsensitive) != 0;
}

/// What is wrong with the parsed document as a whole, or an empty text.
QString documentFault(const pugi::xml_document& tree, const Survey& seen) {
    qsizetype roots = 0;
    for (const pugi::xml_node node : tree.children()) {
        const auto type = node.type();
        if (type == pugi::node_element) ++roots;
        if (type == pugi::node_pcdata || type == pugi::node_cdata) return qtTrId("XmlTextOutsideRoot");
        const bool isMisplaced =
            (type == pugi::node_declaration
             && (node != tree.first_child() || (seen.hasBlankFirst && namesOtherEncoding(node))))
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
    if (const QString fault = textFault(text, seen); !fault.isEmpty()) return tl::unexpected{fault};
    if (seen.hasAmpersand && !referencesAreSafe(text)) return tl::unexpected{qtTrId("XmlEntityNotTaken")};
    // Beside a text that is embedded in its element, a CDATA section would not be written back.
    const unsigned flags = seen.hasCdata ? parseFlags & ~pugi::parse_embed_pcdata : parseFlags;
    const auto result =
        document.tree.load_buffer_inplace(document.buffer.data(), text.size(), flags, pugi::encoding_utf8);
    if (!result) return tl::unexpected{parserWords(result, document.buffer)};
    if (const QString fault = documentFault(document.tree, seen); !fault.isEmpty())
        return tl::unexpected{fault};
    if (const QString fault = treeFault(document.tree, seen, text.size()); !fault.isEmpty())
        return tl::unexpected{fault};
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
