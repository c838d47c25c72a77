#pragma once

#include "store/ChannelList.h"

#include <memory>
#include <mutex>
#include <vector>

namespace guide {

/// The shows of all channels, as they were at one change of the store, that end after that moment. Immutable,
/// and made of the lists only when it is asked for; any thread.
class AllShows {
  public:
    using Lists = std::vector<std::shared_ptr<const ChannelList>>;

    /// No shows.
    AllShows() = default;
    /// Of shows with equal starts those of an earlier list come first.
    AllShows(Lists lists, Moment endingAfter)
        : m_lists(std::move(lists))
        , m_endingAfter(endingAfter) {}

    /// In ascending start time; valid as long as this object. Made at the first call.
    const std::vector<const ShowItem*>& shows() const;

    /// The first so many shows, in ascending start time, that hold the pattern in one of their texts and are
    /// not over at the moment.
    ShowItems showsContaining(const QByteArray& searchPattern, Moment now, std::size_t limit) const;

  private:
    bool holds(const ChannelList& list, std::size_t index) const { return list.endOf(index) > m_endingAfter; }
    std::vector<const ShowItem*> merged() const;

    Lists m_lists;
    Moment m_endingAfter;
    mutable std::once_flag m_showsOnce;
    mutable std::vector<const ShowItem*> m_shows;
};

} // namespace guide
