#pragma once

#include "store/DataStore.h"

#include <QString>

namespace zel {

/// The current patient's name and ID as a page shows them, as far as there are any; says so when none is
/// selected.
[[nodiscard]] QString patientHeading(const DataStore& store);
/// The same for a narrow panel: names of a hundred characters are cut, and any word may go on in another
/// line.
[[nodiscard]] QString narrowPatientHeading(const DataStore& store);
/// A name for a message, which has no room for one of a thousand characters.
[[nodiscard]] QString shortText(const QString& text, int longest = 40);
/// The first six of the names in one line, and that there are more of them.
[[nodiscard]] QString listInShort(const QStringList& names);
/// The same text with places where a line may end within long words, which nobody sees.
[[nodiscard]] QString breakable(const QString& text);
/// Given names and family name, or the ID where there is none of them, or words for a new patient that has
/// nothing yet; short.
[[nodiscard]] QString shortName(const PatientModel& patient);
/// The same for one of the data file, which other programs may have given neither name nor ID.
[[nodiscard]] QString knownName(const PatientModel& patient);
/// "Adams, Kim", as a list of names has it; without the comma where one of the two is missing.
[[nodiscard]] QString listedName(const PatientModel& patient);
/// The date of birth as the settings have dates; empty when it is not known.
[[nodiscard]] QString birthText(const PatientModel& patient, const SettingModel& settings);
/// The current patient's.
[[nodiscard]] DataLogList downloadsLatestFirst(const DataStore& store);
/// Of a log that other programs wrote, the day may be missing, which is said.
[[nodiscard]] QString downloadDayText(const DataTransferLogModel& download, const SettingModel& settings);
/// How many readings the current patient has, and from when to when.
[[nodiscard]] QString readingSummary(const DataStore& store);

} // namespace zel
