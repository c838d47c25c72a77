// The steps that are carried out on a made-up device.

#include "alarms/AlarmSettings.h"
#include "alarms/AlarmText.h"
#include "alarms/ShowActions.h"
#include "probe/DeviceJSON.h"
#include "probe/DeviceSurroundings.h"
#include "probe/DeviceWorld.h"

#include <QDateTime>

#include <algorithm>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

bool flag(const QJsonObject& step, const char* key) {
    return step.value(QLatin1StringView(key)).toBool();
}

std::optional<bool> optionalFlag(const QJsonObject& step, const char* key) {
    const QJsonValue value = step.value(QLatin1StringView(key));
    return value.isBool() ? std::optional(value.toBool()) : std::nullopt;
}

QJsonArray recurringJSON(const RecurringAlarm& alarm) {
    QJsonArray json{alarm.minutes};
    if (alarm.previouslyShown) {
        json.append(*alarm.previouslyShown);
    }
    return json;
}

QJsonArray showsJSON(const ShowSpan& shows) {
    QJsonArray list;
    for (const ShowItem& show : shows) {
        list.append(QJsonArray{show.entry()->channel().hex(), jsonMoment(show.entry()->dateTime())});
    }
    return list;
}

const Failure kUnknown{u"unknown"_s};

bool isUnknown(const std::variant<QJsonValue, Failure>& answer) {
    const auto* failure = std::get_if<Failure>(&answer);
    return failure && failure->why == kUnknown.why;
}

} // namespace

std::variant<QJsonValue, Failure> DeviceWorld::perform(const QJsonObject& step) {
    const QString op = textOf(step, "op");
    Answer answer = performAlarmStep(op, step);
    if (isUnknown(answer)) {
        answer = performQuery(op, step);
    }
    if (isUnknown(answer)) {
        answer = performCloudStep(op, step);
    }
    if (isUnknown(answer)) {
        answer = performDeviceStep(op, step);
    }
    m_queues.runAll();
    if (isUnknown(answer)) {
        return Failure{u"there is no step \"%1\""_s.arg(op)};
    }
    return answer;
}

DeviceWorld::Answer DeviceWorld::performAlarmStep(const QString& op, const QJsonObject& step) {
    const QString title = textOf(step, "title");
    const bool sync = flag(step, "sync");
    const bool manual = flag(step, "manual");
    const ObjectId channel = ObjectId::fromHex(textOf(step, "channel"));
    const auto at = momentFromText(textOf(step, "at"));
    const auto until = momentFromText(textOf(step, "until"));
    const int minutes = step.value(u"minutes"_s).toInt();
    if (op == "sync"_L1) {
        m_alarms->syncAlarms();
    } else if (op == "setAlarm"_L1) {
        if (!at || !until) {
            return Failure{u"the step \"setAlarm\" needs times"_s};
        }
        m_alarmOperations->setAlarmForTitle(title, channel, *at, *until, minutes, sync, manual);
    } else if (op == "removeAlarm"_L1) {
        if (!at) {
            return Failure{u"the step \"removeAlarm\" needs a time"_s};
        }
        m_alarmOperations->removeAlarmForTitle(title, channel, *at, sync, manual);
    } else if (op == "setRecurring"_L1) {
        m_alarmOperations->setAlarmForTitle(title, minutes, optionalFlag(step, "previouslyShown"), manual);
    } else if (op == "removeRecurring"_L1) {
        m_alarmOperations->removeAlarmForTitle(title, sync, manual);
    } else if (op == "addFavorite"_L1) {
        m_favoriteOperations->addFavorite(title);
    } else if (op == "removeFavorite"_L1) {
        m_favoriteOperations->removeFavorite(title);
    } else {
        return kUnknown;
    }
    return QJsonValue();
}

DeviceWorld::Answer DeviceWorld::performQuery(const QString& op, const QJsonObject& step) {
    if (op == "alerts"_L1) {
        return listed([this](MainBlock<ShowSpan> answer) {
            m_alarms->alertsScheduleWithPriority(QueuePriority::UserInitiated, std::move(answer));
        });
    }
    if (op == "favoritesSchedule"_L1) {
        return listed([this](MainBlock<ShowSpan> answer) {
            m_listings->favoritesScheduleWithPriority(QueuePriority::UserInitiated, std::move(answer));
        });
    }
    if (op == "alarmedType"_L1) {
        const auto type = m_alarmOperations->alarmedIdentificatorType(textOf(step, "title"));
        return type ? QJsonValue(recurringJSON(*type)) : QJsonValue();
    }
    if (op != "alarmedEntry"_L1 && op != "alarmText"_L1 && op != "swipe"_L1 && op != "settings"_L1) {
        return kUnknown;
    }
    const auto entry = showOf(step);
    if (!entry) {
        return Failure{u"the step \"%1\" names no show"_s.arg(op)};
    }
    const std::optional<int> minutes = m_alarms->snapshot()->alarmedEntry(*entry);
    if (op == "alarmedEntry"_L1) {
        return minutes.value_or(-1);
    }
    if (op == "alarmText"_L1) {
        const QString title = entry->title().value_or(QString());
        // Reads the rules, if they have not been read.
        m_alarmOperations->alarmedIdentificatorType(title);
        return leadTimeText(m_rules->snapshot()->ruleNamed(title), minutes);
    }
    return op == "swipe"_L1 ? swipe(entry, step) : settings(entry, step);
}

