#pragma once

#include "platform/SecretStore.h"

#include <QMap>

#include <mutex>

namespace guide {

/// Secrets in a JSON file that only its owner can read, replaced atomically.
class FileSecretStore final : public SecretStore {
  public:
    explicit FileSecretStore(QString path)
        : m_path(std::move(path)) {}

    std::optional<QString> secret(const QString& key) override;
    bool setSecret(const QString& key, const QString& secret) override;
    void removeSecret(const QString& key) override;

  private:
    using Secrets = QMap<QString, QString>;

    /// Nothing for a file that cannot be understood. Requires the guard.
    std::optional<Secrets> read() const;
    bool write(const Secrets& secrets) const;

    const QString m_path;
    std::mutex m_guard;
};

} // namespace guide
