#include "parsers/formats/ComedyCentralListReader.h"

#include "parsers/formats/ReaderPages.h"

#include <charconv>
#include <cmath>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

/// Larger values cannot be broadcasts and might overflow in milliseconds.
constexpr double kMostSeconds = 1e11;

/// Reads the number at the start of the text as seconds since 1970.
std::optional<Moment> momentOf(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n+"), text.size()));
    double seconds = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), seconds);
    if (read.ec != std::errc() || !(std::abs(seconds) < kMostSeconds)) {
        return std::nullopt;
    }
    return Moment(std::chrono::milliseconds(std::llround(seconds * 1000)));
}

/// Finds links whose path begins with "/" and ends on the same line.
class Links {
  public:
    explicit Links(const MarkerWalk& page)
        : m_page(page) {}

    /// The path of the first link after `from`, which must not decrease between calls.
    std::optional<std::string_view> next(std::size_t from) {
        if (!m_place || *m_place < from) {
            search(from);
        }
        return m_place == MarkerWalk::npos ? std::nullopt : std::optional(m_path);
    }

  private:
    static constexpr std::string_view kLink = " href=\"";

    void search(std::size_t from) {
        MarkerWalk walk = m_page.part(from);
        while (walk.moveTo(" href=\"/")) {
            const std::size_t place = walk.position();
            walk.moveTo(place + kLink.size());
            // At least one character must follow the "/" before a quote on the same line.
            MarkerWalk afterPath = walk.part(walk.position() + 1);
            afterPath.moveTo(afterPath.position() + afterPath.characters(1).size());
            const auto quote = afterPath.find("\"");
            if (!quote) {
                break;
            }
            if (!walk.part(walk.position(), *quote).contains("\n")) {
                m_place = place;
                m_path = walk.takeUpTo("\"").value_or(std::string_view());
                return;
            }
        }
        m_place = MarkerWalk::npos;
    }

    const MarkerWalk m_page;
    std::optional<std::size_t> m_place;
    std::string_view m_path;
};

} // namespace

void readComedyCentralLists(const ListReaderInput& input, ParsedLists& lists) {
    const LoadItem& item = input.items.front();
    const auto site = input.hosts.base(u"ComedyCentralHost"_s, u"http"_s);
    for (const QByteArray& page : input.pages) {
        MarkerWalk walk(pageText(page), input.trace);
        Links links(walk);
        while (!walk.atEnd()) {
            const auto time = walk.take("data-time=\"", "\"");
            const auto title = time ? walk.take("<h3>", "<") : std::nullopt;
            if (!title) {
                break;
            }
            const auto path = links.next(walk.position());
            const auto start = momentOf(*time);
            if (!start) {
                continue;
            }
            auto entry = newEntry(input, item, pageString(*title), *start);
            entry->setSourceId(item.sourceId);
            if (site && path && !path->empty()) {
                entry->setUrl(QUrl(*site + pageString(*path)));
            }
            lists[item.channel].push_back({std::move(entry), TVListingsCategory{0}, nullptr, {}});
        }
    }
}

PlannedURLs planComedyCentralPages(const PlanRequest& request) {
    return numberedURLs(joinedURL(request.hosts.base(u"ComedyCentralHost"_s), "/program-tv"_L1), "?page="_L1,
                        1, 6);
}

} // namespace guide
