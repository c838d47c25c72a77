#pragma once

#include "platform/BackgroundTasks.h"
#include "platform/LifeCycle.h"
#include "probe/DeviceWorld.h"
#include "store/ListingsObserver.h"
#include "store/PopularShows.h"

namespace guide::probe {

/// What the guide's objects need beside stores, and do nothing here.
struct DeviceWorld::Surroundings {
    struct Tasks final : BackgroundTasks {
        BackgroundTaskId beginBackgroundTask(Block) override { return ++last; }
        void endBackgroundTask(BackgroundTaskId) override {}
        BackgroundTaskId last = kBackgroundTaskInvalid;
    };
    struct State final : ApplicationStateSource {
        ApplicationState applicationState() const override { return current; }
        ApplicationState current = ApplicationState::Active;
    };
    struct Popular final : PopularShows {
        ShowList popularShows() const override { return nullptr; }
        bool contains(const ShowItem&) const override { return false; }
        void refresh() override {}
    };
    struct Observer final : ListingsObserver {
        void listingsReplaced() override {}
    };

    explicit Surroundings(bool background) {
        state.current = background ? ApplicationState::Background : ApplicationState::Active;
    }

    Tasks tasks;
    State state;
    Popular popularShows;
    Observer observer;
};

} // namespace guide::probe
