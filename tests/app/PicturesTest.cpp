#include "app/GuideWorld.h"
#include "screens/kit/TableViewController.h"

#include <QBuffer>
#include <QImage>

#include <algorithm>
#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

QByteArray png(const QSize& size, QImage::Format format = QImage::Format_RGB32) {
    QImage image(size, format);
    image.fill(Qt::black);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, "PNG"));
    return bytes;
}

class Pictures : public testing::Test {
  protected:
    /// A guide whose first channel has a show with each of the pictures.
    void begin(const QStringList& paths) {
        QString feed = QString::fromUtf8(world.feed(u"Show"_s, static_cast<int>(paths.size())));
        qsizetype at = 0;
        for (const QString& path : paths) {
            const QString icon = u"<icon src=\"%1%2\"/>"_s.arg(world.server->base(), path);
            at = feed.indexOf("</programme>"_L1, at);
            feed.insert(at, icon);
            at += icon.size() + 1;
        }
        world.serve(u"first"_s, 1, feed.toUtf8());
        world.userDefaults.setInteger(u"currently_show_count"_s, paths.size());
        world.start();
        world.guide->applicationDidBecomeActive();
        ASSERT_TRUE(world.check());
        ASSERT_TRUE(world.runUntil([&] { return table().rowCount() > static_cast<int>(paths.size()); }));
    }
    TableViewController& screen() {
        return dynamic_cast<TableViewController&>(
            *world.guide->tabBarController().selectedNavigationController().topViewController());
    }
    const Table& table() { return screen().table(); }
    PictureKey picture(int show) { return std::get<ShowRow>(table().rowAt(show + 1).content).picture; }
    void display(int show) { screen().rowDisplayed(table().rowAt(show + 1).id); }
    qsizetype requestsFor(const QByteArray& path) {
        const auto requests = world.server->requests();
        return std::ranges::count_if(requests,
                                     [&](const ServerRequest& request) { return request.target == path; });
    }

    GuideWorld world;
};

TEST_F(Pictures, HostileOnesAreLeftOut) {
    const QByteArray base = world.server->base().toLatin1();
    const QByteArray good = png({2'000, 1'000});
    const QByteArray large = png({8'000, 5'000}, QImage::Format_Mono);
    const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'>%1</svg>";
    const auto image = [](const QByteArray& bytes, const QByteArray& type = "image/png") {
        return ServerReply::ok(bytes, {"Content-Type: " + type});
    };
    const struct {
        QByteArray path;
        ServerReply reply;
        bool shown;
    } cases[] = {
        {"/good.png", image(good), true},
        {"/named-wrongly.jpg", image(good, "image/jpeg"), true},
        {"/40-megapixels.png", image(large), true},
        {"/60-megapixels.png", image(png({10'000, 6'000}, QImage::Format_Mono)), false},
        {"/page.png", image("<html><body>not a picture</body></html>"), false},
        {"/cut.png", image(good.first(good.size() / 2)), false},
        {"/broken-off.png", ServerReply::raw(ServerReply::head(200, {"Content-Length: 90000"}) + good),
         false},
        {"/missing.png", ServerReply::answer(404, good), false},
        {"/moved.png", ServerReply::redirect(base + "/good.png"), true},
        {"/moved-to-a-file.png", ServerReply::redirect("file:///etc/hostname"), false},
        {"/drawing.svg",
         image(QByteArray(svg).replace("%1", "<rect width='40' height='20'/>"), "image/svg+xml"), true},
        {"/references.svg",
         image(QByteArray(svg).replace("%1", "<image href='" + base + "/secret.png' width='9' height='9'/>")),
         false},
        {"/script.svg", image(QByteArray(svg).replace("%1", "<script href='" + base + "/secret.js'/>")),
         false},
        {"/large.png", image(good + QByteArray((16 << 20) + 1, ' ')), false},
    };
    QStringList paths;
    for (const auto& each : cases) {
        world.server->serve(each.path, each.reply);
        paths << QString::fromLatin1(each.path);
    }
    ASSERT_NO_FATAL_FAILURE(begin(paths));
    for (int show = 0; show < paths.size(); ++show) {
        display(show);
    }
    int shown = 0;
    for (const auto& each : cases) {
        shown += each.shown ? 1 : 0;
    }
    EXPECT_TRUE(world.runUntil([&] {
        int pictures = 0;
        for (int show = 0; show < paths.size(); ++show) {
            pictures += picture(show).empty() ? 0 : 1;
        }
        return pictures == shown && requestsFor("/large.png") > 0;
    }));
    for (int show = 0; show < paths.size(); ++show) {
        EXPECT_EQ(!picture(show).empty(), cases[show].shown) << cases[show].path.constData();
        EXPECT_LE(requestsFor(cases[show].path), cases[show].path == "/good.png" ? 2 : 1)
            << cases[show].path.constData();
    }
    EXPECT_EQ(requestsFor("/secret.png") + requestsFor("/secret.js"), 0);
    const QImage thumbnail = world.guide->pictures().picture(picture(0), {});
    EXPECT_EQ(thumbnail.width(), 2 * thumbnail.height());
    EXPECT_LT(thumbnail.width(), 2'000) << "made smaller before it is kept";
}

TEST_F(Pictures, ASlowServerHoldsUpOnlyPictures) {
    world.silentPaths = {"/silent.png"};
    ServerReply silent;
    silent.end = ServerReply::End::Stall;
    world.server->serve("/silent.png", silent);
    world.server->serve("/good.png", ServerReply::ok(png({40, 20})));
    ASSERT_NO_FATAL_FAILURE(begin({u"/silent.png"_s, u"/good.png"_s}));
    display(0);
    display(1);
    EXPECT_TRUE(world.runUntil([&] { return !picture(1).empty(); }));
    EXPECT_TRUE(picture(0).empty());
}

TEST_F(Pictures, TheGuideEndsWhileOneIsLoaded) {
    ServerReply silent;
    silent.end = ServerReply::End::Stall;
    world.server->serve("/silent.png", silent);
    ASSERT_NO_FATAL_FAILURE(begin({u"/silent.png"_s}));
    display(0);
    while (requestsFor("/silent.png") == 0) {
        world.runFor(20ms);
    }
    const auto before = std::chrono::steady_clock::now();
    world.end();
    EXPECT_LT(std::chrono::steady_clock::now() - before, 5s);
}

} // namespace
} // namespace guide
