#include "screens/shell/ScreenBroadcast.h"

#include <memory>
#include <vector>

namespace guide {

void ScreenBroadcast::applicationDidBecomeActive() {
    tell([](ListingsScreen& screen) { screen.applicationDidBecomeActive(); });
}

void ScreenBroadcast::offerTopShows(const TopShows& top) {
    if (m_applicationState.applicationState() != ApplicationState::Background) {
        tell([&top](ListingsScreen& screen) { screen.offerTopShows(top); });
    }
}

void ScreenBroadcast::reloadData() {
    tell([](ListingsScreen& screen) { screen.reloadData(); });
}

void ScreenBroadcast::recolor() {
    tell([](ListingsScreen& screen) { screen.recolor(); });
}

void ScreenBroadcast::favoritesUpdated() {
    tell([](ListingsScreen& screen) { screen.favoritesUpdated(); });
}

void ScreenBroadcast::notificationsSynched() {
    tell([](ListingsScreen& screen) { screen.notificationsSynched(); });
}

void ScreenBroadcast::selectionCleanedUp() {
    tell([](ListingsScreen& screen) { screen.selectionCleanedUp(); });
}

void ScreenBroadcast::setModifiedSelectedChannels() {
    tell([](ListingsScreen& screen) { screen.setModifiedSelectedChannels(true); });
}

void ScreenBroadcast::tell(const std::function<void(ListingsScreen&)>& what) const {
    for (const TabBarController::Tab& tab : m_tabBarController.tabs()) {
        // A copy: a screen may change the stack.
        const std::vector<std::shared_ptr<ViewController>> stack =
            tab.navigationController->viewControllers();
        for (const std::shared_ptr<ViewController>& viewController : stack) {
            if (auto* screen = dynamic_cast<ListingsScreen*>(viewController.get())) {
                what(*screen);
            }
        }
    }
}

} // namespace guide
