#include "HelpPages.h"

#include "HelpLook.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>

#include <vector>

namespace help {

namespace {

constexpr QSizeF paper(595, 842); ///< A4 in points
constexpr double side = 62, top = 60, bottom = 66;
const QColor quiet(95, 105, 118), titleColor(20, 60, 110);

struct Chapter {
    QString title;
    int page; ///< of the document, from 1
};

std::vector<Chapter> chaptersOf(const QTextDocument& document) {
    std::vector<Chapter> chapters;
    const auto* layout = document.documentLayout();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() != chapterLevel) continue;
        const double y = layout->blockBoundingRect(block).top();
        chapters.push_back({block.text(), 1 + static_cast<int>(y / document.pageSize().height())});
    }
    return chapters;
}

QFont font(double size, bool bold = false) {
    QFont type(QStringLiteral("Liberation Sans"));
    type.setPointSizeF(size);
    type.setBold(bold);
    return type;
}

void paintContents(QPainter& painter, const std::vector<Chapter>& chapters) {
    double y = 330;
    const QFontMetricsF metrics(font(11), painter.device());
    for (const Chapter& chapter : chapters) {
        const QRectF line(side, y, paper.width() - 2 * side, 20);
        const QString page = QString::number(chapter.page + 1);
        painter.setFont(font(11));
        painter.setPen(Qt::black);
        painter.drawText(line, Qt::AlignLeft, chapter.title);
        painter.drawText(line, Qt::AlignRight, page);
        painter.setPen(QPen(quiet, 0.8, Qt::DotLine));
        const double rule = line.top() + metrics.ascent() - 1;
        painter.drawLine(QPointF(line.left() + metrics.horizontalAdvance(chapter.title) + 8, rule),
                         QPointF(line.right() - metrics.horizontalAdvance(page) - 8, rule));
        y += 22;
    }
}

void paintCover(QPainter& painter, const Words& words, const std::vector<Chapter>& chapters) {
    painter.setPen(titleColor);
    painter.setFont(font(30, true));
    painter.drawText(QRectF(side, 150, paper.width() - 2 * side, 50), Qt::AlignLeft, words.title);
    painter.fillRect(QRectF(side, 202, 90, 4), titleColor);
    painter.setFont(font(12));
    painter.setPen(quiet);
    painter.drawText(QRectF(side, 218, paper.width() - 2 * side, 20), Qt::AlignLeft, words.version);
    painter.setPen(titleColor);
    painter.setFont(font(14, true));
    painter.drawText(QRectF(side, 292, paper.width() - 2 * side, 24), Qt::AlignLeft, words.contents);
    paintContents(painter, chapters);
}

void paintFoot(QPainter& painter, const Words& words, int number) {
    const QRectF foot(side, paper.height() - 44, paper.width() - 2 * side, 14);
    painter.setPen(QPen(quiet, 0.4));
    painter.drawLine(foot.topLeft() - QPointF(0, 5), foot.topRight() - QPointF(0, 5));
    painter.setFont(font(8.5));
    painter.setPen(quiet);
    painter.drawText(foot, Qt::AlignLeft, words.title);
    painter.drawText(foot, Qt::AlignRight, QString::number(number));
}

/// The document's pages follow each other from top to bottom.
void paintText(QPainter& painter, QTextDocument& document, int index) {
    const QSizeF size = document.pageSize();
    painter.save();
    painter.translate(side, top - index * size.height());
    constexpr double bleed = 1; // of a picture at the top of the next page
    document.drawContents(&painter, QRectF(0, index * size.height(), size.width(), size.height() - bleed));
    painter.restore();
}

} // namespace

QSizeF textSize() { return {paper.width() - 2 * side, paper.height() - top - bottom}; }

bool paintPages(QPdfWriter& writer, QTextDocument& document, const Words& words) {
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}));
    QPainter painter;
    if (!painter.begin(&writer)) return false;
    paintCover(painter, words, chaptersOf(document));
    for (int index = 0; index < document.pageCount(); ++index) {
        if (!writer.newPage()) return false;
        paintText(painter, document, index);
        paintFoot(painter, words, index + 2);
    }
    return painter.end();
}

} // namespace help
