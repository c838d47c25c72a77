#pragma once

#include "core/own/OwnSources.h"
#include "core/own/SourcePreview.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace guide {

/// A source that the user may add: what was typed, and what it turned out to be.
struct SourceProposal {
    /// As typed or chosen.
    QString input;
    OwnSourceKind kind = OwnSourceKind::Feed;
    /// A name for it, from its content or address.
    QString name;
    /// The content; its `result` says why it cannot be used.
    SourcePreview preview;
    /// A number or name that belongs to the result; may be empty.
    QString detail;
    /// Keeps what was fetched until it is added or dropped.
    std::shared_ptr<const void> content;
};

/// An entry of a playlist with the channel of a feed that it was matched to.
struct MatchedEntry {
    /// Tells the entries of a playlist apart.
    QString key;
    PlaylistEntry entry;
    MatchKind match = MatchKind::None;
    /// The user decided, not the match.
    bool corrected = false;
    std::optional<GuideChannel> guide;
    /// Of the shows of that channel; empty when it is not known.
    QString guideLanguage;
    std::vector<GuideChannel> candidates;
};

/// What the screens of the user's own sources ask for. Main queue; so are the answers, which come later than
/// the call and not after their token was dropped.
class SourceActions {
  public:
    virtual ~SourceActions() = default;

    /// Dropping it cancels what it was given for.
    using Token = std::shared_ptr<void>;
    using Progress = std::function<void(int channels, std::int64_t bytes)>;
    using Proposed = std::function<void(SourceProposal proposal)>;

    /// Never null.
    virtual SharedOwnSources sources() const = 0;
    std::optional<OwnSource> sourceWithId(const OwnSourceId& id) const {
        const SharedOwnSources all = sources();
        const auto found = std::ranges::find(*all, id, &OwnSource::id);
        return found == all->end() ? std::nullopt : std::optional(*found);
    }
    /// Whether the input is a program of this device, so that the user has to agree before it runs. Looks at
    /// the disk.
    virtual Token isProgram(const QString& input, std::function<void(bool)> answered) = 0;
    /// The host of the address, if it was never asked, so that the user has to agree.
    virtual std::optional<QString> newHostOf(const QString& input) const = 0;
    /// Fetches and reads an address, a file, or the output of a program.
    virtual Token propose(const QString& input, Progress progress, Proposed proposed) = 0;
    /// What a source that was added offers now, from what was fetched last.
    virtual Token proposeAgain(const OwnSourceId& source, Progress progress, Proposed proposed) = 0;
    /// The paths of the programs that have the names of grabbers. None is run.
    virtual Token findGrabbers(std::function<void(QStringList paths)> found) = 0;

    /// Adds the source with the channels chosen by their keys, selects these channels, and loads them. A
    /// playlist's channels take their schedules from `matches`.
    virtual OwnSourceId add(const SourceProposal& proposal, const OwnSource& settings,
                            const QStringList& chosen, const std::vector<MatchedEntry>& matches) = 0;
    /// Chooses the channels of a source that was added. Those that stay keep their settings; the others leave
    /// the selection, new ones enter it and are loaded.
    virtual void choose(const OwnSourceId& source, const SourceProposal& proposal, const QStringList& chosen,
                        const std::vector<MatchedEntry>& matches) = 0;
    /// Replaces the record; channels that it no longer has leave the selection, new ones enter it.
    virtual void update(const OwnSource& source) = 0;
    virtual void remove(const OwnSourceId& source) = 0;
    /// Changes the address, which is taken apart from its secrets.
    virtual void setAddress(const OwnSourceId& source, const QString& address) = 0;
    /// Asks the source now, whatever its next try.
    virtual void refresh(const OwnSourceId& source) = 0;

    /// Matches a playlist to the feeds given, or to all feeds that were added, from what was fetched last.
    virtual Token match(const Playlist& playlist, const std::vector<GuideCorrection>& corrections,
                        const std::vector<OwnSourceId>& feeds,
                        std::function<void(std::vector<MatchedEntry>)> matched) = 0;
    /// The names of a feed's channels and what is on now, from what was fetched last.
    virtual Token channelsOf(const OwnSourceId& feed,
                             std::function<void(std::vector<PreviewChannel>)> answered) = 0;

    virtual SourceStatus status(const OwnSourceId& source) const = 0;

    /// Whether the user chose a picture for the channel.
    virtual bool hasPicture(const OwnSourceId& source, const QString& channel) const = 0;
    /// Shows the picture of the file in place of the channel's icon. `answered` is told whether it is a
    /// picture that can be shown.
    virtual Token setPicture(const OwnSourceId& source, const QString& channel, const QString& file,
                             std::function<void(bool)> answered) = 0;
    virtual void removePicture(const OwnSourceId& source, const QString& channel) = 0;

    /// Whether icons are fetched from hosts other than those of the sources.
    virtual bool iconsFromOtherHosts() const = 0;
    virtual void setIconsFromOtherHosts(bool on) = 0;
};

} // namespace guide
