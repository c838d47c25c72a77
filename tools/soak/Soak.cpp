// guide_soak: runs the guide without its window for six simulated hours and sleeps, with servers that fail
// one time in five, over a midnight and both clock changes. Compares what is shown as running with the
// schedule, and memory, threads and open files at the end with those after the first hour.

#include "app/GuideWorld.h"
#include "platform/queues/WorkerPool.h"
#include "screens/root/RootViewController.h"
#include "soak/FastQueues.h"

#include <QDir>
#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <latch>
#include <malloc.h>
#include <optional>
#include <random>
#include <unistd.h>

namespace guide {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr int kChannels = 12;
constexpr std::size_t kServers = 4;
/// Between two comparisons of the screen: about 500 in six hours.
constexpr std::chrono::seconds kMeanPause{43};
constexpr std::chrono::milliseconds kStep{10};
constexpr double kMostGrowth = 5.0;

/// Every channel repeats shows of one length: channel 1 of 21 minutes, channel 2 of 24, and so on.
struct Schedule {
    int channel;

    std::chrono::minutes length() const { return std::chrono::minutes(18 + 3 * channel); }
    Moment startOf(Moment now) const {
        const auto since = now.time_since_epoch();
        return Moment(since - since % std::chrono::milliseconds(length()));
    }
    QByteArray feed(Moment now) const {
        const auto stamp = [](Moment moment) {
            return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC)
                .toString(u"yyyyMMddHHmmss' +0000'"_s)
                .toLatin1();
        };
        QByteArray document = "<tv>";
        for (Moment start = startOf(now - 1h); start < now + 30h; start += length()) {
            document += "<programme start=\"" + stamp(start) + "\" stop=\"" + stamp(start + length()) +
                        "\" channel=\"c\"><title>Show</title><desc>" +
                        QByteArray("What it is about. ").repeated(20) + "</desc></programme>";
        }
        return document + "</tv>";
    }
};

/// Answers one request in five with something other than the whole feed.
class FailingSites {
  public:
    FailingSites() {
        for (auto& server : m_servers) {
            server = HTTPServer::start([this](const ServerRequest& request) { return reply(request); });
            if (!server) {
                qFatal("no loopback socket");
            }
        }
    }

    /// Feeds begin an hour before the clock's time. To be called before the first request.
    void setClock(const Clock& clock) { m_clock = &clock; }

    QStringList sources() const {
        QStringList sources;
        for (int channel = 1; channel <= kChannels; ++channel) {
            const auto& server = m_servers[std::size_t(channel) % m_servers.size()];
            sources.append(u"%1/%2.xml"_s.arg(server->base()).arg(channel));
        }
        return sources;
    }
    int requests() const { return m_requests; }
    int failures() const { return m_failures; }

  private:
    ServerReply reply(const ServerRequest& request) {
        const QByteArray number = request.target.mid(1, request.target.indexOf('.') - 1);
        const QByteArray feed = Schedule{number.toInt()}.feed(m_clock->now());
        const int count = m_requests++;
        // The number of channels is not a multiple of five, so every channel fails now and then.
        if (count % 5 != 4) {
            return ServerReply::ok(feed, {"Content-Type: text/xml"});
        }
        switch (m_failures++ % 5) {
        case 0:
            return ServerReply::answer(503, "busy");
        case 1:
            return ServerReply::ok("<!DOCTYPE html><html><body>Come back later</body></html>",
                                   {"Content-Type: text/html"});
        case 2:
            return ServerReply::ok(feed.first(feed.size() / 2), {"Content-Type: text/xml"});
        case 3:
            return ServerReply::raw(ServerReply::head(200, {"Content-Length: 100000"}) + feed.first(2000),
                                    ServerReply::End::Reset);
        default:
            return {};
        }
    }

    const Clock* m_clock = nullptr;
    std::atomic<int> m_requests = 0;
    std::atomic<int> m_failures = 0;
    /// Last, so that its threads end first.
    std::array<std::unique_ptr<HTTPServer>, kServers> m_servers;
};

