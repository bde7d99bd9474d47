#pragma once

#include "app/widgets/PageHeading.h"

namespace zel {

/// Stands where a list has nothing to show, and says what to do about it.
class EmptyState final : public QWidget {
    Q_OBJECT
public:
    EmptyState(const QString& name, const QString& icon, QWidget* parent = nullptr);
    void setTexts(const QString& heading, const QString& advice);
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] int leastHeight(int width) const;

    QLabel* picture;
    QLabel* lblHeading;
    QuietLabel* lblAdvice;
};

} // namespace zel
