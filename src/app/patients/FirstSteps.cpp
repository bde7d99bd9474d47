#include "app/patients/FirstSteps.h"

#include "app/widgets/PageHeading.h"
#include "app/widgets/Style.h"

#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

FirstSteps::FirstSteps(const MonitorStatus& monitorStatus, bool offersDemonstration, QWidget* parent)
    : QWidget(parent), status(monitorStatus), lblMonitor(new QuietLabel({}, this)), copyNote(makeCopyNote()) {
    setObjectName(u"firstSteps"_s);
    setAccessibleName(qtTrId("firstSteps"));
    lblMonitor->setObjectName(u"lblFirstMonitor"_s);
    auto* heading = new QLabel(qtTrId("firstSteps"), this);
    Style::setType(*heading, Style::Type::heading);
    heading->setWordWrap(true);
    auto* newPatient = makeButton(u"btnFirstPatient"_s, qtTrId("NewPatient"));
    connect(newPatient, &QPushButton::clicked, this, &FirstSteps::newWanted);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Style::edge);
    grid->setVerticalSpacing(Style::tight);
    grid->setColumnStretch(1, 1);
    addStep(*grid, 1, qtTrId("firstStepPatient"), newPatient);
    lblMonitorStep = addStep(*grid, 2, qtTrId("firstStepMonitor"), lblMonitor);
    addStep(*grid, 3, qtTrId("firstStepDownload"), nullptr);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, Style::near, 0, Style::near);
    column->setSpacing(Style::edge);
    column->addStretch(1);
    column->addWidget(copyNote);
    column->addWidget(heading);
    column->addLayout(grid);
    if (offersDemonstration) column->addWidget(makeDemonstration());
    column->addStretch(3);
    connect(&status, &MonitorStatus::changed, this, &FirstSteps::showMonitor);
    showMonitor();
}

QLabel* FirstSteps::addStep(QGridLayout& grid, int number, const QString& text, QWidget* below) {
    const int row = 3 * number;
    auto* mark = new QLabel(QString::number(number), this);
    Style::setType(*mark, Style::Type::title);
    mark->setMinimumWidth(mark->fontMetrics().horizontalAdvance(u'W'));
    mark->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* words = new QLabel(text, this);
    words->setWordWrap(true);
    words->setTextFormat(Qt::PlainText);
    grid.addWidget(mark, row, 0, 2, 1);
    grid.addWidget(words, row, 1);
    if (below) grid.addWidget(below, row + 1, 1, Qt::AlignLeft | Qt::AlignTop);
    grid.setRowMinimumHeight(row + 2, Style::apart); // before the next
    return mark;
}

QPushButton* FirstSteps::makeButton(const QString& name, const QString& text) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAccessibleName(text);
    return button;
}

QWidget* FirstSteps::makeDemonstration() {
    auto* part = new QWidget(this);
    auto* button = makeButton(u"btnDemonstration"_s, qtTrId("demonstrationButton"));
    connect(button, &QPushButton::clicked, this, &FirstSteps::demonstrationWanted);
    auto* note = new QuietLabel(qtTrId("demonstrationNote"), part);
    note->setWordWrap(true);
    button->setAccessibleDescription(note->text());
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, Style::near, 0, 0);
    column->setSpacing(Style::tight);
    column->addWidget(button, 0, Qt::AlignLeft);
    column->addWidget(note);
    return part;
}

QWidget* FirstSteps::makeCopyNote() {
    auto* part = new QWidget(this);
    lblCopy = new QLabel(part);
    lblCopy->setObjectName(u"lblFirstCopy"_s);
    lblCopy->setWordWrap(true);
    lblCopy->setTextFormat(Qt::PlainText);
    auto* button = makeButton(u"btnFirstBackups"_s, qtTrId("firstCopyButton"));
    connect(button, &QPushButton::clicked, this, &FirstSteps::backupsWanted);
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, Style::apart);
    column->setSpacing(Style::tight);
    column->addWidget(lblCopy);
    column->addWidget(button, 0, Qt::AlignLeft);
    part->hide();
    return part;
}

void FirstSteps::tellCopy(const QString& name, const QString& holds) {
    copyNote->setVisible(!name.isEmpty());
    lblCopy->setText(qtTrId("firstCopy").arg(name, holds));
}

void FirstSteps::showMonitor() {
    const QString state = describeShortly(status.state());
    lblMonitor->setText(state);
    lblMonitor->setAccessibleName(state);
    lblMonitorStep->setText(status.state().isConnected ? u"\u2713"_s : u"2"_s);
}

bool FirstSteps::hasHeightForWidth() const { return !isHidden() && QWidget::hasHeightForWidth(); }

QSize FirstSteps::minimumSizeHint() const {
    const QSize least = QWidget::minimumSizeHint();
    return isHidden() ? QSize(least.width(), 0) : least;
}

} // namespace zel
