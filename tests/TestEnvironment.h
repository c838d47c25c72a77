#pragma once

#include <cstdlib>
#include <ctime>

namespace guide::test {

/// A zone and a locale in which careless code shows, and no window; before anything else of the program.
inline void useTestEnvironment() {
    // Its clocks change by half an hour.
    setenv("TZ", "Australia/Lord_Howe", 1);
    tzset();
    setenv("LC_ALL", "C.UTF-8", 1);
    constexpr int kUnlessSet = 0;
    setenv("QT_QPA_PLATFORM", "offscreen", kUnlessSet);
}

} // namespace guide::test
