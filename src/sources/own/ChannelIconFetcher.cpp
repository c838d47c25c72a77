#include "sources/own/ChannelIconFetcher.h"

#include "core/ChannelIconPicture.h"
#include "core/PictureDecoding.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"
#include "sources/PictureTransfer.h"
#include "sources/own/ChannelIconIndex.h"
#include "sources/own/IconAddress.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <deque>
#include <unordered_map>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::hours kKeptFor{30 * 24};
constexpr std::chrono::hours kBadFor{24};
constexpr std::chrono::hours kSilentFor{1};
constexpr std::chrono::seconds kLongestTransfer{10};
constexpr int kMostRedirects = 3;
constexpr int kMostTransfers = 4;
constexpr int kMostTransfersOfHost = 2;
constexpr int kSavedEvery = 32;

/// One place where a channel's icon may be: a web address or a file.
struct Origin {
    QUrl url;
    QString path;
    QByteArray digest;
    bool isAllowed = true;
    bool isChosen = false;
};

bool isAmong(const QString& host, const QStringList& hosts) {
    return std::ranges::any_of(hosts, [&host](const QString& each) {
        return !each.isEmpty() && (host == each || host.endsWith(u'.' + each));
    });
}

/// The path of a file, if that is what the user gave.
QString chosenPath(const QString& chosen) {
    const QString path = chosen.startsWith("file:"_L1) ? QUrl(chosen).toLocalFile() : chosen;
    return QDir::isAbsolutePath(path) && !path.startsWith("//"_L1) ? path : QString();
}

std::vector<Origin> originsOf(const WantedIcon& wanted, bool allowThirdHosts) {
    std::vector<Origin> origins;
    if (const QString path = chosenPath(wanted.chosen); !path.isEmpty()) {
        const QFileInfo file(path);
        const QString state =
            u"%1\n%2\n%3"_s.arg(path).arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch());
        origins.push_back(
            {.url = {}, .path = path, .digest = ChannelIconIndex::digestOf(state), .isChosen = true});
    }
    const auto append = [&](const QString& written, bool isChosen) {
        for (const QUrl& url : iconAddresses(written)) {
            if (std::ranges::find(origins, url, &Origin::url) == origins.end()) {
                origins.push_back(
                    {.url = url,
                     .path = {},
                     .digest = ChannelIconIndex::digestOf(url.toString(QUrl::FullyEncoded)),
                     .isAllowed = isChosen || allowThirdHosts || isAmong(url.host(), wanted.ownHosts),
                     .isChosen = isChosen});
            }
        }
    };
    append(wanted.chosen, true);
    append(wanted.feedIcon, false);
    append(wanted.playlistLogo, false);
    return origins;
}

} // namespace

/// Everything but `stopped` belongs to the serial queue.
struct ChannelIconFetcher::State : std::enable_shared_from_this<State> {
    struct Plan {
        std::vector<Origin> origins;
        std::size_t next = 0;
        QStringList ownHosts;
    };
    struct Job {
        QUrl url;
        bool isChosen = false;
        QStringList ownHosts;
        bool allowThirdHosts = false;
    };
    enum class Outcome { Picture, Bad, NoAnswer, Cancelled };
    struct Host {
        int running = 0;
        /// Jobs for which it is too busy.
        std::deque<Job> parked;
    };

    explicit State(ChannelIconEnvironment own)
        : environment(std::move(own))
        , serial(environment.queues.makeQueue("channel-icons", QueueKind::Serial, QueuePriority::Background))
        , transfers(environment.queues.makeQueue("channel-icon-transfers", QueueKind::Concurrent,
                                                 QueuePriority::Background)) {}

    void makePlans(const std::vector<WantedIcon>& wanted, bool thirdHosts);
    void advance(const QString& channel);
    bool takeFromAnother(const QString& channel, const Origin& origin);
    void enqueue(const QString& channel, const Plan& plan, const Origin& origin);
    void startJobs();
    std::pair<Outcome, QByteArray> fetch(const Job& job) const;
    void done(const Job& job, Outcome outcome, const QByteArray& picture);
    void store(const QString& channel, const QByteArray& file, const ChannelIconIndex::Picture& picture);
    void removeOthers(const QSet<QString>& channels);
    void announce(const QString& channel);
    bool isKept(const QString& channel, const Origin& origin) const;
    QString pathOf(const QString& channel) const { return environment.folder + u'/' + channel; }

