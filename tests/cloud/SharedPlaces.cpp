#include "SharedPlaces.h"

#include "fakes/Files.h"
#include "platform/files/FileReplacement.h"
#include "platform/linux/FileStamp.h"
#include "platform/linux/KeyValueJson.h"

namespace guide::test {

using namespace Qt::StringLiterals;

namespace {

/// Makes a file in a folder that a sync tool replicates, "NAME.sync-conflict-NUMBER.json".
QString conflictName(const QString& name, int number) {
    return name.chopped(u".json"_s.size()) + u".sync-conflict-%1.json"_s.arg(number);
}

void insert(SharedTexts& texts, const QByteArray& json) {
    const std::optional<KeyValue> read = keyValueFromJson(json);
    ASSERT_TRUE(read) << json.toStdString();
    texts.insert(read->key, sharedText(read->key, read->value));
}

} // namespace

FolderPlace::FolderPlace() {
    for (const int device : {0, 1}) {
        EXPECT_TRUE(QDir().mkpath(addressFor(device)));
    }
}

FolderPlace::Content FolderPlace::content(int device, const QString& name) const {
    QFile file(pathOf(device, name));
    return file.open(QIODevice::ReadOnly) ? Content(file.readAll()) : std::nullopt;
}

QStringList FolderPlace::names(int device) const {
    return QDir(addressFor(device)).entryList({u"*.json"_s}, QDir::Files);
}

QString FolderPlace::disturb(Random& random) {
    const int device = random.below(2);
    if (random.below(3) > 0) {
        replicate();
        return u"the folders are replicated"_s;
    }
    if (QDir().rename(awayPathOf(device), addressFor(device))) {
        return u"folder %1 is back"_s.arg(device);
    }
    lose(device);
    return u"folder %1 is away"_s.arg(device);
}

void FolderPlace::lose(int device) {
    EXPECT_TRUE(QDir().rename(addressFor(device), awayPathOf(device)));
}

void FolderPlace::recover() {
    for (const int device : {0, 1}) {
        QDir().rename(awayPathOf(device), addressFor(device));
    }
}

void FolderPlace::replicate() {
    if (!QDir(addressFor(0)).exists() || !QDir(addressFor(1)).exists()) {
        return;
    }
    QStringList all = names(0) + names(1) + m_common.keys();
    all.removeDuplicates();
    for (const QString& name : std::as_const(all)) {
        replicate(name);
    }
}

void FolderPlace::replicate(const QString& name) {
    const std::array contents{content(0, name), content(1, name)};
    if (contents[0] != contents[1]) {
        const Content common = m_common.value(name);
        int from = contents[0] != common ? 0 : 1;
        if (contents[0] && contents[1] && contents[0] != common && contents[1] != common) {
            // The tool goes by the dates of the files, which come from different clocks.
            from = m_random.below(2);
            write(1 - from, conflictName(name, ++m_conflicts), contents[static_cast<std::size_t>(1 - from)]);
        } else if (!contents[static_cast<std::size_t>(from)] &&
                   contents[static_cast<std::size_t>(1 - from)] != common) {
            from = 1 - from;
        }
        write(1 - from, name, contents[static_cast<std::size_t>(from)]);
        m_common[name] = contents[static_cast<std::size_t>(from)];
    } else {
        m_common[name] = contents[0];
    }
    if (!m_common[name]) {
        m_common.remove(name);
    }
}

void FolderPlace::write(int device, const QString& name, const Content& content) {
    const QString path = pathOf(device, name);
    if (!content) {
        QFile::remove(path);
    } else if (m_random.below(2) == 0) {
        EXPECT_TRUE(replaceFile(path, *content));
    } else {
        // In pieces, as simple tools do.
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content->left(content->size() / 2));
        file.flush();
        file.write(content->mid(content->size() / 2));
    }
}

std::optional<SharedTexts> FolderPlace::values() {
    SharedTexts texts;
    if (names(0) != names(1)) {
        return std::nullopt;
    }
    for (const QString& name : names(0)) {
        const Content one = content(0, name);
        if (!one || one != content(1, name) || name.contains(u"conflict"_s)) {
            return std::nullopt;
        }
        insert(texts, *one);
    }
    return texts;
}

QString FolderPlace::writes() {
    QStringList stamps;
    for (const int device : {0, 1}) {
        for (const QString& name : names(device)) {
            const FileStamp stamp = fileStamp(pathOf(device, name)).value_or(FileStamp{});
            stamps << u"%1 %2 %3.%4"_s.arg(name).arg(stamp.inode).arg(stamp.seconds).arg(stamp.nanoseconds);
        }
    }
    return stamps.join(u'\n');
}

QString DatabasePlace::disturb(Random& random) {
    const int kind = random.below(8);
    if (m_isStopped || kind == 0) {
        m_isStopped ? m_server.start() : m_server.stop();
        m_isStopped = !m_isStopped;
        return m_isStopped ? u"the server stops"_s : u"the server starts"_s;
    }
    if (kind == 1) {
        m_server.endConnections();
        return u"the server ends the connections"_s;
    }
    const int device = random.below(2);
    Proxy& proxy = m_proxies[static_cast<std::size_t>(device)];
    kind % 2 == 0 ? proxy.cutRequest() : proxy.cutAnswer();
    return u"the next %1 of %2 is cut off"_s.arg(kind % 2 == 0 ? u"request"_s : u"answer"_s).arg(device);
}

void DatabasePlace::recover() {
    if (m_isStopped) {
        m_server.start();
        m_isStopped = false;
    }
}

std::optional<SharedTexts> DatabasePlace::values() {
    SharedTexts texts;
    const QString all =
        m_server.query(u"select string_agg(convert_from(value, 'UTF8'), E'\\x01') from guide.user_values"_s);
    for (const QString& each : all.split(u'\x01', Qt::SkipEmptyParts)) {
        insert(texts, each.toUtf8());
    }
    return texts;
}

QString DatabasePlace::writes() {
    return m_server.query(u"select string_agg(write::text, ',' order by key) from guide.user_values"_s);
}

} // namespace guide::test
