#include "demo/feeds/DemoFeed.h"

#include "demo/DemoSites.h"
#include "demo/feeds/Packing.h"

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

bool speaks(const DemoChannel& channel, QLatin1StringView language) {
    return channel.spoken.contains(language);
}

/// Languages that have no words for the brackets get attributes.
FeedStyle::Form formFor(const DemoChannel& channel) {
    return speaks(channel, "cs"_L1) || speaks(channel, "sk"_L1) || speaks(channel, "fr"_L1)
               ? FeedStyle::Form::Bracketed
               : FeedStyle::Form::Attributes;
}

/// Where a source family looks for a feed, and how the feed is written.
struct Place {
    std::vector<QByteArray> targets;
    DemoFeed::Packing packing = DemoFeed::Packing::Plain;
    FeedStyle style;
};

Place placeOf(const QString& source, const DemoChannel& channel, const QString& authority) {
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
        return {{path},
                packed ? Packing::Gzip : Packing::Plain,
                {.form = form, .cdata = packed, .cyrillicBytes = speaks(channel, "ru"_L1) && !packed}};
    }
    return {{u"/xmltv/data/%1/weekly_%1_%2.xml"_s.arg(source, authority).toLatin1()},
            Packing::Plain,
            {.form = form}};
}

void placeDayFiles(const QString& source, const DemoChannel& channel, const ScheduleGenerator& generator,
                   Moment now, std::vector<PlacedFeed>& placed) {
    const QDate first = broadcastDay(now, channel.zone).addDays(-1);
    for (int i = 0; i <= kDemoDays; ++i) {
        const QDate date = first.addDays(i);
        const QString target = u"/export/xmltv/%1.%2_%3.xml"_s.arg(source, QLatin1StringView(kDayFileDomain),
                                                                   date.toString(Qt::ISODate));
        placed.push_back({{target.toLatin1()},
                          std::make_shared<DemoFeed>(DemoFeed::Content{.channels = {&channel},
                                                                       .style = {.form = formFor(channel)},
                                                                       .onlyOn = date},
                                                     generator, now)});
    }
}

} // namespace

QByteArray DemoFeed::document() const {
    std::vector<WrittenChannel> channels;
    for (const DemoChannel* channel : m_content.channels) {
        const QDate first = broadcastDay(m_now, channel->zone).addDays(-1);
        std::vector<Programme> programmes = m_generator.schedule(*channel, first, kDemoDays);
        if (m_content.onlyOn) {
            std::erase_if(programmes, [this, zone = QTimeZone(channel->zone)](const Programme& programme) {
                return dateOf(programme.start, zone) != *m_content.onlyOn;
            });
        }
        channels.push_back({channel->feedId, channel->title, channel->zone, std::move(programmes)});
    }
    return xmltvDocument(channels, m_content.style);
}

ServerReply DemoFeed::reply() {
    std::call_once(m_made, [this] {
        switch (m_content.packing) {
        case Packing::Plain:
            m_reply = ServerReply::ok(document(), {m_content.style.cyrillicBytes
                                                       ? "Content-Type: text/xml; charset=windows-1251"
                                                       : "Content-Type: text/xml; charset=utf-8"});
            break;
        case Packing::Gzip:
            m_reply = ServerReply::ok(gzipped(document()), {"Content-Type: application/x-gzip"});
            break;
        case Packing::Xz:
            m_reply = ServerReply::ok(xzPacked(document()), {"Content-Type: application/x-xz"});
            break;
        }
    });
    return m_reply;
}

std::vector<PlacedFeed> demoFeeds(const ScheduleGenerator& generator, Moment now, const QString& authority) {
    // Channels whose feeds have the same first target share one feed.
    struct Shared {
        Place place;
        std::vector<const DemoChannel*> channels;
    };
    std::map<QByteArray, Shared> shared;
    std::vector<PlacedFeed> placed;
    for (const DemoChannel& channel : demoChannels()) {
        for (const QString& source : channel.sources) {
            if (DemoSites::serves(source)) {
                continue;
            }
            if (source.endsWith(".tv"_L1)) {
                placeDayFiles(source, channel, generator, now, placed);
                continue;
            }
            Place place = placeOf(source, channel, authority);
            place.style.pictureServer = authority;
            shared.try_emplace(place.targets.front(), Shared{place, {}})
                .first->second.channels.push_back(&channel);
        }
    }
    for (auto& [target, feed] : shared) {
        placed.push_back({feed.place.targets,
                          std::make_shared<DemoFeed>(DemoFeed::Content{.channels = std::move(feed.channels),
                                                                       .style = feed.place.style,
                                                                       .packing = feed.place.packing},
                                                     generator, now)});
    }
    return placed;
}

} // namespace guide
