#include "AlarmStorm.h"

#include "alarms/GuideEvents.h"

namespace guide::test {

using namespace std::chrono_literals;

namespace {

constexpr int kBroadcasts = 40;
constexpr int kMostForeign = 12;
const QStringList kTitles{u"News"_s, u"Film"_s, u"Sport"_s, u"Kids"_s, u"Nature"_s, u"Talk"_s};
const QString kRules = u"rule News 10\nrule Film 30 premieres\nrule Sport 0\nrule Kids -\n"
                       "rule Nature 120 replays\nsilent 01:00 05:00"_s;

/// The text with the first match replaced.
QByteArray edited(const QByteArray& text, const QString& pattern, const QByteArray& by) {
    QString result = QString::fromUtf8(text);
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption |
                                                     QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = expression.match(result);
    return match.hasMatch()
               ? result.replace(match.capturedStart(), match.capturedLength(), QString::fromUtf8(by)).toUtf8()
               : text;
}

} // namespace

AlarmStorm::AlarmStorm(StormCalendar& calendar, unsigned seed)
    : m_calendar(calendar)
    , m_random(seed)
    , m_store(m_random)
    , m_selected(calendar.test().calendar()) {
    m_calendar.test().clock.set(AlarmWorld::kMidnight + 10h);
    open();
    m_world->give(kRules);
}

// ---- the guide

void AlarmStorm::open() {
    m_store.setStore(m_calendar.test().secondStore());
    m_store.setCalendarsChanged([this] { m_isAnnounced = true; });
    m_world = std::make_unique<AlarmWorld>(m_store, m_selected, AlarmSafety{}, m_profile);
    m_world->clock.set(now());
    m_world->rules.favorites();
    for (int i = 0; i < AlarmWorld::kChannels; ++i) {
        m_world->channels.channelWithChannelId(AlarmWorld::channelId(i))->setTimeLoaded(now());
    }
    pushListings();
}

void AlarmStorm::kill() {
    did(u"the guide was killed"_s);
    m_world.reset();
    open();
}

void AlarmStorm::recover() {
    m_store.calm();
    m_hasFault = false;
    if (m_calendar.recover()) {
        kill();
    }
}

void AlarmStorm::pushListings() {
    QStringList lines;
    for (const Broadcast& broadcast : m_listings) {
        lines << u"%1 %2 %3%4"_s.arg(AlarmWorld::channelName(broadcast.channel), broadcast.title,
                                     AlarmWorld::textOf(broadcast.start),
                                     broadcast.isReplay ? u" replay"_s : QString());
    }
    m_world->setShows(lines);
}

// ---- what happens

AlarmStorm::Broadcast AlarmStorm::randomBroadcast() {
    const auto today = std::chrono::floor<std::chrono::minutes>(now());
    return {m_random.below(AlarmWorld::kChannels), m_random.oneOf(kTitles),
            today + std::chrono::minutes(5 * m_random.between(-20, 10 * 24 * 12)), m_random.chance(40)};
}

void AlarmStorm::changeListings() {
    std::erase_if(m_listings, [this](const Broadcast& broadcast) { return broadcast.start < now() - 24h; });
    while (m_listings.size() < kBroadcasts) {
        m_listings.push_back(randomBroadcast());
    }
    for (int changes = m_random.below(8); changes > 0; --changes) {
        Broadcast& broadcast = m_random.oneOf(m_listings);
        switch (m_random.below(5)) {
        case 0:
        case 1:
            did(u"a show moved"_s);
            broadcast.start += std::chrono::minutes(5 * m_random.between(-60, 60));
            break;
        case 2:
            did(u"a show was renamed"_s);
            broadcast.title = m_random.oneOf(kTitles);
            break;
        case 3:
            did(u"a show was replaced"_s);
            broadcast = randomBroadcast();
            break;
        default:
            broadcast.channel = m_random.below(AlarmWorld::kChannels);
        }
    }
    if (m_random.chance(3)) {
        did(u"most of the listings were gone"_s);
        m_listings.resize(m_listings.size() / 8);
    }
    pushListings();
}

void AlarmStorm::changeChannels() {
    const ObjectId id = AlarmWorld::channelId(m_random.below(AlarmWorld::kChannels));
    std::vector<ObjectId> selected = m_world->channels.selected();
    const auto channel = m_world->channels.channelWithChannelId(id);
    switch (channel ? m_random.below(4) : 0) {
    case 0:
        if (std::erase(selected, id) == 0) {
            selected.push_back(id);
        } else {
            did(u"a channel was deselected"_s);
        }
        m_world->channels.setSelected(selected);
        break;
    case 1:
        channel->setLoading(true);
        break;
    case 2:
        channel->requireReload();
        break;
    default:
        channel->setLoading(false);
        channel->setTimeLoaded(now());
    }
}

void AlarmStorm::useGuide() {
    if (m_world->shows.empty()) {
        return;
    }
    const TVEntry& show = *m_random.oneOf(m_world->shows);
    const QString title = *show.identificator();
    const int minutes = 5 * m_random.below(6);
    did(u"the guide was used"_s);
    switch (m_random.below(6)) {
    case 0:
    case 1:
        m_world->operations->setAlarmForTitle(title, show.channel(), *show.dateTime(), *show.endDateTime(),
                                              minutes, true, true);
        break;
    case 2:
        m_world->operations->removeAlarmForTitle(title, show.channel(), *show.dateTime(), true, true);
        break;
    case 3:
        m_world->operations->setAlarmForTitle(title, minutes, {}, true);
        break;
    case 4:
        m_world->operations->removeAlarmForTitle(title, true, true);
        break;
    default:
        m_world->operations->refuseBroadcast(*alarmBroadcastOf(show));
    }
    if (m_random.chance(80)) {
        m_world->queues.runAll();
    }
}

void AlarmStorm::moveClock() {
    std::chrono::minutes by(m_random.between(1, 240));
    if (m_random.chance(10)) {
        did(u"the clock was set back"_s);
        by = -2 * by;
    } else if (m_random.chance(4)) {
        by += 72h;
    }
    m_calendar.test().clock.advance(by);
    m_world->clock.set(now());
    if (m_random.chance(10)) {
        did(u"the zone changed"_s);
        static constexpr const char* kZones[] = {"UTC", "Europe/Prague", "Pacific/Apia", "America/St_Johns"};
        m_world->device.zone = QTimeZone(m_random.oneOf(kZones));
    }
}

std::optional<CalendarEvent> AlarmStorm::anyOwnEvent() {
    std::vector<CalendarEvent> own = events();
    std::erase_if(own, [this](const CalendarEvent& event) { return !isOwn(event); });
    return own.empty() ? std::nullopt : std::optional(m_random.oneOf(own));
}

void AlarmStorm::editOwnEvent() {
    const auto event = anyOwnEvent();
    if (!event) {
        return;
    }
    const QByteArray uid = uidOf(*event);
    if (m_random.chance(25)) {
        did(u"an alarm was deleted elsewhere"_s);
        m_calendar.test().erase(uid);
        m_extended.erase(uid);
        return;
    }
    did(u"an alarm was edited elsewhere"_s);
    QByteArray text = m_calendar.test().get(uid);
    switch (m_random.below(8)) {
    case 0:
        text = edited(text, u"^SUMMARY:"_s, "SUMMARY:My ");
        m_edited.insert(uid);
        break;
    case 1:
        text = edited(text, u"^BEGIN:VALARM.*END:VALARM\r\n"_s, {});
        break;
    case 2:
        text = edited(text, u"^TRIGGER[^\r]*"_s, "TRIGGER:-PT45M");
        break;
    case 3:
        text = edited(text, u"^DTSTART[^\r]*"_s, "DTSTART:" + utc(event->startDate - 25min));
        m_edited.insert(uid);
        break;
    case 4:
        text = edited(text, u"^URL:[^\r]*\r\n"_s, {});
        break;
    case 5:
        text = edited(text, u"^DESCRIPTION:"_s, "DESCRIPTION:Bring snacks!\\n\\n");
        break;
    case 6:
        if (m_store.hasRemoved(event->identifier) || !m_extended.insert(uid).second) {
            return;
        }
        for (const char* line : kAdditions) {
            text = edited(text, u"^END:VEVENT"_s, QByteArray(line) + "\r\nEND:VEVENT");
        }
        break;
    default:
        text = edited(text, u"^LOCATION:[^\r]*"_s, "LOCATION:");
        m_edited.insert(uid);
    }
    m_calendar.test().put(uid, text);
}

void AlarmStorm::changeForeignEvent() {
    if (!m_foreign.empty() && (m_foreign.size() >= kMostForeign || m_random.chance(30))) {
        const auto found = std::next(m_foreign.begin(), m_random.below(static_cast<int>(m_foreign.size())));
        m_calendar.test().erase(found->first);
        m_foreign.erase(found);
        return;
    }
    did(u"an event of another program was added"_s);
    const QByteArray uid = "other" + QByteArray::number(++m_made);
    // At the time of a show, with its title, or with a link to it in the notes.
    const Broadcast show = m_listings.empty() ? randomBroadcast() : m_random.oneOf(m_listings);
    const QByteArray url =
        urlOfDigest(showDigest(AlarmWorld::channelId(show.channel), show.start, show.title), u"guide"_s)
            .toEncoded();
    static constexpr const char* kUrls[] = {"", "URL:https://dentist.example/\r\n",
                                            "URL:other-guide://x\r\n"};
    m_calendar.test().put(
        uid, "BEGIN:VEVENT\r\nUID:" + uid + "\r\nDTSTAMP:20261101T100000Z\r\nDTSTART:" + utc(show.start) +
                 "\r\nDTEND:" + utc(show.start + 30min) + "\r\nSUMMARY:" + show.title.toUtf8() +
                 "\r\nLOCATION:" + AlarmWorld::channelName(show.channel).toUtf8() + "\r\nDESCRIPTION:see\\n" +
                 url + "\r\n" + m_random.oneOf(kUrls) + "END:VEVENT\r\n");
    m_foreign[uid] = m_calendar.test().get(uid);
}

void AlarmStorm::changeSomething() {
    if (m_hasFault) {
        recover();
    }
    if (m_random.chance(40)) {
        changeListings();
    }
    if (m_random.chance(15)) {
        changeChannels();
    }
    if (m_random.chance(30)) {
        moveClock();
    }
    if (m_random.chance(30)) {
        editOwnEvent();
    }
    if (m_random.chance(20)) {
        changeForeignEvent();
    }
    if (m_random.chance(20)) {
        useGuide();
    }
    if (m_random.chance(12)) {
        did(u"others wrote during a run"_s);
        m_store.beforeBatch = [this] { editOwnEvent(); };
    } else if (m_random.chance(10)) {
        did(u"the calendar failed"_s);
        m_hasFault = true;
        if (m_random.chance(50)) {
            m_calendar.fail(m_random);
        } else {
            m_store.beforeBatch = [this] { m_calendar.fail(m_random); };
        }
    }
    if (m_random.chance(20)) {
        did(u"changes failed"_s);
        m_store.fail();
        m_hasFault = true;
    }
}

// ---- runs

void AlarmStorm::synchronise() {
    if (m_isAnnounced.exchange(false)) {
        m_world->alarms->calendarsChanged();
    }
    if (m_random.chance(70)) {
        m_world->alarms->setSynchronized(false);
    }
    m_world->alarms->syncAlarms();
    if (m_random.chance(8)) {
        for (int steps = m_random.below(12); steps > 0; --steps) {
            m_world->queues.runOne();
        }
        kill();
        return;
    }
    m_store.setKills(m_random.chance(8));
    try {
        m_world->queues.runAll();
    } catch (const Killed&) {
        kill();
    }
    m_store.setKills(false);
    m_store.beforeBatch = nullptr;
    if (!m_world->runs.empty() && m_world->runs.back().heldBack > 0) {
        did(u"the brake held back"_s);
        if (m_random.chance(50)) {
            m_world->alarms->keepHeldBack();
        }
    }
}

void AlarmStorm::run(int count) {
    for (int run = 0; run < count && !testing::Test::HasFailure(); ++run) {
        SCOPED_TRACE(testing::Message() << "run " << run);
        changeSomething();
        synchronise();
        if (run % 20 == 19 || run == count - 1) {
            finishRun();
        }
    }
}

/// One full run without faults.
void AlarmStorm::finishRun() {
    recover();
    if (m_random.chance(50)) {
        kill();
    }
    m_world->queues.runAll();
    for (const ObjectId& id : m_world->channels.selected()) {
        const auto channel = m_world->channels.channelWithChannelId(id);
        channel->setLoading(false);
        channel->setTimeLoaded(now());
    }
    pushListings();
    m_world->sync();
    ASSERT_FALSE(m_world->runs.empty());
    EXPECT_TRUE(m_world->runs.back().complete) << m_world->journal().right(1000).toStdString();
    // The user is told once.
    if (std::ranges::any_of(m_world->runs, [](const AlarmRunResult& run) { return run.heldBack > 0; })) {
        did(u"held back removals were made"_s);
        m_world->alarms->removeHeldBack();
        m_world->queues.runAll();
    }
    expectRight();
    expectNothingToDo();
}

} // namespace guide::test
