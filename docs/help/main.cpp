// make_help MANUAL[.LANGUAGE].md HELP.pdf VERSION: sets the manual as a PDF.
#include "HelpLook.h"
#include "HelpPages.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QUrl>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// The first heading is the title of the first page, not part of the text.
QString takeTitle(QTextDocument& document) {
    const QTextBlock first = document.begin();
    QString title = first.text();
    QTextCursor cursor(first);
    cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    return title;
}

/// Pictures are named relative to the manual.
void findPictures(QTextDocument& document, const QString& folder) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            if (!fragment.charFormat().isImageFormat()) continue;
            QTextImageFormat figure = fragment.charFormat().toImageFormat();
            figure.setName(folder + u'/' + figure.name());
            QTextCursor cursor(&document);
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            cursor.setCharFormat(figure);
            break;
        }
    }
}

/// \p suffix: of the manual's name, "md" or "de.md"
QString contentsHeading(const QString& suffix) {
    return suffix == "de.md"_L1 ? QStringLiteral("Inhalt") : QStringLiteral("Contents");
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile source(arguments.value(1));
    if (arguments.size() != 4 || !source.open(QFile::ReadOnly)) {
        std::fprintf(stderr, "Usage: make_help MANUAL.md HELP.pdf VERSION\n");
        return 2;
    }
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setMarkdown(QString::fromUtf8(source.readAll()));
    const QString title = takeTitle(document);
    findPictures(document, QFileInfo(source).absolutePath());
    QPdfWriter writer(arguments[2]);
    document.documentLayout()->setPaintDevice(&writer);
    writer.setResolution(72); // the document's units are points
    document.setPageSize(help::textSize());
    help::dress(document);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("ZEL ") + arguments[3]);
    const QString contents = contentsHeading(QFileInfo(source).completeSuffix());
    return help::paintPages(writer, document, {title, "Version "_L1 + arguments[3], contents}) ? 0 : 1;
}
