#pragma once

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace guide::bench {

[[noreturn]] inline void fail(const char* why) {
    std::fprintf(stderr, "%s\n", why);
    std::exit(1);
}

/// The CPU time of this thread, so that waiting for the next frame does not count; nanoseconds.
inline qint64 threadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

/// Windows that are drawn in memory by the CPU.
inline void prepareWindows() {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

/// The window that was opened first.
inline QQuickWindow& openedWindow() {
    auto* window = qobject_cast<QQuickWindow*>(QGuiApplication::topLevelWindows().constFirst());
    if (!window) {
        fail("there is no window");
    }
    return *window;
}

/// The visible list of a table; null when there is none.
inline QQuickItem* listIn(QQuickItem* item) {
    if (!item->isVisible()) {
        return nullptr;
    }
    if (item->objectName() == QLatin1StringView("rows")) {
        return item;
    }
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = listIn(child)) {
            return found;
        }
    }
    return nullptr;
}

/// Main-thread times of drawing: see drawFrame.
struct FrameTimes {
    /// Nanoseconds, without drawing itself.
    qint64 work = 0;
    qint64 all = 0;
};

/// Draws one frame after `change`.
template <class Change>
FrameTimes drawFrame(QQuickWindow& window, const Change& change) {
    qint64 synchronized = 0;
    qint64 swapped = 0;
    QObject context;
    QObject::connect(
        &window, &QQuickWindow::afterSynchronizing, &context, [&] { synchronized = threadTime(); },
        Qt::DirectConnection);
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &context, [&] { swapped = threadTime(); },
        Qt::DirectConnection);
    const qint64 begin = threadTime();
    change();
    window.update();
    while (swapped == 0) { // NOLINT(bugprone-infinite-loop): set by frameSwapped
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    const qint64 all = threadTime() - begin;
    // The event loop of an application would do so.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return {all - (swapped - synchronized), all};
}

} // namespace guide::bench
