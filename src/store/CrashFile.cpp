#include "store/CrashFile.h"

#include <fstream>
#include <sys/resource.h>

namespace zel {

void leaveNoCrashFile() {
    constexpr rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
    // For a program that collects crashes the limit may not hold; it gets no memory.
    std::ofstream{"/proc/self/coredump_filter"} << "0";
}

} // namespace zel
