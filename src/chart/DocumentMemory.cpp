#include "chart/DocumentMemory.h"

#include "chart/Greys.h"

#include <QFile>
#include <QPaintEngine>
#include <QPainter>
#include <QRegularExpression>
#include <QTextLayout>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Values, times, a date, which the evening's reading has of the morning's, and what each page's head says;
/// longer texts are comments and notes, which seldom come twice.
constexpr qsizetype longestKept = 40;
/// More than there are times and values; the dates of a lifetime must not fill the memory.
constexpr qsizetype mostKept = 4000;

/// One run from left to right, in one script and one font, which Qt writes as one piece.
bool isPlain(const QString& text) {
    return text.size() <= longestKept
           && std::ranges::all_of(text, [](QChar c) { return u' ' <= c && c <= u'~'; });
}

/// \return none where there is nothing to write, or it takes several fonts
QGlyphRun shaped(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    layout.endLayout();
    line.setPosition({0, -line.ascent()});
    const QList<QGlyphRun> runs = line.glyphRuns();
    return runs.size() == 1 ? runs.front() : QGlyphRun();
}

/// A drawing with each of its colours as a grey.
QByteArray greyDrawing(QByteArray drawing) {
    static const QRegularExpression written(u"#[0-9a-f]{6}"_s, QRegularExpression::CaseInsensitiveOption);
    auto colours = written.globalMatch(QString::fromLatin1(drawing));
    while (colours.hasNext()) {
        const QRegularExpressionMatch found = colours.next();
        const QByteArray grey = greyOf(QColor(found.captured())).name().toLatin1();
        drawing.replace(found.capturedStart(), grey.size(), grey);
    }
    return drawing;
}

} // namespace

const QGlyphRun* DocumentMemory::glyphs(const QPainter& painter, const QString& text,
                                        const TextAttribute& attribute) {
    if (painter.paintEngine()->type() != QPaintEngine::Pdf || !isPlain(text)) return nullptr;
    Glyphs& known = texts[{attribute.size, attribute.bold}];
    auto found = known.constFind(text);
    if (found == known.constEnd()) {
        if (known.size() >= mostKept) return nullptr;
        found = known.insert(text, shaped(text, painter.font()));
    }
    return found->isEmpty() ? nullptr : &*found;
}

QSvgRenderer& DocumentMemory::image(const QString& name, bool isGrey) {
    std::unique_ptr<QSvgRenderer>& kept = images[{name, isGrey}];
    if (kept) return *kept;
    QFile file(u":/images/%1.svg"_s.arg(name));
    const QByteArray drawing = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    kept = std::make_unique<QSvgRenderer>(isGrey ? greyDrawing(drawing) : drawing);
    return *kept;
}

} // namespace zel
