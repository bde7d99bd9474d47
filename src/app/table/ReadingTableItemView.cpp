#include "app/table/ReadingTableItemView.h"

#include "analysis/HighValues.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/Style.h"
#include "chart/StyleTable.h"
#include "store/ManualReading.h"

#include <QHeaderView>
#include <QPainter>
#include <QPainterPath>
#include <QTableView>

namespace zel {

namespace {

constexpr int margin = Style::near, diameter = 10, accent = Style::tight;

enum class Mark { none, outlined, filled };

/// Filled for a finding, an outline for none, nothing where the monitor's model cannot tell.
Mark markOf(const ReadingModel& row, int column) {
    if (column == ReadingTableModel::mam) return row.mam == 1 ? Mark::filled : Mark::none;
    switch (row.Arrhythmia) {
    case 1:
    case 4: return Mark::outlined;
    case 2:
    case 5: return Mark::filled;
    default: return Mark::none;
    }
}

/// In the ink that the row has chosen.
void drawCircle(QPainter& painter, const QRect& cell, Mark mark) {
    if (mark == Mark::none) return;
    QRectF circle(0, 0, diameter, diameter);
    circle.moveCenter(QRectF(cell).center());
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = painter.pen().color();
    painter.setPen(QPen(ink, mark == Mark::outlined ? 1.2 : 0));
    painter.setBrush(mark == Mark::filled ? QBrush(ink) : QBrush(Qt::NoBrush));
    painter.drawEllipse(circle);
}

void drawWords(QPainter& painter, const QRect& cell, const QString& text, bool isCentred) {
    const QRect room = cell.adjusted(margin, 0, -margin, 0);
    const QString words = painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width());
    const auto alignment = isCentred ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter;
    painter.drawText(room, static_cast<int>(alignment), words);
}

/// Bold where it would stand anyway, with the mark right of it.
void drawHigh(QPainter& painter, const QRect& cell, const QString& number) {
    constexpr int beside = Style::tight;
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    drawWords(painter, cell, number, true);
    const int end = cell.center().x() + painter.fontMetrics().horizontalAdvance(number) / 2 + beside;
    painter.setFont(Style::type(font, Style::Type::text, false));
    painter.drawText(cell.adjusted(end - cell.left(), 0, 0, 0),
                     static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), highMark);
}

/// Through the whole row, also where a column has nothing to say.
void strikeThrough(QPainter& painter, const QRect& cell) {
    painter.fillRect(QRect(cell.left(), cell.center().y(), cell.width(), Style::line), painter.pen().color());
}

/// Open towards the rows above and below that belong to the same comment.
QPainterPath band(const QRect& cell, bool isFirst, bool isLast, int width) {
    constexpr int beyond = 8;
    const QRectF area = QRectF(cell.left() + margin, cell.top(), width, cell.height())
                            .adjusted(0, isFirst ? 3 : -beyond, 0, isLast ? -3 : beyond);
    QPainterPath path;
    path.addRoundedRect(area, Style::corner, Style::corner);
    return path;
}

} // namespace

ReadingTableItemView::ReadingTableItemView(const ReadingTableModel& readings, const DataStore& dataStore,
                                           QTableView& table)
    : QStyledItemDelegate(&table), model(readings), store(dataStore), view(table) {}

void ReadingTableItemView::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
    painter->save();
    painter->setClipRect(option.rect);
    painter->setFont(option.font);
    drawBackground(*painter, option, index);
    const bool isSelected = option.state & QStyle::State_Selected;
    painter->setPen(isSelected ? Style::chosenText(option.palette) : Style::picture(option.palette).ink);
    drawCell(*painter, option.rect, index);
    painter->restore();
}

