#include "fakes/Files.h"
#include "fakes/Packing.h"
#include "fakes/Zipping.h"
#include "parsers/own/SourcePreviewReader.h"
#include "parsers/own/SourceText.h"

#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

constexpr Moment kNow{std::chrono::sys_days(std::chrono::year(2026) / 11 / 21) + std::chrono::hours(10)};

class SourcePreviewTest : public testing::Test {
  protected:
    QString path() const { return m_folder.filePath(u"source"_s); }
    SourcePreview preview() const {
        return sourcePreview(path(), {.now = m_now,
                                      .zone = QTimeZone("Europe/Prague"),
                                      .language = u"cs"_s,
                                      .physicalMemory = std::uint64_t(4) << 30});
    }
    SourcePreview preview(const QByteArray& content) const {
        EXPECT_TRUE(test::writeFile(path(), content));
        return preview();
    }

    Moment m_now = kNow;

  private:
    const QTemporaryDir m_folder;
};

bool warns(const SourcePreview& preview, SourceWarning warning) {
    return std::ranges::find(preview.warnings, warning) != preview.warnings.end();
}

QByteArray show(const char* channel, int day, int hour, int minutes, const QByteArray& title) {
    const auto time = [day](int minute) {
        return QByteArray::number(20261100 + day) + QByteArray::number(minute / 60).rightJustified(2, '0') +
               QByteArray::number(minute % 60).rightJustified(2, '0') + "00 +0100";
    };
    return QByteArray("<programme channel=\"") + channel + "\" start=\"" + time(hour * 60) + "\" stop=\"" +
           time(hour * 60 + minutes) + "\"><title>" + title + "</title></programme>\n";
}

TEST_F(SourcePreviewTest, IsToldByWhatTheFileContains) {
    const QByteArray feed = "<?xml version=\"1.0\"?>\n<!-- a --><tv generator-info-name=\"x\"></tv>";
    const std::tuple<const char*, QByteArray, SourceKind, SourceResult> rows[] = {
        {"a feed", feed, SourceKind::Feed, SourceResult::Read},
        {"a packed feed", gzipped(feed), SourceKind::Feed, SourceResult::Read},
        {"a fragment", "<!-- a --><programme channel=\"a\"/>", SourceKind::Feed, SourceResult::Read},
        {"a playlist", "\xEF\xBB\xBF#EXTM3U\n#EXTINF:-1,A\n", SourceKind::Playlist, SourceResult::Read},
        {"a log-in page", "<!doctype HTML><title>Log in</title>", SourceKind::Page, SourceResult::Page},
        {"a page about a feed", "<html><body>Save this: <tv></body>", SourceKind::Page, SourceResult::Page},
        {"a page behind a comment", "<!-- x --><HTML><body></body>", SourceKind::Page, SourceResult::Page},
        {"part of a page", "<div class=\"a\"><tv></div>", SourceKind::Page, SourceResult::Page},
        {"nothing", "", SourceKind::Empty, SourceResult::Empty},
        {"blanks", "\r\n \r\n", SourceKind::Empty, SourceResult::Empty},
        {"packed blanks", gzipped(" "), SourceKind::Empty, SourceResult::Empty},
        {"another XML document", "<?xml version=\"1.0\"?><rss/>", SourceKind::Unknown, SourceResult::Unknown},
        {"JSON", "{\"tv\": 1}", SourceKind::Unknown, SourceResult::Unknown},
        {"a broken packing", "\x1f\x8b\x08", SourceKind::Empty, SourceResult::Damaged},
    };
    for (const auto& [what, bytes, kind, result] : rows) {
        const SourcePreview found = preview(bytes);
        EXPECT_EQ(found.kind, kind) << what;
        EXPECT_EQ(found.result, result) << what;
    }
    ASSERT_TRUE(test::writeZip(path(), {{"readme.html", "<html>"}, {"list.m3u", "#EXTM3U\n#EXTINF:-1,A\n"}}));
    EXPECT_EQ(preview().playlist.entries.size(), 1U);
    ASSERT_TRUE(test::writeZip(path(), {{"readme.html", "<html>"}}));
    EXPECT_EQ(preview().result, SourceResult::Unknown);
}

