#pragma once

#include <unicode/timezone.h>

namespace zel {

/// The computer's time zone for the length of a test.
class InZone {
public:
    explicit InZone(const char* name) { icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(name)); }
    ~InZone() { icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone("Europe/Berlin")); }
    InZone(const InZone&) = delete;
    InZone& operator=(const InZone&) = delete;
};

} // namespace zel
