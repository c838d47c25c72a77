#pragma once

#include <QQuickWindow>

#include <atomic>
#include <functional>
#include <utility>

namespace guide {

/// Logs when the first frame of a window has been drawn, and when the first filled one has been, each with
/// the renderer's name. Costs nothing unless the category "guide.frames" is enabled.
class FrameLog {
  public:
    /// `filled` is called on the main thread and returns whether the next frame shows complete content.
    FrameLog(QQuickWindow& window, std::function<bool()> filled);
    FrameLog(const FrameLog&) = delete;
    FrameLog& operator=(const FrameLog&) = delete;

  private:
    void drawn();

    QQuickWindow& m_window;
    const std::function<bool()> m_filled;
    std::atomic<bool> m_nextIsFilled{false};
    bool m_loggedFirst = false;
    bool m_loggedFilled = false;
};

} // namespace guide
