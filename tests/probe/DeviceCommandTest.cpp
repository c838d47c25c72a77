#include "probe/RunProbe.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace guide::test {
namespace {

/// A device with two channels, a calendar and shows on 21 November 2026, where it is 10:00 in London.
QJsonObject device(const char* more, const char* steps) {
    QJsonObject state = object(R"({
        "channels": [{"id": "58f4ded60befe78cb3360001", "title": "One"}, {"id": "58f4ded60befe78cb3360002", "title": "Two"}],
        "calendars": [{"title": "TV", "source": "Local", "color": [0.2, 0.4, 0.6, 1.0], "default": true}],
        "shows": [{"channel": "58f4ded60befe78cb3360001", "title": "News", "start": "2026-11-21T12:00:00Z", "end": "2026-11-21T12:30:00Z"},
                  {"channel": "58f4ded60befe78cb3360002", "title": "News", "start": "2026-11-21T14:00:00Z", "end": "2026-11-21T14:30:00Z", "previouslyShown": true},
                  {"channel": "58f4ded60befe78cb3360002", "title": "Film", "start": "2026-11-21T15:00:00Z", "end": "2026-11-21T17:00:00Z"}]})");
    const QJsonObject added = object(more);
    for (auto each = added.begin(); each != added.end(); ++each) {
        state[each.key()] = each.value();
    }
    state[u"do"_s] = QJsonDocument::fromJson(steps).array();
    return state;
}

Answer play(const QJsonObject& state) {
    return probe({u"device"_s, u"-"_s, u"--now"_s, u"2026-11-21T10:00:00Z"_s, u"--zone"_s, u"Europe/London"_s,
                  u"--locale"_s, u"en_GB"_s},
                 QJsonDocument(state).toJson());
}

constexpr auto kRule = R"({"favorites": [{"id": "News", "minutes": 10, "date": "2026-11-01T10:00:00Z"}]})";
constexpr auto kPlain = R"({"favorites": [{"id": "News", "minutes": -1, "date": "2026-11-01T10:00:00Z"}]})";
constexpr auto kNothing = "{}";

