#pragma once

#include <cstdlib>
#include <ctime>

namespace guide::test {

/// Sets a time zone and a locale that expose careless code, and a platform that shows no windows. Must be the
/// first call in main().
inline void useTestEnvironment() {
    // Daylight saving time is half an hour there.
    setenv("TZ", "Australia/Lord_Howe", 1);
    tzset();
    setenv("LC_ALL", "C.UTF-8", 1);
    constexpr int kUnlessSet = 0;
    setenv("QT_QPA_PLATFORM", "offscreen", kUnlessSet);
}

} // namespace guide::test
