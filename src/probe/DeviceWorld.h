#pragma once

#include "alarms/AlarmOperations.h"
#include "alarms/AlarmSynchroniser.h"
#include "alarms/FavoriteOperations.h"
#include "alarms/RecordCounters.h"
#include "cloud/UserData.h"
#include "platform/memory/FixedDevice.h"
#include "platform/memory/ManualClock.h"
#include "platform/memory/MemoryEventStore.h"
#include "platform/memory/MemoryKeyValueStore.h"
#include "platform/memory/MemoryRecordStore.h"
#include "platform/memory/MemoryUserDefaults.h"
#include "platform/memory/SteppedQueues.h"
#include "probe/Command.h"
#include "store/RecordPopularShows.h"

#include <QJsonArray>
#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <unordered_map>
#include <variant>
#include <vector>

namespace guide::probe {

/// A made-up device: the guide's own objects on stores in memory, with a clock that stands still. Nothing
/// runs but what a step starts.
class DeviceWorld {
  public:
    /// From the description of the device. Says why when that cannot be used.
    static std::variant<std::unique_ptr<DeviceWorld>, Failure> make(const QJsonObject& state,
                                                                    const Context& context);

    DeviceWorld(const DeviceWorld&) = delete;
    DeviceWorld& operator=(const DeviceWorld&) = delete;
    ~DeviceWorld();

    /// Carries a step out, until no queue has anything left to run. Its answer, or why it is no step.
    std::variant<QJsonValue, Failure> perform(const QJsonObject& step);
    /// The device as it is now, without the answers.
    QJsonObject state() const;

  private:
    DeviceWorld(const QJsonObject& state, const Context& context);
    std::optional<Failure> fill(const QJsonObject& state);

    // ---- reading the description
    void addChannels(const QJsonArray& channels);
    std::optional<Failure> addCalendars(const QJsonObject& state);
    std::optional<Failure> writeFavorites(const QJsonObject& state);
    /// Sets the values as another device would; null removes one.
    std::optional<Failure> fillCloud(const QJsonObject& cloud);
    void makeUserData();
    std::optional<CalendarEvent> eventOf(const QJsonObject& json) const;
    /// Replaces the shows and the lists of their channels. False when a show cannot be used.
    bool storeShows(const QJsonArray& shows);
    void makeGuide();
    void applyChannelStates() const;

    // ---- steps
    using Answer = std::variant<QJsonValue, Failure>;
    Answer performAlarmStep(const QString& op, const QJsonObject& step);
    Answer performQuery(const QString& op, const QJsonObject& step);
    Answer performCloudStep(const QString& op, const QJsonObject& step);
    Answer performDeviceStep(const QString& op, const QJsonObject& step);
    QJsonValue swipe(const std::shared_ptr<const TVEntry>& entry, const QJsonObject& step);
    QJsonValue settings(const std::shared_ptr<const TVEntry>& entry, const QJsonObject& step);
    QJsonValue chooseCalendar(qsizetype calendar);
    QJsonArray listed(const std::function<void(MainBlock<ShowSpan>)>& query);
    void takeCloudValues(std::optional<int> reason);
    void select(const std::vector<ObjectId>& channels);
    void setSilent(const QJsonObject& step);
    bool edit(const QString& event, const QJsonObject& changes);
    /// The show at the index of the step; null when there is none.
    std::shared_ptr<const TVEntry> showOf(const QJsonObject& step) const;
    Moment timeOfDay(const QString& text) const;

    // ---- printing
    QJsonObject cloudJSON() const;
    QJsonValue eventJSON(const CalendarEvent& event) const;

    struct ChannelState {
        bool loading = false;
        bool reloadNeeded = false;
    };
    struct Told {
        int notificationsSynched = 0;
        int favoritesUpdated = 0;
        int checks = 0;
    };
    struct Surroundings;

    const QTemporaryDir m_folder;
    const QString m_scheme;
    ManualClock m_clock;
    FixedDevice m_device;
    SteppedQueues m_queues;
    Folders m_folders;
    const std::unique_ptr<Surroundings> m_surroundings;
    MemoryKeyValueStore m_keyValueStore;
    MemoryUserDefaults m_userDefaults;
    mutable MemoryEventStore m_eventStore;
    mutable MemoryRecordStore m_records{m_clock};
    const Alphabet m_alphabet;
    Catalogue m_catalogue;
    std::unordered_map<ObjectId, ChannelState> m_channelStates;
    std::vector<EventCalendar> m_calendars;
    std::vector<std::shared_ptr<const TVEntry>> m_shows;
    /// The value of "Favorites" as it was given, and what was stored for it.
    std::optional<std::pair<QJsonArray, QCborValue>> m_givenFavorites;
    Told m_told;

    std::unique_ptr<TVChannels> m_channels;
    std::unique_ptr<TVShows> m_rules;
    std::unique_ptr<RecordPopularShows> m_popularShows;
    std::unique_ptr<TVListings> m_listings;
    std::unique_ptr<RecordCounters> m_counters;
    std::shared_ptr<AlarmCalendar> m_alarmCalendar;
    std::unique_ptr<AlarmSynchroniser> m_alarms;
    std::unique_ptr<AlarmOperations> m_alarmOperations;
    std::unique_ptr<FavoriteOperations> m_favoriteOperations;
    std::unique_ptr<ReplacedLists> m_replacedLists;
    std::unique_ptr<CloudSync> m_cloudSync;
    std::unique_ptr<UserData> m_userData;
};

} // namespace guide::probe
