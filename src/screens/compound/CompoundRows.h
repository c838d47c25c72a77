#pragma once

#include "screens/DaySections.h"
#include "screens/ShowRows.h"
#include "screens/kit/Table.h"
#include "screens/shell/ScreenEnvironment.h"

#include <memory>
#include <vector>

namespace guide {

/// Shows of several channels, grouped by day, and the rows made of them. There is a row for each show, in the
/// same order.
struct CompoundSections {
    std::vector<DaySection> days;
    std::vector<Section> sections;
};

/// Makes the rows of a list of several channels. Any thread after the construction, which takes the state of
/// the guide that the rows show.
class CompoundRows {
  public:
    /// With `showsLeads`, rows say how long before the show its alarm rings.
    explicit CompoundRows(const ScreenEnvironment& environment, bool showsLeads = false);

    /// Leaves out shows whose channel is not in the catalogue or has no icon. Loads the icons.
    CompoundSections sectionsOf(const ShowSpan& shows) const;
    /// Of all shows: a row names its channel where that has no icon.
    CompoundSections sectionsOfAll(std::span<const ShowItem> shows) const;

  private:
    Row showRow(RowId id, const ShowItem& show) const;

    const ShowRows m_rows;
    /// Null when rows do not show lead times.
    std::shared_ptr<const AlarmsSnapshot> m_alarms;
    const SharedCatalogueSnapshot m_catalogue;
    TVStationIcons& m_icons;
    const Alphabet& m_alphabet;
    const QLocale m_locale;
    const QTimeZone m_zone;
};

} // namespace guide
