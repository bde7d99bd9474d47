#include "app/patients/PatientFilter.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Without case and accents.
QString folded(const QString& text) {
    QString letters = text.normalized(QString::NormalizationForm_KD);
    letters.removeIf([](QChar c) { return c.category() == QChar::Mark_NonSpacing; });
    return letters.toCaseFolded();
}

} // namespace

PatientFilter::PatientFilter(PatientTableModel& patients, QObject* parent)
    : QSortFilterProxyModel(parent), roster(patients) {
    setSourceModel(&patients);
}

void PatientFilter::search(const QString& text) {
    words = folded(text).split(u' ', Qt::SkipEmptyParts);
    invalidateFilter();
}

bool PatientFilter::filterAcceptsRow(int row, const QModelIndex&) const {
    if (words.isEmpty() || roster.isNewPatient(row)) return true;
    const auto name = roster.index(row, PatientTableModel::name).data().toString();
    // Who types the comma puts a blank behind it, or none.
    const QString joined = QString(name).replace(", "_L1, ","_L1);
    const QString text = folded(QStringList{name, joined, roster.IDAt(row)}.join(u'\n'));
    return std::ranges::all_of(words, [&text](const QString& word) { return text.contains(word); });
}

} // namespace zel
