#include "store/ElementMerge.h"

#include "store/ElementText.h"

#include <string>
#include <vector>

namespace zel {

namespace {

/// Elements of one name, as the \p place-th of them.
pugi::xml_node childAt(pugi::xml_node parent, const std::string& name, int place) {
    for (const pugi::xml_node child : parent.children(name.c_str()))
        if (child.type() == pugi::node_element && place-- == 0) return child;
    return {};
}

int placeAmongLikes(pugi::xml_node child) {
    int place = 0;
    for (auto before = child.previous_sibling(child.name()); before;
         before = before.previous_sibling(child.name()))
        if (before.type() == pugi::node_element) ++place;
    return place;
}

class ChildMerge {
public:
    ChildMerge(pugi::xml_node into, pugi::xml_node from, pugi::xml_node to)
        : target{into}, before{from}, after{to} {
        for (const pugi::xml_node child : after.children())
            compare(child);
        for (const pugi::xml_node child : before.children())
            if (!childAt(after, child.name(), placeAmongLikes(child))) compare(child);
    }
    /// Nobody else has changed them meanwhile, or to the same.
    [[nodiscard]] bool isPossible() const { return isFree; }
    void perform() {
        for (const auto& [old, wanted] : changes)
            set(old, wanted);
    }

private:
    struct ChildChange {
        pugi::xml_node old, wanted;
    };
    void compare(pugi::xml_node child) {
        if (child.type() != pugi::node_element) return;
        const std::string name = child.name();
        const int place = placeAmongLikes(child);
        const pugi::xml_node wanted = childAt(after, name, place);
        const pugi::xml_node now = childAt(target, name, place);
        const QByteArray from = rawText(childAt(before, name, place));
        const QByteArray to = rawText(wanted);
        const QByteArray found = rawText(now);
        if (from == to || found == to) return;
        isFree = isFree && found == from;
        changes.push_back({now, wanted});
    }
    void set(pugi::xml_node old, pugi::xml_node wanted) {
        if (old && wanted) target.insert_copy_before(wanted, old);
        if (old) {
            target.remove_child(old);
            return;
        }
        const pugi::xml_node left = wanted.previous_sibling();
        const pugi::xml_node beside = left ? childAt(target, left.name(), placeAmongLikes(left)) : left;
        if (beside)
            target.insert_copy_after(wanted, beside);
        else
            target.prepend_copy(wanted);
    }

    pugi::xml_node target, before, after;
    std::vector<ChildChange> changes;
    bool isFree = true;
};

} // namespace

bool mergeChildren(pugi::xml_node target, pugi::xml_node before, pugi::xml_node after) {
    ChildMerge merge{target, before, after};
    if (merge.isPossible()) merge.perform();
    return merge.isPossible();
}

} // namespace zel
