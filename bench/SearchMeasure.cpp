// From a key stroke in the search field to the drawn list of results, over 80,080 shows. The floor is the
// bare query and the drawing of one screen of rows.

#include "GeneratedShows.h"
#include "WindowMeasure.h"
#include "screens/ScreenWorld.h"
#include "screens/search/SearchViewController.h"
#include "store/AllShows.h"
#include "store/SearchText.h"
#include "ui/GuideWindow.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace guide::bench {
namespace {

constexpr double kAtMost = 2;
constexpr int kChannels = 286;
constexpr int kRounds = 15;
/// More than a window shows.
constexpr int kRowsOfAScreen = 16;

/// The CPU time of the process in milliseconds: what other programs do does not count.
double processTime() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// The median time of the step for each text, added up.
template <class Step>
double timeOf(const QStringList& texts, Step step) {
    std::vector<std::vector<double>> times(static_cast<std::size_t>(texts.size()));
    for (int round = 0; round < kRounds; ++round) {
        for (qsizetype text = 0; text < texts.size(); ++text) {
            const double begin = processTime();
            step(texts[text]);
            times[static_cast<std::size_t>(text)].push_back(processTime() - begin);
        }
    }
    double sum = 0;
    for (std::vector<double>& each : times) {
        std::ranges::sort(each);
        sum += each[each.size() / 2];
    }
    return sum;
}

class PlainScreen final : public TableViewController {};

/// The rows of one screen: those of the results, as far as they are seen.
std::vector<Section> firstScreen(const std::vector<Section>& sections) {
    std::vector<Section> first;
    int left = kRowsOfAScreen;
    for (const Section& section : sections) {
        if (left <= 0) {
            break;
        }
        first.push_back(section);
        std::vector<Row>& rows = first.back().rows;
        rows.erase(rows.begin() + std::min<std::ptrdiff_t>(std::ssize(rows), left), rows.end());
        left -= static_cast<int>(rows.size());
    }
    return first;
}

int measure() {
    test::ScreenWorld world;
    world.clock.set(kNow);
    Words words(1);
    // The store changes the shows that it is given.
    Words sameWords(1);
    ParsedLists parsed;
    std::vector<LoadItem> items;
    AllShows::Lists lists;
    for (int channel = 0; channel < kChannels; ++channel) {
        const ObjectId id = world.addChannel(u"Channel %1"_s.arg(channel));
        parsed[id] = generatedShows(channel, words);
        for (const ExtendedTVEntry& show : parsed[id]) {
            show.basic->setChannel(id);
        }
        lists.push_back(generatedList(channel, sameWords));
        items.push_back({id, u"source"_s, u"cs"_s});
    }
    const AllShows all(lists, Moment::min());
    world.start();
    world.listings->merge(items, std::move(parsed), kNow, ListingsType::XMLTV);
    world.queues.runAll();

    GuideWindow guide(*world.tabs, {.motion = false});
    if (!guide.loaded()) {
        fail("the window cannot be drawn");
    }
    constexpr int kSearchTab = 2;
    world.tabs->setSelectedIndex(kSearchTab);
    guide.show();
    QQuickWindow& window = openedWindow();
    auto& search = dynamic_cast<SearchViewController&>(world.top());

    // As the user types a frequent and a rare word.
    const QString frequent = words.word(3);
    const QString rare = words.word(5000) + u' ' + words.word(7);
    QStringList texts;
    for (const QString& text : {frequent, rare}) {
        for (qsizetype length = 1; length <= text.size(); ++length) {
            texts << text.left(length);
        }
    }
    std::vector<std::vector<Section>> screens;
    const double guideTime = timeOf(texts, [&](const QString& text) {
        search.editSearchText(text);
        world.queues.runAll();
        drawFrame(window, [] {});
        if (screens.size() < static_cast<std::size_t>(texts.size())) {
            screens.push_back(firstScreen(search.table().sections()));
        }
    });
    if (screens.front().empty() ||
        all.showsContaining(searchPattern(texts.front()), kNow, kMostShows).size() <
            static_cast<std::size_t>(kRowsOfAScreen)) {
        fail("the search found too little");
    }

    search.cancelSearch();
    auto plain = std::make_shared<PlainScreen>();
    world.tabs->selectedNavigationController().push(plain);
    world.queues.runAll();
    drawFrame(window, [] {});
    const double floorTime = timeOf(texts, [&](const QString& text) {
        if (all.showsContaining(searchPattern(text), kNow, kMostShows).size() > kMostShows) {
            fail("the query has no limit");
        }
        plain->table().setSections(screens[static_cast<std::size_t>(texts.indexOf(text))]);
        drawFrame(window, [] {});
    });
    std::printf(
        "{\"row\": \"key stroke to search results, 80,080 shows\", \"unit\": \"ms\", \"guide\": %.2f, "
        "\"floor\": %.2f, \"atMost\": %g}\n",
        guideTime / double(texts.size()), floorTime / double(texts.size()), kAtMost);
    return 0;
}

} // namespace
} // namespace guide::bench

int main(int argc, char** argv) {
    guide::bench::prepareWindows();
    const QGuiApplication application(argc, argv);
    return guide::bench::measure();
}
