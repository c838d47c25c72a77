#include "parsers/playlists/Playlist.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

QString described(const PlaylistEntry& entry) {
    QStringList parts{entry.name,   entry.guideName,         entry.id,
                      entry.number, entry.groups.join(u'/'), entry.stream};
    if (entry.shift != 0) {
        parts << QString::number(entry.shift);
    }
    return parts.join(u'|');
}

QStringList described(const Playlist& list) {
    QStringList lines;
    for (const PlaylistEntry& entry : list.entries) {
        lines << described(entry);
    }
    return lines;
}

TEST(Playlist, ReadsEntriesInEveryDialect) {
    const struct {
        const char* why;
        QString line;
        QString expected;
    } rows[] = {
        {"no attributes", u"#EXTINF:-1,RTL"_s, u"RTL|||||s"_s},
        {"all attributes",
         u"#EXTINF:-1 tvg-id=\"a.cz\" tvg-name=\"A\" tvg-chno=\"6.1\" group-title=\"X;Y\",A HD"_s,
         u"A HD|A|a.cz|6.1|X/Y|s"_s},
        {"commas in values and in the name",
         u"#EXTINF:-1 http-user-agent=\"a (KHTML, like b) c\" tvg-id=\"ABC (W) Buffalo, NY\",News, Sports"_s,
         u"News, Sports||ABC (W) Buffalo, NY|||s"_s},
        {"quotes in a value", u"#EXTINF:-1 tvg-name=\"This is \"a test\"\" tvg-id=\"t\",T"_s,
         u"T|This is \"a test\"|t|||s"_s},
        {"single quotes", u"#EXTINF:-1 tvg-name='Ch. \"1\"' tvg-id='c',C"_s, u"C|Ch. \"1\"|c|||s"_s},
        {"no quotes, capitals, nothing between",
         u"#extinf:0 TVG-ID=b.cz tvg-shift=-4.5 tvg-name=\"B\"ch-number=7,B"_s, u"B|B|b.cz|7||s|-4.5"_s},
        {"a quote that is never closed", u"#EXTINF:-1 tvg-id=\"a b,C"_s, u"C||a|||s"_s},
        {"an empty id, a shift out of range", u"#EXTINF:-1 tvg-id=\"\" tvg-shift=\"900\",D"_s, u"D|||||s"_s},
        {"no name behind the comma", u"#EXTINF:-1 tvg-name=\"E\","_s, u"E|E||||s"_s},
    };
    for (const auto& [why, line, expected] : rows) {
        EXPECT_EQ(described(readPlaylist(line + u"\r\ns\r\n"_s)), QStringList{expected}) << why;
    }
}

TEST(Playlist, ReadsWhatBelongsToTheList) {
    const Playlist list = readPlaylist(
        uR"(#EXTM3U x-tvg-url="http://a.example/1.xml.gz, https://b.example/2.xml;file:///etc/passwd" tvg-shift="2"

#PLAYLIST: Evening
#EXTGRP:Czech
#EXTINF:-1,One
#EXTVLCOPT:http-user-agent=x
http://s.example/1|User-Agent=x
stray line
#EXTINF:-1 group-title="Own",Two
#EXTINF:-1 tvg-shift="1",Three
#EXTGRP:Slovak
pipe:///run 3
#EXTM3U url-tvg="http://a.example/1.xml.gz" tvg-id="http://c.example/3.xml"
#EXTINF:-1,Four
http://s.example/4)");
    EXPECT_EQ(list.name, u"Evening"_s);
    EXPECT_EQ(list.feeds, QStringList({u"http://a.example/1.xml.gz"_s, u"https://b.example/2.xml"_s,
                                       u"http://c.example/3.xml"_s}));
    EXPECT_EQ(described(list),
              QStringList({u"One||||Czech|http://s.example/1|User-Agent=x|2"_s, u"Two||||Own||2"_s,
                           u"Three||||Czech|pipe:///run 3|1"_s, u"Four||||Slovak|http://s.example/4"_s}));
}

TEST(Playlist, IsToldByItsFirstLines) {
    EXPECT_TRUE(isPlaylist(u"\uFEFF\n#EXTM3U"));
    EXPECT_TRUE(isPlaylist(u"# a comment\n#EXTINF:-1,A"));
    EXPECT_FALSE(isPlaylist(u"<?xml version='1.0'?><tv>#EXTM3U</tv>"));
    EXPECT_FALSE(isPlaylist(u"http://s.example/1\n#EXTM3U"));
    EXPECT_FALSE(isPlaylist(u""));
}

TEST(Playlist, ItsCharactersAreDecoded) {
    const QString text = u"#EXTINF:-1,Šlágr ů"_s;
    EXPECT_EQ(playlistText(text.toUtf8()), text);
    EXPECT_EQ(playlistText("#EXTINF:-1,\x8Al\xE1gr \xF9"), text);
    QByteArray wide("\xFF\xFE", 2);
    wide.append(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    EXPECT_EQ(playlistText(wide), text);
}

TEST(Playlist, IsBounded) {
    const QString entry = u"#EXTINF:-1,A\ns\n"_s;
    const Playlist list = readPlaylist(entry.repeated(static_cast<qsizetype>(kMostPlaylistEntries) + 5));
    EXPECT_EQ(list.entries.size(), kMostPlaylistEntries);
    EXPECT_TRUE(list.truncated);
}

} // namespace
} // namespace guide
