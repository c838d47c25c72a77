#pragma once

#include <QString>

#include <optional>

namespace guide {

/// Keeps short secrets of the user, such as the passwords of addresses, on this device. They may block; not
/// on the main thread.
class SecretStore {
  public:
    virtual ~SecretStore() = default;
    virtual std::optional<QString> secret(const QString& key) = 0;
    /// False when it could not be kept.
    virtual bool setSecret(const QString& key, const QString& secret) = 0;
    virtual void removeSecret(const QString& key) = 0;
};

} // namespace guide
