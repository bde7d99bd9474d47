#pragma once

#include "analysis/DayMeans.h"
#include "app/widgets/SeenWork.h"
#include "app/widgets/SidePanel.h"
#include "store/Clock.h"
#include "store/DataStore.h"

#include <QJsonArray>
#include <QJsonObject>

#include <optional>

namespace zel {

class CommentForm;

/// The panel beside table and chart that shows one of the current patient's comments at a time, to be read,
/// changed and deleted.
class CommentViewController final : public SidePanel {
    Q_OBJECT
public:
    CommentViewController(DataStore& dataStore, MessagePanel& messagePanel, const Clock& wallClock,
                          QWidget* parent);

    /// Fills the panel for the current patient. What was typed and is not saved stays.
    void LoadData();
    /// Shows a comment of the current patient's list and makes it the store's selected one.
    /// \return false if there is none of that index, or if what was typed cannot be saved
    bool selectComment(std::size_t index);
    /// As selectComment(), of the comment with that ID.
    bool setCommentScroll(const QString& commentID);
    /// Something is typed and not saved.
    [[nodiscard]] bool isEdited() const;
    /// Saves what was typed, if anything, and says nothing.
    [[nodiscard]] StoreResult save();
    /// Saves what was typed. \return false if that failed; the user knows why, and the text is still there.
    /// Dates that cannot be are not
    bool checkToSaveComment();
    /// As finish(), and if saving fails asks whether to stay. \return false if so, or if the dates cannot be
    [[nodiscard]] bool leave();
    /// Before another comment takes its place, or paper shows it: as checkToSaveComment(); one that was just
    /// added and stayed empty, or was emptied, is removed, if the user wants that.
    bool finish();
    /// The one that is shown was just added: the keyboard goes to its text.
    void editNew();
    /// As save(). \return what could not be saved, for takeUp() at the next start
    [[nodiscard]] QJsonArray saveQuietly();
    /// Saves such a text; where that cannot be, tells why and puts it into the clipboard.
    void takeUp(const QJsonObject& draft);
    void deleteComment();
    /// A text that can be changed, or a blank panel.
    void enableCommentUI(bool enabled);
    /// Shows the dates of a comment that is being moved.
    void updateDaetInfo(const CommentModel& comment); // spelled so in the interface

signals:
    void wanted(); ///< the user is to see the panel
    /// The store's selected comment is another one, or was selected once more.
    void commentSelected(bool byUser); ///< false: the panel chose it, as there was none

private:
    struct Typed {
        CommentModel comment;
        QString refusal; ///< of the dates, which are as before then; empty: none
    };
    [[nodiscard]] Typed typed() const;
    void beginEntered();
    void takeDay(const std::optional<QString>& text, bool begin, Typed& into) const;
    [[nodiscard]] bool refuseDates();
    void askAboutEmpty();
    void erase(const QString& commentID);
    void go(bool forward);
    void show(const CommentModel& comment);
    void showPosition();
    void showChange();
    void rescueText();
    void tellIfNotReadBack();
    [[nodiscard]] std::optional<std::size_t> shownIndex() const;
    [[nodiscard]] std::optional<std::size_t> indexOf(const QString& commentID) const;

    DataStore& store;
    MessagePanel& panel;
    const Clock& clock;
    std::optional<CommentModel> shown; ///< as it was last read or saved
    QString unasked; ///< the comment that was just added, or emptied by hand, by its number; null: none
    bool isLoading = false;
    CommentForm* form;
    std::optional<DayMeans> means; ///< of the patient's readings, as soon as they are asked for
    SeenWork change{*this, [this] { showChange(); }};
};

} // namespace zel
