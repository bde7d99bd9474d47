#include "app/device/MonitorNotice.h"

#include "app/widgets/PatientTexts.h"
#include "store/Text.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Without what is easily typed in another way.
QString alikeForm(const QString& ID) {
    QString form = ID.toCaseFolded();
    form.removeIf([](QChar c) { return c.isSpace(); });
    return form;
}

/// " Another patient's ID looks like it: p 1 (Anna Adams)."; empty where there is none.
QString similarID(const QString& ID, const DataStore& store) {
    const auto& patients = store.getPatientArray();
    const auto isAlike = [&](const PatientModel& one) { return alikeForm(one.ID) == alikeForm(ID); };
    const auto similar = std::ranges::find_if(patients, isAlike);
    if (similar == patients.end()) return {};
    return u' ' + qtTrId("monitorIDSimilar").arg(similar->ID, shortName(*similar));
}

} // namespace

MonitorNotice monitorNotice(const QString& ID, const DataStore& store) {
    if (IsEmptyID(ID)) return {qtTrId("Warning"), qtTrId("monitorWithoutID")};
    if (const PatientModel* patient = store.getPatientByID(ID))
        return {qtTrId("monitorConnected") + u" – "_s + shortName(*patient),
                qtTrId("monitorConnectedID").arg(ID), MonitorNotice::Offer::download};
    return {qtTrId("Warning"), qtTrId("newIDFromDevice").arg(ID) + similarID(ID, store),
            MonitorNotice::Offer::newPatient};
}

} // namespace zel
