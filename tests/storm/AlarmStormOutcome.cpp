// What must be true after a storm.
#include "AlarmStorm.h"
#include "alarms/GuideEvents.h"

namespace guide::test {

std::vector<CalendarEvent> AlarmStorm::events() {
    EventRange range = m_store.store().eventsBetween(now() - kAlarmReach, now() + kAlarmReach, m_selected);
    EXPECT_FALSE(range.fault) << range.fault->toStdString();
    return std::move(range.events);
}

std::vector<ShowDigest> AlarmStorm::alarmsThatMustBe() const {
    std::vector<ShowDigest> digests;
    const auto rules = m_world->rules.snapshot();
    const SilentHours silent = m_world->alarmCalendar->silentHours();
    const auto refused = m_world->alarmCalendar->refused().all();
    const std::vector<ObjectId> selected = m_world->channels.selected();
    for (const auto& show : m_world->shows) {
        const Favorite* rule = rules->ruleNamed(*show->identificator());
        if (rule && rule->minutes && std::ranges::count(selected, show->channel()) > 0 &&
            *show->dateTime() > now() && *show->dateTime() < now() + kAlarmReach &&
            rule->previouslyShown.value_or(show->previouslyShown()) == show->previouslyShown() &&
            silent.mayBeAlarmedAt(*show->dateTime() - std::chrono::minutes(*rule->minutes)) &&
            !refused->contains(*show->digest())) {
            digests.push_back(*show->digest());
        }
    }
    return digests;
}

void AlarmStorm::expectRight() {
    const std::vector<CalendarEvent> all = events();
    struct Alarms {
        int count = 0;
        bool isEdited = false;
    };
    std::map<ShowDigest, Alarms> alarms;
    std::set<std::tuple<Moment, QString, QString>> places;
    for (const CalendarEvent& event : all) {
        if (!isOwn(event)) {
            continue;
        }
        EXPECT_TRUE(event.hasAlarms()) << m_world->text(event).toStdString();
        EXPECT_TRUE(places.emplace(event.startDate, event.title.toLower(), event.location).second)
            << "doubled: " << m_world->text(event).toStdString();
        if (const auto show = showOfEvent(event, u"guide"_s)) {
            Alarms& known = alarms[*show];
            known.isEdited = known.isEdited || m_edited.contains(uidOf(event));
            EXPECT_TRUE(++known.count == 1 || known.isEdited)
                << "second alarm of a show: " << m_world->text(event).toStdString();
        }
    }
    for (const ShowDigest& digest : alarmsThatMustBe()) {
        EXPECT_TRUE(alarms.contains(digest)) << "missing: " << [&] {
            const auto show = std::ranges::find_if(
                m_world->shows, [&](const auto& each) { return each->digest() == digest; });
            return (*(*show)->identificator() + u' ' + AlarmWorld::textOf(*(*show)->dateTime()))
                .toStdString();
        }();
    }
    for (const auto& [uid, text] : m_foreign) {
        EXPECT_EQ(m_calendar.test().get(uid), text);
    }
    expectListed(all);
    expectAdditions(all);
}

/// No alarm of a channel with a complete list rings for a show that the lists do not have.
void AlarmStorm::expectListed(const std::vector<CalendarEvent>& events) {
    const auto rules = m_world->rules.snapshot();
    const SilentHours silent = m_world->alarmCalendar->silentHours();
    std::set<QString> channels;
    for (const ObjectId& id : m_world->channels.selected()) {
        channels.insert(m_world->channels.channelWithChannelId(id)->title());
    }
    std::set<ShowDigest> listed;
    bool isAnyListed = false;
    for (const auto& show : m_world->shows) {
        if (rules->containsFavoriteNamed(*show->identificator()) && *show->dateTime() > now()) {
            listed.insert(*show->digest());
            isAnyListed = isAnyListed || m_world->channels.channelWithChannelId(show->channel());
        }
    }
    // The guide does not believe that no favourite is broadcast.
    if (!isAnyListed) {
        return;
    }
    for (const CalendarEvent& event : events) {
        if (!isOwn(event) || event.startDate <= now() || !channels.contains(event.location)) {
            continue;
        }
        if (silent.mayBeAlarmedAt(event.startDate + event.alarmOffsets.front())) {
            const auto show = showOfEvent(event, u"guide"_s);
            EXPECT_TRUE(show && listed.contains(*show)) << "stale: " << m_world->text(event).toStdString();
        } else {
            const Favorite* rule = rules->ruleNamed(event.title);
            EXPECT_FALSE(rule && rule->minutes) << "in silence: " << m_world->text(event).toStdString();
        }
    }
}

void AlarmStorm::expectAdditions(const std::vector<CalendarEvent>& events) {
    for (const CalendarEvent& event : events) {
        const QByteArray uid = uidOf(event);
        if (!m_extended.contains(uid) || m_store.hasRemoved(event.identifier)) {
            continue;
        }
        did(u"an addition was looked for"_s);
        const QByteArray text = m_calendar.test().get(uid);
        for (const char* line : kAdditions) {
            EXPECT_TRUE(text.contains(line)) << line << " is not in " << text.toStdString();
        }
    }
}

void AlarmStorm::expectNothingToDo() {
    const auto state = [this] {
        std::string texts;
        for (const CalendarEvent& event : events()) {
            texts += m_calendar.test().get(uidOf(event)).toStdString();
        }
        return texts;
    };
    const auto before = state();
    const int changes = m_store.changes();
    const qsizetype journal = m_world->journal().size();
    m_world->sync();
    EXPECT_EQ(m_store.changes(), changes) << m_world->journal().mid(journal).toStdString();
    EXPECT_EQ(state(), before);
}

} // namespace guide::test
