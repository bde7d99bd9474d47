#include "app/frame/CommentViewController.h"

#include "app/frame/CommentForm.h"
#include "app/widgets/Log.h"
#include "app/widgets/PatientTexts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

CommentViewController::CommentViewController(DataStore& dataStore, MessagePanel& messagePanel,
                                             QWidget* parent)
    : SidePanel(u"commentPanel"_s, qtTrId("commentPanel"), parent), store(dataStore), panel(messagePanel),
      form(new CommentForm(this)) {
    static_cast<QVBoxLayout*>(layout())->addWidget(form, 1);
    connect(form, &CommentForm::previousWanted, this, [this] { go(false); });
    connect(form, &CommentForm::nextWanted, this, [this] { go(true); });
    connect(form, &CommentForm::deleteWanted, this, &CommentViewController::deleteComment);
    connect(form, &CommentForm::textLeft, this, &CommentViewController::checkToSaveComment);
    connect(&store, &DataStore::reloaded, this, &CommentViewController::LoadData);
    connect(&store, &DataStore::currentIDChanged, this, &CommentViewController::LoadData);
    LoadData();
}

void CommentViewController::go(bool forward) {
    const auto at = shown ? indexOf(shown->CommentID) : std::nullopt;
    if (at && (forward || *at > 0)) selectComment(forward ? *at + 1 : *at - 1);
}

void CommentViewController::LoadData() {
    if (isLoading) return;
    const QScopedValueRollback loading(isLoading, true);
    form->showPatient(patientHeading(store));
    if (isChanged() && shown->ID == store.getCurrentID()) return showPosition();
    if (isChanged() && !store.validIDinXML(shown->ID)) rescueText();
    if (const CommentModel* selected = store.getSelectedComment()) return show(*selected);
    shown.reset();
    enableCommentUI(false);
    store.setSelectedComment({});
    selectComment(0);
}

bool CommentViewController::selectComment(std::size_t index) {
    if (index >= store.getCommentForCurID().size()) return false;
    const QString ID = store.getCommentForCurID().at(index)->CommentID;
    if (!checkToSaveComment()) return false;
    const auto found = indexOf(ID); // saving has read the comments anew
    if (!found) return false;
    store.setSelectedComment(ID);
    show(*store.getCommentForCurID().at(*found));
    emit commentSelected();
    qCDebug(lcApp, "the selected comment from sideview %s", qUtf8Printable(ID));
    return true;
}

bool CommentViewController::setCommentScroll(const QString& commentID) {
    const auto index = indexOf(commentID);
    return index && selectComment(*index);
}

std::optional<std::size_t> CommentViewController::indexOf(const QString& commentID) const {
    const CommentList& comments = store.getCommentForCurID();
    const auto found =
        std::ranges::find(comments, commentID, [](const auto& each) { return each->CommentID; });
    if (found == comments.end()) return std::nullopt;
    return static_cast<std::size_t>(found - comments.begin());
}

/// The caret stays where it is when the same text is shown again.
void CommentViewController::show(const CommentModel& comment) {
    const bool isSame = shown && shown->CommentID == comment.CommentID && shown->comment == comment.comment;
    enableCommentUI(true);
    if (!isSame) form->showText(comment.comment);
    form->settle();
    form->setReadOnly(comment.CommentID.isEmpty()); // of several, the panel finds the first only
    shown = comment;
    form->showDegree(static_cast<int>(comment.degree));
    updateDaetInfo(comment);
    showPosition();
}

void CommentViewController::enableCommentUI(bool enabled) {
    form->enable(enabled);
    if (enabled) return;
    updateDaetInfo({});
    showPosition();
}

void CommentViewController::updateDaetInfo(const CommentModel& comment) {
    const QString format = store.getSetting().getDateFormat();
    const auto text = [&format](const Date& date) {
        return DateToStr(date.value_or(getNilDate()), format.isNull() ? u"yyyy/MM/dd"_s : format);
    };
    form->showDates(text(comment.beginDate), text(comment.endDate));
}

