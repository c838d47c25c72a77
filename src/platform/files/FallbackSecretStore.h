#pragma once

#include "platform/SecretStore.h"

#include <memory>

namespace guide {

/// Keeps secrets in a store that may not answer, and in another one what the first could not take.
class FallbackSecretStore final : public SecretStore {
  public:
    FallbackSecretStore(std::unique_ptr<SecretStore> first, std::unique_ptr<SecretStore> second)
        : m_first(std::move(first))
        , m_second(std::move(second)) {}

    std::optional<QString> secret(const QString& key) override {
        // What the second store has is newer: the first one could not take it.
        const std::optional<QString> found = m_second->secret(key);
        return found ? found : m_first->secret(key);
    }
    bool setSecret(const QString& key, const QString& secret) override {
        if (!m_first->setSecret(key, secret)) {
            return m_second->setSecret(key, secret);
        }
        m_second->removeSecret(key);
        return true;
    }
    void removeSecret(const QString& key) override {
        m_second->removeSecret(key);
        m_first->removeSecret(key);
    }

  private:
    const std::unique_ptr<SecretStore> m_first;
    const std::unique_ptr<SecretStore> m_second;
};

} // namespace guide
