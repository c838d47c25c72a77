// quellin-guide: puts the program together for Linux.

#include "app/CommandLine.h"
#include "app/MemoryWarning.h"
#include "app/PictureTour.h"
#include "app/QuellinGuideAppDelegate.h"
#include "app/SignificantTime.h"
#include "core/CatalogueFiles.h"
#include "demo/DemoWorld.h"
#include "platform/files/FileReplacement.h"
#include "platform/linux/CurlHTTPClient.h"
#include "platform/linux/DesktopMotion.h"
#include "platform/linux/EventLoopQueues.h"
#include "platform/linux/FolderKeyValueStore.h"
#include "platform/linux/GlobalLibraries.h"
#include "platform/linux/InstanceLock.h"
#include "platform/linux/LinuxAudioSession.h"
#include "platform/linux/LinuxBackgroundTasks.h"
#include "platform/linux/LinuxClock.h"
#include "platform/linux/LinuxDevice.h"
#include "platform/linux/LinuxFolders.h"
#include "platform/linux/SettingsUserDefaults.h"
#include "platform/linux/TerminationSignals.h"
#include "ui/GuideWindow.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTimer>

#include <atomic>
#include <cstdio>
#include <ctime>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kTimeToEnd{10};
constexpr std::size_t kMostResponseCache = std::size_t(256) << 20;
constexpr int kLookAtDeviceEvery = 20'000;
constexpr auto kScheme = "quellin-guide"_L1;

/// Whether the window is to be seen, as the screens and the store ask on any thread.
class WindowState final : public ApplicationStateSource {
  public:
    ApplicationState applicationState() const override {
        return m_visible ? ApplicationState::Active : ApplicationState::Background;
    }
    /// Whether that is a change.
    bool setVisible(bool visible) { return m_visible.exchange(visible) != visible; }

  private:
    std::atomic<bool> m_visible{false};
};

std::chrono::milliseconds reading(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::seconds(time.tv_sec) +
                                                                 std::chrono::nanoseconds(time.tv_nsec));
}

SignificantTime::Look lookAtClocks(const Clock& clock, const Device& device) {
    const Moment now = clock.now();
    const QTimeZone zone = device.timeZone();
    return {now, QDateTime::fromMSecsSinceEpoch(now.time_since_epoch().count(), zone).date(), zone.id(),
            reading(CLOCK_BOOTTIME), reading(CLOCK_MONOTONIC)};
}

