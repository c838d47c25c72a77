#include "alarms/SynchronizedMark.h"

#include <QFile>

namespace guide {

using namespace Qt::StringLiterals;

SynchronizedMark::SynchronizedMark(const Folders& folders)
    : m_path(folders.caches + u"/.alarms.synchronized"_s)
    , m_writable(folders.writable)
    , m_isSet(QFile::exists(m_path)) {}

bool SynchronizedMark::isSet() const {
    const std::lock_guard lock(m_guard);
    return m_isSet;
}

void SynchronizedMark::set(bool synchronized) {
    const std::lock_guard lock(m_guard);
    m_clearings += synchronized ? 0 : 1;
    write(synchronized);
}

std::uint64_t SynchronizedMark::clearings() const {
    const std::lock_guard lock(m_guard);
    return m_clearings;
}

void SynchronizedMark::setUnlessClearedSince(std::uint64_t clearings) {
    const std::lock_guard lock(m_guard);
    if (m_clearings == clearings) {
        write(true);
    }
}

// Under the guard.
void SynchronizedMark::write(bool synchronized) {
    if (synchronized == m_isSet) {
        return;
    }
    m_isSet = synchronized;
    if (!m_writable) {
        return;
    }
    QFile file(m_path);
    if (synchronized) {
        // A mark that cannot be written costs a full run after the next start.
        (void)file.open(QIODevice::WriteOnly);
    } else {
        file.remove();
    }
}

} // namespace guide
