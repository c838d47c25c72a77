#pragma once

#include "core/CatalogueChannel.h"
#include "core/own/OwnSource.h"
#include "platform/KeyValueStore.h"
#include "platform/files/Folders.h"
#include "platform/queues/DispatchQueue.h"

#include <QCborValue>
#include <QLatin1StringView>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace guide {

using OwnSourceList = std::vector<OwnSource>;
using SharedOwnSources = std::shared_ptr<const OwnSourceList>;

/// The key of the sources in the key-value store.
inline constexpr QLatin1StringView kOwnSourcesKey("OwnSources");

/// The sources that the user added, in the order of adding, kept in the documents folder and mirrored to the
/// key-value store under "OwnSources", there without streams that hold a secret. Readers get a snapshot; a
/// change is visible at once and written in the background. Any thread.
class OwnSources {
  public:
    /// The key-value store must outlive this object.
    OwnSources(const Folders& folders, KeyValueStore& keyValueStore, DispatchQueues& queues);
    ~OwnSources();

    /// Never null.
    SharedOwnSources snapshot() const;
    std::optional<OwnSource> find(const OwnSourceId& id) const;

    /// Adds the source or replaces the one with its id. An equal one changes nothing.
    void put(OwnSource source);
    /// Removes the source and remembers its channels as removed. Channels of other sources lose the schedules
    /// that it gave them.
    void remove(const OwnSourceId& id);
    /// Whether the channel belonged to a source that the user removed.
    bool isRemoved(const ObjectId& channel) const;

    /// The chosen channels of all sources, for the catalogue.
    std::vector<CatalogueChannel> catalogueChannels() const;

    /// Takes over what another device stored: the sources that are not known here, and what was removed
    /// there. What was removed here stays removed. Returns whether that is a change.
    bool takeFrom(const QCborValue& value);

    /// Called after each change, on the thread that makes it. One observer; set before the first change.
    void setObserver(std::function<void()> changed);

    /// Blocks until the pending write is done, retrying one that failed. False when the write failed again.
    bool finishWriting();

  private:
    struct State;
    const std::unique_ptr<State> m_state;
};

/// The name of the icon of a source's channel in TVStationIcons.
QString ownIconName(const ObjectId& channel);

} // namespace guide
