#include "alarms/Favorites.h"
#include "alarms/PendingAlarms.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(FavoritesSnapshotTest, TheFirstRuleOfATitleCounts) {
    const FavoritesSnapshot favorites(
        {{u"Žirafa"_s, 5, {}, {}}, {u"ŽIRAFA"_s, {}, {}, {}}, {u""_s, {}, {}, {}}});
    EXPECT_FALSE(favorites.empty());
    ASSERT_TRUE(favorites.ruleNamed(u"žirafa"_s));
    EXPECT_EQ(favorites.ruleNamed(u"žirafa"_s)->minutes, 5);
    EXPECT_TRUE(favorites.containsFavoriteNamed(QString())) << "an empty title is a rule like any other";
    EXPECT_FALSE(favorites.containsFavoriteNamed(u"Žirafa "_s));
    EXPECT_FALSE(FavoritesSnapshot().containsFavoriteNamed(QString()));
}

TEST(AlarmsSnapshotTest, AnEventBelongsToOneBroadcast) {
    const Alphabet latin;
    TVEntry entry(latin);
    entry.setDateTime(Moment(std::chrono::hours(1)));
    const AlarmsSnapshot none;
    EXPECT_EQ(none.alarmedEntry(entry), std::nullopt);
    entry.setIdentificator(u"A"_s);
    const AlarmsSnapshot alarms({{*entry.digest(), 0}});
    EXPECT_EQ(alarms.alarmedEntry(entry), 0);
    entry.setDateTime(Moment(std::chrono::hours(2)));
    EXPECT_EQ(alarms.alarmedEntry(entry), std::nullopt);

    const AlarmsSnapshot silenced({{*entry.digest(), std::nullopt}});
    EXPECT_EQ(silenced.alarmedEntry(entry), std::nullopt);
    EXPECT_EQ(silenced.eventCount(), 1U);
}

} // namespace
} // namespace guide
