#pragma once

#include "store/ShowItem.h"

#include <memory>

namespace guide {

class AllShows;

/// The list of the most watched shows. Any thread.
class PopularShows {
  public:
    virtual ~PopularShows() = default;
    /// Null when there is no list.
    virtual ShowList popularShows() const = 0;
    virtual bool contains(const ShowItem& item) const = 0;
    /// Whether there are counters that several users share. Without them no new list is made.
    virtual bool isShared() const = 0;
    /// The list that the store has read from its file.
    virtual void restore(ShowList kept) = 0;
    /// Starts choosing a new list from these shows and returns; the list is stored later.
    virtual void refresh(std::shared_ptr<const AllShows> shows) = 0;
};

} // namespace guide
