#pragma once

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

/// The part of the show that is over at the moment: below 0 before it, above 1 after it, nothing for a show
/// without a span.
std::optional<double> showProgress(const TVEntry& entry, Moment now);

/// Gives the shows of a section their ids, in ascending start time.
class ShowRowIds {
  public:
    explicit ShowRowIds(SectionId section)
        : m_section(std::move(section)) {}

    RowId next(const TVEntry& entry);

  private:
    SectionId m_section;
    /// Of the show before.
    std::optional<Moment> m_start;
    /// How many shows of each channel have had that start.
    std::unordered_map<ObjectId, int> m_counts;
};

/// The show that has the key among the shows of a section; null when there is none.
const ShowItem* findShow(std::span<const ShowItem> shows, const ShowRowKey& key);

/// Makes the show rows of one rebuild of a screen.
class ShowRows {
  public:
    explicit ShowRows(const ScreenEnvironment& environment);

    Moment now() const { return m_now; }
    /// The condensed form, without picture and accessory. Each screen has its own rule of what is `running`;
    /// it sets `progress`.
    ShowRow condensed(const ShowItem& show, bool running) const;

  private:
    const ScreenEnvironment& m_environment;
    const Moment m_now;
    const ShowRowText m_text;
};

/// The moment in the device's zone.
QDateTime localTime(const Device& device, Moment moment);

/// The channel's live stream; nothing for a channel without one.
std::optional<QUrl> streamURLOf(const CatalogueSnapshot& channels, const ObjectId& channel);

} // namespace guide
