#include "platform/linux/SecretServiceStore.h"

#include "platform/files/FallbackSecretStore.h"
#include "platform/files/FileSecretStore.h"

#include <QDebug>
#include <QFile>

#include <condition_variable>
#include <libsecret/secret.h>
#include <thread>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::minutes kLeftAloneFor{10};
constexpr const char* kAttribute = "key";

const SecretSchema& schema() {
    static const SecretSchema kSchema = [] {
        SecretSchema made{};
        made.name = "net.quellin.Guide";
        made.flags = SECRET_SCHEMA_NONE;
        made.attributes[0] = {kAttribute, SECRET_SCHEMA_ATTRIBUTE_STRING};
        return made;
    }();
    return kSchema;
}

/// Whether the session has a bus. Without an address GLib would start one.
bool hasBus() {
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) {
        return true;
    }
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtime.isEmpty() && QFile::exists(runtime + u"/bus"_s);
}

} // namespace

/// One question to the service, cancelled when its time is up.
class SecretServiceStore::Call {
  public:
    explicit Call(SecretServiceStore& store)
        : m_store(store)
        , m_cancellable(g_cancellable_new())
        , m_timer([this] { await(); }) {
        // GLib ends the process when its connection to the bus closes, unless it is told otherwise.
        if (GDBusConnection* bus = g_bus_get_sync(G_BUS_TYPE_SESSION, m_cancellable, &error)) {
            g_dbus_connection_set_exit_on_close(bus, FALSE);
            g_object_unref(bus);
        }
    }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call() {
        {
            const std::lock_guard lock(m_mutex);
            m_isDone = true;
        }
        m_done.notify_all();
        m_timer.join();
        if (m_isLate) {
            m_store.leaveAlone();
        }
        if (error != nullptr) {
            qInfo().noquote() << "the keyring cannot be used:" << QString::fromUtf8(error->message);
            g_error_free(error);
        }
        g_object_unref(m_cancellable);
    }

    /// False when the bus cannot be reached.
    bool isReady() const { return error == nullptr; }
    GCancellable* cancellable() const { return m_cancellable; }

    GError* error = nullptr;

  private:
    void await() {
        std::unique_lock lock(m_mutex);
        if (!m_done.wait_for(lock, m_store.m_longest, [this] { return m_isDone; })) {
            m_isLate = true;
            g_cancellable_cancel(m_cancellable);
        }
    }

    SecretServiceStore& m_store;
    GCancellable* const m_cancellable;
    std::mutex m_mutex;
    std::condition_variable m_done;
    bool m_isDone = false;
    bool m_isLate = false;
    /// Last, so that it starts after the rest.
    std::thread m_timer;
};

std::optional<QString> SecretServiceStore::secret(const QString& key) {
    if (isLeftAlone()) {
        return std::nullopt;
    }
    Call call(*this);
    if (!call.isReady()) {
        return std::nullopt;
    }
    gchar* found = secret_password_lookup_sync(&schema(), call.cancellable(), &call.error, kAttribute,
                                               key.toUtf8().constData(), nullptr);
    if (found == nullptr) {
        return std::nullopt;
    }
    QString secret = QString::fromUtf8(found);
    secret_password_free(found);
    return secret;
}

bool SecretServiceStore::setSecret(const QString& key, const QString& secret) {
    if (isLeftAlone()) {
        return false;
    }
    Call call(*this);
    const QByteArray label = "Quellin Guide: " + key.toUtf8();
    return call.isReady() &&
           secret_password_store_sync(&schema(), SECRET_COLLECTION_DEFAULT, label.constData(),
                                      secret.toUtf8().constData(), call.cancellable(), &call.error,
                                      kAttribute, key.toUtf8().constData(), nullptr) != FALSE;
}

void SecretServiceStore::removeSecret(const QString& key) {
    if (isLeftAlone()) {
        return;
    }
    Call call(*this);
    if (call.isReady()) {
        secret_password_clear_sync(&schema(), call.cancellable(), &call.error, kAttribute,
                                   key.toUtf8().constData(), nullptr);
    }
}

bool SecretServiceStore::isLeftAlone() {
    if (!hasBus()) {
        return true;
    }
    const std::lock_guard lock(m_guard);
    return std::chrono::steady_clock::now() < m_leftAloneUntil;
}

void SecretServiceStore::leaveAlone() {
    const std::lock_guard lock(m_guard);
    m_leftAloneUntil = std::chrono::steady_clock::now() + kLeftAloneFor;
}

std::unique_ptr<SecretStore> makeSecretStore(const QString& configurationFolder) {
    return std::make_unique<FallbackSecretStore>(
        std::make_unique<SecretServiceStore>(),
        std::make_unique<FileSecretStore>(configurationFolder + u"/secrets.json"_s));
}

} // namespace guide
