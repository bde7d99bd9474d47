#pragma once

#include <pugixml.hpp>

#include <string>
#include <unordered_map>
#include <vector>

namespace zel {

/// The children of a document's root, to be found without going through all of them each time.
class RootIndex {
public:
    using Nodes = std::vector<pugi::xml_node>;
    explicit RootIndex(pugi::xml_node root);
    void add(pugi::xml_node node);
    void remove(pugi::xml_node node);
    /// Those of the node's kind, patient and number; it may be another document's. Valid until the next
    /// change.
    [[nodiscard]] const Nodes& alike(pugi::xml_node node) const;
    /// The last one alike that has just this content; null: there is none.
    [[nodiscard]] pugi::xml_node same(pugi::xml_node node) const;

private:
    std::unordered_map<std::string, Nodes> byKey;
};

} // namespace zel
