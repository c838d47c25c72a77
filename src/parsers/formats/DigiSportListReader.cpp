#include "parsers/formats/DigiSportListReader.h"

#include "parsers/formats/EntryClassifier.h"
#include "parsers/formats/ReaderPages.h"
#include "parsers/markers/ZoneClock.h"

namespace guide {

namespace {

using namespace Qt::StringLiterals;

constexpr int kTabs = 15;
constexpr qsizetype kPrefixLength = 4; // "dsk."
constexpr std::chrono::hours kDay(24);
/// Shows that start earlier belong to the next calendar day.
constexpr std::chrono::hours kDayTurn(3);

/// A show as written on the page.
struct Row {
    std::chrono::minutes time;
    std::string_view title;
    std::string_view description;
};

struct SportChannel {
    const LoadItem* item;
    std::string logo;
    /// Positions of the logo in all tabs.
    MarkerPlaces logos;
    /// The rows of the last tab that has any, and the moment of that tab.
    std::vector<Row> rows;
    Moment day;
};

std::vector<Row> rowsOf(MarkerWalk block) {
    std::vector<Row> rows;
    while (block.pass("<span><strong>")) {
        const auto time = timeOfDay(block.characters(5));
        const auto title = block.take("<strong>", "<");
        const auto description = title ? block.take("<br />", "<") : std::nullopt;
        if (!description) {
            break;
        }
        if (time) {
            rows.push_back({*time, *title, *description});
        }
    }
    return rows;
}

/// Uses the UTC offset at the moment of the tab, even across a clock change.
Moment startOf(const Row& row, Moment day, ZoneClock& clock) {
    const Moment moment = row.time < kDayTurn ? day + kDay : day;
    const std::chrono::seconds offset = clock.offsetAt(moment);
    return std::chrono::floor<std::chrono::days>(moment + offset) + row.time - offset;
}

} // namespace

void readDigiSportLists(const ListReaderInput& input, ParsedLists& lists) {
    ZoneClock bratislava(QTimeZone("Europe/Bratislava"));
    const QByteArray text = joinedPages(input.pages);
    const MarkerWalk page(pageText(text), input.trace);

    std::vector<SportChannel> channels;
    for (const LoadItem& item : input.items) {
        std::string logo = "alt=\"" + item.sourceId.mid(kPrefixLength).toStdString() + '"';
        MarkerPlaces logos(pageText(text), logo);
        channels.push_back({&item, std::move(logo), std::move(logos), {}, {}});
    }
    for (int t = 0; t < kTabs; ++t) {
        MarkerWalk tab = page;
        if (!tab.pass("id=\"tabs-" + std::to_string(t) + '"')) {
            continue;
        }
        for (SportChannel& channel : channels) {
            const auto logo = channel.logos.next(tab.position());
            if (!logo) {
                input.trace.miss(channel.logo);
                continue;
            }
            // The address of the next logo ends the block of the channel.
            const auto end = page.part(*logo).find("http");
            if (!end) {
                continue;
            }
            if (auto rows = rowsOf(page.part(*logo, *end)); !rows.empty()) {
                channel.rows = std::move(rows);
                channel.day = input.now + kDay * t;
            }
        }
    }
    for (const SportChannel& channel : channels) {
        std::vector<ExtendedTVEntry> list;
        for (const Row& row : channel.rows) {
            auto entry =
                newEntry(input, *channel.item, pageString(row.title), startOf(row, channel.day, bratislava));
            entry->setInstantDescription1(pageString(row.description));
            entry->setSourceId(channel.item->sourceId);
            const TVListingsCategory categories = classifyEntry(*entry);
            list.push_back({std::move(entry), categories, nullptr, {}});
        }
        if (!list.empty()) {
            lists[channel.item->channel] = std::move(list);
        }
    }
}

PlannedURLs planDigiSportPage(const PlanRequest& request) {
    return singleURL(request.hosts.base(u"DigiSportHost"_s), u"/program/"_s);
}

} // namespace guide
