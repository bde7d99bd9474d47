#pragma once

#include <QByteArray>

namespace zel {

/// A data file of this size in the program's own form: 100,000 readings are about 34 MB.
[[nodiscard]] QByteArray makeDataFile(int patients, int readings);

} // namespace zel
