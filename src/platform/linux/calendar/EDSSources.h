#pragma once

#include "platform/linux/calendar/EDSConnection.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// A calendar that the service knows.
struct EDSSource {
    QString uid;
    QString title;
    /// Of its account.
    QString account;
    QString color;
    /// How the service reaches it, such as "local" or "caldav".
    QString backend;
    /// As the service names it, such as "connected"; empty when it has not tried yet.
    QString connectionStatus{};

    bool isLocal() const { return backend == QLatin1StringView("local"); }
    /// Its account waits for the user. The service says so of a server that cannot be reached, too.
    bool needsUser() const;
    bool isDisconnected() const { return connectionStatus == QLatin1StringView("disconnected"); }
    /// Of a kind that can only be read.
    bool isReadOnlyKind() const;
};

inline const QString kEDSSourcesService = QStringLiteral("org.gnome.evolution.dataserver.Sources5");
inline const QString kEDSCalendarService = QStringLiteral("org.gnome.evolution.dataserver.Calendar8");
inline const QString kEDSSourceManagerPath = QStringLiteral("/org/gnome/evolution/dataserver/SourceManager");

/// The enabled calendars by account and title; nothing when the service cannot be reached.
std::optional<std::vector<EDSSource>> edsSources(EDSConnection& connection);

/// Makes a local calendar and returns its UID; empty when that failed.
QString createEDSSource(EDSConnection& connection, const QString& title);

} // namespace guide
