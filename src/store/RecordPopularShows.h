#pragma once

#include "platform/RecordStore.h"
#include "platform/queues/DispatchQueue.h"
#include "store/PopularShows.h"

#include <functional>
#include <memory>

namespace guide {

/// The shows whose titles are among the counters that were changed last.
class RecordPopularShows final : public PopularShows {
  public:
    struct Environment {
        /// Null when no counters are shared. Must outlive the last block on the queue.
        RecordStore* records = nullptr;
        DispatchQueues& queues;
        /// Stores a new list. Main queue.
        std::function<void(ShowList list)> store;
    };

    explicit RecordPopularShows(Environment environment);

    ShowList popularShows() const override;
    /// Recognises a show by its channel, start and title, so that it also finds one that was loaded again.
    bool contains(const ShowItem& item) const override;
    bool isShared() const override;
    void restore(ShowList kept) override;
    /// Of refreshes that wait only the last one is made. Also keeps the number of counters bounded. Without
    /// an answer from the record store the list stays as it is.
    void refresh(std::shared_ptr<const AllShows> shows) override;

  private:
    struct State;
    const std::shared_ptr<State> m_state;
};

/// The shows of the first titles that have any: at most 12 titles and 1,000 shows, in ascending start time.
ShowItems popularShowsOf(const AllShows& shows, const std::vector<QString>& titles);

} // namespace guide
