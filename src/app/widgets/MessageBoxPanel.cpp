#include "app/widgets/MessageBoxPanel.h"

#include "app/widgets/PageHeading.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The title stands in the box as well, where not every desktop shows a title bar.
void fill(QMessageBox& box, const QString& text, const QString& title) {
    box.setObjectName(u"messagePanel"_s);
    box.setWindowTitle(title);
    box.setText(title);
    box.setInformativeText(text);
    box.setTextFormat(Qt::PlainText); // IDs and file names come from outside
    box.setAccessibleName(title);
    box.setAccessibleDescription(text);
    if (auto* heading = box.findChild<QLabel*>(u"qt_msgbox_label"_s))
        heading->setFont(scaledFont(box.font(), 1.1, true));
    // The box is as wide as its heading otherwise, however long the text.
    if (auto* words = box.findChild<QLabel*>(u"qt_msgbox_informativelabel"_s))
        words->setMinimumWidth(words->fontMetrics().averageCharWidth() * 56);
}

/// A long list must not make the box higher than the screen, with its button out of reach.
void keepOnScreen(QMessageBox& box) {
    auto* words = box.findChild<QLabel*>(u"qt_msgbox_informativelabel"_s);
    const int room = box.screen()->availableSize().height() / 2;
    if (!words || words->heightForWidth(words->minimumWidth()) <= room) return;
    auto* scroll = new QScrollArea(&box);
    scroll->setObjectName(u"longText"_s);
    scroll->setAccessibleName(box.informativeText());
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    delete box.layout()->replaceWidget(words, scroll);
    scroll->setMinimumSize(words->minimumWidth() + scroll->verticalScrollBar()->sizeHint().width(), room);
    scroll->setWidget(words);
}

/// A message belongs to the dialog that is open, where there is one.
QWidget* ownerOver(QWidget* window) {
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog ? dialog : window;
}

} // namespace

void MessageBoxPanel::ShowMessage(const QString& text, const QString& title) {
    QMessageBox box(ownerOver(window));
    fill(box, text, title);
    box.setIcon(title == qtTrId("Warning") ? QMessageBox::Warning : QMessageBox::Information);
    QPushButton* ok = box.addButton(qtTrId("ok"), QMessageBox::AcceptRole);
    ok->setObjectName(u"btnOK"_s);
    keepOnScreen(box);
    box.exec();
}

bool MessageBoxPanel::AskMessage(const QString& text, const QString& title) {
    return ask(text, title, Preset::yes);
}

bool MessageBoxPanel::AskToErase(const QString& text, const QString& title) {
    return ask(text, title, Preset::no);
}

bool MessageBoxPanel::ask(const QString& text, const QString& title, Preset preset) {
    QMessageBox box(ownerOver(window));
    fill(box, text, title);
    box.setIcon(QMessageBox::Question);
    QPushButton* yes = box.addButton(qtTrId("yes"), QMessageBox::YesRole);
    yes->setObjectName(u"btnYes"_s);
    // Not the role of a "no", which Esc would press: one question's "no" empties the monitor.
    QPushButton* no = box.addButton(qtTrId("no"), QMessageBox::ActionRole);
    no->setObjectName(u"btnNo"_s);
    box.setDefaultButton(preset == Preset::yes ? yes : no);
    if (preset == Preset::no) box.setEscapeButton(no); // which keeps everything
    keepOnScreen(box);
    box.exec();
    return box.clickedButton() == yes;
}

} // namespace zel