DeviceWorld::Answer DeviceWorld::performCloudStep(const QString& op, const QJsonObject& step) {
    if (op == "cloud"_L1) {
        if (auto failure = fillCloud(step.value(u"values"_s).toObject())) {
            return *std::move(failure);
        }
        const QJsonValue reason = step.value(u"reason"_s);
        takeCloudValues(reason.isDouble() ? std::optional(reason.toInt()) : std::nullopt);
    } else if (op == "popular"_L1) {
        m_listings->updatePopularList();
        m_queues.runAll();
        const ShowList list = m_popularShows->popularShows();
        return showsJSON(ShowSpan(list));
    } else if (op == "export"_L1) {
        return QString::fromUtf8(m_userData->exportedText());
    } else if (op == "erase"_L1) {
        m_userData->erase(false, MainBlock<UserDataCounts>([](const UserDataCounts&) {}));
    } else {
        return kUnknown;
    }
    return QJsonValue();
}

void DeviceWorld::takeCloudValues(std::optional<int> reason) {
    // Others do not exist.
    constexpr int kLastReason = static_cast<int>(CloudSync::Reason::AccountChange);
    if (reason > kLastReason) {
        return;
    }
    m_cloudSync->cloudDidChangeExternally(reason ? std::optional(static_cast<CloudSync::Reason>(*reason))
                                                 : std::nullopt);
    const auto favorites = m_keyValueStore.valueForKey(u"Favorites"_s);
    if (reason != static_cast<int>(CloudSync::Reason::QuotaViolation) && favorites) {
        // They were taken over.
        m_givenFavorites.reset();
    }
}

DeviceWorld::Answer DeviceWorld::performDeviceStep(const QString& op, const QJsonObject& step) {
    const qsizetype calendar = step.value(u"calendar"_s).toInteger(-1);
    const bool isCalendar = calendar >= 0 && calendar < std::ssize(m_calendars);
    if (op == "saveCalendar"_L1) {
        if (!isCalendar) {
            return Failure{u"the step \"saveCalendar\" names no calendar"_s};
        }
        m_alarmOperations->saveCalendar(m_calendars[static_cast<std::size_t>(calendar)]);
    } else if (op == "chooseCalendar"_L1) {
        return isCalendar ? chooseCalendar(calendar) : QJsonValue();
    } else if (op == "silent"_L1) {
        setSilent(step);
        ++m_told.checks;
    } else if (op == "listings"_L1) {
        const QJsonArray shows = step.value(u"shows"_s).toArray();
        if (!storeShows(shows)) {
            return Failure{u"a show needs a channel, a title and times"_s};
        }
        for (const auto& show : m_shows) {
            m_channelStates[show->channel()] = {};
        }
        applyChannelStates();
        m_alarms->resynchronize();
    } else if (op == "select"_L1) {
        select(channelsOfJSON(step.value(u"channels"_s).toArray()));
    } else if (op == "edit"_L1) {
        if (!edit(textOf(step, "event"), step.value(u"set"_s).toObject())) {
            return Failure{u"the step \"edit\" has a time that cannot be read"_s};
        }
    } else if (op == "delete"_L1) {
        m_eventStore.remove(textOf(step, "event"));
    } else if (op == "advance"_L1) {
        m_clock.advance(
            std::chrono::milliseconds(static_cast<qint64>(step.value(u"seconds"_s).toDouble() * 1000)));
    } else {
        return kUnknown;
    }
    return QJsonValue();
}

std::shared_ptr<const TVEntry> DeviceWorld::showOf(const QJsonObject& step) const {
    const qsizetype show = step.value(u"show"_s).toInteger(-1);
    return show >= 0 && show < std::ssize(m_shows) ? m_shows[static_cast<std::size_t>(show)] : nullptr;
}

QJsonArray DeviceWorld::listed(const std::function<void(MainBlock<ShowSpan>)>& query) {
    QJsonArray list;
    query(MainBlock<ShowSpan>([&list](const ShowSpan& shows) { list = showsJSON(shows); }));
    m_queues.runAll();
    return list;
}

