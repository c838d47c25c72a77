#include "alarms/RefusedBroadcasts.h"

#include "platform/archive/Archive.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QCborArray>
#include <QDebug>

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostBytes = 1 << 20;

RefusedBroadcasts::EndsByShow readEnds(const QString& path) {
    RefusedBroadcasts::EndsByShow ends;
    const auto content = fileContent(path, kMostBytes);
    const auto root = content ? unarchivedRoot(*content) : std::nullopt;
    for (const auto& value : root ? root->toArray() : QCborArray()) {
        const QCborArray pair = value.toArray();
        const QByteArray bytes = pair.at(0).toByteArray();
        if (bytes.size() == sizeof(ShowDigest) && pair.at(1).isInteger()) {
            ShowDigest show{};
            std::ranges::copy(bytes, show.begin());
            ends.emplace(show, Moment(std::chrono::milliseconds(pair.at(1).toInteger())));
        }
    }
    return ends;
}

QByteArray fileContentOf(const RefusedBroadcasts::EndsByShow& ends) {
    QCborArray array;
    for (const auto& [show, end] : ends) {
        array.append(QCborArray{QByteArray(reinterpret_cast<const char*>(show.data()), sizeof show),
                                static_cast<qint64>(end.time_since_epoch().count())});
    }
    return archivedData(array);
}

} // namespace

RefusedBroadcasts::RefusedBroadcasts(const Folders& folders)
    : m_path(folders.documents + u"/refused-alarms.plist"_s)
    , m_writable(folders.writable) {}

void RefusedBroadcasts::replace(EndsByShow ends) {
    const auto replacement = std::make_shared<const EndsByShow>(std::move(ends));
    {
        const std::lock_guard lock(m_guard);
        m_ends = replacement;
    }
    if (m_writable && !replaceFile(m_path, fileContentOf(*replacement))) {
        qWarning("The broadcasts without alarms cannot be written");
    }
}

std::shared_ptr<const RefusedBroadcasts::EndsByShow> RefusedBroadcasts::all() const {
    const std::lock_guard lock(m_guard);
    if (!m_ends) {
        m_ends = std::make_shared<const EndsByShow>(readEnds(m_path));
    }
    return m_ends;
}

void RefusedBroadcasts::refuse(const ShowDigest& show, Moment end, Moment now) {
    const std::lock_guard lock(m_changing);
    EndsByShow ends = *all();
    std::erase_if(ends, [now](const auto& each) { return each.second <= now; });
    ends.insert_or_assign(show, end);
    replace(std::move(ends));
}

void RefusedBroadcasts::allow(const ShowDigest& show) {
    const std::lock_guard lock(m_changing);
    EndsByShow ends = *all();
    if (ends.erase(show) > 0) {
        replace(std::move(ends));
    }
}

} // namespace guide