    const ChannelIconEnvironment environment;
    const std::shared_ptr<DispatchQueue> serial;
    const std::shared_ptr<DispatchQueue> transfers;
    DispatchGroup group;
    std::atomic<bool> stopped{false};

    std::optional<ChannelIconIndex> index;
    bool allowThirdHosts = false;
    std::unordered_map<QString, Plan> plans;
    std::deque<Job> ready;
    std::unordered_map<QString, Host> hosts;
    /// The channels that wait for an address, whose transfer may be running.
    QHash<QUrl, QStringList> waiting;
    QSet<QUrl> running;
    int finished = 0;
};

ChannelIconFetcher::ChannelIconFetcher(ChannelIconEnvironment environment)
    : m_state(std::make_shared<State>(std::move(environment))) {}

ChannelIconFetcher::~ChannelIconFetcher() {
    m_state->stopped = true;
    m_state->group.wait();
    if (m_state->index) {
        m_state->index->save();
    }
}

void ChannelIconFetcher::setWanted(std::vector<WantedIcon> wanted, bool allowThirdHosts) {
    m_state->group.async(*m_state->serial,
                         [state = m_state.get(), wanted = std::move(wanted), allowThirdHosts] {
                             if (!state->stopped) {
                                 state->makePlans(wanted, allowThirdHosts);
                             }
                         });
}

void ChannelIconFetcher::State::makePlans(const std::vector<WantedIcon>& wanted, bool thirdHosts) {
    if (!index) {
        QDir().mkpath(environment.folder);
        removeStaleReplacements(environment.folder);
        index.emplace(environment.folder);
    }
    allowThirdHosts = thirdHosts;
    ready.clear();
    waiting.clear();
    for (auto& each : hosts) {
        each.second.parked.clear();
    }
    plans.clear();
    QSet<QString> channels;
    for (const WantedIcon& each : wanted) {
        const QString channel = each.channel.hex();
        channels.insert(channel);
        plans[channel] = {.origins = originsOf(each, allowThirdHosts), .ownHosts = each.ownHosts};
    }
    removeOthers(channels);
    for (const QString& channel : std::as_const(channels)) {
        if (stopped) {
            return;
        }
        advance(channel);
    }
    startJobs();
}

void ChannelIconFetcher::State::removeOthers(const QSet<QString>& channels) {
    index->keepOnly(channels, environment.clock.now());
    const QStringList files = QDir(environment.folder).entryList(QDir::Files);
    for (const QString& file : files) {
        if (ObjectId::isHex(file) && !channels.contains(file)) {
            QFile::remove(pathOf(file));
        }
    }
}

bool ChannelIconFetcher::State::isKept(const QString& channel, const Origin& origin) const {
    const std::optional<ChannelIconIndex::Picture> picture = index->picture(channel);
    if (!picture || picture->origin != origin.digest || !QFile::exists(pathOf(channel))) {
        return false;
    }
    const Moment now = environment.clock.now();
    // An old picture is better than that of the next origin while its own does not answer.
    return std::chrono::abs(now - picture->fetched) < kKeptFor || index->hasFailed(origin.digest, now);
}

/// Takes the channel's icon from the next origin that may have it.
void ChannelIconFetcher::State::advance(const QString& channel) {
    const auto found = plans.find(channel);
    if (found == plans.end()) {
        return;
    }
    Plan& plan = found->second;
    for (; plan.next < plan.origins.size(); ++plan.next) {
        const Origin& origin = plan.origins[plan.next];
        if (isKept(channel, origin)) {
            return;
        }
        if (!origin.isAllowed || index->hasFailed(origin.digest, environment.clock.now())) {
            continue;
        }
        if (takeFromAnother(channel, origin)) {
            return;
        }
        if (!origin.url.isEmpty()) {
            enqueue(channel, plan, origin);
            return;
        }
        const QByteArray picture =
            channelIconPicture(fileContent(origin.path, kChannelIconLimits.bytes).value_or(QByteArray()));
        if (!picture.isEmpty()) {
            store(channel, picture, {origin.digest, environment.clock.now()});
            return;
        }
    }
    const std::optional<ChannelIconIndex::Picture> picture = index->picture(channel);
    if (picture && std::ranges::find(plan.origins, picture->origin, &Origin::digest) == plan.origins.end()) {
        index->removePicture(channel);
        QFile::remove(pathOf(channel));
        announce(channel);
    }
}

