#include "cli/Csv.h"

#include <algorithm>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

QString csvField(QString field) {
    const bool quoted = std::ranges::any_of(field, [](QChar c) { return u",\"\r\n"_s.contains(c); });
    return quoted ? u'"' + field.replace(u'"', "\"\""_L1) + u'"' : field;
}

} // namespace

QString csvLine(const QStringList& fields) {
    QStringList line;
    for (const QString& field : fields)
        line += csvField(field);
    return line.join(u',');
}

} // namespace zel::cli
