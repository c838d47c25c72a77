#include "sources/PageFetcher.h"

#include "fakes/FakeHTTPClient.h"
#include "fakes/ManualQueues.h"
#include "sources/NetworkActivity.h"

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(NetworkActivityTest, IndicatorFollowsTheFirstAndTheLastTransfer) {
    ManualClock clock;
    ManualQueues queues(clock);
    std::vector<bool> shown;
    NetworkActivity activity(queues, [&](bool visible) {
        EXPECT_TRUE(ManualQueues::isCurrent(queues.mainQueue()));
        shown.push_back(visible);
    });
    activity.stopNetworkActivity();
    activity.startNetworkActivity();
    activity.startNetworkActivity();
    activity.stopNetworkActivity();
    queues.runAll();
    EXPECT_EQ(shown, std::vector{true});
    activity.stopNetworkActivity();
    queues.runAll();
    EXPECT_EQ(shown, (std::vector{true, false}));
    activity.stopNetworkActivity();
    activity.startNetworkActivity();
    queues.runAll();
    EXPECT_EQ(shown, (std::vector{true, false, true})) << "a stop without a start does not count";
}

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
    std::chrono::milliseconds waited{0};
    std::vector<TransferError> alerts;
    PageFetcher fetcher{
        {.client = client,
         .networkActivity = activity,
         .physicalMemory = 1 << 30,
         .wait =
             [this](std::chrono::milliseconds span) {
                 waited += span;
                 return !shuttingDown;
             },
         .noRemoteHostAlert = [this](const TransferError& error) { alerts.push_back(error); }}};
};

TEST_F(PageFetcherTest, EveryAnswerGivesAPageOrAReason) {
    const QByteArray feed = "<tv>" + QByteArray("<programme channel=\"č\"/>").repeated(100) + "</tv>";
    const TransferResult none = FakeHTTPClient::refused();
    const TransferResult damaged =
        FakeHTTPClient::response(200, "no xz", {{"Content-Type", "application/x-xz"}});
    TransferResult cut = answer(200, feed.left(500));
    cut.error = none.error;
    using Answers = std::vector<TransferResult>;
    using enum PageReason;
    const std::tuple<const char*, Answers, std::optional<QByteArray>, PageReason, std::size_t> rows[] = {
        {"plain", Answers{answer(200, feed)}, feed, None, 0},
        {"damaged", Answers{damaged}, {}, Compression, 0},
        {"error pages", Answers{answer(404, feed), answer(500, feed)}, {}, Status, 0},
        {"error, then good", Answers{answer(503, feed), answer(200, feed)}, feed, None, 0},
        {"the last good status", Answers{answer(299, feed)}, feed, None, 0},
        {"the first bad one", Answers{answer(300, feed), answer(300, feed)}, {}, Status, 0},
        {"empty", Answers{answer(200, {}), answer(200, {})}, {}, Empty, 0},
        {"empty, then good", Answers{answer(200, {}), answer(200, feed)}, feed, None, 0},
        {"half a body", Answers{cut, cut}, {}, Transfer, 0},
        {"no answer", Answers{none, none}, {}, Transfer, 2},
        {"half a body, then good", Answers{cut, answer(200, feed)}, feed, None, 0},
        {"no answer, then good", Answers{none, answer(200, feed)}, feed, None, 1},
    };
    for (const auto& [name, answers, text, reason, alerted] : rows) {
        SCOPED_TRACE(name);
        alerts.clear();
        waited = 0s;
        const std::size_t asked = client.requests().size();
        for (const TransferResult& each : answers) {
            client.enqueue(each);
        }
        const NetPage page = fetch();
        EXPECT_EQ(page.page, text);
        EXPECT_EQ(page.reason, reason);
        EXPECT_EQ(alerts.size(), alerted);
        const bool spent = !text && answers.size() == 2;
        EXPECT_EQ(waited, (spent ? 2 : answers.size() - 1) * 1s) << "a pause after each empty attempt";
        EXPECT_EQ(client.requests().size() - asked, answers.size());
    }
    const auto headers = client.requests().front().headers;
    EXPECT_TRUE(headers.contains(std::pair<QByteArray, QByteArray>("User-Agent", userAgent.value())));
    EXPECT_TRUE(headers.contains(std::pair<QByteArray, QByteArray>("Accept-Encoding", "gzip,deflate")));
}

TEST_F(PageFetcherTest, FollowsOneRedirect) {
    const std::tuple<const char*, TransferResult, QUrl> rows[] = {
        {"absolute", answer(301, "moved", "https://b.example/x"), QUrl(u"https://b.example/x"_s)},
        {"relative to the page", answer(302, "", "other?y=2"), QUrl(u"http://a.example/dir/other?y=2"_s)},
        {"relative to the host", answer(307, "", "/top"), QUrl(u"http://a.example/top"_s)},
        {"a good status with an empty body", answer(200, "", "/top"), QUrl(u"http://a.example/top"_s)},
        {"to a file", answer(301, "", "file:///etc/passwd"), kURL},
        {"without a host", answer(301, "", "http://"), kURL},
    };
    for (const auto& [name, first, second] : rows) {
        SCOPED_TRACE(name);
        const std::size_t asked = client.requests().size();
        client.enqueue(first);
        client.enqueue(answer(301, "", "http://c.example/"));
        EXPECT_EQ(fetch().reason, PageReason::Status);
        ASSERT_EQ(client.requests().size(), asked + 2) << "a second redirect is not followed";
        EXPECT_EQ(client.requests().back().url, second);
        EXPECT_EQ(client.requests().back().headers, client.requests().front().headers);
        EXPECT_EQ(client.forgotten().back(), second);
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
