#include "app/widgets/StepProgress.h"

#include "app/widgets/Style.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace zel {

using namespace Qt::StringLiterals;

StepProgress::StepProgress(const QString& name, QWidget* parent)
    : QDialog(parent), lblStep(new QLabel(this)), barProgress(new QProgressBar(this)),
      btnCancel(new QPushButton(qtTrId("cancel"), this)) {
    setObjectName(name);
    build();
    connect(btnCancel, &QPushButton::clicked, this, &StepProgress::reject);
    connect(&turn, &QTimer::timeout, this, &StepProgress::stepOnce);
}

void StepProgress::build() {
    lblStep->setObjectName(u"lblStep"_s);
    barProgress->setObjectName(u"barStep"_s);
    btnCancel->setObjectName(u"btnCancelSteps"_s);
    btnCancel->setAccessibleName(qtTrId("cancel"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::wide, Style::wide, Style::wide, Style::wide);
    column->setSpacing(Style::apart);
    column->addWidget(lblStep);
    column->addWidget(barProgress);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(btnCancel);
    column->addLayout(row);
    setMinimumWidth(fontMetrics().averageCharWidth() * 56);
}

void StepProgress::run(Job next) {
    job = std::move(next);
    done = 0;
    if (job.total <= job.quickTotal) return runQuickly();
    setWindowTitle(job.title);
    setAccessibleName(job.title);
    barProgress->setAccessibleName(job.title);
    barProgress->setRange(0, job.total);
    showDone();
    open();
    turn.start(0);
}

void StepProgress::runQuickly() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    while (done < job.total)
        job.step(done++);
    QGuiApplication::restoreOverrideCursor();
    job.finished(done);
}

void StepProgress::stepOnce() {
    job.step(done++);
    showDone();
    if (done == job.total) finish();
}

void StepProgress::showDone() {
    lblStep->setText(qtTrId("stepProgress").arg(done).arg(job.total));
    barProgress->setValue(done);
}

void StepProgress::finish() {
    turn.stop();
    hide();
    job.finished(done);
}

} // namespace zel
