#include "sources/own/ChannelIconFetcher.h"

#include "core/PictureDecoding.h"
#include "fakes/FakeHTTPClient.h"
#include "fakes/Files.h"
#include "fakes/ManualQueues.h"
#include "platform/files/FileReplacement.h"
#include "sources/own/IconAddress.h"

#include <QBuffer>
#include <QDir>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(IconAddressTest, MendsWhatFeedsWrite) {
    const std::pair<QString, QStringList> rows[] = {
        {u" https://a.example/x.png "_s, {u"https://a.example/x.png"_s}},
        {u"https://sledovani.examplehttps://static.example/x"_s, {u"https://static.example/x"_s}},
        {u"http://a.example/images/https://cdn.example/x"_s,
         {u"https://cdn.example/x"_s, u"http://a.example/images/https://cdn.example/x"_s}},
        {u"https://a.example/resize?url=http://b.example/x"_s,
         {u"https://a.example/resize?url=http://b.example/x"_s, u"http://b.example/x"_s}},
        {u"//a.example/x"_s, {u"https://a.example/x"_s, u"http://a.example/x"_s}},
        {u"https://u:p@a.example/x#f"_s, {u"https://a.example/x"_s}},
        {u"https://upload.wikimedia.org/wikipedia/commons/thumb/a/ab/L%20o.svg/512px-L%20o.svg.png"_s,
         {u"https://upload.wikimedia.org/wikipedia/commons/thumb/a/ab/L%20o.svg/960px-L%20o.svg.png"_s}},
        {u"https://commons.wikimedia.org/wiki/Special:FilePath/L.svg?width=60"_s,
         {u"https://commons.wikimedia.org/wiki/Special:FilePath/L.svg?width=60"_s}},
        {u"https://a.example/thumb/x/512px-L.png"_s, {u"https://a.example/thumb/x/512px-L.png"_s}},
        {u"Logo_UK_RT_105"_s, {}},
        {u"file:///etc/passwd"_s, {}},
        {u"/etc/passwd"_s, {}},
        {u"javascript:alert(1)"_s, {}},
        {u"https://"_s, {}},
        {QString(), {}},
    };
    for (const auto& [written, addresses] : rows) {
        QStringList mended;
        for (const QUrl& url : iconAddresses(written)) {
            mended << url.toString(QUrl::FullyEncoded);
        }
        EXPECT_EQ(mended, addresses) << written.toStdString();
    }
}

