// Opens the page of a show with every kind of text and measures the main thread's work until it is drawn. The
// floor is the first drawing of a page without rows.

#include "WindowMeasure.h"
#include "screens/ScreenWorld.h"
#include "screens/detail/DetailViewController.h"
#include "screens/shell/EmptyViewController.h"
#include "ui/GuideWindow.h"

#include <algorithm>
#include <array>

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr double kAtMost = 2.75;
constexpr int kTimes = 41;
/// The page lays out its rows in the first frame and what they load in the second.
constexpr int kFrames = 2;

ShowItem wholeShow(const test::ScreenWorld& world, const ObjectId& channel) {
    ExtendedTVEntry show = world.entry(channel, {0, 90, u"The Lighthouse at the End"_s, u"Drama, 2019"_s});
    auto extra = std::make_shared<TVEntrySupplementalData>();
    extra->directedBy = u"Anna Reed"_s;
    QStringList roles;
    for (int role = 0; role < 12; ++role) {
        roles << u"Actor %1 (Role %1)"_s.arg(role);
    }
    extra->roles = roles.join(u'\n');
    extra->description = u"Two keepers spend a winter on a rock. "_s.repeated(20);
    show.extra = std::move(extra);
    return ShowItem(std::move(show));
}

/// The time of opening a screen, in milliseconds.
double openingTime(test::ScreenWorld& world, QQuickWindow& window,
                   const std::shared_ptr<ViewController>& screen) {
    NavigationController& stack = world.tabs->selectedNavigationController();
    qint64 all = drawFrame(window, [&] {
                     stack.push(screen);
                     world.queues.runAll();
                 }).all;
    for (int frame = 1; frame < kFrames; ++frame) {
        all += drawFrame(window, [&] { world.queues.runAll(); }).all;
    }
    drawFrame(window, [&] { stack.pop(); });
    return static_cast<double>(all) / 1e6;
}

double median(std::array<double, kTimes>& times) {
    std::ranges::nth_element(times, times.begin() + kTimes / 2);
    return times[kTimes / 2];
}

int measure() {
    test::ScreenWorld world;
    const ObjectId channel = world.addChannel(u"One"_s);
    world.start();
    GuideWindow guide(*world.tabs, {.motion = false});
    if (!guide.loaded()) {
        fail("the window cannot be drawn");
    }
    guide.show();
    world.show();
    QQuickWindow& window = openedWindow();
    const ShowItem show = wholeShow(world, channel);
    const auto page = [&] {
        return std::make_shared<DetailViewController>(world.environment, show, QString());
    };
    const auto empty = [] {
        return std::make_shared<EmptyViewController>(u"Empty"_s, EmptyNote{u"Nothing"_s, {}});
    };
    // Compiles the pages.
    drawFrame(window, [&] { world.tabs->selectedNavigationController().push(page()); });
    const QQuickItem* list = listIn(window.contentItem());
    if (!list || list->property("count").toInt() < 6) {
        fail("the page of the show did not open");
    }
    drawFrame(window, [&] { world.tabs->selectedNavigationController().pop(); });
    std::array<double, kTimes> floors{};
    std::array<double, kTimes> times{};
    // Alternately, because the processor's speed changes.
    for (std::size_t time = 0; time < kTimes; ++time) {
        floors[time] = openingTime(world, window, empty());
        times[time] = openingTime(world, window, page());
    }
    const double floor = median(floors);
    const double time = median(times);
    std::printf("{\"row\": \"a show's page opened\", \"unit\": \"ms\", \"guide\": %.2f, \"floor\": %.2f, "
                "\"atMost\": %g}\n",
                time, floor, kAtMost);
    return 0;
}

} // namespace
} // namespace guide::bench

int main(int argc, char** argv) {
    guide::bench::prepareWindows();
    const QGuiApplication application(argc, argv);
    return guide::bench::measure();
}
