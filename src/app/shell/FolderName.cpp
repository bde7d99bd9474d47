#include "app/shell/FolderName.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QStringList wordsOf(const QString& text) {
    static const QRegularExpression between(u"[^\\w]+|_+"_s, QRegularExpression::UseUnicodePropertiesOption);
    return text.toCaseFolded().split(between, Qt::SkipEmptyParts);
}

bool namesAny(const QSet<QString>& words, const std::vector<PatientModel>& patients) {
    const auto hasAll = [&words](const QString& text) {
        const QStringList parts = wordsOf(text);
        return !parts.isEmpty()
               && std::ranges::all_of(parts, [&words](const QString& part) { return words.contains(part); });
    };
    return std::ranges::any_of(patients, [&hasAll](const PatientModel& patient) {
        return hasAll(patient.FamilyName) || hasAll(patient.ID);
    });
}

} // namespace

QString folderNamingNobody(const QString& folder, const std::vector<PatientModel>& patients) {
    const QString user = QDir::home().dirName();
    QString kept;
    for (const QString& part : QDir::cleanPath(folder).split(u'/', Qt::SkipEmptyParts)) {
        const QStringList words = wordsOf(part);
        if (part != user && namesAny(QSet<QString>(words.begin(), words.end()), patients)) break;
        kept += u'/' + part;
    }
    return kept.isEmpty() ? u"/"_s : kept;
}

} // namespace zel
