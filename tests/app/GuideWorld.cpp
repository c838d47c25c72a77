#include "app/GuideWorld.h"

#include "core/CatalogueFiles.h"
#include "platform/files/FileReplacement.h"

#include <QDir>
#include <QImage>

#include <gtest/gtest.h>
#include <thread>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QString stamp(Moment moment) {
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC)
        .toString(u"yyyyMMddHHmmss' +0000'"_s);
}

} // namespace

ObjectId GuideWorld::channel(int number) {
    return ObjectId::fromHex(u"58f4ded60befe78cb336%1"_s.arg(number, 4, 10, QChar(u'0')));
}

ObjectId GuideWorld::channel(const QString& key) {
    return channel(key == "first"_L1 ? 1 : 2);
}

QByteArray GuideWorld::feedPath(const QString& key, int source) {
    return u"/%1-%2.xml"_s.arg(key).arg(source).toLatin1();
}

GuideWorld::GuideWorld() {
    std::vector<QStringList> sources;
    for (const QString& key : {u"first"_s, u"second"_s}) {
        sources.push_back({server->base() + QString::fromLatin1(feedPath(key, 1)),
                           server->base() + QString::fromLatin1(feedPath(key, 2))});
    }
    fillProfile(sources);
}

GuideWorld::GuideWorld(const QStringList& sources) {
    std::vector<QStringList> single;
    for (const QString& source : sources) {
        single.push_back({QString(source).replace("%1"_L1, server->authority())});
    }
    fillProfile(single);
}

void GuideWorld::fillProfile(const std::vector<QStringList>& sources) {
    server->router().serveBelow("/", [](const ServerRequest&) { return ServerReply::answer(404, {}); });
    // A small device, so that a decompression bomb can be small.
    device.memory = std::uint64_t(128) << 20;
    const QString root = m_folder.path();
    folders = {root + u"/caches"_s,  root + u"/documents"_s,  root + u"/configuration"_s,
               root + u"/runtime"_s, root + u"/key-values"_s, QStringLiteral(QUELLIN_SOURCE_DATA)};
    for (const QString& folder :
         {folders.caches, folders.documents, folders.configuration, folders.runtime, root + u"/icons"_s}) {
        QDir().mkpath(folder);
    }
    QImage icon(50, 36, QImage::Format_ARGB32);
    icon.fill(Qt::darkCyan);
    icon.save(root + u"/icons/plain.png"_s);

    QString channels;
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const QString identity = channel(int(i) + 1).hex();
        firstSelection.push_back(channel(int(i) + 1));
        channels += u"<dict><key>Location</key><string>%1</string><key>Title</key><string>Channel %2</string>"
                    "<key>Language</key><string>en</string><key>Icon</key><string>Other/plain</string>"
                    "<key>Stream</key><string>https://stream.example/%2</string>"_s.arg(
                        identity, QString::number(i + 1));
        for (qsizetype j = 0; j < sources[i].size(); ++j) {
            channels +=
                u"<key>Location%1</key><string>%2</string>"_s.arg(QString::number(j + 1), sources[i][j]);
        }
        channels += u"</dict>"_s;
    }
    replaceFile(
        root + u"/Data.plist"_s,
        u"<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>Channels</key><array>%1</array></dict></plist>"_s
            .arg(channels)
            .toUtf8());
}

GuideWorld::~GuideWorld() {
    end();
}

QByteArray GuideWorld::feed(const QString& title, int count) const {
    QString document = u"<tv>"_s;
    for (int i = 0; i < count; ++i) {
        const Moment start = clock.now() + i * 1h;
        document +=
            u"<programme start=\"%1\" stop=\"%2\" channel=\"c\"><title>%3 %4</title></programme>"_s.arg(
                stamp(start), stamp(start + 1h), title, QString::number(i));
    }
    return (document + u"</tv>"_s).toUtf8();
}

void GuideWorld::serve(const QString& key, int source, const QByteArray& feed) {
    server->serve(feedPath(key, source), ServerReply::ok(feed, {"Content-Type: text/xml; charset=utf-8"}));
}

void GuideWorld::wake() {
    const std::lock_guard guard(m_mutex);
    m_awake = true;
    m_woken.notify_all();
}

