#include "app/frame/ExclusionDialog.h"

#include "app/frame/DialogParts.h"
#include "app/widgets/Mnemonic.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/RequiredMark.h"
#include "app/widgets/Style.h"
#include "store/ManualReading.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

ExclusionDialog::ExclusionDialog(const QString& subject, std::function<bool(const QString& reason)> store,
                                 QWidget* parent)
    : QDialog(parent), leaveOut(std::move(store)), reason(new QLineEdit(this)),
      problem(problemLabel(u"exclusionProblem"_s, this)) {
    setObjectName(u"ExclusionDialog"_s);
    setWindowTitle(qtTrId("leaveOutTitle"));
    auto* explained = new QLabel(qtTrId("leaveOutExplained").arg(subject), this);
    explained->setObjectName(u"lblExclusion"_s);
    explained->setTextFormat(Qt::PlainText);
    explained->setWordWrap(true);
    auto* title = new QLabel(qtTrId("leaveOutReason"), this);
    title->setBuddy(reason);
    reason->setObjectName(u"exclusionReason"_s);
    reason->setAccessibleName(withoutMnemonic(title->text()).remove(u':').trimmed());
    reason->setAccessibleDescription(requiredDescription());
    title->setText(requiredTitle(title->text()));
    Style::followPlaceholder(*reason);
    reason->setPlaceholderText(qtTrId("leaveOutExample"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::edge, Style::edge, Style::edge, Style::edge);
    column->setSpacing(Style::apart);
    column->addWidget(explained);
    column->addWidget(requiredNote(this));
    column->addWidget(title);
    column->addWidget(reason);
    column->addWidget(problem);
    column->addStretch(1);
    column->addWidget(dialogButtons(*this, u"btnLeaveOut"_s, qtTrId("leaveOutButton")));
    reason->setFocus();
    setMinimumWidth(fontMetrics().averageCharWidth() * 64);
}

void ExclusionDialog::setReason(const QString& known) {
    reason->setText(known);
    reason->selectAll();
}

void ExclusionDialog::accept() {
    const QString kept = exclusionReason(reason->text());
    if (!kept.isEmpty()) {
        showProblem(*problem, {});
        if (leaveOut(kept)) QDialog::accept();
        return;
    }
    showProblem(*problem, qtTrId("leaveOutNoReason"));
    reason->setFocus();
}

} // namespace zel
