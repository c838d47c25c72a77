#pragma once

#include "platform/BackgroundTasks.h"
#include "platform/LifeCycle.h"
#include "probe/DeviceWorld.h"
#include "store/ListingsObserver.h"

namespace guide::probe {

/// What the guide's objects need beside stores, and do nothing here.
struct DeviceWorld::Surroundings {
    /// Each removal ends before the next, so that each is told.
    struct OneByOne final : FavoriteActions {
        explicit OneByOne(DeviceWorld& own)
            : world(own) {}
        void addFavorite(const QString& title) override { world.m_favoriteOperations->addFavorite(title); }
        void removeFavorites(const QStringList& titles) override {
            for (const QString& title : titles) {
                world.m_favoriteOperations->removeFavorite(title);
                world.m_queues.runAll();
            }
        }
        bool noteAlarmSet(const QString& title) override {
            return world.m_favoriteOperations->noteAlarmSet(title);
        }
        void restoreFavorites(const FavoritesSnapshot& before, const QStringList& titles) override {
            world.m_favoriteOperations->restoreFavorites(before, titles);
        }
        DeviceWorld& world;
    };
    struct Tasks final : BackgroundTasks {
        BackgroundTaskId beginBackgroundTask(Block) override { return ++last; }
        void endBackgroundTask(BackgroundTaskId) override {}
        BackgroundTaskId last = kBackgroundTaskInvalid;
    };
    struct State final : ApplicationStateSource {
        ApplicationState applicationState() const override { return current; }
        ApplicationState current = ApplicationState::Active;
    };
    struct Observer final : ListingsObserver {
        void listingsReplaced() override {}
    };

    Surroundings(DeviceWorld& world, bool background)
        : favoriteActions(world) {
        state.current = background ? ApplicationState::Background : ApplicationState::Active;
    }

    OneByOne favoriteActions;
    Tasks tasks;
    State state;
    Observer observer;
};

} // namespace guide::probe