/// What the kernel says of the machine's memory; nothing where there is no such file.
QByteArray memoryInformation() {
    QFile file(u"/proc/meminfo"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The host table: that of the option, or the installed one. Nothing when the option's cannot be read.
std::optional<SourceHostTable> hostTable(const std::optional<QString>& path, const Folders& folders) {
    return path ? SourceHostTable::fromFile(*path)
                : SourceHostTable::installed(folders.bundle, folders.configuration);
}

int refuse(const char* why) {
    std::fprintf(stderr, "quellin-guide: %s\n", why);
    return 1;
}

/// The icons of a catalogue stand beside it, in "icons"; those of a catalogue without such a folder come with
/// the program.
QString iconFolder(const std::optional<QString>& cataloguePath, const Folders& folders) {
    const QString beside = QFileInfo(cataloguePath.value_or(QString())).absolutePath() + "/icons"_L1;
    return cataloguePath && QFileInfo(beside).isDir() ? beside : folders.bundle + "/icons"_L1;
}

int run(LaunchOptions options) {
    // What is only tried gets folders that end with it.
    std::optional<QTemporaryDir> trial;
    if (!options.profile && options.impliesOwnProfile()) {
        trial.emplace();
        if (!trial->isValid()) {
            return refuse("there is no room for a profile of its own");
        }
        options.profile = trial->path();
    }
    const auto folders = linuxFolders({options.profile.value_or(QString()), {}});
    if (!folders) {
        return refuse("the folders of the profile cannot be written");
    }
    if (folders->bundle.isEmpty()) {
        return refuse("the data that belong to the program are missing");
    }
    InstanceLock instance(folders->documents, folders->runtime, options.url.value_or(QString()).toUtf8());
    if (instance.outcome() == InstanceLock::Outcome::HandedOver) {
        return 0;
    }
    if (instance.outcome() == InstanceLock::Outcome::Unavailable) {
        return refuse("another guide has these folders and does not answer");
    }

    for (const QString& folder : {folders->caches, folders->documents, folders->keyValueStore}) {
        removeStaleReplacements(folder);
    }

    const LinuxClock clock(options.now);
    LinuxDevice device(options.form.value_or(UserInterfaceIdiom::Phone));
    // Icons are made for the finest screen that the window can be moved to.
    device.setScreen(device.screenSize(), qGuiApp->devicePixelRatio());
    std::unique_ptr<DemoWorld> demo;
    if (options.demo) {
        demo = DemoWorld::create(*options.profile + "/demo"_L1, clock);
        if (!demo) {
            return refuse("the demo cannot be set up");
        }
        options.catalogue = demo->cataloguePath();
        options.hosts = demo->hostsPath();
        options.select = demo->selectionPath();
    }
    // A catalogue that was asked for is read whatever its date is, and its archive is none for later starts.
    const QString archivePath = catalogueArchivePath(options.catalogue ? folders->runtime : folders->caches);
    if (options.catalogue) {
        QFile::remove(archivePath);
    }
    const auto hosts = hostTable(options.hosts, *folders);
    if (!hosts) {
        return refuse("the host table cannot be read");
    }

    EventLoopQueues queues;
    SettingsUserDefaults userDefaults(
        folders->configuration + "/settings.ini"_L1,
        queues.makeQueue("settings", QueueKind::Serial, QueuePriority::Background));
    FolderKeyValueStore keyValueStore(folders->keyValueStore, queues);
    LinuxBackgroundTasks backgroundTasks(queues);
    WindowState state;
    const Settings settings(userDefaults);
    const std::size_t cacheCapacity =
        std::min<std::size_t>(kMostResponseCache, std::size_t(device.physicalMemory() / 16));
    ResponseCache responseCache(clock, cacheCapacity, [&] { return settings.automaticUpdateInterval(); });
    CurlHTTPClient httpClient(responseCache);
    LinuxAudioSession audioSession;
    AbsentPromotion promotion;

    QuellinGuideAppDelegate delegate({
        .clock = clock,
        .device = device,
        .folders = *folders,
        .queues = queues,
        .userDefaults = userDefaults,
        .keyValueStore = keyValueStore,
        .backgroundTasks = backgroundTasks,
        .applicationState = state,
        .httpClient = httpClient,
        .responseCache = responseCache,
        .responseCacheCapacity = cacheCapacity,
        .audioSession = audioSession,
        .promotion = promotion,
        .hosts = *hosts,
        .random = [](unsigned bound) { return QRandomGenerator::system()->bounded(bound); },
        .cataloguePath = options.catalogue.value_or(folders->bundle + "/Data.plist"_L1),
        .catalogueArchivePath = archivePath,
        .iconFolder = iconFolder(options.catalogue, *folders),
        .firstSelectionPath = options.select,
        .scheme = kScheme,
        .networkActivityIndicator = {},
        .applicationIconBadgeNumber = {},
        .openExternally = [](const QUrl& url) { QDesktopServices::openUrl(url); },
    });

    installTranslations(device.locale());
    std::unique_ptr<GuideWindow> window;
    delegate.didFinishLaunching([&](TabBarController& tabs) {
        window = std::make_unique<GuideWindow>(tabs, GuideWindowOptions{
                                                         .form = device.userInterfaceIdiom(),
                                                         .scheme = {},
                                                         .size = {},
                                                         .motion = !options.screenshots,
                                                         .visibilityChanged =
                                                             [&](bool visible) {
                                                                 if (!state.setVisible(visible)) {
                                                                     return;
                                                                 }
                                                                 if (visible) {
                                                                     delegate.applicationDidBecomeActive();
                                                                 } else {
                                                                     delegate.applicationDidEnterBackground();
                                                                 }
                                                             },
                                                         .closed = [] { QCoreApplication::quit(); },
                                                     });
    });
    if (!window->loaded()) {
        return refuse("the screens cannot be drawn");
    }
    const std::unique_ptr<DesktopMotion> desktopMotion =
        options.screenshots ? nullptr : DesktopMotion::ofSession();
    if (desktopMotion) {
        QObject::connect(desktopMotion.get(), &DesktopMotion::changed, desktopMotion.get(), [&] {
            if (window) {
                window->setMotion(desktopMotion->moves());
            }
        });
    }
    window->show();
    instance.listen(std::shared_ptr<DispatchQueue>(std::shared_ptr<void>(), &queues.mainQueue()),
                    [&](const QByteArray&) { window->show(); });

    SignificantTime time(lookAtClocks(clock, device));
    MemoryWarning memory;
    QTimer looks;
    looks.callOnTimeout([&] {
        if (const auto available = availableMemory(memoryInformation());
            available && memory.due(*available)) {
            delegate.applicationDidReceiveMemoryWarning();
        }
        if (time.changed(lookAtClocks(clock, device)) &&
            state.applicationState() == ApplicationState::Active) {
            delegate.applicationSignificantTimeChange();
        }
    });
    looks.start(kLookAtDeviceEvery);
    const TerminationSignals signals([] { QCoreApplication::quit(); });

    std::optional<PictureTour> tour;
    if (options.screenshots) {
        const QString prefix =
            device.userInterfaceIdiom() == UserInterfaceIdiom::Tablet ? u"tablet"_s : u"phone"_s;
        tour.emplace(delegate.tabBarController(), *window, *options.screenshots, prefix,
                     [](bool complete) { QCoreApplication::exit(complete ? 0 : 1); });
        tour->start();
    }
    const int status = QGuiApplication::exec();

    // Whoever is started from here on is the next guide, not a request to this one.
    instance.stopListening();
    if (state.setVisible(false)) {
        delegate.applicationDidEnterBackground();
    }
    delegate.applicationWillTerminate();
    tour.reset();
    window.reset();
    const bool ended = delegate.shutDown(kTimeToEnd);
    queues.shutDown();
    if (!ended) {
        qWarning("Not everything was written before the end");
    }
    return status;
}

} // namespace
} // namespace guide

int main(int argc, char** argv) {
    using namespace guide;
    QStringList words;
    for (int i = 1; i < argc; ++i) {
        words.append(QString::fromLocal8Bit(argv[i]));
    }
    auto parsed = parseCommandLine(words);
    if (const auto* text = std::get_if<CommandLineText>(&parsed)) {
        const QByteArray bytes = text->text.toLocal8Bit();
        std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), text->exitStatus == 0 ? stdout : stderr);
        return text->exitStatus;
    }
    const GlobalLibraries libraries;
    int ownArguments = 1;
    const QGuiApplication application(ownArguments, argv);
    QGuiApplication::setApplicationName(QStringLiteral("quellin-guide"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quellin Guide"));
    QGuiApplication::setDesktopFileName(QStringLiteral("quellin-guide"));
    return run(std::get<LaunchOptions>(std::move(parsed)));
}
