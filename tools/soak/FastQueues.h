#pragma once

#include "platform/queues/DispatchQueue.h"

#include <unordered_map>

namespace guide {

/// A queue whose timers run `factor` times as fast.
class FastQueue final : public DispatchQueue {
  public:
    FastQueue(std::shared_ptr<DispatchQueue> queue, int factor)
        : m_queue(std::move(queue))
        , m_factor(factor) {}

    const std::string& label() const override { return m_queue->label(); }
    void async(Block block) override { m_queue->async(std::move(block)); }
    void asyncAfter(std::chrono::milliseconds delay, Block block) override {
        m_queue->asyncAfter(delay / m_factor, std::move(block));
    }
    void sync(const Block& block) override { m_queue->sync(block); }
    void asyncBarrier(Block block) override { m_queue->asyncBarrier(std::move(block)); }
    SuspensionToken suspend() override { return m_queue->suspend(); }

  private:
    const std::shared_ptr<DispatchQueue> m_queue;
    const int m_factor;
};

/// Queues for a clock that runs `factor` times as fast.
class FastQueues final : public DispatchQueues {
  public:
    FastQueues(DispatchQueues& queues, int factor)
        : m_queues(queues)
        , m_factor(factor)
        , m_main(unowned(queues.mainQueue()), factor) {
        for (const QueuePriority priority :
             {QueuePriority::Background, QueuePriority::Default, QueuePriority::UserInitiated}) {
            m_global.try_emplace(priority, unowned(queues.globalQueue(priority)), factor);
        }
    }

    DispatchQueue& mainQueue() override { return m_main; }
    DispatchQueue& globalQueue(QueuePriority priority) override { return m_global.at(priority); }
    std::shared_ptr<DispatchQueue> makeQueue(std::string label, QueueKind kind,
                                             QueuePriority priority) override {
        return std::make_shared<FastQueue>(m_queues.makeQueue(std::move(label), kind, priority), m_factor);
    }

  private:
    static std::shared_ptr<DispatchQueue> unowned(DispatchQueue& queue) {
        return {std::shared_ptr<void>(), &queue};
    }

    DispatchQueues& m_queues;
    const int m_factor;
    FastQueue m_main;
    std::unordered_map<QueuePriority, FastQueue> m_global;
};

} // namespace guide
