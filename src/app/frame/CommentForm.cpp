#include "app/frame/CommentForm.h"

#include "app/widgets/Log.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/SeenName.h"
#include "app/widgets/Style.h"
#include "chart/StyleTable.h"

#include <QApplication>
#include <QFocusEvent>
#include <QGridLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestDate = 32; ///< letters, however it is written

} // namespace

CommentForm::CommentForm(QWidget* parent)
    : QWidget(parent), lblPatient(new QuietLabel({}, this)), beginDay(new QLineEdit(this)),
      endDay(new QLineEdit(this)), textBox(new QFrame(this)), commentText(new QPlainTextEdit(textBox)),
      lblBeforeAndSince(new QLabel(this)), btnPrevious(new QToolButton(this)), btnNext(new QToolButton(this)),
      lblPosition(new QLabel(this)), btnDelete(new QPushButton(this)) {
    buildDay(*beginDay, u"commentBegin"_s, qtTrId("commentBeginDay"));
    buildDay(*endDay, u"commentEnd"_s, qtTrId("commentEndDay"));
    buildText();
    build();
    connect(btnPrevious, &QToolButton::clicked, this, &CommentForm::previousWanted);
    connect(btnNext, &QToolButton::clicked, this, &CommentForm::nextWanted);
    connect(btnDelete, &QPushButton::clicked, this, &CommentForm::deleteWanted);
}

void CommentForm::build() {
    lblPatient->setObjectName(u"lblCommentPatient"_s);
    lblPatient->setTextFormat(Qt::PlainText);
    lblPatient->setWordWrap(true);
    lblBeforeAndSince->setObjectName(u"lblBeforeAndSince"_s);
    lblBeforeAndSince->setTextFormat(Qt::PlainText);
    lblBeforeAndSince->setWordWrap(true);
    lblBeforeAndSince->setToolTip(qtTrId("beforeAndSinceHint"));
    auto* dates = new QGridLayout;
    dates->setHorizontalSpacing(Style::near);
    dates->setColumnStretch(1, 1);
    int row = 0;
    for (const auto& [title, day] :
         {std::pair(qtTrId("commentBegin"), beginDay), {qtTrId("commentEnd"), endDay}}) {
        auto* label = new QuietLabel(title, this);
        label->setBuddy(day);
        nameAsSeen(*day, title, day->accessibleName());
        dates->addWidget(label, row, 0);
        dates->addWidget(day, row++, 1);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::none);
    column->addWidget(lblPatient);
    column->addSpacing(Style::near);
    column->addLayout(dates);
    column->addSpacing(Style::near);
    column->addWidget(textBox, 1);
    column->addSpacing(Style::near);
    column->addWidget(lblBeforeAndSince);
    column->addSpacing(Style::near);
    column->addWidget(makeButtons());
}

void CommentForm::buildDay(QLineEdit& day, const QString& name, const QString& title) {
    day.setObjectName(name);
    day.setAccessibleName(title);
    day.setToolTip(qtTrId("commentDayHint"));
    day.setMaxLength(longestDate);
    day.installEventFilter(this);
    connect(&day, &QLineEdit::returnPressed, this, [this, &day] { enterDay(day); });
}

void CommentForm::enterDay(const QLineEdit& day) {
    if (!beginDay->isModified() && !endDay->isModified()) return;
    if (&day == beginDay && !endDay->isModified())
        emit beginEntered();
    else
        emit datesTyped();
}

void CommentForm::buildText() {
    textBox->setObjectName(u"commentBox"_s);
    commentText->setObjectName(u"commentText"_s);
    commentText->setAccessibleName(qtTrId("commentText"));
    commentText->setFrameShape(QFrame::NoFrame);
    commentText->setTabChangesFocus(true);
    Style::followPlaceholder(*commentText);
    commentText->setMinimumHeight(commentText->fontMetrics().lineSpacing() * 4);
    // Gives way before the panels have to be scrolled.
    commentText->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    commentText->installEventFilter(this);
    auto* inside = new QVBoxLayout(textBox);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(commentText);
}

QWidget* CommentForm::makeButtons() {
    auto* buttons = new QWidget(this);
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Style::tight);
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
    place(btnPrevious, u"btnPreviousComment"_s, Qt::LeftArrow, qtTrId("previousComment"));
    lblPosition->setObjectName(u"lblCommentPosition"_s);
    row->addWidget(lblPosition);
    place(btnNext, u"btnNextComment"_s, Qt::RightArrow, qtTrId("nextComment"));
    row->addStretch(1);
    btnDelete->setObjectName(u"btnDeleteComment"_s);
    btnDelete->setText(qtTrId("deleteCommentButton"));
    btnDelete->setToolTip(qtTrId("deleteCommentHint"));
    nameAsSeen(*btnDelete, btnDelete->text(), qtTrId("DeleteComment"));
    btnDelete->setIconSize({Style::smallIcon, Style::smallIcon});
    row->addWidget(btnDelete);
    return buttons;
}

