#include "RootScreen.h"

namespace guide::test {
namespace {

class RowPicturesTest : public RootViewControllerTest {};

TEST_F(RowPicturesTest, LoadsThePicturesOfDisplayedRowsOnce) {
    const QUrl url(u"http://x/p.jpg"_s);
    const ObjectId channel = begin({{-5, 5, u"A"_s, u""_s, {url}}, {5, 9, u"B"_s}, {9, 19, u"A"_s}});
    for (int times = 0; times < 3; ++times) {
        display(1);
        display(2);
    }
    world.wait(199ms);
    EXPECT_TRUE(world.pictures.pictures.empty());
    world.wait(1ms);
    ASSERT_EQ(world.pictures.pictures.size(), 1U);
    ASSERT_EQ(world.pictures.details.size(), 1U) << "one detail pass per channel";

    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    world.pictures.pictures.begin()->second.post(world.queues.mainQueue(), image);
    world.queues.runAll();
    EXPECT_FALSE(showAt(table(), 1).picture.empty());
    EXPECT_TRUE(showAt(table(), 2).picture.empty());
    EXPECT_FALSE(showAt(table(), 3).picture.empty()) << "all shows with the same title share the picture";

    world.pictures.pictures.clear();
    world.pictureCache.clear();
    display(1);
    world.clock.advance(200ms);
    world.queues.runAll();
    EXPECT_EQ(world.pictures.pictures.size(), 1U) << "the cache dropped it";

    world.load(channel, {{-5, 5, u"A"_s}});
    EXPECT_TRUE(showAt(table(), 1).picture.empty()) << "a fresh list drops the pictures of the old one";
}

TEST_F(RowPicturesTest, DropsDetailsOfAnOldList) {
    const ObjectId channel = begin({{-5, 5, u"Old"_s}});
    display(1);
    world.wait(200ms);
    ASSERT_EQ(world.pictures.details.size(), 1U);
    world.load(channel, {{-5, 5, u"New"_s}});
    auto& [shows, block] = world.pictures.details.front();
    block.post(world.queues.mainQueue(), shows, {QImage()});
    world.queues.runAll();
    EXPECT_TRUE(linesOf(table()).last().endsWith(u"New"_s));
}

TEST_F(RowPicturesTest, DetailsThatWereLookedUpStayWhenAShowEnds) {
    const ObjectId channel = begin({{-5, 5, u"A"_s}, {5, 9, u"B"_s}, {9, 19, u"C"_s}});
    display(1);
    world.wait(200ms);
    ASSERT_EQ(world.pictures.details.size(), 1U);
    auto& [shows, block] = world.pictures.details.front();
    ShowItems completed;
    for (const ShowItem& show : shows) {
        completed.emplace_back(show.entry(), 0, std::make_shared<TVEntrySupplementalData>(),
                               PictureURLs{QUrl(u"http://x/"_s + *show.entry()->title())});
    }
    world.wait(6min);
    EXPECT_EQ(linesOf(table()).size(), 3) << "the first show has ended before the answer";
    block.post(world.queues.mainQueue(), completed, std::vector<QImage>(3));
    world.queues.runAll();
    world.wait(4min);
    EXPECT_EQ(linesOf(table()).size(), 2);
    world.pictures.pictures.clear();
    display(1);
    world.wait(200ms);
    ASSERT_EQ(world.pictures.pictures.size(), 1U) << "the address from the details is known";
    EXPECT_EQ(world.pictures.pictures.begin()->first, u"http://x/C"_s);

    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    world.pictures.setShowImage(image, channel, u"C"_s);
    EXPECT_FALSE(showAt(table(), 1).picture.empty()) << "a picture of IMDb, after the answer";
}

TEST_F(RowPicturesTest, FetchesNothingWithoutPicturesOrWhileTheChannelIsDue) {
    const QUrl url(u"http://x/p.jpg"_s);
    const ObjectId channel = begin({{-5, 5000, u"A"_s, u""_s, {url}}});
    world.app.images = false;
    display(1);
    world.wait(1s);
    EXPECT_TRUE(world.pictures.pictures.empty() && world.pictures.details.empty());

    world.app.images = true;
    world.channels->channelWithChannelId(channel)->unload();
    root().setShowImage(QImage(), channel, u"other"_s);
    display(1);
    world.wait(1s);
    EXPECT_TRUE(world.pictures.details.empty()) << "no detail pass while the channel is due";
}

} // namespace
} // namespace guide::test
