#pragma once

#include "store/ChannelList.h"
#include "store/SearchText.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace guide {

/// The shows of all channels in one state of the store, without those that had ended. Immutable; any thread.
///
/// The list and its search text are built on first use, from those of the last state that was built, so that
/// a change costs its own size and a copy of the rest.
class AllShows {
  public:
    using Lists = std::vector<std::shared_ptr<const ChannelList>>;

    struct Show {
        Moment start;
        Moment end;
        const ShowItem* item;
        /// The index of its list.
        std::uint32_t list;
        /// As ChannelList::titleHashOf().
        std::uint32_t titleHash;
    };

    /// Of shows with equal starts, those of an earlier list come first. `previous` is the state before this
    /// one, or null.
    AllShows(Lists lists, Moment endingAfter, const std::shared_ptr<const AllShows>& previous = nullptr);

    /// In ascending start time. Valid as long as this object.
    const std::vector<Show>& shows() const;

    /// The first `limit` shows, in ascending start time, that contain the pattern in one of their texts and
    /// are not over.
    ShowItems showsContaining(const QByteArray& searchPattern, Moment now, std::size_t limit) const;

  private:
    std::shared_ptr<const AllShows> lastBuilt(std::shared_ptr<const AllShows> self) const;
    const SearchText& searchText() const;
    const SearchText* searchTextIfBuilt() const;
    /// Builds the shows, and their search text if the base has one.
    void build(const AllShows* base) const;
    std::vector<Show> mergedShows(const std::vector<bool>& ofLists) const;
    /// Merges what is left of the base with the shows of lists that it lacks. `numbers` maps the base's lists
    /// to this state's.
    void mergeWithBase(const AllShows& base, const std::vector<std::uint32_t>& numbers,
                       const std::vector<Show>& added) const;

    const Lists m_lists;
    const Moment m_endingAfter;

    mutable std::once_flag m_buildShows;
    mutable std::once_flag m_buildText;
    mutable std::vector<Show> m_shows;
    mutable std::unique_ptr<const SearchText> m_text;

    mutable std::mutex m_guard;
    mutable std::shared_ptr<const AllShows>
        m_base;                        // guarded; the last state that was built, until this one is
    mutable bool m_showsBuilt = false; // guarded
    mutable bool m_textBuilt = false;  // guarded
};

} // namespace guide
