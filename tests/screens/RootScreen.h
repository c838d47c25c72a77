#pragma once

#include "ScreenWorld.h"
#include "screens/root/RootViewController.h"

namespace guide::test {

/// The first screen in a window.
class RootViewControllerTest : public testing::Test {
  protected:
    RootViewController& root() {
        return dynamic_cast<RootViewController&>(
            *world.tabs->tabs()[0].navigationController->viewControllers().front());
    }
    Table& table() { return root().table(); }
    /// Opens the window of a guide with one channel, which has these shows.
    ObjectId begin(const std::vector<WorldShow>& shows = {}) {
        const ObjectId channel = world.addChannel(u"Jedna"_s);
        world.start();
        if (!shows.empty()) {
            world.load(channel, shows);
        }
        world.show();
        return channel;
    }
    void send(int row, const RowEvent& event) { root().sendRowEvent(table().rowAt(row).id, event); }
    void display(int row) { root().rowDisplayed(table().rowAt(row).id); }

    ScreenWorld world;
};

} // namespace guide::test
