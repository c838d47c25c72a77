#include "parsers/formats/BarrandovListReader.h"

#include "parsers/formats/EntryClassifier.h"
#include "parsers/formats/ReaderPages.h"
#include "parsers/markers/DateText.h"
#include "parsers/markers/ZoneClock.h"
#include "sources/WebURL.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kPrefixLength = 10; // "barrandov."
constexpr std::string_view kHeading = "<h3 class=\"program-channel__title program-channel__title--";

QString slugOf(const QString& name) {
    if (name == "Barrandov Family"_L1) {
        return u"muzika"_s;
    }
    return name.section(u' ', name.startsWith("Barrandov "_L1) ? 1 : 0).section(u' ', 0, 0).toLower();
}

/// The windows of a page by id. A link may give only the beginning of an id.
class Windows {
  public:
    explicit Windows(const MarkerWalk& page) {
        MarkerWalk walk = page;
        while (walk.pass("<div class=\"remodal\" data-remodal-id=\"modal")) {
            MarkerWalk id = walk;
            m_windows.emplace(id.takeUpTo("\"").value_or(std::string_view()), walk.position());
        }
    }

    /// The position after the id of the first window at or after `from`.
    std::optional<std::size_t> next(std::string_view id, std::size_t from) {
        auto [known, isNew] = m_places.try_emplace(id);
        if (isNew) {
            for (auto window = m_windows.lower_bound(id);
                 window != m_windows.end() && window->first.starts_with(id); ++window) {
                known->second.push_back(window->second);
            }
            std::sort(known->second.begin(), known->second.end());
        }
        const auto place = std::lower_bound(known->second.begin(), known->second.end(), from);
        return place == known->second.end() ? std::nullopt : std::optional(*place + id.size());
    }

  private:
    std::multimap<std::string_view, std::size_t> m_windows;
    std::unordered_map<std::string_view, std::vector<std::size_t>> m_places;
};

class PageReader {
  public:
    PageReader(const ListReaderInput& input, std::string_view text)
        : m_input(input)
        , m_page(text, input.trace)
        , m_text(text)
        , m_windows(m_page)
        , m_site(input.hosts.base(u"BarrandovHost"_s)) {}

    std::vector<ExtendedTVEntry> read(const LoadItem& item) {
        std::vector<ExtendedTVEntry> list;
        const QString name = item.sourceId.mid(kPrefixLength);
        const std::string heading =
            std::string(kHeading) + slugOf(name).toStdString() + "\">" + name.toStdString() + "</h3>";
        MarkerWalk walk = m_page;
        while (walk.pass(heading)) {
            // The next heading of any channel ends the block; the block of the last heading is skipped.
            const auto end = walk.find(kHeading);
            if (!end) {
                break;
            }
            MarkerWalk block = walk.part(walk.position(), *end);
            std::set<std::string_view> ids;
            while (const auto id = block.take("<a href=\"#modal", "\"")) {
                ids.insert(*id);
            }
            for (const std::string_view id : ids) {
                if (const auto window = m_windows.next(id, block.position())) {
                    addShow(item, *window, list);
                }
            }
        }
        return list;
    }

  private:
    static std::optional<std::string_view> fieldBehind(const MarkedFields& fields, std::size_t place) {
        const auto field = fields.next(place);
        return field ? std::optional(field->text) : std::nullopt;
    }

    /// "dd.MM.yyyy HH:mm".
    std::optional<Moment> momentOf(std::string_view text) {
        const std::size_t blank = text.find(' ');
        if (blank == std::string_view::npos) {
            return std::nullopt;
        }
        const auto date = dayMonthYear(text.substr(0, blank));
        const auto time = timeOfDay(text.substr(blank + 1));
        return date && time ? m_prague.momentAt(*date, *time) : std::nullopt;
    }

    void addShow(const LoadItem& item, std::size_t window, std::vector<ExtendedTVEntry>& list) {
        const auto date = fieldBehind(m_date, window);
        const auto title = fieldBehind(m_title, window);
        const auto repeat = fieldBehind(m_repeat, window);
        const auto perex = fieldBehind(m_perex, window);
        const auto about = fieldBehind(m_about, window);
        const auto source = m_site ? fieldBehind(m_picture, window) : std::nullopt;
        const auto start = date && title ? momentOf(*date) : std::nullopt;
        if (!start) {
            return;
        }
        ExtendedTVEntry show;
        show.basic = newEntry(m_input, item, pageString(*title), *start);
        show.basic->setSourceId(item.sourceId);
        show.basic->setPreviouslyShown(repeat && *repeat != "NE");
        show.categories = classifyEntry(*show.basic);
        const QUrl picture = source ? QUrl(*m_site + pageString(*source)) : QUrl();
        const bool isPictured = isWebURL(picture);
        if (perex || about || isPictured) {
            show.extra = std::make_shared<TVEntrySupplementalData>();
        }
        if (perex) {
            show.extra->details = pageString(*perex);
        }
        if (about) {
            show.extra->description = pageString(*about);
        }
        if (isPictured) {
            show.pictures.insert(picture);
        }
        list.push_back(std::move(show));
    }

    const ListReaderInput& m_input;
    const MarkerWalk m_page;
    const std::string_view m_text;
    Windows m_windows;
    const std::optional<QString> m_site;
    ZoneClock m_prague{QTimeZone("Europe/Prague")};

    // Windows are not delimited: a field is the first one after the start of the window.
    const MarkedFields m_date{m_text, "<li><strong>Datum vysílání:</strong> ", "</li", &m_input.trace};
    const MarkedFields m_repeat{m_text, "<li><strong>Repríza:</strong> ", "</li>"};
    const MarkedFields m_picture{m_text, "<img src=\"", "\""};
    const MarkedFields m_title{m_text, "<h2 class=\"show-detail__title\">", "</h2>", &m_input.trace};
    const MarkedFields m_perex{m_text, "<p class=\"show-detail__perex\">", "</p>"};
    const MarkedFields m_about{m_text, "<p class=\"show-detail__about\">", "</p>"};
};

} // namespace

void readBarrandovLists(const ListReaderInput& input, ParsedLists& lists) {
    const QByteArray text = joinedPages(input.pages);
    PageReader reader(input, pageText(text));
    for (const LoadItem& item : input.items) {
        lists[item.channel] = reader.read(item);
    }
}

PlannedURLs planBarrandovPages(const PlanRequest& request) {
    const std::optional<QString> base = request.hosts.base(u"BarrandovHost"_s);
    if (!base) {
        return std::nullopt;
    }
    URLList urls;
    urls.add(*base + "/program/#onair"_L1);
    urls.add(*base + "/program/?day="_L1 + yearMonthDayText(dateAtServer(u"cz", request.now + kPlanDay)) +
             "#on-air"_L1);
    return std::move(urls).result();
}

} // namespace guide
