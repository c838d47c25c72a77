#include "screens/SwipeActions.h"

#include "fakes/FakeShowSources.h"
#include "platform/memory/ManualClock.h"

#include <gtest/gtest.h>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

struct Calls final : AlarmActions, FavoriteActions {
    void setAlarmForTitle(const QString& title, const ObjectId&, Moment, Moment, int minutes, bool sync,
                          bool manual) override {
        log << u"set %1 %2 %3 %4"_s.arg(title).arg(minutes).arg(sync).arg(manual);
    }
    void removeAlarmForTitle(const QString& title, const ObjectId&, Moment, bool sync, bool manual) override {
        log << u"remove %1 %2 %3"_s.arg(title).arg(sync).arg(manual);
    }
    void setAlarmForTitle(const QString&, int, std::optional<bool>, bool) override {}
    void removeAlarmForTitle(const QString&, bool, bool) override {}
    void removeAlarmsForTitles(const QStringList&, bool) override {}
    int lastAlarmMinutes() const override { return 10; }
    void addFavorite(const QString& title) override { log << u"add "_s + title; }
    void removeFavorites(const QStringList& titles) override { log << u"forget "_s + titles.join(u", "_s); }
    void restoreFavorites(const FavoritesSnapshot&, const QStringList&) override {}
    bool noteAlarmSet(const QString&) override { return true; }

    QStringList log;
};

struct Rules final : FavoritesSource {
    std::shared_ptr<const FavoritesSnapshot> snapshot() const override {
        return std::make_shared<const FavoritesSnapshot>(rules);
    }
    std::vector<Favorite> rules;
};

TEST(SwipeActionsTest, OfferWhatAppliesToTheShow) {
    const struct {
        const char* name;
        bool favourite, recurring, alarmed;
        std::chrono::minutes startsIn;
        QStringList expected;
    } cases[] = {
        {"new", false, false, false, 10min, {u"⏰ add News, set News 10 1 0"_s, u"⭐ add News"_s}},
        {"too late for the alarm", false, false, false, 9min, {u"⭐ add News"_s}},
        {"favourite", true, false, false, 60min,
         QStringList{u"✖️ ?Remove favorite forget News"_s, u"⏰ set News 10 1 1"_s}},
        {"alarm without a rule", false, false, true, 60min, {u"✖️ remove News 1 1"_s, u"⭐ add News"_s}},
        {"alarm on a favourite", true, false, true, 60min, {u"✖️ remove News 1 1"_s}},
        {"recurring alarm", true, true, true, 60min, {u"✖️ ?Remove alarm remove News 1 1"_s}},
        {"recurring, this one removed", true, true, false, 9min, {u"✖️ ?Remove favorite forget News"_s}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        const ManualClock clock;
        const Alphabet latin;
        const auto entry = std::make_shared<TVEntry>(latin);
        entry->setIdentificator(u"News"_s);
        entry->setDateTime(clock.now() + each.startsIn);
        entry->setEndDateTime(clock.now() + each.startsIn + 1h);
        Calls calls;
        Rules favorites;
        FakeAlarms alarms;
        if (each.favourite) {
            favorites.rules = {{u"news"_s, each.recurring ? std::optional(5) : std::nullopt, {}, {}}};
        }
        if (each.alarmed) {
            alarms.events[*entry->digest()] = 5;
        }
        const auto confirm = [&](const Alert& alert) {
            calls.log << u'?' + alert.actions[0].title;
            alert.actions[0].action();
        };
        QStringList found;
        for (const RowAction& action :
             swipeActions({clock, favorites, alarms, calls, calls, confirm}, entry)) {
            calls.log.clear();
            action.action();
            found << action.title + u' ' +
                         calls.log.join(u", "_s)
                             .replace(u"favorite, "_s, u"favorite "_s)
                             .replace(u"alarm, "_s, u"alarm "_s);
        }
        EXPECT_EQ(found, each.expected);
    }
}

} // namespace
} // namespace guide::test
