#include "app/widgets/Style.h"

#include "app/widgets/PaletteWatch.h"

#include <QEvent>
#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QPointer>

#include <algorithm>
#include <initializer_list>
#include <utility>
#include <vector>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr double headingSize = 1.15, titleSize = 1.5; ///< of the other texts'
constexpr double blackOnWhite = 20;                   ///< contrast, nearly
const QString sheetFollower = u"sheetFollower"_s, frameFollower = u"frameFollower"_s;
constexpr int halfway = 50;  ///< percent of the text in an outline
constexpr int quietest = 35; ///< percent of the background in a quiet text

/// Does something now and whenever one of these things happens to a widget.
class Follower final : public QObject {
public:
    Follower(QWidget& widget, std::initializer_list<QEvent::Type> events, std::function<void()> what)
        : QObject(&widget), when(events), act(std::move(what)) {
        widget.installEventFilter(this);
        act();
    }
    void followColours() { connect(&PaletteWatch::ofApplication(), &PaletteWatch::changed, this, act); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (std::ranges::find(when, event->type()) != when.end()) act();
        return false;
    }

private:
    std::vector<QEvent::Type> when;
    std::function<void()> act;
};

double factorOf(Style::Type size) {
    if (size == Style::Type::text) return 1;
    return size == Style::Type::heading ? headingSize : titleSize;
}

QColor over(const QColor& top, const QColor& below, int percent) {
    const auto part = [percent](int a, int b) { return (a * percent + b * (100 - percent)) / 100; };
    return {part(top.red(), below.red()), part(top.green(), below.green()), part(top.blue(), below.blue())};
}

double worst(const QColor& text, const QPalette& palette) {
    return std::min(contrast(text, palette.color(QPalette::Window)),
                    contrast(text, palette.color(QPalette::Base)));
}

QString pixels(int length) { return u"%1px"_s.arg(length); }

} // namespace

QFont Style::type(const QFont& font, Type size, bool bold) {
    QFont scaled = font;
    if (font.pointSizeF() > 0) scaled.setPointSizeF(font.pointSizeF() * factorOf(size));
    scaled.setBold(bold);
    return scaled;
}

void Style::setType(QLabel& label, Type size) {
    QWidget& around = *label.parentWidget();
    new Follower(around, {QEvent::FontChange}, [&around, size, kept = QPointer(&label)] {
        if (kept) kept->setFont(type(around.font(), size));
    });
}

bool Style::isDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

bool Style::isHighContrast(const QPalette& palette) {
    return contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)) > blackOnWhite;
}

QColor Style::quiet(const QPalette& palette) {
    const QColor text = palette.color(QPalette::WindowText), window = palette.color(QPalette::Window);
    int ofWindow = isHighContrast(palette) ? 0 : quietest;
    while (ofWindow > 0 && worst(over(window, text, ofWindow), palette) < readable)
        --ofWindow;
    return over(window, text, ofWindow);
}

QColor Style::alarm(const QPalette& palette) {
    return isDark(palette) ? QColor(255, 138, 128) : QColor(179, 0, 30);
}

QColor Style::border(const QPalette& palette) {
    return palette.color(isHighContrast(palette) ? QPalette::WindowText : QPalette::Mid);
}

QColor Style::outline(const QPalette& palette) {
    const QColor text = palette.color(QPalette::WindowText);
    return isHighContrast(palette) ? text : over(text, palette.color(QPalette::Window), halfway);
}

QColor Style::focus(const QPalette& palette) {
    return palette.color(isHighContrast(palette) ? QPalette::WindowText : QPalette::Highlight);
}

QColor Style::highlight(const QPalette& palette) {
    const QColor text = palette.color(QPalette::HighlightedText);
    const QColor away = text.lightness() > 127 ? Qt::black : Qt::white;
    int own = 100;
    QColor found = palette.color(QPalette::Highlight);
    while (own > 0 && contrast(found, text) < readable)
        found = over(palette.color(QPalette::Highlight), away, --own);
    return found;
}

QColor Style::hover(const QPalette& palette) {
    return over(palette.color(QPalette::Highlight), palette.color(QPalette::Base), 10);
}

