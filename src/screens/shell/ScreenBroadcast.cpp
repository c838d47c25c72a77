#include "screens/shell/ScreenBroadcast.h"

#include <memory>
#include <vector>

namespace guide {

void ScreenBroadcast::applicationDidBecomeActive() {
    forEachScreen([](ListingsScreen& screen) { screen.applicationDidBecomeActive(); });
}

void ScreenBroadcast::applicationDidEnterBackground() {
    forEachScreen([](ListingsScreen& screen) { screen.applicationDidEnterBackground(); });
}

void ScreenBroadcast::offerTopShows(const TopShows& top) {
    if (m_applicationState.applicationState() != ApplicationState::Background) {
        forEachScreen([&top](ListingsScreen& screen) { screen.offerTopShows(top); });
    }
}

void ScreenBroadcast::loadsEnded(const std::unordered_set<ObjectId>& channels) {
    if (m_applicationState.applicationState() != ApplicationState::Background) {
        forEachScreen([&channels](ListingsScreen& screen) { screen.loadsEnded(channels); });
    }
}

void ScreenBroadcast::reloadData() {
    forEachScreen([](ListingsScreen& screen) { screen.reloadData(); });
}

void ScreenBroadcast::recolor() {
    forEachScreen([](ListingsScreen& screen) { screen.recolor(); });
}

void ScreenBroadcast::favoritesUpdated() {
    forEachScreen([](ListingsScreen& screen) { screen.favoritesUpdated(); });
}

void ScreenBroadcast::notificationsSynched() {
    forEachScreen([](ListingsScreen& screen) { screen.notificationsSynched(); });
}

void ScreenBroadcast::selectionCleanedUp() {
    forEachScreen([](ListingsScreen& screen) { screen.selectionCleanedUp(); });
}

void ScreenBroadcast::setModifiedSelectedChannels() {
    forEachScreen([](ListingsScreen& screen) { screen.setModifiedSelectedChannels(true); });
}

void ScreenBroadcast::ownSourcesChanged() {
    forEachScreen([](ListingsScreen& screen) { screen.ownSourcesChanged(); });
}

void ScreenBroadcast::forEachScreen(const std::function<void(ListingsScreen&)>& call) const {
    // A copy, because a screen may change a stack.
    std::vector<std::shared_ptr<ViewController>> screens;
    for (const TabBarController::Tab& tab : m_tabBarController.tabs()) {
        for (const NavigationController* stack = tab.navigationController.get(); stack;
             stack = stack->presentedStack()) {
            screens.insert(screens.end(), stack->viewControllers().begin(), stack->viewControllers().end());
        }
    }
    for (const std::shared_ptr<ViewController>& viewController : screens) {
        if (auto* screen = dynamic_cast<ListingsScreen*>(viewController.get())) {
            call(*screen);
        }
    }
}

} // namespace guide
