#pragma once

#include "report/PrintView.h"

#include <QPixmap>
#include <QWidget>

namespace zel {

/// One page of the report, as large as the room allows and never smaller than its preview size unless the
/// screen is. Painted once for each change, size and density of the screen.
class PrintPreview final : public QWidget {
    Q_OBJECT
public:
    explicit PrintPreview(QWidget* parent);

    /// \p view must outlive its being shown; null for none.
    void gotoPreviewPage(const PrintView* view, std::optional<Section> printSelection, int page);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QPixmap painted() const;

    const PrintView* shown = nullptr;
    std::optional<Section> section;
    int currentPage = 1;
    QPixmap bufImage;
};

} // namespace zel
