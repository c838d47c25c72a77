#include "sources/PageFetcher.h"

#include "fakes/FakeHTTPClient.h"
#include "fakes/ManualQueues.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const QUrl kURL{u"http://a.example/dir/page?x=1"_s};

class PageFetcherTest : public testing::Test {
  protected:
    NetPage fetch() { return fetcher.netPageForRequest(pageRequest(kURL, userAgent), false); }

    static TransferResult answer(int status, const QByteArray& body, const QByteArray& location = {}) {
        return FakeHTTPClient::response(status, body,
                                        location.isNull()
                                            ? QList<std::pair<QByteArray, QByteArray>>{}
                                            : QList{std::pair<QByteArray, QByteArray>("Location", location)});
    }

    ManualClock clock;
    ManualQueues queues{clock};
    int indicatorChanges = 0;
    NetworkActivity activity{queues, [this](bool) { ++indicatorChanges; }};
    FakeHTTPClient client;
    HTTPUserAgent userAgent{[](unsigned) { return 12u; }};
    std::vector<std::chrono::milliseconds> waits;
    bool shuttingDown = false;
    std::vector<TransferError> alerts;
    PageFetcher fetcher{
        {.client = client,
         .networkActivity = activity,
         .physicalMemory = 1 << 30,
         .wait =
             [this](std::chrono::milliseconds span) {
                 waits.push_back(span);
                 return !shuttingDown;
             },
         .noRemoteHostAlert = [this](const TransferError& error) { alerts.push_back(error); }}};
};

TEST_F(PageFetcherTest, AsksAsEveryCallerDoes) {
    client.enqueue(answer(200, "page"));
    EXPECT_EQ(fetch().page, "page");
    const HTTPRequest request = client.requests().at(0);
    EXPECT_EQ(request.headers,
              (QList<std::pair<QByteArray, QByteArray>>{
                  {"User-Agent", "Opera/9.80 (X11; FreeBSD 11.1-RELEASE-p1 amd64) Presto/2.12.388 "
                                 "Version/12.16"},
                  {"Accept-Encoding", "gzip,deflate"}}));
    EXPECT_EQ(request.timeout, 20s);
    EXPECT_EQ(request.resourceTimeout, 60s);
    EXPECT_TRUE(waits.empty());
    queues.runAll();
    EXPECT_EQ(indicatorChanges, 2);
}

TEST_F(PageFetcherTest, TwoAttemptsAreMade) {
    TransferResult cut = answer(200, "<tv><programme>");
    cut.error = TransferError{};
    struct Row {
        const char* name;
        std::vector<TransferResult> answers;
        std::optional<QByteArray> page;
        PageReason reason;
        int status;
        std::size_t attempts;
        std::size_t alerts;
    };
    const TransferResult refused = FakeHTTPClient::refused();
    const Row rows[] = {
        {"good at once", {answer(200, "page")}, "page", PageReason::None, 200, 1, 0},
        {"the last good status", {answer(299, "page")}, "page", PageReason::None, 299, 1, 0},
        {"good at last", {refused, answer(200, "page")}, "page", PageReason::None, 200, 2, 1},
        {"no server", {refused, refused}, {}, PageReason::Transfer, 0, 2, 2},
        {"error pages", {answer(404, "sorry"), answer(503, "sorry")}, {}, PageReason::Status, 503, 2, 0},
        {"a status that is no end", {answer(199, "x"), answer(300, "x")}, {}, PageReason::Status, 300, 2, 0},
        {"empty", {answer(200, ""), answer(204, "")}, {}, PageReason::Empty, 204, 2, 0},
        {"cut in the middle", {cut, cut}, {}, PageReason::Transfer, 200, 2, 0},
        {"cut, then whole", {cut, answer(200, "page")}, "page", PageReason::None, 200, 2, 0},
        {"no text", {answer(200, "\xff")}, {}, PageReason::Encoding, 200, 1, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        alerts.clear();
        waits.clear();
        const std::size_t asked = client.requests().size();
        const std::size_t forgotten = client.forgotten().size();
        for (const TransferResult& each : row.answers) {
            client.enqueue(each);
        }
        const NetPage page = fetch();
        EXPECT_EQ(page.page, row.page);
        EXPECT_EQ(page.reason, row.reason);
        EXPECT_EQ(page.status, row.status);
        EXPECT_EQ(client.requests().size() - asked, row.attempts);
        EXPECT_EQ(alerts.size(), row.alerts);
        const bool spent = !row.page && row.attempts == 2;
        EXPECT_EQ(waits, std::vector(spent ? 2 : row.attempts - 1, std::chrono::milliseconds(1s)));
        EXPECT_EQ(client.forgotten().size() > forgotten, spent) << "a page that never came is not kept";
    }
}

TEST_F(PageFetcherTest, OneRedirectIsFollowedByHand) {
    struct Row {
        const char* name;
        TransferResult first;
        QUrl second;
    };
    const Row rows[] = {
        {"absolute", answer(301, "moved", "https://b.example/x"), QUrl(u"https://b.example/x"_s)},
        {"relative to the page", answer(302, "", "other?y=2"), QUrl(u"http://a.example/dir/other?y=2"_s)},
        {"relative to the host", answer(307, "", "/top"), QUrl(u"http://a.example/top"_s)},
        {"a good status with nothing", answer(200, "", "/top"), QUrl(u"http://a.example/top"_s)},
        {"to a file", answer(301, "", "file:///etc/passwd"), kURL},
        {"to nowhere", answer(301, "", "http://"), kURL},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const std::size_t asked = client.requests().size();
        client.enqueue(row.first);
        client.enqueue(answer(301, "", "http://c.example/"));
        EXPECT_EQ(fetch().reason, PageReason::Status);
        ASSERT_EQ(client.requests().size(), asked + 2) << "a second redirect is the end";
        EXPECT_EQ(client.requests().back().url, row.second);
        EXPECT_EQ(client.requests().back().headers, client.requests().front().headers);
        EXPECT_EQ(client.forgotten().back(), row.second);
    }
    client.enqueue(answer(200, "page", "/elsewhere"));
    EXPECT_EQ(fetch().page, "page") << "a page stays where it is";
}

TEST_F(PageFetcherTest, ShuttingDownEndsAtOnceAndInSilence) {
    shuttingDown = true;
    client.enqueue(answer(503, ""));
    EXPECT_EQ(fetch().reason, PageReason::Cancelled);
    EXPECT_EQ(client.requests().size(), 1u);

    client.cancelAll();
    EXPECT_EQ(fetch().reason, PageReason::Cancelled);
    EXPECT_EQ(client.requests().size(), 2u);
    EXPECT_TRUE(alerts.empty());
    queues.runAll();
    EXPECT_EQ(indicatorChanges % 2, 0) << "every start has its stop";
}

} // namespace
} // namespace guide
