#include "DesktopBus.h"
#include "fakes/ManualQueues.h"
#include "platform/linux/ApplicationService.h"
#include "platform/linux/MprisSession.h"
#include "platform/linux/SessionIdleInhibition.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

const QString kProperties = u"org.freedesktop.DBus.Properties"_s;

class DesktopServicesTest : public DesktopBus {
  protected:
    ManualClock clock;
    ManualQueues queues{clock};
};

TEST_F(DesktopServicesTest, MediaKeysReachThePlayer) {
    const QString path = u"/org/mpris/MediaPlayer2"_s;
    const QString player = u"org.mpris.MediaPlayer2.Player"_s;
    const QString root = u"org.mpris.MediaPlayer2"_s;
    MprisSession session(*program, queues.mainQueue());
    QStringList done;
    session.setCommands({
        .setPaused = [&](bool paused) { done << (paused ? u"pause"_s : u"play"_s); },
        .togglePaused = [&] { done << u"toggle"_s; },
        .stop = [&] { done << u"stop"_s; },
        .changeChannel = [&](int by) { done << u"channel %1"_s.arg(by); },
        .setVolume = [&](double volume) { done << u"volume %1"_s.arg(volume); },
        .setFullScreen = [&](bool fullScreen) { done << u"full screen %1"_s.arg(fullScreen); },
        .raise = [&] { done << u"raise"_s; },
    });
    EXPECT_EQ(ask(path, player, u"Play"_s).type(), QDBusMessage::ErrorMessage) << "nothing is playing";

    session.setState(MediaSessionState{.channel = u"Jedna"_s, .title = u"Zprávy"_s});
    const struct {
        QString interface;
        QString member;
        QVariantList arguments;
        QString result;
    } calls[] = {
        {player, u"Play"_s, {}, u"play"_s},
        {player, u"Pause"_s, {}, u"pause"_s},
        {player, u"PlayPause"_s, {}, u"toggle"_s},
        {player, u"Stop"_s, {}, u"stop"_s},
        {player, u"Next"_s, {}, u"channel 1"_s},
        {player, u"Previous"_s, {}, u"channel -1"_s},
        {root, u"Raise"_s, {}, u"raise"_s},
        {kProperties, u"Set"_s, {player, u"Volume"_s, QVariant::fromValue(QDBusVariant(7.0))}, u"volume 1"_s},
        {kProperties,
         u"Set"_s,
         {root, u"Fullscreen"_s, QVariant::fromValue(QDBusVariant(true))},
         u"full screen 1"_s},
    };
    for (const auto& call : calls) {
        done.clear();
        EXPECT_EQ(ask(path, call.interface, call.member, call.arguments).type(), QDBusMessage::ReplyMessage)
            << call.member.toStdString();
        EXPECT_TRUE(done.isEmpty()) << "commands wait for the main queue";
        queues.runAll();
        EXPECT_EQ(done, QStringList{call.result});
    }
    EXPECT_EQ(ask(path, player, u"OpenUri"_s, {u"file:///etc/passwd"_s}).type(), QDBusMessage::ErrorMessage);

    const auto property = [&](const QString& name) {
        return ask(path, kProperties, u"Get"_s, {player, name})
            .arguments()
            .value(0)
            .value<QDBusVariant>()
            .variant();
    };
    EXPECT_EQ(property(u"PlaybackStatus"_s), u"Playing"_s);
    EXPECT_EQ(qdbus_cast<QVariantMap>(property(u"Metadata"_s)).value(u"xesam:title"_s), u"Zprávy"_s);
    session.setState(MediaSessionState{.channel = u"Jedna"_s, .paused = true});
    EXPECT_EQ(property(u"PlaybackStatus"_s), u"Paused"_s);
    session.setState(std::nullopt);
    EXPECT_EQ(ask(path, player, u"Play"_s).type(), QDBusMessage::ErrorMessage);
}

TEST_F(DesktopServicesTest, TheScreenStaysOnWhileSomethingPlays) {
    for (const bool hasScreenSaver : {true, false}) {
        SCOPED_TRACE(hasScreenSaver ? "screen saver" : "portal");
        object.calls.clear();
        object.answer = [&](const QDBusMessage& call) -> std::optional<QVariant> {
            if (call.interface() == "org.freedesktop.ScreenSaver"_L1) {
                return hasScreenSaver ? std::optional<QVariant>(7U) : std::nullopt;
            }
            return QVariant::fromValue(QDBusObjectPath(u"/org/freedesktop/portal/desktop/request/1"_s));
        };
        SessionIdleInhibition idle(*program, {{}, {}});
        const QStringList asked =
            hasScreenSaver ? QStringList{u"Inhibit"_s} : QStringList{u"Inhibit"_s, u"Inhibit"_s};
        idle.setInhibited(true);
        idle.setInhibited(true);
        EXPECT_TRUE(waitFor([&] { return object.calls == asked; }));
        // Withdrawn before the answer is there: it is given back as soon as it is.
        idle.setInhibited(false);
        const QStringList released = asked + QStringList{hasScreenSaver ? u"UnInhibit"_s : u"Close"_s};
        EXPECT_TRUE(waitFor([&] { return object.calls == released; }));
        {
            SessionIdleInhibition other(*program, {{}, {}});
            other.setInhibited(true);
            EXPECT_TRUE(waitFor([&] { return object.calls.size() == 2 * asked.size() + 1; }));
            EXPECT_TRUE(waitFor([&] { return !other.findChild<QObject*>(); })) << "answered";
        }
        EXPECT_TRUE(waitFor([&] { return object.calls.size() == 2 * released.size(); }))
            << "given back at the end of the program";
    }
}

TEST_F(DesktopServicesTest, TheDesktopOpensAddresses) {
    QStringList got;
    const QString path = u"/net/quellin/Guide"_s;
    const QString interface = u"org.freedesktop.Application"_s;
    std::optional<ApplicationService> service;
    service.emplace(*program, queues.mainQueue(), [&](const QStringList& addresses, const QByteArray& token) {
        got << addresses.join(u' ') + u'|' + QString::fromUtf8(token);
    });
    const QVariantMap data{{u"activation-token"_s, u"t1"_s}};
    EXPECT_EQ(ask(path, interface, u"Open"_s, {QStringList{u"a:b"_s}, data}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(ask(path, interface, u"Activate"_s, {QVariantMap{{u"desktop-startup-id"_s, u"t2"_s}}}).type(),
              QDBusMessage::ReplyMessage);
    // Of the wrong types.
    EXPECT_EQ(ask(path, interface, u"Open"_s, {u"a:b"_s, data}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(ask(path, interface, u"Activate"_s).type(), QDBusMessage::ErrorMessage);
    queues.runAll();
    EXPECT_EQ(got, QStringList({u"a:b|t1"_s, u"|t2"_s}));

    EXPECT_EQ(ask(path, interface, u"Activate"_s, {data}).type(), QDBusMessage::ReplyMessage);
    service.reset();
    queues.runAll();
    EXPECT_EQ(got.size(), 2) << "called after its end";
}

} // namespace
} // namespace guide::test
