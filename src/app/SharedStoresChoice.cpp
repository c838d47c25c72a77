#include "app/SharedStoresChoice.h"

#include "app/SharedFolder.h"
#include "platform/SharedPlaceAddress.h"
#include "platform/linux/FolderKeyValueStore.h"
#include "platform/linux/SharedFolderKeyValueStore.h"
#include "platform/linux/database/PostgresSession.h"
#include "platform/linux/database/SharedStores.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
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
const QString kNoAnswer = u"The place does not answer."_s;

const QString kDeviceNameKey = u"deviceName"_s;
constexpr qsizetype kLongestName = 60;

/// The name of the machine with digits that tell it from others of the name, made once for each profile.
QString machineOf(UserDefaults& userDefaults) {
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

/// The name for people, "-", and the digits.
QString deviceOf(UserDefaults& userDefaults) {
    const QString machine = machineOf(userDefaults);
    const std::optional<QString> name = userDefaults.stringForKey(kDeviceNameKey);
    return name ? *name + machine.sliced(std::max<qsizetype>(0, machine.lastIndexOf(u'-'))) : machine;
}

QString nameOf(const QString& device) {
    return device.left(device.lastIndexOf(u'-'));
}

/// Keeps the password of an address for what `use` does. Where that fails, the former password is put back.
template <class Use>
bool withPasswordKept(const QString& address, SecretStore& secrets, QString& why, const Use& use) {
    const std::optional<DatabaseAddress> read = databaseAddress(address, why);
    const QString key = read ? databaseSecretKey(*read) : QString();
    const std::optional<QString> former = read && read->password ? secrets.secret(key) : std::nullopt;
    if (!read || !keepDatabasePassword(address, secrets, why)) {
        return false;
    }
    if (use()) {
        return true;
    }
    if (read->password && former) {
        secrets.setSecret(key, *former);
    } else if (read->password) {
        secrets.removeSecret(key);
    }
    return false;
}

} // namespace

SharedStoresChoice::SharedStoresChoice(Environment environment)
    : m_environment(environment)
    , m_queue(environment.queues.makeQueue("sharedStores", QueueKind::Serial, QueuePriority::UserInitiated))
    , m_stop(std::make_shared<const WakeUp>()) {
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
    if (m_environment.folders.writable) {
        m_queue->async([folder = m_environment.folders.documents, current = m_current.address] {
            removeValuesOfOtherFolders(folder, current);
        });
    }
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
    Stores stores{.address = address, .deviceName = nameOf(device), .keyValueStore = store};
    stores.shared = store.get();
    stores.retryNow = [store] { store->retryNow(); };
    stores.setDeviceName = [store, this](const QString&) {
        store->setDevice(deviceOf(m_environment.userDefaults));
    };
    stores.finish = [store](std::chrono::milliseconds atMost) { store->finishWriting(atMost); };
    stores.forget = [store](bool) { store->forget(); };
    return stores;
}

SharedStoresChoice::Stores SharedStoresChoice::databaseStores(const QString& address, bool joins,
                                                              QString& why) const {
    const QString name = deviceName();
    SharedStores made = sharedStoresFor(
        address, {.folder = m_environment.folders.documents, .deviceName = name, .joins = joins},
        m_environment.clock, m_environment.secrets, m_environment.queues, why);
    Stores stores{.address = address, .deviceName = name, .keyValueStore = std::move(made.keyValueStore)};
    stores.records = std::move(made.recordStore);
    stores.shared = made.state;
    stores.retryNow = std::move(made.retryNow);
    stores.setPassword = std::move(made.setPassword);
    stores.setDeviceName = std::move(made.setDeviceName);
    stores.forget = std::move(made.forget);
    return stores;
}

void SharedStoresChoice::retryNow() {
    if (m_current.retryNow) {
        m_current.retryNow();
    }
}

void SharedStoresChoice::finish(std::chrono::milliseconds atMost) const {
    m_stop->wake();
    if (m_current.finish) {
        m_current.finish(atMost);
    }
}

QString SharedStoresChoice::deviceName() const {
    return nameOf(deviceOf(m_environment.userDefaults));
}

