#pragma once
// The encoding that an XML document declares, by byte-order mark, by the first bytes or in its declaration.

#include <QByteArray>

#include <tl/expected.hpp>

namespace zel {

struct XmlEncoding {
    QByteArray name = "UTF-8"; ///< as a converter knows it
    QByteArray mark;           ///< byte-order mark at the start of the file; may be empty
};

[[nodiscard]] XmlEncoding detectEncoding(const QByteArray& file);

/// \p file, its mark left out, as UTF-8.
/// \return what is wrong, for the user, when the bytes are not in the encoding or it is not known
[[nodiscard]] tl::expected<QByteArray, QString> decodeXml(QByteArray file, const XmlEncoding& encoding);

/// The mark and \p utf8 in the encoding; characters that it lacks become character references.
[[nodiscard]] tl::expected<QByteArray, QString> encodeXml(QByteArray utf8, const XmlEncoding& encoding);

} // namespace zel
