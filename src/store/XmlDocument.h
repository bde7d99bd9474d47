#pragma once

#include "store/XmlEncoding.h"

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>
#include <tl/expected.hpp>

#include <span>

namespace zel {

/// A parsed document with what is needed to write it back in its own encoding. Everything in it is kept:
/// declaration, comments, processing instructions, elements that this program does not know, and order.
class XmlDocument {
public:
    /// Parses a whole file. Stricter than the parser, which lets some files pass that are not well-formed and
    /// leaves half a tree behind an error: two roots, text outside the root, an attribute given twice, bytes
    /// that are not in the encoding, control characters, references to what is not defined. Refuses what
    /// would take too much: more than 100 levels, or more elements, attributes and records than a file of its
    /// size holds that means something.
    /// \return what is wrong, in words for the user
    [[nodiscard]] static tl::expected<XmlDocument, QString> parse(QByteArray file);

    [[nodiscard]] pugi::xml_node root() const { return tree.document_element(); }
    /// A copy whose root holds copies of only these of its children, and its text.
    [[nodiscard]] XmlDocument withChildren(std::span<const pugi::xml_node> kept) const;
    /// Pretty-printed, one element a line, in the document's encoding.
    [[nodiscard]] tl::expected<QByteArray, QString> serialise() const;

private:
    QByteArray buffer; // the tree's texts point into it
    pugi::xml_document tree;
    XmlEncoding encoding;
};

} // namespace zel
