#include "alarms/FavoriteOperations.h"

#include "fakes/ManualQueues.h"
#include "platform/memory/MemoryKeyValueStore.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class FavoriteOperationsTest : public testing::Test,
                               protected AlarmActions,
                               protected AlarmSynchronisation,
                               protected ShowCounters {
  protected:
    void setAlarmForTitle(const QString&, const ObjectId&, Moment, Moment, int, bool, bool) override {}
    void removeAlarmForTitle(const QString&, const ObjectId&, Moment, bool, bool) override {}
    void setAlarmForTitle(const QString&, int, std::optional<bool>, bool) override {}
    void removeAlarmForTitle(const QString&, bool, bool) override {}
    void removeAlarmsForTitles(const QStringList& titles, bool sync) override {
        for (const QString& title : titles) {
            const bool exists = shows.snapshot()->containsFavoriteNamed(title);
            log << u"no alarm %1 %2%3"_s.arg(title).arg(sync).arg(exists ? u" rule"_s : u""_s);
        }
    }
    void setSynchronized(bool synchronized) override { log << u"mark %1"_s.arg(synchronized); }
    void syncAlarms() override { log << u"run"_s; }
    bool isSynchronized() const override { return false; }
    bool isRunning() const override { return false; }
    void commit() override {}
    bool hasCalendarAccess() const override { return true; }
    int lastAlarmMinutes() const override { return 0; }
    void incrementCounterByAmount(int amount, const QString& title) override {
        log << u"%1 %2"_s.arg(title).arg(amount);
    }
    void countAddedFavorite(const QString& title) override { log << title + u" 2"_s; }
    void countRemovedFavorite(const QString& title) override { log << title + u" -1"_s; }

    QString titles() const {
        QStringList all;
        for (const Favorite& rule : shows.snapshot()->rules()) {
            all << rule.identificator;
        }
        return all.join(u',');
    }
    QStringList takeLog() {
        queues.runAll();
        return std::exchange(log, {});
    }

    QTemporaryDir folder;
    ManualClock clock;
    ManualQueues queues{clock};
    MemoryKeyValueStore keyValueStore;
    TVShows shows{Folders{folder.path(), folder.path(), {}, {}, {}, {}}, keyValueStore, queues};
    QStringList log;
    FavoriteOperations operations{
        FavoriteOperationsEnvironment{clock, queues.mainQueue(), shows, static_cast<AlarmActions&>(*this),
                                      static_cast<AlarmSynchronisation&>(*this),
                                      static_cast<ShowCounters&>(*this), [this] { log << u"screens"_s; }}};
};

TEST_F(FavoriteOperationsTest, AddsATitleOnce) {
    const std::tuple<const char*, QString, QString, QStringList> cases[] = {
        {"new", u"News"_s, u"News"_s, {u"screens"_s, u"News 2"_s}},
        {"another case", u"nEWS"_s, u"News"_s, {u"screens"_s}},
        {"a blank at the end", u"Film "_s, u"News,Film"_s, {u"screens"_s, u"Film 2"_s}},
        {"of two blanks one goes", u"Film  "_s, u"News,Film,Film "_s, {u"screens"_s, u"Film  2"_s}},
        {"an empty title", u""_s, u"News,Film,Film ,"_s, {u"screens"_s, u" 2"_s}},
    };
    for (const auto& [name, title, after, calls] : cases) {
        operations.addFavorite(title);
        EXPECT_EQ(titles(), after) << name;
        EXPECT_EQ(takeLog(), calls) << name;
    }
    const Favorite& rule = shows.snapshot()->rules().front();
    EXPECT_TRUE(!rule.minutes && !rule.previouslyShown && rule.date == clock.now());
}

TEST_F(FavoriteOperationsTest, RemovalEndsAlarmsWhileTheRuleExists) {
    shows.setFavorites({{u"News"_s, 5, {}, {}}, {u"NEWS"_s, {}, {}, {}}, {u"Film"_s, {}, {}, {}}});
    operations.removeFavorite(u"film "_s);
    EXPECT_TRUE(takeLog().isEmpty()) << "no such rule";
    operations.removeFavorite(u"news"_s);
    EXPECT_EQ(titles(), u"NEWS,Film"_s) << "of equal titles the first";
    EXPECT_EQ(takeLog(), QStringList({u"no alarm news 1 rule"_s, u"no alarm news 0 rule"_s, u"news -1"_s,
                                      u"screens"_s}));
    operations.removeFavorites({u"Film"_s, u"News"_s});
    EXPECT_EQ(titles(), u""_s);
    EXPECT_EQ(takeLog(),
              QStringList({u"no alarm Film 1 rule"_s, u"no alarm News 1 rule"_s, u"no alarm Film 0"_s,
                           u"no alarm News 0"_s, u"Film -1"_s, u"News -1"_s, u"screens"_s}));
}

TEST_F(FavoriteOperationsTest, ManyRulesAreRemovedInOneStep) {
    std::vector<Favorite> rules;
    QStringList all;
    for (int i = 0; i < 1001; ++i) {
        all << QString::number(i);
        rules.push_back({all.back(), {}, {}, {}});
    }
    shows.setFavorites(rules);
    operations.removeFavorite(u"500"_s);
    EXPECT_EQ(shows.snapshot()->rules().size(), 1000U);
    takeLog();
    operations.removeFavorites(all);
    EXPECT_TRUE(shows.snapshot()->empty());
    EXPECT_EQ(takeLog().count(u"screens"_s), 1);
}

TEST_F(FavoriteOperationsTest, UndoRestoresOrderAndSettings) {
    const std::vector<Favorite> rules{{u"A"_s, 10, clock.now() - 1h, true},
                                      {u"B"_s, {}, clock.now() - 2h, {}},
                                      {u"C"_s, {}, clock.now() - 3h, {}},
                                      {u"D"_s, {}, clock.now() - 4h, {}}};
    shows.setFavorites(rules);
    const auto before = shows.snapshot();
    operations.removeFavorites({u"A"_s, u"C"_s});
    takeLog();
    operations.restoreFavorites(*before, {u"A"_s, u"C"_s});
    EXPECT_EQ(shows.snapshot()->rules(), rules);
    EXPECT_EQ(takeLog(), QStringList({u"A 1"_s, u"C 1"_s, u"mark 0"_s, u"run"_s, u"screens"_s}));

    operations.removeFavorites({u"A"_s, u"B"_s, u"C"_s});
    operations.addFavorite(u"E"_s);
    operations.addFavorite(u"b"_s);
    takeLog();
    operations.restoreFavorites(*before, {u"B"_s, u"C"_s});
    EXPECT_EQ(titles(), u"D,E,b,C"_s) << "B was added again, and A stays removed";
    EXPECT_EQ(takeLog(), QStringList({u"C 1"_s, u"screens"_s}));
}

} // namespace
} // namespace guide
