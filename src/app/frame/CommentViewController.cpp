#include "app/frame/CommentViewController.h"

#include "analysis/BeforeAndSince.h"
#include "app/frame/CommentForm.h"
#include "app/frame/TypedCommentDay.h"
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
                                             const Clock& wallClock, QWidget* parent)
    : SidePanel(u"commentPanel"_s, qtTrId("commentPanel"), parent), store(dataStore), panel(messagePanel),
      clock(wallClock), form(new CommentForm(this)) {
    static_cast<QVBoxLayout*>(layout())->addWidget(form, 1);
    connect(form, &CommentForm::previousWanted, this, [this] { go(false); });
    connect(form, &CommentForm::nextWanted, this, [this] { go(true); });
    connect(form, &CommentForm::deleteWanted, this, &CommentViewController::deleteComment);
    connect(form, &CommentForm::textLeft, this, &CommentViewController::checkToSaveComment);
    connect(form, &CommentForm::datesTyped, this, &CommentViewController::checkToSaveComment);
    connect(form, &CommentForm::beginEntered, this, &CommentViewController::beginEntered);
    connect(&store, &DataStore::currentIDChanged, this, [this] { unasked = QString(); });
    for (const auto changed : {&DataStore::reloaded, &DataStore::currentIDChanged})
        connect(&store, changed, this, [this] { means.reset(); });
    connect(&store, &DataStore::reloaded, this, &CommentViewController::LoadData);
    connect(&store, &DataStore::currentIDChanged, this, &CommentViewController::LoadData);
    LoadData();
}

void CommentViewController::go(bool forward) {
    const auto at = shownIndex();
    if (at && (forward || *at > 0)) selectComment(forward ? *at + 1 : *at - 1);
}

void CommentViewController::LoadData() {
    if (isLoading) return;
    const QScopedValueRollback loading(isLoading, true);
    form->showPatient(narrowPatientHeading(store));
    if (isEdited() && shown->ID == store.getCurrentID()) return showPosition();
    if (isEdited() && !store.validIDinXML(shown->ID)) rescueText();
    if (const CommentModel* selected = store.getSelectedComment()) return show(*selected);
    shown.reset();
    enableCommentUI(false);
    store.setSelectedComment({});
    selectComment(0);
}

bool CommentViewController::selectComment(std::size_t index) {
    if (index >= store.getCommentForCurID().size()) return false;
    const QString ID = store.getCommentForCurID().at(index)->CommentID;
    const bool isOther = shown && shown->CommentID != ID;
    if (!(isOther ? finish() : checkToSaveComment())) return false;
    const auto found = indexOf(ID); // saving has read the comments anew
    if (!found) return false;
    store.setSelectedComment(ID);
    show(*store.getCommentForCurID().at(*found));
    emit commentSelected(!isLoading);
    qCDebug(lcApp, "the selected comment from sideview %s", qUtf8Printable(ID));
    return true;
}

bool CommentViewController::setCommentScroll(const QString& commentID) {
    const auto index = indexOf(commentID);
    return index && selectComment(*index);
}

std::optional<std::size_t> CommentViewController::shownIndex() const {
    return shown ? indexOf(shown->CommentID) : std::nullopt;
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
    const QString pattern = store.getSetting().shownDateFormat();
    form->showDates(commentDayText(comment.beginDate, pattern), commentDayText(comment.endDate, pattern));
}

void CommentViewController::showPosition() {
    const CommentList& comments = store.getCommentForCurID();
    const auto index = shownIndex();
    if (index)
        form->showPosition(*index, comments.size());
    else
        form->showNoPosition();
    change.want();
}

/// It goes over all readings, which nobody should wait for who does not see the panel.
void CommentViewController::showChange() {
    const CommentList& comments = store.getCommentForCurID();
    const auto index = shownIndex();
    if (index && !means) means = DayMeans(store.getReadingForCurID());
    form->showChange(index ? describe(calcBeforeAndSince(*means, comments, *comments[*index])) : QString());
}

bool CommentViewController::isEdited() const {
    const CommentForm::Dates dates = form->typedDates();
    return shown && (dates.begin || dates.end || (form->isEdited() && form->text() != shown->comment));
}

CommentViewController::Typed CommentViewController::typed() const {
    Typed all{*shown, {}};
    const CommentForm::Dates dates = form->typedDates();
    takeDay(dates.begin, true, all);
    takeDay(dates.end, false, all);
    CommentModel& comment = all.comment;
    const bool hasBoth = !isNilDate(comment.beginDate) && !isNilDate(comment.endDate);
    if (all.refusal.isEmpty() && (dates.begin || dates.end) && hasBoth
        && *comment.beginDate > *comment.endDate)
        all.refusal = qtTrId("commentDayOrder");
    if (!all.refusal.isEmpty()) comment = *shown;
    if (form->isEdited()) comment.comment = form->text();
    return all;
}

