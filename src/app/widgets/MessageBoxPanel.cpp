#include "app/widgets/MessageBoxPanel.h"

#include "app/widgets/Mnemonic.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/ScreenFit.h"
#include "app/widgets/Style.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

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
        heading->setFont(Style::type(box.font(), Style::Type::heading));
    // The box is as wide as its heading otherwise, however long the text.
    if (auto* words = box.findChild<QLabel*>(u"qt_msgbox_informativelabel"_s))
        words->setMinimumWidth(words->fontMetrics().averageCharWidth() * 56);
}

/// A long list must not make the box higher than the screen, with its button out of reach.
void keepOnScreen(QMessageBox& box) {
    auto* words = box.findChild<QLabel*>(u"qt_msgbox_informativelabel"_s);
    const int room = roomFor(box).height() / 2;
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

/// For a box that comes by itself: the key that is on its way to a field must not answer it. A button can be
/// reached with Tab, and then takes Enter as well.
void takeNoKeys(QMessageBox& box) {
    for (auto* button : box.findChildren<QPushButton*>()) {
        button->setAutoDefault(false);
        button->setDefault(false);
        button->setShortcut({}); // a letter alone would press it
    }
    box.setFocusPolicy(Qt::StrongFocus);
    box.setFocus();
    QObject::connect(qApp, &QApplication::focusChanged, &box, [&box](QWidget*, QWidget* now) {
        auto* button = qobject_cast<QPushButton*>(now);
        if (button && box.isAncestorOf(button)) button->setAutoDefault(true);
    });
}

QPushButton* addButton(QMessageBox& box, const QString& name, const QString& text) {
    // Not the roles of a yes and a no, which would make one of them the answer of Enter and of Esc.
    QPushButton* button = box.addButton(text, QMessageBox::ActionRole);
    button->setObjectName(name);
    button->setAccessibleName(withoutMnemonic(text));
    return button;
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
    const bool isWarning = title == qtTrId("Warning") || title == qtTrId("dataFileUnreadable");
    box.setIcon(isWarning ? QMessageBox::Warning : QMessageBox::Information);
    QPushButton* ok = addButton(box, u"btnOK"_s, qtTrId("ok"));
    box.setEscapeButton(ok);
    open(box, ok);
}

bool MessageBoxPanel::AskMessage(const QString& text, const QString& title) {
    return ask(text, title, Kind::harmless);
}

bool MessageBoxPanel::AskToErase(const QString& text, const QString& title) {
    return ask(text, title, Kind::erasing);
}

bool MessageBoxPanel::AskBeforeLosing(const QString& text, const QString& title) {
    return ask(text, title, Kind::losing);
}

bool MessageBoxPanel::ask(const QString& text, const QString& title, Kind kind) {
    QMessageBox box(ownerOver(window));
    fill(box, text, title);
    box.setIcon(QMessageBox::Question);
    QPushButton* yes = addButton(box, u"btnYes"_s, qtTrId("yes"));
    QPushButton* no = addButton(box, u"btnNo"_s, qtTrId("no"));
    if (kind != Kind::losing) box.setEscapeButton(no);
    open(box, kind == Kind::erasing ? no : yes);
    return box.clickedButton() == yes;
}

KeepAnswer MessageBoxPanel::AskToKeep(const QString& text, const QString& title) {
    const Choice choices[]{{u"btnKeep"_s, qtTrId("keep")},
                           {u"btnErase"_s, qtTrId("eraseThem")},
                           {u"btnCancel"_s, qtTrId("cancel")}};
    constexpr std::array answers{KeepAnswer::keep, KeepAnswer::erase, KeepAnswer::cancel};
    return answers.at(choose(text, title, choices, 2));
}

SaveAnswer MessageBoxPanel::AskToSave(const QString& text, const QString& title) {
    const Choice choices[]{{u"btnSave"_s, qtTrId("saveIt")},
                           {u"btnDiscard"_s, qtTrId("saveNot")},
                           {u"btnCancel"_s, qtTrId("cancel")}};
    constexpr std::array answers{SaveAnswer::save, SaveAnswer::discard, SaveAnswer::cancel};
    return answers.at(choose(text, title, choices, 0));
}

std::size_t MessageBoxPanel::choose(const QString& text, const QString& title,
                                    std::span<const Choice> choices, std::size_t preset) {
    QMessageBox box(ownerOver(window));
    fill(box, text, title);
    box.setIcon(QMessageBox::Question);
    std::vector<QPushButton*> buttons;
    for (const Choice& choice : choices)
        buttons.push_back(addButton(box, choice.name, choice.text));
    box.setEscapeButton(buttons.back());
    open(box, buttons.at(preset));
    const auto clicked = std::ranges::find(buttons, box.clickedButton());
    if (clicked == buttons.end()) return buttons.size() - 1;
    return static_cast<std::size_t>(clicked - buttons.begin());
}

void MessageBoxPanel::open(QMessageBox& box, QPushButton* preset) {
    keepOnScreen(box);
    if (std::exchange(isUnasked, false))
        takeNoKeys(box);
    else
        box.setDefaultButton(preset);
    box.exec();
}

void MessageBoxPanel::interject(QObject* context, const std::function<void()>& speak) {
    keyboard.whenStill(context, [this, speak] {
        isUnasked = true;
        speak();
        isUnasked = false;
    });
}

} // namespace zel
