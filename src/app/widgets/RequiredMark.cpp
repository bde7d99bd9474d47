#include "app/widgets/RequiredMark.h"

#include "app/widgets/PageHeading.h"

namespace zel {

using namespace Qt::StringLiterals;

QString requiredTitle(const QString& title) { return title + u"\u00A0*"_s; }

QString requiredDescription(const QString& more) {
    const QString required = qtTrId("fieldRequired");
    return more.isEmpty() ? required : required + u". "_s + more;
}

QuietLabel* requiredNote(QWidget* parent) {
    auto* note = new QuietLabel(qtTrId("requiredNote"), parent);
    note->setObjectName(u"requiredNote"_s);
    note->setAccessibleName(note->text());
    note->setWordWrap(true);
    return note;
}

} // namespace zel
