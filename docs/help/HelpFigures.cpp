#include "HelpFigures.h"

#include <QAbstractTextDocumentLayout>
#include <QTextCursor>
#include <QTextFragment>
#include <QTextList>
#include <QTextTable>

#include <algorithm>
#include <cmath>

namespace help {

namespace {

QTextImageFormat figureOf(const QTextBlock& block) {
    for (auto part = block.begin(); !part.atEnd(); ++part)
        if (part.fragment().charFormat().isImageFormat()) return part.fragment().charFormat().toImageFormat();
    return {};
}

/// Behind the paragraph, or the whole list or table, that the block begins.
QTextBlock blockBehind(QTextBlock block) {
    const QTextTable* table = QTextCursor(block).currentTable();
    if (table) return block.document()->findBlock(table->lastPosition() + 1);
    const QTextList* list = block.textList();
    do
        block = block.next();
    while (list && block.isValid() && block.textList() == list);
    return block;
}

QTextBlock moveBefore(QTextDocument& document, const QTextBlock& figure, const QTextBlock& target) {
    const QTextImageFormat picture = figureOf(figure);
    const QTextBlockFormat look = figure.blockFormat();
    QTextCursor to(target);
    const QTextBlockFormat next = target.blockFormat();
    QTextCursor from(figure);
    to.insertBlock(next); // the text of the target goes on in it
    to.movePosition(QTextCursor::PreviousBlock);
    to.setBlockFormat(look);
    to.insertImage(picture);
    from.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    from.removeSelectedText();
    document.markContentsDirty(0, document.characterCount()); // for the page breaks
    return document.findBlock(to.position());
}

} // namespace

bool isFigure(const QTextBlock& block) { return !figureOf(block).name().isEmpty(); }

void floatFigure(QTextDocument& document, const QTextBlock& heading) {
    constexpr double worthFilling = 0.25; // of the page
    const double page = document.pageSize().height();
    const auto* layout = document.documentLayout();
    const auto pageAt = [&](double y) { return std::floor(y / page); };
    const double begin = layout->blockBoundingRect(heading).top();
    if (page - std::fmod(begin, page) < worthFilling * page) return;
    for (QTextBlock figure = heading.next(); isFigure(figure);) {
        const bool isFilled = pageAt(layout->blockBoundingRect(figure.previous()).bottom()) > pageAt(begin);
        if (isFilled || pageAt(layout->blockBoundingRect(figure).bottom() - 1) == pageAt(begin)) return;
        const QTextBlock target = blockBehind(figure.next());
        if (!target.isValid() || figure.next().blockFormat().headingLevel() > 0) return;
        figure = moveBefore(document, figure, target);
    }
}

} // namespace help