TEST(DeviceCommand, PlaysSteps) {
    const struct {
        const char* name;
        const char* more;
        const char* steps;
        const char* answers;
        /// Starts and lead times in seconds of the events, and what the delegate was told.
        const char* events;
        std::array<int, 3> told;
        bool synchronized = true;
    } cases[] = {
        {"no step", kRule, "[]", "[]", "", {0, 0, 0}, false},
        {"a run",
         kRule,
         R"([{"op": "sync"}, {"op": "alarmedEntry", "show": 0}, {"op": "alarmedEntry", "show": 2}])",
         "[null, 10, -1]",
         "12:00-600 14:00-600",
         {1, 0, 0}},
        {"queries",
         kRule,
         R"([{"op": "alerts"}, {"op": "sync"}, {"op": "alerts"}, {"op": "favoritesSchedule"}, {"op": "alarmedType", "title": "NEWS"},
             {"op": "alarmText", "show": 1}, {"op": "alarmText", "show": 2}])",
         R"json([[], null, [["58f4ded60befe78cb3360001", "2026-11-21T12:00:00Z"], ["58f4ded60befe78cb3360002", "2026-11-21T14:00:00Z"]],
             [["58f4ded60befe78cb3360001", "2026-11-21T12:00:00Z"], ["58f4ded60befe78cb3360002", "2026-11-21T14:00:00Z"]],
             [10], "10min before (any broadcast)", "None"])json",
         "12:00-600 14:00-600",
         {1, 0, 0}},
        {"rules are read when they are asked for",
         kRule,
         R"([{"op": "favoritesSchedule"}, {"op": "alarmedType", "title": "Film"}, {"op": "favoritesSchedule"}])",
         R"([[], null, [["58f4ded60befe78cb3360001", "2026-11-21T12:00:00Z"], ["58f4ded60befe78cb3360002", "2026-11-21T14:00:00Z"]]])",
         "",
         {0, 0, 0},
         false},
        {"one-off alarms",
         kPlain,
         R"([{"op": "sync"}, {"op": "setAlarm", "title": "News", "channel": "58f4ded60befe78cb3360001", "at": "2026-11-21T12:00:00Z",
              "until": "2026-11-21T12:30:00Z", "minutes": 5, "sync": true, "manual": true}, {"op": "alarmedEntry", "show": 0},
             {"op": "removeAlarm", "title": "News", "channel": "58f4ded60befe78cb3360001", "at": "2026-11-21T12:00:00Z", "sync": true},
             {"op": "alarmedEntry", "show": 0}])",
         "[null, null, 5, null, -1]",
         "",
         {3, 0, 0}},
        {"recurring alarms",
         kPlain,
         R"([{"op": "sync"}, {"op": "setRecurring", "title": "News", "minutes": 5, "previouslyShown": true, "manual": true},
             {"op": "alarmedType", "title": "News"}, {"op": "removeRecurring", "title": "News", "sync": true}])",
         "[null, null, [5, true], null]",
         "",
         {3, 0, 0}},
        {"favourites",
         kNothing,
         R"([{"op": "addFavorite", "title": "Film "}, {"op": "sync"}, {"op": "removeFavorite", "title": "film"}])",
         "[null, null, null]",
         "",
         {1, 2, 0}},
        {"a swipe sets an alarm",
         R"({"cloud": {"lastAlarmMinutes": 3}})",
         R"([{"op": "saveCalendar", "calendar": 0}, {"op": "swipe", "show": 2, "choose": 0}, {"op": "swipe", "show": 2, "choose": 0},
             {"op": "alarmedEntry", "show": 2}])",
         R"([null, ["⏰", "⭐"], ["✖️"], -1])",
         "",
         {2, 1, 0},
         false},
        {"a swipe asks",
         kRule,
         R"([{"op": "sync"}, {"op": "swipe", "show": 0, "choose": 0}, {"op": "alarmedEntry", "show": 0},
             {"op": "swipe", "show": 0, "choose": 0, "confirm": true}, {"op": "alarmedEntry", "show": 0}])",
         R"([null, ["✖️"], 10, ["✖️"], -1])",
         "14:00-600",
         {2, 0, 0}},
        {"settings",
         kPlain,
         R"([{"op": "sync"}, {"op": "settings", "show": 0, "choose": {"type": 2, "row": 5}}, {"op": "settings", "show": 0}])",
         R"([null, {"types": 4, "type": 0, "triggers": 11, "row": 0}, {"types": 4, "type": 2, "triggers": 12, "row": 5}])",
         "12:00-300",
         {2, 0, 0}},
        {"settings without access",
         R"({"access": "refused"})",
         R"([{"op": "settings", "show": 0}, {"op": "sync"}])",
         "[null, null]",
         "",
         {0, 0, 0}},
        {"calendars",
         kRule,
         R"([{"op": "chooseCalendar", "calendar": 0}, {"op": "sync"}, {"op": "chooseCalendar", "calendar": 0}, {"op": "chooseCalendar", "calendar": 7}])",
         R"([null, null, "Error", null])",
         "12:00-600 14:00-600",
         {1, 0, 0}},
        {"silent hours",
         kRule,
         R"([{"op": "silent", "from": "11:45", "to": "12:00"}, {"op": "sync"}, {"op": "silent"}])",
         "[null, null, null]",
         "14:00-600",
         {1, 0, 2}},
        {"a load",
         kRule,
         R"([{"op": "sync"}, {"op": "listings", "shows": [{"channel": "58f4ded60befe78cb3360001", "title": "News", "start": "2026-11-21T13:00:00Z",
              "end": "2026-11-21T13:30:00Z"}]}, {"op": "alarmedEntry", "show": 0}])",
         "[null, null, 10]",
         "13:00-600 14:00-600",
         {2, 0, 0}},
        {"another selection: both events are of the remaining show",
         kRule,
         R"([{"op": "sync"}, {"op": "select", "channels": ["58f4ded60befe78cb3360001", "58f4ded60befe78cb3360002"]},
             {"op": "select", "channels": ["58f4ded60befe78cb3360002"]}, {"op": "alerts"}])",
         R"([null, null, null, [["58f4ded60befe78cb3360002", "2026-11-21T14:00:00Z"], ["58f4ded60befe78cb3360002", "2026-11-21T14:00:00Z"]]])",
         "14:00-600 14:00-600",
         {2, 0, 1}},
        {"rules from another device",
         kRule,
         R"([{"op": "sync"}, {"op": "cloud", "reason": 2, "values": {"Favorites": []}},
             {"op": "cloud", "reason": 4, "values": {}}, {"op": "alarmedType", "title": "News"},
             {"op": "cloud", "reason": 0, "values": {"Favorites": [["Film", 5, "2026-11-01T10:00:00Z", false], ["Short", 1], "damaged"]}},
             {"op": "alarmedType", "title": "Film"}])",
         "[null, null, null, [10], null, [5, false]]",
         "15:00-300",
         {2, 1, 0}},
        {"an empty list leaves the events",
         kRule,
         R"([{"op": "sync"}, {"op": "cloud", "reason": null, "values": {"Favorites": []}}, {"op": "alarmedType", "title": "News"}])",
         "[null, null, null]",
         "12:00-600 14:00-600",
         {1, 1, 0},
         false},
        {"a selection from another device",
         R"({"cloud": {"SelectedChannels": ["58f4ded60befe78cb3360001"]}})",
         R"([{"op": "sync"}, {"op": "cloud", "reason": 1}, {"op": "cloud", "reason": 3, "values": {"SelectedChannels": []}}, {"op": "export"}])",
         R"([null, null, null, "Selected channels:\r\n\tOne\r\n\r\n\r\nFavorites:\r\n\r\n\r\nSelected calendar:\r\n\r\n\r\nLast set alarm:\r\n0min before the show\r\n"])",
         "",
         {0, 0, 1},
         false},
        {"popular shows",
         R"({"counters": [{"title": "News", "counter": 1}, {"title": "Film", "counter": 1}, {"title": "Gone", "counter": 1}]})",
         R"([{"op": "popular"}])",
         R"([[["58f4ded60befe78cb3360001", "2026-11-21T12:00:00Z"], ["58f4ded60befe78cb3360002", "2026-11-21T14:00:00Z"],
              ["58f4ded60befe78cb3360002", "2026-11-21T15:00:00Z"]]])",
         "",
         {0, 0, 0},
         false},
        {"erasing",
         R"({"favorites": [{"id": "News", "minutes": 10, "date": "2026-11-01T10:00:00Z"}, {"id": "Film", "minutes": 5, "date": "2026-11-01T10:00:00Z"}],
             "cloud": {"lastAlarmMinutes": 5, "selectedCalendar": "TV:Local:"}})",
         R"([{"op": "sync"}, {"op": "erase"}, {"op": "popular"}, {"op": "export"}])",
         R"([null, null, [], "Selected channels:\r\n\r\n\r\nFavorites:\r\n\r\n\r\nSelected calendar:\r\n\r\n\r\nLast set alarm:\r\n0min before the show\r\n"])",
         "",
         {3, 2, 0}},
        {"the clock",
         kRule,
         R"([{"op": "advance", "seconds": 10800}, {"op": "sync"}])",
         "[null, null]",
         "14:00-600",
         {1, 0, 0}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        const Answer answer = play(device(each.more, each.steps));
        ASSERT_EQ(answer.status, 0) << answer.errors.toStdString();
        EXPECT_EQ(answer.json[u"answers"_s].toArray(), QJsonDocument::fromJson(each.answers).array())
            << answer.output.toStdString();
        QStringList events;
        for (const QJsonValue& event : answer.json[u"events"_s].toArray()) {
            EXPECT_EQ(event[u"id"_s], u"new"_s);
            events << event[u"start"_s].toString().mid(11, 5) +
                          QString::number(event[u"alarms"_s][0].toInt());
        }
        EXPECT_EQ(events.join(u' ').toStdString(), each.events);
        const QJsonObject told = answer.json[u"told"_s].toObject();
        EXPECT_EQ((std::array{told[u"notificationsSynched"_s].toInt(), told[u"favoritesUpdated"_s].toInt(),
                              told[u"checks"_s].toInt()}),
                  each.told);
        EXPECT_EQ(answer.json[u"synchronized"_s].toBool(), each.synchronized);
    }
}

