#include "app/frame/StatisticView.h"

#include "app/widgets/Style.h"
#include "chart/DrawStatistic.h"
#include "chart/Picture.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <vector>

namespace zel {

namespace {

constexpr std::size_t columnTotal = 5, unitColumn = 4;
using Cells = std::vector<std::array<QString, columnTotal>>;

/// The texts of the table as it is printed: a line of titles, then of each figure the name, three numbers and
/// the unit.
Cells cellsOf(const StatisticFigures& figures, bool showMap) {
    constexpr double ample = 1000;
    QStringList texts{QString()};
    for (const PictureItem& item : drawStatistic(figures, showMap, {0, 0, ample, ample}))
        if (const auto* line = std::get_if<TextLine>(&item)) texts += line->text;
    texts.insert(unitColumn, QString()); // no names and no units in the line of titles
    Cells cells;
    for (qsizetype at = 0; at + static_cast<qsizetype>(columnTotal) <= texts.size();
         at += static_cast<qsizetype>(columnTotal)) {
        cells.emplace_back();
        std::copy_n(texts.begin() + at, columnTotal, cells.back().begin());
    }
    return cells;
}

using Ends = std::array<int, columnTotal>;

/// Where the columns end. The first title also has the room over the names.
Ends columnEnds(const Cells& cells, const QFontMetrics& metrics) {
    const auto widest = [&](std::size_t column, std::size_t fromRow) {
        int width = 0;
        for (std::size_t row = fromRow; row < cells.size(); ++row)
            width = std::max(width, metrics.horizontalAdvance(cells[row].at(column)));
        return width;
    };
    Ends ends{widest(0, 0)};
    ends[1] = std::max(widest(1, 0), ends[0] + Style::near + widest(1, 1));
    for (std::size_t column = 2; column < columnTotal; ++column)
        ends.at(column) = ends.at(column - 1) + Style::near + widest(column, 0);
    return ends;
}

/// Names and units on the left of their columns, numbers on the right; \p spare more between two columns.
void drawLine(QPainter& painter, const QRect& line, const Cells::value_type& row, const Ends& ends,
              int spare) {
    for (std::size_t column = 0; column < columnTotal; ++column) {
        const bool isNumber = column > 0 && column < unitColumn;
        const int begin = column == unitColumn ? ends.at(column - 1) + Style::near : 0;
        const QRect room(begin + static_cast<int>(column) * spare, line.top(), ends.at(column) - begin,
                         line.height());
        painter.drawText(room,
                         static_cast<int>((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter),
                         row.at(column));
    }
}

} // namespace

StatisticView::StatisticView(const DataStore& dataStore, const DisplayPeriod& displayPeriod, QWidget* parent)
    : QWidget(parent), store(dataStore), period(displayPeriod) {
    setObjectName(QStringLiteral("statisticView"));
    setAccessibleName(qtTrId("statisticPanel"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StatisticView::calc() {
    figures = calcStatistic(store.getReadingForCurID(), period.selection(), showsMap());
    setAccessibleDescription(words());
    updateGeometry();
    update();
}

QSize StatisticView::sizeHint() const {
    const Cells cells = cellsOf(figures, showsMap());
    const int lines = static_cast<int>(cells.size());
    return {columnEnds(cells, fontMetrics()).back(), lines * (fontMetrics().height() + Style::tight)};
}

/// In the panel's own type, unless the words of the language need more room than there is.
void StatisticView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Cells cells = cellsOf(figures, showsMap());
    const Ends ends = columnEnds(cells, fontMetrics());
    const double scale = std::min(1.0, static_cast<double>(width()) / std::max(1, ends.back()));
    painter.scale(scale, scale);
    painter.setPen(palette().color(QPalette::Text));
    const int spare = std::max(0, width() - ends.back()) / static_cast<int>(columnTotal);
    const int line = height() / static_cast<int>(cells.size());
    int top = 0;
    for (const auto& row : cells) {
        drawLine(painter, {0, top, width(), line}, row, ends, spare);
        top += line;
    }
}

std::vector<QStringList> StatisticView::spokenRows() const {
    const auto row = [](const QString& name, const MeasureStatistic& measure) {
        return QStringList{name, maxString(static_cast<std::uint32_t>(measure.average)),
                           minString(measure.minimum), maxString(measure.maximum)};
    };
    return {{accessibleName(), qtTrId("average"), qtTrId("min"), qtTrId("max")},
            row(qtTrId("spokenSys"), figures.sys),
            row(qtTrId("spokenDia"), figures.dia),
            row(qtTrId("spokenPulse"), figures.pulse),
            row(showsMap() ? qtTrId("spokenMap") : qtTrId("spokenPP"), figures.mapOrPP)};
}

QString StatisticView::words() const {
    QStringList lines;
    const auto add = [&lines](const QString& name, const MeasureStatistic& measure) {
        const auto average = static_cast<std::uint32_t>(measure.average);
        lines += qtTrId("spokenMeasure")
                     .arg(name, maxString(average), minString(measure.minimum), maxString(measure.maximum));
    };
    add(qtTrId("spokenSys"), figures.sys);
    add(qtTrId("spokenDia"), figures.dia);
    add(qtTrId("spokenPulse"), figures.pulse);
    add(showsMap() ? qtTrId("spokenMap") : qtTrId("spokenPP"), figures.mapOrPP);
    return lines.join(u'\n');
}

} // namespace zel