void SharedStoresChoice::setDeviceName(const QString& name) {
    const QString plain = name.simplified().left(kLongestName);
    if (plain.isEmpty() || plain == nameOf(machineOf(m_environment.userDefaults))) {
        m_environment.userDefaults.removeKey(kDeviceNameKey);
    } else {
        m_environment.userDefaults.setString(kDeviceNameKey, plain);
    }
    useDeviceName();
    tellChanged();
}

void SharedStoresChoice::useDeviceName() {
    const QString name = deviceName();
    if (m_choice || m_current.address.isEmpty() || m_current.deviceName == name) {
        return;
    }
    m_current.deviceName = name;
    m_current.setDeviceName(name);
}

SharedPlace SharedStoresChoice::place() const {
    SharedPlace place{
        .address = m_current.address, .state = m_current.shared->sharedState(), .deviceName = deviceName()};
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
    const QString path = isDatabaseAddress(address) ? QString() : folderPath(address);
    if (why.isEmpty() && path.isEmpty() && !database && !address.isEmpty()) {
        why = address.contains("://"_L1) ? u"The address of a database begins with postgresql://."_s
                                         : u"The path of a folder begins with “/” or “~/”."_s;
    }
    if (!why.isEmpty()) {
        mainBlock.post(m_environment.queues.mainQueue(), std::move(why));
    } else if ((database ? database->text() : path) == m_current.address) {
        stay(database, address, std::move(mainBlock));
    } else if (database) {
        Stores stores = m_choice ? Stores{} : databaseStores(address, true, why);
        stores.entered = address;
        stores.address = database->text();
        tryStores(std::move(stores), why, std::move(mainBlock));
    } else {
        chooseFolder(path, std::move(mainBlock));
    }
}

void SharedStoresChoice::askDisk(std::function<QString()> question,
                                 std::function<void(QString)> answered) const {
    DispatchQueue& mainQueue = m_environment.queues.mainQueue();
    // The first answer counts.
    MainBlock<QString> answer(std::weak_ptr<const void>(m_alive), std::move(answered));
    // Not on the queue of the choices, which would have to wait.
    m_environment.queues.globalQueue(QueuePriority::UserInitiated)
        .async([question = std::move(question), answer, &mainQueue]() mutable {
            answer.post(mainQueue, question());
        });
    mainQueue.asyncAfter(kLongestWait, [answer = std::move(answer), &mainQueue]() mutable {
        answer.post(mainQueue, kNoAnswer);
    });
}

void SharedStoresChoice::chooseFolder(const QString& path, MainBlock<QString> mainBlock) {
    askDisk(
        [path, own = m_environment.folders.keyValueStore] {
            QString why = path.isEmpty() ? QString() : problemOfSharedFolder(path);
            if (!path.isEmpty() && why.isEmpty() &&
                QFileInfo(path).canonicalFilePath() == QFileInfo(own).canonicalFilePath()) {
                why = u"This folder belongs to the guide on this device: choose another one."_s;
            }
            return why;
        },
        [this, path, answer = std::move(mainBlock)](QString why) {
            const bool isUsable = why.isEmpty() && !m_choice;
            tryStores(isUsable ? folderStores(path, true) : Stores{}, std::move(why), answer);
        });
}

void SharedStoresChoice::createFolder(const QString& path, MainBlock<QString> mainBlock) {
    askDisk(
        [path = folderPath(path)] {
            const bool isMade = !path.isEmpty() && (QDir().mkdir(path) || QFileInfo(path).isDir());
            return isMade ? QString() : u"The folder cannot be created."_s;
        },
        [answer = std::move(mainBlock), &mainQueue = m_environment.queues.mainQueue()](QString why) mutable {
            answer.post(mainQueue, std::move(why));
        });
}

