#include "demo/DemoFeed.h"

#include "demo/Packing.h"
#include "demo/ScheduleGenerator.h"
#include "demo/Town.h"

#include <QDateTime>
#include <QTimeZone>

#include <map>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kDirect("%1/");

QDate dateOf(Moment moment, const QTimeZone& zone) {
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), zone).date();
}

bool spoken(const DemoChannel& channel, QLatin1StringView language) {
    return channel.spoken.contains(language);
}

/// Languages without bracketed words say what a show is in attributes.
FeedStyle::Form formFor(const DemoChannel& channel) {
    return spoken(channel, "cs"_L1) || spoken(channel, "sk"_L1) || spoken(channel, "fr"_L1)
               ? FeedStyle::Form::Bracketed
               : FeedStyle::Form::Attributes;
}

/// A family's feed: where it is found, how it is packed and what is its own in its style.
struct Place {
    std::vector<QByteArray> paths;
    DemoFeed::Packing packing = DemoFeed::Packing::Plain;
    FeedStyle style;
};

Place placeOf(const QString& source, const DemoChannel& channel, const QByteArray& authority) {
    using Packing = DemoFeed::Packing;
    const FeedStyle::Form form = formFor(channel);
    if (source.startsWith("r."_L1)) {
        const QByteArray file = "/rytec" + source.section(u'.', 1, 1).toLatin1() + ".xz";
        return {{file, "/epg_data" + file}, Packing::Xz, {.form = form}};
    }
    if (source.startsWith("n."_L1)) {
        return {{"/epg.xml"}, Packing::Plain, {.form = FeedStyle::Form::Packed}};
    }
    if (source.startsWith("s."_L1)) {
        return {{"/losmij/epg.xml.gz"}, Packing::Gzip, {.form = form, .utc = true, .tightZone = true}};
    }
    if (source.startsWith("tvpc."_L1)) {
        return {{"/xmltv.xml"}, Packing::Plain, {.form = form, .singleQuotes = true}};
    }
    if (source.startsWith(kDirect)) {
        const QByteArray path = source.sliced(kDirect.size() - 1).toLatin1();
        const bool packed = path.endsWith(".gz");
        const bool cyrillic = spoken(channel, "ru"_L1) && !packed;
        return {{path},
                packed ? Packing::Gzip : Packing::Plain,
                {.form = form, .cdata = packed, .cyrillicBytes = cyrillic}};
    }
    const QByteArray id = source.toLatin1();
    return {
        {"/xmltv/data/" + id + "/weekly_" + id + '_' + authority + ".xml"}, Packing::Plain, {.form = form}};
}

void placeDayFiles(const QString& source, const DemoChannel& channel, Moment now,
                   std::vector<PlacedFeed>& placed) {
    const QDate first = broadcastDay(now, channel.zone).addDays(-1);
    for (int i = 0; i <= kDemoDays; ++i) {
        const QDate date = first.addDays(i);
        auto feed =
            std::make_shared<DemoFeed>(std::vector<const DemoChannel*>{&channel},
                                       FeedStyle{.form = formFor(channel)}, DemoFeed::Packing::Plain, now);
        feed->keepOnly(date);
        placed.push_back({{"/export/xmltv/" + source.toLatin1() + '.' + kDayFileDomain + '_' +
                           date.toString(u"yyyy-MM-dd"_s).toLatin1() + ".xml"},
                          std::move(feed)});
    }
}

} // namespace

DemoFeed::DemoFeed(std::vector<const DemoChannel*> channels, FeedStyle style, Packing packing, Moment now)
    : m_channels(std::move(channels))
    , m_style(style)
    , m_packing(packing)
    , m_now(now) {}

QByteArray DemoFeed::document() const {
    std::vector<FeedChannel> channels;
    for (const DemoChannel* channel : m_channels) {
        const QDate first = broadcastDay(m_now, channel->zone).addDays(-1);
        std::vector<Programme> programmes = schedule(*channel, first, kDemoDays);
        if (m_only) {
            std::erase_if(programmes, [this, zone = QTimeZone(channel->zone)](const Programme& programme) {
                return dateOf(programme.start, zone) != *m_only;
            });
        }
        channels.push_back({channel->feedId, channel->title, channel->zone, std::move(programmes)});
    }
    return xmltvDocument(channels, m_style);
}

ServedResponse DemoFeed::response() {
    std::call_once(m_made, [this] {
        switch (m_packing) {
        case Packing::Plain:
            m_response = {
                200, m_style.cyrillicBytes ? "text/xml; charset=windows-1251" : "text/xml; charset=utf-8",
                document()};
            break;
        case Packing::Gzip:
            m_response = {200, "application/x-gzip", gzipped(document())};
            break;
        case Packing::Xz:
            m_response = {200, "application/x-xz", xzPacked(document())};
            break;
        }
    });
    return m_response;
}

std::vector<PlacedFeed> demoFeeds(Moment now, const QByteArray& authority) {
    // A feed is known by its first path; the channels of one path share it.
    struct Shared {
        Place place;
        std::vector<const DemoChannel*> channels;
    };
    std::map<QByteArray, Shared> shared;
    std::vector<PlacedFeed> placed;
    for (const DemoChannel& channel : demoChannels()) {
        for (const QString& source : channel.sources) {
            if (Town::has(source)) {
                continue;
            }
            if (source.endsWith(".tv"_L1)) {
                placeDayFiles(source, channel, now, placed);
                continue;
            }
            const Place place = placeOf(source, channel, authority);
            shared.try_emplace(place.paths.front(), Shared{place, {}})
                .first->second.channels.push_back(&channel);
        }
    }
    for (auto& [path, feed] : shared) {
        placed.push_back(
            {feed.place.paths, std::make_shared<DemoFeed>(std::move(feed.channels), feed.place.style,
                                                          feed.place.packing, now)});
    }
    return placed;
}

} // namespace guide
