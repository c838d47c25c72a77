#include "parsers/formats/CinestarListReader.h"

#include "parsers/formats/ReaderPages.h"
#include "parsers/markers/DateText.h"
#include "parsers/markers/ZoneClock.h"
#include "text/cleaning/MarkupText.h"

#include <algorithm>
#include <array>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

/// One page for each day. When fewer came, reading ends after the last of them.
constexpr std::size_t kPages = 7;
constexpr qsizetype kCodePlace = 12; // after "cinestar.xx."
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

/// The end of the current line.
std::size_t lineEnd(const MarkerWalk& walk) {
    const std::size_t length = walk.rest().find_first_of("\n\r");
    return length == std::string_view::npos ? walk.limit() : walk.position() + length;
}

/// Moves past the last `">` of the first line that has one after a `"date`.
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

/// Moves past the next tag of class "hour" that ends on its own line.
bool passHourTag(MarkerWalk& block) {
    while (block.pass(" class=\"hour")) {
        const std::size_t end = lineEnd(block);
        // The attribute value has at least one more character.
        const std::size_t closing = block.part(block.position(), end).rest().find('>', 1);
        if (closing != std::string_view::npos) {
            block.moveTo(block.position() + closing + 1);
            return true;
        }
        block.moveTo(end);
    }
    return false;
}

/// Accepts any separator. Some sites keep counting after midnight, so hours go up to 47.
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

/// The index of the page for today.
std::optional<std::size_t> todaysPage(const ListReaderInput& input) {
    const QDate today = ZoneClock(input.deviceZone).dateAt(input.now);
    const std::string written = today.toString(u"dd.MM."_s).toStdString();
    for (std::size_t p = 0; p < kPages; ++p) {
        const QByteArray* page = pageNumbered(input, p);
        if (!page) {
            break;
        }
        MarkerWalk walk(pageText(*page), input.trace);
        if (passDate(walk) && walk.find(written)) {
            return p;
        }
    }
    return std::nullopt;
}

/// The zone of the site, by the language of its first page.
QTimeZone siteZone(const ListReaderInput& input) {
    MarkerWalk page(pageText(input.pages.front()), input.trace);
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

    /// Moves past the address. A link to the schedule itself does not count and does not move the walk.
    std::optional<std::string_view> takeURL(MarkerWalk& block) const {
        const auto link = m_links.next(block.position(), block.limit());
        if (!link || link->text == m_schedulePage) {
            return std::nullopt;
        }
        block.moveTo(link->end);
        return link->text;
    }

    /// The categories of the next genre; 0 when there is none.
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
        const QByteArray* page = pageNumbered(input, j);
        if (!page) {
            return;
        }
        const Moment day = input.now + kDay * (static_cast<int>(j) - static_cast<int>(*today));
        PageReader reader(input, pageText(*page), day, clock);
        for (const LoadItem& item : input.items) {
            reader.read(item, lists);
        }
    }
}

PlannedURLs planCinestarPages(const PlanRequest& request) {
    constexpr qsizetype kCountry = 9;
    if (request.sourceId.size() < kCountry + 2) {
        return std::nullopt;
    }
    const std::optional<QString> base =
        request.hosts.baseOfStem(u"CinestarHostStem"_s, request.sourceId.mid(kCountry, 2));
    return numberedURLs(joinedURL(base, "/raspored/"_L1), "?dan="_L1, 2, int(kPages));
}

} // namespace guide
