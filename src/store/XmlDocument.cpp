#include "store/XmlDocument.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

// Blanks that are all of an element's text are kept; a fragment's text outside the root is kept to be
// refused. Texts embedded in their elements make the tree half as large.
constexpr unsigned parseFlags =
    pugi::parse_full | pugi::parse_ws_pcdata_single | pugi::parse_fragment | pugi::parse_embed_pcdata;

struct ByteWriter final : pugi::xml_writer {
    QByteArray bytes;
    void write(const void* data, std::size_t size) override {
        bytes.append(static_cast<const char*>(data), static_cast<qsizetype>(size));
    }
};

/// Attributes are rare in these files, and looking for them in the text is quicker than in the tree.
bool mayHaveAttributes(std::string_view text) {
    const auto declarationEnd = text.starts_with("<?xml") ? text.find("?>") : 0;
    return text.find('=', declarationEnd) != text.npos;
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

bool isPredefined(std::string_view name) {
    return name == "amp" || name == "lt" || name == "gt" || name == "quot" || name == "apos"
           || (name.starts_with('#') && name.size() > 1);
}

/// True when every "&" begins a reference that needs no definition. The parser leaves others as they stand,
/// and writing them back would change what they mean.
bool referencesAreSafe(std::string_view text) {
    for (auto at = text.find('&'); at != text.npos; at = text.find('&', at + 1)) {
        const auto end = text.find_first_of(";<&", at + 1);
        if (end == text.npos || text[end] != ';' || !isPredefined(text.substr(at + 1, end - at - 1)))
            return false;
    }
    return true;
}

/// The judgement of a strict but slow reader, for the few files that need one: what is wrong, or an empty
/// text.
QString strictJudgement(const QByteArray& utf8) {
    QXmlStreamReader reader{QString::fromUtf8(utf8)};
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::EntityReference) return qtTrId("XmlEntityNotTaken");
    }
    if (!reader.hasError()) return {};
    return qtTrId("XmlErrorNearLine").arg(reader.lineNumber()).arg(reader.errorString());
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
        if (node.type() == pugi::node_element) ++roots;
        if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata)
            return qtTrId("XmlTextOutsideRoot");
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
    if (text.find('\0') != text.npos) return tl::unexpected{qtTrId("XmlNulByte")};
    if (!referencesAreSafe(text)) {
        if (const QString fault = strictJudgement(document.buffer); !fault.isNull())
            return tl::unexpected{fault};
    }
    const bool hasAttributes = mayHaveAttributes(text);
    const auto result = document.tree.load_buffer_inplace(document.buffer.data(), text.size(), parseFlags,
                                                          pugi::encoding_utf8);
    if (!result) return tl::unexpected{parserWords(result, document.buffer)};
    if (const QString fault = documentFault(document.tree); !fault.isEmpty()) return tl::unexpected{fault};
    if (hasAttributes && hasDoubleAttribute(document.tree))
        return tl::unexpected{qtTrId("XmlAttributeTwice")};
    return document;
}

tl::expected<QByteArray, QString> XmlDocument::serialise() const {
    ByteWriter writer;
    writer.bytes.reserve(buffer.size() + buffer.size() / 8);
    const bool isDeclared = tree.first_child().type() == pugi::node_declaration;
    const unsigned flags = pugi::format_indent | (isDeclared ? 0U : pugi::format_no_declaration);
    tree.save(writer, "    ", flags, pugi::encoding_utf8);
    return encodeXml(writer.bytes, encoding);
}

} // namespace zel
