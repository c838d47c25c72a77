#pragma once

#include "platform/DispatchQueue.h"

#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace guide {

/// The main queue: an inbox that the main thread's event loop empties. Belongs to the thread that makes it.
///
/// The wake-up is called on any thread when there is something to run, once until runPending has answered it;
/// it must see to it that runPending is called on the main thread soon. It takes nothing along, so that it
/// can be as plain as the event loop likes.
class MainInbox final : public DispatchQueue, public std::enable_shared_from_this<MainInbox> {
  public:
    /// Submits a block of asyncAfter to this queue when its time has come.
    using Later = std::function<void(std::chrono::milliseconds, std::shared_ptr<DispatchQueue>, Block)>;

    MainInbox(Block wakeUp, Later later);

    /// Runs what is there now; what comes meanwhile gets a wake-up of its own. Does nothing from inside a
    /// block that it runs: an event loop within one waits for the rest until that block has ended. Main
    /// thread.
    void runPending();

    /// Drops what has not begun, and every later block. Main thread.
    void throwAway();

    const std::string& label() const override { return m_label; }
    void async(Block block) override;
    void asyncAfter(std::chrono::milliseconds delay, Block block) override;
    /// Always a fault: nobody waits for the main queue.
    void sync(const Block& block) override;
    void asyncBarrier(Block block) override { async(std::move(block)); }
    [[nodiscard]] SuspensionToken suspend() override;

    /// Ends the process when the caller is on another thread.
    void requireMainThread() const;

  private:
    void resume();
    /// Whether the caller has to wake up the loop, which it does without the guard. With the mutex held.
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
    bool m_thrownAway = false;
};

} // namespace guide
