#include "screens/DaySections.h"

#include "fakes/StoreFixture.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

TEST(DaySectionsTest, GroupsByDayAndLeavesOutChannelsWithoutAnIcon) {
    const QTemporaryDir icons;
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(icons.filePath(u"one.png"_s)));
    TVStationIcons stationIcons(icons.path(), 1);
    const auto id = StoreFixture::channelNumbered;
    const CatalogueSnapshot channels({{id(1), u"One"_s, u"cs"_s, u"x"_s, u"one.png"_s},
                                      {id(2), u"Two"_s, u"cs"_s, u"x"_s, u"absent.png"_s}});
    const Alphabet latin;
    const auto show = [&](const char* start, int channel) {
        auto entry = std::make_shared<TVEntry>(latin);
        entry->setChannel(id(channel));
        const QDateTime time = QDateTime::fromString(QString::fromLatin1(start), Qt::ISODate);
        entry->setDateTime(Moment(std::chrono::milliseconds(time.toMSecsSinceEpoch())));
        return ShowItem(std::move(entry));
    };
    // The day of Lord Howe begins at 13:00 UTC in summer.
    const ShowItems all{show("2025-12-30T12:59:00Z", 2), show("2025-12-31T12:59:00Z", 1),
                        show("2025-12-31T13:00:00Z", 1), show("2025-12-31T13:30:00Z", 3),
                        show("2025-12-31T12:00:00Z", 1)};
    ShowItems shows = showsWithChannelIcon(all, channels, stationIcons);
    EXPECT_EQ(shows, (ShowItems{all[1], all[2], all[4]}));
    shows.push_back(ShowItem(std::make_shared<TVEntry>(latin))); // without a start
    const auto sections = daySections(shows, QLocale(QLocale::Slovenian), QTimeZone("Australia/Lord_Howe"));
    ASSERT_EQ(sections.size(), 2U);
    EXPECT_EQ(sections[0].title, u"sreda, 31. december 2025"_s);
    EXPECT_EQ(sections[0].shows, (ShowItems{all[1], all[4]}));
    EXPECT_EQ(sections[1].title, u"četrtek, 1. januar 2026"_s);
    EXPECT_EQ(sections[1].shows, (ShowItems{all[2]}));
}

} // namespace
} // namespace guide::test
