#include "parsers/formats/DolceSportListReader.h"

#include "parsers/formats/ReaderPages.h"
#include "parsers/markers/ZoneClock.h"
#include "text/cleaning/Capitalisation.h"
#include "text/cleaning/MarkupText.h"

#include <array>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

constexpr std::size_t kDays = 7;

/// The contents of the seven tabs, Monday first; nothing unless all are present.
std::optional<std::vector<MarkerWalk>> tabs(const MarkerWalk& page) {
    std::array<std::string, kDays> markers;
    MarkerWalk names = page;
    for (std::string& marker : markers) {
        const auto name = names.take("data-ls-for=\"", "\"");
        if (!name) {
            return std::nullopt;
        }
        marker = "id=\"" + std::string(*name);
    }
    std::array<std::size_t, kDays + 1> starts{};
    for (std::size_t k = 0; k < kDays; ++k) {
        MarkerWalk walk = page;
        if (!walk.pass(markers[k])) {
            return std::nullopt;
        }
        starts[k] = walk.position();
    }
    starts[kDays] = page.limit();
    std::vector<MarkerWalk> found;
    found.reserve(kDays);
    for (std::size_t k = 0; k < kDays; ++k) {
        found.push_back(page.part(starts[k], starts[k + 1]));
    }
    return found;
}

/// The text after the marker up to the next tag.
std::optional<std::string_view> textBehind(MarkerWalk item, std::string_view marker) {
    return item.take(marker, "<");
}

QString trimmed(std::string_view text) {
    return trimmedListingText(pageString(text)).value_or(QString());
}

} // namespace

void readDolceSportLists(const ListReaderInput& input, ParsedLists& lists) {
    const LoadItem& loadItem = input.items.front();
    ZoneClock bucharest(QTimeZone("Europe/Bucharest"));
    const QByteArray* page = pageNumbered(input, 0);
    const auto sections = page ? tabs(MarkerWalk(pageText(*page), input.trace)) : std::nullopt;
    if (!sections) {
        return;
    }
    const Moment today = input.clock.now();
    const auto monday = static_cast<std::size_t>(bucharest.dateAt(today).dayOfWeek() - 1);

    for (std::size_t i = 0; i < kDays; ++i) {
        const Moment day = today + std::chrono::hours(24) * i;
        MarkerWalk section = (*sections)[(i + monday) % kDays];
        while (section.pass("<li class=\"list-group-item\">")) {
            const auto end = section.find("</li");
            if (!end) {
                break;
            }
            const MarkerWalk item = section.part(section.position(), *end);
            section.moveTo(*end);

            const auto timeText = textBehind(item, " class=\"time\">");
            const auto nameText = timeText ? textBehind(item, " class=\"name\">") : std::nullopt;
            if (!nameText) {
                continue;
            }
            const std::string time = trimmed(*timeText).toStdString();
            // The broadcast day begins at 08:00: "07:59" sorts before "0800", "08:00" after it.
            const bool small = time < "0800";
            const auto clockTime = timeOfDay(time);
            const auto start =
                clockTime ? bucharest.momentAt(bucharest.dateAt(small ? day + std::chrono::hours(24) : day),
                                               *clockTime)
                          : std::nullopt;
            if (!start) {
                continue;
            }
            const QString name = trimmed(*nameText);
            const TVListingsCategory category = name == "TELESHOPPING"_L1 ? 0 : TVListingsCategorySports;
            auto entry = newEntry(input, loadItem, *start);
            if (!name.isEmpty()) {
                entry->setIdentificator(sentenceCase(name, input.locale));
            }
            lists[loadItem.channel].push_back({std::move(entry), category, nullptr, {}});
        }
    }
}

PlannedURLs planDolceSportPages(const PlanRequest& request) {
    constexpr qsizetype kPrefixLength = 12; // "dolce-sport."
    return singleURL(request.hosts.base(u"DolceSportHost"_s),
                     "/program/"_L1 + request.sourceId.mid(kPrefixLength));
}

} // namespace guide
