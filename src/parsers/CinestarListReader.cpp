#include "parsers/CinestarListReader.h"

#include "parsers/DateText.h"
#include "parsers/ReaderPages.h"
#include "parsers/ZoneClock.h"
#include "text/cleaning/MarkupText.h"

#include <algorithm>
#include <array>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

/// A page a day; a site that gives fewer ends the reading behind its last one.
constexpr std::size_t kPages = 7;
constexpr qsizetype kCodePlace = 12; // behind "cinestar.xx."
constexpr std::chrono::hours kDay(24);
constexpr std::string_view kGenre = "zanr";

struct Genre {
    std::string_view code;
    TVListingsCategory categories;
};

constexpr std::array kGenres{
    Genre{"28", TVListingsCategoryMovies | TVListingsCategoryAdventure},
    Genre{"30", TVListingsCategoryMovies | TVListingsCategoryComedies},
    Genre{"31", TVListingsCategoryMovies | TVListingsCategoryCrime},
    Genre{"32", TVListingsCategoryDocumentaries},
    Genre{"33", TVListingsCategoryMovies | TVListingsCategoryDramas},
    Genre{"34", TVListingsCategoryMovies | TVListingsCategoryHorrors},
    Genre{"36", TVListingsCategoryMovies | TVListingsCategorySF},
    Genre{"37", TVListingsCategoryMovies | TVListingsCategoryThrillers},
    Genre{"38", TVListingsCategoryMovies | TVListingsCategoryWesterns},
    Genre{"41", TVListingsCategorySports},
};

/// Where the line ends that the walk stands in.
std::size_t lineEnd(const MarkerWalk& walk) {
    const std::size_t length = walk.rest().find_first_of("\n\r");
    return length == std::string_view::npos ? walk.limit() : walk.position() + length;
}

/// Moves behind the last `">` of the first line that has one behind a `"date`.
bool passDate(MarkerWalk& page) {
    while (page.pass("\"date")) {
        const std::size_t end = lineEnd(page);
        const std::size_t closing = page.part(page.position(), end).rest().rfind("\">");
        if (closing != std::string_view::npos) {
            page.moveTo(page.position() + closing + 2);
            return true;
        }
        page.moveTo(end);
    }
    return false;
}

/// Moves behind the tag of the next hour, which ends in its line.
bool passHourTag(MarkerWalk& block) {
    while (block.pass(" class=\"hour")) {
        const std::size_t end = lineEnd(block);
        // The attribute's value goes on for at least one character.
        const std::size_t closing = block.part(block.position(), end).rest().find('>', 1);
        if (closing != std::string_view::npos) {
            block.moveTo(block.position() + closing + 1);
            return true;
        }
        block.moveTo(end);
    }
    return false;
}

/// Whatever stands between hour and minute. Sites count on past midnight at times: the hours go up to 47.
std::optional<std::chrono::minutes> cardTime(std::string_view text) {
    const std::size_t digits = text.find_first_not_of("0123456789") == 1 ? 1 : 2;
    if (text.size() < digits + 2) {
        return std::nullopt;
    }
    const auto hour = decimalNumber(text.substr(0, digits));
    const auto minute = decimalNumber(text.substr(digits + 1, 2));
    if (!hour || !minute || *hour > 47 || *minute > 59) {
        return std::nullopt;
    }
    return std::chrono::hours(*hour) + std::chrono::minutes(*minute);
}

/// The page that shows today; nothing when none does.
std::optional<std::size_t> todaysPage(const ListReaderInput& input) {
    const QDate today = ZoneClock(input.deviceZone).dateAt(input.now);
    const std::string written = today.toString(u"dd.MM."_s).toStdString();
    for (std::size_t p = 0; p < kPages; ++p) {
        MarkerWalk page(pageText(input.pages.at(p)), input.trace);
        if (passDate(page) && page.find(written)) {
            return p;
        }
    }
    return std::nullopt;
}

/// The zone of the site, by the language of its first page.
QTimeZone siteZone(const ListReaderInput& input) {
    MarkerWalk page(pageText(input.pages.at(0)), input.trace);
    const auto language = page.take(" lang=\"", "\"");
    if (!language) {
        return input.deviceZone;
    }
    return QTimeZone(language->starts_with("hr") ? "Europe/Zagreb" : "Europe/Belgrade");
}

