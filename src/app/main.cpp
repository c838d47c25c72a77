// quellin-guide: assembles the program for Linux.

#include "app/CloudSetup.h"
#include "app/CommandLine.h"
#include "app/DeviceWatch.h"
#include "app/InstanceRequest.h"
#include "app/LaunchFiles.h"
#include "app/PictureTour.h"
#include "app/ProcessEnd.h"
#include "app/QuellinGuideAppDelegate.h"
#include "app/SharedStoresChoice.h"
#include "app/WindowState.h"
#include "demo/DemoEnvironment.h"
#include "demo/DemoFiles.h"
#include "platform/files/FileReplacement.h"
#include "platform/files/PlayableChannels.h"
#include "platform/linux/ApplicationService.h"
#include "platform/linux/CurlHTTPClient.h"
#include "platform/linux/DesktopMotion.h"
#include "platform/linux/EventLoopQueues.h"
#include "platform/linux/GlobalLibraries.h"
#include "platform/linux/InstanceLock.h"
#include "platform/linux/LinuxAudioSession.h"
#include "platform/linux/LinuxBackgroundTasks.h"
#include "platform/linux/LinuxClipboard.h"
#include "platform/linux/LinuxClock.h"
#include "platform/linux/LinuxDevice.h"
#include "platform/linux/LinuxFileWatch.h"
#include "platform/linux/LinuxFolders.h"
#include "platform/linux/LinuxNetworkWatch.h"
#include "platform/linux/MprisSession.h"
#include "platform/linux/QtMediaPlayer.h"
#include "platform/linux/SecretServiceStore.h"
#include "platform/linux/SessionAlarmRinging.h"
#include "platform/linux/SessionBus.h"
#include "platform/linux/SessionIdleInhibition.h"
#include "platform/linux/SessionUpdates.h"
#include "platform/linux/SettingsUserDefaults.h"
#include "platform/linux/SpawnedProgramRunner.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/calendar/EventStoreChoice.h"
#include "text/display/Translations.h"
#include "ui/GuideWindow.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QIcon>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kTimeToEnd{10};
// What was changed last reaches a folder that other devices share, if the folder answers.
constexpr std::chrono::seconds kTimeToShare{2};
constexpr std::size_t kMostResponseCache = std::size_t(256) << 20;
constexpr auto kScheme = "quellin-guide"_L1;

void say(const QString& line) {
    std::fprintf(stderr, "quellin-guide: %s\n", qPrintable(line));
}

int refuse(const QString& why) {
    say(why);
    return 1;
}

