#include "core/MirroredFile.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QDebug>
#include <QFile>

#include <cstdio>
#include <mutex>
#include <optional>
#include <unistd.h>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostDamagedFiles = 3;

QByteArray damagedFile(const QString& path, int number) {
    return QFile::encodeName(path + ".damaged-"_L1 + QString::number(number));
}

/// The file also keeps its own name, so that a crash does not make it look missing; where that is impossible
/// it is moved.
void keepDamagedFile(const QString& path) {
    for (int number = kMostDamagedFiles; number > 1; --number) {
        std::rename(damagedFile(path, number - 1).constData(), damagedFile(path, number).constData());
    }
    const QByteArray damaged = QFile::encodeName(path);
    const QByteArray copy = damagedFile(path, 1);
    if (::link(damaged.constData(), copy.constData()) != 0) {
        std::rename(damaged.constData(), copy.constData());
    }
}

} // namespace

struct MirroredFile::State {
    const Place place;
    KeyValueStore& keyValueStore;
    const std::shared_ptr<DispatchQueue> writer;

    struct Unwritten {
        std::function<Content()> makeContent;
        /// The copy of another device that it comes from; undefined when there is none.
        std::optional<QCborValue> taken;
    };

    std::mutex guard;
    std::shared_ptr<const Unwritten> unwritten; // guarded
    bool damaged = false;                       // guarded; the file has to be kept when it is replaced

    void replaceUnwritten(Unwritten content) {
        if (place.writable) {
            const std::lock_guard lock(guard);
            unwritten = std::make_shared<const Unwritten>(std::move(content));
        }
    }

    QString mark() const { return place.path + ".unshared"_L1; }

    // On the writer queue. False when the key-value store refused the copy.
    bool share(const QCborValue& copy, const std::optional<QCborValue>& taken) {
        if (taken && taken->isUndefined()) {
            keyValueStore.setMissingValue(place.key, copy);
            return true;
        }
        if (taken) {
            if (copy != *taken && keyValueStore.valueForKey(place.key).value_or(QCborValue()) == *taken) {
                keyValueStore.setValue(place.key, copy);
            }
            return true;
        }
        // What the store has only in memory would be lost with the process.
        if (keyValueStore.setValue(place.key, copy) && keyValueStore.flush()) {
            QFile::remove(mark());
            return true;
        }
        qWarning().noquote() << "MirroredFile: the key-value store refused" << place.key;
        return false;
    }

    // On the writer queue.
    bool write() {
        std::shared_ptr<const Unwritten> newest;
        bool keep = false;
        {
            const std::lock_guard lock(guard);
            if (!unwritten) {
                return true;
            }
            newest = unwritten;
            keep = std::exchange(damaged, false);
        }
        if (keep) {
            keepDamagedFile(place.path);
        }
        const Content content = newest->makeContent();
        if (!replaceFile(place.path, content.file)) {
            qWarning().noquote() << "MirroredFile: cannot write" << place.path;
            return false;
        }
        if (!newest->taken) {
            // Before the key: after a process that ends in between, the next one must not take the older copy
            // for a newer one.
            QFile unshared(mark());
            unshared.open(QIODevice::WriteOnly);
        }
        if (!share(content.copy, newest->taken)) {
            return false;
        }
        const std::lock_guard lock(guard);
        if (unwritten == newest) {
            unwritten = nullptr;
        }
        return true;
    }
};

MirroredFile::MirroredFile(Place place, KeyValueStore& keyValueStore, std::shared_ptr<DispatchQueue> writer)
    : m_state(std::make_shared<State>(std::move(place), keyValueStore, std::move(writer))) {}

MirroredFile::~MirroredFile() {
    finishWriting();
    // Leaves nothing to write for a block that is still queued.
    const std::lock_guard lock(m_state->guard);
    m_state->unwritten = nullptr;
}

MirroredFile::Found MirroredFile::read(const std::function<bool(const QByteArray&)>& takeFile,
                                       const std::function<bool(const QCborValue&)>& takeCopy) {
    const Place& place = m_state->place;
    const std::optional<QByteArray> content = fileContent(place.path, place.mostBytes);
    const bool intact = content && takeFile(*content);
    const bool damaged = !intact && QFile::exists(place.path);
    {
        const std::lock_guard lock(m_state->guard);
        m_state->damaged = damaged;
    }
    if (!damaged) {
        return intact ? Found::File : Found::Nothing;
    }
    const std::optional<QCborValue> copy = m_state->keyValueStore.valueForKey(place.key);
    const bool copied = copy && takeCopy(*copy);
    qWarning().noquote() << "MirroredFile:" << place.path
                         << (copied ? "is damaged, using the copy" : "is damaged");
    return copied ? Found::Copy : Found::Nothing;
}

bool MirroredFile::hasCopy() const {
    return m_state->keyValueStore.valueForKey(m_state->place.key).has_value();
}

bool MirroredFile::wasRefused() const {
    return QFile::exists(m_state->mark());
}

void MirroredFile::write(std::function<Content()> makeContent) {
    m_state->replaceUnwritten({std::move(makeContent), {}});
    retryWriting();
}

void MirroredFile::writeTaken(std::function<Content()> makeContent, QCborValue taken) {
    m_state->replaceUnwritten({std::move(makeContent), std::move(taken)});
    retryWriting();
}

void MirroredFile::writeMissing(std::function<Content()> makeContent) {
    writeTaken(std::move(makeContent), QCborValue());
}

void MirroredFile::beforeWriting(Block block) {
    if (m_state->place.writable && block) {
        m_state->writer->asyncBarrier(std::move(block));
    }
}

bool MirroredFile::hasUnshared() const {
    const std::lock_guard lock(m_state->guard);
    return m_state->unwritten && !m_state->unwritten->taken;
}

void MirroredFile::retryWriting() {
    if (m_state->place.writable) {
        m_state->writer->asyncBarrier([state = m_state] { state->write(); });
    }
}

bool MirroredFile::finishWriting() {
    {
        const std::lock_guard lock(m_state->guard);
        if (!m_state->unwritten) {
            return true;
        }
    }
    std::optional<bool> written;
    m_state->writer->sync([this, &written] { written = m_state->write(); });
    // After the queues have shut down the block is dropped and no other thread writes.
    return written ? *written : m_state->write();
}

void MirroredFile::removeDamaged() {
    if (m_state->place.writable) {
        m_state->writer->asyncBarrier([state = m_state] {
            const bool isDamaged = [&state] {
                const std::lock_guard lock(state->guard);
                return std::exchange(state->damaged, false);
            }();
            if (isDamaged) {
                QFile::remove(state->place.path);
            }
            for (int number = 1; number <= kMostDamagedFiles; ++number) {
                std::remove(damagedFile(state->place.path, number).constData());
            }
        });
    }
}

} // namespace guide
