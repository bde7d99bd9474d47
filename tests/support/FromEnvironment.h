#pragma once

#include <QtGlobal>

namespace zel {

/// A number by which whoever runs a test makes it longer or repeats it.
inline unsigned fromEnvironment(const char* name, unsigned otherwise) {
    bool isNumber = false;
    const unsigned value = qEnvironmentVariable(name).toUInt(&isNumber);
    return isNumber ? value : otherwise;
}

} // namespace zel
