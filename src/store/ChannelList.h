#pragma once

#include "store/ShowItem.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <unordered_map>
#include <vector>

namespace guide {

/// The stored list of one channel, with what queries look at first in contiguous memory. Immutable; any
/// thread.
class ChannelList {
  public:
    static constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();

    /// Every show must have a start. Wrong ends are replaced as ShownEnds does; a show whose end is unknown
    /// keeps its own.
    explicit ChannelList(ShowList shows);

    const ShowList& shows() const { return m_shows; }
    std::size_t size() const { return m_times.size(); }
    const ShowItem& operator[](std::size_t index) const { return (*m_shows)[index]; }
    Moment startOf(std::size_t index) const { return m_times[index].start; }
    Moment endOf(std::size_t index) const { return m_times[index].end; }
    /// titleHash() of the display title; kNoTitleHash without a title.
    std::uint32_t titleHashOf(std::size_t index) const { return m_titleHashes[index]; }

    /// The first `limit` shows that are not over.
    ShowSpan notOver(Moment now, std::size_t limit = kNoLimit) const;
    std::size_t countNotOver(Moment now, std::size_t limit) const;

  private:
    struct Times {
        Moment start;
        Moment end;
        /// The latest end of the shows up to this one; unlike the ends it never decreases.
        Moment latestEnd;
    };

    std::size_t firstNotOver(Moment now) const;

    ShowList m_shows;
    std::vector<Times> m_times;
    std::vector<std::uint32_t> m_titleHashes;
};

/// The contents of the store.
using ChannelLists = std::unordered_map<ObjectId, std::shared_ptr<const ChannelList>>;

} // namespace guide
