#include "platform/linux/FolderKeyValueStore.h"

#include "platform/FileReplacement.h"
#include "platform/linux/KeyValueJson.h"

#include <QCryptographicHash>
#include <QFile>

#include <sys/stat.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSuffix = ".json"_L1;
// Leaves room for the suffix, and for what sync tools put into the names of their copies.
constexpr qsizetype kLongestName = 180;
constexpr qsizetype kDigestDigits = 32;
constexpr std::int64_t kLargestFile = 16 << 20;

} // namespace

QString FolderKeyValueStore::fileName(const QString& key) {
    const QByteArray utf8 = key.toUtf8();
    // Dots too: no name is hidden, and none means another folder.
    QByteArray name = utf8.toPercentEncoding({}, ".~");
    if (name.size() > kLongestName) {
        const QByteArray digest = QCryptographicHash::hash(utf8, QCryptographicHash::Sha256).toHex();
        name = name.left(kLongestName - kDigestDigits - 1) + '~' + digest.left(kDigestDigits);
    }
    return (name.isEmpty() ? u"~"_s : QString::fromLatin1(name)) + kSuffix;
}

std::optional<QCborValue> FolderKeyValueStore::valueForKey(const QString& key) const {
    const QString file = path(key);
    const std::lock_guard lock(m_mutex);
    const std::optional<Stamp> stamp = stampOf(file);
    if (!stamp || stamp->size > kLargestFile) {
        m_known.remove(key);
        return std::nullopt;
    }
    if (const auto known = m_known.constFind(key); known != m_known.constEnd() && known->stamp == *stamp) {
        return known->value;
    }
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    std::optional<QCborValue> value = keyValueFromJson(key, source.readAll());
    // A file that was replaced meanwhile has another stamp by now, and is read again the next time.
    m_known.insert(key, {*stamp, value});
    return value;
}

bool FolderKeyValueStore::setValue(const QString& key, const QCborValue& value) {
    const std::optional<QByteArray> json = keyValueJson(key, value);
    if (!json) {
        return false;
    }
    const std::lock_guard lock(m_mutex);
    m_known.remove(key);
    return replaceFile(path(key), *json);
}

void FolderKeyValueStore::removeKey(const QString& key) {
    const std::lock_guard lock(m_mutex);
    m_known.remove(key);
    QFile::remove(path(key));
}

QString FolderKeyValueStore::path(const QString& key) const {
    return m_folder + u'/' + fileName(key);
}

std::optional<FolderKeyValueStore::Stamp> FolderKeyValueStore::stampOf(const QString& path) {
    struct stat found{};
    if (::stat(QFile::encodeName(path).constData(), &found) != 0 || !S_ISREG(found.st_mode)) {
        return std::nullopt;
    }
    return Stamp{found.st_mtim.tv_sec, found.st_mtim.tv_nsec, found.st_size, found.st_ino};
}

} // namespace guide
