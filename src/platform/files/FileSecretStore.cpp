#include "platform/files/FileSecretStore.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace guide {

namespace {

constexpr qint64 kMostBytes = 1 << 20;
constexpr QFile::Permissions kOnlyOwner = QFile::ReadOwner | QFile::WriteOwner;

} // namespace

std::optional<QString> FileSecretStore::secret(const QString& key) {
    const std::lock_guard lock(m_guard);
    const Secrets secrets = read().value_or(Secrets());
    const auto found = secrets.constFind(key);
    return found != secrets.cend() ? std::optional(*found) : std::nullopt;
}

bool FileSecretStore::setSecret(const QString& key, const QString& secret) {
    const std::lock_guard lock(m_guard);
    std::optional<Secrets> secrets = read();
    if (!secrets) {
        // The user may still be able to read it.
        const QString kept = m_path + QStringLiteral(".damaged");
        QFile::remove(kept);
        QFile::rename(m_path, kept);
        qWarning("the file of secrets is damaged and was put aside");
        secrets.emplace();
    }
    secrets->insert(key, secret);
    return write(*secrets);
}

void FileSecretStore::removeSecret(const QString& key) {
    const std::lock_guard lock(m_guard);
    std::optional<Secrets> secrets = read();
    if (secrets && secrets->remove(key) > 0) {
        write(*secrets);
    }
}

std::optional<FileSecretStore::Secrets> FileSecretStore::read() const {
    if (!QFile::exists(m_path)) {
        return Secrets();
    }
    const std::optional<QByteArray> content = fileContent(m_path, kMostBytes);
    const QJsonDocument document = QJsonDocument::fromJson(content.value_or(QByteArray()));
    if (!document.isObject()) {
        return std::nullopt;
    }
    const QJsonObject object = document.object();
    Secrets secrets;
    for (auto each = object.constBegin(); each != object.constEnd(); ++each) {
        if (each->isString()) {
            secrets.insert(each.key(), each->toString());
        }
    }
    return secrets;
}

bool FileSecretStore::write(const Secrets& secrets) const {
    QJsonObject object;
    for (auto each = secrets.cbegin(); each != secrets.cend(); ++each) {
        object.insert(each.key(), *each);
    }
    // A replaced file keeps its permissions.
    if (QFile::exists(m_path) && !QFile::setPermissions(m_path, kOnlyOwner)) {
        return false;
    }
    return replaceFile(m_path, QJsonDocument(object).toJson());
}

} // namespace guide
