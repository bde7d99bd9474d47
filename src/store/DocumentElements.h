#pragma once
// The record elements among a document's nodes, and where new ones go.

#include "store/RecordXml.h"

#include <QString>

#include <pugixml.hpp>

namespace zel {

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
        [&](pugi::xml_node node) { return isElement(node, name) && childText(node, child) == text; });
}

/// Where a patient's new readings go: behind the last one, so that they stay together; behind all if there is
/// none.
[[nodiscard]] inline pugi::xml_node placeForReadings(pugi::xml_node root, const QString& ID) {
    const pugi::xml_node last = lastElement(root, "MeasureRec");
    for (pugi::xml_node at = last; at; at = at.previous_sibling()) {
        if (isElement(at, "MeasureRec") && childText(at, "ID") == ID) return at;
    }
    return last;
}

/// A new, empty element right after \p last, or at the end of \p root where there is none. The caller fills
/// it.
template <class Record>
pugi::xml_node insertElement(pugi::xml_node root, pugi::xml_node last) {
    const pugi::xml_node made = Record::makeXmlNode(root);
    return last ? root.insert_move_after(made, last) : made;
}

} // namespace zel