QColor Style::chosen(const QPalette& palette) {
    QColor wash = palette.color(QPalette::Active, QPalette::Highlight);
    if (!isHighContrast(palette)) wash.setAlpha(70);
    return wash;
}

QColor Style::chosenText(const QPalette& palette) {
    return palette.color(isHighContrast(palette) ? QPalette::HighlightedText : QPalette::Text);
}

/// A light desktop that is not quite white keeps the pictures' own white, as on paper.
ScreenColours Style::picture(const QPalette& palette) {
    if (!isDark(palette)) return {.isStrong = isHighContrast(palette)};
    return {palette.color(QPalette::Base), palette.color(QPalette::Text), isHighContrast(palette)};
}

void Style::follow(QWidget& widget, const std::function<QPalette(QPalette)>& dress) {
    auto* follower =
        new Follower(widget, {}, [&widget, dress] { widget.setPalette(dress(QGuiApplication::palette())); });
    follower->followColours();
}

void Style::followText(QWidget& widget, QColor (*role)(const QPalette&)) {
    follow(widget, [role](QPalette colours) {
        const QColor color = role(colours);
        colours.setColor(QPalette::WindowText, color);
        colours.setColor(QPalette::Text, color); // its role on the panels' background
        return colours;
    });
}

void Style::followPlaceholder(QWidget& widget) {
    follow(widget, [](const QPalette& colours) {
        QPalette own;
        own.setColor(QPalette::PlaceholderText, quiet(colours));
        return own;
    });
}

void Style::followHighlight(QWidget& widget) {
    follow(widget, [](const QPalette& colours) {
        QPalette own;
        own.setColor(QPalette::Highlight, highlight(colours));
        return own;
    });
}

void Style::followSheet(QWidget& widget, const std::function<QString(const QPalette&)>& sheet) {
    delete widget.findChild<QObject*>(sheetFollower, Qt::FindDirectChildrenOnly);
    auto* follower = new Follower(
        widget, {}, [&widget, sheet] { widget.setStyleSheet(sheet(QGuiApplication::palette())); });
    follower->setObjectName(sheetFollower);
    follower->followColours();
}

QString Style::tableSheet(const QPalette& palette) {
    return u"QTableView { selection-background-color: %1; selection-color: %2; }"
           "QTableView::item { border: 0; padding: 0 %3; }"
           "QHeaderView::section { padding: %4 %3; }"_s.arg(highlight(palette).name(),
                                                            palette.color(QPalette::HighlightedText).name(),
                                                            pixels(near), pixels(tight));
}

/// The chosen one stands out whatever the desktop's colours.
QString Style::switchSheet(const QPalette& palette) {
    const QString usual =
        u"QToolButton { border: %1 solid %2; padding: %3 %4; background: %5; color: %6; }"_s.arg(
            pixels(line), border(palette).name(), pixels(tight), pixels(near),
            palette.color(QPalette::Button).name(), palette.color(QPalette::ButtonText).name());
    const QString chosen = u"QToolButton:checked { background: %1; color: %2; }"_s.arg(
        highlight(palette).name(), palette.color(QPalette::HighlightedText).name());
    const QString focused = u"QToolButton:focus { border: %1 solid %2; padding: %3 %4; }"_s.arg(
        pixels(ring), palette.color(QPalette::Text).name(), pixels(tight - ring + line),
        pixels(near - ring + line));
    const QString disabled = u"QToolButton:disabled { color: %1; }"_s.arg(
        palette.color(QPalette::Disabled, QPalette::ButtonText).name());
    return usual + chosen + focused + disabled;
}

void Style::followFrame(QFrame& frame, int width, const std::function<QColor(const QPalette&)>& color) {
    frame.setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
    frame.setLineWidth(width);
    frame.setForegroundRole(QPalette::WindowText); // in panels, it would have the texts' colour
    delete frame.findChild<QObject*>(frameFollower, Qt::FindDirectChildrenOnly);
    auto* follower = new Follower(frame, {}, [&frame, color] {
        QPalette own;
        own.setColor(QPalette::WindowText, color(QGuiApplication::palette()));
        frame.setPalette(own);
    });
    follower->setObjectName(frameFollower);
    follower->followColours();
}

} // namespace zel
