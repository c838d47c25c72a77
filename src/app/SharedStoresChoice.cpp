#include "app/SharedStoresChoice.h"

#include "platform/linux/FolderKeyValueStore.h"
#include "platform/linux/SharedFolderKeyValueStore.h"
#include "platform/linux/database/DatabaseAddress.h"
#include "platform/linux/database/SharedStores.h"

#include <QDebug>
#include <QDir>
#include <QRandomGenerator>
#include <QSysInfo>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString kAddressKey = u"sharedPlace"_s;
/// Everything that devices share.
const QStringList kSharedKeys{
    u"Favorites"_s,          u"SelectedChannels"_s,   u"OwnSources"_s,
    u"selectedCalendar"_s,   u"lastAlarmMinutes"_s,   u"noAlarmsSchedule"_s,
    u"noAlarmsSchedule.0"_s, u"noAlarmsSchedule.1"_s, u"noAlarmsSchedule.acrossMidnight"_s};
constexpr auto kLongestWait = 30s;
constexpr auto kTimeToLeave = 2s;
const QString kNoFolder = u"There is no such folder, or it cannot be written."_s;

/// The name of this device with digits that tell it from others of the name, made once for each profile.
QString deviceOf(UserDefaults& userDefaults) {
    const QString key = u"device"_s;
    if (const auto device = userDefaults.stringForKey(key)) {
        return *device;
    }
    const QString host = QSysInfo::machineHostName();
    const QString device = (host.isEmpty() ? u"device"_s : host) +
                           u"-%1"_s.arg(QRandomGenerator::system()->generate(), 8, 16, QChar(u'0'));
    userDefaults.setString(key, device);
    return device;
}

QString nameOf(const QString& device) {
    return device.left(device.lastIndexOf(u'-'));
}

} // namespace

SharedStoresChoice::SharedStoresChoice(Environment environment)
    : m_environment(environment)
    , m_queue(environment.queues.makeQueue("sharedStores", QueueKind::Serial, QueuePriority::UserInitiated)) {
    const QString address = m_environment.userDefaults.stringForKey(kAddressKey).value_or(QString());
    Stores stores;
    if (isDatabaseAddress(address)) {
        QString why;
        stores = databaseStores(address, false, why);
        if (!stores.keyValueStore) {
            qWarning().noquote() << "SharedStoresChoice:" << why;
        }
    }
    if (!stores.keyValueStore) {
        stores = folderStores(isDatabaseAddress(address) ? QString() : address, false);
    }
    m_keyValueStore = std::make_shared<SwitchedKeyValueStore>(stores.keyValueStore);
    adopt(std::move(stores));
}

SharedStoresChoice::~SharedStoresChoice() {
    m_current.shared->setStateObserver(nullptr);
    if (m_choice) {
        m_choice->stores.shared->setStateObserver(nullptr);
    }
}

SharedStoresChoice::Stores SharedStoresChoice::folderStores(const QString& address, bool joins) const {
    const QString device = deviceOf(m_environment.userDefaults);
    if (address.isEmpty()) {
        const auto store = std::make_shared<FolderKeyValueStore>(m_environment.folders.keyValueStore, device,
                                                                 m_environment.queues);
        return {.keyValueStore = store, .shared = store.get()};
    }
    const auto store = std::make_shared<SharedFolderKeyValueStore>(
        SharedFolderOptions{
            .folder = address, .device = device, .keepsIn = m_environment.folders.documents, .joins = joins},
        m_environment.clock, m_environment.queues);
    return {.address = address,
            .keyValueStore = store,
            .shared = store.get(),
            .retryNow = [store] { store->retryNow(); },
            .finish = [store](std::chrono::milliseconds atMost) { store->finishWriting(atMost); },
            .forget = [store] { store->forget(); }};
}

SharedStoresChoice::Stores SharedStoresChoice::databaseStores(const QString& address, bool joins,
                                                              QString& why) const {
    SharedStores made =
        sharedStoresFor(address,
                        {.folder = m_environment.folders.documents,
                         .deviceName = nameOf(deviceOf(m_environment.userDefaults)),
                         .joins = joins},
                        m_environment.clock, m_environment.secrets, m_environment.queues, why);
    Stores stores{.address = address, .keyValueStore = std::move(made.keyValueStore)};
    stores.records = std::move(made.recordStore);
    stores.shared = made.state;
    stores.retryNow = std::move(made.retryNow);
    return stores;
}

void SharedStoresChoice::retryNow() {
    if (m_current.retryNow) {
        m_current.retryNow();
    }
}

void SharedStoresChoice::finish(std::chrono::milliseconds atMost) const {
    if (m_current.finish) {
        m_current.finish(atMost);
    }
}

SharedPlace SharedStoresChoice::place() const {
    SharedPlace place{.address = m_current.address, .state = m_current.shared->sharedState()};
    if (!place.address.isEmpty()) {
        place.kind =
            isDatabaseAddress(place.address) ? SharedPlace::Kind::Database : SharedPlace::Kind::Folder;
    }
    return place;
}

