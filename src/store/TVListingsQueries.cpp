#include "store/ScheduleQueries.h"
#include "store/TVListingsState.h"

#include <QDateTime>

namespace guide {

std::vector<ShowSpan> TVListings::State::onAirShows(const std::vector<ObjectId>& channels, int limit) const {
    const Moment now = environment.clock.now();
    const std::size_t most = static_cast<std::size_t>(std::max(limit, 0));
    std::vector<ShowSpan> shows;
    shows.reserve(channels.size());
    for (const ObjectId& channel : channels) {
        if (const auto stored = lists.find(channel); stored != lists.end()) {
            shows.push_back(stored->second->notOver(now, most));
        } else if (const auto read = readList(channel).list) {
            shows.push_back(read->notOver(now, most));
        } else {
            shows.emplace_back();
        }
    }
    return shows;
}

void TVListings::State::answerShows(
    QueuePriority priority, MainBlock<ShowSpan> mainBlock,
    std::function<ShowItems(const TVListingsEnvironment&, const AllShows&)> find) {
    queryAllShows(priority, [mainBlock = std::move(mainBlock),
                             find = std::move(find)](State& state, const AllShows& all) mutable {
        mainBlock.post(state.mainQueue(), ShowSpan(find(state.environment, all)));
    });
}

void TVListings::onAirShowsWithQueue(
    std::shared_ptr<DispatchQueue> queue,
    std::function<void(std::vector<ObjectId>, std::vector<ShowSpan>)> block) {
    m_state->query([queue = std::move(queue), block = std::move(block),
                    selected = m_state->environment.channels.selected(),
                    limit = m_state->environment.showCount()](State& state) mutable {
        std::vector<ShowSpan> shows = state.onAirShows(selected, limit);
        queue->async([block = std::move(block), selected = std::move(selected),
                      shows = std::move(shows)]() mutable { block(std::move(selected), std::move(shows)); });
    });
}

void TVListings::onAirShows(MainBlock<std::vector<ObjectId>, std::vector<ShowSpan>> mainBlock) {
    m_state->query([mainBlock = std::move(mainBlock), selected = m_state->environment.channels.selected(),
                    limit = m_state->environment.showCount()](State& state) mutable {
        std::vector<ShowSpan> shows = state.onAirShows(selected, limit);
        mainBlock.post(state.mainQueue(), std::move(selected), std::move(shows));
    });
}

void TVListings::cachedListForChannel(const ObjectId& channel, MainBlock<ShowSpan> mainBlock) {
    m_state->query([channel, mainBlock = std::move(mainBlock)](State& state) mutable {
        const auto list = state.lists.find(channel);
        mainBlock.post(state.mainQueue(), list == state.lists.end()
                                              ? ShowSpan()
                                              : list->second->notOver(state.environment.clock.now()));
    });
}

void TVListings::showCountForSelectedChannelsForQueue(std::shared_ptr<DispatchQueue> queue,
                                                      std::function<void(ShowCounts)> block) {
    m_state->query([queue = std::move(queue), block = std::move(block),
                    selected = m_state->environment.channels.selected(),
                    limit = m_state->environment.showCount()](State& state) mutable {
        const Moment now = state.environment.clock.now();
        const std::size_t most = static_cast<std::size_t>(std::max(limit, 0));
        ShowCounts counts;
        for (const ObjectId& channel : selected) {
            const auto list = state.lists.find(channel);
            counts[channel] =
                list == state.lists.end() ? 0 : static_cast<unsigned>(list->second->countNotOver(now, most));
        }
        queue->async(
            [block = std::move(block), counts = std::move(counts)]() mutable { block(std::move(counts)); });
    });
}

void TVListings::showsWithCategory(TVListingsCategory category, QueuePriority priority,
                                   MainBlock<ShowSpan> mainBlock) {
    m_state->answerShows(priority, std::move(mainBlock),
                         [category](const TVListingsEnvironment& environment, const AllShows& all) {
                             return guide::showsWithCategory(all, category, environment.clock.now());
                         });
}

void TVListings::allShowsWithCategory(TVListingsCategory category, QueuePriority priority,
                                      MainBlock<ShowSpan> mainBlock) {
    m_state->answerShows(priority, std::move(mainBlock),
                         [category](const TVListingsEnvironment& environment, const AllShows& all) {
                             const Moment now = environment.clock.now();
                             return category == TVListingsCategoryMostWatched
                                        ? showsNotEnded(environment.popularShows.popularShows(), now)
                                        : guide::allShowsWithCategory(all, category, now,
                                                                      environment.device.timeZone());
                         });
}

void TVListings::showCountsOfToday(std::vector<TVListingsCategory> selectors, QueuePriority priority,
                                   MainBlock<std::vector<int>> mainBlock) {
    m_state->queryAllShows(priority, [selectors = std::move(selectors), mainBlock = std::move(mainBlock)](
                                         State& state, const AllShows& all) mutable {
        const TVListingsEnvironment& environment = state.environment;
        const Moment now = environment.clock.now();
        const QTimeZone zone = environment.device.timeZone();
        const QDate today = QDateTime::fromMSecsSinceEpoch(now.time_since_epoch().count(), zone).date();
        const Moment midnight(
            std::chrono::milliseconds(today.addDays(1).startOfDay(zone).toMSecsSinceEpoch()));
        mainBlock.post(state.mainQueue(), showCounts(all, environment.popularShows.popularShows(), selectors,
                                                     now, midnight, zone));
    });
}

void TVListings::showsContainingPattern(const QString& pattern, ShowsBlock highPriorityBlock) {
    m_state->queryAllShows(QueuePriority::UserInitiated,
                           [pattern = searchPattern(pattern),
                            block = std::move(highPriorityBlock)](State& state, const AllShows& all) {
                               block(all.showsContaining(pattern, state.environment.clock.now(), kMostShows));
                           });
}

void TVListings::showWithURL(const QUrl& url, MainBlock<ShowItem> mainBlock, MainBlock<> notFound) {
    m_state->queryAllShows(
        QueuePriority::UserInitiated, [url, mainBlock = std::move(mainBlock), notFound = std::move(notFound)](
                                          State& state, const AllShows& all) mutable {
            if (std::optional<ShowItem> show = guide::showWithURL(all, url, state.environment.scheme)) {
                mainBlock.post(state.mainQueue(), *std::move(show));
                return;
            }
            // What the block captured is released on the main queue even if the block is not called.
            state.mainQueue().async([unused = std::move(mainBlock)] {});
            notFound.post(state.mainQueue());
        });
}

void TVListings::favoritesScheduleWithPriority(QueuePriority priority, MainBlock<ShowSpan> mainBlock) {
    m_state->answerShows(
        priority, std::move(mainBlock), [](const TVListingsEnvironment& environment, const AllShows& all) {
            return favoritesSchedule(all, *environment.favorites.titles(), environment.clock.now());
        });
}

void TVListings::favoritesScheduleWithBlock(ShowsBlock block) {
    m_state->query([block = std::move(block)](State& state) {
        block(favoritesSchedule(*state.allShows, *state.environment.favorites.titles(),
                                state.environment.clock.now()));
    });
}

void TVListings::favoritesScheduleWithURLBlock(std::function<void(FavoritesToCome)> URLBlock) {
    m_state->query([block = std::move(URLBlock)](State& state) {
        block(favoritesToCome(*state.allShows, *state.environment.favorites.titles(),
                              state.environment.clock.now()));
    });
}

void TVListings::showScheduleForTitle(const QString& title, QueuePriority priority,
                                      MainBlock<ShowSpan> mainBlock) {
    m_state->answerShows(priority, std::move(mainBlock),
                         [title](const TVListingsEnvironment& environment, const AllShows& all) {
                             return guide::showScheduleForTitle(all, title, environment.clock.now());
                         });
}

void TVListings::broadcastForTitle(const QString& title, bool previouslyShown, MainBlock<bool> mainBlock) {
    m_state->queryAllShows(QueuePriority::UserInitiated,
                           [title, previouslyShown,
                            mainBlock = std::move(mainBlock)](State& state, const AllShows& all) mutable {
                               mainBlock.post(state.mainQueue(), isBroadcast(all, title, previouslyShown,
                                                                             state.environment.clock.now()));
                           });
}

} // namespace guide
