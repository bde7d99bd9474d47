#include "app/printing/PdfName.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// In bytes; with section and day, a name stays well below the 255 that a file system takes.
constexpr qsizetype longestPart = 60;

QString wordFor(Section section) {
    switch (section) {
    case Section::summary: return qtTrId("pdfSummary");
    case Section::graph: return qtTrId("pdfChart");
    case Section::PatientProfile: return qtTrId("pdfProfile");
    case Section::histogram: return qtTrId("pdfHistogram");
    case Section::correlation: return qtTrId("pdfCorrelation");
    case Section::trend: return qtTrId("pdfTrend");
    case Section::table: return qtTrId("pdfReadings");
    case Section::comment: return qtTrId("pdfComments");
    case Section::SWStatistics: return qtTrId("pdfStatistics");
    }
    return {};
}

/// Also what would turn the name round on the screen: no character that is not seen.
bool isRefused(QChar c) {
    const auto kind = c.category();
    return u"/\\:*?\"<>|%"_s.contains(c) || kind == QChar::Other_Control || kind == QChar::Other_Format;
}

/// Cut between characters, not within one.
QString cut(QString text) {
    while (text.toUtf8().size() > longestPart) {
        text.chop(1);
        if (text.back().isHighSurrogate()) text.chop(1);
    }
    return text.trimmed();
}

/// A name that begins with a point is hidden.
QString harmless(const QString& text) {
    QString name = text.simplified();
    std::ranges::replace_if(name, isRefused, u'_');
    if (name.startsWith(u'.')) name[0] = u'_';
    return cut(name);
}

QString nameInFile(const PatientModel& patient) {
    QStringList parts{harmless(patient.FamilyName), harmless(patient.GivenNames)};
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

/// Some file systems take upper and lower case for the same.
bool hasNamesake(const DataStore& store, const PatientModel& patient) {
    const QString name = nameInFile(patient).toCaseFolded();
    return std::ranges::count_if(
               store.getPatientArray(),
               [&](const PatientModel& other) { return nameInFile(other).toCaseFolded() == name; })
           > 1;
}

QString whose(const DataStore& store, const PatientModel& patient) {
    const QString name = nameInFile(patient);
    const QString ID = harmless(patient.ID);
    if (name.isEmpty() || ID.isEmpty()) return name + ID;
    return hasNamesake(store, patient) ? u"%1 (%2)"_s.arg(name, ID) : name;
}

} // namespace

QString pdfName(const DataStore& store, const PatientModel& patient, Section section, Instant today) {
    const QString what = wordFor(section) + u' ' + DateToStr(today, u"yyyy-MM-dd"_s) + u".pdf"_s;
    const QString who = whose(store, patient);
    const QString name = who.isEmpty() ? what : who + u" - "_s + what;
    return store.isDemonstration() ? qtTrId("demonstrationTitle").arg(name) : name;
}

} // namespace zel
