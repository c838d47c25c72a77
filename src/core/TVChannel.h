#pragma once

#include "core/CatalogueChannel.h"
#include "core/LoadFailure.h"
#include "platform/Clock.h"
#include "platform/Moment.h"

#include <QString>

#include <chrono>
#include <mutex>
#include <optional>

namespace guide {

/// The run-time record of one selected channel: its catalogue entry, whether it is being loaded, and when its
/// listings were last stored. Any thread.
class TVChannel {
  public:
    /// `cachesFolder` holds the channel's listing file.
    TVChannel(CatalogueChannel channel, const QString& cachesFolder);

    const CatalogueChannel& catalogueChannel() const { return m_channel; }
    const ObjectId& identificator() const { return m_channel.id; }
    const QString& title() const { return m_channel.title; }
    const QString& language() const { return m_channel.language; }

    bool loading() const;
    void setLoading(bool loading);

    /// Why the last load stored nothing; unset while the channel is being loaded and after a load that stored
    /// a list. Not kept between runs of the program.
    std::optional<LoadFailure> loadFailure() const;
    /// Returns whether that is a change.
    bool setLoadFailure(std::optional<LoadFailure> failure);

    /// When the channel's list was last stored: the cached time, or else the modification date of its listing
    /// file. Nothing when there is no such file, or while a reload is required.
    std::optional<Moment> timeLoaded() const;
    void setTimeLoaded(std::optional<Moment> timeLoaded);

    /// Makes the channel due, whatever the age of its list, until a load time is set. The listing file is
    /// kept until another list replaces it: a reload may find nothing.
    void requireReload();

    /// Forgets the load time and deletes the listing file, which makes the channel due. Used when the list
    /// is long over.
    void unload();

    /// Takes over the load time, or the required reload, and the failure of an earlier record of the same
    /// channel.
    void takeLoadStateFrom(const TVChannel& earlier);

    /// Whether a reload is required and has not been tried yet.
    bool reloadRequired() const;
    /// The required reload has been tried, and the list on the disk counts again. For the channels of the
    /// user's sources, which are asked no more often than the source allows.
    void endReloadRequest();

    /// Whether the list is missing or older than the interval, or has a load time in the future, which shows
    /// only that a clock was wrong. A list exactly as old as the interval is not due, nor is a channel that
    /// is being loaded. The list of a channel of a source that the user added has no age: its source decides.
    /// Logs what decides.
    bool reloadNeeded(Moment now, std::chrono::seconds automaticUpdateInterval) const;
    /// Whether the list is complete: not being loaded and not due.
    bool isSettled(Moment now, std::chrono::seconds automaticUpdateInterval) const;

  private:
    bool isDue(const std::optional<Moment>& loaded, Moment now,
               std::chrono::seconds automaticUpdateInterval) const;

    const CatalogueChannel m_channel;
    const QString m_listingsPath;

    mutable std::mutex m_guard;
    mutable std::optional<Moment> m_timeLoadedCache;
    bool m_reloadRequired = false;
    bool m_loading = false;
    std::optional<LoadFailure> m_loadFailure;
};

} // namespace guide