TEST(DeviceCommand, PrintsTheDevice) {
    const Answer answer = play(device(
        R"({
        "favorites": [{"id": "Film", "minutes": -1, "date": "2026-11-01T10:00:00Z", "previouslyShown": true}],
        "silent": {"from": "01:00"}, "synchronized": true,
        "cloud": {"lastAlarmMinutes": 5, "SelectedChannels": ["58f4ded60befe78cb3360001"]},
        "counters": [{"title": "Film", "counter": 7, "modified": "2026-11-01T10:00:00Z"}],
        "events": [{"id": "e1", "calendar": 0, "title": "Film", "location": "Two", "start": "2026-11-21T15:00:00Z", "end": "2026-11-21T17:00:00Z",
                    "url": {"channel": "58f4ded60befe78cb3360002", "start": "2026-11-21T15:00:00Z", "title": "Film"}, "alarms": [-600]},
                   {"id": "x", "calendar": 0, "title": "Dentist", "start": "2026-11-21T11:00:00Z", "end": "2026-11-21T12:00:00Z"}]})",
        R"([{"op": "sync"}, {"op": "edit", "event": "e1", "set": {"alarms": [-420]}}, {"op": "alarmedEntry", "show": 2},
                                          {"op": "delete", "event": "nothing"}])"));
    ASSERT_EQ(answer.status, 0) << answer.errors.toStdString();
    EXPECT_EQ(answer.json, object(R"({
        "answers": [null, null, 5, null],
        "events": [{"id": "x", "calendar": 0, "title": "Dentist", "location": null, "url": null, "start": "2026-11-21T11:00:00Z",
                    "end": "2026-11-21T12:00:00Z", "alarms": []},
                   {"id": "e1", "calendar": 0, "title": "Film", "location": "Two", "url": "quellin://c7fffe8964558cc5d41524bf06e2c0010",
                    "start": "2026-11-21T15:00:00Z", "end": "2026-11-21T17:00:00Z", "alarms": [-420]}],
        "calendarEvents": {"quellin://c7fffe8964558cc5d41524bf06e2c0010": "e1"},
        "favorites": [{"id": "Film", "minutes": -1, "date": "2026-11-01T10:00:00Z", "previouslyShown": true}],
        "selected": ["58f4ded60befe78cb3360001", "58f4ded60befe78cb3360002"],
        "synchronized": true,
        "userDefaults": {"selectedCalendar": "TV:Local:0.200000:0.400000:0.600000:1.000000"},
        "cloud": {"Favorites": [{"id": "Film", "minutes": -1, "date": "2026-11-01T10:00:00Z", "previouslyShown": true}],
                  "SelectedChannels": ["58f4ded60befe78cb3360001"], "lastAlarmMinutes": 5,
                  "noAlarmsSchedule": true, "noAlarmsSchedule.0": "01:00"},
        "counters": {"Film": 7},
        "told": {"notificationsSynched": 1, "favoritesUpdated": 0, "checks": 0}})"))
        << answer.output.toStdString();
}

TEST(DeviceCommand, RefusesWhatItCannotPlay) {
    const std::pair<const char*, QByteArray> cases[] = {
        {"no JSON", "[1"},
        {"unknown step", R"({"do": [{"op": "dance"}]})"},
        {"no such show", R"({"do": [{"op": "swipe", "show": 0}]})"},
        {"a step without a time", R"({"do": [{"op": "setAlarm", "title": "News"}]})"},
        {"a show without a start",
         R"({"shows": [{"channel": "58f4ded60befe78cb3360001", "title": "News"}]})"},
        {"an event in no calendar",
         R"({"events": [{"id": "e", "calendar": 0, "start": "2026-11-21T11:00:00Z"}]})"},
        {"a time without a zone",
         R"({"favorites": [{"id": "a", "minutes": 1, "date": "2026-11-21T11:00:00"}]})"},
    };
    for (const auto& [name, state] : cases) {
        const Answer answer = probe({u"device"_s, u"-"_s}, state);
        EXPECT_EQ(answer.status, 1) << name;
        EXPECT_TRUE(answer.output.isEmpty()) << name;
    }
}

} // namespace
} // namespace guide::test