TEST_F(SourcePreviewTest, CountsChannelsShowsAndLanguages) {
    const QByteArray feed = R"(<!DOCTYPE tv [<!ELEMENT tv ANY>]><tv>
<channel id="de"><display-name>7-1</display-name><display-name> Erstes &amp; HD </display-name>
<icon src="file:///etc/passwd"/><icon src="//host/de.png"/></channel><channel id="later"><icon src="javascript:x"/></channel>
<channel id="over"/><channel id="open"/><channel id="silent"/><channel id=""/>
<programme channel="de" start="20261121090000 +0000" stop="20261121110000 +0000"><!-- <title>No</title> -->
<title><![CDATA[Der]]> Fall &#65;</title><desc>Der Kommissar kehrt nach Hause zurück und findet in der Wohnung die Leiche.</desc></programme>
<programme channel="later" start="20261121203000 +0100"><title>A</title></programme>
<programme channel="over" start="20261121070000" stop="20261121080000"><title>B</title></programme>
<programme channel="open" start="20261121093000 +0000"><title>C</title></programme>
<programme channel="unnamed" start="20261123000000 +0000"><title>D</title></programme>
<programme channel="unnamed" start="tomorrow"><title>E</title></programme></tv>)";
    const SourcePreview found = preview(feed);
    ASSERT_EQ(found.channels.size(), 6U);
    EXPECT_EQ(found.channelsWithShows, 5);
    EXPECT_EQ(found.channelsOnAir, 2);
    EXPECT_EQ(found.channelsLive, 3);
    EXPECT_EQ(found.shows, 5);
    EXPECT_EQ(found.first, kNow - std::chrono::hours(4)) << "07:00 in Prague";
    EXPECT_EQ(found.last, kNow + std::chrono::hours(38));
    EXPECT_EQ(found.languages, (QMap<QString, int>{{u"de"_s, 1}, {u"cs"_s, 4}}));
    EXPECT_TRUE(found.warnings.empty());
    const PreviewChannel& first = found.channels.front();
    EXPECT_EQ(first.names, (QStringList{u"7-1"_s, u"Erstes & HD"_s}));
    EXPECT_EQ(first.title(), u"Erstes & HD"_s);
    EXPECT_EQ(first.icon, u"//host/de.png"_s);
    EXPECT_EQ(found.channels[1].icon, QString());
    ASSERT_TRUE(first.running);
    EXPECT_EQ(first.running->title, u"Der Fall A"_s);
    EXPECT_EQ(found.channels[3].running->title, u"C"_s);
    EXPECT_EQ(found.channels.back().id, u"unnamed"_s);

    const SourcePreview cut = preview(feed.chopped(300));
    EXPECT_TRUE(warns(cut, SourceWarning::Incomplete));
    EXPECT_EQ(cut.shows, 2);
    EXPECT_TRUE(
        warns(preview(QByteArray(feed).replace("<title>A</title>", "<title>A")), SourceWarning::Incomplete));
    EXPECT_TRUE(warns(preview(QByteArray(feed).replace("Hause", "H\xFFuse")), SourceWarning::Repaired));
    m_now = kNow + std::chrono::days(30);
    EXPECT_TRUE(warns(preview(feed), SourceWarning::Over));
    m_now = kNow - std::chrono::days(3);
    EXPECT_TRUE(warns(preview(feed), SourceWarning::Poor));
}

TEST_F(SourcePreviewTest, NamesTheEveningNewsAndSeesAWrongZone) {
    const auto feed = [](int shift) {
        QByteArray text = "<tv>";
        for (int day = 20; day <= 22; ++day) {
            for (int hour = 0; hour < 20; ++hour) {
                text += show("ct", day, hour, 60,
                             hour == 19 - shift ? "Události" : "Který se vrací domů, protože");
                text += show("24", day, hour, 60, "Zprávy");
            }
        }
        return text + show("film", 21, 19, 90, "Film o zprávách") + "</tv>";
    };
    const SourcePreview right = preview(feed(0));
    ASSERT_TRUE(right.news);
    EXPECT_EQ(right.news->channel, u"ct"_s);
    EXPECT_EQ(right.news->show.title, u"Události"_s);
    EXPECT_EQ(right.news->show.start, kNow + std::chrono::hours(8));
    EXPECT_FALSE(warns(right, SourceWarning::Shifted));
    EXPECT_TRUE(warns(preview(feed(8)), SourceWarning::Shifted));

    const SourcePreview none =
        preview("<tv>" + show("ct", 21, 19, 90, "Film") + show("ct", 21, 21, 90, "B") + "</tv>");
    ASSERT_TRUE(none.news);
    EXPECT_EQ(none.news->show.title, u"Film"_s);
}

} // namespace
} // namespace guide
