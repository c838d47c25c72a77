#pragma once

#include <QQuickWindow>

#include <atomic>
#include <functional>
#include <utility>

namespace guide {

/// Tells the log when the first frame of a window has been drawn, and when the first one that is filled, each
/// with the renderer's name. Only where the category "guide.frames" is turned on; it costs nothing otherwise.
class FrameLog {
  public:
    /// `filled`, asked on the main thread, is whether the next frame shows what the window is there for.
    FrameLog(QQuickWindow& window, std::function<bool()> filled);
    FrameLog(const FrameLog&) = delete;
    FrameLog& operator=(const FrameLog&) = delete;

  private:
    void drawn();

    QQuickWindow& m_window;
    const std::function<bool()> m_filled;
    std::atomic<bool> m_nextIsFilled{false};
    bool m_toldFirst = false;
    bool m_toldFilled = false;
};

} // namespace guide