// With another password, perhaps.
void SharedStoresChoice::stay(const std::optional<DatabaseAddress>& database, const QString& entered,
                              MainBlock<QString> answer) {
    m_queue->async([this, database, entered, stop = m_stop, answer = std::move(answer),
                    alive = std::weak_ptr(m_alive)]() mutable {
        QString why;
        if (database && database->password && acceptsDatabasePassword(*database, *stop, why)) {
            keepDatabasePassword(entered, m_environment.secrets, why);
        }
        m_environment.queues.mainQueue().async(
            [this, database, why, answer = std::move(answer), alive = std::move(alive)]() mutable {
                if (alive.expired()) {
                    return;
                }
                if (why.isEmpty() && database && database->password && m_current.setPassword &&
                    m_current.address == database->text()) {
                    m_current.setPassword(*database->password);
                }
                retryNow();
                answer.post(m_environment.queues.mainQueue(), std::move(why));
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
            if (!alive.expired() && !choice.expired() && !m_choice->isDecided) {
                end(kNoAnswer);
            }
        });
    look();
}

void SharedStoresChoice::look() {
    if (!m_choice || m_choice->isDecided) {
        return;
    }
    const SharedStoreState state = m_choice->stores.shared->sharedState();
    if (!state.reason.isEmpty()) {
        end(state.reason);
    } else if (state.isRead) {
        move();
    }
}

void SharedStoresChoice::move() {
    m_choice->isDecided = true;
    // A device that leaves a place takes the values with it.
    const auto keeps = m_choice->stores.address.isEmpty() ? SwitchedKeyValueStore::Keeps::Ours
                                                          : SwitchedKeyValueStore::Keeps::Theirs;
    m_keyValueStore->observeNext(*m_choice->stores.keyValueStore);
    m_queue->async([this, values = m_keyValueStore, store = m_choice->stores.keyValueStore, keeps,
                    entered = m_choice->stores.entered, address = m_choice->stores.address, left = m_current,
                    alive = std::weak_ptr(m_alive)]() mutable {
        QString why;
        std::optional<QStringList> differing;
        const auto replace = [&] {
            differing = values->replace(std::move(store), kSharedKeys, keeps);
            why = differing ? QString() : u"The place cannot take what this device has."_s;
            return differing.has_value();
        };
        entered.isEmpty() ? replace() : withPasswordKept(entered, m_environment.secrets, why, replace);
        if (differing && left.finish) {
            left.finish(kTimeToLeave);
        }
        if (differing) {
            // A process that is killed here must not find itself where nothing is left.
            const bool isSaved = values->flush();
            m_environment.userDefaults.setString(kAddressKey, address);
            if (isSaved && m_environment.folders.writable && m_environment.userDefaults.synchronize()) {
                forget(left);
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
    m_keyValueStore->endReplaced();
    adopt(choice->stores);
    end({});
    m_keyValueStore->announce(*differing);
}

void SharedStoresChoice::forget(const Stores& left) const {
    if (left.address.isEmpty()) {
        // What lies in the profile would be found, and outlive an erasure.
        for (const QString& key : kSharedKeys) {
            left.keyValueStore->removeKey(key);
        }
        return;
    }
    left.forget(true);
    QString why;
    if (const auto database =
            isDatabaseAddress(left.address) ? databaseAddress(left.address, why) : std::nullopt) {
        m_environment.secrets.removeSecret(databaseSecretKey(*database));
    }
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
    m_choice->isDecided = true;
    if (!why.isEmpty()) {
        m_choice->stores.shared->setStateObserver(nullptr);
    }
    if (why.isEmpty() || !m_choice->stores.forget) {
        answerChoice(why);
        return;
    }
    // Before it can be tried again, with a file of the same name.
    m_queue->async([this, choice = m_choice, why, &mainQueue = m_environment.queues.mainQueue(),
                    alive = std::weak_ptr(m_alive)]() mutable {
        choice->stores.forget(false);
        mainQueue.async([this, choice = std::move(choice), why, alive = std::move(alive)] {
            if (!alive.expired()) {
                answerChoice(why);
            }
        });
    });
}

void SharedStoresChoice::answerChoice(const QString& why) {
    const std::shared_ptr<Choice> choice = std::exchange(m_choice, nullptr);
    choice->answer.post(m_environment.queues.mainQueue(), QString(why));
    tellChanged();
    // It may have got another name meanwhile.
    useDeviceName();
}

} // namespace guide
