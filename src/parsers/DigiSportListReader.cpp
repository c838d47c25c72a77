#include "parsers/DigiSportListReader.h"

#include "parsers/EntryClassifier.h"
#include "parsers/ReaderPages.h"
#include "parsers/ZoneClock.h"

namespace guide {

namespace {

constexpr int kTabs = 15;
constexpr qsizetype kPrefixLength = 4; // "dsk."
constexpr std::chrono::hours kDay(24);
/// What starts earlier belongs to the day before.
constexpr std::chrono::hours kDayTurn(3);

struct SportChannel {
    const LoadItem* item;
    std::string logo;
    /// In all tabs.
    MarkerPlaces logos;
};

class TabReader {
  public:
    TabReader(const ListReaderInput& input, ZoneClock& bratislava)
        : m_input(input)
        , m_clock(bratislava) {}

    std::vector<ExtendedTVEntry> read(MarkerWalk block, const LoadItem& item, Moment day) {
        std::vector<ExtendedTVEntry> list;
        while (block.pass("<span><strong>")) {
            const auto time = timeOfDay(block.characters(5));
            const auto title = block.take("<strong>", "<");
            const auto description = title ? block.take("<br />", "<") : std::nullopt;
            if (!description) {
                break;
            }
            if (!time) {
                continue;
            }
            auto entry = newEntry(m_input, item, pageString(*title), start(day, *time));
            entry->setInstantDescription1(pageString(*description));
            entry->setSourceId(item.sourceId);
            const TVListingsCategory categories = classifyEntry(*entry);
            list.push_back({std::move(entry), categories, nullptr, {}});
        }
        return list;
    }

  private:
    /// The offset from UTC is the one of the tab's moment, whatever the clock shows at the time.
    Moment start(Moment day, std::chrono::minutes time) {
        const Moment moment = time < kDayTurn ? day + kDay : day;
        const std::chrono::seconds offset = m_clock.offsetAt(moment);
        return std::chrono::floor<std::chrono::days>(moment + offset) + time - offset;
    }

    const ListReaderInput& m_input;
    ZoneClock& m_clock;
};

} // namespace

void readDigiSportLists(const ListReaderInput& input, ParsedLists& lists) {
    ZoneClock bratislava(QTimeZone("Europe/Bratislava"));
    TabReader reader(input, bratislava);
    const QByteArray text = joinedPages(input.pages);
    const MarkerWalk page(pageText(text), input.trace);

    std::vector<SportChannel> channels;
    for (const LoadItem& item : input.items) {
        std::string logo = "alt=\"" + item.sourceId.mid(kPrefixLength).toStdString() + '"';
        MarkerPlaces logos(pageText(text), logo);
        channels.push_back({&item, std::move(logo), std::move(logos)});
    }
    for (int t = 0; t < kTabs; ++t) {
        MarkerWalk tab = page;
        if (!tab.pass("id=\"tabs-" + std::to_string(t) + '"')) {
            continue;
        }
        for (const SportChannel& channel : channels) {
            const auto logo = channel.logos.next(tab.position());
            if (!logo) {
                input.trace.miss(channel.logo);
                continue;
            }
            // The address of the next logo closes the channel's block.
            const auto end = page.part(*logo).find("http");
            if (!end) {
                continue;
            }
            auto list = reader.read(page.part(*logo, *end), *channel.item, input.now + kDay * t);
            if (!list.empty()) {
                lists[channel.item->channel] = std::move(list);
            }
        }
    }
}

} // namespace guide
