#pragma once

#include "store/DataStore.h"

#include <QObject>

namespace zel {

class CommentViewController;

/// How the selected comment came to be so: what is done to it without naming it is done to one only that the
/// user meant.
enum class SelectedBy {
    itself,   ///< the page shows one always
    creation, ///< the user has just added it
    user      ///< by a click or a key since the page was opened
};

/// What the chart does with the current patient's comments: each change is written at once, and a failure is
/// told to the user.
class ChartComments final : public QObject {
    Q_OBJECT
public:
    ChartComments(DataStore& dataStore, MessagePanel& messagePanel, QObject* parent);
    /// The panel that shows the selected comment. Once, before anything else.
    void setPanel(CommentViewController& commentPanel);

    [[nodiscard]] const CommentList& all() const { return store.getCommentForCurID(); }
    [[nodiscard]] const CommentModel* find(const QString& CommentID) const; ///< null: there is none
    [[nodiscard]] SelectedBy selectedBy(const QString& CommentID) const;
    /// The page is opened: what was selected so far was for something else.
    void forgetSelection() { meant = QString(); }
    /// \return false if another comment's text, just typed, cannot be saved
    bool select(const QString& CommentID);
    /// Adds a comment that has no ID yet, and selects it.
    void create(CommentModel comment);
    /// Writes the comment, which stays or becomes selected; adds it if it is no longer in the file.
    /// \return false if that failed
    bool save(const CommentModel& comment);
    void recolour(const QString& CommentID, int colourIndex);
    /// An edge by whole days; the other one is never passed.
    void moveEdge(const QString& CommentID, bool right, int days);
    /// Removes the comment after a question.
    void remove(const QString& CommentID);
    /// The dates of a comment while an edge of it is dragged.
    void showDates(const CommentModel& comment);

signals:
    void selected(); ///< another comment is the selected one

private:
    void noteSelection(bool byUser);
    bool tell(const StoreResult& result);

    DataStore& store;
    MessagePanel& messages;
    CommentViewController* panel = nullptr;
    QString meant; ///< the comment that the user selected or added; null: none
    SelectedBy how = SelectedBy::itself;
};

/// Of a comment's colour: 0 to 3, as in the picker.
[[nodiscard]] QString colourName(int colourIndex);
/// "images/…" of the comment icon in that colour; \p hovered: its second state.
[[nodiscard]] QString commentImage(int colourIndex, bool hovered);

} // namespace zel