/// A day that is typed as it was keeps its time.
void CommentViewController::takeDay(const std::optional<QString>& text, bool begin, Typed& into) const {
    if (!text) return;
    const QString pattern = store.getSetting().shownDateFormat();
    Date& stored = begin ? into.comment.beginDate : into.comment.endDate;
    if (*text == commentDayText(stored, pattern)) return;
    const Date day = typedCommentDay(*text, pattern);
    if (!day)
        into.refusal = qtTrId("commentDayUnread").arg(*text, QString(pattern).toUpper());
    else if (stored && DateToDayBoundary(*stored, true) == *day)
        return; // typed in another form
    else if (isFarAhead(*day, std::chrono::floor<std::chrono::milliseconds>(clock.now())))
        into.refusal = qtTrId("commentDayFar").arg(*text);
    else
        stored = DateToDayBoundary(*day, begin);
}

/// Who types the days in reading order has the first one behind the last for a moment.
void CommentViewController::beginEntered() {
    if (shown && typed().refusal == qtTrId("commentDayOrder")) return form->focusEnd();
    checkToSaveComment();
}

/// They are as before when the message comes, which takes the keyboard from the field.
bool CommentViewController::refuseDates() {
    const QString refusal = shown ? typed().refusal : QString();
    if (refusal.isEmpty()) return false;
    updateDaetInfo(*shown);
    panel.ShowMessage(refusal, qtTrId("DateError"));
    return true;
}

/// Writes a copy: on a failure, neither the store nor the panel has changed.
StoreResult CommentViewController::save() {
    if (isLoading || !isEdited()) return {};
    const CommentModel comment = typed().comment;
    if (comment.isSame(*shown)) {
        if (typed().refusal.isEmpty()) updateDaetInfo(*shown); // typed as they were
        return {};
    }
    const bool isEmptied = !shown->comment.trimmed().isEmpty() && comment.comment.trimmed().isEmpty();
    // The patient may turn out to be gone from the file: then another one's comment is shown now.
    StoreResult saved = store.saveCommentToXML(comment, *shown);
    if (!shown || shown->CommentID != comment.CommentID || shown->ID != comment.ID) return {};
    if (!isInPlace(saved)) return saved;
    if (isEmptied) unasked = comment.CommentID;
    shown = comment;
    form->settle();
    updateDaetInfo(comment);
    showPosition();
    tellIfNotReadBack();
    return saved;
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
    const bool isRefused = !isLoading && refuseDates();
    const StoreResult saved = save();
    if (!saved)
        panel.ShowMessage(describeWithin(qtTrId("commentNotSaved"), saved.error()), qtTrId("Warning"));
    return isInPlace(saved) && !isRefused;
}

bool CommentViewController::finish() {
    if (!checkToSaveComment()) return false;
    askAboutEmpty();
    return true;
}

void CommentViewController::editNew() {
    const CommentModel* selected = store.getSelectedComment();
    if (!selected) return;
    unasked = selected->CommentID;
    emit wanted();
    form->focusText();
}

void CommentViewController::askAboutEmpty() {
    const QString ID = std::exchange(unasked, QString());
    const bool isShown = shown && !ID.isNull() && shown->CommentID == ID && shown->ID == store.getCurrentID();
    if (isLoading || !isShown || !form->text().trimmed().isEmpty()) return;
    const QString question =
        qtTrId("commentEmpty").arg(commentDayText(shown->beginDate, store.getSetting().shownDateFormat()));
    const QString patientID = shown->ID;
    if (!panel.AskMessage(question, qtTrId("commentEmptyTitle"))) return;
    if (store.getCurrentID() == patientID) erase(ID);
}

bool CommentViewController::leave() {
    const bool isRefused = refuseDates();
    const StoreResult saved = save();
    if (isInPlace(saved)) {
        if (!saved) panel.ShowMessage(describe(saved.error()), qtTrId("Warning"));
        if (!isRefused) askAboutEmpty();
        return !isRefused;
    }
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
    if (!isInPlace(saved)) QGuiApplication::clipboard()->setText(text);
    panel.ShowMessage(describeWithin(qtTrId("commentInClipboard"), saved.error()), qtTrId("Warning"));
}

void CommentViewController::deleteComment() {
    const CommentModel* selected = store.getSelectedComment();
    if (!selected) return;
    const QString ID = selected->CommentID;
    const QString patientID = selected->ID;
    if (!panel.AskToErase(qtTrId("DeleteTheComment"), qtTrId("DeleteComment"))) return;
    if (store.getCurrentID() == patientID) erase(ID); // or another one's may have the same number
}

/// Another may be selected since it was asked.
void CommentViewController::erase(const QString& commentID) {
    store.setSelectedComment(commentID);
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
