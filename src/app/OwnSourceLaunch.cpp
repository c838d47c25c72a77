// The user's own sources: how they are made at the launch and joined with the catalogue.

#include "app/QuellinGuideAppDelegate.h"
#include "core/own/SourceAddress.h"
#include "screens/channels/SelectionEditor.h"
#include "screens/sources/AddSourceViewController.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

std::vector<WantedIcon> wantedIcons(const OwnSourceList& sources, const OwnPictures& pictures) {
    std::unordered_map<OwnSourceId, QString> hosts;
    for (const OwnSource& source : sources) {
        hosts.emplace(source.id, hostOfAddress(source.address));
    }
    const auto hostOf = [&hosts](const OwnSourceId& id) {
        const auto host = hosts.find(id);
        return host == hosts.end() ? QString() : host->second;
    };
    std::vector<WantedIcon> icons;
    for (const OwnSource& source : sources) {
        const bool isPlaylist = source.kind == OwnSourceKind::Playlist;
        for (const OwnChannel& channel : source.channels) {
            WantedIcon icon{.channel = ownChannelId(source.id, channel.key), .ownHosts = {hostOf(source.id)}};
            icon.chosen = pictures.pathOf(source.id, icon.channel).value_or(QString());
            if (channel.guide) {
                icon.ownHosts << hostOf(channel.guide->source);
            }
            icon.ownHosts.removeAll(QString());
            (isPlaylist ? icon.playlistLogo : icon.feedIcon) = channel.icon;
            icons.push_back(std::move(icon));
        }
    }
    return icons;
}

} // namespace

void QuellinGuideAppDelegate::joinCatalogue() {
    // So that of two changes the later one stays.
    const std::lock_guard lock(m_catalogueGuard);
    std::vector<CatalogueChannel> channels = m_suppliedChannels;
    std::vector<CatalogueChannel> own = m_ownSources->catalogueChannels();
    std::vector<std::pair<QString, QString>> titles;
    titles.reserve(own.size());
    for (const CatalogueChannel& channel : own) {
        titles.emplace_back(channel.icon, channel.title);
    }
    m_icons->setOwnTitles(titles);
    std::ranges::move(own, std::back_inserter(channels));
    m_catalogue.replace(CatalogueSnapshot(channels));
}

void QuellinGuideAppDelegate::addSource(const QString& input) {
    if (m_ownSourceService) {
        guide::addSource(m_screenEnvironment, *m_tabBarController, input);
    }
}

void QuellinGuideAppDelegate::fetchOwnIcons() {
    if (m_channelIcons) {
        m_channelIcons->setWanted(wantedIcons(*m_ownSources->snapshot(), *m_ownPictures),
                                  m_settings.iconsFromOtherHosts());
    }
}

void QuellinGuideAppDelegate::watchOwnFiles() {
    if (!m_environment.fileWatch || !m_ownSourceUpdates) {
        return;
    }
    std::map<WatchedFile, FileWatch::Token> watched;
    const SharedOwnSources sources = m_ownSources->snapshot();
    for (const OwnSource& source : *sources) {
        if (!isOwnFile(source)) {
            continue;
        }
        const WatchedFile file{source.id, source.address};
        auto known = m_watchedFiles.extract(file);
        watched.emplace(
            file, known.empty()
                      ? m_environment.fileWatch->watch(
                            source.address, [this, id = source.id] { m_ownSourceUpdates->askNow({id}); })
                      : std::move(known.mapped()));
    }
    m_watchedFiles = std::move(watched);
}

void QuellinGuideAppDelegate::makeOwnSources() {
    if (!m_environment.programs || !m_environment.secrets) {
        return;
    }
    const QString& caches = m_environment.folders.caches;
    m_knownFeeds = KnownFeeds::fromFile(m_environment.folders.bundle + "/known-feeds.json"_L1);
    m_ownPictures = std::make_unique<OwnPictures>(m_environment.folders.documents + "/channel-pictures"_L1,
                                                  m_environment.folders.writable);
    m_sourceRecords = std::make_unique<SourceRecords>(caches + "/own-sources.json"_L1,
                                                      m_environment.folders.writable, m_environment.queues);
    m_sourceFetcher = std::make_unique<SourceFetcher>(SourceFetcherEnvironment{
        .download = {.clock = m_environment.clock,
                     .client = m_environment.httpClient,
                     .networkActivity = *m_networkActivity,
                     .userAgent = *m_userAgent},
        .programs = *m_environment.programs,
        .secrets = *m_environment.secrets,
        .configurationFolder = m_environment.folders.configuration + "/grabbers"_L1,
    });
    m_ownSourceUpdates = std::make_unique<OwnSourceUpdates>(OwnSourceUpdatesEnvironment{
        .clock = m_environment.clock,
        .device = m_environment.device,
        .queues = m_environment.queues,
        .loadQueue = m_loadQueue,
        .backgroundTasks = m_environment.backgroundTasks,
        .applicationState = m_environment.applicationState,
        .channels = *m_channels,
        .sources = *m_ownSources,
        .records = *m_sourceRecords,
        .fetcher = *m_sourceFetcher,
        .listings = *m_listings,
        .alphabet = m_alphabet,
        .random = m_environment.random,
        .caches = caches,
        .showCount = [this] { return m_showCount.load(); },
        .offerTop = [this](const TopLists& top) { offerTop(top); },
        .loadsEnded = [this](const LoadResults& results) { loadsEnded(results); },
        .statusChanged =
            [this] {
                if (m_screens) {
                    m_screens->ownSourcesChanged();
                }
            },
    });
    m_ownSourceService = std::make_unique<OwnSourceService>(OwnSourceServiceEnvironment{
        .clock = m_environment.clock,
        .device = m_environment.device,
        .queues = m_environment.queues,
        .sources = *m_ownSources,
        .records = *m_sourceRecords,
        .fetcher = *m_sourceFetcher,
        .updates = *m_ownSourceUpdates,
        .pictures = *m_ownPictures,
        .settings = m_settings,
        .random = m_environment.random,
        .caches = caches,
        .select = [this](const std::vector<ObjectId>& channels) { m_selectionEditor->add(channels); },
        .unselect = [this](const std::vector<ObjectId>& channels) { m_selectionEditor->remove(channels); },
        .forget =
            [this](const std::vector<ObjectId>& channels) { m_selectionEditor->removeForGood(channels); },
        .fetchIcons = [this] { fetchOwnIcons(); },
        .stopped = [this] { return m_isShuttingDown.load(); },
    });
    m_channelIcons = std::make_unique<ChannelIconFetcher>(ChannelIconEnvironment{
        .clock = m_environment.clock,
        .client = m_environment.httpClient,
        .networkActivity = *m_networkActivity,
        .userAgent = *m_userAgent,
        .queues = m_environment.queues,
        .folder = caches + u'/' + kOwnIconFolder,
        .fetched =
            [this, alive = std::weak_ptr(m_alive)](const ObjectId& channel) {
                if (alive.expired() || !m_screens) {
                    return;
                }
                const QString name = ownIconName(channel);
                m_icons->dropIcon(name);
                if (m_environment.pictureReplaced) {
                    m_environment.pictureReplaced({PictureKey::Kind::ChannelIcon, name});
                }
            },
    });
}

} // namespace guide
