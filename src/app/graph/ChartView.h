#pragma once

#include "app/widgets/PictureView.h"
#include "chart/DrawChart.h"

#include <optional>

namespace zel {

/// What both charts show, kept by whoever owns them.
struct ChartSource {
    ChartData data;
    Period period;
    ViewSelection view = ViewSelection::custom;
    std::uint32_t sysStandard = 0; ///< mmHg
    std::uint32_t diaStandard = 0; ///< mmHg
    LocalZone zone;
};

/// One of the two charts on the screen, with one reading marked: that under the pointer, or that to which the
/// keys have walked.
class ChartView : public PictureView {
    Q_OBJECT
public:
    void invalidate() override;
    /// As shown now, but for the readings that are drawn, which the period's view selection decides.
    [[nodiscard]] const ChartStyle& style() const { return chartStyle; }
    void setScaleBase(int number);
    [[nodiscard]] ChartScale scale() const;
    /// What lies there, from the left of the view; none beside the plot.
    [[nodiscard]] std::optional<Instant> timeAt(int x) const;
    /// Where the pointer is, if it has moved since it came or since it was forgotten.
    [[nodiscard]] std::optional<Instant> pointedTime() const;
    void forgetPointer() { pointerX.reset(); } ///< something else is pointed at

    /// Marks a reading of the source; null for none.
    void setPointed(const ReadingModel* reading);
    /// Where the reading's uppermost mark is, for what is shown beside it.
    [[nodiscard]] QPoint place(const ReadingModel& reading) const;

signals:
    /// The pointer has come to a reading's mark, or has left it (null).
    void hovered(const ReadingModel* reading, QPoint mark);
    void focusLeft(); ///< to another control, not to a menu or another window

protected:
    ChartView(const QString& name, const QString& title, const ChartStyle& start, const ChartSource& shown,
              QWidget* parent);

    /// The reading's marks, those out of sight too; the uppermost first.
    [[nodiscard]] virtual std::vector<Point> marksOf(const ReadingModel& reading) const = 0;
    [[nodiscard]] const ChartSource& shown() const { return source; }

    Picture makePicture(const Rect& rect) override;
    [[nodiscard]] QRect focusRect() const override;
    void paintOver(QPainter& painter) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] ChartInput input(const Rect& rect) const;
    [[nodiscard]] const ChartPoint* pointAt(Point at);
    void updateMarks();

    const ChartSource& source;
    ChartStyle chartStyle;
    /// That can be pointed at, from left to right: made when the pointer first comes, not for every picture.
    std::optional<std::vector<ChartPoint>> points;
    const ReadingModel* pointed = nullptr;
    std::optional<int> pointerX;
};

} // namespace zel
