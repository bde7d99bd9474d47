#include "app/shell/HelpWindow.h"

#include "app/shell/HelpDocument.h"
#include "app/widgets/ScreenFit.h"
#include "app/widgets/Style.h"

#include <QFile>
#include <QGuiApplication>
#include <QListWidget>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QVBoxLayout>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int chapterLevel = 2; ///< of the manual's headings

QString manualText() {
    QFile file(manualResource(u":/manual/manual%1.md"_s));
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Lines between the rows, and room around the words.
void dressTable(QTextTable& table) {
    QTextTableFormat format = table.format();
    format.setBorderCollapse(true);
    format.setBorder(Style::line);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(Style::border(QGuiApplication::palette()));
    format.setCellPadding(Style::tight);
    table.setFormat(format);
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QDialog(parent), chapters(new QListWidget(this)), manual(new QTextBrowser(this)) {
    setObjectName(u"HelpWindow"_s);
    setWindowTitle(qtTrId("manualTitle"));
    setAccessibleName(windowTitle());
    build();
    manual->setSearchPaths({u":/manual"_s});
    manual->setMarkdown(manualText());
    for (QTextFrame* frame : manual->document()->rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(frame)) dressTable(*table);
    listChapters();
    fitPictures();
    connect(chapters, &QListWidget::currentRowChanged, this, &HelpWindow::goTo);
}

void HelpWindow::build() {
    chapters->setObjectName(u"chapters"_s);
    chapters->setAccessibleName(qtTrId("manualChapters"));
    chapters->setSpacing(Style::tight);
    Style::followHighlight(*chapters);
    manual->setObjectName(u"manual"_s);
    manual->setAccessibleName(qtTrId("manualTitle"));
    manual->setOpenExternalLinks(false);
    manual->document()->setDocumentMargin(Style::edge);
    auto* sides = new QSplitter(this);
    sides->setChildrenCollapsible(false);
    sides->addWidget(chapters);
    sides->addWidget(manual);
    sides->setStretchFactor(0, 1);
    sides->setStretchFactor(1, 4);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(sides);
    const int letter = fontMetrics().averageCharWidth();
    fitToScreen(*this, QSize(letter * 150, letter * 100));
}

/// None is wider than the text, nor than the room beside the chapters. They are scaled here, since the
/// browser would leave out lines of their pixels.
void HelpWindow::fitPictures() {
    const double density = devicePixelRatioF();
    const int taken = chapters->minimumWidth() + manual->verticalScrollBar()->sizeHint().width()
                      + 2 * Style::edge + Style::wide;
    const int widest =
        static_cast<int>(std::min(fontMetrics().averageCharWidth() * 90, width() - taken) * density);
    for (QTextBlock block = manual->document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextImageFormat picture = part.fragment().charFormat().toImageFormat();
            if (!picture.isValid()) continue;
            const QImage whole(u":/manual/"_s + picture.name());
            QImage fitting = whole.scaledToWidth(widest, Qt::SmoothTransformation);
            fitting.setDevicePixelRatio(density);
            manual->document()->addResource(QTextDocument::ImageResource, QUrl(picture.name()), fitting);
        }
    }
}

void HelpWindow::listChapters() {
    for (QTextBlock block = manual->document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() != chapterLevel) continue;
        auto* chapter = new QListWidgetItem(block.text(), chapters);
        chapter->setData(Qt::UserRole, block.position());
    }
    const int words = chapters->sizeHintForColumn(0) + 2 * chapters->frameWidth();
    const int bar = chapters->verticalScrollBar()->sizeHint().width();
    chapters->setMinimumWidth(std::min(words + bar, width() / 3));
}

void HelpWindow::goTo(int chapter) {
    const QListWidgetItem* chosen = chapters->item(chapter);
    if (!chosen) return;
    QTextCursor cursor(manual->document());
    cursor.setPosition(chosen->data(Qt::UserRole).toInt());
    manual->setTextCursor(cursor);
    const int top = manual->cursorRect(cursor).top(); // in the part that is in view
    manual->verticalScrollBar()->setValue(manual->verticalScrollBar()->value() + top);
}

} // namespace zel
