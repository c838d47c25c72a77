#include "fakes/AlarmScenarios.h"

namespace guide::test {
namespace {

using namespace std::chrono_literals;

TEST(AlarmSynchroniser, FullRuns) {
    for (const AlarmScenario& scenario : kAlarmScenarios) {
        MemoryAlarmWorld world;
        play(scenario, world.world);
    }
}

} // namespace
} // namespace guide::test