struct Resources {
    double megabytes = 0;
    qsizetype threads = 0;
    qsizetype files = 0;
};

Resources resources() {
    malloc_trim(0);
    Resources resources;
    long pages = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%*s %ld", &pages) != 1) {
            pages = 0;
        }
        std::fclose(file);
    }
    resources.megabytes = double(pages) * double(sysconf(_SC_PAGESIZE)) / (1 << 20);
    resources.threads = QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
    resources.files =
        QDir(u"/proc/self/fd"_s).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size();
    return resources;
}

class Soak {
  public:
    explicit Soak(int factor)
        : m_factor(factor) {
        m_sites.setClock(m_world.clock);
        m_world.adaptQueues = [this](DispatchQueues& queues) -> DispatchQueues& {
            startAllWorkers(queues);
            return m_queues.emplace(queues, m_factor);
        };
        m_world.device.zone = QTimeZone("Europe/Prague");
        m_world.userDefaults.setInteger(u"data_update"_s, 600);
        m_world.silentPaths.clear();
    }

    bool run() {
        setClock({QDate(2026, 10, 24), QTime(22, 30)});
        m_world.start();
        m_world.guide->applicationDidBecomeActive();
        live(1h);
        const Resources early = resources();
        print("after the first hour", early);
        // Midnight and the end of summer time.
        live(3h);
        print("after the fourth hour", resources());
        sleepUntil({QDate(2026, 10, 25), QTime(9, 0)});
        live(30min);
        sleepUntil({QDate(2027, 3, 27), QTime(23, 30)});
        // Midnight again.
        live(1h);
        sleepUntil({QDate(2027, 3, 28), QTime(1, 45)});
        // The beginning of summer time.
        live(30min);
        const Resources late = resources();
        print("after the last hour", late);
        m_world.end();
        std::printf(
            "%d requests, %d of them failed; %d rows right, %d wrong, %d channels without shows in %d "
            "comparisons\n",
            m_sites.requests(), m_sites.failures(), m_right, m_wrong, m_empty, m_comparisons);
        return m_wrong == 0 && m_right > 0 && late.megabytes - early.megabytes <= kMostGrowth &&
               late.threads <= early.threads && late.files <= early.files;
    }

  private:
    /// Workers are created on demand; with all of them there from the start, any further thread is a leak.
    static void startAllWorkers(DispatchQueues& queues) {
        for (const QueuePriority priority :
             {QueuePriority::Background, QueuePriority::Default, QueuePriority::UserInitiated}) {
            const auto all = std::make_shared<std::latch>(WorkerPool::defaultAtWork());
            for (unsigned worker = 0; worker < WorkerPool::defaultAtWork(); ++worker) {
                queues.globalQueue(priority).async([all] { all->arrive_and_wait(); });
            }
        }
    }

    QDateTime localNow() const {
        return QDateTime::fromMSecsSinceEpoch(m_world.clock.now().time_since_epoch().count(),
                                              m_world.device.zone);
    }
    void setClock(const QDateTime& local) {
        const QDateTime zoned(local.date(), local.time(), m_world.device.zone);
        m_world.clock.advance(std::chrono::milliseconds(zoned.toMSecsSinceEpoch()) -
                              m_world.clock.now().time_since_epoch());
    }

