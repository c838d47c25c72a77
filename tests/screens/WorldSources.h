#pragma once

#include "platform/queues/DispatchQueue.h"
#include "screens/sources/SourceActions.h"

#include <gtest/gtest.h>
#include <map>

namespace guide::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

inline PreviewChannel previewChannel(const QString& name, const QString& language = u"cs"_s, int shows = 10) {
    PreviewChannel channel;
    channel.id = name.toLower() + u".cz"_s;
    channel.names = {name};
    channel.language = language;
    channel.shows = shows;
    channel.live = shows > 0;
    return channel;
}

/// A feed with these channels, the first of which shows the news at 19:00 UTC.
inline SourceProposal feedProposal(const std::vector<PreviewChannel>& channels, Moment now) {
    SourceProposal proposal;
    proposal.name = u"Television"_s;
    SourcePreview& preview = proposal.preview;
    preview.kind = SourceKind::Feed;
    preview.result = SourceResult::Read;
    preview.channels = channels;
    for (PreviewChannel& channel : preview.channels) {
        const bool hasShows = channel.shows > 0;
        preview.channelsWithShows += hasShows;
        preview.channelsOnAir += hasShows;
        preview.channelsLive += hasShows;
        preview.shows += channel.shows;
        ++preview.languages[channel.language];
        if (hasShows) {
            channel.running = PreviewShow{u"On "_s + channel.names.value(0), now - 10min, now + 50min};
        }
    }
    preview.first = now - 1h;
    preview.last = now + 100h;
    const Moment day = std::chrono::floor<std::chrono::days>(now);
    preview.news = PreviewNews{channels.front().names.value(0), {u"Evening News"_s, day + 19h, day + 20h}};
    preview.unpackedBytes = 4'200'000;
    return proposal;
}

inline SourceProposal playlistProposal(const QStringList& names, const QStringList& feeds = {}) {
    SourceProposal proposal;
    proposal.kind = OwnSourceKind::Playlist;
    proposal.name = u"My list"_s;
    proposal.preview.kind = SourceKind::Playlist;
    proposal.preview.result = SourceResult::Read;
    proposal.preview.playlist.feeds = feeds;
    for (const QString& name : names) {
        PlaylistEntry entry;
        entry.name = name;
        entry.groups = {name.left(1)};
        proposal.preview.playlist.entries.push_back(entry);
    }
    return proposal;
}

inline SourceProposal failedProposal(SourceResult result, const QString& detail = {}) {
    SourceProposal proposal;
    proposal.preview.result = result;
    proposal.detail = detail;
    return proposal;
}

/// Keeps the questions about inputs until the test answers them; matches entries to the channels of feeds
/// with the same names. A log of what it was told.
struct WorldSources final : SourceActions {
    explicit WorldSources(DispatchQueue& ownMainQueue)
        : mainQueue(ownMainQueue) {}

