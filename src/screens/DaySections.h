#pragma once

#include "core/Catalogue.h"
#include "core/TVStationIcons.h"
#include "screens/kit/RowId.h"
#include "store/ShowItem.h"

#include <QDate>
#include <QLocale>
#include <QString>
#include <QTimeZone>

#include <span>
#include <vector>

namespace guide {

/// The shows of one day.
struct DaySection {
    QDate day;
    /// The day in the locale's long form.
    QString title;
    ShowItems shows;

    /// The ISO date.
    SectionId id() const { return day.toString(Qt::ISODate); }
};

/// Groups shows by the day of their start in the zone: days in the order of first appearance, the shows of a
/// day in the order given. A show without a start is left out.
std::vector<DaySection> daySections(std::span<const ShowItem> shows, const QLocale& locale,
                                    const QTimeZone& zone);

/// The shows whose channel is in the catalogue and has an icon, in the order given: the ones that a list of
/// several channels can show. Looks up each channel once and loads its icon.
ShowItems showsWithChannelIcon(std::span<const ShowItem> shows, const CatalogueSnapshot& channels,
                               TVStationIcons& icons);

} // namespace guide
