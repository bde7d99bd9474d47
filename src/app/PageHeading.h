#pragma once

#include <QLabel>

namespace zel {

/// The large line at the top of a page, over a smaller line that says more.
class PageHeading final : public QWidget {
    Q_OBJECT
public:
    explicit PageHeading(QWidget* parent = nullptr);
    void setTexts(const QString& heading, const QString& detail);

private:
    QLabel* lblHeading;
    QLabel* lblDetail;
};

/// The font of a control, \p factor times as large.
[[nodiscard]] QFont scaledFont(const QFont& font, double factor, bool bold = false);
/// A label for what is said in passing: in the palette's quieter text colour.
void makeQuiet(QLabel& label);

} // namespace zel
