#include "demo/feeds/Packing.h"
#include "parsers/own/FeedPreview.h"
#include "parsers/own/SourceContent.h"

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

const DecompressionLimits kLimits{std::uint64_t(4) << 30};

constexpr Moment kNow{std::chrono::sys_days(std::chrono::year(2026) / 11 / 21) + std::chrono::hours(10)};

TEST(SourceContent, IsToldByWhatItContains) {
    const QByteArray feed = "<?xml version=\"1.0\"?>\n<!-- a --><tv generator-info-name=\"x\"></tv>";
    const std::tuple<const char*, QByteArray, SourceKind> rows[] = {
        {"a feed", feed, SourceKind::Feed},
        {"a packed feed", gzipped(feed), SourceKind::Feed},
        {"a playlist", "\xEF\xBB\xBF#EXTM3U\n#EXTINF:-1,A\n", SourceKind::Playlist},
        {"a log-in page", "<!doctype HTML><title>Log in</title>", SourceKind::Page},
        {"a page about a feed", "<html><body>Save this: <tv></body>", SourceKind::Page},
        {"a page behind a comment", "<!-- x --><HTML><body></body>", SourceKind::Page},
        {"nothing", "", SourceKind::Empty},
        {"blanks", "\r\n \r\n", SourceKind::Empty},
        {"another XML document", "<?xml version=\"1.0\"?><rss/>", SourceKind::Unknown},
        {"JSON", "{\"tv\": 1}", SourceKind::Unknown},
    };
    for (const auto& [what, bytes, kind] : rows) {
        EXPECT_EQ(sourceContent(bytes, kLimits).kind, kind) << what;
    }
    const SourceContent cut = sourceContent(gzipped(feed).chopped(20), kLimits);
    EXPECT_TRUE(cut.damaged);
    EXPECT_TRUE(feed.startsWith(cut.text));
}

TEST(SourceContent, DecodesWhatIsDeclaredAndKeepsTheRestOfADamagedText) {
    const QByteArray xml = "<?xml version='1.0' encoding='ISO-8859-2'?><tv><a>\xB9\xE1</a></tv>";
    EXPECT_TRUE(sourceContent(xml, kLimits).text.contains("šá"));
    EXPECT_TRUE(sourceContent("<tv>\xB9</tv>", kLimits, u"iso-8859-2"_s).text.contains("š"));
    EXPECT_TRUE(sourceContent("<tv>\x9A\xE1</tv>", kLimits).text.contains("šá"))
        << "latin-2 without a declaration";
    EXPECT_TRUE(
        sourceContent("<?xml encoding=\"UTF-8\"?><tv>š</tv>", kLimits, u"no-such-set"_s).text.contains("š"));

    const QByteArray damaged = "<tv>" + QByteArray("šč \xFF ").repeated(2) + QByteArray(5'000, 'x') + "</tv>";
    const SourceContent kept = sourceContent(damaged, kLimits);
    EXPECT_EQ(kept.replaced, 2);
    EXPECT_TRUE(kept.text.contains("šč") && kept.text.endsWith("</tv>"));

    QByteArray wide("\xFF\xFE", 2);
    const QString text = u"<tv>š</tv>"_s;
    wide.append(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    EXPECT_EQ(sourceContent(wide, kLimits).text, text.toUtf8());
}

TEST(FeedPreview, CountsChannelsShowsAndLanguages) {
    const QByteArray feed = R"(<tv>
<channel id="de"/><channel id="later"/><channel id="over"/><channel id="open"/><channel id="silent"/>
<programme channel="de" start="20261121090000 +0000" stop="20261121110000 +0000"><title>Der Fall</title>
<desc>Der Kommissar kehrt nach Hause zurück und findet in der Wohnung die Leiche.</desc></programme>
<programme channel="later" start="20261121203000 +0100"><title>A</title></programme>
<programme channel="over" start="20261121070000 +0000" stop="20261121080000 +0000"><title>B</title></programme>
<programme channel="open" start="20261121093000 +0000"><title>C</title></programme>
<programme channel="unnamed" start="20261123000000 +0000"><title>D</title></programme>
<programme channel="unnamed" start="tomorrow"><title>E</title></programme></tv>)";
    const FeedPreview preview = feedPreview(feed, kNow, u"cs"_s);
    EXPECT_EQ(preview.channels, 6);
    EXPECT_EQ(preview.channelsWithShows, 5);
    EXPECT_EQ(preview.channelsOnAir, 2);
    EXPECT_EQ(preview.channelsLive, 3);
    EXPECT_EQ(preview.shows, 5);
    EXPECT_EQ(preview.first, kNow - std::chrono::hours(3));
    EXPECT_EQ(preview.last, kNow + std::chrono::hours(38));
    EXPECT_EQ(preview.languages, (QMap<QString, int>{{u"de"_s, 1}, {u"cs"_s, 4}}));
    EXPECT_FALSE(preview.incomplete || preview.isPoor() || preview.isOver(kNow));

    const FeedPreview cut = feedPreview(feed.chopped(300), kNow);
    EXPECT_TRUE(cut.incomplete);
    EXPECT_EQ(cut.shows, 2);
    EXPECT_TRUE(feedPreview(feed, kNow + std::chrono::days(30)).isOver(kNow + std::chrono::days(30)));
    EXPECT_TRUE(feedPreview(feed, kNow + std::chrono::days(30)).isPoor());
}

} // namespace
} // namespace guide
