#include "demo/schedule/BlockFitting.h"

#include "demo/schedule/ProgrammeKind.h"

#include <algorithm>
#include <cstdlib>

namespace guide {

namespace {

constexpr int kStep = 5;

struct Bounds {
    int shortest = 0;
    int longest = 0;
};

/// "film" is any of the genres.
Bounds durationBounds(const PlannedItem& item) {
    if (item.kind == u"film") {
        return {85, 125};
    }
    const ProgrammeKind* const kind = programmeKind(item.kind);
    return kind == nullptr ? Bounds{} : Bounds{kind->shortest, kind->longest};
}

Bounds totalBounds(const std::vector<PlannedItem>& items) {
    Bounds sum;
    for (const PlannedItem& item : items) {
        const Bounds bounds = durationBounds(item);
        sum.shortest += bounds.shortest;
        sum.longest += bounds.longest;
    }
    return sum;
}

/// The items, with filling ones repeated `times` times.
std::vector<PlannedItem> repeated(const std::vector<PlannedItem>& items, int times) {
    std::vector<PlannedItem> result;
    for (const PlannedItem& item : items) {
        result.insert(result.end(), std::size_t(item.filling ? times : 1), item);
    }
    return result;
}

} // namespace

std::vector<FittedItem> fitBlock(const std::vector<PlannedItem>& items, int minutes, Random& random) {
    const bool fills =
        std::any_of(items.begin(), items.end(), [](const PlannedItem& item) { return item.filling; });
    std::vector<PlannedItem> chosen = repeated(items, fills ? 0 : 1);
    for (int times = 1; fills; ++times) {
        std::vector<PlannedItem> longer = repeated(items, times);
        const Bounds now = totalBounds(chosen);
        const Bounds next = totalBounds(longer);
        const bool closer = std::abs(next.shortest + next.longest - 2 * minutes) <
                            std::abs(now.shortest + now.longest - 2 * minutes);
        if (next.shortest > minutes || (now.longest >= minutes && !closer)) {
            break;
        }
        chosen = std::move(longer);
    }
    while (!chosen.empty() && totalBounds(chosen).shortest > minutes) {
        chosen.pop_back();
    }
    while (totalBounds(chosen).longest < minutes) {
        chosen.push_back({.kind = QStringLiteral("short")});
    }

    std::vector<FittedItem> fitted;
    int over = -minutes;
    for (const PlannedItem& item : chosen) {
        const Bounds bounds = durationBounds(item);
        fitted.push_back({item, random.between(bounds.shortest / kStep, bounds.longest / kStep) * kStep});
        over += fitted.back().minutes;
    }
    while (over != 0) {
        FittedItem& item = fitted[random.below(fitted.size())];
        const Bounds bounds = durationBounds(item.item);
        if (over > 0 && item.minutes > bounds.shortest) {
            item.minutes -= kStep;
            over -= kStep;
        } else if (over < 0 && item.minutes < bounds.longest) {
            item.minutes += kStep;
            over += kStep;
        }
    }
    return fitted;
}

} // namespace guide
