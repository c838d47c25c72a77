#include "AlarmStorm.h"

#include <iostream>

namespace guide::test {
namespace {

/// From the environment, or the fixed one.
int setting(const char* name, int usual) {
    bool isNumber = false;
    const int value = qEnvironmentVariable(name).toInt(&isNumber);
    return isNumber ? value : usual;
}

void storm(StormCalendar& calendar, int runs) {
    const int seed = setting("QUELLIN_STORM_SEED", 20'261'121);
    SCOPED_TRACE(testing::Message() << "QUELLIN_STORM_SEED=" << seed);
    AlarmStorm storm(calendar, static_cast<unsigned>(seed));
    storm.run(setting("QUELLIN_STORM_RUNS", runs));
    for (const auto& [what, times] : storm.tally()) {
        std::cout << "storm: " << what.toStdString() << ": " << times << '\n';
    }
}

TEST(AlarmStormTest, Folder) {
    if (QFileInfo(u"/dev/shm"_s).isWritable()) {
        // Waiting for a disk would take most of the time.
        qputenv("TMPDIR", "/dev/shm");
    }
    StormFolder calendar;
    storm(calendar, 500);
}

TEST(AlarmStormTest, Local) {
    StormDesktop calendar;
    storm(calendar, 60);
}

TEST(AlarmStormTest, Remote) {
    constexpr int kRuns = 25;
    // A refused password takes half a minute.
    StormServer calendar(setting("QUELLIN_STORM_RUNS", kRuns) > kRuns);
    storm(calendar, kRuns);
}

} // namespace
} // namespace guide::test