class PageReader {
  public:
    PageReader(const ListReaderInput& input, std::string_view text, Moment day, ZoneClock& clock)
        : m_input(input)
        , m_page(text, input.trace)
        , m_day(day)
        , m_clock(clock)
        , m_genres(text, kGenre)
        , m_links(text, "href=\"", "\"")
        , m_schedulePage(input.hosts.baseOfStem(u"CinestarHostStem"_s, u"rs"_s)
                             .value_or(QString())
                             .append("/raspored/"_L1)
                             .toStdString()) {}

    void read(const LoadItem& item, ParsedLists& lists) {
        MarkerWalk block = m_page;
        if (!block.pass("kanal-C" + item.sourceId.mid(kCodePlace).toStdString() + "'")) {
            return;
        }
        block = block.part(block.position(), block.findOrLimit("kanal-C"));
        Moment date = m_day;
        std::string previous;
        for (bool onAir = true; !block.atEnd(); onAir = false) {
            const TVListingsCategory categories = categoriesFrom(block);
            const auto card = onAir ? takeCardOnAir(block) : takeCard(block);
            if (!card) {
                return;
            }
            const auto time = cardTime(card->time);
            if (!time) {
                continue;
            }
            if (card->time < previous) {
                date += kDay;
            }
            previous = card->time;
            const auto days = std::chrono::floor<std::chrono::days>(*time);
            const auto start = m_clock.momentAt(m_clock.dateAt(date).addDays(days.count()), *time - days);
            if (!start) {
                continue;
            }
            auto entry = newEntry(m_input, item, pageString(card->title), *start);
            if (card->url) {
                entry->setUrl(QUrl(pageString(*card->url)));
            }
            entry->setSourceId(item.sourceId);
            lists[item.channel].push_back({std::move(entry), categories, nullptr, {}});
        }
    }

  private:
    struct Card {
        std::optional<std::string_view> url;
        std::string_view title;
        std::string time;
    };

    std::optional<Card> takeCardOnAir(MarkerWalk& block) const {
        const auto url = takeURL(block);
        const auto title = block.take("fit-text'> ", "<");
        const auto time = title ? takeTime(block) : std::nullopt;
        return time ? std::optional(Card{url, *title, *time}) : std::nullopt;
    }

    std::optional<Card> takeCard(MarkerWalk& block) const {
        const auto time = takeTime(block);
        const auto url = time ? takeURL(block) : std::nullopt;
        const auto title = time ? block.take("<h4 class='title'>", "<") : std::nullopt;
        return title ? std::optional(Card{url, *title, *time}) : std::nullopt;
    }

    static std::optional<std::string> takeTime(MarkerWalk& block) {
        const auto text = passHourTag(block) ? block.takeUpTo("<") : std::nullopt;
        const auto trimmed = text ? trimmedListingText(pageString(*text)) : std::nullopt;
        return trimmed ? std::optional(trimmed->toStdString()) : std::nullopt;
    }

    /// Moves behind the address, but stays where it is for a link to the schedule itself, which is none.
    std::optional<std::string_view> takeURL(MarkerWalk& block) const {
        const auto link = m_links.next(block.position(), block.limit());
        if (!link || link->text == m_schedulePage) {
            return std::nullopt;
        }
        block.moveTo(link->end);
        return link->text;
    }

    /// By the next genre in the block, 0 without one.
    TVListingsCategory categoriesFrom(const MarkerWalk& block) const {
        const auto place = m_genres.next(block.position());
        if (!place) {
            return 0;
        }
        const std::string_view code = block.part(*place + kGenre.size()).characters(2);
        const auto genre = std::find_if(kGenres.begin(), kGenres.end(),
                                        [code](const Genre& candidate) { return candidate.code == code; });
        return genre == kGenres.end() ? 0 : genre->categories;
    }

    const ListReaderInput& m_input;
    const MarkerWalk m_page;
    const Moment m_day;
    ZoneClock& m_clock;
    const MarkerPlaces m_genres;
    const MarkedFields m_links;
    const std::string m_schedulePage;
};

} // namespace

void readCinestarLists(const ListReaderInput& input, ParsedLists& lists) {
    const auto today = todaysPage(input);
    if (!today) {
        return;
    }
    ZoneClock clock(siteZone(input));
    for (std::size_t j = 0; j < kPages; ++j) {
        const Moment day = input.now + kDay * (static_cast<int>(j) - static_cast<int>(*today));
        PageReader page(input, pageText(input.pages.at(j)), day, clock);
        for (const LoadItem& item : input.items) {
            page.read(item, lists);
        }
    }
}

} // namespace guide
