#include "fakes/ManualQueues.h"
#include "fakes/Packing.h"
#include "fakes/ScriptedServer.h"
#include "platform/linux/CurlHTTPClient.h"
#include "platform/linux/GlobalLibraries.h"
#include "sources/PageFetcher.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The fetcher over real transfers from a server that misbehaves.
class PageFetcherServerTest : public testing::Test {
  protected:
    NetPage fetch(const QUrl& url) {
        return fetcher.netPageForRequest(pageRequest(url, userAgent, 300ms), false);
    }

    GlobalLibraries libraries;
    ManualClock clock;
    ManualQueues queues{clock};
    NetworkActivity activity{queues, [](bool) {}};
    ResponseCache cache{clock, 1 << 20, [] { return 24h; }};
    CurlHTTPClient client{cache};
    HTTPUserAgent userAgent{[](unsigned) { return 1u; }};
    int alerts = 0;
    std::chrono::milliseconds waited{0};
    PageFetcher fetcher{{.client = client,
                         .networkActivity = activity,
                         .physicalMemory = std::uint64_t{128} << 20,
                         .wait =
                             [this](std::chrono::milliseconds span) {
                                 waited += span;
                                 return true;
                             },
                         .noRemoteHostAlert = [this](const TransferError&) { ++alerts; }}};
    ScriptedServer server;
};

TEST_F(PageFetcherServerTest, EveryAnswerGivesAPageOrAReason) {
    const QByteArray feed = "<tv>" + QByteArray("<programme channel=\"č\"/>").repeated(100) + "</tv>";
    const QByteArray gzip = gzipped(feed);
    const ScriptedReply cut = ScriptedReply::raw(
        ScriptedReply::head(200, {"Content-Length: 1000"}) + feed.left(500), ScriptedReply::End::Reset);
    using Replies = std::vector<ScriptedReply>;
    constexpr auto kNone = std::nullopt;
    struct Row {
        const char* name;
        Replies replies;
        std::optional<QByteArray> page;
        PageReason reason = PageReason::None;
        int alerts = 0;
    };
    const Row rows[] = {
        {"plain", Replies{ScriptedReply::ok(feed)}, feed},
        {"packed, with a content encoding",
         Replies{ScriptedReply::ok(gzip, {"Content-Type: application/x-gzip", "Content-Encoding: gzip"})},
         feed},
        {"damaged", Replies{ScriptedReply::ok("no xz", {"Content-Type: application/x-xz"})}, kNone,
         PageReason::Compression},
        {"packed for the transfer", Replies{ScriptedReply::ok(gzip, {"Content-Encoding: gzip"})}, feed},
        {"error pages", Replies{ScriptedReply::answer(404, feed), ScriptedReply::answer(500, feed)}, kNone,
         PageReason::Status},
        {"error, then good", Replies{ScriptedReply::answer(503, feed), ScriptedReply::ok(feed)}, feed},
        {"the last good status", Replies{ScriptedReply::answer(299, feed)}, feed},
        {"the first bad one", Replies{ScriptedReply::answer(300, feed), ScriptedReply::answer(300, feed)},
         kNone, PageReason::Status},
        {"empty", Replies{ScriptedReply::ok({}), ScriptedReply::ok({})}, kNone, PageReason::Empty},
        {"empty, then good", Replies{ScriptedReply::ok({}), ScriptedReply::ok(feed)}, feed},
        {"truncated", Replies{cut, cut}, kNone, PageReason::Transfer, 2},
        {"no answer", Replies(), kNone, PageReason::Transfer, 2},
        {"truncated, then good", Replies{cut, ScriptedReply::ok(feed)}, feed, PageReason::None, 1},
    };
    int number = 0;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        alerts = 0;
        waited = 0s;
        const std::size_t asked = server.requests().size();
        for (const ScriptedReply& reply : row.replies) {
            server.reply(reply);
        }
        const NetPage page = fetch(server.url(u"/feed%1"_s.arg(++number)));
        EXPECT_EQ(page.page, row.page);
        EXPECT_EQ(page.reason, row.reason);
        EXPECT_EQ(alerts, row.alerts);
        const std::size_t attempts = std::max<std::size_t>(row.replies.size(), row.alerts);
        const bool spent = !row.page && attempts == 2;
        EXPECT_EQ(waited, (spent ? 2 : attempts - 1) * 1s) << "a pause after each empty attempt";
        EXPECT_EQ(server.requests().size() - asked, attempts);
    }
    EXPECT_EQ(server.requests().front().header("User-Agent"), userAgent.value());
    EXPECT_EQ(server.requests().front().header("Accept-Encoding"), "gzip,deflate");
}

TEST_F(PageFetcherServerTest, OnlyGoodPagesAreCached) {
    server.serve("/good", ScriptedReply::ok("page"));
    EXPECT_EQ(fetch(server.url(u"/good"_s)).page, "page");
    EXPECT_EQ(fetch(server.url(u"/good#part"_s)).page, "page");
    EXPECT_EQ(server.requests().size(), 1u);

    server.serve("/bad", ScriptedReply::answer(404, "sorry"));
    EXPECT_EQ(fetch(server.url(u"/bad"_s)).status, 404);
    server.serve("/bad", ScriptedReply::ok("page"));
    EXPECT_EQ(fetch(server.url(u"/bad"_s)).page, "page");
}

} // namespace
} // namespace guide
