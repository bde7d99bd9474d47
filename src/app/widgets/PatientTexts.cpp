#include "app/widgets/PatientTexts.h"

#include "store/Text.h"

#include <algorithm>

namespace zel {

namespace {

/// The earliest and the latest dated reading; null when no reading is dated.
std::pair<const ReadingModel*, const ReadingModel*> datedSpan(const ReadingList& readings) {
    std::pair<const ReadingModel*, const ReadingModel*> span{nullptr, nullptr};
    for (const ReadingModel& reading : readings) {
        if (reading.isUndated()) continue;
        if (!span.first || *reading.ReadingDate < *span.first->ReadingDate) span.first = &reading;
        if (!span.second || *reading.ReadingDate >= *span.second->ReadingDate) span.second = &reading;
    }
    return span;
}

} // namespace

QString patientHeading(const DataStore& store) {
    const PatientModel* patient = store.getPatientByID(store.getCurrentID());
    if (!patient) return qtTrId("noPatientSelected");
    return qtTrId("patientHeading").arg(patient->GivenNames, patient->FamilyName, patient->ID);
}

QString shortText(const QString& text, int longest) {
    return text.size() <= longest ? text : text.first(longest) + u'\u2026';
}

QString shortName(const PatientModel& patient) {
    const QString name = TrimStr(shortText(patient.GivenNames) + u' ' + shortText(patient.FamilyName));
    return name.isEmpty() ? qtTrId("NewPatient") : name;
}

QString readingSummary(const DataStore& store) {
    const ReadingList& readings = store.getReadingForCurID();
    QString count = qtTrId("readingCount", static_cast<int>(readings.size()));
    const auto [first, last] = datedSpan(readings);
    if (!first) return count;
    const SettingModel& settings = store.getSetting();
    if (first->day == last->day) return qtTrId("readingsOn").arg(count, first->strDisplayDate(settings));
    return qtTrId("readingsFromTo")
        .arg(count, first->strDisplayDate(settings), last->strDisplayDate(settings));
}

} // namespace zel
