#include "ui/DesktopMotion.h"

#include <QCoreApplication>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVariant>
#include <QHash>
#include <QTest>

#include <gtest/gtest.h>

namespace guide::test {

using namespace Qt::StringLiterals;

namespace {

/// The settings portal of a desktop.
class Portal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

  public:
    QHash<QString, QVariant> values;

  public Q_SLOTS:
    // NOLINTNEXTLINE(readability-identifier-naming): the portal's own name
    QDBusVariant Read(const QString& space, const QString& key) {
        const auto found = values.constFind(space + u'/' + key);
        if (found == values.cend()) {
            sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"no such setting"_s);
            return {};
        }
        return QDBusVariant(QVariant::fromValue(QDBusVariant(*found)));
    }

  Q_SIGNALS:
    // NOLINTNEXTLINE(readability-identifier-naming): the portal's own name
    void SettingChanged(const QString& space, const QString& key, const QDBusVariant& value);
};

/// A portal at the other end of a private bus.
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

struct Wish {
    const char* name;
    QString space;
    QString key;
    QVariant less;
    QVariant more;
};

TEST(DesktopMotionTest, FollowsWhatTheDesktopAsksFor) {
    const std::vector<Wish> wishes{
        {"common", u"org.freedesktop.appearance"_s, u"reduced-motion"_s, 1U, 0U},
        {"one desktop", u"org.gnome.desktop.interface"_s, u"enable-animations"_s, false, true},
        {"another one", u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s, u"0"_s, u"0.5"_s}};
    for (const Wish& wish : wishes) {
        SCOPED_TRACE(wish.name);
        Desktop desktop;
        desktop.portal.values.insert(wish.space + u'/' + wish.key, wish.less);
        DesktopMotion motion(desktop.bus(), QString());
        EXPECT_TRUE(motion.moves()) << "nobody waits for the answer";
        EXPECT_TRUE(QTest::qWaitFor([&] { return !motion.moves(); }));
        Q_EMIT desktop.portal.SettingChanged(u"org.freedesktop.appearance"_s, u"color-scheme"_s,
                                             QDBusVariant(1U));
        Q_EMIT desktop.portal.SettingChanged(wish.space, wish.key, QDBusVariant(wish.more));
        EXPECT_TRUE(QTest::qWaitFor([&] { return motion.moves(); }));
    }
}

} // namespace

} // namespace guide::test

#include "DesktopMotionTest.moc"
