#pragma once

#include "analysis/DisplayPeriod.h"
#include "app/graph/BPInfoView.h"
#include "app/widgets/PictureView.h"
#include "app/widgets/SeenWork.h"
#include "chart/DrawTrend.h"
#include "store/DataStore.h"

#include <QPointer>

#include <optional>

namespace zel {

/// The course of the period's readings by day, week or month, with the figures of the step that the pointer
/// or the keys have come to.
class TrendView final : public PictureView {
    Q_OBJECT
public:
    TrendView(const DataStore& dataStore, const DisplayPeriod& displayPeriod, QWidget* parent);
    void reload() { reading.want(); }
    void invalidate() override;
    void setApart(bool mornings); ///< mornings and evenings as lines of their own
    [[nodiscard]] bool isApart() const { return apart; }

protected:
    [[nodiscard]] Picture makePicture(const Rect& rect) override;
    [[nodiscard]] QRect focusRect() const override;
    void paintOver(QPainter& painter) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void read();
    const TrendLayout& layout();
    [[nodiscard]] const TrendColumn* pointedColumn();
    void point(std::optional<DayNumber> step);
    void showInfo(const TrendColumn& column);
    [[nodiscard]] bool walked(int key);
    [[nodiscard]] QString words() const;

    const DataStore& store;
    const DisplayPeriod& period;
    TrendSeriesList trend;
    bool apart = false;
    std::optional<TrendLayout> made;  ///< for the view's size; its picture is handed on
    std::optional<DayNumber> pointed; ///< begin of the step
    bool isHovering = false;          ///< the pointer has come to it, not the keys
    QPointer<BPInfoView> infoView;    ///< the window's child, as it may reach over everything in it
    SeenWork reading{*this, [this] { read(); }};
};

} // namespace zel
