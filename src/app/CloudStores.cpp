#include "app/CloudStores.h"

#include "platform/linux/FolderKeyValueStore.h"

#include <QRandomGenerator>
#include <QSysInfo>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

CloudStores cloudStoresFor(const Folders& folders, UserDefaults& userDefaults, DispatchQueues& queues) {
    auto folder =
        std::make_unique<FolderKeyValueStore>(folders.keyValueStore, deviceOf(userDefaults), queues);
    CloudStores stores{.keyValueStore = {}, .records = {}, .otherDevices = folder.get()};
    stores.keyValueStore = std::move(folder);
    return stores;
}

} // namespace guide
