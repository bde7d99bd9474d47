#pragma once

#include <QString>
#include <QStringList>

namespace zel::cli {

/// The fields as one line of CSV without its end; a field is quoted where RFC 4180 asks for it.
[[nodiscard]] QString csvLine(const QStringList& fields);

} // namespace zel::cli
