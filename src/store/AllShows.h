#pragma once

#include "store/ChannelList.h"
#include "store/SearchText.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace guide {

/// The shows of all channels, as they were at one change of the store, that end after that moment.
///
/// The list is made when it is first asked for, and so is its search text. Both are made of those of the last
/// list that was made before, so that a change costs what it changes and a copy of the rest. Never changes
/// from outside; any thread.
class AllShows {
  public:
    using Lists = std::vector<std::shared_ptr<const ChannelList>>;

    struct Show {
        Moment start;
        Moment end;
        const ShowItem* item;
        /// The number of its list.
        std::uint32_t list;
    };

    /// Of shows with equal starts those of an earlier list come first. `previous`, if any, is the list
    /// before.
    AllShows(Lists lists, Moment endingAfter, const std::shared_ptr<const AllShows>& previous = nullptr);

    /// In ascending start time. Valid as long as this object.
    const std::vector<Show>& shows() const;

    /// The first so many shows, in ascending start time, that hold the pattern in one of their texts and are
    /// not over at the moment.
    ShowItems showsContaining(const QByteArray& searchPattern, Moment now, std::size_t limit) const;

  private:
    std::shared_ptr<const AllShows> lastMade(std::shared_ptr<const AllShows> self) const;
    const SearchText& searchText() const;
    const SearchText* searchTextIfMade() const;
    /// Makes the shows, and their search text where the base has one.
    void make(const AllShows* base) const;
    std::vector<Show> mergedShows(const std::vector<bool>& ofLists) const;
    /// Merges what is left of the base with the shows of lists that it does not have. `numbers` are the
    /// numbers of the base's lists here.
    void mergeWithBase(const AllShows& base, const std::vector<std::uint32_t>& numbers,
                       const std::vector<Show>& added) const;

    const Lists m_lists;
    const Moment m_endingAfter;

    mutable std::once_flag m_makingShows;
    mutable std::once_flag m_makingText;
    mutable std::vector<Show> m_shows;
    mutable std::unique_ptr<const SearchText> m_text;

    mutable std::mutex m_guard;
    mutable std::shared_ptr<const AllShows> m_base; // guarded; the last list that was made, until this one is
    mutable bool m_showsMade = false;               // guarded
    mutable bool m_textMade = false;                // guarded
};

} // namespace guide
