#pragma once

#include "store/ShowItem.h"

namespace guide {

/// The list of the most watched shows. Any thread.
class PopularShows {
  public:
    virtual ~PopularShows() = default;
    /// Null when there is no list.
    virtual ShowList popularShows() const = 0;
    virtual bool contains(const ShowItem& item) const = 0;
    /// Starts the refresh of the list and returns; the new list is stored later.
    virtual void refresh() = 0;
};

} // namespace guide
