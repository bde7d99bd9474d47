#pragma once

#include <cerrno>

namespace zel {

/// Calls the system again while a signal interrupts it: that is no error of a file.
/// \return as \p call, which sets errno
template <class Call>
[[nodiscard]] auto uninterrupted(const Call& call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

} // namespace zel
