#pragma once

#include "analysis/DisplayPeriod.h"
#include "app/graph/ChartComments.h"

#include <QWidget>

#include <vector>

class QAction;
class QHBoxLayout;
class QToolButton;

namespace zel {

class CommentColorView;
class CommentImageBtn;
class DrawGraphicVC;

/// The tools of the chart: the period's buttons, the comment icon and its colour, and what the keys and the
/// context menu do with comments.
class ChartTools final : public QWidget {
    Q_OBJECT
public:
    ChartTools(DrawGraphicVC& shownCharts, ChartComments& chartComments, const DisplayPeriod& displayPeriod,
               QWidget* parent);

private:
    QToolButton* addButton(const QString& name, const QString& text, const QString& title,
                           const QString& hint);
    void addCommentTools();
    void addActions();
    void addColourActions();
    QAction* addAction(const QString& name, const QString& text, const QKeySequence& keys);
    void addComment(Instant day);
    void showMenu(QPoint global, Instant day);
    void setColorSelButtonImg(int chosenIndex);
    void recolour(int chosenIndex);
    void showState();

    DrawGraphicVC& charts;
    ChartComments& comments;
    const DisplayPeriod& period;
    QHBoxLayout* row;
    CommentImageBtn* commentIcon;
    QToolButton* colorSelButton;
    CommentColorView* picker;
    QAction* add = nullptr;
    std::vector<QAction*> onSelected; ///< what needs a comment that the user selected or added
    int colorIndex = 0;
};

} // namespace zel
