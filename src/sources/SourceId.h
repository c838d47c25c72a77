#pragma once

#include <QString>
#include <QStringView>
#include <QTimeZone>

#include <optional>

namespace guide {

/// Whether the id is a number of the Port network: decimal digits as a 32-bit number is printed.
bool sourceIdUsedByPortNetwork(QStringView sourceId);

/// The zone of the country whose two letters end the name of a server or a country alone; nothing for others.
std::optional<QTimeZone> timeZoneForServer(QStringView serverName);

} // namespace guide
