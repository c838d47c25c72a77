// quellin-guide-agent: rings the alarms of the guide while its window is closed.

#include "agent/GuideAgent.h"
#include "platform/files/PlayableChannels.h"
#include "platform/linux/LinuxClock.h"
#include "platform/linux/LinuxDevice.h"
#include "platform/linux/LinuxFolders.h"
#include "platform/linux/SessionBus.h"
#include "platform/linux/TerminationSignals.h"
#include "text/display/Translations.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>
#include <malloc.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kScheme = "quellin-guide"_L1;
const QString kName = u"net.quellin.GuideAgent"_s;

constexpr auto kUsage =
    "usage: quellin-guide-agent [OPTION...]\n"
    "\n"
    "Rings the alarms of Quellin Guide by notifications of the desktop, until the session\n"
    "ends. Only one runs in a session: a second one ends at once.\n"
    "\n"
    "  --profile FOLDER      ring the alarms of the guide's profile in FOLDER\n"
    "  --help                this text\n";

int refuse(const char* why) {
    std::fprintf(stderr, "quellin-guide-agent: %s\n", why);
    return 1;
}

/// Ends the agent when the guide asks for it.
class Control final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "net.quellin.GuideAgent")

  public Q_SLOTS:
    // NOLINTNEXTLINE(readability-convert-member-functions-to-static): called over D-Bus
    Q_SCRIPTABLE void Quit() { QCoreApplication::quit(); }
};

int run(const QString& profile) {
    std::optional<QDBusConnection> bus = sessionBus();
    if (!bus) {
        return refuse("the session has no bus");
    }
    if (!bus->registerService(kName)) {
        return 0;
    }
    const auto folders = linuxFolders({profile, {}});
    if (!folders) {
        return refuse("the folders of the profile cannot be read");
    }
    Control control;
    bus->registerObject(u"/net/quellin/GuideAgent"_s, &control, QDBusConnection::ExportScriptableSlots);
    // The session has ended.
    bus->connect({}, u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s, u"Disconnected"_s,
                 &control, SLOT(Quit()));
    const TerminationSignals signals([] { QCoreApplication::quit(); });
    const LinuxClock clock;
    const LinuxDevice device(UserInterfaceIdiom::Phone);
    installTranslations(device.locale());
    const GuideAgent agent(
        *bus, clock, device,
        {.calendars = {.folder = folders->documents + "/calendars"_L1,
                       .scheme = kScheme,
                       .busAddress =
                           profile.isEmpty() ? qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS") : QString()},
         .recordPath = folders->documents + "/rung-alarms.txt"_L1,
         .playableChannels = folders->documents + u'/' + QLatin1StringView(PlayableChannels::kFileName),
         .profile = profile});
    return QCoreApplication::exec();
}

} // namespace
} // namespace guide

int main(int argc, char** argv) {
    // Small rather than fast.
    ::mallopt(M_ARENA_MAX, 1);
    ::mallopt(M_TRIM_THRESHOLD, 64 << 10);
    qputenv("QT_NO_GLIB", "1");
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quellin-guide-agent"));
    const QStringList words = QCoreApplication::arguments().mid(1);
    if (words == QStringList{QStringLiteral("--help")} || words == QStringList{QStringLiteral("-h")}) {
        std::fputs(guide::kUsage, stdout);
        return 0;
    }
    if (words.isEmpty() || (words.size() == 2 && words[0] == QLatin1StringView("--profile"))) {
        return guide::run(words.value(1));
    }
    std::fputs(guide::kUsage, stderr);
    return 2;
}

#include "main.moc"
