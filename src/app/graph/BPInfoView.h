#pragma once

#include "store/DataStore.h"

#include <QFrame>

#include <utility>
#include <vector>

class QGridLayout;
class QLabel;

namespace zel {

/// A reading's values in words: title and value, with units, in the order in which they are shown.
using ReadingInfo = std::vector<std::pair<QString, QString>>;
[[nodiscard]] ReadingInfo readingInfo(const ReadingModel& reading, const DataStore& store);
/// The same as one text, a line each.
[[nodiscard]] QString spokenInfo(const ReadingInfo& info);

/// Top left corner of a panel beside a mark: in the window, and not over the mark where it has room.
[[nodiscard]] QPoint placeBeside(const QRect& mark, const QSize& panel, const QRect& window);

/// The panel that shows one reading beside its mark on the chart.
class BPInfoView final : public QFrame {
    Q_OBJECT
public:
    explicit BPInfoView(QWidget* window);
    /// \p mark in the window's coordinates
    void showReading(const ReadingInfo& info, const QRect& mark);

private:
    struct Row {
        QLabel* title;
        QLabel* value;
    };
    void addRow();
    void fill(const ReadingInfo& info);

    QGridLayout* lines;
    std::vector<Row> rows; ///< as many as were needed so far
};

} // namespace zel
