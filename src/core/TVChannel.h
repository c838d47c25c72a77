#pragma once

#include "core/ObjectId.h"
#include "platform/Clock.h"
#include "platform/Moment.h"

#include <QString>

#include <chrono>
#include <mutex>
#include <optional>

namespace guide {

/// The run-time record of one selected channel: its display facts, whether it is being loaded, and when its
/// listings were last stored. May be used from any thread.
class TVChannel {
  public:
    /// `cachesFolder` is where the channel's listing file stands.
    TVChannel(const ObjectId& channelId, const QString& title, const QString& language,
              const QString& iconFileName, bool hasStreamURL, const QString& cachesFolder);

    const ObjectId& identificator() const { return m_identificator; }
    const QString& title() const { return m_title; }
    const QString& language() const { return m_language; }
    const QString& iconFileName() const { return m_iconFileName; }
    bool hasStreamURL() const { return m_hasStreamURL; }

    bool loading() const;
    void setLoading(bool loading);

    /// When the channel's list was last stored: remembered, or else the modification date of its listing
    /// file. Nothing when there is no such file, or while a reload is required.
    std::optional<Moment> timeLoaded() const;
    void setTimeLoaded(std::optional<Moment> timeLoaded);

    /// Makes the channel due, whatever the age of its list, until a load time is set. The listing file stays
    /// until another list replaces it: a reload may bring nothing.
    void requireReload();

    /// Forgets the load time and deletes the listing file, which makes the channel due. For a file that holds
    /// nothing any more.
    void unload();

    /// Whether the list is missing or older than the interval. A list exactly as old as the interval is not
    /// due, nor is a channel that is being loaded.
    bool reloadNeeded(Moment now, std::chrono::seconds automaticUpdateInterval) const;

  private:
    const ObjectId m_identificator;
    const QString m_title;
    const QString m_language;
    const QString m_iconFileName;
    const bool m_hasStreamURL;
    const QString m_listingsPath;

    mutable std::mutex m_guard;
    mutable std::optional<Moment> m_timeLoadedCache;
    bool m_reloadRequired = false;
    bool m_loading = false;
};

} // namespace guide
