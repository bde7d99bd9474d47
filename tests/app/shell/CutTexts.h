#pragma once

#include <QWidget>

namespace zel {

/// Fails for each showing control of the window whose words have less room than they take, or that stands
/// outside of what holds it. What is shortened on purpose, and said in full by a tool tip, is left out.
void expectNothingCut(const QWidget& window);
/// Likewise for each entry of its boxes, should it be chosen, each column's title and each
/// cell.
void expectListsWhole(const QWidget& window);

} // namespace zel
