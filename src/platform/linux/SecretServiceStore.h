#pragma once

#include "platform/SecretStore.h"

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>

namespace guide {

/// Secrets in the keyring of the user's desktop, through the Secret Service of the session bus. A service
/// that does not answer in time, perhaps because it waits for the user to unlock the keyring, is left alone
/// for a while.
class SecretServiceStore final : public SecretStore {
  public:
    explicit SecretServiceStore(std::chrono::milliseconds longest = std::chrono::seconds(25))
        : m_longest(longest) {}

    std::optional<QString> secret(const QString& key) override;
    bool setSecret(const QString& key, const QString& secret) override;
    void removeSecret(const QString& key) override;

  private:
    class Call;

    bool isLeftAlone();
    void leaveAlone();

    const std::chrono::milliseconds m_longest;
    std::mutex m_guard;
    std::chrono::steady_clock::time_point m_leftAloneUntil; // guarded
};

/// In the keyring where there is one, otherwise in a file of the folder.
std::unique_ptr<SecretStore> makeSecretStore(const QString& configurationFolder);

} // namespace guide
