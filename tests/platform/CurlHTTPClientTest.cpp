#include "platform/linux/CurlHTTPClient.h"

#include "fakes/Packing.h"
#include "fakes/ScriptedServer.h"
#include "platform/linux/GlobalLibraries.h"
#include "platform/memory/ManualClock.h"

#include <future>
#include <gtest/gtest.h>
#include <thread>
#include <tuple>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace guide {
namespace {

using End = ScriptedReply::End;

constexpr qint64 kBodyLimit = 100'000;

class CurlHTTPClientTest : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        // The machine's proxies must not interfere.
        for (const char* variable : {"http_proxy", "all_proxy", "ALL_PROXY"}) {
            qunsetenv(variable);
        }
        libraries = std::make_unique<GlobalLibraries>();
    }
    static void TearDownTestSuite() { libraries.reset(); }

    HTTPRequest request(const QString& path = u"/"_s) const {
        HTTPRequest request;
        request.url = server.url(path);
        request.cachePolicy = CachePolicy::ReloadIgnoringCache;
        return request;
    }
    TransferResult get(const QString& path = u"/"_s) { return client.perform(request(path)); }
    /// The result of the request when the server replies like this.
    TransferResult result(const ScriptedReply& reply, const HTTPRequest& httpRequest,
                          const TakePiece& takePiece = {}) {
        server.reply(reply);
        return client.perform(httpRequest, takePiece);
    }
    TransferResult inPieces(const ScriptedReply& reply, const HTTPRequest& httpRequest) {
        return result(reply, httpRequest, collect);
    }

    static std::unique_ptr<GlobalLibraries> libraries;
    QByteArray pieces;
    const TakePiece collect = [this](QByteArrayView piece) {
        pieces += piece;
        return true;
    };
    ScriptedServer server;
    ManualClock clock;
    ResponseCache cache{clock, 1'000'000, [] { return 1h; }};
    CurlHTTPClient client{cache,
                          {kBodyLimit, {"feeds.example:80:127.0.0.1:" + QByteArray::number(server.port())}}};
};
std::unique_ptr<GlobalLibraries> CurlHTTPClientTest::libraries;

TEST_F(CurlHTTPClientTest, ReturnsResponses) {
    const struct {
        const char* name;
        ScriptedReply reply;
        int status;
        QByteArray body;
    } cases[] = {
        {"found", ScriptedReply::ok("page", {"X-Kind: test"}), 200, "page"},
        {"not found, with a body", ScriptedReply::answer(404, "sorry", {"X-Kind: test"}), 404, "sorry"},
        {"redirects are not followed",
         ScriptedReply::answer(301, "", {"X-Kind: test", "Location: /elsewhere"}), 301, ""},
        {"body delimited by the end of the connection",
         ScriptedReply::raw(ScriptedReply::head(200, {"X-Kind: test"}) + "page"), 200, "page"},
        {"chunked",
         ScriptedReply::raw(ScriptedReply::head(200, {"X-Kind: test", "Transfer-Encoding: chunked"}) +
                            "2\r\npa\r\n2\r\nge\r\n0\r\n\r\n"),
         200, "page"},
        {"interim response",
         ScriptedReply::raw("HTTP/1.1 103 Early\r\nX-Kind: early\r\n\r\n" +
                            ScriptedReply::head(200, {"x-kind:  test ", "Content-Length: 4"}) + "page"),
         200, "page"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        const TransferResult found = result(each.reply, request());
        ASSERT_TRUE(found.response);
        EXPECT_FALSE(found.error);
        EXPECT_EQ(found.response->statusCode, each.status);
        EXPECT_EQ(found.response->header("X-Kind"), QByteArray("test"));
        EXPECT_EQ(found.body, each.body);
    }
    EXPECT_EQ(server.requests().size(), std::size(cases));
}

TEST_F(CurlHTTPClientTest, IncompleteTransfersAreErrorsWithoutABody) {
    const QByteArray promised = ScriptedReply::head(200, {"Content-Length: 100"});
    const std::tuple<const char*, ScriptedReply, bool> cases[] = {
        {"closed without a response", ScriptedReply{}, false},
        {"reset without a response", ScriptedReply::raw("", End::Reset), false},
        {"not HTTP", ScriptedReply::raw("SSH-2.0-Server\r\n\r\n"), false},
        {"closed within the body", ScriptedReply::raw(promised + "half"), true},
        {"closed within a chunk",
         ScriptedReply::raw(ScriptedReply::head(200, {"Transfer-Encoding: chunked"}) + "10\r\nhalf"), true},
        {"announced length over the limit",
         ScriptedReply::raw(ScriptedReply::head(200, {"Content-Length: 100001"}) + "x", End::Stall), true},
        {"length over the limit",
         ScriptedReply::raw(ScriptedReply::head(200) + QByteArray(kBodyLimit + 1, 'x')), true},
        {"stalls", ScriptedReply::raw(promised + "half", End::Stall), true},
        {"stalls before the head", ScriptedReply::raw("HTTP/1.1 2", End::Stall), false},
    };
    HTTPRequest httpRequest = request();
    httpRequest.timeout = 60ms;
    for (const auto& [name, reply, response] : cases) {
        SCOPED_TRACE(name);
        const TransferResult found = result(reply, httpRequest);
        EXPECT_EQ(found.response.has_value(), response);
        EXPECT_TRUE(found.body.isEmpty());
        ASSERT_TRUE(found.error);
        EXPECT_FALSE(found.error->description.isEmpty() || found.error->cancelled);
    }
    EXPECT_EQ(result(ScriptedReply::ok(QByteArray(kBodyLimit, 'x')), request()).body.size(), kBodyLimit);
}

TEST_F(CurlHTTPClientTest, EndsATransferThatCrawls) {
    CurlHTTPClientOptions options;
    options.leastSpeedTime = 1s;
    CurlHTTPClient impatient(cache, options);
    ScriptedReply drip = ScriptedReply::raw(ScriptedReply::head(200, {"Content-Length: 1000"}));
    for (int i = 0; i < 200; ++i) {
        drip.then("x", 100ms);
    }
    server.reply(drip);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(impatient.perform(request()).error);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);
}