void CommentForm::showPatient(const QString& heading) { lblPatient->setText(heading); }

void CommentForm::showDates(const QString& begin, const QString& end) {
    shownDays = {begin, end};
    beginDay->setText(begin);
    endDay->setText(end);
}

CommentForm::Dates CommentForm::typedDates() const {
    const auto typed = [](const QLineEdit& day) {
        return day.isModified() ? std::optional(day.text()) : std::nullopt;
    };
    return {typed(*beginDay), typed(*endDay)};
}

void CommentForm::showPosition(std::size_t index, std::size_t total) {
    lblPosition->setText(qtTrId("commentPosition").arg(index + 1).arg(total));
    btnPrevious->setEnabled(index > 0);
    btnNext->setEnabled(index + 1 < total);
}

void CommentForm::showNoPosition() {
    lblPosition->setText({}); // cleared, it would take room
    btnPrevious->setEnabled(false);
    btnNext->setEnabled(false);
}

void CommentForm::showChange(const QString& sentence) {
    lblBeforeAndSince->setText(sentence);
    lblBeforeAndSince->setAccessibleName(sentence.isEmpty() ? qtTrId("beforeAndSinceHint") : sentence);
    lblBeforeAndSince->setVisible(!sentence.isEmpty());
}

void CommentForm::showDegree(int degree) {
    btnDelete->setIcon(QIcon(":/images/"_L1 + getCommentDeleteImage(degree) + ".svg"_L1));
    Style::followFrame(*textBox, Style::ring, [degree](const QPalette& palette) {
        return shade(getCommentColor(degree, true), Style::picture(palette));
    });
}

void CommentForm::showText(const QString& text) { commentText->setPlainText(text); }

QString CommentForm::text() const { return commentText->toPlainText(); }

void CommentForm::setReadOnly(bool readOnly) {
    commentText->setReadOnly(readOnly);
    beginDay->setReadOnly(readOnly);
    endDay->setReadOnly(readOnly);
}

bool CommentForm::isEdited() const {
    return !commentText->isReadOnly() && commentText->document()->isModified();
}

void CommentForm::settle() { commentText->document()->setModified(false); }

void CommentForm::enable(bool enabled) {
    commentText->setEnabled(enabled);
    beginDay->setEnabled(enabled);
    endDay->setEnabled(enabled);
    setReadOnly(!enabled);
    btnDelete->setEnabled(enabled);
    if (enabled) return commentText->setPlaceholderText({});
    commentText->clear();
    commentText->setPlaceholderText(qtTrId("noComments"));
    btnDelete->setIcon({});
    Style::followFrame(*textBox, Style::line, &Style::border);
}

void CommentForm::focusText() {
    cameFrom = QApplication::focusWidget();
    commentText->setFocus(Qt::OtherFocusReason);
    commentText->moveCursor(QTextCursor::End);
}

void CommentForm::focusEnd() {
    endDay->setFocus(Qt::TabFocusReason);
    endDay->selectAll();
}

/// \return false if there is nothing to go back to
bool CommentForm::escape(QObject* from) {
    if (from != commentText) {
        const bool isTyped = beginDay->isModified() || endDay->isModified();
        if (isTyped) showDates(QString(shownDays[0]), QString(shownDays[1]));
        return isTyped;
    }
    if (!cameFrom || !cameFrom->isVisible()) return false;
    cameFrom->setFocus(Qt::OtherFocusReason);
    return true;
}

bool CommentForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        return escape(watched);
    if (event->type() == QEvent::FocusOut) leave(watched, static_cast<QFocusEvent*>(event)->reason());
    return QWidget::eventFilter(watched, event);
}

/// One date may stand on the wrong side of the other until both are typed: they are left together.
void CommentForm::leave(const QObject* left, Qt::FocusReason reason) {
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason) return;
    const QWidget* now = QApplication::focusWidget();
    if (now == window()) return; // it takes the focus when the page is left, which saves and asks in one
    if (left == commentText) {
        qCInfo(lcApp, "comment textDidEndEditing");
        emit textLeft();
    } else if (now != beginDay && now != endDay && (beginDay->isModified() || endDay->isModified())) {
        emit datesTyped();
    }
}

} // namespace zel
