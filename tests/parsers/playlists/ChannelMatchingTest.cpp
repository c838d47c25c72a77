#include "parsers/playlists/ChannelMatching.h"

#include "parsers/playlists/ChannelNames.h"
#include "parsers/playlists/FeedChannels.h"

#include <QSet>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(ChannelNames, NamesOfOneChannelHaveOneKey) {
    const struct {
        const char* why;
        QStringList names;
    } same[] = {
        {"case and diacritics", {u"ČT sport"_s, u"CT SPORT"_s, u"C\u030CT Sport"_s}},
        {"quality", {u"RTL"_s, u"RTL HD"_s, u"RTL (FHD)"_s, u"RTL ᴴᴰ"_s, u"RTL 4K"_s}},
        {"country", {u"AMC"_s, u"AMC HD.sk"_s, u"HU - AMC"_s, u"PL| AMC"_s, u"cz: AMC"_s}},
        {"decoration", {u"Prva"_s, u"Prva Ⓖ"_s, u"ＰＲＶＡ"_s}},
        {"script", {u"РТС 1"_s, u"RTS1"_s, u"RTS 1 HD"_s}},
        {"letters of their own", {u"Đ TV"_s, u"Ђ ТВ"_s}},
    };
    for (const auto& [why, names] : same) {
        for (const QString& name : names) {
            EXPECT_EQ(channelNameKeys(name).exact, channelNameKeys(names.front()).exact)
                << why << ": " << qUtf8Printable(name);
        }
    }
    const QStringList different{u"Cinema 1"_s, u"Cinema 2"_s, u"Cinema"_s,     u"Nova"_s, u"Nova +1"_s,
                                u"HD"_s,       u"CZ"_s,       u"Prima SK 2"_s, u"24"_s};
    QSet<QString> keys;
    for (const QString& name : different) {
        keys.insert(channelNameKeys(name).exact);
    }
    EXPECT_EQ(keys.size(), different.size());
    EXPECT_FALSE(keys.contains(QString()));
    EXPECT_EQ(channelNameKeys(u"TV Barrandov"_s).near, channelNameKeys(u"Barrandov TV HD"_s).near);
    EXPECT_EQ(channelIdKey(u"CT1.cz@SD"_s), channelIdKey(u"ct 1 CZ"_s));
}

TEST(ChannelMatching, MatchesByIdThenByNameAndLeavesTheRestToReview) {
    const std::vector<FeedChannel> channels{
        {u"CT1.cz"_s, {u"ČT1 HD"_s}, 0},       {u"Nova.cz"_s, {u"Nova"_s}, 0},
        {u"NovaPlus.cz"_s, {u"Nova +1"_s}, 0}, {u"a1"_s, {u"7-1"_s, u"RTL"_s}, 0},
        {u"a2"_s, {u"RTL HD"_s}, 0},           {u"7"_s, {u"Barrandov TV"_s}, 0},
        {u"x.1"_s, {u"Nova"_s, u"Joj"_s}, 1},  {u"X 1"_s, {u"Doma"_s}, 1},
    };
    const auto entry = [](const QString& name, const QString& id = {}, const QString& number = {}) {
        PlaylistEntry made;
        made.name = name;
        made.id = id;
        made.number = number;
        return made;
    };
    const struct {
        PlaylistEntry entry;
        MatchKind kind;
        int channel;
        std::vector<int> candidates;
    } rows[] = {
        {entry(u"Anything"_s, u"CT1.cz"_s), MatchKind::Id, 0, {}},
        {entry(u"Anything"_s, u"ct1.CZ@HD"_s), MatchKind::Id, 0, {}},
        {entry(u"NOVA HD"_s, u"unknown"_s), MatchKind::Name, 1, {}},
        {entry(u"Nova+1"_s), MatchKind::Name, 2, {}},
        {entry(u"RTL"_s), MatchKind::Review, -1, {3, 4}},
        {entry(u"TV Barrandov"_s), MatchKind::Review, -1, {5}},
        {entry(u"Other"_s, {}, u"7"_s), MatchKind::None, -1, {}},
        {entry(u"Other"_s, u"x1"_s), MatchKind::Review, -1, {6, 7}},
        {entry(u"Doma"_s, u"X 1"_s), MatchKind::Id, 7, {}},
        {entry(u"TV"_s), MatchKind::None, -1, {}},
    };
    std::vector<PlaylistEntry> entries;
    for (const auto& row : rows) {
        entries.push_back(row.entry);
    }
    const std::vector<ChannelMatch> matches = matchChannels(entries, channels);
    ASSERT_EQ(matches.size(), entries.size());
    for (std::size_t place = 0; place < matches.size(); ++place) {
        EXPECT_EQ(matches[place].kind, rows[place].kind) << place;
        EXPECT_EQ(matches[place].channel, rows[place].channel) << place;
        EXPECT_EQ(matches[place].candidates, rows[place].candidates) << place;
    }
}

TEST(FeedChannels, AreReadWithAllTheirNamesUpToTheFirstError) {
    const std::vector<FeedChannel> channels = feedChannels(
        R"(<tv><channel id="a"><display-name>A &amp; B</display-name><display-name> 7 </display-name>
<icon src="x"/></channel><programme channel="a"><title>T</title></programme><channel><display-name>No id</display-name>
</channel><channel id="a"><display-name>A2</display-name><display-name>7</display-name></channel>
<channel id="b"><display-name>B)",
        3);
    ASSERT_EQ(channels.size(), 2U);
    EXPECT_EQ(channels[0].names, QStringList({u"A & B"_s, u"7"_s, u"A2"_s}));
    EXPECT_EQ(channels[1].id, u"b"_s);
    EXPECT_EQ(channels[1].feed, 3);
}

} // namespace
} // namespace guide