void CommentViewController::showPosition() {
    if (const auto index = shown ? indexOf(shown->CommentID) : std::nullopt)
        form->showPosition(*index, store.getCommentForCurID().size());
    else
        form->showNoPosition();
}

bool CommentViewController::isChanged() const {
    return shown && form->isEdited() && form->text() != shown->comment;
}

/// Writes a copy: on a failure, neither the store nor the panel has changed.
StoreResult CommentViewController::save() {
    if (isLoading || !isChanged()) return {};
    CommentModel comment = *shown;
    comment.comment = form->text();
    // The patient may turn out to be gone from the file: then another one's comment is shown now.
    StoreResult saved = store.saveCommentToXML(comment, *shown);
    if (!shown || shown->CommentID != comment.CommentID || shown->ID != comment.ID) return {};
    if (!saved) return saved;
    shown->comment = comment.comment;
    form->settle();
    tellIfNotReadBack();
    return {};
}

void CommentViewController::tellIfNotReadBack() {
    const StoreResult& loaded = store.lastLoad();
    if (!loaded)
        panel.ShowMessage(qtTrId("storedNotReadBack").arg(describe(loaded.error())), qtTrId("Warning"));
}

/// The patient is gone from the file while a comment is being typed: nothing is left to save it to.
void CommentViewController::rescueText() {
    QGuiApplication::clipboard()->setText(form->text());
    form->settle();
    const QString told = qtTrId("commentPatientGone").arg(shown->ID);
    // Once all has been read anew: the message waits for an answer.
    const auto tell = [this, told] { panel.ShowMessage(told, qtTrId("Warning")); };
    QMetaObject::invokeMethod(
        this, [this, tell] { panel.interject(this, tell); }, Qt::QueuedConnection);
}

bool CommentViewController::checkToSaveComment() {
    const StoreResult saved = save();
    if (!saved) panel.ShowMessage(qtTrId("commentNotSaved").arg(describe(saved.error())), qtTrId("Warning"));
    return saved.has_value();
}

bool CommentViewController::leave() {
    const StoreResult saved = save();
    if (saved) return true;
    if (panel.AskBeforeLosing(qtTrId("commentStay").arg(describe(saved.error())), qtTrId("Warning")))
        return false;
    shown.reset();
    LoadData();
    return true;
}

QJsonArray CommentViewController::saveQuietly() {
    if (save()) return {};
    return {QJsonObject{{u"name"_s, patientHeading(store)},
                        {u"ID"_s, shown->ID},
                        {u"CommentID"_s, shown->CommentID},
                        {u"text"_s, form->text()}}};
}

void CommentViewController::takeUp(const QJsonObject& draft) {
    store.setCurrentID(draft[u"ID"_s].toString());
    const auto index = indexOf(draft[u"CommentID"_s].toString());
    const QString text = draft[u"text"_s].toString();
    StoreResult saved = tl::unexpected(StoreError{StoreErrorCode::noSuchRecord, store.getCurrentID(), {}});
    if (index) {
        CommentModel comment = *store.getCommentForCurID().at(*index);
        comment.comment = text;
        saved = store.saveCommentToXML(comment);
    }
    if (saved) return;
    QGuiApplication::clipboard()->setText(text);
    panel.ShowMessage(qtTrId("commentInClipboard").arg(describe(saved.error())), qtTrId("Warning"));
}

void CommentViewController::deleteComment() {
    const CommentModel* selected = store.getSelectedComment();
    if (!selected) return;
    const QString ID = selected->CommentID;
    const QString patientID = selected->ID;
    if (!panel.AskToErase(qtTrId("DeleteTheComment"), qtTrId("DeleteComment"))) return;
    if (store.getCurrentID() != patientID) return; // whose comment may have the same number
    store.setSelectedComment(ID);                  // another may be selected since it was asked
    auto kept = std::exchange(shown, std::nullopt);
    const StoreResult deleted = store.deleteSelectedCommentToXML();
    if (deleted) {
        tellIfNotReadBack();
        return LoadData();
    }
    shown = std::move(kept);
    panel.ShowMessage(describe(deleted.error()), qtTrId("Warning"));
}

} // namespace zel
