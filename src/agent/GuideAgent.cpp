#include "agent/GuideAgent.h"

#include "agent/RingText.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"
#include "platform/files/PlayableChannels.h"
#include "text/display/Localized.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDebug>

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// It rings all events of the desktop's calendars.
const QString kOtherReminder = u"org.gnome.Evolution-alarm-notify"_s;
const QString kDefaultAction = u"default"_s;
const QString kOpen = u"open"_s;
const QString kPlay = u"play"_s;
const QString kRemind = u"remind"_s;
constexpr qint64 kLargestRecord = qint64(1) << 20;
constexpr qsizetype kMostShown = 64;
/// How much later than this agent other programs of the session start.
constexpr std::chrono::milliseconds kLogin = 15s;
constexpr std::chrono::milliseconds kFirstPause = 10s;
constexpr std::chrono::milliseconds kLongestPause = 1h;
/// An alarm that is refused should still ring before its show.
constexpr std::chrono::milliseconds kLongestRefusal = 2min;

} // namespace

GuideAgent::GuideAgent(const QDBusConnection& bus, const Clock& clock, const Device& device,
                       const GuideAgentOptions& options)
    : m_bus(bus)
    , m_clock(clock)
    , m_device(device)
    , m_recordPath(options.recordPath)
    , m_playableChannels(options.playableChannels)
    , m_started(clock.now())
    , m_login(kLogin)
    , m_rung(RungAlarms::fromText(fileContent(m_recordPath, kLargestRecord).value_or(QByteArray())))
    , m_pause(kFirstPause)
    , m_refusalPause(kFirstPause)
    , m_guide(bus, options.profile)
    , m_timer([this](bool clockWasSet) {
        const Moment now = m_clock.now();
        // Other events may be near now.
        if (clockWasSet || (m_calendars && m_calendars->events.readAgain <= now)) {
            m_reader.readAgain();
            if (m_calendars) {
                m_calendars->events.readAgain = now + kLongestPause;
            }
        }
        ring();
    })
    , m_notifications(bus)
    , m_otherReminder(kOtherReminder, bus, QDBusServiceWatcher::WatchForOwnerChange)
    , m_reader(
          options.calendars, clock, [this](CalendarReading reading) { calendarsRead(std::move(reading)); },
          [this] { m_reader.readAgain(); }) {
    m_retryReading.setSingleShot(true);
    m_retryRinging.setSingleShot(true);
    connect(&m_retryReading, &QTimer::timeout, this, [this] { m_reader.readAgain(); });
    connect(&m_retryRinging, &QTimer::timeout, this, [this] { ring(); });
    m_notifications.appeared = [this] { ring(); };
    m_notifications.chosen = [this](unsigned number, const QString& action, const QString& token) {
        chosen(number, action, token);
    };
    m_notifications.closed = [this](unsigned number) { m_shown.remove(number); };
    watchOtherReminder();
    m_reader.readAgain();
}

void GuideAgent::watchOtherReminder() {
    connect(&m_otherReminder, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) {
                m_otherRings = !owner.isEmpty();
                ring();
            });
    QDBusMessage ask = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                      u"org.freedesktop.DBus"_s, u"NameHasOwner"_s);
    ask << kOtherReminder;
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(ask), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<bool> hasOwner = *answer;
        m_otherRings = m_otherRings.value_or(hasOwner.isValid() && hasOwner.value());
        ring();
    });
}

void GuideAgent::calendarsRead(CalendarReading reading) {
    if (reading.isIncomplete) {
        m_retryReading.start(m_pause);
        m_pause = std::min(2 * m_pause, kLongestPause);
    } else {
        m_retryReading.stop();
        m_pause = kFirstPause;
    }
    m_calendars = std::move(reading);
    ring();
}

bool GuideAgent::mayRingElsewhere(const Ring& ring) const {
    return m_calendars->isOfDesktop && !*m_otherRings && !m_login.hasExpired() &&
           ring.alerts.back() < m_started;
}

void GuideAgent::ring() {
    if (!m_calendars || !m_otherRings) {
        return;
    }
    RingPlan plan = ringPlan(m_calendars->events, m_rung, m_clock.now());
    if (std::erase_if(plan.due, [this](const Ring& each) { return mayRingElsewhere(each); }) > 0) {
        m_retryRinging.start(std::chrono::ceil<std::chrono::milliseconds>(m_login.remainingTimeAsDuration()));
    }
    if (!plan.due.empty()) {
        const bool isSilent = m_calendars->isOfDesktop && *m_otherRings;
        if (isSilent || m_notifications.isPresent()) {
            // Noted first: an agent that is killed meanwhile must not ring twice.
            for (const Ring& each : plan.due) {
                setRung(m_rung, each);
            }
            save();
            if (!isSilent) {
                std::ranges::for_each(plan.due, [this](const Ring& each) { show(each); });
            }
        } else {
            m_notifications.start();
        }
    }
    const Moment readAgain = m_calendars->events.readAgain;
    m_timer.set(std::min(plan.next.value_or(readAgain), readAgain));
}

void GuideAgent::show(const Ring& ring) {
    const RingEvent& event = ring.event;
    const Moment now = m_clock.now();
    Notification notification{
        .title = event.title,
        .text = ringText(event, now, m_device.locale(), m_device.timeZone()),
        .actions = {kDefaultAction, Localized::tr("Open"), kOpen, Localized::tr("Open")},
        .icon = u"quellin-guide"_s,
        .hints = {{u"desktop-entry"_s, u"quellin-guide"_s}, {u"sound-name"_s, u"alarm-clock-elapsed"_s}},
        .time = event.end - now};
    if (PlayableChannels::contains(m_playableChannels, event.channel)) {
        notification.actions << kPlay << Localized::tr("Play");
    }
    if (event.start > now) {
        notification.actions << kRemind << Localized::tr("Remind me at the start");
    }
    m_notifications.show(notification,
                         [this, ring](std::optional<unsigned> number) { wasShown(ring, number); });
}

void GuideAgent::wasShown(const Ring& ring, std::optional<unsigned> number) {
    if (!number) {
        qWarning("the alarm of \"%s\" was not shown", qUtf8Printable(ring.event.title));
        setNotRung(m_rung, ring);
        save();
        m_retryRinging.start(m_refusalPause);
        m_refusalPause = std::min(2 * m_refusalPause, kLongestRefusal);
        return;
    }
    m_refusalPause = kFirstPause;
    qInfo("\"%s\" has rung", qUtf8Printable(ring.event.title));
    if (m_shown.size() >= kMostShown) {
        m_shown.clear();
    }
    m_shown.insert(*number, ring.event);
}

void GuideAgent::chosen(unsigned number, const QString& action, const QString& token) {
    const auto found = m_shown.constFind(number);
    // Servers tell all programs about all notifications.
    if (found == m_shown.cend()) {
        return;
    }
    if (action == kOpen || action == kDefaultAction) {
        m_guide.open(found->names.url, token);
    } else if (action == kPlay) {
        m_guide.open(found->names.url + "/play"_L1, token);
    } else if (action == kRemind) {
        m_rung.setRemindsAtStart(found->names, true);
        save();
        ring();
    }
}

void GuideAgent::save() {
    if (!replaceFile(m_recordPath, m_rung.text())) {
        qWarning("%s cannot be written", qUtf8Printable(m_recordPath));
    }
}

} // namespace guide
