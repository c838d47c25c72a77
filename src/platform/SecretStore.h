#pragma once

#include <QString>

#include <optional>

namespace guide {

/// Keeps short secrets of the user, such as the passwords of addresses, on this device. Calls may block for
/// half a minute; not on the main thread. Any other thread.
class SecretStore {
  public:
    virtual ~SecretStore() = default;
    virtual std::optional<QString> secret(const QString& key) = 0;
    /// False when it could not be kept.
    virtual bool setSecret(const QString& key, const QString& secret) = 0;
    virtual void removeSecret(const QString& key) = 0;
};

} // namespace guide
