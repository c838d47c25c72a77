#include "app/MemoryWarning.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

TEST(MemoryWarning, IsDueOnceUntilPlentyIsAvailableAgain) {
    const struct {
        double available;
        bool due;
    } looks[] = {{0.5, false},  {0.07, false}, {0.04, true},  {0.03, false}, {0.07, false},
                 {0.04, false}, {0.2, false},  {0.049, true}, {0, false}};
    MemoryWarning warning;
    for (const auto& look : looks) {
        EXPECT_EQ(warning.due(look.available), look.due) << look.available;
    }
}

TEST(MemoryWarning, ReadsTheSystemsMemoryInformation) {
    EXPECT_EQ(availableMemory("MemTotal:       16000000 kB\nMemFree:          100000 kB\n"
                              "MemAvailable:    4000000 kB\nBuffers: 1 kB\n"),
              0.25);
    for (const char* text :
         {"", "MemTotal: 16000000 kB\n", "MemAvailable: 4 kB\n", "MemTotal: 0 kB\nMemAvailable: 0 kB"}) {
        EXPECT_EQ(availableMemory(text), std::nullopt) << text;
    }
}

} // namespace
} // namespace guide
