#include "app/own/ChosenChannels.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace guide {

namespace {

OwnChannel channelOf(const OwnSourceId& source, const PreviewChannel& channel) {
    return {.key = channel.id,
            .title = channel.title(),
            .language = channel.language,
            .icon = channel.icon,
            .guide = GuideChannel{source, channel.id}};
}

OwnChannel channelOf(const MatchedEntry& entry) {
    return {.key = entry.key,
            .title = entry.entry.name.isEmpty() ? entry.entry.guideName : entry.entry.name,
            .language = !entry.guideLanguage.isEmpty()     ? entry.guideLanguage
                        : entry.entry.language.size() == 2 ? entry.entry.language
                                                           : QString(),
            .shift = std::chrono::minutes(qRound(entry.entry.shift * 60)),
            .icon = entry.entry.logo,
            .stream = entry.entry.stream,
            .guide = entry.guide};
}

} // namespace

std::vector<OwnChannel> chosenChannels(const OwnSource& source, const SourceProposal& proposal,
                                       const QStringList& chosen, const std::vector<MatchedEntry>& matches) {
    const QSet<QString> wanted(chosen.begin(), chosen.end());
    QHash<QString, OwnChannel> earlier;
    for (const OwnChannel& channel : source.channels) {
        earlier.insert(channel.key, channel);
    }
    std::vector<OwnChannel> channels;
    const auto take = [&](const QString& key, const auto& from) {
        if (!wanted.contains(key)) {
            return;
        }
        const auto known = earlier.find(key);
        if (known == earlier.end()) {
            channels.push_back(from());
        } else {
            channels.push_back(*known);
            earlier.erase(known);
        }
    };
    if (source.kind == OwnSourceKind::Playlist) {
        for (const MatchedEntry& entry : matches) {
            take(entry.key, [&entry] { return channelOf(entry); });
        }
    } else {
        for (const PreviewChannel& channel : proposal.preview.channels) {
            take(channel.id, [&] { return channelOf(source.id, channel); });
        }
    }
    // A channel that the source does not name today is not given up.
    std::ranges::copy_if(source.channels, std::back_inserter(channels), [&](const OwnChannel& channel) {
        return wanted.contains(channel.key) && earlier.contains(channel.key);
    });
    return channels;
}

QSet<QString> channelsToMatch(const OwnSource& source) {
    QSet<QString> keys;
    if (source.kind != OwnSourceKind::Playlist) {
        return keys;
    }
    for (const OwnChannel& channel : source.channels) {
        if (!channel.guide) {
            keys.insert(channel.key);
        }
    }
    for (const GuideCorrection& correction : source.corrections) {
        keys.remove(correction.key);
    }
    return keys;
}

std::vector<ObjectId> idsOf(const OwnSource& source) {
    std::vector<ObjectId> ids;
    ids.reserve(source.channels.size());
    for (const OwnChannel& channel : source.channels) {
        ids.push_back(ownChannelId(source.id, channel.key));
    }
    return ids;
}

std::vector<ObjectId> without(const std::vector<ObjectId>& ids, const std::vector<ObjectId>& others) {
    const std::unordered_set<ObjectId> known(others.begin(), others.end());
    std::vector<ObjectId> rest;
    std::ranges::copy_if(ids, std::back_inserter(rest),
                         [&known](const ObjectId& id) { return !known.contains(id); });
    return rest;
}

std::vector<ObjectId> toReadAgain(const OwnSource& before, const OwnSource& after) {
    QHash<QString, const OwnChannel*> earlier;
    for (const OwnChannel& channel : before.channels) {
        earlier.insert(channel.key, &channel);
    }
    std::vector<ObjectId> changed;
    for (const OwnChannel& channel : after.channels) {
        const OwnChannel* old = earlier.value(channel.key);
        if (old && (before.shift != after.shift || before.language != after.language ||
                    old->shift != channel.shift || old->language != channel.language ||
                    old->guide != channel.guide)) {
            changed.push_back(ownChannelId(after.id, channel.key));
        }
    }
    return changed;
}

} // namespace guide
