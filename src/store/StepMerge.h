#pragma once

#include "store/ChangeStep.h"
#include "store/StoreError.h"

#include <pugixml.hpp>

namespace zel {

/// Makes the step's changes in a document that may have become another one since. An element is found by what
/// it is, with others of the same number by its content. Of one that was changed, the children that the step
/// changed are set, if they are still as the step found them; the others stay. One that was removed is to be
/// as it was then. A typed reading does not come back beside one that has its minute and values by now,
/// unless the step takes that one away or leaves it out; if its number is taken, it gets a new one, also in
/// \p step. \return after an error, one of those of a step, the document is of no use any more: half of the
/// step may be made in it
[[nodiscard]] StoreResult apply(pugi::xml_node root, ChangeStep& step);

} // namespace zel
