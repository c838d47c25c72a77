#pragma once

#include "screens/kit/RowId.h"
#include "store/ShowItem.h"

#include <QDate>
#include <QLocale>
#include <QTimeZone>

#include <span>
#include <vector>

namespace guide {

/// The shows that start on one day.
struct DaySection {
    /// The ISO date.
    SectionId id;
    /// The day in the locale's long form.
    QString title;
    ShowItems shows;
};

/// Groups the shows by the day of their start in the zone: days in the order of first appearance, shows in
/// input order. A show without a start is left out.
std::vector<DaySection> daySections(std::span<const ShowItem> shows, const QLocale& locale,
                                    const QTimeZone& zone);

} // namespace guide
