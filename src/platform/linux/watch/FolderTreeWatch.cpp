#include "platform/linux/watch/FolderTreeWatch.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <chrono>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <utility>

namespace guide {

using namespace std::chrono_literals;
using std::chrono::milliseconds;
using SteadyClock = std::chrono::steady_clock;

namespace {

constexpr milliseconds kQuiet = 250ms;
constexpr milliseconds kLongest = 1s;
/// How often to look where watching is not possible, for example because the user's watches are used up.
constexpr milliseconds kWithoutWatch = 30s;
constexpr std::uint32_t kFolderEvents =
    IN_CREATE | IN_CLOSE_WRITE | IN_DELETE | IN_MOVE | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

} // namespace

FolderTreeWatch::FolderTreeWatch(const QString& folder, Depth depth, std::function<void()> changed)
    : m_folder(folder)
    , m_depth(depth)
    , m_changed(std::move(changed))
    , m_events(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
    , m_stop(::eventfd(0, EFD_CLOEXEC)) {
    // What happens once this returns is reported.
    const bool isComplete = watchAll();
    m_thread = std::thread([this, isComplete] { run(isComplete); });
}

FolderTreeWatch::~FolderTreeWatch() {
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(m_stop.get(), &one, sizeof one);
    m_thread.join();
}

bool FolderTreeWatch::watchAll() {
    const auto watchOf = [this](const QString& path, std::uint32_t events) {
        // Does nothing for what is watched already.
        return ::inotify_add_watch(m_events.get(), QFile::encodeName(path).constData(), events);
    };
    const auto isAdded = [](int watch) { return watch >= 0 || errno == ENOENT || errno == ENOTDIR; };
    const auto add = [&](const QString& path) { return isAdded(watchOf(path, kFolderEvents)); };
    const auto nearestAbove = [this] {
        QString above = QFileInfo(m_folder).path();
        while (!QFileInfo(above).isDir() && above != QLatin1StringView("/")) {
            above = QFileInfo(above).path();
        }
        return above;
    };
    bool isComplete = true;
    QString above;
    // The next one may appear before the one above it is watched.
    for (QString next = nearestAbove(); next != above; next = nearestAbove()) {
        above = next;
        const int watch = watchOf(above, IN_CREATE | IN_MOVE | IN_DELETE_SELF | IN_ONLYDIR);
        isComplete = isAdded(watch);
        const QString below = QDir(above).relativeFilePath(m_folder);
        m_entriesAbove.insert_or_assign(watch, QFile::encodeName(below.section(u'/', 0, 0)));
    }
    isComplete = add(m_folder) && isComplete;
    if (m_depth == Depth::Folder) {
        return isComplete;
    }
    const QStringList names = QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        isComplete = add(m_folder + u'/' + name) && isComplete;
    }
    return isComplete;
}

// What happens beside the folder does not matter: its parent may be the busy home folder.
bool FolderTreeWatch::readEvents() {
    alignas(inotify_event) std::array<char, 16'384> buffer;
    bool isConcerned = false;
    for (ssize_t size = 0; (size = ::read(m_events.get(), buffer.data(), buffer.size())) > 0;) {
        for (ssize_t at = 0; at < size;) {
            const auto* event = reinterpret_cast<const inotify_event*>(buffer.data() + at);
            at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            const auto above = m_entriesAbove.find(event->wd);
            isConcerned = isConcerned || above == m_entriesAbove.end() || event->len == 0 ||
                          above->second == event->name;
        }
    }
    return isConcerned;
}

void FolderTreeWatch::run(bool isComplete) {
    if (!isComplete) {
        qInfo("A folder cannot be watched; it is looked through every 30 seconds");
    }
    // Of the changes that have not been reported.
    bool isPending = false;
    SteadyClock::time_point first;
    for (;;) {
        milliseconds wait = isComplete ? -1ms : kWithoutWatch;
        if (isPending) {
            wait = std::clamp(std::chrono::ceil<milliseconds>(first + kLongest - SteadyClock::now()), 0ms,
                              kQuiet);
        }
        std::array<pollfd, 2> watched{pollfd{m_events.get(), POLLIN, 0}, pollfd{m_stop.get(), POLLIN, 0}};
        const int ready = ::poll(watched.data(), watched.size(), static_cast<int>(wait.count()));
        if (watched[1].revents != 0) {
            return;
        }
        if (ready > 0) {
            const bool isConcerned = readEvents();
            if (isConcerned && !std::exchange(isPending, true)) {
                first = SteadyClock::now();
            }
            if (!isPending || SteadyClock::now() < first + kLongest) {
                continue;
            }
        } else if (ready < 0) {
            continue;
        }
        isPending = false;
        // New folders are watched before their files are looked at.
        isComplete = watchAll();
        m_changed();
    }
}

} // namespace guide
