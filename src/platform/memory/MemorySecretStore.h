#pragma once

#include "platform/SecretStore.h"

#include <QMap>

#include <mutex>

namespace guide {

class MemorySecretStore final : public SecretStore {
  public:
    std::optional<QString> secret(const QString& key) override {
        const std::lock_guard lock(m_guard);
        const auto found = m_secrets.constFind(key);
        return !fails && found != m_secrets.cend() ? std::optional(*found) : std::nullopt;
    }
    bool setSecret(const QString& key, const QString& secret) override {
        const std::lock_guard lock(m_guard);
        if (!fails) {
            m_secrets.insert(key, secret);
        }
        return !fails;
    }
    void removeSecret(const QString& key) override {
        const std::lock_guard lock(m_guard);
        if (!fails) {
            m_secrets.remove(key);
        }
    }

    bool fails = false;

  private:
    std::mutex m_guard;
    QMap<QString, QString> m_secrets; // guarded
};

} // namespace guide
