#pragma once
// The record elements among a document's nodes, and where new ones go.

#include "store/RecordXml.h"

#include <QString>

#include <pugixml.hpp>

namespace zel {

/// A processing instruction has a name too, but is no record.
[[nodiscard]] inline bool isElement(pugi::xml_node node, const char* name) {
    return node.type() == pugi::node_element && isSameName(node.name(), name);
}

/// The first child element of that name; null when there is none.
[[nodiscard]] inline pugi::xml_node firstElement(pugi::xml_node root, const char* name) {
    return root.find_child([name](pugi::xml_node node) { return isElement(node, name); });
}

/// The last child element of that name; null when there is none.
[[nodiscard]] inline pugi::xml_node lastElement(pugi::xml_node root, const char* name) {
    pugi::xml_node at = root.last_child();
    while (at && !isElement(at, name))
        at = at.previous_sibling();
    return at;
}

/// The first record element of that name whose child \p child has the given text; null when there is none.
[[nodiscard]] inline pugi::xml_node findElement(pugi::xml_node root, const char* name, const char* child,
                                                const QString& text) {
    return root.find_child(
        [&](pugi::xml_node node) { return isElement(node, name) && elementText(node.child(child)) == text; });
}

/// A new element right after \p last, which it is a copy of, completed with what a new one is made with; or,
/// where there is none to copy, a new one at the end of \p root. The caller fills it.
template <class Record>
pugi::xml_node insertElement(pugi::xml_node root, pugi::xml_node last) {
    if (!last) return Record::makeXmlNode(root);
    const pugi::xml_node copy = root.insert_copy_after(last, last);
    Record::addMissingXmlChildren(copy);
    return copy;
}

} // namespace zel