QJsonValue DeviceWorld::swipe(const std::shared_ptr<const TVEntry>& entry, const QJsonObject& step) {
    const QString title = entry->title().value_or(QString());
    const ShowActionSituation situation{.now = m_clock.now(),
                                        .isFavorite = m_rules->snapshot()->containsFavoriteNamed(title),
                                        .isAlarmed = m_alarms->snapshot()->alarmedEntry(*entry).has_value(),
                                        .lastAlarmMinutes = m_alarmOperations->lastAlarmMinutes()};
    const std::vector<ShowAction> actions = showActions(*entry, situation);
    QJsonArray titles;
    for (const ShowAction action : actions) {
        titles.append(symbolOf(action));
    }
    const qsizetype chosen = step.value(u"choose"_s).toInteger(-1);
    if (chosen >= 0 && chosen < std::ssize(actions)) {
        const ShowAction action = actions[static_cast<std::size_t>(chosen)];
        // Only here, because the question reads the rules.
        const bool isRecurring = action == ShowAction::RemoveAlarm &&
                                 m_alarmOperations->alarmedIdentificatorType(title).has_value();
        if (questionBefore(action, isRecurring) == ShowActionQuestion::None || flag(step, "confirm")) {
            performShowAction(action, *entry, situation, *m_alarmOperations, *m_favoriteOperations);
        }
    }
    return titles;
}

QJsonValue DeviceWorld::settings(const std::shared_ptr<const TVEntry>& entry, const QJsonObject& step) {
    if (!m_alarms->hasCalendarAccess()) {
        return QJsonValue();
    }
    bool hasOtherType = false;
    m_listings->broadcastForTitle(entry->identificator().value_or(QString()), !entry->previouslyShown(),
                                  MainBlock<bool>([&hasOtherType](bool has) { hasOtherType = has; }));
    m_queues.runAll();
    AlarmSettings chosen(
        entry,
        {.recurring = m_alarmOperations->alarmedIdentificatorType(entry->title().value_or(QString())),
         .minutes = m_alarms->snapshot()->alarmedEntry(*entry),
         .hasOtherType = hasOtherType},
        m_clock);
    const QJsonObject opened{{u"types"_s, chosen.repetitionCount()},
                             {u"type"_s, static_cast<int>(chosen.repetition())},
                             {u"triggers"_s, chosen.triggerCount()},
                             {u"row"_s, chosen.trigger()}};
    const QJsonObject choice = step.value(u"choose"_s).toObject();
    chosen.chooseRepetition(choice.value(u"type"_s).toInt(-1));
    chosen.chooseTrigger(choice.value(u"row"_s).toInt(-1));
    if (chosen.isChanged()) {
        chosen.removeFormerAlarm(*m_alarmOperations);
        m_queues.runAll();
        chosen.setChosenAlarm(*m_alarmOperations, *m_favoriteOperations);
    }
    return opened;
}

QJsonValue DeviceWorld::chooseCalendar(qsizetype calendar) {
    const EventCalendar& chosen = m_calendars[static_cast<std::size_t>(calendar)];
    if (!m_alarms->hasCalendarAccess() || !chosen.allowsContentModifications) {
        return QJsonValue();
    }
    if (!mayChangeCalendar(*m_alarms->snapshot())) {
        return u"Error"_s;
    }
    m_alarmOperations->saveCalendar(chosen);
    return QJsonValue();
}

void DeviceWorld::select(const std::vector<ObjectId>& channels) {
    const std::vector<ObjectId> former = m_channels->selected();
    if (channels == former) {
        return;
    }
    std::vector<ObjectId> leaving;
    std::ranges::copy_if(former, std::back_inserter(leaving), [&channels](const ObjectId& channel) {
        return std::ranges::find(channels, channel) == channels.end();
    });
    if (!leaving.empty()) {
        m_listings->removeListingsForChannels(leaving);
    }
    m_channels->setSelected(channels);
    applyChannelStates();
    m_alarms->resynchronize();
    ++m_told.checks;
}

Moment DeviceWorld::timeOfDay(const QString& text) const {
    const auto now =
        QDateTime::fromMSecsSinceEpoch(m_clock.now().time_since_epoch().count(), m_device.timeZone());
    const QDateTime moment(now.date(), QTime::fromString(text, u"HH:mm"_s), m_device.timeZone());
    return Moment(std::chrono::milliseconds(moment.toMSecsSinceEpoch()));
}

void DeviceWorld::setSilent(const QJsonObject& step) {
    const bool isStep = step.contains(u"op"_s);
    if (const QString from = textOf(step, "from"); !from.isEmpty()) {
        setSilentHoursFrom(m_keyValueStore, timeOfDay(from));
    }
    if (const QString to = textOf(step, "to"); !to.isEmpty()) {
        setSilentHoursTo(m_keyValueStore, timeOfDay(to));
    }
    // In the description of the device an object without times means the default ones.
    setSilentHoursEnabled(m_keyValueStore, !isStep || step.contains(u"from"_s) || step.contains(u"to"_s));
}

bool DeviceWorld::edit(const QString& event, const QJsonObject& changes) {
    CalendarEvent unused;
    if (!setEventFromJSON(unused, changes, m_scheme)) {
        return false;
    }
    m_eventStore.edit(event, [&](CalendarEvent& edited) { setEventFromJSON(edited, changes, m_scheme); });
    return true;
}

} // namespace guide::probe
