#include "app/frame/CommentViewController.h"

#include "app/widgets/Log.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/PatientTexts.h"
#include "chart/StyleTable.h"

#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QGridLayout>
#include <QIcon>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

CommentViewController::CommentViewController(DataStore& dataStore, MessagePanel& messagePanel,
                                             QWidget* parent)
    : SidePanel(u"commentPanel"_s, qtTrId("commentPanel"), parent), store(dataStore), panel(messagePanel),
      lblPatient(new QuietLabel({}, this)), lblBeginDate(new QLabel(this)), lblEndDate(new QLabel(this)),
      textBox(new QFrame(this)), commentText(new QPlainTextEdit(textBox)), btnPrevious(new QToolButton(this)),
      btnNext(new QToolButton(this)), lblPosition(new QLabel(this)), btnDelete(new QPushButton(this)) {
    build();
    connect(&store, &DataStore::reloaded, this, &CommentViewController::LoadData);
    connect(&store, &DataStore::currentIDChanged, this, &CommentViewController::LoadData);
    LoadData();
}

void CommentViewController::build() {
    lblPatient->setObjectName(u"lblCommentPatient"_s);
    lblPatient->setTextFormat(Qt::PlainText);
    lblPatient->setWordWrap(true);
    auto* dates = new QGridLayout;
    dates->setHorizontalSpacing(8);
    dates->setColumnStretch(1, 1);
    int row = 0;
    for (const auto& [title, value, name] :
         {std::tuple(qtTrId("commentBegin"), lblBeginDate, u"lblCommentBegin"_s),
          {qtTrId("commentEnd"), lblEndDate, u"lblCommentEnd"_s}}) {
        value->setObjectName(name);
        dates->addWidget(new QuietLabel(title, this), row, 0);
        dates->addWidget(value, row++, 1);
    }
    textBox->setObjectName(u"commentBox"_s);
    commentText->setObjectName(u"commentText"_s);
    commentText->setAccessibleName(qtTrId("commentText"));
    commentText->setFrameShape(QFrame::NoFrame);
    commentText->setTabChangesFocus(true);
    QPalette colours;
    colours.setColor(QPalette::PlaceholderText, QColor(128, 128, 128)); // can be read on any background
    commentText->setPalette(colours);
    commentText->setMinimumHeight(commentText->fontMetrics().lineSpacing() * 4);
    commentText->installEventFilter(this);
    auto* inside = new QVBoxLayout(textBox);
    inside->setContentsMargins(2, 2, 2, 2);
    inside->addWidget(commentText);
    auto* content = static_cast<QVBoxLayout*>(layout());
    content->addWidget(lblPatient);
    content->addSpacing(6);
    content->addLayout(dates);
    content->addSpacing(8);
    content->addWidget(textBox, 1);
    content->addSpacing(8);
    content->addWidget(makeButtons());
}

QWidget* CommentViewController::makeButtons() {
    auto* buttons = new QWidget(this);
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    const auto place = [&](QToolButton* button, const QString& name, Qt::ArrowType arrow,
                           const QString& hint) {
        button->setObjectName(name);
        button->setArrowType(arrow);
        button->setAccessibleName(hint);
        button->setToolTip(hint);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        row->addWidget(button);
    };
    const auto go = [this](bool forward) {
        const auto at = shown ? indexOf(shown->CommentID) : std::nullopt;
        if (at && (forward || *at > 0)) selectComment(forward ? *at + 1 : *at - 1);
    };
    place(btnPrevious, u"btnPreviousComment"_s, Qt::LeftArrow, qtTrId("previousComment"));
    lblPosition->setObjectName(u"lblCommentPosition"_s);
    row->addWidget(lblPosition);
    place(btnNext, u"btnNextComment"_s, Qt::RightArrow, qtTrId("nextComment"));
    row->addStretch(1);
    btnDelete->setObjectName(u"btnDeleteComment"_s);
    btnDelete->setText(qtTrId("deleteCommentButton"));
    btnDelete->setAccessibleName(qtTrId("DeleteComment"));
    btnDelete->setToolTip(qtTrId("deleteCommentHint"));
    btnDelete->setIconSize({18, 18});
    row->addWidget(btnDelete);
    connect(btnPrevious, &QToolButton::clicked, this, [go] { go(false); });
    connect(btnNext, &QToolButton::clicked, this, [go] { go(true); });
    connect(btnDelete, &QPushButton::clicked, this, &CommentViewController::deleteComment);
    return buttons;
}