TEST_F(CurlHTTPClientTest, LimitsInactivityAndTotalTime) {
    ScriptedReply slow = ScriptedReply::raw(ScriptedReply::head(200, {"Content-Length: 4"}));
    slow.then("p", 40ms).then("a", 40ms).then("g", 40ms).then("e", 40ms);
    HTTPRequest patient = request();
    patient.timeout = 120ms;
    EXPECT_EQ(result(slow, patient).body, "page") << "each pause is shorter than the timeout";

    HTTPRequest hurried = patient;
    hurried.resourceTimeout = 100ms;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(result(slow, hurried).error);
    const auto taken = std::chrono::steady_clock::now() - start;
    EXPECT_GE(taken, 100ms);
    EXPECT_LT(taken, 1s);
}

TEST_F(CurlHTTPClientTest, ReportsUnreachableServersAndUnsupportedURLs) {
    HTTPRequest httpRequest = request();
    httpRequest.url = ScriptedServer().url();
    const TransferResult refused = client.perform(httpRequest);
    EXPECT_TRUE(refused.error && !refused.error->description.isEmpty() && !refused.response);

    for (const QString& url : {u"file:///etc/hostname"_s, u"ftp://127.0.0.1/"_s, u"data:text/plain,x"_s,
                               u"/page"_s, u""_s, u"http://"_s}) {
        httpRequest.url = QUrl(url);
        EXPECT_TRUE(client.perform(httpRequest).error) << url.toStdString();
    }
}

