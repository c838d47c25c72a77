#pragma once

#include "alarms/AlarmSynchronisation.h"
#include "alarms/Favorites.h"
#include "alarms/PendingAlarms.h"
#include "store/ListingsObserver.h"
#include "store/PopularShows.h"

#include <QSet>
#include <QStringList>

#include <atomic>
#include <functional>

namespace guide::test {

/// Favourite rules, and for the titles rules without alarms.
struct FakeFavorites final : FavoritesSource {
    std::shared_ptr<const FavoritesSnapshot> snapshot() const override {
        std::vector<Favorite> all = rules;
        for (const QString& title : titles) {
            all.push_back({title, {}, {}, {}});
        }
        return std::make_shared<const FavoritesSnapshot>(std::move(all));
    }
    QStringList titles;
    std::vector<Favorite> rules;
};

struct FakePopularShows final : PopularShows {
    ShowList popularShows() const override { return list; }
    bool contains(const ShowItem& item) const override {
        return item.entry()->title() && titles.contains(*item.entry()->title());
    }
    bool isShared() const override { return shared; }
    void restore(ShowList kept) override { list = std::move(kept); }
    void refresh(std::shared_ptr<const AllShows>) override { ++refreshes; }

    bool shared = true;
    ShowList list;
    QSet<QString> titles;
    std::atomic<int> refreshes = 0;
};

struct FakeAlarms final : AlarmsSource, AlarmSynchronisation {
    std::shared_ptr<const AlarmsSnapshot> snapshot() const override {
        return source ? source->snapshot() : std::make_shared<const AlarmsSnapshot>(events);
    }
    void setSynchronized(bool synchronized) override { m_isSynchronized = synchronized; }
    bool isSynchronized() const override { return m_isSynchronized; }
    void syncAlarms() override { ++syncs; }
    bool isRunning() const override { return running; }
    bool hasCalendarAccess() const override { return false; }
    void commit() override { ++commits; }

    AlarmsSnapshot::MinutesByShow events;
    /// Takes the place of the events.
    const AlarmsSource* source = nullptr;
    std::atomic<int> syncs = 0;
    int commits = 0;
    bool running = false;

  private:
    std::atomic<bool> m_isSynchronized = true;
};

struct CountingListingsObserver final : ListingsObserver {
    void listingsReplaced() override {
        ++replacements;
        if (told) {
            told();
        }
    }
    std::atomic<int> replacements = 0;
    /// Set while nothing else uses the store.
    std::function<void()> told = {};
};

} // namespace guide::test
