#pragma once

#include <QWidget>

namespace zel {

/// Fails for each showing control of the window whose words have less room than they take, or that stands
/// outside of what holds it. What is shortened on purpose, and said in full by a tool tip, is left out.
void expectNothingCut(const QWidget& window);

} // namespace zel