TEST_F(CurlHTTPClientTest, WaitsForANetwork) {
    const std::uint16_t port = ScriptedServer().port();
    std::atomic<int> looks = 0;
    std::unique_ptr<ScriptedServer> back;
    std::function<bool()> hasNetwork;
    CurlHTTPClient offline(cache, {kBodyLimit, {"far.example:80:127.0.0.1:" + QByteArray::number(port)}, [&] {
                                       ++looks;
                                       return hasNetwork();
                                   }});
    HTTPRequest httpRequest = request();
    httpRequest.url = QUrl(u"http://far.example/"_s);
    hasNetwork = [] { return false; };
    EXPECT_TRUE(offline.perform(httpRequest).error);
    EXPECT_EQ(looks, 0) << "waiting was not requested";

    httpRequest.waitsForConnectivity = true;
    httpRequest.resourceTimeout = 50ms;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(offline.perform(httpRequest).error);
    EXPECT_GE(std::chrono::steady_clock::now() - start, 50ms);

    httpRequest.resourceTimeout = 10s;
    hasNetwork = [&] {
        if (looks > 1 && !back) {
            back = std::make_unique<ScriptedServer>(port);
            back->reply(ScriptedReply::ok("here"));
        }
        return back != nullptr;
    };
    looks = 0;
    EXPECT_EQ(offline.perform(httpRequest).body, "here");
    back.reset();
    hasNetwork = [] { return true; };
    EXPECT_TRUE(offline.perform(httpRequest).error) << "the server is down, the network is up";

    hasNetwork = [] { return false; };
    looks = 0;
    auto waiting = std::async(std::launch::async, [&] { return offline.perform(httpRequest); });
    while (looks == 0) {
        std::this_thread::yield();
    }
    offline.cancelAll();
    EXPECT_TRUE(waiting.get().error->cancelled);
}

TEST(NetworkRoutesTest, ADefaultRouteIsANetwork) {
    const QByteArray head =
        "Iface\tDestination\tGateway\tFlags\tRefCnt\tUse\tMetric\tMask\tMTU\tWindow\tIRTT\n";
    const QByteArray zeros(32, '0');
    const std::tuple<const char*, QByteArray, QByteArray, bool> rows[] = {
        {"nothing", "", "", false},
        {"default route", head + "eth0\t00000000\t010200C0\t0003\t0\t0\t0\t00000000\t0\t0\t0\n", "", true},
        {"only a local network", head + "docker0\t000011AC\t00000000\t0001\t0\t0\t0\t0000FFFF\t0\t0\t0\n", "",
         false},
        {"IPv6 only", head,
         zeros + " 00 " + zeros +
             " 00 fd000000000000000000000000000001 00000400 00000003 00000000 00000003     eth0\n",
         true},
        {"unreachable IPv6 route", head,
         zeros + " 00 " + zeros + " 00 " + zeros + " ffffffff 00000001 00000000 00200200       lo\n", false},
    };
    for (const auto& [name, routes, ipv6Routes, network] : rows) {
        EXPECT_EQ(hasDefaultRoute(routes, ipv6Routes), network) << name;
    }
}

TEST_F(CurlHTTPClientTest, SendsMethodHeadersAndBody) {
    HTTPRequest httpRequest = request();
    httpRequest.url = QUrl(u"http://feeds.example/č ?q=1#part"_s);
    httpRequest.headers = {{"User-Agent", "Guide"}, {"X-Empty", ""}, {"Accept-Encoding", "gzip,deflate"}};
    EXPECT_FALSE(result(ScriptedReply::ok(""), httpRequest).error);
    httpRequest.method = "PROPFIND";
    httpRequest.body = QByteArray("a\0b", 3);
    EXPECT_FALSE(result(ScriptedReply::ok(""), httpRequest).error);
    httpRequest.method = "HEAD";
    httpRequest.body.clear();
    EXPECT_FALSE(result(ScriptedReply::ok(""), httpRequest).error);

    const std::vector<ScriptedServer::Request> requests = server.requests();
    ASSERT_EQ(requests.size(), 3U);
    EXPECT_EQ(requests[0].target, "/%C4%8D%20?q=1");
    EXPECT_EQ(requests[0].header("Host"), "feeds.example");
    EXPECT_EQ(requests[0].header("User-Agent"), "Guide");
    EXPECT_EQ(requests[0].header("Accept-Encoding"), "gzip,deflate");
    EXPECT_FALSE(requests[0].header("X-Empty").isNull());
    EXPECT_EQ(requests[1].method, "PROPFIND");
    EXPECT_EQ(requests[1].body, QByteArray("a\0b", 3));
    EXPECT_TRUE(requests[1].header("Content-Type").isNull() && requests[1].header("Expect").isNull());
    EXPECT_EQ(requests[2].method, "HEAD");

    httpRequest.headers = {{"X-Injected", "a\r\nHost: other"}};
    EXPECT_TRUE(client.perform(httpRequest).error);
    EXPECT_EQ(server.requests().size(), 3U);
}

