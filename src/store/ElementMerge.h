#pragma once

#include <pugixml.hpp>

namespace zel {

/// Sets those child elements of \p target in which \p before and \p after differ to what they are after; the
/// others, and all that is not known here, stay.
/// \return false, changing nothing, if one of them is neither as before nor as after
[[nodiscard]] bool mergeChildren(pugi::xml_node target, pugi::xml_node before, pugi::xml_node after);

} // namespace zel