void CommentViewController::LoadData() {
    if (isLoading) return;
    const QScopedValueRollback loading(isLoading, true);
    lblPatient->setText(patientHeading(store));
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
    if (!isSame) commentText->setPlainText(comment.comment);
    commentText->document()->setModified(false);
    commentText->setReadOnly(comment.CommentID.isEmpty()); // it could not be found again in the file
    shown = comment;
    const int degree = static_cast<int>(comment.degree);
    btnDelete->setIcon(QIcon(":/images/"_L1 + getCommentDeleteImage(degree) + ".svg"_L1));
    textBox->setStyleSheet(
        u"#commentBox { border: 2px solid %1; }"_s.arg(getCommentColor(degree, true).name()));
    updateDaetInfo(comment);
    showPosition();
}

void CommentViewController::enableCommentUI(bool enabled) {
    commentText->setEnabled(enabled);
    commentText->setReadOnly(!enabled);
    btnDelete->setEnabled(enabled);
    if (enabled) return commentText->setPlaceholderText({});
    commentText->clear();
    commentText->setPlaceholderText(qtTrId("noComments"));
    btnDelete->setIcon({});
    textBox->setStyleSheet(u"#commentBox { border: 1px solid palette(mid); }"_s);
    updateDaetInfo({});
    showPosition();
}

void CommentViewController::updateDaetInfo(const CommentModel& comment) {
    const QString format = store.getSetting().getDateFormat();
    const auto text = [&format](const Date& date) {
        return DateToStr(date.value_or(getNilDate()), format.isNull() ? u"yyyy/MM/dd"_s : format);
    };
    lblBeginDate->setText(text(comment.beginDate));
    lblEndDate->setText(text(comment.endDate));
}

void CommentViewController::showPosition() {
    const std::size_t total = store.getCommentForCurID().size();
    const auto index = shown ? indexOf(shown->CommentID) : std::nullopt;
    lblPosition->setText(index ? qtTrId("commentPosition").arg(*index + 1).arg(total) : QString());
    btnPrevious->setEnabled(index && *index > 0);
    btnNext->setEnabled(index && *index + 1 < total);
}

bool CommentViewController::isChanged() const {
    return shown && !commentText->isReadOnly() && commentText->document()->isModified()
           && commentText->toPlainText() != shown->comment;
}

/// Writes a copy: on a failure, neither the store nor the panel has changed.
StoreResult CommentViewController::save() {
    if (isLoading || !isChanged()) return {};
    CommentModel comment = *shown;
    comment.comment = commentText->toPlainText();
    // The patient may turn out to be gone from the file: then another one's comment is shown now.
    if (StoreResult saved = store.saveCommentToXML(comment); !saved) return saved;
    if (!shown || shown->CommentID != comment.CommentID || shown->ID != comment.ID) return {};
    shown->comment = comment.comment;
    commentText->document()->setModified(false);
    return {};
}

/// The patient is gone from the file while a comment is being typed: nothing is left to save it to.
void CommentViewController::rescueText() {
    QGuiApplication::clipboard()->setText(commentText->toPlainText());
    commentText->document()->setModified(false);
    const QString told = qtTrId("commentPatientGone").arg(shown->ID);
    // Once all has been read anew: the message waits for an answer.
    QMetaObject::invokeMethod(
        this, [this, told] { panel.ShowMessage(told, qtTrId("Warning")); }, Qt::QueuedConnection);
}

bool CommentViewController::checkToSaveComment() {
    const StoreResult saved = save();
    if (!saved) panel.ShowMessage(qtTrId("commentNotSaved").arg(describe(saved.error())), qtTrId("Warning"));
    return saved.has_value();
}

bool CommentViewController::leave() {
    const StoreResult saved = save();
    if (saved) return true;
    if (panel.AskMessage(qtTrId("commentStay").arg(describe(saved.error())), qtTrId("Warning"))) return false;
    shown.reset();
    LoadData();
    return true;
}

void CommentViewController::deleteComment() {
    const CommentModel* selected = store.getSelectedComment();
    if (!selected) return;
    const QString ID = selected->CommentID;
    if (!panel.AskToErase(qtTrId("DeleteTheComment"), qtTrId("DeleteComment"))) return;
    store.setSelectedComment(ID); // another may be selected since it was asked
    auto kept = std::exchange(shown, std::nullopt);
    const StoreResult deleted = store.deleteSelectedCommentToXML();
    if (deleted) return LoadData();
    shown = std::move(kept);
    panel.ShowMessage(describe(deleted.error()), qtTrId("Warning"));
}

bool CommentViewController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::FocusOut) return SidePanel::eventFilter(watched, event);
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    const bool isAway = reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason;
    // The window itself takes the focus when the page is left, which saves and asks in one.
    if (isAway && QApplication::focusWidget() != window()) {
        qCInfo(lcApp, "comment textDidEndEditing");
        checkToSaveComment();
    }
    return SidePanel::eventFilter(watched, event);
}

} // namespace zel
