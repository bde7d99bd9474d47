#pragma once
// Where new records go in the document, and how they come to be there.

#include <pugixml.hpp>

namespace zel {

/// A new element right after \p last, which it is a copy of, completed with what a new one is made with; or,
/// where there is none to copy, a new one at the end of \p root. The caller fills it.
template <class Record>
pugi::xml_node insertElement(pugi::xml_node root, pugi::xml_node last) {
    if (!last) return Record::makeXmlNode(root);
    const pugi::xml_node copy = root.insert_copy_after(last, last);
    Record::addMissingXmlChildren(copy);
    return copy;
}

/// The last child element of that name; null when there is none.
[[nodiscard]] inline pugi::xml_node lastElement(pugi::xml_node root, const char* name) {
    for (pugi::xml_node at = root.last_child(); at; at = at.previous_sibling(name)) {
        if (std::string_view{at.name()} == name) return at;
    }
    return {};
}

} // namespace zel
