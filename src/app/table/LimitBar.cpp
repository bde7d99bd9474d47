#include "app/table/LimitBar.h"

#include "analysis/HighValues.h"
#include "app/widgets/CalmComboBox.h"
#include "app/widgets/FlowLayout.h"
#include "app/widgets/SeenName.h"
#include "app/widgets/Style.h"
#include "store/PressureLimits.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>

namespace zel {

using namespace Qt::StringLiterals;

LimitBar::LimitBar(DataStore& dataStore, MessagePanel& messagePanel, QWidget* parent)
    : QWidget(parent), store(dataStore), panel(messagePanel), cboHighFrom(new CalmComboBox(this)),
      ownSys(makeField(u"ownSys"_s, qtTrId("ownSys"))), ownDia(makeField(u"ownDia"_s, qtTrId("ownDia"))) {
    setObjectName(u"limitBar"_s);
    setAccessibleName(qtTrId("highFrom"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    lblHighMark = makeLine(u"lblHighMark"_s);
    lblOwnProblem = makeLine(u"lblOwnProblem"_s);
    lblOwnProblem->setWordWrap(true);
    own = makeOwn();
    auto* parts = new FlowLayout;
    parts->setGaps(Style::edge, Style::tight);
    for (QWidget* part : {static_cast<QWidget*>(lblHighMark), makeChoice(), own})
        parts->addWidget(part);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(Style::none);
    column->addLayout(parts);
    column->addWidget(lblOwnProblem);
    connect(&store, &DataStore::viewLimitsChanged, this, &LimitBar::showLimits);
    showLimits();
}

QLabel* LimitBar::makeLine(const QString& name) {
    auto* line = new QLabel(this);
    line->setObjectName(name);
    line->setTextFormat(Qt::PlainText);
    return line;
}

QLineEdit* LimitBar::makeField(const QString& name, const QString& title) {
    auto* field = new QLineEdit(this);
    field->setObjectName(name);
    field->setAccessibleName(title);
    field->setToolTip(title);
    field->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[0-9]{0,3}"_s), field));
    field->setFixedWidth(field->fontMetrics().averageCharWidth() * 8);
    connect(field, &QLineEdit::editingFinished, this, &LimitBar::takeOwn);
    return field;
}

/// In the order of LimitChoice.
QWidget* LimitBar::makeChoice() {
    cboHighFrom->setObjectName(u"cboHighFrom"_s);
    cboHighFrom->setAccessibleName(qtTrId("highFrom"));
    cboHighFrom->setToolTip(qtTrId("highFromHint"));
    std::size_t at = 0;
    for (const QString& name : {qtTrId("limitsHome"), qtTrId("limitsOffice"), qtTrId("limitsLow")}) {
        const LimitPair& limits = knownLimits.at(at++);
        cboHighFrom->addItem(name.arg(limits.sys).arg(limits.dia));
    }
    cboHighFrom->addItem(qtTrId("limitsOwn"));
    connect(cboHighFrom, &QComboBox::activated, this, &LimitBar::pick);
    auto* both = new QWidget(this);
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins({});
    auto* label = new QLabel(qtTrId("highFromLabel"), both);
    label->setBuddy(cboHighFrom);
    nameAsSeen(*cboHighFrom, label->text(), cboHighFrom->accessibleName());
    row->addWidget(label);
    row->addWidget(cboHighFrom);
    return both;
}

QWidget* LimitBar::makeOwn() {
    auto* both = new QWidget(this);
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins({});
    row->addWidget(ownSys);
    row->addWidget(new QLabel(u"/"_s, both));
    row->addWidget(ownDia);
    row->addWidget(new QLabel(qtTrId("unitMmHg"), both));
    return both;
}

void LimitBar::showLimits() {
    const ViewLimits& limits = store.viewLimits();
    cboHighFrom->setCurrentIndex(static_cast<int>(limits.choice));
    own->setVisible(limits.choice == LimitChoice::own);
    ownSys->setText(QString::number(limits.own.sys));
    ownDia->setText(QString::number(limits.own.dia));
    for (QLineEdit* field : {ownSys, ownDia})
        field->setAccessibleDescription({});
    tell(*lblHighMark, describeHighMark(limits.limits()));
    const StoreResult& read = store.viewLimitsRead();
    tell(*lblOwnProblem, read ? QString() : u"\u26A0 "_s + describeUnreadLimits(read.error()));
}

void LimitBar::tell(QLabel& line, const QString& words) {
    line.setText(words);
    line.setAccessibleName(words.isEmpty() ? accessibleName() : words);
    line.setVisible(!words.isEmpty());
}

void LimitBar::pick(int index) {
    ViewLimits wanted = store.viewLimits();
    wanted.choice = static_cast<LimitChoice>(index);
    choose(wanted);
    if (wanted.choice == LimitChoice::own) ownSys->setFocus(Qt::OtherFocusReason);
}

/// The marks stay as they are, and so does what was typed, until both numbers can be limits.
void LimitBar::takeOwn() {
    ViewLimits wanted = store.viewLimits();
    wanted.own = {ownSys->text().toUInt(), ownDia->text().toUInt()};
    const auto problem = limitProblem(wanted.own.sys, wanted.own.dia);
    const QString words = problem ? describe(*problem) : QString();
    tell(*lblOwnProblem, problem ? u"\u26A0 "_s + words : QString());
    for (QLineEdit* field : {ownSys, ownDia})
        field->setAccessibleDescription(words);
    if (!problem && wanted != store.viewLimits()) choose(wanted);
}

void LimitBar::choose(const ViewLimits& wanted) {
    const StoreResult kept = store.chooseViewLimits(wanted);
    if (!kept) panel.ShowMessage(qtTrId("limitsNotKept").arg(describe(kept.error())), qtTrId("Warning"));
}

} // namespace zel
