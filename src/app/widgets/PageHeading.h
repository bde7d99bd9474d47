#pragma once

#include "app/widgets/Style.h"

#include <QLabel>

namespace zel {

/// A label for what is said in passing, in a fainter shade of the palette's text colour.
class QuietLabel final : public QLabel {
    Q_OBJECT
public:
    explicit QuietLabel(const QString& text, QWidget* parent = nullptr);
};

/// The large line at the top of a page, over a smaller line that says more.
class PageHeading final : public QWidget {
    Q_OBJECT
public:
    explicit PageHeading(QWidget* parent = nullptr);
    void setTexts(const QString& heading, const QString& detail);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fitHeading();

    QString wholeHeading;
    QLabel* lblHeading;
    QuietLabel* lblDetail;
};

} // namespace zel
