#pragma once

#include "chart/ScreenColours.h"

#include <QFont>
#include <QPalette>

#include <functional>

class QFrame;
class QLabel;
class QString;
class QWidget;

namespace zel {

/// What all windows share (docs/design.md): distances, sizes of type and roles of colour. They are written
/// nowhere else in the windows, which tests/walls/looks.py checks.
struct Style {
    // Distances in pixels, all on a grid of 4.
    static constexpr int none = 0;
    static constexpr int tight = 4;  ///< a caption and what it names; lines that belong together
    static constexpr int near = 8;   ///< controls beside each other
    static constexpr int apart = 12; ///< panels; what begins something else
    static constexpr int edge = 16;  ///< a window and what is in it
    static constexpr int wide = 24;  ///< groups of controls; around the few words of a short message
    static constexpr int corner = 4; ///< radius
    static constexpr int line = 1;   ///< of borders
    static constexpr int ring = 2;   ///< around what has the focus, or what is wrong

    // Squares in which icons stand.
    static constexpr int smallIcon = 20, tabIcon = 28, largeIcon = 64;

    enum class Type { text, heading, title };
    /// The type in that size, measured from the control's own font, which the desktop chooses.
    [[nodiscard]] static QFont type(const QFont& font, Type size, bool bold = true);
    /// The label keeps that type, also when the desktop's font changes.
    static void setType(QLabel& label, Type size);

    [[nodiscard]] static bool isDark(const QPalette& palette);
    /// The window's text and background are as far apart as black and white.
    [[nodiscard]] static bool isHighContrast(const QPalette& palette);
    /// Text that is said in passing, read as well as 4.5 to 1 on a window and on a panel.
    [[nodiscard]] static QColor quiet(const QPalette& palette);
    /// What is wrong: words as well as frames. Never by colour alone.
    [[nodiscard]] static QColor alarm(const QPalette& palette);
    /// Borders, and the lines between parts of a window.
    [[nodiscard]] static QColor border(const QPalette& palette);
    /// Of fields, buttons and boxes where the desktop is dark or of high contrast, 3 to 1 at least.
    [[nodiscard]] static QColor outline(const QPalette& palette);
    /// Frame of what has the focus.
    [[nodiscard]] static QColor focus(const QPalette& palette);
    /// Behind the palette's highlighted text, which can be read on it, as on some desktops' own it cannot.
    [[nodiscard]] static QColor highlight(const QPalette& palette);
    /// The same as the widget's own highlight, also when the desktop's colours change.
    static void followHighlight(QWidget& widget);
    /// Behind what the pointer is over.
    [[nodiscard]] static QColor hover(const QPalette& palette);
    /// Laid over what is chosen, and the words on it.
    [[nodiscard]] static QColor chosen(const QPalette& palette);
    [[nodiscard]] static QColor chosenText(const QPalette& palette);
    /// Of charts and the readings table: the ordered colours on a light desktop.
    [[nodiscard]] static ScreenColours picture(const QPalette& palette);

    /// \p dress gives the widget its palette, made from the program's, now and whenever that changes.
    static void follow(QWidget& widget, const std::function<QPalette(QPalette)>& dress);
    /// Texts in that role's colour, on windows and on panels.
    static void followText(QWidget& widget, QColor (*role)(const QPalette&));
    /// What an empty field says can be read as other texts said in passing.
    static void followPlaceholder(QWidget& widget);

    /// A plain frame of that width and colour, in place of the one that it has.
    static void followFrame(QFrame& frame, int width, const std::function<QColor(const QPalette&)>& color);

    // Style sheets, for what a palette cannot say.
    [[nodiscard]] static QString tableSheet(const QPalette& palette);
    [[nodiscard]] static QString switchSheet(const QPalette& palette);
    /// In place of the one that the widget has.
    static void followSheet(QWidget& widget, const std::function<QString(const QPalette&)>& sheet);
};

} // namespace zel
