#pragma once

#include <QString>

class QWidget;

namespace zel {

class QuietLabel;

/// A field's title with the mark of one that has to be filled in.
[[nodiscard]] QString requiredTitle(const QString& title);
/// What a field that has to be filled in says beside its name; \p more is what else is to be said of it.
[[nodiscard]] QString requiredDescription(const QString& more = {});
/// Explains the mark, once in each window.
[[nodiscard]] QuietLabel* requiredNote(QWidget* parent);

} // namespace zel
