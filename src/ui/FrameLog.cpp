#include "ui/FrameLog.h"

#include <QLoggingCategory>
#include <QSGRendererInterface>

namespace guide {

namespace {

Q_LOGGING_CATEGORY(framesLog, "guide.frames", QtWarningMsg)

const char* rendererName(const QQuickWindow& window) {
    return window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software ? "software"
                                                                                       : "graphics";
}

} // namespace

FrameLog::FrameLog(QQuickWindow& window, std::function<bool()> filled)
    : m_window(window)
    , m_filled(std::move(filled)) {
    if (!framesLog().isDebugEnabled()) {
        return;
    }
    QObject::connect(&window, &QQuickWindow::afterAnimating, &window, [this] {
        if (!m_nextIsFilled) {
            m_nextIsFilled = m_filled();
        }
    });
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window, [this] { drawn(); }, Qt::DirectConnection);
}

void FrameLog::drawn() {
    if (!std::exchange(m_loggedFirst, true)) {
        qCDebug(framesLog, "first frame, %s", rendererName(m_window));
    }
    if (m_nextIsFilled && !std::exchange(m_loggedFilled, true)) {
        qCDebug(framesLog, "filled frame, %s", rendererName(m_window));
    }
}

} // namespace guide
