#pragma once

#include "app/UpdatePlan.h"

#include <cstddef>
#include <optional>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace guide {

/// Decides which steps of a check may run at the same time: at most four, at most one for each host, and for
/// each channel one after the other in the order of the plan. A channel that has been loaded no longer holds
/// up other steps.
class StepSchedule {
  public:
    static constexpr std::size_t kMostRunning = 4;

    /// Adds the steps of a plan, in its order. They precede all steps that have not started. No channel of
    /// them may have a step left.
    void addFirst(std::vector<UpdateStep> steps);

    const UpdateStep& step(std::size_t index) const { return m_nodes[index].step; }

    /// Marks the first step that may start now as running and returns it; nothing when no step may.
    std::optional<std::size_t> start();
    /// Ends a step that was started.
    void finish(std::size_t index);
    /// The channel needs none of its remaining steps. Steps that serve no other channel are dropped.
    void release(const ObjectId& channel);

    /// Whether a step is running.
    bool isRunning() const { return m_running > 0; }
    /// Whether the channel has a step that has not ended.
    bool hasStepsFor(const ObjectId& channel) const;

  private:
    struct Node {
        UpdateStep step;
        /// Each once.
        std::vector<ObjectId> channels;
        std::vector<QString> hosts;
        /// How many of the channels have an earlier step that has not ended.
        std::size_t waiting = 0;
        /// How many of the channels have not been released.
        std::size_t needed = 0;
        bool isRunning = false;
        /// Which plan it belongs to; later ones have smaller numbers.
        int plan = 0;
    };
    /// The steps of one channel; those before `next` have ended.
    struct Line {
        std::vector<std::size_t> steps;
        std::size_t next = 0;
    };

    /// The order in which steps start: by plan, then by index.
    using Rank = std::pair<int, std::size_t>;

    Rank rankOf(std::size_t index) const { return {m_nodes[index].plan, index}; }
    bool areIdle(const std::vector<QString>& hosts) const;

    std::vector<Node> m_nodes;
    std::unordered_map<ObjectId, Line> m_lines;
    /// Steps that only wait for their hosts.
    std::set<Rank> m_ready;
    std::unordered_set<QString> m_busyHosts;
    std::size_t m_running = 0;
    int m_plans = 0;
};

} // namespace guide
