#include "store/RecordPopularShows.h"

#include "store/AllShows.h"

#include <QHash>

#include <algorithm>
#include <mutex>
#include <unordered_set>
#include <utility>

namespace guide {

namespace {

constexpr std::size_t kMostRecords = 1000;
constexpr std::size_t kKeptRecords = 900;
constexpr std::size_t kMostTitles = 12;
constexpr std::size_t kMostPopularShows = 1000;

} // namespace

struct RecordPopularShows::State {
    struct Stored {
        ShowList list;
        std::unordered_set<ShowDigest, ShowDigestHash> digests;
    };

    explicit State(Environment ownEnvironment)
        : environment(std::move(ownEnvironment))
        , queue(environment.queues.makeQueue("popularShows", QueueKind::Serial, QueuePriority::Background)) {}

    std::shared_ptr<const Stored> current() const {
        const std::lock_guard lock(guard);
        return stored;
    }

    void publish(ShowList list) {
        auto next = std::make_shared<Stored>();
        for (const ShowItem& show : *list) {
            if (const auto digest = show.entry()->digest()) {
                next->digests.insert(*digest);
            }
        }
        next->list = std::move(list);
        const std::lock_guard lock(guard);
        stored = std::move(next);
    }

    const Environment environment;
    const std::shared_ptr<DispatchQueue> queue;
    mutable std::mutex guard;
    std::shared_ptr<const Stored> stored = std::make_shared<const Stored>(); // guarded
    std::shared_ptr<const AllShows> waiting;                                 // guarded
};

RecordPopularShows::RecordPopularShows(Environment environment)
    : m_state(std::make_shared<State>(std::move(environment))) {}

ShowList RecordPopularShows::popularShows() const {
    return m_state->current()->list;
}

bool RecordPopularShows::contains(const ShowItem& item) const {
    const auto stored = m_state->current();
    if (stored->digests.empty()) {
        return false;
    }
    const auto digest = item.entry()->digest();
    return digest && stored->digests.contains(*digest);
}

bool RecordPopularShows::isShared() const {
    return m_state->environment.records && m_state->environment.records->isShared();
}

void RecordPopularShows::restore(ShowList kept) {
    m_state->publish(std::move(kept));
}

void RecordPopularShows::refresh(std::shared_ptr<const AllShows> shows) {
    if (!isShared()) {
        return;
    }
    {
        const std::lock_guard lock(m_state->guard);
        if (std::exchange(m_state->waiting, std::move(shows))) {
            return;
        }
    }
    m_state->queue->async([state = m_state] {
        std::shared_ptr<const AllShows> all;
        {
            const std::lock_guard lock(state->guard);
            all = std::exchange(state->waiting, nullptr);
        }
        RecordStore& store = *state->environment.records;
        std::vector<CounterRecord> records =
            store.countersByModification(kMostRecords).value_or(std::vector<CounterRecord>());
        if (records.empty()) {
            return;
        }
        std::vector<QString> titles;
        titles.reserve(records.size());
        for (CounterRecord& record : records) {
            titles.push_back(std::move(record.title));
        }
        if (titles.size() > kKeptRecords) {
            const auto extra = static_cast<std::ptrdiff_t>(titles.size() - kKeptRecords);
            store.removeCounters({titles.end() - extra, titles.end()});
            // Those of the newest titles do not count this time; those that were removed still do.
            titles.erase(titles.begin(), titles.begin() + extra);
        }
        auto list = std::make_shared<const ShowItems>(popularShowsOf(*all, titles));
        state->environment.queues.mainQueue().async([state, list = std::move(list)]() mutable {
            if (const ShowList before = state->current()->list; before && *before == *list) {
                return;
            }
            state->publish(list);
            state->environment.store(std::move(list));
        });
    });
}

ShowItems popularShowsOf(const AllShows& shows, const std::vector<QString>& titles) {
    QHash<QString, std::vector<const ShowItem*>> byTitle;
    byTitle.reserve(static_cast<qsizetype>(titles.size()));
    for (const QString& title : titles) {
        byTitle.insert(title, {});
    }
    for (const AllShows::Show& show : shows.shows()) {
        const auto& title = show.item->entry()->identificator();
        const auto wanted = title ? byTitle.find(*title) : byTitle.end();
        if (wanted != byTitle.end() && wanted->size() < kMostPopularShows) {
            wanted->push_back(show.item);
        }
    }
    ShowItems popular;
    std::size_t found = 0;
    for (const QString& title : titles) {
        // A title that occurs twice counts once.
        const std::vector<const ShowItem*> items = byTitle.take(title);
        for (const ShowItem* item : items) {
            if (popular.size() < kMostPopularShows) {
                popular.push_back(*item);
            }
        }
        found += items.empty() ? 0 : 1;
        if (found == kMostTitles || popular.size() == kMostPopularShows) {
            break;
        }
    }
    std::ranges::stable_sort(popular, {}, [](const ShowItem& show) { return *show.entry()->dateTime(); });
    return popular;
}

} // namespace guide
