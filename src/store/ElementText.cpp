#include "store/ElementText.h"

namespace zel {

namespace {

struct BytesWriter final : pugi::xml_writer {
    QByteArray bytes;
    void write(const void* data, std::size_t size) override {
        bytes.append(static_cast<const char*>(data), static_cast<qsizetype>(size));
    }
};

// As the data file itself is parsed, so that both have the same texts.
constexpr unsigned fragmentFlags = pugi::parse_full | pugi::parse_ws_pcdata_single | pugi::parse_fragment;

} // namespace

QByteArray rawText(pugi::xml_node node) {
    BytesWriter writer;
    if (node) node.print(writer, "", pugi::format_raw, pugi::encoding_utf8);
    // As in the data file: it would be read back as a plain line end.
    if (writer.bytes.contains('\r')) writer.bytes.replace("\r", "&#13;");
    return writer.bytes;
}

Fragment::Fragment(const QByteArray& text) {
    document.load_buffer(text.constData(), static_cast<std::size_t>(text.size()), fragmentFlags,
                         pugi::encoding_utf8);
}

} // namespace zel