QByteArray png(QColor color, const QSize& size = {50, 36}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

class ChannelIconFetcherTest : public testing::Test {
  protected:
    ChannelIconFetcherTest() {
        client.answer(red, FakeHTTPClient::response(200, png(Qt::red)));
        client.answer(blue, FakeHTTPClient::response(200, png(Qt::blue)));
        client.answer(gone, FakeHTTPClient::response(404, "<html>"));
        client.answer(page, FakeHTTPClient::response(200, "<html>"));
    }
    ~ChannelIconFetcherTest() override { fetcher.reset(); }

    /// As after a new start of the program.
    void restart() {
        fetcher.reset();
        fetcher.emplace(
            ChannelIconEnvironment{clock, client, activity, userAgent, queues, folder,
                                   [this](const ObjectId& channel) { changed << channel.hex(); }});
    }
    /// The addresses that were asked for.
    QStringList want(const std::vector<WantedIcon>& wanted, bool allowThirdHosts = true) {
        const std::size_t before = client.requests().size();
        fetcher->setWanted(wanted, allowThirdHosts);
        queues.runAll();
        QStringList asked;
        const auto requests = client.requests();
        for (std::size_t i = before; i < requests.size(); ++i) {
            asked << requests[i].url.toString();
        }
        asked.sort();
        return asked;
    }
    QColor colorOf(const ObjectId& channel) const {
        const QImage image = QImage::fromData(test::contentOf(folder + u'/' + channel.hex()));
        return image.isNull() ? QColor() : image.pixelColor(image.width() / 2, image.height() / 2);
    }

    const ObjectId one = ObjectId::fromHex(u"ff0000000000000000000001"_s);
    const ObjectId two = ObjectId::fromHex(u"ff0000000000000000000002"_s);
    const QUrl red{u"https://feed.example/red.png"_s};
    const QUrl blue{u"https://logos.example/blue"_s};
    const QUrl gone{u"https://feed.example/gone"_s};
    const QUrl page{u"https://feed.example/page"_s};
    const QTemporaryDir root;
    const QString folder = root.filePath(u"caches/channel-icons"_s);
    ManualClock clock;
    ManualQueues queues{clock};
    FakeHTTPClient client;
    NetworkActivity activity{queues, [](bool) {}};
    HTTPUserAgent userAgent{[](unsigned) { return 0u; }};
    QStringList changed;
    std::optional<ChannelIconFetcher> fetcher{
        std::in_place, ChannelIconEnvironment{clock, client, activity, userAgent, queues, folder,
                                              [this](const ObjectId& channel) { changed << channel.hex(); }}};
};

TEST_F(ChannelIconFetcherTest, TakesTheFirstOriginThatIsAPicture) {
    const QString file = root.filePath(u"own.png"_s);
    ASSERT_TRUE(replaceFile(file, png(Qt::green)));
    const QUrl large(u"https://feed.example/large"_s);
    client.answer(large, FakeHTTPClient::response(200, png(Qt::red) + QByteArray(3 << 20, 'x')));
    const QUrl pixel(u"https://feed.example/pixel"_s);
    client.answer(pixel, FakeHTTPClient::response(200, png(Qt::red, {1, 1})));
    const QUrl moved(u"https://feed.example/moved"_s);
    client.answer(moved, FakeHTTPClient::response(302, {}, {{"Location", blue.toEncoded()}}));
    const QUrl outside(u"https://feed.example/outside.svg"_s);
    client.answer(
        outside, FakeHTTPClient::response(200, "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
                                               "<image href='http://x.example/'/></svg>"));
    const QString lost = u"/no/such"_s;
    const struct {
        const char* name;
        QString chosen;
        QString feedIcon;
        QString playlistLogo;
        bool allowThirdHosts;
        QColor color;
    } rows[] = {
        {"the user's file", file, red.toString(), {}, true, Qt::green},
        {"a file that only the feed names", {}, file, u"file://"_s + file, true, {}},
        {"the user's address", blue.toString(), red.toString(), {}, false, Qt::blue},
        {"the feed's", lost, red.toString(), blue.toString(), true, Qt::red},
        {"the playlist's", {}, gone.toString(), blue.toString(), true, Qt::blue},
        {"of its own host", {}, red.toString(), {}, false, Qt::red},
        {"of another host", {}, blue.toString(), {}, false, {}},
        {"redirected to another host", {}, moved.toString(), {}, false, {}},
        {"a page", {}, page.toString(), {}, true, {}},
        {"too large", {}, large.toString(), {}, true, {}},
        {"one pixel", {}, pixel.toString(), {}, true, {}},
        {"a drawing that asks others", {}, outside.toString(), {}, true, {}},
        {"nothing", {}, {}, {}, true, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        QDir(folder).removeRecursively();
        restart();
        changed.clear();
        const QStringList asked = want(
            {{one, row.chosen, row.feedIcon, row.playlistLogo, {u"feed.example"_s}}}, row.allowThirdHosts);
        EXPECT_EQ(colorOf(one), row.color);
        EXPECT_EQ(changed, row.color.isValid() ? QStringList(one.hex()) : QStringList());
        EXPECT_TRUE(row.allowThirdHosts || row.chosen == blue.toString() || !asked.contains(blue.toString()));
    }
}

TEST_F(ChannelIconFetcherTest, AsksForEachAddressOnceAndRemembers) {
    const std::vector<WantedIcon> wanted{
        {.channel = one, .feedIcon = gone.toString(), .playlistLogo = red.toString()},
        {.channel = two, .feedIcon = red.toString()}};
    EXPECT_EQ(want(wanted), (QStringList{gone.toString(), red.toString()}));
    EXPECT_EQ(colorOf(one), QColor(Qt::red));
    EXPECT_EQ(colorOf(two), QColor(Qt::red));
    EXPECT_FALSE(test::contentOf(folder + u"/index.json"_s).contains("example")) << "addresses may be secret";
    restart();
    EXPECT_EQ(want(wanted), QStringList());
    clock.advance(23h);
    EXPECT_EQ(want(wanted), QStringList());
    clock.advance(2h);
    EXPECT_EQ(want(wanted), QStringList(gone.toString())) << "a failure is forgotten after a day";
    clock.advance(30 * 24h);
    client.answer(red, FakeHTTPClient::refused());
    EXPECT_EQ(want(wanted), (QStringList{gone.toString(), red.toString()})) << "pictures are fetched again";
    EXPECT_EQ(colorOf(two), QColor(Qt::red)) << "and kept when that fails";
    clock.advance(59min);
    EXPECT_EQ(want(wanted), QStringList()) << "a host that does not answer is left alone for an hour";
    clock.advance(2min);
    EXPECT_EQ(want(wanted), QStringList(red.toString()));

    EXPECT_EQ(want({{.channel = two, .feedIcon = blue.toString()}}), QStringList(blue.toString()));
    EXPECT_EQ(colorOf(two), QColor(Qt::blue));
    EXPECT_FALSE(QFile::exists(folder + u'/' + one.hex())) << "it is not wanted any more";
    changed.clear();
    want({{.channel = two}});
    EXPECT_FALSE(colorOf(two).isValid()) << "its feed has no icon any more";
    EXPECT_EQ(changed, QStringList(two.hex()));
}

TEST_F(ChannelIconFetcherTest, TwoTransfersAtATimeForAHost) {
    std::map<QString, int> running;
    int most = 0;
    int mostOfHost = 0;
    client.onRequest([&](const HTTPRequest& request) {
        int& ofHost = running[request.url.host()];
        mostOfHost = std::max(mostOfHost, ++ofHost);
        int all = 0;
        for (const auto& each : running) {
            all += each.second;
        }
        most = std::max(most, all);
        // Whatever may run meanwhile.
        queues.run("channel-icons");
        queues.run("channel-icon-transfers");
        --ofHost;
    });
    std::vector<WantedIcon> wanted;
    for (int i = 0; i < 30; ++i) {
        wanted.push_back({.channel = ObjectId::fromHex(u"ff%1"_s.arg(i, 22, 10, QLatin1Char('0'))),
                          .feedIcon = u"https://host%1.example/%2"_s.arg(i % 3).arg(i)});
    }
    EXPECT_EQ(want(wanted).size(), 30);
    EXPECT_EQ(mostOfHost, 2);
    EXPECT_EQ(most, 4);
}

TEST_F(ChannelIconFetcherTest, PutsAPlateBehindALogoThatWouldVanish) {
    for (const auto& [color, isPlated] :
         {std::pair(QColor(Qt::white), true), std::pair(QColor(Qt::black), true),
          std::pair(QColor(Qt::red), false)}) {
        QImage logo(100, 40, QImage::Format_ARGB32);
        logo.fill(Qt::transparent);
        QPainter painter(&logo);
        painter.fillRect(20, 10, 60, 20, color);
        painter.end();
        const QString file = root.filePath(u"logo-%1.png"_s.arg(color.name()));
        ASSERT_TRUE(logo.save(file));
        want({{.channel = one, .chosen = file}});
        const QImage kept = QImage::fromData(test::contentOf(folder + u'/' + one.hex()));
        EXPECT_EQ(kept.pixelColor(kept.width() / 2, 2).alpha() > 200, isPlated) << color.name().toStdString();
        EXPECT_EQ(kept.pixelColor(kept.width() / 2, kept.height() / 2), color);
    }
}

} // namespace
} // namespace guide
