#pragma once

#include <QWidget>

namespace zel {

/// Names the control by what is written on it or before it, so that who speaks to the computer can say it.
/// \p seen: with the mark of its key, if any. \p more: what a screen reader adds to the name; the hint, where
/// the control has one by now, follows.
void nameAsSeen(QWidget& control, const QString& seen, const QString& more = {});

} // namespace zel
