#include "CutTexts.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QStyleOptionComboBox>
#include <QTableView>

#include <gtest/gtest.h>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

bool isScrolled(const QWidget& inside) {
    const QWidget* around = inside.parentWidget();
    return around && qobject_cast<const QAbstractScrollArea*>(around->parentWidget());
}

bool isCut(const QWidget& one) {
    if (!isScrolled(one) && !one.parentWidget()->rect().contains(one.geometry())) return true;
    const auto* label = qobject_cast<const QLabel*>(&one);
    const bool isShort = label && label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
    if (isShort
        || (!label && !qobject_cast<const QAbstractButton*>(&one) && !qobject_cast<const QComboBox*>(&one)
            && !qobject_cast<const QGroupBox*>(&one)))
        return false; // what a tool tip says in full, and what scrolls its text
    const QSize least = one.minimumSizeHint();
    const int height = label && label->wordWrap() ? label->heightForWidth(one.width()) : least.height();
    return one.width() < least.width() || one.height() < height;
}

/// An entry, chosen, has to fit between the frame and the arrow.
void expectEntriesWhole(const QComboBox& list) {
    QStyleOptionComboBox option;
    option.initFrom(&list);
    option.editable = list.isEditable();
    const int room = list.style()
                         ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list)
                         .width();
    for (int i = 0; i < list.count(); ++i) {
        // Of what is drawn, as boxes measure their entries: a wide bracket ends in a blank.
        const int width = list.fontMetrics().boundingRect(list.itemText(i)).width();
        EXPECT_LE(width, room) << qPrintable(list.objectName()) << ": " << qPrintable(list.itemText(i));
    }
}

void expectTitlesWhole(const QHeaderView& header) {
    if (header.orientation() != Qt::Horizontal) return;
    for (int i = 0; i < header.count(); ++i) {
        if (header.isSectionHidden(i)) continue;
        const QString title = header.model()->headerData(i, Qt::Horizontal).toString();
        const int width = header.fontMetrics().size(0, title).width();
        EXPECT_LE(width, header.sectionSize(i))
            << qPrintable(header.parentWidget()->objectName()) << ": " << qPrintable(title);
    }
}

void expectCellsWhole(const QTableView& table) {
    const QAbstractItemModel& model = *table.model();
    for (int row = 0; row < std::min(model.rowCount(), 20); ++row)
        for (int column = 0; column < model.columnCount(); ++column) {
            const QString text = model.index(row, column).data().toString();
            if (table.isColumnHidden(column)) continue;
            EXPECT_LE(table.fontMetrics().horizontalAdvance(text), table.columnWidth(column))
                << qPrintable(table.objectName()) << ": " << qPrintable(text);
        }
}

} // namespace

void expectNothingCut(const QWidget& window) {
    for (const QWidget* one : window.findChildren<QWidget*>()) {
        if (!one->isVisible() || one->window() != &window || one->objectName().startsWith(u"qt_"_s)) continue;
        EXPECT_FALSE(isCut(*one)) << one->metaObject()->className() << ' ' << qPrintable(one->objectName())
                                  << ' ' << one->width() << 'x' << one->height() << " of "
                                  << one->minimumSizeHint().width() << 'x' << one->minimumSizeHint().height();
    }
}

void expectListsWhole(const QWidget& window) {
    for (const auto* list : window.findChildren<QComboBox*>())
        if (list->isVisible() && list->window() == &window) expectEntriesWhole(*list);
    for (const auto* table : window.findChildren<QTableView*>())
        if (table->isVisible() && table->window() == &window) expectCellsWhole(*table);
    for (const auto* header : window.findChildren<QHeaderView*>())
        if (header->isVisible() && header->window() == &window) expectTitlesWhole(*header);
}

} // namespace zel
