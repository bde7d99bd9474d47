#include "app/graph/ChartTools.h"

#include "app/graph/CommentColorView.h"
#include "app/graph/CommentImageBtn.h"
#include "app/graph/DrawGraphicVC.h"
#include "app/graph/PulseView.h"
#include "app/widgets/SeenName.h"
#include "app/widgets/Style.h"
#include "chart/StyleTable.h"

#include <QAction>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QPainter>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QIcon swatch(int colourIndex) {
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(getCommentColor(colourIndex, false));
    painter.drawRoundedRect(2, 2, 28, 28, 6, 6);
    return pixmap;
}

} // namespace

ChartTools::ChartTools(DrawGraphicVC& shownCharts, ChartComments& chartComments,
                       const DisplayPeriod& displayPeriod, QWidget* parent)
    : QWidget(parent), charts(shownCharts), comments(chartComments), period(displayPeriod),
      row(new QHBoxLayout(this)),
      commentIcon(new CommentImageBtn(
          [this](QPoint global) {
              return period.isValidCommentTimeRange() && charts.getPulseView().isInsideCommentZone(global);
          },
          this)),
      picker(new CommentColorView(this)) {
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Style::tight);
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the views below do not jump
    setSizePolicy(policy);
    const auto* minus = addButton(u"minusDay"_s, u"−"_s, qtTrId("minusDay"), qtTrId("minusDayHint"));
    auto* days = new QLabel(qtTrId("daysButtons"), this);
    days->setObjectName(u"lblDays"_s);
    row->addWidget(days);
    const auto* plus = addButton(u"addDay"_s, u"+"_s, qtTrId("addDay"), qtTrId("addDayHint"));
    connect(minus, &QToolButton::clicked, &charts, &DrawGraphicVC::minusDay);
    connect(plus, &QToolButton::clicked, &charts, &DrawGraphicVC::addDay);
    addCommentTools();
    addActions();
    connect(&charts.getPulseView(), &PulseView::boxesChanged, this, &ChartTools::showState);
    setColorSelButtonImg(0);
    showState();
}

QToolButton* ChartTools::addButton(const QString& name, const QString& text, const QString& title,
                                   const QString& hint) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setText(text);
    button->setAccessibleName(title);
    button->setToolTip(hint);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRepeat(true);
    button->setMinimumWidth(button->sizeHint().height());
    row->addWidget(button);
    return button;
}

void ChartTools::addCommentTools() {
    row->addSpacing(Style::near);
    row->addWidget(commentIcon);
    colorSelButton = addButton(u"ColorSelButton"_s, {}, qtTrId("colourButton"), qtTrId("colourHint"));
    colorSelButton->setAutoRepeat(false);
    colorSelButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(commentIcon, &CommentImageBtn::dropped, this,
            [this](QPoint global) { charts.getPulseView().createComment(global, colorIndex); });
    connect(commentIcon, &CommentImageBtn::clicked, this, [this] { addComment(charts.commentDay()); });
    connect(colorSelButton, &QToolButton::clicked, this, [this] {
        picker->open(colorSelButton->mapToGlobal(QPoint(0, colorSelButton->height())), colorIndex);
    });
    connect(picker, &CommentColorView::setSelectedColor, this, &ChartTools::recolour);
}

QAction* ChartTools::addAction(const QString& name, const QString& text, const QKeySequence& keys) {
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    charts.addAction(action);
    return action;
}

