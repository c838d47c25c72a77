#include "platform/http/ResponseCache.h"

#include "platform/memory/ManualClock.h"

#include <gtest/gtest.h>
#include <tuple>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace guide {
namespace {

HTTPRequest requestFor(const QString& path, const QByteArray& method = "GET") {
    HTTPRequest request;
    request.url = QUrl(u"http://tv.example/"_s + path);
    request.method = method;
    return request;
}

TransferResult answer(int status, const QByteArray& body = "body") {
    TransferResult result;
    result.response = HTTPResponse{status, {{"Content-Type", "text/html"}}};
    result.body = body;
    return result;
}

class ResponseCacheTest : public testing::Test {
  protected:
    ManualClock clock;
    std::chrono::milliseconds maximumAge = 24h;
    ResponseCache cache{clock, 100'000, [this] { return maximumAge; }};
};

TEST_F(ResponseCacheTest, StoresCompleteSuccessfulResponsesToGet) {
    TransferResult failed = answer(200);
    failed.error = TransferError{u"cut"_s, {}, {}, false};
    TransferResult silent;
    silent.body = "body";
    const std::tuple<const char*, HTTPRequest, TransferResult, bool> cases[] = {
        {"200", requestFor(u"a"_s), answer(200), true},
        {"299", requestFor(u"b"_s), answer(299), true},
        {"partial content", requestFor(u"c"_s), answer(206), false},
        {"a redirect", requestFor(u"d"_s), answer(301), false},
        {"not found", requestFor(u"e"_s), answer(404), false},
        {"a response to POST", requestFor(u"f"_s, "POST"), answer(200), false},
        {"with an error", requestFor(u"g"_s), failed, false},
        {"without a response", requestFor(u"h"_s), silent, false},
    };
    for (const auto& [name, request, result, taken] : cases) {
        cache.store(request, result);
        const std::optional<TransferResult> cached = cache.cachedResponse(request);
        EXPECT_EQ(cached.has_value(), taken) << name;
        if (cached) {
            EXPECT_EQ(cached->body, "body") << name;
            EXPECT_EQ(cached->response->header("content-type"), QByteArray("text/html")) << name;
        }
    }
    HTTPRequest other = requestFor(u"a#part"_s);
    EXPECT_TRUE(cache.cachedResponse(other));
    other.method = "PUT";
    EXPECT_FALSE(cache.cachedResponse(other));
    cache.remove(requestFor(u"a"_s));
    EXPECT_FALSE(cache.cachedResponse(requestFor(u"a"_s)));
}

TEST_F(ResponseCacheTest, IgnoresOldResponses) {
    cache.store(requestFor(u"a"_s), answer(200));
    clock.advance(24h);
    EXPECT_TRUE(cache.cachedResponse(requestFor(u"a"_s)));
    maximumAge = 1h;
    EXPECT_FALSE(cache.cachedResponse(requestFor(u"a"_s)));
    maximumAge = 24h;
    EXPECT_FALSE(cache.cachedResponse(requestFor(u"a"_s))) << "evicted";

    HTTPRequest fresh = requestFor(u"b"_s);
    cache.store(fresh, answer(200));
    fresh.cachedSince = clock.now();
    EXPECT_TRUE(cache.cachedResponse(fresh));
    fresh.cachedSince += 1ms;
    EXPECT_FALSE(cache.cachedResponse(fresh));

    cache.store(requestFor(u"b"_s), answer(200));
    clock.advance(-48h);
    EXPECT_FALSE(cache.cachedResponse(requestFor(u"b"_s))) << "from the future";
}

TEST_F(ResponseCacheTest, EvictsTheLeastRecentlyUsed) {
    for (const QString& path : {u"a"_s, u"b"_s, u"c"_s}) {
        cache.store(requestFor(path), answer(200, QByteArray(30'000, 'x')));
    }
    EXPECT_TRUE(cache.cachedResponse(requestFor(u"a"_s)));
    cache.store(requestFor(u"d"_s), answer(200, QByteArray(30'000, 'x')));
    EXPECT_FALSE(cache.cachedResponse(requestFor(u"b"_s)));
    EXPECT_TRUE(cache.cachedResponse(requestFor(u"a"_s)) && cache.cachedResponse(requestFor(u"c"_s)));

    cache.store(requestFor(u"a"_s), answer(200, QByteArray(200'000, 'x')));
    EXPECT_FALSE(cache.cachedResponse(requestFor(u"a"_s))) << "too large, and the old one is outdated";
    EXPECT_TRUE(cache.cachedResponse(requestFor(u"d"_s)));

    // Replacing an entry repeatedly does not take more space.
    for (int round = 0; round < 10; ++round) {
        cache.store(requestFor(u"c"_s), answer(200, QByteArray(30'000, 'y')));
    }
    EXPECT_TRUE(cache.cachedResponse(requestFor(u"d"_s)));
}

TEST_F(ResponseCacheTest, StoresNothingWithoutCapacity) {
    cache.store(requestFor(u"a"_s), answer(200));
    cache.setMemoryCapacity(0);
    cache.store(requestFor(u"b"_s), answer(200));
    cache.setMemoryCapacity(100'000);
    EXPECT_FALSE(cache.cachedResponse(requestFor(u"a"_s)) || cache.cachedResponse(requestFor(u"b"_s)));
    cache.store(requestFor(u"b"_s), answer(200));
    EXPECT_TRUE(cache.cachedResponse(requestFor(u"b"_s)));
}

} // namespace
} // namespace guide