/// Uses what was fetched for another channel.
bool ChannelIconFetcher::State::takeFromAnother(const QString& channel, const Origin& origin) {
    const std::optional<QString> other = index->channelWith(origin.digest);
    if (!other || *other == channel || !isKept(*other, origin)) {
        return false;
    }
    const QByteArray file = fileContent(pathOf(*other), kChannelIconLimits.bytes).value_or(QByteArray());
    if (file.isEmpty()) {
        return false;
    }
    store(channel, file, *index->picture(*other));
    return true;
}

void ChannelIconFetcher::State::enqueue(const QString& channel, const Plan& plan, const Origin& origin) {
    QStringList& channels = waiting[origin.url];
    if (channels.isEmpty() && !running.contains(origin.url)) {
        ready.push_back({origin.url, origin.isChosen, plan.ownHosts, allowThirdHosts});
    }
    channels.append(channel);
}

void ChannelIconFetcher::State::startJobs() {
    while (!ready.empty() && running.size() < kMostTransfers && !stopped) {
        Job job = std::move(ready.front());
        ready.pop_front();
        Host& host = hosts[job.url.host()];
        if (host.running == kMostTransfersOfHost) {
            host.parked.push_back(std::move(job));
            continue;
        }
        ++host.running;
        running.insert(job.url);
        // The fetcher waits for the group, so that this outlives the blocks.
        group.async(*transfers, [this, job = std::move(job)] {
            auto [outcome, picture] = fetch(job);
            group.async(*serial, [this, job, result = outcome, file = std::move(picture)] {
                done(job, result, file);
            });
        });
    }
    if (running.isEmpty()) {
        index->save();
    }
}

std::pair<ChannelIconFetcher::State::Outcome, QByteArray>
ChannelIconFetcher::State::fetch(const Job& job) const {
    if (stopped) {
        return {Outcome::Cancelled, {}};
    }
    PictureTransferLimits limits{.bytes = kChannelIconLimits.bytes,
                                 .redirects = kMostRedirects,
                                 .silence = kLongestTransfer,
                                 .longest = kLongestTransfer,
                                 .stopped = [this] { return stopped.load(); }};
    limits.mayAsk = [&job](const QUrl& url) {
        return job.isChosen || job.allowThirdHosts || isAmong(url.host(), job.ownHosts);
    };
    const PictureTransfer transfer = transferPicture(environment.client, environment.networkActivity,
                                                     environment.userAgent, job.url, limits);
    if (transfer.error && transfer.error->cancelled && !transfer.tooLarge) {
        return {Outcome::Cancelled, {}};
    }
    QByteArray picture = channelIconPicture(transfer.file);
    const Outcome outcome = !picture.isEmpty()  ? Outcome::Picture
                            : transfer.answered ? Outcome::Bad
                                                : Outcome::NoAnswer;
    return {outcome, std::move(picture)};
}

void ChannelIconFetcher::State::done(const Job& job, Outcome outcome, const QByteArray& picture) {
    running.remove(job.url);
    const auto host = hosts.find(job.url.host());
    --host->second.running;
    if (!host->second.parked.empty()) {
        ready.push_front(std::move(host->second.parked.front()));
        host->second.parked.pop_front();
    } else if (host->second.running == 0) {
        hosts.erase(host);
    }
    const QByteArray origin = ChannelIconIndex::digestOf(job.url.toString(QUrl::FullyEncoded));
    if (outcome == Outcome::Bad || outcome == Outcome::NoAnswer) {
        index->setFailed(origin, environment.clock.now() + (outcome == Outcome::Bad ? kBadFor : kSilentFor));
    }
    const QStringList channels = waiting.take(job.url);
    for (const QString& channel : channels) {
        if (outcome == Outcome::Picture) {
            store(channel, picture, {origin, environment.clock.now()});
        } else if (outcome != Outcome::Cancelled) {
            advance(channel);
        }
    }
    if (++finished % kSavedEvery == 0) {
        index->save();
    }
    startJobs();
}

void ChannelIconFetcher::State::store(const QString& channel, const QByteArray& file,
                                      const ChannelIconIndex::Picture& picture) {
    if (replaceFile(pathOf(channel), file)) {
        index->setPicture(channel, picture);
        announce(channel);
    }
}

void ChannelIconFetcher::State::announce(const QString& channel) {
    environment.queues.mainQueue().async([weak = weak_from_this(), channel] {
        if (const auto self = weak.lock(); self && !self->stopped && self->environment.fetched) {
            self->environment.fetched(ObjectId::fromHex(channel));
        }
    });
}

} // namespace guide
