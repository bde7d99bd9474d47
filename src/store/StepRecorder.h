#pragma once

#include "store/ChangeStep.h"

#include <pugixml.hpp>

namespace zel {

/// Notes what one change does to the children of a document's root, while it does so. Costs what is touched,
/// whatever the size of the document.
class StepRecorder {
public:
    void setName(StepName name) { made.name = std::move(name); }
    /// A patient's or, with its number in the file, a patient's comment's step. \p patient: its element;
    /// null: there is none, and the ID stands for the name
    void setName(StepKind kind, pugi::xml_node patient, const QString& ID, const QString& commentID = {});

    void setCount(std::size_t readings) { made.name.count = readings; } ///< after the name

    void willChange(pugi::xml_node element); ///< before its first change
    void willRemove(pugi::xml_node element); ///< a null one is none
    void added(pugi::xml_node element);      ///< at its place; its content may still change

    /// What is other than before. While the document is still there.
    [[nodiscard]] ChangeStep step() const;

private:
    struct Kept {
        pugi::xml_node node;     ///< null: removed
        pugi::xml_node previous; ///< of one that was added
    };
    ChangeStep made;
    std::vector<Kept> kept; ///< beside each of the changes
};

} // namespace zel
