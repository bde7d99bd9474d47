#include "HelpLook.h"

#include "HelpFigures.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFragment>
#include <QTextList>
#include <QTextTable>
#include <QTextTableCell>

#include <algorithm>
#include <array>
#include <cmath>

namespace help {

namespace {

constexpr double bodySize = 10;              ///< points
constexpr double pixelsPerPoint = 96.0 / 72; ///< the size of figures is counted in pixels of a screen
const QColor headingColor(20, 60, 110), headColor(226, 234, 244), ruleColor(170, 184, 200);

struct HeadingLook {
    double size, above, below;
};
constexpr std::array headings{HeadingLook{26, 0, 10}, HeadingLook{17, 22, 8}, HeadingLook{12.5, 14, 4},
                              HeadingLook{10.5, 10, 3}};

void dressHeading(QTextCursor& block, int level) {
    const HeadingLook& look = headings.at(std::min<std::size_t>(static_cast<std::size_t>(level), 4) - 1);
    QTextBlockFormat format = block.blockFormat();
    format.setTopMargin(look.above);
    format.setBottomMargin(look.below);
    block.setBlockFormat(format);
    QTextCharFormat type;
    type.setFontPointSize(look.size);
    type.setFontWeight(QFont::Bold);
    type.setForeground(headingColor);
    block.select(QTextCursor::BlockUnderCursor);
    block.mergeCharFormat(type);
}

void dressBlock(const QTextBlock& block) {
    QTextCursor cursor(block);
    if (const int level = block.blockFormat().headingLevel(); level > 0) return dressHeading(cursor, level);
    QTextBlockFormat format = block.blockFormat();
    const bool isInTable = cursor.currentTable() != nullptr;
    const QTextList* list = block.textList();
    const bool isInList = list && list->item(list->count() - 1) != block;
    format.setTopMargin(0);
    format.setBottomMargin(isInTable ? 0 : isInList ? 3 : 7);
    format.setLineHeight(118, QTextBlockFormat::ProportionalHeight);
    cursor.setBlockFormat(format);
}

/// Figures stand alone in their paragraph, which keeps its natural line height.
void dressFigures(const QTextBlock& block, double textWidth) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        if (!part.fragment().charFormat().isImageFormat()) continue;
        QTextImageFormat figure = part.fragment().charFormat().toImageFormat();
        const QImage picture(figure.name());
        const double width = std::min(textWidth, picture.width() * 0.56);
        figure.setWidth(width * pixelsPerPoint);
        figure.setHeight(width * pixelsPerPoint * picture.height() / std::max(1, picture.width()));
        QTextCursor cursor(block);
        cursor.setPosition(part.fragment().position());
        cursor.setPosition(part.fragment().position() + part.fragment().length(), QTextCursor::KeepAnchor);
        cursor.setCharFormat(figure);
        QTextBlockFormat format = block.blockFormat();
        format.setLineHeight(100, QTextBlockFormat::SingleHeight);
        format.setTopMargin(4);
        format.setBottomMargin(10);
        cursor.setBlockFormat(format);
        return;
    }
}

void dressTable(QTextTable& table) {
    QTextTableFormat format = table.format();
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(ruleColor);
    format.setBorderCollapse(true);
    format.setCellPadding(4);
    format.setCellSpacing(0);
    format.setTopMargin(2);
    format.setBottomMargin(10);
    format.setHeaderRowCount(1);
    format.setColumnWidthConstraints({});
    table.setFormat(format);
    for (int column = 0; column < table.columns(); ++column) {
        QTextTableCell cell = table.cellAt(0, column);
        QTextCharFormat head = cell.format();
        head.setBackground(headColor);
        head.setFontWeight(QFont::Bold);
        cell.setFormat(head);
        QTextCursor text = cell.firstCursorPosition();
        text.setPosition(cell.lastPosition(), QTextCursor::KeepAnchor);
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        text.mergeCharFormat(bold);
    }
}

/// A chapter begins where what it begins with still fits on the page; a picture leaves no half of one empty.
void breakPages(QTextDocument& document) {
    const double page = document.pageSize().height();
    for (QTextBlock block = document.begin().next(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() != chapterLevel) continue;
        if (isFigure(block.next())) floatFigure(document, block);
        const double begin = document.documentLayout()->blockBoundingRect(block).top();
        const double end = document.documentLayout()->blockBoundingRect(block.next()).bottom();
        if (std::floor(begin / page) == std::floor(end / page) && std::fmod(begin, page) < page * 0.85)
            continue;
        QTextBlockFormat format = block.blockFormat();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        format.setTopMargin(0);
        QTextCursor(block).setBlockFormat(format);
    }
}

} // namespace

void dress(QTextDocument& document) {
    const double textWidth = document.pageSize().width();
    QFont type(QStringLiteral("Liberation Sans"));
    type.setPointSizeF(bodySize);
    document.setDefaultFont(type);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        dressBlock(block);
        dressFigures(block, textWidth);
    }
    for (QTextFrame* frame : document.rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(frame)) dressTable(*table);
    breakPages(document);
}

} // namespace help
