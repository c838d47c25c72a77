#include "core/own/OwnSourceArchive.h"

#include "platform/archive/Archive.h"

#include <QCborArray>
#include <QCborMap>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

namespace guide {

namespace {

constexpr QLatin1StringView kId("id");
constexpr QLatin1StringView kRemoved("removed");
constexpr QLatin1StringView kKind("kind");
constexpr QLatin1StringView kAddress("address");
constexpr QLatin1StringView kSecret("secret");
constexpr QLatin1StringView kName("name");
constexpr QLatin1StringView kShift("shift");
constexpr QLatin1StringView kLanguage("language");
constexpr QLatin1StringView kLanguageCorrected("languageCorrected");
constexpr QLatin1StringView kHours("hours");
constexpr QLatin1StringView kChannels("channels");
constexpr QLatin1StringView kCorrections("corrections");
constexpr QLatin1StringView kKey("key");
constexpr QLatin1StringView kTitle("title");
constexpr QLatin1StringView kIcon("icon");
constexpr QLatin1StringView kStream("stream");
constexpr QLatin1StringView kGuideSource("guideSource");
constexpr QLatin1StringView kGuideChannel("guideChannel");

constexpr std::array<QLatin1StringView, 3> kKinds{QLatin1StringView("feed"), QLatin1StringView("playlist"),
                                                  QLatin1StringView("grabber")};
/// Two days: no feed is wrong by more.
constexpr std::int64_t kMostShift = 2LL * 24 * 60;
constexpr std::int64_t kMostHours = 24LL * 31;

void insertText(QCborMap& map, QLatin1StringView key, const QString& text) {
    if (!text.isEmpty()) {
        map.insert(key, text);
    }
}

void insertMinutes(QCborMap& map, std::chrono::minutes shift) {
    if (shift.count() != 0) {
        map.insert(kShift, static_cast<qint64>(shift.count()));
    }
}

std::chrono::minutes minutesOf(const QCborMap& map) {
    const qint64 minutes = map.value(kShift).toInteger();
    return std::chrono::minutes(std::abs(minutes) <= kMostShift ? minutes : 0);
}

void insertGuide(QCborMap& map, const std::optional<GuideChannel>& guide) {
    if (guide) {
        map.insert(kGuideSource, guide->source.hex());
        map.insert(kGuideChannel, guide->channel);
    }
}

std::optional<GuideChannel> guideOf(const QCborMap& map) {
    const auto source = OwnSourceId::fromHex(map.value(kGuideSource).toString());
    return source ? std::optional(GuideChannel{*source, map.value(kGuideChannel).toString()}) : std::nullopt;
}

QCborMap recordOf(const OwnChannel& channel) {
    QCborMap map;
    map.insert(kKey, channel.key);
    map.insert(kTitle, channel.title);
    insertText(map, kLanguage, channel.language);
    if (channel.languageCorrected) {
        map.insert(kLanguageCorrected, true);
    }
    insertMinutes(map, channel.shift);
    insertText(map, kIcon, channel.icon);
    insertText(map, kStream, channel.stream);
    insertGuide(map, channel.guide);
    return map;
}

std::optional<OwnChannel> channelOf(const QCborMap& map) {
    OwnChannel channel{.key = map.value(kKey).toString(),
                       .title = map.value(kTitle).toString(),
                       .language = map.value(kLanguage).toString(),
                       .languageCorrected = map.value(kLanguageCorrected).toBool(),
                       .shift = minutesOf(map),
                       .icon = map.value(kIcon).toString(),
                       .stream = map.value(kStream).toString(),
                       .guide = guideOf(map)};
    return channel.key.isEmpty() || channel.title.isEmpty() ? std::nullopt : std::optional(channel);
}

QCborMap recordOf(const OwnSource& source) {
    QCborMap map;
    map.insert(kId, source.id.hex());
    map.insert(kKind, kKinds[static_cast<std::size_t>(source.kind)]);
    map.insert(kAddress, source.address);
    if (source.hasSecret) {
        map.insert(kSecret, true);
    }
    map.insert(kName, source.name);
    insertMinutes(map, source.shift);
    insertText(map, kLanguage, source.language);
    map.insert(kHours, static_cast<qint64>(source.interval.count()));
    QCborArray channels;
    for (const OwnChannel& channel : source.channels) {
        channels.append(recordOf(channel));
    }
    map.insert(kChannels, channels);
    QCborArray corrections;
    for (const GuideCorrection& correction : source.corrections) {
        QCborMap record;
        record.insert(kKey, correction.key);
        insertGuide(record, correction.guide);
        corrections.append(record);
    }
    map.insert(kCorrections, corrections);
    return map;
}

std::optional<OwnSource> sourceOf(const OwnSourceId& id, const QCborMap& map) {
    const QString kind = map.value(kKind).toString();
    const auto known = std::ranges::find(kKinds, kind);
    if (known == kKinds.end() || map.value(kAddress).toString().isEmpty()) {
        return std::nullopt;
    }
    OwnSource source{.id = id,
                     .kind = static_cast<OwnSourceKind>(known - kKinds.begin()),
                     .address = map.value(kAddress).toString(),
                     .hasSecret = map.value(kSecret).toBool(),
                     .name = map.value(kName).toString(),
                     .shift = minutesOf(map),
                     .language = map.value(kLanguage).toString()};
    const qint64 hours = map.value(kHours).toInteger();
    if (hours > 0 && hours <= kMostHours) {
        source.interval = std::chrono::hours(hours);
    }
    const QCborArray channels = map.value(kChannels).toArray();
    source.channels.reserve(static_cast<std::size_t>(channels.size()));
    for (const auto& value : channels) {
        if (auto channel = channelOf(value.toMap())) {
            source.channels.push_back(*std::move(channel));
        }
    }
    const QCborArray corrections = map.value(kCorrections).toArray();
    for (const auto& value : corrections) {
        const QCborMap record = value.toMap();
        source.corrections.push_back({record.value(kKey).toString(), guideOf(record)});
    }
    return source;
}

RemovedSource removedOf(const OwnSourceId& id, const QCborArray& channels) {
    RemovedSource removed{.id = id, .channels = {}};
    for (const auto& channel : channels) {
        removed.channels.emplace_back(channel.toByteArray());
    }
    return removed;
}

} // namespace

QCborValue ownSourcesValue(const StoredSources& stored) {
    QCborArray array;
    for (const OwnSource& source : stored.sources) {
        array.append(archivedData(recordOf(source)));
    }
    for (const RemovedSource& removed : stored.removed) {
        QCborArray channels;
        for (const ObjectId& channel : removed.channels) {
            channels.append(channel.data());
        }
        QCborMap map;
        map.insert(kId, removed.id.hex());
        map.insert(kRemoved, channels);
        array.append(archivedData(map));
    }
    return array;
}

std::optional<StoredSources> ownSourcesOfValue(const QCborValue& value) {
    if (!value.isArray()) {
        return std::nullopt;
    }
    StoredSources stored;
    const QCborArray array = value.toArray();
    for (const auto& element : array) {
        const std::optional<QCborValue> record = unarchivedRoot(element.toByteArray());
        const QCborMap map = record ? record->toMap() : QCborMap();
        const auto id = OwnSourceId::fromHex(map.value(kId).toString());
        if (!id) {
            continue;
        }
        if (map.contains(kRemoved)) {
            stored.removed.push_back(removedOf(*id, map.value(kRemoved).toArray()));
        } else if (auto source = sourceOf(*id, map)) {
            stored.sources.push_back(*std::move(source));
        }
    }
    return stored;
}

} // namespace guide
