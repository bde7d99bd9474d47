#pragma once

#include <cstdlib>

namespace zel {

/// One time zone, one locale, the same fonts and no display, wherever the tests are started from. First thing
/// in main().
inline void setTestEnvironment() {
    setenv("TZ", "Europe/Berlin", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    unsetenv("XDG_CONFIG_HOME"); // below the home that a test sets
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("FONTCONFIG_FILE", ZEL_TEST_FONTS, 1);
}

} // namespace zel
