#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace guide {

using Block = std::function<void()>;

/// Service classes of work. Each has its own workers, so that long work of one class never delays another.
/// Background work runs at a lower scheduling priority.
enum class QueuePriority { Background = 9, Default = 21, UserInitiated = 25 };

enum class QueueKind { Serial, Concurrent };

/// Keeps a queue suspended while it lives. Move-only: each suspension ends exactly once, even when the block
/// that holds the token is dropped without running.
class SuspensionToken {
  public:
    SuspensionToken() = default;
    explicit SuspensionToken(Block resume)
        : m_resume(std::move(resume)) {}
    SuspensionToken(SuspensionToken&& other) noexcept
        : m_resume(std::exchange(other.m_resume, nullptr)) {}
    SuspensionToken& operator=(SuspensionToken&& other) noexcept {
        if (this != &other) {
            release();
            m_resume = std::exchange(other.m_resume, nullptr);
        }
        return *this;
    }
    ~SuspensionToken() { release(); }

    /// Resumes the queue now instead of at destruction.
    void release() {
        if (Block resume = std::exchange(m_resume, nullptr)) {
            resume();
        }
    }

  private:
    Block m_resume;
};

/// A queue of blocks. Blocks of a serial queue run one at a time in the order of submission. Blocks of a
/// concurrent queue run in parallel, except that a barrier runs alone, after everything submitted before it
/// and before everything submitted after it. All operations may be called from any thread.
class DispatchQueue {
  public:
    virtual ~DispatchQueue() = default;

    virtual const std::string& label() const = 0;

    virtual void async(Block block) = 0;
    virtual void asyncAfter(std::chrono::milliseconds delay, Block block) = 0;

    /// Runs the block on the calling thread when its turn comes, and returns when it has run. Needs no
    /// worker. A reader may call sync again; any other sync from a block of the same queue, and any
    /// sync on the main queue, would deadlock and ends the process with a message.
    virtual void sync(const Block& block) = 0;

    /// On a serial queue the same as async.
    virtual void asyncBarrier(Block block) = 0;

    /// No block begins while a token exists; running blocks continue. Suspensions nest.
    [[nodiscard]] virtual SuspensionToken suspend() = 0;
};

/// A set of blocks that can be waited for together. May be used from any thread.
class DispatchGroup {
  public:
    DispatchGroup();

    /// Submits the block to the queue as a member of this group.
    void async(DispatchQueue& queue, Block block);

    /// Blocks until every member has run or been dropped; false when the time is up first.
    bool wait(std::optional<std::chrono::milliseconds> atMost = std::nullopt);

  private:
    struct State;
    std::shared_ptr<State> m_state;
};

/// The queues of the process: the main queue, a global concurrent queue for each service class, and new
/// queues.
class DispatchQueues {
  public:
    virtual ~DispatchQueues() = default;
    virtual DispatchQueue& mainQueue() = 0;
    virtual DispatchQueue& globalQueue(QueuePriority priority) = 0;
    virtual std::shared_ptr<DispatchQueue> makeQueue(std::string label, QueueKind kind,
                                                     QueuePriority priority = QueuePriority::Default) = 0;
};

} // namespace guide
