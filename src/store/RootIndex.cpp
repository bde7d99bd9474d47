#include "store/RootIndex.h"

#include "store/ElementText.h"
#include "store/RecordXml.h"

#include <algorithm>

namespace zel {

namespace {

/// Alike for an element before and after a change: its kind, its patient and its number.
std::string keyOf(pugi::xml_node node) {
    std::string scratch;
    std::string key{node.name()};
    if (node.type() != pugi::node_element) return key + '\n' + node.value();
    for (const char* child : {"ID", isElement(node, "Comment") ? "CommentID" : "RecID"}) {
        key += '\n';
        key += elementText(firstElement(node, child), scratch);
    }
    return key;
}

} // namespace

RootIndex::RootIndex(pugi::xml_node root) {
    for (const pugi::xml_node node : root.children())
        add(node);
}

void RootIndex::add(pugi::xml_node node) { byKey[keyOf(node)].push_back(node); }

void RootIndex::remove(pugi::xml_node node) { std::erase(byKey[keyOf(node)], node); }

const RootIndex::Nodes& RootIndex::alike(pugi::xml_node node) const {
    static const Nodes none;
    const auto found = byKey.find(keyOf(node));
    return found == byKey.end() ? none : found->second;
}

pugi::xml_node RootIndex::same(pugi::xml_node node) const {
    const QByteArray text = rawText(node);
    const Nodes& all = alike(node);
    const auto found =
        std::find_if(all.rbegin(), all.rend(), [&](pugi::xml_node each) { return rawText(each) == text; });
    return found == all.rend() ? pugi::xml_node{} : *found;
}

} // namespace zel
