#include "parsers/formats/HBOListReader.h"

#include "parsers/formats/EntryClassifier.h"
#include "parsers/formats/ReaderPages.h"
#include "parsers/markers/ZoneClock.h"
#include "sources/SourceId.h"

namespace guide {

namespace {

using namespace Qt::StringLiterals;

constexpr int kFirstDay = -1;
constexpr int kLastDay = 21;
constexpr std::string_view kChannel = "<div class=\"channel\">";
constexpr std::string_view kTime = "class=\"time\">";

struct HBOChannel {
    const LoadItem* item;
    std::string logo;
};

/// Ids look like "-hbo.hu.2"; the part after the country names the logo.
std::vector<HBOChannel> channelsOf(const std::vector<LoadItem>& items) {
    std::vector<HBOChannel> channels;
    for (const LoadItem& item : items) {
        const QString piece = item.sourceId.section(u'.', 2, 2);
        if (!piece.isEmpty()) {
            channels.push_back({&item, "logo_index_" + piece.toStdString()});
        }
    }
    return channels;
}

class DayReader {
  public:
    DayReader(const ListReaderInput& input, ParsedLists& lists, const QString& country)
        : m_input(input)
        , m_lists(lists)
        , m_clock(timeZoneForServer(u"hbo."_s + country).value_or(input.deviceZone))
        , m_site(input.hosts.base(u"HBODetailHost."_s + country)) {}

    void read(const MarkerWalk& page, const std::vector<HBOChannel>& channels, Moment day) {
        m_date = m_clock.dateAt(day);
        m_dateAfter = m_clock.dateAt(day + std::chrono::hours(24));
        MarkerWalk start = page;
        if (!start.pass(kChannel)) {
            return;
        }
        for (const HBOChannel& channel : channels) {
            MarkerWalk block = start;
            if (block.pass(channel.logo)) {
                readChannel(block.part(block.position(), block.findOrLimit(kChannel)), *channel.item);
            }
        }
    }

  private:
    void readChannel(MarkerWalk block, const LoadItem& item) {
        while (!block.atEnd()) {
            const auto path = block.take("<a href=\"", "\"");
            const std::size_t link = block.position();
            if (!path || !block.moveTo(kTime)) {
                return;
            }
            // Shows that are over are marked.
            const bool past = block.part(link, block.position()).contains("past");
            block.moveTo(block.position() + kTime.size());
            if (past) {
                continue;
            }
            const auto time = block.takeUpTo("<");
            const auto title = time ? block.take("class=\"title\">", "<") : std::nullopt;
            if (!title) {
                return;
            }
            addShow(item, *path, *time, *title);
        }
    }

    void addShow(const LoadItem& item, std::string_view path, std::string_view time, std::string_view title) {
        // Times before 06:00 belong to the next calendar day.
        const auto clockTime = timeOfDay(time);
        const auto start =
            clockTime ? m_clock.momentAt(time < "06:00" ? m_dateAfter : m_date, *clockTime) : std::nullopt;
        if (!start) {
            return;
        }
        const std::size_t episode = title.rfind(", ep.");
        auto entry = newEntry(m_input, item, pageString(title.substr(0, episode)), *start);
        if (episode != std::string_view::npos) {
            entry->setInstantDetails1(pageString(title.substr(episode + 2)));
        }
        if (m_site) {
            entry->setUrl(QUrl(*m_site + pageString(path)));
        }
        entry->setSourceId(item.sourceId);
        const TVListingsCategory categories = classifyEntry(*entry);
        m_lists[item.channel].push_back({std::move(entry), categories, nullptr, {}});
    }

    const ListReaderInput& m_input;
    ParsedLists& m_lists;
    ZoneClock m_clock;
    const std::optional<QString> m_site;
    QDate m_date;
    QDate m_dateAfter;
};

} // namespace

void readHBOLists(const ListReaderInput& input, ParsedLists& lists) {
    const QString country = input.items.front().sourceId.mid(5, 2);
    const std::vector<HBOChannel> channels = channelsOf(input.items);
    DayReader reader(input, lists, country);
    const QByteArray text = joinedPages(input.pages);
    MarkerWalk walk(pageText(text), input.trace);
    for (int day = kFirstDay; day <= kLastDay && walk.moveTo("<html"); ++day) {
        const MarkerWalk page = walk.part(walk.position(), walk.findOrLimit("</html>"));
        walk.moveTo(page.limit());
        reader.read(page, channels, input.now + std::chrono::hours(24) * day);
    }
}

PlannedURLs planHBOPages(const PlanRequest& request) {
    constexpr qsizetype kCountry = 5;
    if (request.sourceId.size() < kCountry + 2) {
        return std::nullopt;
    }
    const QString country = request.sourceId.mid(kCountry, 2);
    const QString key = "HBOHost."_L1 + country;
    const std::optional<QString> base = request.hosts.base(key);
    const std::optional<QString> name = request.hosts.name(key);
    if (!base || !name) {
        return std::nullopt;
    }
    const QString server = name->left(name->indexOf(u'/')).section(u':', 0, 0);
    const QTimeZone zone = timeZoneForServer(server).value_or(request.deviceZone);
    const QLatin1StringView word = country == "hu"_L1                         ? "tvmusor"_L1
                                   : country == "hr"_L1 || country == "ba"_L1 ? "raspored"_L1
                                                                              : "program"_L1;
    return dailyURLs(kFirstDay, kLastDay, request.now, [&](Moment day) {
        const QDate date = dateInZone(zone, day);
        return *base + u'/' + word + u'/' + paddedNumber(date.month(), 2) + u'/' +
               paddedNumber(date.day(), 2);
    });
}

} // namespace guide
