#pragma once

#include "sources/SourceHostTable.h"

#include <QString>
#include <QStringView>
#include <QTimeZone>

#include <optional>

namespace guide {

/// How the pages of a source are read.
enum ListingsType : unsigned {
    kListingsPortNetwork = 0,
    kListingsXMLTV = 1,
    kListingsPalinsesto = 2,
    kListingsBarrandov = 3,
    kListingsDigiSport = 4,
    kListingsJojCinema = 5,
    kListingsPrimaMax = 6,
    kListingsHBO = 7,
    kListingsNova = 8,
    kListingsDolceSport = 9,
    kListingsCinestar = 10,
    kListingsComedyCentral = 11,
};

/// The listing type of a source id; XMLTV for one that nothing else claims. The order of its tests is its own
/// and not that of the URL planner.
unsigned listingsTypeForSourceId(const QString& sourceId, const SourceHostTable& hosts);

/// Whether the id is a number of the Port network: decimal digits as a 32-bit number is printed.
bool sourceIdUsedByPortNetwork(QStringView sourceId);

/// The zone of the country whose two letters end the name of a server or a country alone; nothing for others.
std::optional<QTimeZone> timeZoneForServer(QStringView serverName);

} // namespace guide
