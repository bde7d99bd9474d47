#include "app/frame/DialogParts.h"

#include "app/widgets/Mnemonic.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/ScreenFit.h"
#include "app/widgets/Style.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Wrapped words of the dialog would give way to the new line.
void makeRoom(QWidget& dialog) {
    QLayout* content = dialog.layout();
    if (!content) return;
    content->activate();
    const int needed =
        std::max(content->totalHeightForWidth(dialog.width()), content->totalMinimumSize().height());
    if (dialog.height() < needed) fitToScreen(dialog, QSize(dialog.width(), needed));
}

} // namespace

QLabel* problemLabel(const QString& name, QWidget* parent) {
    auto* line = new QLabel(parent);
    line->setObjectName(name);
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    Style::setType(*line, Style::Type::text);
    line->hide();
    return line;
}

void showProblem(QLabel& line, const QString& text) {
    line.setText(text);
    line.setAccessibleName(text);
    line.setVisible(!text.isEmpty());
    makeRoom(*line.window());
    if (text.isEmpty()) return;
    QAccessibleEvent spoken(&line, QAccessible::Alert);
    QAccessible::updateAccessibility(&spoken);
}

QWidget* dialogButtons(QDialog& dialog, const QString& name, const QString& text) {
    auto* row = new QWidget(&dialog);
    auto* buttons = new QHBoxLayout(row);
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->addStretch(1);
    const auto add = [&](const QString& buttonName, const QString& words) {
        auto* button = new QPushButton(words, row);
        button->setObjectName(buttonName);
        button->setAccessibleName(withoutMnemonic(button->text()));
        button->setAutoDefault(false);
        buttons->addWidget(button);
        return button;
    };
    QPushButton* cancel = add(name + "Cancel"_L1, qtTrId("cancel"));
    QPushButton* done = add(name, text);
    done->setDefault(true);
    QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    QObject::connect(done, &QPushButton::clicked, &dialog, &QDialog::accept);
    return row;
}

} // namespace zel
