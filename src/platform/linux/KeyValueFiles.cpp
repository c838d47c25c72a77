#include "platform/linux/KeyValueFiles.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSuffix = ".json"_L1;
// Leaves room for the suffix, and for what sync tools add to the names of their copies.
constexpr qsizetype kLongestName = 180;
constexpr qsizetype kDigestDigits = 32;
// No write takes that long.
constexpr std::chrono::hours kOldLeftover{24};
// The name space of the digests of contents.
constexpr QUuid kContents(0x6d1f7c52, 0x94f0, 0x4c0e, 0xa3, 0x5b, 0x27, 0x61, 0x0e, 0xd8, 0x4f, 0x19);

/// What sync tools put between the name of a file and its suffix when they keep a second version of it:
/// ".sync-conflict-20261123-014800-ABCDEFG", " (conflicted copy 2026-11-23 014800)", " (laptop's conflicted
/// copy 2026-11-23)", "_conflict-20261123-014800", " (1)", " 2".
bool isConflictMark(const QString& text) {
    static const QRegularExpression kMark(
        u"^(?:[ ._\\-(\\[].*conflict.*| ?\\(\\d+\\)| \\d+|-.*-safeBackup-.*)$"_s,
        QRegularExpression::CaseInsensitiveOption);
    return kMark.match(text).hasMatch();
}

/// Whether the file is that of the key, or a conflict copy of it.
bool isFileOf(const QString& name, const QString& key) {
    const QString own = KeyValueFiles::fileName(key);
    const QStringView stem = QStringView(own).chopped(kSuffix.size());
    return name == own ||
           (name.startsWith(stem) && isConflictMark(name.sliced(stem.size()).chopped(kSuffix.size())));
}

} // namespace

QString KeyValueFiles::fileName(const QString& key) {
    const QByteArray utf8 = key.toUtf8();
    // Encodes dots too, so that no name is hidden or refers to another folder.
    QByteArray name = utf8.toPercentEncoding({}, ".~");
    if (name.size() > kLongestName) {
        const QByteArray digest = QCryptographicHash::hash(utf8, QCryptographicHash::Sha256).toHex();
        name = name.left(kLongestName - kDigestDigits - 1) + '~' + digest.left(kDigestDigits);
    }
    return (name.isEmpty() ? u"~"_s : QString::fromLatin1(name)) + kSuffix;
}

bool KeyValueFiles::isMissing() const {
    return !QFileInfo(m_folder).isDir();
}

bool KeyValueFiles::isWritable() const {
    return ::access(QFile::encodeName(m_folder).constData(), W_OK | X_OK) == 0;
}

std::int64_t KeyValueFiles::nextCounter() const {
    return std::min(m_counter + 1, kLargestCounter);
}

// Unlike with QDir, a folder that cannot be read does not look empty.
std::optional<QStringList> KeyValueFiles::names() const {
    std::error_code error;
    std::filesystem::directory_iterator entry(QFile::encodeName(m_folder).toStdString(), error);
    QStringList names;
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const QString name = QFile::decodeName(entry->path().filename().c_str());
        if (name.endsWith(kSuffix) && !name.startsWith(u'.')) {
            names.append(name);
        }
    }
    return error ? std::nullopt : std::optional(names);
}

void KeyValueFiles::removeLeftovers(std::chrono::seconds age) const {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const QStringList left = QDir(m_folder).entryList({kTemporaryPrefix + u'*'}, QDir::Files | QDir::Hidden);
    for (const QString& name : left) {
        const std::optional<FileStamp> state = fileStamp(path(name));
        if (state && std::chrono::seconds(state->seconds) + age <= now) {
            QFile::remove(path(name));
        }
    }
}

bool KeyValueFiles::list() {
    const std::optional<QStringList> found = names();
    if (!found || (found->isEmpty() && !isWritable())) {
        return false;
    }
    if (!std::exchange(m_isTidy, true)) {
        removeLeftovers(kOldLeftover);
    }
    m_files.removeIf([present = QSet<QString>(found->begin(), found->end())](const auto& file) {
        return !present.contains(file.key());
    });
    QStringList copies;
    for (const QString& name : *found) {
        if (const File file = readFile(name); file.value && fileName(file.key) != name) {
            copies.append(name);
        }
    }
    for (const QString& name : std::as_const(copies)) {
        resolve(name);
    }
    return true;
}

void KeyValueFiles::resolve(const QString& copyName) {
    const File copy = m_files.take(copyName);
    const QString name = fileName(copy.key);
    const File file = readFile(name);
    if (!file.value || file.stamp.isOlderThan(copy.stamp)) {
        const auto content = fileContent(path(copyName), kLargestFile);
        if (!content || !replaceFile(path(name), *content)) {
            return;
        }
        readFile(name);
    }
    qInfo().noquote() << "KeyValueFiles: resolved" << copyName;
    QFile::remove(path(copyName));
}

KeyValueFiles::File KeyValueFiles::readFile(const QString& name) {
    const std::optional<FileStamp> state = fileStamp(path(name));
    if (!state) {
        if (errno == ENOENT && !isMissing()) {
            m_files.remove(name);
        }
        return m_files.value(name);
    }
    File& file = m_files[name];
    if (file.state == *state) {
        return file;
    }
    const std::optional<QByteArray> content = fileContent(path(name), kLargestFile);
    if (!content) {
        return file;
    }
    // If the file is replaced meanwhile, its next state differs from this one.
    file.state = *state;
    std::optional<KeyValue> read = keyValueFromJson(*content);
    file.intact = read && isFileOf(name, read->key);
    if (file.intact) {
        file.key = std::move(read->key);
        file.value = std::move(read->value);
        file.stamp = std::move(read->stamp);
        file.content = QUuid::createUuidV5(kContents, *content);
        m_counter = std::max(m_counter, file.stamp.counter);
    }
    return file;
}

bool KeyValueFiles::write(const QString& key, const QCborValue& value) {
    const QString name = fileName(key);
    if (const File file = readFile(name); file.intact && file.value == value) {
        return true;
    }
    const KeyValueStamp stamp{.counter = nextCounter(), .device = m_device};
    const std::optional<QByteArray> json = keyValueJson({key, value, stamp});
    if (!json || !replaceFile(path(name), *json)) {
        return false;
    }
    m_counter = stamp.counter;
    // Without the state of the file, which another program may have replaced since: it is read again.
    m_files.insert(name, {FileStamp{}, true, key, value, stamp, QUuid()});
    return true;
}

bool KeyValueFiles::remove(const QString& key) {
    removeLeftovers(std::chrono::seconds(0));
    const QString own = fileName(key);
    const std::optional<QStringList> found = names();
    bool isGone = found.has_value();
    for (const QString& name : found.value_or(QStringList(own))) {
        const File file = m_files.value(name);
        // Otherwise it may be the file of a key that only looks like a copy.
        if (name == own || (isFileOf(name, key) && (!file.value || file.key == key))) {
            isGone = (QFile::remove(path(name)) || !QFile::exists(path(name))) && isGone;
            m_files.remove(name);
        }
    }
    return isGone;
}

} // namespace guide