void ChartTools::addActions() {
    PulseView& pulse = charts.getPulseView();
    add = addAction(u"addComment"_s, qtTrId("addComment"), Qt::Key_Insert);
    connect(add, &QAction::triggered, this, [this] { addComment(charts.commentDay()); });
    const auto choose = [&](const QString& name, const QString& text, const QKeySequence& keys,
                            bool forward) {
        connect(addAction(name, text, keys), &QAction::triggered, &pulse,
                [&pulse, forward] { pulse.selectNextBox(forward); });
    };
    choose(u"nextBox"_s, qtTrId("nextComment"), Qt::CTRL | Qt::Key_Down, true);
    choose(u"previousBox"_s, qtTrId("previousComment"), Qt::CTRL | Qt::Key_Up, false);
    const auto move = [&](const QString& name, const QString& text, const QKeySequence& keys, bool right,
                          int days) {
        onSelected.push_back(addAction(name, text, keys));
        connect(onSelected.back(), &QAction::triggered, this,
                [this, &pulse, right, days] { comments.moveEdge(pulse.selectedBox(), right, days); });
    };
    move(u"endLater"_s, qtTrId("endLater"), Qt::SHIFT | Qt::Key_Right, true, 1);
    move(u"endEarlier"_s, qtTrId("endEarlier"), Qt::SHIFT | Qt::Key_Left, true, -1);
    move(u"beginLater"_s, qtTrId("beginLater"), Qt::ALT | Qt::SHIFT | Qt::Key_Right, false, 1);
    move(u"beginEarlier"_s, qtTrId("beginEarlier"), Qt::ALT | Qt::SHIFT | Qt::Key_Left, false, -1);
    addColourActions();
    onSelected.push_back(addAction(u"removeComment"_s, qtTrId("deleteCommentButton"), QKeySequence::Delete));
    connect(onSelected.back(), &QAction::triggered, this,
            [this, &pulse] { comments.remove(pulse.selectedBox()); });
    connect(&charts, &DrawGraphicVC::menuWanted, this, &ChartTools::showMenu);
}

void ChartTools::addColourActions() {
    for (int index = 0; index < commentColourTotal; ++index) {
        QAction* action =
            addAction(u"colour%1"_s.arg(index + 1), qtTrId("colourAction").arg(colourName(index)),
                      Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + index));
        action->setIcon(swatch(index));
        connect(action, &QAction::triggered, this, [this, index] { recolour(index); });
    }
}

void ChartTools::addComment(Instant day) { charts.getPulseView().createCommentOn(day, colorIndex); }

/// The charts' actions. The pointer leaves the chart for the menu, so that the day is kept for the new
/// comment.
void ChartTools::showMenu(QPoint global, Instant day) {
    auto* menu = new QMenu(this);
    menu->setObjectName(u"chartMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    charts.keepReadingFor(*menu);
    menu->addActions(charts.actions());
    auto* addThere = new QAction(add->text(), menu);
    addThere->setObjectName(u"addCommentThere"_s);
    addThere->setEnabled(add->isEnabled());
    addThere->setShortcut(add->shortcut());
    addThere->setShortcutContext(Qt::WidgetShortcut); // only to be read
    connect(addThere, &QAction::triggered, this, [this, day] { addComment(day); });
    menu->insertAction(add, addThere);
    menu->removeAction(add);
    menu->popup(global);
}

/// The colour is for new comments, and for one that was selected for it.
void ChartTools::recolour(int chosenIndex) {
    setColorSelButtonImg(chosenIndex);
    const QString CommentID = charts.getPulseView().selectedBox();
    if (comments.selectedBy(CommentID) == SelectedBy::user) comments.recolour(CommentID, chosenIndex);
}

void ChartTools::setColorSelButtonImg(int chosenIndex) {
    colorIndex = chosenIndex;
    commentIcon->setImage(colorIndex);
    colorSelButton->setIcon(swatch(colorIndex));
    colorSelButton->setText(colourName(colorIndex));
    nameAsSeen(*colorSelButton, colourName(colorIndex), qtTrId("colourButton"));
}

void ChartTools::showState() {
    const bool valid = period.isValidCommentTimeRange();
    commentIcon->setEnabled(valid);
    commentIcon->setToolTip(valid ? qtTrId("addCommentHint") : qtTrId("addCommentTooLong"));
    commentIcon->setAccessibleDescription(commentIcon->toolTip());
    add->setEnabled(valid);
    const bool isMeant = comments.selectedBy(charts.getPulseView().selectedBox()) != SelectedBy::itself;
    for (QAction* action : onSelected)
        action->setEnabled(isMeant);
}

} // namespace zel
