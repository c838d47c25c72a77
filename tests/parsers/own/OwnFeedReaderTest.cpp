#include "parsers/own/OwnFeedReader.h"

#include "fakes/Files.h"
#include "fakes/Packing.h"
#include "parsers/xmltv/FeedScan.h"
#include "platform/memory/ManualClock.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

constexpr Moment kNow{std::chrono::sys_days(std::chrono::year(2026) / 11 / 21) + std::chrono::hours(10)};

class OwnFeedReaderTest : public testing::Test {
  protected:
    OwnFeed read(const QByteArray& content, const std::vector<OwnFeedItem>& items) {
        const QString path = m_folder.filePath(u"feed"_s);
        EXPECT_TRUE(test::writeFile(path, content));
        return readOwnFeed(
            path, {}, items,
            {.clock = m_clock, .alphabet = m_alphabet, .physicalMemory = std::uint64_t(4) << 30});
    }

    static ObjectId channel(int number) {
        ObjectId::Bytes id{0xff};
        id[11] = static_cast<std::uint8_t>(number);
        return ObjectId(id);
    }

    const QTemporaryDir m_folder;
    const ManualClock m_clock{kNow};
    const Alphabet m_alphabet;
};

QByteArray show(const char* channel, const char* times, const char* title, const char* more = "") {
    return QByteArray("<programme channel=\"") + channel + "\" " + times + "><title>" + title + "</title>" +
           more + "</programme>";
}

constexpr const char* kMorning = R"(start="20261121090000 +0000" stop="20261121094500 +0000")";
constexpr const char* kNoon = R"(start="20261121120000" stop="20261121130000")";

QByteArray document() {
    return "<tv><channel id=\"a&amp;b\"/><channel id=\"empty\"/>" + show("a&amp;b", kMorning, "Morning") +
           show("other", kNoon, "Other") +
           show("a&amp;b", kNoon, "Noon", "<icon src=\"file:///etc/passwd\"/>") +
           show("b", R"(start="20261122120000 +0000" stop="20261122130000 +0000")", "B",
                "<icon src=\"https://h/b.png\"/>") +
           "</tv>";
}

TEST_F(OwnFeedReaderTest, GivesEachItemItsShowsAndCountsTheWholeFeed) {
    const std::vector<OwnFeedItem> items{{channel(1), u"a&b"_s, u"cs"_s},
                                         {channel(2), u"a&b"_s, u"sk"_s, std::chrono::minutes(30)},
                                         {channel(3), u"b"_s, u"cs"_s},
                                         {channel(4), u"missing"_s, u"cs"_s}};
    for (const QByteArray& content : {document(), gzipped(document())}) {
        OwnFeed feed = read(content, items);
        EXPECT_EQ(feed.result, SourceResult::Read);
        EXPECT_EQ(feed.channels, 4);
        EXPECT_EQ(feed.channelsWithShows, 3);
        EXPECT_EQ(feed.shows, 4);
        EXPECT_EQ(feed.newest, kNow + std::chrono::hours(26));
        EXPECT_EQ(feed.unpackedBytes, document().size());
        ASSERT_EQ(feed.lists[channel(1)].size(), 1U) << "what is over is left out";
        EXPECT_TRUE(feed.lists[channel(1)][0].pictures.isEmpty());
        EXPECT_EQ(feed.lists[channel(1)][0].basic->dateTime(), kNow + std::chrono::hours(2));
        ASSERT_EQ(feed.lists[channel(2)].size(), 2U) << "not over when it is moved";
        EXPECT_EQ(feed.lists[channel(2)][0].basic->endDateTime(), kNow + std::chrono::minutes(15));
        EXPECT_EQ(feed.lists[channel(2)][1].basic->channel(), channel(2));
        ASSERT_EQ(feed.lists[channel(3)].size(), 1U);
        EXPECT_EQ(feed.lists[channel(3)][0].pictures.size(), 1);
        EXPECT_FALSE(feed.lists.contains(channel(4)));
    }
    EXPECT_EQ(read(document(), {}).shows, 4);
}

