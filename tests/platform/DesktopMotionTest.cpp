#include "platform/linux/DesktopMotion.h"

#include "SettingsPortal.h"

#include <QCoreApplication>
#include <QDBusServer>
#include <QDBusVariant>
#include <QTest>

#include <gtest/gtest.h>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

/// A portal on a private bus.
struct Desktop {
    Desktop() {
        QObject::connect(&server, &QDBusServer::newConnection, &portal, [this](QDBusConnection connection) {
            connection.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal,
                                      QDBusConnection::ExportAllContents);
            connected = true;
        });
    }
    ~Desktop() { QDBusConnection::disconnectFromPeer(u"test"_s); }

    QDBusConnection bus() {
        QDBusConnection bus = QDBusConnection::connectToPeer(server.address(), u"test"_s);
        EXPECT_TRUE(QTest::qWaitFor([this] { return connected; }));
        return bus;
    }

    Portal portal;
    QDBusServer server{u"unix:tmpdir=/tmp"_s};
    bool connected = false;
};

struct Setting {
    const char* name;
    QString space, key;
    QVariant less;
    QVariant more;
};

TEST(DesktopMotionTest, FollowsTheDesktopSettings) {
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    const std::vector<Setting> settings{
        {"common setting", u"org.freedesktop.appearance"_s, u"reduced-motion"_s, 1U, 0U},
        {"GNOME", u"org.gnome.desktop.interface"_s, u"enable-animations"_s, false, true},
        {"KDE", u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s, u"0"_s, u"0.5"_s}};
    for (const Setting& setting : settings) {
        SCOPED_TRACE(setting.name);
        Desktop desktop;
        desktop.portal.values.insert(setting.space + u'/' + setting.key, setting.less);
        DesktopMotion motion(desktop.bus(), QString());
        EXPECT_TRUE(motion.moves()) << "the portal has not answered yet";
        EXPECT_TRUE(QTest::qWaitFor([&] { return !motion.moves(); }));
        Q_EMIT desktop.portal.SettingChanged(u"org.freedesktop.appearance"_s, u"color-scheme"_s,
                                             QDBusVariant(1U));
        Q_EMIT desktop.portal.SettingChanged(setting.space, setting.key, QDBusVariant(setting.more));
        EXPECT_TRUE(QTest::qWaitFor([&] { return motion.moves(); }));
    }
}

} // namespace
} // namespace guide::test
