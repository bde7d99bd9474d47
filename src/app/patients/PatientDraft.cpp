#include "app/patients/PatientDraft.h"

#include "app/widgets/PatientTexts.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {
QString placeOf(PatientField field) { return QString::number(static_cast<int>(field)); }
} // namespace

QJsonObject draftOf(const PatientForm& form, const PatientEntry& entry) {
    QJsonObject typed;
    forEachPatientField([&](PatientField field) {
        if (entry[field] != form.shownEntry()[field]) typed[placeOf(field)] = entry[field];
    });
    return {{u"name"_s, shortName(form.record(entry))},
            {u"ID"_s, form.isNew() ? QString() : form.patient().ID},
            {u"typed"_s, typed}};
}

PatientEntry typedIn(const QJsonObject& draft, PatientEntry fresh) {
    const QJsonObject typed = draft[u"typed"_s].toObject();
    forEachPatientField([&](PatientField field) {
        if (typed.contains(placeOf(field))) fresh[field] = typed[placeOf(field)].toString();
    });
    return fresh;
}

} // namespace zel
