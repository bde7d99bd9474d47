#include "app/frame/CommentForm.h"

#include "app/widgets/Log.h"
#include "app/widgets/PageHeading.h"
#include "chart/StyleTable.h"

#include <QApplication>
#include <QFocusEvent>
#include <QGridLayout>
#include <QIcon>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

CommentForm::CommentForm(QWidget* parent)
    : QWidget(parent), lblPatient(new QuietLabel({}, this)), lblBeginDate(new QLabel(this)),
      lblEndDate(new QLabel(this)), textBox(new QFrame(this)), commentText(new QPlainTextEdit(textBox)),
      btnPrevious(new QToolButton(this)), btnNext(new QToolButton(this)), lblPosition(new QLabel(this)),
      btnDelete(new QPushButton(this)) {
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
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(lblPatient);
    column->addSpacing(6);
    column->addLayout(dates);
    column->addSpacing(8);
    column->addWidget(textBox, 1);
    column->addSpacing(8);
    column->addWidget(makeButtons());
}

void CommentForm::buildText() {
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
}

QWidget* CommentForm::makeButtons() {
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
    return buttons;
}

void CommentForm::showPatient(const QString& heading) { lblPatient->setText(heading); }

void CommentForm::showDates(const QString& begin, const QString& end) {
    lblBeginDate->setText(begin);
    lblEndDate->setText(end);
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

void CommentForm::showDegree(int degree) {
    btnDelete->setIcon(QIcon(":/images/"_L1 + getCommentDeleteImage(degree) + ".svg"_L1));
    textBox->setStyleSheet(
        u"#commentBox { border: 2px solid %1; }"_s.arg(getCommentColor(degree, true).name()));
}

void CommentForm::showText(const QString& text) { commentText->setPlainText(text); }

QString CommentForm::text() const { return commentText->toPlainText(); }

void CommentForm::setReadOnly(bool readOnly) { commentText->setReadOnly(readOnly); }

bool CommentForm::isEdited() const {
    return !commentText->isReadOnly() && commentText->document()->isModified();
}

void CommentForm::settle() { commentText->document()->setModified(false); }

void CommentForm::enable(bool enabled) {
    commentText->setEnabled(enabled);
    commentText->setReadOnly(!enabled);
    btnDelete->setEnabled(enabled);
    if (enabled) return commentText->setPlaceholderText({});
    commentText->clear();
    commentText->setPlaceholderText(qtTrId("noComments"));
    btnDelete->setIcon({});
    textBox->setStyleSheet(u"#commentBox { border: 1px solid palette(mid); }"_s);
}

bool CommentForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::FocusOut) return QWidget::eventFilter(watched, event);
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    const bool isAway = reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason;
    // The window itself takes the focus when the page is left, which saves and asks in one.
    if (isAway && QApplication::focusWidget() != window()) {
        qCInfo(lcApp, "comment textDidEndEditing");
        emit textLeft();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zel