    /// Runs the guide in the foreground, with a check every quarter of an hour.
    void live(std::chrono::milliseconds span) {
        const Moment end = m_world.clock.now() + span;
        Moment nextCheck = m_world.clock.now();
        Moment nextComparison = m_world.clock.now() + pause();
        auto last = std::chrono::steady_clock::now();
        QDate date = localNow().date();
        while (m_world.clock.now() < end) {
            m_world.runFor(kStep);
            const auto now = std::chrono::steady_clock::now();
            m_world.clock.advance(
                std::chrono::duration_cast<std::chrono::milliseconds>((now - last) * m_factor));
            last = now;
            if (const QDate today = localNow().date(); today != date) {
                date = today;
                m_world.guide->applicationSignificantTimeChange();
            }
            if (m_world.clock.now() >= nextCheck) {
                nextCheck += 15min;
                m_world.guide->checkAndUpdateAllChannels();
            }
            // Shows change at full minutes; the screen has a part of the minute to follow.
            const int second = localNow().time().second();
            if (m_world.clock.now() >= nextComparison && second >= 20 && second < 58) {
                nextComparison = m_world.clock.now() + pause();
                compare();
            }
        }
    }

    /// The device sleeps with the window open and wakes up in the foreground.
    void sleepUntil(const QDateTime& local) {
        setClock(local);
        m_world.guide->applicationSignificantTimeChange();
        m_world.check();
        m_world.guide->checkAndUpdateAllChannels();
        m_world.runFor(1s);
    }

    std::chrono::milliseconds pause() {
        return std::chrono::milliseconds(std::uniform_int_distribution<long>(
            0, 2 * std::chrono::milliseconds(kMeanPause).count())(m_random));
    }

    const RootViewController* currently() const {
        for (const auto& tab : m_world.guide->tabBarController().tabs()) {
            for (const auto& screen : tab.navigationController->viewControllers()) {
                if (const auto* found = dynamic_cast<const RootViewController*>(screen.get())) {
                    return found;
                }
            }
        }
        return nullptr;
    }

    /// Each section's first show must be the one that the schedule has on the air.
    void compare() {
        ++m_comparisons;
        const RootViewController* screen = currently();
        int channel = 0;
        for (const Section& section : screen ? screen->table().sections() : std::vector<Section>()) {
            ++channel;
            const auto row = std::find_if(section.rows.begin(), section.rows.end(),
                                          [](const Row& each) { return each.id.show() != nullptr; });
            if (row == section.rows.end()) {
                ++m_empty;
                std::printf("%s: channel %d has no shows; its last row: %s\n",
                            qPrintable(localNow().toString(Qt::ISODate)), channel,
                            qPrintable(describe(section.rows.back())));
                continue;
            }
            const Moment expected = Schedule{channel}.startOf(m_world.clock.now());
            const auto& content = std::get<ShowRow>(row->content);
            if (row->id.show()->start == expected && content.running) {
                ++m_right;
            } else {
                ++m_wrong;
                std::printf("%s: channel %d shows %s, %s\n", qPrintable(localNow().toString(Qt::ISODate)),
                            channel, qPrintable(content.startTime),
                            content.running ? "running" : "not running");
            }
        }
    }

    static QString describe(const Row& row) {
        if (const auto* text = std::get_if<TextRow>(&row.content)) {
            return text->title;
        }
        return row.kind() == RowKind::Channel ? u"the channel, loading"_s : u"a button"_s;
    }

    static void print(const char* when, const Resources& resources) {
        std::printf("%-24s %7.1f MB, %d threads, %d files\n", when, resources.megabytes,
                    int(resources.threads), int(resources.files));
        std::fflush(stdout);
    }

    const int m_factor;
    FailingSites m_sites;
    std::optional<FastQueues> m_queues;
    GuideWorld m_world{m_sites.sources()};
    std::mt19937 m_random{1};
    int m_comparisons = 0;
    int m_right = 0;
    int m_wrong = 0;
    int m_empty = 0;
};

} // namespace
} // namespace guide

int main(int argc, char** argv) {
    const int factor = argc > 1 ? std::atoi(argv[1]) : 120;
    if (factor < 1 || factor > 600) {
        std::fprintf(stderr, "usage: guide_soak [FACTOR]: how many times as fast, 1 to 600\n");
        return 2;
    }
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest();
    return guide::Soak(factor).run() && !testing::Test::HasFailure() ? 0 : 1;
}
