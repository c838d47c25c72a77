#pragma once

#include "CalendarServer.h"
#include "DesktopCalendar.h"

#include <QDBusMetaType>
#include <QMap>

namespace guide::test {

/// A calendar on a server, with a cache on the device.
class RemoteCalendar final : public CalendarUnderTest {
  public:
    explicit RemoteCalendar(const QStringList& serverOptions = {}, const QString& scheme = kScheme)
        : server(serverOptions)
        , desktop(QStringLiteral("remote"), scheme) {
        qDBusRegisterMetaType<QMap<QString, QString>>();
        const QString source =
            QStringLiteral(
                "[Data Source]\nDisplayName=Remote\nEnabled=true\nParent=caldav-stub\n\n"
                "[Calendar]\nBackendName=caldav\nColor=#ff0000\nSelected=true\n\n"
                "[Authentication]\nHost=127.0.0.1\nMethod=plain/password\nPort=%1\nUser=\n\n"
                "[WebDAV Backend]\nResourcePath=/test/tv/\nDisplayName=Remote\n\n[Security]\nMethod=none\n\n"
                "[Offline]\nStaySynchronized=true\n")
                .arg(server.port());
        const EDSReply reply = desktop.connection.call(
            {kEDSSourcesService, kEDSSourceManagerPath,
             QStringLiteral("org.gnome.evolution.dataserver.SourceManager")},
            QStringLiteral("CreateSources"),
            {QVariant::fromValue(QMap<QString, QString>{{QStringLiteral("remote"), source}})});
        EXPECT_TRUE(reply.isOk()) << "evolution-data-server must be installed for this test";
    }

    EventStore& store() override { return desktop.store(); }
    EventCalendar calendar() override { return desktop.calendar(); }
    std::unique_ptr<EventStore> secondStore() override { return desktop.secondStore(); }
    QByteArray get(const QByteArray& uid) override { return desktop.get(uid); }
    void put(const QByteArray& uid, const QByteArray& component) override { desktop.put(uid, component); }
    void erase(const QByteArray& uid) override { desktop.erase(uid); }

    CalendarServer server;
    DesktopCalendar desktop;
};

} // namespace guide::test