/// The token with which the desktop lets the window of this start come to the front.
QByteArray activationToken() {
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

/// Pictures of several forms and sizes of text can share a folder.
QString picturePrefix(const LaunchOptions& options) {
    const QString form = options.form == UserInterfaceIdiom::Tablet ? u"tablet"_s : u"phone"_s;
    const int percent = qRound(options.textScale.value_or(1) * 100);
    return percent == 100 ? form : form + u'-' + QString::number(percent);
}

/// What a guide of this device consists of, before its launch.
struct Program {
    const LaunchOptions& options;
    const LinuxClock& clock;
    LinuxDevice& device;
    EventLoopQueues& queues;
    WindowState& state;
    QuellinGuideAppDelegate& delegate;
    /// Unset in a profile that cannot be written.
    std::optional<InstanceLock>& instance;
    const DemoEnvironment* demo;
    /// The profile is deleted at the end.
    bool isTrial;
    /// Set while the window exists.
    GuideWindow*& window;
};

/// Launches the guide; false when there is no channel to show.
bool launch(Program& program, const std::function<void(TabBarController&)>& showWindow) {
    const LaunchOptions& options = program.options;
    const QuellinGuideAppDelegate& delegate = program.delegate;
    installTranslations(program.device.locale());
    if (!program.delegate.didFinishLaunching(showWindow)) {
        return false;
    }
    // Without a catalogue there are the user's own sources.
    if (options.catalogue && !delegate.catalogueProblem().isEmpty()) {
        say(delegate.catalogueProblem());
    }
    if (options.select && !options.demo && delegate.firstSelectionIgnored()) {
        say(u"--select %1 is ignored: the profile has a selection already"_s.arg(*options.select));
    }
    return true;
}

void leave(Program& program) {
    // A guide started from here on runs by itself instead of handing its request to this one.
    if (program.instance) {
        program.instance->stopListening();
    }
    if (program.state.setVisible(false)) {
        program.delegate.applicationDidEnterBackground();
    }
    program.delegate.applicationWillTerminate();
}

/// Shows the guide until the user closes it. The exit status, unset when it cannot be launched.
std::optional<int> showGuide(Program& program) {
    const LaunchOptions& options = program.options;
    QuellinGuideAppDelegate& delegate = program.delegate;
    LinuxDevice& device = program.device;
    WindowState& state = program.state;
    std::unique_ptr<GuideWindow> window;
    const bool launched = launch(program, [&](TabBarController& tabs) {
        window = std::make_unique<GuideWindow>(
            tabs, GuideWindowOptions{
                      .form = device.userInterfaceIdiom(),
                      .scheme = options.appearance,
                      .textScale = options.textScale,
                      .size = {},
                      .motion = !options.screenshots,
                      .locale = device.locale(),
                      .pictures = &delegate.pictures(),
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
                      .dropped = [&](const QString& input) { delegate.addSource(input); },
                      .closed = [] { QCoreApplication::quit(); },
                  });
    });
    if (!launched) {
        return std::nullopt;
    }
    if (!window->loaded()) {
        return refuse(u"the screens cannot be drawn"_s);
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
    program.window = window.get();
    window->show();
    const auto open = [&](const InstanceRequest& request) {
        if (request.update) {
            delegate.updateNow();
            return;
        }
        window->show(request.activationToken);
        if (!request.url.isEmpty()) {
            delegate.openURL(request.url);
        }
        if (!request.source.isEmpty()) {
            delegate.addSource(request.source);
        }
    };
    if (options.url) {
        delegate.openURL(*options.url);
    }
    if (options.add) {
        delegate.addSource(*options.add);
    }
    if (program.instance) {
        program.instance->listen(
            std::shared_ptr<DispatchQueue>(std::shared_ptr<void>(), &program.queues.mainQueue()),
            [&](const QByteArray& line) { open(requestIn(line)); });
    }
    // Of several guides the desktop knows the first one, and none that only tries something out.
    std::unique_ptr<ApplicationService> service;
    if (!program.isTrial) {
        service = ApplicationService::ofSession(program.queues.mainQueue(),
                                                [&](const QStringList& addresses, const QByteArray& token) {
                                                    open({addresses.value(0), token});
                                                });
    }

    DeviceWatch deviceWatch(program.clock, device, state, delegate);
    deviceWatch.start();
    const TerminationSignals signals([] { QCoreApplication::quit(); });

    std::optional<PictureTour> tour;
    if (options.screenshots) {
        tour.emplace(delegate.tabBarController(), *window,
                     PictureTour::Plan{
                         .folder = *options.screenshots,
                         .prefix = picturePrefix(options),
                         .appearance = options.appearance,
                         .mayChange = options.demo,
                         .source = program.demo ? program.demo->serverBase() + kDemoPlaylistFeed : QString(),
                         .playlist = program.demo ? program.demo->serverBase() + kDemoPlaylist : QString()},
                     [](bool complete) { QCoreApplication::exit(complete ? 0 : 1); });
        tour->start();
    }
    const int status = QGuiApplication::exec();

    service.reset();
    leave(program);
    tour.reset();
    program.window = nullptr;
    window.reset();
    return status;
}

/// Updates schedules and alarms. A guide with a window that is started meanwhile takes over.
std::optional<int> updateOnce(Program& program) {
    if (!launch(program, [](TabBarController&) {})) {
        return std::nullopt;
    }
    bool isDone = false;
    program.delegate.updateUnattended([&](const QuellinGuideAppDelegate::UnattendedUpdate& update) {
        isDone = true;
        std::printf("%zu channels updated, %zu failed\n", update.stored.size(), update.failed.size());
        QCoreApplication::quit();
    });
    if (program.instance) {
        program.instance->listen(
            std::shared_ptr<DispatchQueue>(std::shared_ptr<void>(), &program.queues.mainQueue()),
            [](const QByteArray& line) {
                if (!requestIn(line).update) {
                    QCoreApplication::quit();
                }
            },
            [](const QByteArray& line) { return requestIn(line).update; });
    }
    const TerminationSignals signals([] { QCoreApplication::quit(); });
    QGuiApplication::exec();
    leave(program);
    return isDone ? 0 : 1;
}

int run(LaunchOptions options, bool drawsWebPages) {
    if (options.screenshots && !preparePictureFolder(*options.screenshots)) {
        return refuse(u"no pictures can be saved in %1"_s.arg(*options.screenshots));
    }
    // Options that only try something out get a profile that is deleted at the end.
    std::optional<QTemporaryDir> trial;
    if (!options.profile && options.usesSeparateProfile()) {
        trial.emplace();
        if (!trial->isValid()) {
            return refuse(u"a temporary profile cannot be created"_s);
        }
        options.profile = trial->path();
    }
    const auto folders = linuxFolders({options.profile.value_or(QString()), {}});
    if (!folders) {
        return refuse(u"the folders of the profile cannot be written"_s);
    }
    if (folders->bundle.isEmpty()) {
        return refuse(u"the data files of the program are missing"_s);
    }
    // Any number of guides may share a profile that none of them writes.
    std::optional<InstanceLock> instance;
    if (folders->writable) {
        // A guide that already runs can show its window for this one, but not save its pictures.
        std::optional<QByteArray> request;
        if (!options.screenshots) {
            request = lineOf({options.url.value_or(QString()), activationToken(),
                              options.add.value_or(QString()), options.update});
        }
        instance.emplace(folders->documents, folders->runtime, request);
        if (instance->outcome() == InstanceLock::Outcome::HandedOver) {
            return 0;
        }
        if (instance->outcome() == InstanceLock::Outcome::Unavailable) {
            return refuse(options.screenshots ? u"another guide uses this profile"_s
                                              : u"another guide uses this profile and does not answer"_s);
        }
    }
    for (const QString& folder :
         {folders->caches, folders->documents, folders->documents + "/replaced"_L1, folders->keyValueStore}) {
        removeStaleReplacements(folder);
    }

    const LinuxClock clock(options.now);
    LinuxDevice device(options.form.value_or(UserInterfaceIdiom::Phone));
    // Icons are scaled for the screen with the highest density that the window can be moved to.
    device.setScreen(device.screenSize(), qGuiApp->devicePixelRatio());
    std::unique_ptr<DemoEnvironment> demo;
    if (options.demo) {
        demo = DemoEnvironment::create(*options.profile + "/demo"_L1, folders->bundle + "/demo"_L1, clock);
        if (!demo) {
            return refuse(u"the demo cannot be started"_s);
        }
        options.catalogue = demo->cataloguePath();
        options.hosts = demo->hostsPath();
        options.select = demo->selectionPath();
    }
    QString why;
    const auto files = launchFiles(options, *folders, why);
    if (!files) {
        return refuse(why);
    }

    EventLoopQueues queues;
    SettingsUserDefaults userDefaults(
        folders->configuration + "/settings.ini"_L1,
        queues.makeQueue("settings", QueueKind::Serial, QueuePriority::Background), folders->writable);
    LinuxBackgroundTasks backgroundTasks(queues);
    WindowState state;
    const Settings settings(userDefaults);
    const std::size_t cacheCapacity =
        std::min<std::size_t>(kMostResponseCache, std::size_t(device.physicalMemory() / 16));
    ResponseCache responseCache(clock, cacheCapacity, [&] { return settings.automaticUpdateInterval(); });
    CurlHTTPClient httpClient(responseCache);
    LinuxNetworkWatch networkWatch;
    LinuxFileWatch fileWatch;
    SpawnedProgramRunner programs;
    const auto secrets = makeSecretStore(folders->configuration);
    SharedStoresChoice stores({.folders = *folders,
                               .userDefaults = userDefaults,
                               .clock = clock,
                               .secrets = *secrets,
                               .queues = queues});
    // A profile of its own keeps its alarms to itself.
    const auto eventStore = eventStoreFor(
        {.folder = folders->documents + "/calendars"_L1,
         .scheme = kScheme,
         .busAddress = options.profile ? QString() : qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS")},
        clock);
    // A profile of its own, whose alarms the agent of the session does not know, does not ring.
    std::optional<SessionAlarmRinging> alarmRinging;
    std::optional<SessionUpdates> backgroundUpdates;
    if (!options.profile && !options.update) {
        const QString templates = folders->bundle + "/session"_L1;
        const QString folder = QCoreApplication::applicationDirPath();
        backgroundUpdates.emplace(queues, sessionBus(), templates, folder);
        alarmRinging.emplace(queues, sessionBus(),
                             SessionAlarmRinging::Options{
                                 .templates = templates,
                                 .programs = folder,
                                 .playableChannels = folders->documents + u'/' +
                                                     QLatin1StringView(PlayableChannels::kFileName),
                                 .usesDesktop = isOfDesktop(*eventStore),
                             });
    }
    LinuxAudioSession audioSession;
    LinuxClipboard clipboard;
    QtMediaPlayers mediaPlayers(queues.mainQueue());
    // Pictures of the screens are the same whatever the desktop does.
    const auto mediaSession =
        options.screenshots || options.update ? nullptr : MprisSession::ofSession(queues.mainQueue());
    const auto idleInhibition =
        options.screenshots || options.update ? nullptr : SessionIdleInhibition::ofSession();
    Promotion promotion;

    GuideWindow* shown = nullptr;
    QuellinGuideAppDelegate delegate({
        .clock = clock,
        .device = device,
        .folders = *folders,
        .queues = queues,
        .userDefaults = userDefaults,
        .keyValueStore = stores.keyValueStore(),
        .records = &stores.records(),
        .sharedPlace = &stores,
        .backgroundTasks = backgroundTasks,
        .applicationState = state,
        .httpClient = httpClient,
        .responseCache = responseCache,
        .responseCacheCapacity = cacheCapacity,
        .networkWatch = &networkWatch,
        .audioSession = audioSession,
        .clipboard = clipboard,
        .mediaPlayers = &mediaPlayers,
        .mediaSession = mediaSession.get(),
        .idleInhibition = idleInhibition.get(),
        .promotion = promotion,
        .programs = &programs,
        .secrets = secrets.get(),
        .eventStore = eventStore.get(),
        .alarmRinging = alarmRinging ? &*alarmRinging : nullptr,
        .backgroundUpdates = backgroundUpdates ? &*backgroundUpdates : nullptr,
        .fileWatch = &fileWatch,
        .hosts = files->hosts,
        .random = [](unsigned bound) { return QRandomGenerator::system()->bounded(bound); },
        .cataloguePath = files->catalogue,
        .catalogueArchivePath = files->catalogueArchive,
        .iconFolder = files->icons,
        .needsCatalogue = options.catalogue.has_value(),
        .firstSelection = files->firstSelection,
        .scheme = kScheme,
        .networkActivityIndicator = {},
        .applicationIconBadgeNumber = {},
        .openExternally = [](const QUrl& url) { QDesktopServices::openUrl(url); },
        .drawsWebPages = drawsWebPages,
        .raiseWindow =
            [&shown] {
                if (shown) {
                    shown->show();
                }
            },
        .pictureReplaced =
            [&shown](const PictureKey& key) {
                if (shown) {
                    shown->replacePicture(key);
                }
            },
    });

    Program program{.options = options,
                    .clock = clock,
                    .device = device,
                    .queues = queues,
                    .state = state,
                    .delegate = delegate,
                    .instance = instance,
                    .demo = demo.get(),
                    .isTrial = trial.has_value(),
                    .window = shown};
    const std::optional<int> status = options.update ? updateOnce(program) : showGuide(program);
    const bool ended = delegate.shutDown(kTimeToEnd);
    stores.finish(kTimeToShare);
    endWithin(kTimeToEnd, status.value_or(EXIT_FAILURE));
    queues.shutDown();
    if (!status) {
        return refuse(delegate.catalogueProblem());
    }
    if (!ended) {
        qWarning("Not everything was written before the end");
    }
    return *status;
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
    const auto& options = std::get<LaunchOptions>(parsed);
    if (options.cloudSetup) {
        return setUpCloud(*options.cloudSetup, options.user, namedLinuxFolders({}).bundle + "/database"_L1);
    }
    if (options.update) {
        // There need not be a display.
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const bool drawsWebPages = !options.update && prepareWebPages();
    int ownArguments = 1;
    const QGuiApplication application(ownArguments, argv);
    QGuiApplication::setApplicationName(QStringLiteral("quellin-guide"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quellin Guide"));
    QGuiApplication::setDesktopFileName(QStringLiteral("quellin-guide"));
    return run(std::get<LaunchOptions>(std::move(parsed)), drawsWebPages);
}
