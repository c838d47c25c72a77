#include "store/ListMerge.h"

#include <algorithm>
#include <array>

namespace guide {

namespace {

constexpr std::chrono::seconds kLengthOfLastShow{7200};
constexpr std::ptrdiff_t kFarMore = 4;

/// The pages of all other types contain only start times.
bool hasEnds(ListingsType type) {
    return type == ListingsType::PortNetwork || type == ListingsType::XMLTV;
}

Moment startOf(const ExtendedTVEntry& show) {
    return *show.basic->dateTime();
}

void setEnds(std::vector<ExtendedTVEntry>& shows) {
    for (std::size_t i = 0; i < shows.size(); ++i) {
        shows[i].basic->setEndDateTime(i + 1 < shows.size() ? startOf(shows[i + 1])
                                                            : startOf(shows[i]) + kLengthOfLastShow);
    }
}

/// The stored shows that start after the last one that was read and are not over.
ShowSpan storedAfter(Moment last, const ShowList& stored, Moment now) {
    if (!stored) {
        return {};
    }
    const auto later = std::partition_point(stored->begin(), stored->end(), [last](const ShowItem& show) {
        return show.entry()->dateTime() <= last;
    });
    const auto rest = std::find_if(later, stored->end(), [now](const ShowItem& show) {
        return show.entry()->dateTime() > now || show.entry()->endsAfter(now);
    });
    const auto first = static_cast<std::size_t>(rest - stored->begin());
    return {stored, first, stored->size() - first};
}

std::ptrdiff_t countToCome(const ShowList& stored, Moment now) {
    return stored ? std::ranges::count_if(
                        *stored, [now](const ShowItem& show) { return show.entry()->endsAfter(now); })
                  : 0;
}

} // namespace

bool isEmptySlotTitle(QStringView title) {
    static constexpr std::array<QStringView, 6> kPlaceholders{
        u"No information",    u"Nincs információ", u"Není informace",
        u"Nie je informácia", u"Nema sadržaja",    u"Nema podataka",
    };
    return std::find(kPlaceholders.begin(), kPlaceholders.end(), title) != kPlaceholders.end();
}

MergedList mergedList(std::vector<ExtendedTVEntry> parsed, const QString& language, Moment now,
                      ListingsType type, const ReadOutcome& read, const ShowList& stored) {
    std::erase_if(parsed, [](const ExtendedTVEntry& show) { return !show.basic || !show.basic->dateTime(); });
    std::stable_sort(parsed.begin(), parsed.end(), [](const ExtendedTVEntry& a, const ExtendedTVEntry& b) {
        return startOf(a) < startOf(b);
    });
    if (!parsed.empty() && isEmptySlotTitle(parsed.back().basic->identificator().value_or(QString()))) {
        parsed.pop_back();
    }
    parsed.erase(std::unique(parsed.begin(), parsed.end(),
                             [](const ExtendedTVEntry& a, const ExtendedTVEntry& b) {
                                 return startOf(a) == startOf(b);
                             }),
                 parsed.end());
    if (!hasEnds(type)) {
        setEnds(parsed);
    }
    if (parsed.empty()) {
        return {nullptr, MergeOutcome::Empty};
    }
    const auto first = std::find_if(parsed.begin(), parsed.end(), [now](const ExtendedTVEntry& show) {
        return show.basic->endsAfter(now);
    });
    if (first == parsed.end()) {
        return {nullptr, MergeOutcome::OnlyPast};
    }
    if (read.keepsRicher && (parsed.end() - first) * kFarMore < countToCome(stored, now)) {
        return {nullptr, MergeOutcome::Poorer};
    }
    const ShowSpan rest = read.incomplete ? storedAfter(startOf(parsed.back()), stored, now) : ShowSpan();
    if (!hasEnds(type) && !rest.empty()) {
        parsed.back().basic->setEndDateTime(rest[0].entry()->dateTime());
    }
    ShowItems items;
    const auto count = static_cast<std::size_t>(parsed.end() - first);
    items.reserve(std::min(count + rest.size(), kMostShowsOfChannel));
    for (auto show = first; show != parsed.end() && items.size() < kMostShowsOfChannel; ++show) {
        show->basic->setLanguage(language);
        items.emplace_back(std::move(*show));
    }
    const ShowSpan kept = rest.prefix(kMostShowsOfChannel - items.size());
    items.insert(items.end(), kept.begin(), kept.end());
    return {std::make_shared<const ShowItems>(std::move(items)), MergeOutcome::Stored};
}

MergeResult mergedLists(const std::vector<LoadItem>& items, ParsedLists parsed, Moment now, ListingsType type,
                        const ReadOutcome& read, const std::unordered_map<ObjectId, ShowList>& stored) {
    MergeResult result;
    result.read = read;
    for (const LoadItem& item : items) {
        if (result.outcomes.contains(item.channel)) {
            continue;
        }
        auto shows = parsed.extract(item.channel);
        result.read.incomplete =
            result.read.incomplete || (shows && shows.mapped().size() > kMostShowsOfChannel);
        const auto earlier = stored.find(item.channel);
        MergedList merged =
            mergedList(shows ? std::move(shows.mapped()) : std::vector<ExtendedTVEntry>(), item.language, now,
                       type, read, earlier == stored.end() ? nullptr : earlier->second);
        result.outcomes.emplace(item.channel, merged.outcome);
        if (merged.list) {
            result.lists.emplace(item.channel, std::move(merged.list));
        }
    }
    return result;
}

} // namespace guide