void SharedStoresChoice::choose(const QString& address, MainBlock<QString> mainBlock) {
    QString why;
    const std::optional<DatabaseAddress> database =
        isDatabaseAddress(address) ? databaseAddress(address, why) : std::nullopt;
    if ((database ? database->text() : address) == m_current.address && why.isEmpty()) {
        stay(address, std::move(mainBlock));
        return;
    }
    if (database) {
        Stores stores = m_choice ? Stores{} : databaseStores(address, true, why);
        stores.entered = address;
        stores.address = database->text();
        tryStores(std::move(stores), why, std::move(mainBlock));
        return;
    }
    if (why.isEmpty() && !address.isEmpty() && !QDir::isAbsolutePath(address)) {
        why = kNoFolder;
    }
    tryStores(m_choice || !why.isEmpty() ? Stores{} : folderStores(address, true), why, std::move(mainBlock));
}

// With another password, perhaps.
void SharedStoresChoice::stay(const QString& address, MainBlock<QString> answer) {
    m_queue->async([this, address, answer = std::move(answer), alive = std::weak_ptr(m_alive)]() mutable {
        QString why;
        if (isDatabaseAddress(address)) {
            keepDatabasePassword(address, m_environment.secrets, why);
        }
        m_environment.queues.mainQueue().async(
            [this, why, answer = std::move(answer), alive = std::move(alive)]() mutable {
                if (!alive.expired()) {
                    retryNow();
                    answer.post(m_environment.queues.mainQueue(), std::move(why));
                }
            });
    });
}

void SharedStoresChoice::tryStores(Stores stores, QString why, MainBlock<QString> answer) {
    if (m_choice) {
        why = u"Another place is being tried."_s;
    }
    if (!why.isEmpty() || !stores.keyValueStore) {
        answer.post(m_environment.queues.mainQueue(), std::move(why));
        return;
    }
    m_choice = std::make_shared<Choice>(Choice{std::move(stores), std::move(answer)});
    // Later, because looking may end the observation.
    m_choice->stores.shared->setStateObserver([this, alive = std::weak_ptr(m_alive)] {
        m_environment.queues.mainQueue().async([this, alive] {
            if (!alive.expired()) {
                look();
            }
        });
    });
    m_environment.queues.mainQueue().asyncAfter(
        kLongestWait, [this, choice = std::weak_ptr(m_choice), alive = std::weak_ptr(m_alive)] {
            if (!alive.expired() && !choice.expired() && !m_choice->isMoving) {
                end(isDatabaseAddress(m_choice->stores.address) ? u"The database cannot be reached."_s
                                                                : kNoFolder);
            }
        });
    look();
}

void SharedStoresChoice::look() {
    if (!m_choice || m_choice->isMoving) {
        return;
    }
    const SharedStoreState state = m_choice->stores.shared->sharedState();
    if (!state.reason.isEmpty()) {
        end(isDatabaseAddress(m_choice->stores.address) ? state.reason : kNoFolder);
    } else if (state.isRead) {
        move();
    }
}

void SharedStoresChoice::move() {
    m_choice->isMoving = true;
    // Whoever leaves a place keeps what is there.
    const auto keeps = m_choice->stores.address.isEmpty() ? SwitchedKeyValueStore::Keeps::Ours
                                                          : SwitchedKeyValueStore::Keeps::Theirs;
    m_keyValueStore->observeNext(*m_choice->stores.keyValueStore);
    m_queue->async([this, values = m_keyValueStore, store = m_choice->stores.keyValueStore, keeps,
                    entered = m_choice->stores.entered, left = m_current,
                    alive = std::weak_ptr(m_alive)]() mutable {
        QString why;
        std::optional<QStringList> differing;
        if (entered.isEmpty() || keepDatabasePassword(entered, m_environment.secrets, why)) {
            differing = values->replace(std::move(store), kSharedKeys, keeps);
            why = differing ? QString() : u"The place cannot take what this device has."_s;
        }
        if (differing && left.finish) {
            left.finish(kTimeToLeave);
        }
        if (differing && left.address.isEmpty() && values->flush()) {
            // What lies in the profile would be found, and outlive an erasure.
            for (const QString& key : kSharedKeys) {
                left.keyValueStore->removeKey(key);
            }
        }
        m_environment.queues.mainQueue().async(
            [this, values, differing, why, left = std::move(left), alive = std::move(alive)] {
                if (!alive.expired()) {
                    moved(differing, why);
                }
            });
    });
}

void SharedStoresChoice::moved(const std::optional<QStringList>& differing, const QString& why) {
    if (!differing) {
        m_choice->stores.keyValueStore->setObserver(nullptr);
        end(why);
        return;
    }
    const std::shared_ptr<Choice> choice = m_choice;
    m_current.shared->setStateObserver(nullptr);
    if (m_current.forget) {
        m_current.forget();
    }
    m_keyValueStore->endReplaced();
    adopt(choice->stores);
    m_environment.userDefaults.setString(kAddressKey, m_current.address);
    end({});
    m_keyValueStore->announce(*differing);
}

void SharedStoresChoice::adopt(Stores stores) {
    m_current = std::move(stores);
    m_records.replace(m_current.records);
    m_current.shared->setStateObserver([this] { tellChanged(); });
}

void SharedStoresChoice::tellChanged() const {
    if (m_changed && !m_observer.expired()) {
        m_changed();
    }
}

void SharedStoresChoice::end(const QString& why) {
    const std::shared_ptr<Choice> choice = std::exchange(m_choice, nullptr);
    if (!why.isEmpty()) {
        choice->stores.shared->setStateObserver(nullptr);
        if (choice->stores.forget) {
            choice->stores.forget();
        }
    }
    choice->answer.post(m_environment.queues.mainQueue(), QString(why));
    tellChanged();
}

} // namespace guide
