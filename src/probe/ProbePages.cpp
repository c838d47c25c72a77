#include "probe/ProbePages.h"

#include "platform/encoding/Decompression.h"
#include "platform/http/ResponseCache.h"
#include "platform/linux/CurlHTTPClient.h"
#include "platform/linux/EventLoopQueues.h"
#include "platform/memory/ManualClock.h"
#include "sources/NetworkActivity.h"

#include <QFile>
#include <QRandomGenerator>

#include <memory>
#include <thread>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

std::variant<QByteArray, Failure> pageFromFile(const QString& path, const Context& context) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Failure{u"%1 cannot be read: %2"_s.arg(path, file.errorString())};
    }
    std::optional<QByteArray> page = file.readAll();
    const DecompressionLimits limits{context.device.physicalMemory()};
    if (path.endsWith(".gz"_L1)) {
        page = dataWithCompressedData(*page, limits);
    } else if (path.endsWith(".xz"_L1)) {
        page = dataWithXzData(*page, limits);
    }
    if (!page) {
        return Failure{u"%1 cannot be unpacked"_s.arg(path)};
    }
    return *std::move(page);
}

} // namespace

std::variant<std::vector<QByteArray>, Failure> pagesFromFiles(const QStringList& paths,
                                                              const Context& context) {
    std::vector<QByteArray> pages;
    for (const QString& path : paths) {
        auto page = pageFromFile(path, context);
        if (const auto* failure = std::get_if<Failure>(&page)) {
            return *failure;
        }
        pages.push_back(std::get<QByteArray>(std::move(page)));
    }
    return pages;
}

PageSource givenPages(const std::vector<QByteArray>& pages) {
    return [&pages, next = std::make_shared<std::size_t>(0)](const QUrl&) -> std::optional<QByteArray> {
        return *next < pages.size() ? std::optional(pages[(*next)++]) : std::nullopt;
    };
}

void withClient(const Context& context,
                const std::function<void(HTTPClient&, NetworkActivity&, const HTTPUserAgent&)>& use) {
    const ManualClock clock(context.now);
    ResponseCache cache(clock, 0, [] { return std::chrono::milliseconds(0); });
    CurlHTTPClient client(cache);
    EventLoopQueues queues;
    NetworkActivity activity(queues, [](bool) {});
    const HTTPUserAgent userAgent([](unsigned bound) { return QRandomGenerator::global()->bounded(bound); });
    use(client, activity, userAgent);
}

void withNetwork(const Context& context, QString& why,
                 const std::function<void(const PageFetcher&, const HTTPUserAgent&)>& use) {
    withClient(context, [&](HTTPClient& client, NetworkActivity& activity, const HTTPUserAgent& userAgent) {
        const PageFetcher fetcher(
            {.client = client,
             .networkActivity = activity,
             .physicalMemory = context.device.physicalMemory(),
             .wait =
                 [](std::chrono::milliseconds time) {
                     std::this_thread::sleep_for(time);
                     return true;
                 },
             .noRemoteHostAlert = [&](const TransferError& error) { why = error.description; }});
        use(fetcher, userAgent);
    });
}

} // namespace guide::probe
