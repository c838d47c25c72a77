#pragma once

#include "screens/ShowMarks.h"
#include "screens/ShowRowText.h"
#include "screens/kit/Row.h"
#include "screens/shell/ScreenEnvironment.h"
#include "store/ShowItem.h"

#include <QDateTime>
#include <QUrl>

#include <optional>
#include <span>
#include <unordered_map>

namespace guide {

/// The elapsed share of the show: below 0 before its start, above 1 after its end; unset without a start
/// and a later end.
std::optional<double> showProgress(const std::optional<Moment>& start, const std::optional<Moment>& end,
                                   Moment now);

/// Makes the ids of the shows of one section. The shows are passed in ascending start time.
class ShowRowIds {
  public:
    explicit ShowRowIds(SectionId section)
        : m_section(std::move(section)) {}

    const SectionId& section() const { return m_section; }
    RowId next(const TVEntry& entry);

  private:
    SectionId m_section;
    /// Of the previous show.
    std::optional<Moment> m_start;
    /// The number of shows of each channel so far that have this start.
    std::unordered_map<ObjectId, int> m_counts;
};

/// The show that has the key among the shows of a section; null when there is none.
const ShowItem* findShow(std::span<const ShowItem> shows, const ShowRowKey& key);

/// Makes the show rows for one rebuild of a screen, from the state of the guide at its construction. Any
/// thread after that.
class ShowRows {
  public:
    explicit ShowRows(const ScreenEnvironment& environment);

    Moment now() const { return m_now; }
    /// The condensed form, without picture, day and accessory. Screens differ in what counts as running; a
    /// running show has `progress`. `end` is the end from ShownEnds.
    ShowRow condensed(const ShowItem& show, const std::optional<Moment>& end, bool running) const;
    /// The day of the show's start, for a list without headings; empty for today.
    QString dayUnlessToday(const TVEntry& entry) const;

  private:
    const PopularShows& m_popularShows;
    const bool m_colorizedShows;
    const Moment m_now;
    const QTimeZone m_zone;
    /// In the device's zone.
    const QDate m_today;
    const ShowMarks m_marks;
    const ShowRowText m_text;
};

/// The moment in the device's zone.
QDateTime localTime(const Device& device, Moment moment);

/// The URL of the channel's live stream; unset for a channel without one.
std::optional<QUrl> streamURLOf(const CatalogueSnapshot& channels, const ObjectId& channel);

} // namespace guide
