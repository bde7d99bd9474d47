#pragma once
// Elements as texts of their own, and back.

#include <QByteArray>

#include <pugixml.hpp>

namespace zel {

/// The node with all that is in it, on one line, in UTF-8; empty for a null node.
[[nodiscard]] QByteArray rawText(pugi::xml_node node);

/// A document of its own around the node that such a text is of.
class Fragment {
public:
    explicit Fragment(const QByteArray& text);
    /// Null for an empty text.
    [[nodiscard]] pugi::xml_node node() const { return document.first_child(); }

private:
    pugi::xml_document document;
};

} // namespace zel