TEST_F(OwnFeedReaderTest, KeepsWhatPrecedesABreakAndRefusesTheRest) {
    const std::vector<OwnFeedItem> items{{channel(1), u"a&b"_s, u"cs"_s}, {channel(3), u"b"_s, u"cs"_s}};
    const std::tuple<const char*, QByteArray, SourceResult, std::size_t> rows[] = {
        {"cut", document().chopped(100), SourceResult::Incomplete, 1},
        {"cut packing", gzipped(document()).chopped(20), SourceResult::Incomplete, 1},
        {"a raw ampersand", document().replace("Noon", "No & on"), SourceResult::Read, 1},
        {"a raw ampersand elsewhere", document().replace("Other", "Ot & her"), SourceResult::Read, 2},
        {"an endless programme", document().replace("Other", QByteArray(FeedScan::kLongestElement, 'x')),
         SourceResult::Read, 2},
        {"a zero byte", document().replace("Other", QByteArray("\0", 1)), SourceResult::Read, 2},
        {"a page", "<html><tv></html>", SourceResult::Page, 0},
        {"a playlist", "#EXTM3U\n#EXTINF:-1,A\n", SourceResult::Unknown, 0},
        {"nothing", "", SourceResult::Empty, 0},
    };
    for (const auto& [what, content, result, channels] : rows) {
        const OwnFeed feed = read(content, items);
        EXPECT_EQ(feed.result, result) << what;
        std::size_t withShows = 0;
        for (const auto& [id, list] : feed.lists) {
            withShows += list.empty() ? 0 : 1;
        }
        EXPECT_EQ(withShows, channels) << what;
    }
}

TEST_F(OwnFeedReaderTest, LosesOnlyTheProgrammesThatAreMalformed) {
    const std::vector<OwnFeedItem> items{{channel(1), u"a"_s, u"cs"_s}};
    const auto at = [](int hour, const QByteArray& content) {
        const QByteArray day = "202611211";
        return "<programme channel=\"a\" start=\"" + day + QByteArray::number(hour) + "0000 Z\" stop=\"" +
               day + QByteArray::number(hour + 1) + "0000 Z\">" + content + "</programme>";
    };
    const QByteArray broken[] = {
        "<title>A & B</title>",
        "<title>A &nbsp; B</title>",
        "<title>A</titel>",
        "<title>A <desc>B</desc>",
        "<title>A < B</title>",
        "<title lang=cs>A</title>",
        "<title lang=\"cs>A</title>",
        "<title>A</title></tv>",
        "<title>A</title><desc><![CDATA[B</desc>",
        "<title>A</title><!-- B",
        "<title>A</title><desc>" + QByteArray(20'000, 'x') + "</p>",
        "<title " + QByteArray(2'000'000, 'x') + ">A</title>",
    };
    for (const QByteArray& row : broken) {
        const QByteArray rows[] = {
            at(1, "<title>1</title>"), at(2, row), at(3, "<title>3</title>"), at(4, row), at(5, row),
            at(6, "<title>6</title>")};
        QByteArray feed = "<tv>";
        for (const QByteArray& each : rows) {
            feed += each;
        }
        OwnFeed read = this->read(feed + "</tv>", items);
        QString titles;
        for (const ExtendedTVEntry& show : read.lists[channel(1)]) {
            titles += *show.basic->identificator();
        }
        EXPECT_EQ(titles, u"136"_s) << row.left(60).constData();
        EXPECT_EQ(read.result, SourceResult::Read) << row.left(60).constData();
    }
    // A row without an end contains the next one.
    OwnFeed read = this->read("<tv>" + at(1, "<title>1</title>").replace("</programme>", "") +
                                  at(2, "<title>2</title>") + at(3, "<title>3</title>") + "</tv>",
                              items);
    EXPECT_EQ(read.lists[channel(1)].size(), 2U);
}

TEST_F(OwnFeedReaderTest, ReadsManyChannelsInTimeProportionalToThem) {
    QByteArray text = "<tv>";
    for (int i = 0; i < 50'000; ++i) {
        const QByteArray id = QByteArray::number(i);
        text += "<channel id=\"" + id + "\"><display-name>" + id + "</display-name></channel>";
    }
    for (int i = 0; i < 50'000; ++i) {
        text += show(QByteArray::number(i).constData(), kNoon, "T");
    }
    const OwnFeed feed = read(text + "</tv>", {{channel(1), u"49999"_s, u"cs"_s}});
    EXPECT_EQ(feed.channels, 50'000);
    EXPECT_EQ(feed.channelsWithShows, 50'000);
    EXPECT_EQ(feed.lists.at(channel(1)).size(), 1U);
}

} // namespace
} // namespace guide