void ReadingTableItemView::drawBackground(QPainter& painter, const QStyleOptionViewItem& option,
                                          const QModelIndex& index) const {
    const ReadingModel row = model.row(index.row());
    const ScreenColours colours = Style::picture(option.palette);
    const QColor yellow = shade(fixColor(gcYellowBackgroundcolor), colours);
    painter.fillRect(option.rect, row.bYellowBackground ? yellow : colours.paper);
    const QColor highlight = option.palette.color(QPalette::Active, QPalette::Highlight);
    if (option.state & QStyle::State_Selected) {
        painter.fillRect(option.rect, Style::chosen(option.palette));
        if (view.columnViewportPosition(index.column()) == -view.horizontalHeader()->offset())
            painter.fillRect(QRect(option.rect.topLeft(), QSize(accent, option.rect.height())), highlight);
    }
    if (model.beginsDay(index.row()))
        painter.fillRect(QRect(option.rect.topLeft(), QSize(option.rect.width(), Style::line)), colours.ink);
    if (view.hasFocus() && index.row() == view.currentIndex().row())
        painter.fillRect(QRect(option.rect.left(), option.rect.bottom() - 1, option.rect.width(), 2),
                         highlight);
}

void ReadingTableItemView::drawCell(QPainter& painter, const QRect& cell, const QModelIndex& index) const {
    const ReadingModel row = model.row(index.row());
    const int column = index.column();
    if (column == ReadingTableModel::comment) drawComment(painter, cell, index);
    if (row.isNA && column != ReadingTableModel::date) return drawPlaceholder(painter, cell, column);
    if (column == ReadingTableModel::comment) return;
    if (row.isExcluded()) strikeThrough(painter, cell);
    if (column == ReadingTableModel::mam || column == ReadingTableModel::mark)
        return drawCircle(painter, cell, markOf(row, column));
    if (model.isHigh(index)) return drawHigh(painter, cell, index.data().toString());
    drawWords(painter, cell, index.data().toString(), column > ReadingTableModel::time);
}

/// A band in the comment's colour beside all its rows, and its words where it begins. A comment that covers
/// no row at all shows where it would begin.
void ReadingTableItemView::drawComment(QPainter& painter, const QRect& cell, const QModelIndex& index) const {
    constexpr int width = 10;
    const ReadingModel row = model.row(index.row());
    const QRect beside = cell.adjusted(margin + width, 0, 0, 0);
    const QString remark = describeRemark(row);
    const ScreenColours colours = Style::picture(view.palette());
    const QColor words = painter.pen().color();
    painter.setRenderHint(QPainter::Antialiasing);
    if (!row.comment) {
        if (!remark.isEmpty()) drawWords(painter, beside, remark, false);
        if (!row.bAtBegin) return;
        painter.setPen(QPen(shade(fixColor(gcGrayBorderForDotcolor), colours), Style::line));
        return painter.drawPath(band(cell, true, true, width));
    }
    const bool isFirst = model.beginsComment(index.row());
    const bool isLast = model.endsComment(index.row());
    const bool isChosen = isSelected(*row.comment);
    painter.setPen(isChosen ? QPen(words, 2) : QPen(shade(fixColor(gcGrayBorderForDotcolor), colours), 0.5));
    painter.setBrush(shade(getCommentColor(static_cast<int>(row.comment->degree), true), colours));
    painter.drawPath(band(cell, isFirst, isLast, width));
    painter.setPen(words);
    if (!isFirst) return remark.isEmpty() ? void() : drawWords(painter, beside, remark, false);
    QFont font = painter.font();
    font.setBold(isChosen);
    painter.setFont(font);
    drawWords(painter, beside, index.data().toString(), false);
}

/// The words end at half the row's width, whichever columns lie there. Where columns have been moved, the
/// date might lie there: then they stand in the first value's.
void ReadingTableItemView::drawPlaceholder(QPainter& painter, const QRect& cell, int column) const {
    const auto attribute = getTextAttribute(6);
    if (attribute) painter.setFont(attribute->font());
    if (view.horizontalHeader()->sectionsMoved())
        return column == ReadingTableModel::sys ? drawWords(painter, cell, qtTrId("noValue"), true) : void();
    const int half = view.horizontalHeader()->length() / 2 - view.horizontalHeader()->offset();
    painter.drawText(QRect(half - view.width(), cell.top(), view.width(), cell.height()),
                     Qt::AlignRight | Qt::AlignVCenter, qtTrId("noValue"));
}

bool ReadingTableItemView::isSelected(const CommentModel& comment) const {
    const CommentModel* selected = store.getSelectedComment();
    return selected && selected->CommentID == comment.CommentID;
}

} // namespace zel