void GuideWorld::start() {
    m_queues = std::make_unique<ThreadedQueues>([this] { wake(); });
    m_tasks = std::make_unique<FakeBackgroundTasks>();
    m_cache = std::make_unique<ResponseCache>(
        clock, std::size_t(1) << 24, [this] { return Settings(userDefaults).automaticUpdateInterval(); });
    m_curl = std::make_unique<CurlHTTPClient>(*m_cache);
    m_client = std::make_unique<ImpatientHTTPClient>(*m_curl, silentPaths);
    const QString root = m_folder.path();
    guide = std::make_unique<QuellinGuideAppDelegate>(ApplicationEnvironment{
        .clock = clock,
        .device = device,
        .folders = folders,
        .queues = adaptQueues ? adaptQueues(*m_queues) : *m_queues,
        .userDefaults = userDefaults,
        .keyValueStore = keyValueStore,
        .records = records,
        .backgroundTasks = *m_tasks,
        .applicationState = state,
        .httpClient = *m_client,
        .responseCache = *m_cache,
        .responseCacheCapacity = std::size_t(1) << 24,
        .networkWatch = &networkWatch,
        .audioSession = m_audio,
        .clipboard = m_clipboard,
        .promotion = m_promotion,
        .programs = &m_programs,
        .secrets = &secrets,
        .eventStore = eventStore,
        .alarmRinging = alarmRinging,
        .hosts = hosts,
        .random = [](unsigned) { return 0U; },
        .cataloguePath = root + u"/Data.plist"_s,
        .catalogueArchivePath = catalogueArchivePath(folders.caches),
        .iconFolder = root + u"/icons"_s,
        .firstSelection = firstSelection,
        .scheme = u"guide"_s,
        .longestPause = 5ms,
        .networkActivityIndicator = {},
        .applicationIconBadgeNumber = {},
        .openExternally = [this](const QUrl& url) { openedExternally.push_back(url); },
    });
    guide->didFinishLaunching([](TabBarController& tabs) { tabs.makeVisible(); });
}

void GuideWorld::end() {
    if (!guide) {
        return;
    }
    guide->applicationWillTerminate();
    EXPECT_TRUE(guide->shutDown(10s));
    m_queues->shutDown();
    guide.reset();
    m_client.reset();
    m_curl.reset();
    m_cache.reset();
    m_queues.reset();
}

bool GuideWorld::runUntil(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + 60s;
    for (;;) {
        m_queues->runMainQueue();
        if (condition()) {
            return true;
        }
        std::unique_lock guard(m_mutex);
        if (!m_woken.wait_until(guard, deadline, [this] { return m_awake; })) {
            return false;
        }
        m_awake = false;
    }
}

void GuideWorld::runFor(std::chrono::milliseconds span) {
    const auto end = std::chrono::steady_clock::now() + span;
    do {
        m_queues->runMainQueue();
        std::unique_lock guard(m_mutex);
        m_woken.wait_until(guard, end, [this] { return m_awake; });
        m_awake = false;
    } while (std::chrono::steady_clock::now() < end);
}

void GuideWorld::waitForCheck() const {
    while (m_tasks->begun() == 0) {
        std::this_thread::yield();
    }
}

bool GuideWorld::check() {
    const std::size_t begun = m_tasks->begun();
    // The request joins a check that is running.
    const bool joins = m_tasks->running() > 0;
    guide->checkAndUpdateAllChannels();
    // The last step of a check ends its background task on the main queue.
    return runUntil([&] { return (joins || m_tasks->begun() > begun) && m_tasks->running() == 0; });
}

std::vector<std::pair<Moment, QString>> GuideWorld::shows(const ObjectId& channel) {
    std::vector<std::pair<Moment, QString>> found;
    bool answered = false;
    guide->listings().cachedListForChannel(channel, MainBlock<ShowSpan>([&](const ShowSpan& shows) {
                                               for (const ShowItem& show : shows) {
                                                   found.emplace_back(
                                                       show.entry()->dateTime().value_or(Moment()),
                                                       show.entry()->title().value_or(QString()));
                                               }
                                               answered = true;
                                           }));
    EXPECT_TRUE(runUntil([&] { return answered; }));
    return found;
}

QStringList GuideWorld::titles(const QString& key) {
    QStringList titles;
    for (const auto& [start, title] : shows(channel(key))) {
        titles.append(title);
    }
    return titles;
}

} // namespace guide
