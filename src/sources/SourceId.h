#pragma once

#include "core/ListingsType.h"
#include "sources/SourceHostTable.h"

#include <QString>
#include <QStringView>
#include <QTimeZone>

#include <optional>

namespace guide {

/// The listing type of a source id; XMLTV for one that nothing else claims. The order of its tests is its own
/// and not that of the URL planner.
ListingsType listingsTypeForSourceId(const QString& sourceId, const SourceHostTable& hosts);

/// Whether the id is a number of the Port network: decimal digits as a 32-bit number is printed.
bool sourceIdUsedByPortNetwork(QStringView sourceId);

/// The zone of the country whose two letters end the name of a server or a country alone; nothing for others.
std::optional<QTimeZone> timeZoneForServer(QStringView serverName);

} // namespace guide
