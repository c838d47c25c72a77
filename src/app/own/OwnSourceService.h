#pragma once

#include "app/own/OwnSourceUpdates.h"
#include "app/own/PreviewCache.h"
#include "core/Settings.h"
#include "core/own/OwnPictures.h"
#include "parsers/own/SourcePreviewReader.h"
#include "screens/sources/SourceActions.h"

#include <QHash>

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <unordered_set>
#include <utility>
#include <vector>

namespace guide {

/// All of it must outlive the service and the last block on its queues.
struct OwnSourceServiceEnvironment {
    const Clock& clock;
    const Device& device;
    DispatchQueues& queues;
    OwnSources& sources;
    SourceRecords& records;
    const SourceFetcher& fetcher;
    OwnSourceUpdates& updates;
    OwnPictures& pictures;
    Settings& settings;
    RandomIndex random;
    QString caches;
    /// Puts channels into the selection, or takes them out, as the user's own choice. Main queue.
    std::function<void(const std::vector<ObjectId>&)> select;
    std::function<void(const std::vector<ObjectId>&)> unselect;
    /// The same for channels that will not come back.
    std::function<void(const std::vector<ObjectId>&)> forget;
    /// Other icons may be fetched than before. Main queue.
    std::function<void()> fetchIcons;
    /// The program is shutting down. Any thread.
    std::function<bool()> stopped;
};

/// What the screens of the user's own sources ask for, carried out on background queues.
class OwnSourceService final : public SourceActions {
  public:
    explicit OwnSourceService(OwnSourceServiceEnvironment environment);
    ~OwnSourceService() override;

    SharedOwnSources sources() const override { return m_environment.sources.snapshot(); }
    Token isProgram(const QString& input, std::function<void(bool)> answered) override;
    std::optional<QString> newHostOf(const QString& input) const override;
    Token propose(const QString& input, Progress progress, Proposed proposed) override;
    Token proposeAgain(const OwnSourceId& source, Progress progress, Proposed proposed) override;
    Token findGrabbers(std::function<void(QStringList)> found) override;

    OwnSourceId add(const SourceProposal& proposal, const OwnSource& settings, const QStringList& chosen,
                    const std::vector<MatchedEntry>& matches) override;
    void choose(const OwnSourceId& source, const SourceProposal& proposal, const QStringList& chosen,
                const std::vector<MatchedEntry>& matches) override;
    void update(const OwnSource& source) override;
    void remove(const OwnSourceId& source) override;
    void setAddress(const OwnSourceId& source, const QString& address) override;
    void refresh(const OwnSourceId& source) override;

    Token match(const Playlist& playlist, const std::vector<GuideCorrection>& corrections,
                const std::vector<OwnSourceId>& feeds,
                std::function<void(std::vector<MatchedEntry>)> matched) override;
    Token channelsOf(const OwnSourceId& feed,
                     std::function<void(std::vector<PreviewChannel>)> answered) override;

    SourceStatus status(const OwnSourceId& source) const override;

    bool hasPicture(const OwnSourceId& source, const QString& channel) const override;
    Token setPicture(const OwnSourceId& source, const QString& channel, const QString& file,
                     std::function<void(bool)> answered) override;
    void removePicture(const OwnSourceId& source, const QString& channel) override;

    bool iconsFromOtherHosts() const override { return m_environment.settings.iconsFromOtherHosts(); }
    void setIconsFromOtherHosts(bool on) override;

    /// Waits for what runs in the background. Transfers must have been cancelled.
    bool finish(std::chrono::milliseconds atMost) { return m_blocks.wait(atMost); }

  private:
    struct Content;
    struct Work;

    /// Runs `make` in the background and hands its result to `answer` on the main queue, unless the token was
    /// dropped.
    template <class Result>
    Token inBackground(std::function<Result(const Work&)> make, std::function<void(Result)> answer);
    SourceProposal proposal(const QString& input, const Work& work) const;
    SourceProposal keptProposal(const OwnSource& source, const Work& work) const;
    /// What was fetched last of a source. Kept for the minute, because matching, its proof and the list of
    /// channels need it one after the other.
    std::shared_ptr<const SourcePreview> keptPreview(const OwnSource& source, const Work& work) const;
    /// Gives chosen channels of playlists that have no schedule those of a new feed that clearly are theirs.
    void matchWith(const OwnSourceId& feed, const std::vector<PreviewChannel>& channels);
    void takeMatches(const OwnSourceId& id, const OwnSourceId& feed,
                     const std::vector<PreviewChannel>& channels, const QHash<QString, std::size_t>& places);
    PreviewRequest previewRequest(const QString& charset, const QString& language, const Work& work) const;

    const OwnSourceServiceEnvironment m_environment;
    const std::shared_ptr<DispatchQueue> m_queue;
    DispatchGroup m_blocks;
    std::shared_ptr<std::atomic<bool>> m_alive = std::make_shared<std::atomic<bool>>(true);
    mutable PreviewCache m_previews;
    /// Of playlists and the new feeds that they are matched with.
    std::map<std::pair<OwnSourceId, OwnSourceId>, Token> m_matching;
    /// The user agreed that they are asked.
    mutable std::unordered_set<QString> m_agreedHosts;
};

} // namespace guide
