#pragma once

#include "app/graph/BPInfoView.h"
#include "app/graph/ChartView.h"

#include <QPointer>

#include <array>

namespace zel {

/// The one reading that the pointer or the keys have come to: marked in both charts, with its values beside
/// the mark.
class PointedReading final : public QObject {
    Q_OBJECT
public:
    /// \p bothCharts show \p shown.
    PointedReading(const DataStore& dataStore, const ChartSource& shown,
                   const std::array<ChartView*, 2>& bothCharts, QObject* parent);

    [[nodiscard]] const ReadingModel* reading() const { return pointed; } ///< null for none
    /// The reading after or before this one, or else the first or last one of the period; null at the end.
    [[nodiscard]] const ReadingModel* next(bool forward) const;
    /// The keys have come to a reading, whose values \p chart shows.
    void walkTo(ChartView& chart, const ReadingModel& found);
    void forget();
    /// The pointer asks what it points at: nothing that the keys have walked to.
    void forgetUnlessHovered();
    /// Takes the values away; the marks stay.
    void hideInfo();

signals:
    void changed(); ///< another reading is pointed at, or none

private:
    void point(const ReadingModel* reading);
    void hover(ChartView& chart, const ReadingModel* reading, QPoint mark);
    void showInfo(ChartView& chart, const ReadingModel& reading, QPoint mark);

    const DataStore& store;
    const ChartSource& source;
    std::array<ChartView*, 2> charts;
    QPointer<BPInfoView> infoView; ///< the window's child, as it may reach over everything in it
    const ReadingModel* pointed = nullptr;
    bool isHovering = false; ///< the pointer has come to it, not the keys
};

} // namespace zel
