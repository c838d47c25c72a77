#include "platform/linux/database/SharedStores.h"

#include "platform/linux/database/PostgresKeyValueStore.h"
#include "platform/linux/database/PostgresRecordStore.h"
#include "platform/linux/database/ServerReach.h"

#include <QCryptographicHash>
#include <QFile>

namespace guide {

using namespace Qt::StringLiterals;

SharedStores sharedStoresFor(const QString& address, const SharedStoresOptions& options, const Clock& clock,
                             SecretStore& secrets, DispatchQueues& queues, QString& why) {
    const std::optional<DatabaseAddress> read = databaseAddress(address, why);
    if (!read) {
        return {};
    }
    const QString text = read->text();
    constexpr qsizetype kDigits = 16;
    const QString name =
        options.folder + u"/database-"_s +
        QString::fromLatin1(
            QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex().left(kDigits));
    const QString valuesPath = name + ".values"_L1;
    const bool isNew = !QFile::exists(valuesPath);
    const auto values = std::make_shared<SharedValues>(
        valuesPath, text, queues.makeQueue("sharedValues", QueueKind::Serial, QueuePriority::Background));
    if (options.joins) {
        values->clear();
    }
    const auto session =
        std::make_shared<PostgresSession>(PostgresSessionOptions{.address = *read,
                                                                 .device = values->device(),
                                                                 .deviceName = options.deviceName,
                                                                 .firstRetry = options.firstRetry,
                                                                 .longestRetry = options.longestRetry},
                                          secrets, queues);
    auto keyValueStore = std::make_unique<PostgresKeyValueStore>(session, values, clock, queues);
    SharedStores stores;
    stores.state = keyValueStore.get();
    stores.keyValueStore = std::move(keyValueStore);
    auto recordStore = std::make_unique<PostgresRecordStore>(session, name + ".increments"_L1, text, queues);
    stores.forget = [values, increments = recordStore->forgetting(), isNew](bool wasUsed) {
        increments();
        // The database may know this device by the id in the file.
        values->forget(isNew && !wasUsed ? SharedValues::Keeps::Nothing : SharedValues::Keeps::Device);
    };
    stores.recordStore = std::move(recordStore);
    stores.retryNow = [weak = std::weak_ptr(session)] {
        if (const auto alive = weak.lock()) {
            alive->retryNow();
        }
    };
    stores.setPassword = [weak = std::weak_ptr(session)](const QString& password) {
        if (const auto alive = weak.lock()) {
            alive->setPassword(password);
        }
    };
    stores.setDeviceName = [weak = std::weak_ptr(session)](const QString& deviceName) {
        if (const auto alive = weak.lock()) {
            alive->setDeviceName(deviceName);
        }
    };
    session->start();
    return stores;
}

std::optional<QString> keepDatabasePassword(const QString& address, SecretStore& secrets, QString& why) {
    const std::optional<DatabaseAddress> read = databaseAddress(address, why);
    if (!read) {
        return std::nullopt;
    }
    if (read->password && !secrets.setSecret(databaseSecretKey(*read), *read->password)) {
        why = u"The password of the database cannot be kept."_s;
        return std::nullopt;
    }
    return read->text();
}

bool acceptsDatabasePassword(const DatabaseAddress& address, const WakeUp& stop, QString& why) {
    DatabaseError error;
    const QList<QByteArray> numbers = numbersOf(address, error);
    if (!numbers.isEmpty() || address.isSocket()) {
        if (PostgresConnection::open(address, address.password.value_or(QString()), numbers, stop, error)) {
            return true;
        }
    }
    why = sentenceFor(error.fault);
    return false;
}

} // namespace guide
