#pragma once
// What a screen reader is told of controls whose class alone does not tell it.

#include <QAccessible>
#include <QStringList>

#include <vector>

class QLabel;
class QWidget;

namespace zel {

/// For good, while the widget is being made. A button that is checked is the chosen one of its
/// list of page tabs; a label holds a value, and its name is the caption.
void speakAs(QWidget& widget, QAccessible::Role role);

/// A label that holds a value, which its caption names.
void speakAsValue(QLabel& value, QLabel& caption);

/// A widget that draws a table.
class SpokenTable {
public:
    SpokenTable() = default;
    SpokenTable(const SpokenTable&) = delete;
    SpokenTable& operator=(const SpokenTable&) = delete;
    /// The first row and the first cell of each row are headings; all rows have as many cells.
    [[nodiscard]] virtual std::vector<QStringList> spokenRows() const = 0;

protected:
    ~SpokenTable() = default;
};

/// To be installed once, where the application is made. \return null for what needs no more than its class
/// has
[[nodiscard]] QAccessibleInterface* makeSpoken(const QString& className, QObject* object);

} // namespace zel
