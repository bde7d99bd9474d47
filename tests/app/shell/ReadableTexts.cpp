#include "ReadableTexts.h"

#include "chart/ScreenColours.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTextEdit>

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zel {

using namespace Qt::StringLiterals;

/// What most of a picture is made of.
QColor groundOf(const QImage& image) {
    std::unordered_map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    return QColor(std::ranges::max_element(counts, {}, [](const auto& one) { return one.second; })->first);
}

double bestContrast(const QImage& image, const QColor& ground) {
    double best = 1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            best = std::max(best, contrast(ground, image.pixelColor(x, y)));
    return best;
}

namespace {

QString wordsOf(const QWidget& one) {
    if (const auto* label = qobject_cast<const QLabel*>(&one)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&one)) return button->text();
    if (const auto* list = qobject_cast<const QComboBox*>(&one)) return list->currentText();
    if (const auto* line = qobject_cast<const QLineEdit*>(&one))
        return line->displayText() + line->placeholderText();
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(&one))
        return text->toPlainText() + text->placeholderText();
    if (const auto* text = qobject_cast<const QTextEdit*>(&one)) return text->toPlainText();
    return one.objectName().endsWith("View"_L1) && one.focusPolicy() != Qt::NoFocus ? u"picture"_s
                                                                                    : QString();
}

/// A piece of a window, in its pixels, and the words that stand there.
struct Words {
    QString text;
    QRect at;
    bool hasOwnColour = false; ///< behind them, as what is chosen has
};

/// Each cell that is seen whole, without the box that it may have.
void addCells(const QAbstractItemView& list, std::vector<Words>& found) {
    const QAbstractItemModel& model = *list.model();
    for (int row = 0; row < model.rowCount(); ++row)
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex index = model.index(row, column);
            const QString text = index.data().toString();
            QRect at = list.visualRect(index);
            if (text.isEmpty() || !list.viewport()->rect().contains(at)) continue;
            if (index.data(Qt::CheckStateRole).isValid())
                at.setLeft(at.left() + list.fontMetrics().height() * 2);
            found.push_back({text, at.translated(list.viewport()->mapTo(list.window(), QPoint())),
                             list.selectionModel()->isSelected(index)});
        }
}

void addTitles(const QHeaderView& header, std::vector<Words>& found) {
    if (header.orientation() != Qt::Horizontal) return;
    for (int i = 0; i < header.count(); ++i) {
        const QRect at(header.sectionViewportPosition(i), 0, header.sectionSize(i), header.height());
        if (header.isSectionHidden(i) || !header.viewport()->rect().contains(at)) continue;
        found.push_back({header.model()->headerData(i, Qt::Horizontal).toString(),
                         at.translated(header.viewport()->mapTo(header.window(), QPoint()))});
    }
}

template <class Menu>
void addEntries(const Menu& menu, std::vector<Words>& found) {
    for (QAction* entry : menu.actions())
        if (entry->isEnabled() && entry->isVisible() && !entry->isSeparator())
            found.push_back({entry->text(),
                             menu.actionGeometry(entry).translated(menu.mapTo(menu.window(), QPoint())),
                             entry == menu.activeAction()});
}

/// Of a table, a list and a menu: one by one, or the best of all would speak for the others.
bool addParts(const QWidget& one, std::vector<Words>& found) {
    const auto* header = qobject_cast<const QHeaderView*>(&one);
    const auto* list = qobject_cast<const QAbstractItemView*>(&one);
    const auto* bar = qobject_cast<const QMenuBar*>(&one);
    const auto* menu = qobject_cast<const QMenu*>(&one);
    if (header)
        addTitles(*header, found);
    else if (list)
        addCells(*list, found);
    else if (bar)
        addEntries(*bar, found);
    else if (menu)
        addEntries(*menu, found);
    return list || bar || menu;
}

/// Do the words stand out from what lies behind them, and is that as dark as the desktop?
QStringList faultsOf(const QImage& painted, const Words& words, bool isDark) {
    const QRect seen = words.at.adjusted(3, 3, -3, -3);
    if (seen.width() < 8 || seen.height() < 8) return {};
    const QImage part = painted.copy(seen);
    const QColor ground = groundOf(part);
    QStringList faults;
    if (bestContrast(part, ground) < readable) faults += words.text + u" on "_s + ground.name();
    if (!words.hasOwnColour && (contrast(ground, Qt::white) > contrast(ground, Qt::black)) != isDark)
        faults += words.text + u" over the wrong "_s + ground.name();
    return faults;
}

} // namespace

QStringList unreadableIn(QWidget& window, bool isDark) {
    const QImage painted = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QStringList faults;
    QList<const QWidget*> all = window.findChildren<const QWidget*>();
    all += &window; // a menu has no other
    for (const QWidget* one : std::as_const(all)) {
        if (!one->isVisible() || !one->isEnabled() || one->window() != &window) continue;
        std::vector<Words> parts;
        if (addParts(*one, parts)) {
            for (const Words& part : parts)
                faults += faultsOf(painted, part, isDark);
            continue;
        }
        if (wordsOf(*one).isEmpty() || one->objectName().startsWith(u"qt_"_s)) continue;
        const auto* button = qobject_cast<const QAbstractButton*>(one);
        const bool hasOwnColour = (button && (button->isChecked() || !button->icon().isNull()))
                                  || one->backgroundRole() == QPalette::Highlight
                                  || one->objectName() == "previewView"_L1;
        const QRect seen = one->visibleRegion().boundingRect().translated(one->mapTo(&window, QPoint()));
        faults +=
            faultsOf(painted, {one->objectName() + u": "_s + wordsOf(*one), seen, hasOwnColour}, isDark);
    }
    return faults;
}

} // namespace zel
