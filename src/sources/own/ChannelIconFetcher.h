#pragma once

#include "core/ObjectId.h"
#include "platform/Clock.h"
#include "platform/http/HTTPClient.h"
#include "platform/queues/DispatchQueue.h"
#include "sources/HTTPUserAgent.h"
#include "sources/NetworkActivity.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace guide {

/// The icons that a channel may have, in the order in which they are tried. Each may be empty.
struct WantedIcon {
    ObjectId channel;
    /// A web address, or the path of a file: of the user's choice, so that any host is asked for it.
    QString chosen = {};
    /// As written in the feed and in the playlist.
    QString feedIcon = {};
    QString playlistLogo = {};
    /// Of the channel's feed and playlist: they are asked for icons whether or not others are.
    QStringList ownHosts = {};
};

/// All of it must outlive the fetcher, except the queues' blocks.
struct ChannelIconEnvironment {
    const Clock& clock;
    HTTPClient& client;
    NetworkActivity& networkActivity;
    const HTTPUserAgent& userAgent;
    DispatchQueues& queues;
    /// Holds a picture for each channel that has one, named after its id.
    QString folder;
    /// Called on the main queue when the picture of a channel has changed.
    std::function<void(const ObjectId& channel)> fetched;
};

/// Keeps the pictures of the user's own channels in a folder: fetches each for 30 days, at most two at a time
/// from a host, each address once. What is no picture, or was not there, is not asked for again for a day;
/// a host that did not answer, for an hour. Any thread.
class ChannelIconFetcher {
  public:
    explicit ChannelIconFetcher(ChannelIconEnvironment environment);
    /// Ends the transfers that are running and waits for them.
    ~ChannelIconFetcher();

    /// Fetches in the background what is missing of these, and removes all others. Hosts that are neither a
    /// channel's own nor the user's choice are asked only with `allowThirdHosts`.
    void setWanted(std::vector<WantedIcon> wanted, bool allowThirdHosts);

  private:
    struct State;
    const std::shared_ptr<State> m_state;
};

} // namespace guide
