#include "parsers/formats/NovaListReader.h"

#include "parsers/formats/ReaderPages.h"
#include "parsers/markers/DateText.h"
#include "parsers/markers/ZoneClock.h"

#include <array>
#include <set>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

constexpr std::string_view kLogo = "class=\"channels-logo\">";
constexpr qsizetype kPrefixLength = 8; // "cz.nova."

struct CategoryWords {
    std::string_view words;
    TVListingsCategory category;
};

/// The first match wins.
constexpr std::array kCategories{
    CategoryWords{"- seriál", TVListingsCategorySeries},
    CategoryWords{"- zprávy", TVListingsCategoryNews},
    CategoryWords{"- zábava", TVListingsCategoryEntertainment},
    CategoryWords{"- film", TVListingsCategoryMovies},
    CategoryWords{"- dokument", TVListingsCategoryDocumentaries},
    CategoryWords{"- sport", TVListingsCategorySports},
};

const LoadItem* itemForLogoText(const std::vector<LoadItem>& items, std::string_view logo) {
    const QString name = pageString(logo);
    const auto item = std::find_if(items.begin(), items.end(), [&name](const LoadItem& candidate) {
        return QStringView(candidate.sourceId).mid(kPrefixLength) == name;
    });
    return item == items.end() ? nullptr : &*item;
}

/// The text after the marker, up to the marker's last character or, when that is ">", up to the next tag.
std::optional<std::string_view> attributeText(MarkerWalk item, std::string_view marker) {
    return item.take(marker, marker.back() == '>' ? "<" : marker.substr(marker.size() - 1));
}

/// "yyyy-MM-dd HH:mm:ss".
std::optional<Moment> momentOf(std::string_view text, ZoneClock& prague) {
    if (text.size() < 11 || text[10] != ' ') {
        return std::nullopt;
    }
    const auto date = yearMonthDay(text.substr(0, 10));
    const auto time = timeWithSeconds(text.substr(11));
    return date && time ? prague.momentAt(*date, *time) : std::nullopt;
}

void readItem(const ListReaderInput& input, const LoadItem& loadItem, const MarkerWalk& item,
              ZoneClock& prague, ParsedLists& lists) {
    const auto begin = attributeText(item, "data-begin=\"");
    const auto title = begin ? attributeText(item, "<span class=\"title\">") : std::nullopt;
    const auto end = attributeText(item, "data-end=\"");
    const auto description = attributeText(item, "<span class=\"description\">");
    const auto words = std::find_if(kCategories.begin(), kCategories.end(),
                                    [&item](const CategoryWords& row) { return item.contains(row.words); });
    const auto start = title ? momentOf(*begin, prague) : std::nullopt;
    if (!start) {
        return;
    }
    ExtendedTVEntry show;
    show.basic = newEntry(input, loadItem, pageString(*title), *start);
    show.basic->setEndDateTime(end ? momentOf(*end, prague) : std::nullopt);
    show.categories = words == kCategories.end() ? 0 : words->category;
    if (description) {
        show.extra = std::make_shared<TVEntrySupplementalData>();
        show.extra->description = pageString(*description);
    }
    lists[loadItem.channel].push_back(std::move(show));
}

} // namespace

void readNovaLists(const ListReaderInput& input, ParsedLists& lists) {
    ZoneClock prague(QTimeZone("Europe/Prague"));
    std::set<const LoadItem*> listed;
    for (const QByteArray& page : input.pages) {
        MarkerWalk walk(pageText(page), input.trace);
        while (walk.pass(kLogo)) {
            MarkerWalk block = walk.part(walk.position(), walk.findOrLimit(kLogo));
            walk.moveTo(block.limit());
            const auto logo = block.takeUpTo("<");
            const LoadItem* loadItem = logo ? itemForLogoText(input.items, *logo) : nullptr;
            if (!loadItem) {
                continue;
            }
            listed.insert(loadItem);
            while (block.pass("<li class=\"channels-content-show\"")) {
                const auto end = block.find("</li>");
                if (!end) {
                    break;
                }
                readItem(input, *loadItem, block.part(block.position(), *end), prague, lists);
                block.moveTo(*end);
            }
        }
    }
    for (const LoadItem& item : input.items) {
        // The site may have renamed the channel.
        if (!listed.contains(&item)) {
            input.trace.miss(std::string(kLogo) + item.sourceId.mid(kPrefixLength).toStdString() + '<');
        }
    }
}

PlannedURLs planNovaPages(const PlanRequest& request) {
    const std::optional<QString> base = request.hosts.base(u"NovaHost"_s);
    if (!base) {
        return std::nullopt;
    }
    return dailyURLs(-1, 7, request.now, [&](Moment day) {
        return *base + "/program/?epg_date="_L1 + yearMonthDayText(dateAtServer(u"cz", day));
    });
}

} // namespace guide
