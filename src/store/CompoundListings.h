#pragma once

#include "core/Catalogue.h"
#include "core/TVStationIcons.h"
#include "store/ShowItem.h"

#include <QHash>
#include <QImage>
#include <QLocale>
#include <QString>
#include <QTimeZone>

#include <span>
#include <unordered_map>
#include <vector>

namespace guide {

/// Shows grouped by day, with the icons of the channels that occur.
struct CompoundResult {
    /// One a day, in the order of first appearance.
    std::vector<QString> sectionTitles;
    std::unordered_map<ObjectId, QImage> channelIcons;
    std::unordered_map<ObjectId, QString> channelIconNames;
    /// By section title, in input order.
    QHash<QString, ShowItems> sections;
};

/// Groups the shows by their day in the zone, written in the locale's long form. A show of a channel that is
/// not in the catalogue or has no icon is left out; each icon is asked for once.
CompoundResult compoundListings(std::span<const ShowItem> shows, const CatalogueSnapshot& channels,
                                TVStationIcons& icons, const QLocale& locale, const QTimeZone& zone);

} // namespace guide