TEST_F(CurlHTTPClientTest, DecodesRequestedContentEncodings) {
    const QByteArray page = QByteArray("text ").repeated(1000);
    HTTPRequest httpRequest = request();
    httpRequest.headers = {{"accept-encoding", "gzip,deflate"}};
    const auto encoded = [&](const QByteArray& body, const QByteArray& header) {
        return result(ScriptedReply::ok(body, {header}), httpRequest);
    };
    EXPECT_EQ(encoded(gzipped(page), "Content-Encoding: gzip").body, page);
    EXPECT_TRUE(encoded(gzipped(QByteArray(kBodyLimit + 1, 'b')), "Content-Encoding: gzip").error)
        << "the limit applies to the decoded body";
    EXPECT_TRUE(encoded("no gzip", "Content-Encoding: gzip").error);
    EXPECT_EQ(encoded(gzipped(page), "Content-Type: application/x-gzip").body, gzipped(page))
        << "the file itself is packed";
    // An unknown encoding is not decoded; it takes a second request.
    const ScriptedReply xz = ScriptedReply::ok("as it is", {"Content-Encoding: xz"});
    server.reply(xz);
    EXPECT_EQ(result(xz, httpRequest).body, "as it is");
}

TEST_F(CurlHTTPClientTest, DeliversBodiesInPieces) {
    const QByteArray page = QByteArray("text ").repeated(19'000);
    const QByteArray half = ScriptedReply::head(200, {"Content-Length: 10"}) + "half";
    ScriptedReply slow = ScriptedReply::raw(ScriptedReply::head(200, {"Content-Length: 4"}) + "pa");
    slow.then("ge", 20ms);
    const struct {
        const char* name;
        ScriptedReply reply;
        QByteArray pieces, body;
        bool error;
    } cases[] = {
        {"with a pause", slow, "page", "", false},
        {"with a content encoding", ScriptedReply::ok(gzipped(page), {"Content-Encoding: gzip"}), page, "",
         false},
        {"not found", ScriptedReply::answer(404, "sorry"), "", "sorry", false},
        {"truncated", ScriptedReply::raw(half), "half", "", true},
        {"no body", ScriptedReply::ok(""), "", "", false},
    };
    HTTPRequest httpRequest = request();
    httpRequest.headers = {{"Accept-Encoding", "gzip"}};
    for (const auto& each : cases) {
        pieces.clear();
        const TransferResult found = inPieces(each.reply, httpRequest);
        EXPECT_EQ(pieces, each.pieces) << each.name;
        EXPECT_EQ(found.body, each.body) << each.name;
        EXPECT_EQ(found.error.has_value(), each.error) << each.name;
    }

    pieces.clear();
    const ScriptedReply tooLong =
        ScriptedReply::raw(ScriptedReply::head(200) + QByteArray(kBodyLimit + 1, 'x'));
    EXPECT_TRUE(inPieces(tooLong, httpRequest).error) << "the limit applies to the sum of the pieces";
    EXPECT_LE(pieces.size(), kBodyLimit);

    server.reply(ScriptedReply::raw(ScriptedReply::head(200) + "endless", End::Stall));
    const TransferResult refused = client.perform(httpRequest, [](QByteArrayView) { return false; });
    EXPECT_TRUE(refused.error && refused.error->cancelled && refused.response);
}

TEST_F(CurlHTTPClientTest, BodiesInPiecesBypassTheCache) {
    HTTPRequest httpRequest = request();
    httpRequest.cachePolicy = CachePolicy::ReturnCacheDataElseLoad;
    inPieces(ScriptedReply::ok("one"), httpRequest);
    EXPECT_EQ(result(ScriptedReply::ok("two"), httpRequest).body, "two") << "a body in pieces is not stored";
    EXPECT_FALSE(client.perform(httpRequest, collect).error);
    EXPECT_EQ(pieces, "onetwo") << "a cached body is delivered";
    EXPECT_TRUE(client.perform(httpRequest, [](QByteArrayView) { return false; }).error->cancelled);

    HTTPRequest onlyCached = httpRequest;
    onlyCached.cachePolicy = CachePolicy::ReturnCacheDataDontLoad;
    inPieces(ScriptedReply::answer(500, "broken"), request());
    EXPECT_EQ(client.perform(onlyCached).body, "two") << "a failure keeps the older response";
    inPieces(ScriptedReply::ok("three"), request());
    EXPECT_TRUE(client.perform(onlyCached).error) << "the older response was removed";
}

TEST_F(CurlHTTPClientTest, CookiesAreKeptForTheProcess) {
    result(ScriptedReply::ok("", {"Set-Cookie: consent=yes; Path=/"}), request(u"/first"_s));
    server.reply(ScriptedReply::ok(""));
    server.reply(ScriptedReply::ok(""));
    std::async(std::launch::async, [this] { get(u"/second"_s); }).wait();
    CurlHTTPClient other(cache);
    other.perform(request());
    const std::vector<ScriptedServer::Request> requests = server.requests();
    ASSERT_EQ(requests.size(), 3U);
    EXPECT_EQ(requests[1].header("Cookie"), "consent=yes");
    EXPECT_TRUE(requests[2].header("Cookie").isNull());
}

TEST_F(CurlHTTPClientTest, FollowsTheCachePolicy) {
    HTTPRequest httpRequest = request();
    const auto bodyBy = [&](CachePolicy policy) {
        httpRequest.cachePolicy = policy;
        return client.perform(httpRequest).body;
    };
    server.reply(ScriptedReply::ok("one"));
    EXPECT_EQ(bodyBy(CachePolicy::ReturnCacheDataDontLoad), "");
    EXPECT_TRUE(client.perform(httpRequest).error);
    EXPECT_EQ(bodyBy(CachePolicy::ReturnCacheDataElseLoad), "one");
    EXPECT_EQ(bodyBy(CachePolicy::ReturnCacheDataElseLoad), "one");
    EXPECT_EQ(bodyBy(CachePolicy::ReturnCacheDataDontLoad), "one");
    server.reply(ScriptedReply::ok("two"));
    EXPECT_EQ(bodyBy(CachePolicy::ReloadIgnoringCache), "two");
    EXPECT_EQ(bodyBy(CachePolicy::ReturnCacheDataElseLoad), "two");
    server.reply(ScriptedReply::answer(500, "broken"));
    EXPECT_EQ(bodyBy(CachePolicy::ReloadIgnoringCache), "broken");
    EXPECT_EQ(bodyBy(CachePolicy::ReturnCacheDataElseLoad), "two");
    client.removeCachedResponse(httpRequest);
    server.reply(ScriptedReply::ok("three"));
    EXPECT_EQ(bodyBy(CachePolicy::ReturnCacheDataElseLoad), "three");
    EXPECT_EQ(server.requests().size(), 4U);
}

TEST_F(CurlHTTPClientTest, CancelAllEndsRunningAndLaterTransfers) {
    std::vector<std::future<TransferResult>> running;
    running.reserve(3);
    for (int transfer = 0; transfer < 3; ++transfer) {
        server.reply(ScriptedReply::raw(ScriptedReply::head(200), End::Stall));
        running.push_back(std::async(std::launch::async, [this] { return get(); }));
    }
    ASSERT_TRUE(server.waitForRequests(3));
    const auto start = std::chrono::steady_clock::now();
    client.cancelAll();
    for (std::future<TransferResult>& transfer : running) {
        const TransferResult result = transfer.get();
        EXPECT_TRUE(result.error && result.error->cancelled);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, 200ms);
    const TransferResult later = get();
    EXPECT_TRUE(later.error && later.error->cancelled);
    EXPECT_EQ(server.requests().size(), 3U);
}

TEST_F(CurlHTTPClientTest, SupportsConcurrentTransfers) {
    for (int page = 0; page < 8; ++page) {
        server.serve("/" + QByteArray::number(page),
                     ScriptedReply::ok("page " + QByteArray::number(page),
                                       {"Set-Cookie: c" + QByteArray::number(page) + "=1"}));
    }
    std::vector<std::jthread> threads;
    threads.reserve(4);
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([this, thread] {
            for (int round = 0; round < 12; ++round) {
                const int page = (thread + round) % 8;
                HTTPRequest httpRequest = request(u"/%1"_s.arg(page));
                httpRequest.cachePolicy =
                    round % 2 == 0 ? CachePolicy::ReloadIgnoringCache : CachePolicy::ReturnCacheDataElseLoad;
                EXPECT_EQ(client.perform(httpRequest).body, "page " + QByteArray::number(page));
            }
        });
    }
}

} // namespace
} // namespace guide
