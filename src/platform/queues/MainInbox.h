#pragma once

#include "platform/queues/DispatchQueue.h"

#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace guide {

/// The main queue: an inbox that the main thread's event loop drains. Belongs to the thread that creates it.
///
/// `wakeUp` is called on any thread when there is something to run, at most once until runPending
/// has run. It must soon cause a call of runPending on the main thread.
class MainInbox final : public DispatchQueue, public std::enable_shared_from_this<MainInbox> {
  public:
    /// Submits a delayed block to this queue when it is due.
    using Later = std::function<void(std::chrono::milliseconds, std::shared_ptr<DispatchQueue>, Block)>;

    MainInbox(Block wakeUp, Later later);

    /// Runs the blocks that are pending now; blocks added meanwhile cause another wake-up. Does nothing when
    /// called from within a block, such as by a nested event loop: the remaining blocks wait until that block
    /// ends. Main thread.
    void runPending();

    /// Drops pending blocks and every later one. Main thread.
    void discardAll();

    const std::string& label() const override { return m_label; }
    void async(Block block) override;
    void asyncAfter(std::chrono::milliseconds delay, Block block) override;
    /// Always ends the process: waiting for the main queue would deadlock.
    void sync(const Block& block) override;
    void asyncBarrier(Block block) override { async(std::move(block)); }
    [[nodiscard]] SuspensionToken suspend() override;

    /// Ends the process when the caller is on another thread.
    void requireMainThread() const;

  private:
    void resume();
    /// Whether the caller must call m_wakeUp after releasing the mutex. Requires the mutex.
    bool claimWakeUp();

    const std::string m_label = "main";
    const Block m_wakeUp;
    const Later m_later;
    const std::thread::id m_thread;

    std::mutex m_mutex;
    std::deque<Block> m_pending;
    std::size_t m_suspensions = 0;
    bool m_awake = false;
    bool m_running = false;
    bool m_discarding = false;
};

} // namespace guide
