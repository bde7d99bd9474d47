#include "app/widgets/PatientTexts.h"

#include "store/Text.h"

#include <algorithm>
#include <functional>

namespace zel {

using namespace Qt::StringLiterals;

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

/// The name, or the ID of who has none.
QString nameOrID(const QString& givenNames, const QString& familyName, const QString& ID,
                 const QString& neither) {
    if (!TrimStr(givenNames + familyName).isEmpty())
        return qtTrId("fullName").arg(givenNames, familyName).simplified();
    return TrimStr(ID).isEmpty() ? neither : qtTrId("patientIDOnly").arg(ID.simplified());
}

QString nameAndID(const QString& givenNames, const QString& familyName, const QString& ID) {
    if (TrimStr(ID).isEmpty() || TrimStr(givenNames + familyName).isEmpty())
        return nameOrID(givenNames, familyName, ID, qtTrId("patientNameless"));
    return qtTrId("patientHeading").arg(givenNames, familyName, ID).simplified();
}

QString shortNameOr(const QString& neither, const PatientModel& patient) {
    return nameOrID(shortText(patient.GivenNames), shortText(patient.FamilyName), shortText(patient.ID),
                    neither);
}

} // namespace

QString patientHeading(const DataStore& store) {
    const PatientModel* patient = store.getPatientByID(store.getCurrentID());
    return patient ? nameAndID(patient->GivenNames, patient->FamilyName, patient->ID)
                   : qtTrId("noPatientSelected");
}

QString narrowPatientHeading(const DataStore& store) {
    const PatientModel* patient = store.getPatientByID(store.getCurrentID());
    return patient ? breakable(nameAndID(shortText(patient->GivenNames), shortText(patient->FamilyName),
                                         shortText(patient->ID)))
                   : qtTrId("noPatientSelected");
}

QString shortText(const QString& text, int longest) {
    return text.size() <= longest ? text : text.first(longest) + u'\u2026';
}

QString listInShort(const QStringList& names) {
    constexpr qsizetype shown = 6;
    const QString listed = names.mid(0, shown).join(qtTrId(", "));
    return names.size() > shown ? listed + u", …"_s : listed;
}

QString breakable(const QString& text) {
    constexpr int longest = 16;
    QString broken;
    int run = 0;
    for (const QChar letter : text) {
        if (run >= longest && !letter.isLowSurrogate() && !letter.isMark()) {
            broken += QChar(0x200b);
            run = 0;
        }
        broken += letter;
        run = letter.isSpace() ? 0 : run + 1;
    }
    return broken;
}

QString shortName(const PatientModel& patient) { return shortNameOr(qtTrId("NewPatient"), patient); }

QString knownName(const PatientModel& patient) { return shortNameOr(qtTrId("patientNameless"), patient); }

QString listedName(const PatientModel& patient) {
    QStringList names{TrimStr(patient.FamilyName), TrimStr(patient.GivenNames)};
    names.removeAll(QString());
    return names.join(", "_L1);
}

QString birthText(const PatientModel& patient, const SettingModel& settings) {
    const Date& birth = patient.DateOfBirth;
    return isNilDate(birth) ? QString() : DateToStr(birth, settings.shownDateFormat());
}

DataLogList downloadsLatestFirst(const DataStore& store) {
    DataLogList downloads = store.getTrasferLogForCurID();
    std::ranges::stable_sort(downloads, std::greater(), &DataTransferLogModel::transferDate);
    return downloads;
}

QString downloadDayText(const DataTransferLogModel& download, const SettingModel& settings) {
    return isNilDate(download.transferDate) ? qtTrId("downloadDayUnknown")
                                            : DateToStr(download.transferDate, settings.shownDateFormat());
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
