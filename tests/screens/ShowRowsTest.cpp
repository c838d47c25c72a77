#include "screens/ShowRows.h"

#include "screens/GuidePictures.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

Moment moment(const QString& text) {
    return Moment(std::chrono::milliseconds(QDateTime::fromString(text, Qt::ISODate).toMSecsSinceEpoch()));
}

TEST(ShowRowTextTest, TimesFollowTheLocaleWithTwoDigitsOfHour) {
    const Alphabet alphabet;
    TVEntry entry(alphabet);
    entry.setDateTime(moment(u"2026-06-01T04:05:00Z"_s));
    entry.setEndDateTime(moment(u"2026-06-01T15:30:00Z"_s));
    entry.setIdentificator(u"Title"_s);
    struct Case {
        const char* locale;
        const char* zone;
        QString start, end;
    };
    const std::vector<Case> cases{
        {"en_US", "Europe/Prague", u"06:05am"_s, u"05:30pm"_s},
        {"en_GB", "UTC", u"04:05"_s, u"15:30"_s},
        {"cs_CZ", "Europe/Prague", u"06:05"_s, u"17:30"_s},
        {"bg_BG", "Europe/Sofia", u"07:05ч."_s, u"18:30ч."_s},
        {"en_AU", "Australia/Lord_Howe", u"02:35pm"_s, u"02:00am"_s},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.locale);
        const ShowRowText text(QLocale(QString::fromLatin1(each.locale)), QTimeZone(each.zone));
        const ShowRow full = text.humanWithColor(entry, ColorRole::Running, true);
        EXPECT_EQ(full.startTime, each.start);
        EXPECT_EQ(full.endTime, each.end);
        EXPECT_EQ(full.title, u"Title"_s);
        EXPECT_EQ(full.timeColor, ColorRole::Running);
        EXPECT_FALSE(full.popular) << "not in this form";
        EXPECT_TRUE(text.humanCondensedWithColor(entry, ColorRole::Alarm, true).popular);
    }
}

TEST(ShowRowIdsTest, ShowsOfOneChannelThatStartTogetherDiffer) {
    const Alphabet alphabet;
    const ObjectId one = ObjectId::fromHex(u"000000000000000000000001"_s);
    const ObjectId two = ObjectId::fromHex(u"000000000000000000000002"_s);
    ShowItems shows;
    std::vector<RowId> ids;
    ShowRowIds next(u"day"_s);
    for (const auto& [channel, start] :
         {std::pair(one, 5), std::pair(two, 5), std::pair(one, 5), std::pair(one, 6)}) {
        auto entry = std::make_shared<TVEntry>(alphabet);
        entry->setChannel(channel);
        entry->setDateTime(Moment(std::chrono::minutes(start)));
        ids.push_back(next.next(*entry));
        shows.emplace_back(std::move(entry));
    }
    for (std::size_t show = 0; show < shows.size(); ++show) {
        EXPECT_EQ(findShow(shows, *ids[show].show()), &shows[show]);
    }
    EXPECT_EQ(ids[2].show()->ordinal, 1);
    EXPECT_EQ(findShow(shows, {two, ids[3].show()->start, 0}), nullptr);
}

TEST(ShowPictureCacheTest, KeepsTheMostRecentlyUsedImages) {
    const ObjectId channel = ObjectId::fromHex(u"000000000000000000000001"_s);
    QImage image(50, 50, QImage::Format_RGB32);
    ShowPictureCache cache(25'000);
    cache.insert(channel, u"a"_s, image);
    cache.insert(channel, u"b"_s, image);
    cache.insert(channel, u"none"_s, QImage());
    const PictureKey a = cache.find(channel, u"a"_s).value();
    EXPECT_FALSE(cache.image(a.name).isNull());
    cache.insert(channel, u"c"_s, image);
    EXPECT_FALSE(cache.find(channel, u"b"_s)) << "there is room for two";
    EXPECT_EQ(cache.find(channel, u"none"_s), PictureKey());
    cache.insert(channel, u"a"_s, image);
    EXPECT_NE(cache.find(channel, u"a"_s), a) << "another picture has another key";
    EXPECT_TRUE(cache.image(a.name).isNull());

    TVStationIcons icons(u"/nonexistent"_s, 1);
    GuidePictures pictures(icons, cache);
    EXPECT_FALSE(pictures.picture(cache.find(channel, u"a"_s).value(), {}).isNull());
    EXPECT_TRUE(pictures.picture({PictureKey::Kind::ChannelIcon, u"x"_s}, {}).isNull());
    cache.forgetChannel(channel);
    EXPECT_FALSE(cache.find(channel, u"none"_s));
    cache.insert(channel, u"a"_s, image);
    cache.clear();
    EXPECT_FALSE(cache.find(channel, u"a"_s));
    cache.insert(channel, u"a"_s, image);
    cache.insert(channel, u"b"_s, image);
    EXPECT_TRUE(cache.find(channel, u"a"_s)) << "there is room for two again";
}

} // namespace
} // namespace guide::test
