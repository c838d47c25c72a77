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
    bool shuttingDown = false;
    std::vector<TransferError> alerts;
    PageFetcher fetcher{
        {.client = client,
         .networkActivity = activity,
         .physicalMemory = 1 << 30,
         .wait = [this](std::chrono::milliseconds) { return !shuttingDown; },
         .noRemoteHostAlert = [this](const TransferError& error) { alerts.push_back(error); }}};
};

TEST_F(PageFetcherTest, FollowsOneRedirect) {
    struct Row {
        const char* name;
        TransferResult first;
        QUrl second;
    };
    const Row rows[] = {
        {"absolute", answer(301, "moved", "https://b.example/x"), QUrl(u"https://b.example/x"_s)},
        {"relative to the page", answer(302, "", "other?y=2"), QUrl(u"http://a.example/dir/other?y=2"_s)},
        {"relative to the host", answer(307, "", "/top"), QUrl(u"http://a.example/top"_s)},
        {"a good status with an empty body", answer(200, "", "/top"), QUrl(u"http://a.example/top"_s)},
        {"to a file", answer(301, "", "file:///etc/passwd"), kURL},
        {"without a host", answer(301, "", "http://"), kURL},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const std::size_t asked = client.requests().size();
        client.enqueue(row.first);
        client.enqueue(answer(301, "", "http://c.example/"));
        EXPECT_EQ(fetch().reason, PageReason::Status);
        ASSERT_EQ(client.requests().size(), asked + 2) << "a second redirect is not followed";
        EXPECT_EQ(client.requests().back().url, row.second);
        EXPECT_EQ(client.requests().back().headers, client.requests().front().headers);
        EXPECT_EQ(client.forgotten().back(), row.second);
    }
    client.enqueue(answer(200, "page", "/elsewhere"));
    EXPECT_EQ(fetch().page, "page") << "a successful answer is not redirected";
}

TEST_F(PageFetcherTest, ShutdownEndsImmediatelyWithoutAnAlert) {
    shuttingDown = true;
    client.enqueue(answer(503, ""));
    EXPECT_EQ(fetch().reason, PageReason::Cancelled);
    EXPECT_EQ(client.requests().size(), 1u);

    client.cancelAll();
    EXPECT_EQ(fetch().reason, PageReason::Cancelled);
    EXPECT_EQ(client.requests().size(), 2u);
    EXPECT_TRUE(alerts.empty());
    queues.runAll();
    EXPECT_EQ(indicatorChanges % 2, 0) << "every start has a stop";
}

} // namespace
} // namespace guide