    SharedOwnSources sources() const override { return std::make_shared<const OwnSourceList>(list); }
    Token isProgram(const QString& input, std::function<void(bool)> answered) override {
        return later([answered, is = programs.contains(input)] { answered(is); });
    }
    std::optional<QString> newHostOf(const QString&) const override { return newHost; }
    Token propose(const QString& input, Progress reading, Proposed answered) override {
        done << u"ask "_s + input;
        return ask(std::move(reading), std::move(answered));
    }
    Token proposeAgain(const OwnSourceId& source, Progress reading, Proposed answered) override {
        done << u"again "_s + nameOf(source);
        return ask(std::move(reading), std::move(answered));
    }
    Token findGrabbers(std::function<void(QStringList)> found) override {
        return later([found, grabbers = grabbers] { found(grabbers); });
    }
    OwnSourceId add(const SourceProposal& proposal, const OwnSource& settings, const QStringList& chosen,
                    const std::vector<MatchedEntry>& matches) override {
        OwnSource source = settings;
        source.id = OwnSourceId({static_cast<std::uint8_t>(list.size() + 1)});
        source.kind = proposal.kind;
        feeds[source.id] = proposal.preview.channels;
        setChannels(source, chosen, matches);
        list.push_back(source);
        done << u"add %1: %2"_s.arg(source.name, chosen.join(u' '));
        return source.id;
    }
    void choose(const OwnSourceId& source, const SourceProposal&, const QStringList& chosen,
                const std::vector<MatchedEntry>& matches) override {
        setChannels(find(source), chosen, matches);
        done << u"choose "_s + chosen.join(u' ');
    }
    void update(const OwnSource& source) override {
        find(source.id) = source;
        done << u"update "_s + source.name;
    }
    void remove(const OwnSourceId& source) override {
        done << u"remove "_s + nameOf(source);
        std::erase_if(list, [&source](const OwnSource& each) { return each.id == source; });
    }
    void setAddress(const OwnSourceId&, const QString& address) override { done << u"address "_s + address; }
    void refresh(const OwnSourceId& source) override { done << u"refresh "_s + nameOf(source); }
    Token match(const Playlist& playlist, const std::vector<GuideCorrection>& corrections,
                const std::vector<OwnSourceId>&,
                std::function<void(std::vector<MatchedEntry>)> matched) override {
        std::vector<MatchedEntry> entries;
        for (const PlaylistEntry& entry : playlist.entries) {
            MatchedEntry made;
            made.key = u"key of "_s + entry.name;
            made.entry = entry;
            for (const auto& [feed, channels] : feeds) {
                for (const PreviewChannel& channel : channels) {
                    if (channel.names.value(0) == entry.name) {
                        made.match = MatchKind::Name;
                        made.guide = GuideChannel{feed, channel.id};
                    } else if (channel.names.value(0).startsWith(entry.name.left(3)) && !made.guide) {
                        made.match = MatchKind::Review;
                        made.candidates.push_back({feed, channel.id});
                    }
                }
            }
            for (const GuideCorrection& correction : corrections) {
                if (correction.key == made.key) {
                    made.guide = correction.guide;
                    made.corrected = true;
                    made.match = correction.guide ? MatchKind::Name : MatchKind::None;
                }
            }
            entries.push_back(std::move(made));
        }
        return later([matched, entries] { matched(entries); });
    }
    Token channelsOf(const OwnSourceId& feed,
                     std::function<void(std::vector<PreviewChannel>)> answered) override {
        return later([answered, channels = feeds[feed]] { answered(channels); });
    }
    SourceStatus status(const OwnSourceId& source) const override {
        const auto found = states.find(source);
        return found == states.end() ? SourceStatus() : found->second;
    }

    bool hasPicture(const OwnSourceId&, const QString& channel) const override {
        return pictures.contains(channel);
    }
    Token setPicture(const OwnSourceId&, const QString& channel, const QString& file,
                     std::function<void(bool)> answered) override {
        const bool is = file.endsWith(u".png"_s);
        if (is) {
            pictures << channel;
        }
        return later([answered, is] { answered(is); });
    }
    void removePicture(const OwnSourceId&, const QString& channel) override { pictures.removeAll(channel); }

    bool iconsFromOtherHosts() const override { return otherHosts; }
    void setIconsFromOtherHosts(bool on) override { otherHosts = on; }

    /// Answers the latest question, unless it was cancelled.
    void answer(const SourceProposal& proposal) {
        ASSERT_TRUE(proposed);
        const Proposed answered = std::exchange(proposed, nullptr);
        if (!asked.expired()) {
            answered(proposal);
        }
    }
    OwnSource& find(const OwnSourceId& source) { return *std::ranges::find(list, source, &OwnSource::id); }

    DispatchQueue& mainQueue;
    OwnSourceList list;
    std::map<OwnSourceId, SourceStatus> states;
    std::map<OwnSourceId, std::vector<PreviewChannel>> feeds;
    QStringList programs;
    QStringList pictures;
    QStringList grabbers;
    std::optional<QString> newHost;
    Progress progress;
    Proposed proposed;
    std::weak_ptr<void> asked;
    QStringList done;
    bool otherHosts = false;

  private:
    Token later(const std::function<void()>& answer) {
        const auto token = std::make_shared<char>();
        mainQueue.async([answer, given = std::weak_ptr(token)] {
            if (!given.expired()) {
                answer();
            }
        });
        return token;
    }
    Token ask(Progress ownProgress, Proposed ownProposed) {
        progress = std::move(ownProgress);
        proposed = std::move(ownProposed);
        const auto token = std::make_shared<char>();
        asked = token;
        return token;
    }
    QString nameOf(const OwnSourceId& source) { return find(source).name; }
    static void setChannels(OwnSource& source, const QStringList& chosen,
                            const std::vector<MatchedEntry>& matches) {
        source.channels.clear();
        for (const QString& key : chosen) {
            OwnChannel channel{.key = key, .title = key, .language = u"cs"_s};
            const auto match = std::ranges::find(matches, key, &MatchedEntry::key);
            if (match != matches.end()) {
                channel.guide = match->guide;
                channel.language = match->guideLanguage;
            }
            source.channels.push_back(channel);
        }
    }
};

} // namespace guide::test
