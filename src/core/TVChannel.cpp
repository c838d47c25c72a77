#include "core/TVChannel.h"

#include "core/ListingsFile.h"
#include "platform/files/FileReplacement.h"

#include <QDateTime>
#include <QDebug>
#include <QFile>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

TVChannel::TVChannel(CatalogueChannel channel, const QString& cachesFolder)
    : m_channel(std::move(channel))
    , m_listingsPath(cachesFolder + u'/' + listingsFileFromChannelIdentificator(m_channel.id)) {}

bool TVChannel::loading() const {
    const std::lock_guard lock(m_guard);
    return m_loading;
}

void TVChannel::setLoading(bool loading) {
    const std::lock_guard lock(m_guard);
    m_loading = loading;
}

std::optional<LoadFailure> TVChannel::loadFailure() const {
    const std::lock_guard lock(m_guard);
    return m_loadFailure;
}

bool TVChannel::setLoadFailure(std::optional<LoadFailure> failure) {
    const std::lock_guard lock(m_guard);
    const std::optional<LoadFailure> previous = std::exchange(m_loadFailure, std::move(failure));
    return m_loadFailure != previous;
}

std::optional<Moment> TVChannel::timeLoaded() const {
    const std::lock_guard lock(m_guard);
    if (!m_timeLoadedCache && !m_reloadRequired) {
        m_timeLoadedCache = fileModificationDate(m_listingsPath);
    }
    return m_timeLoadedCache;
}

void TVChannel::setTimeLoaded(std::optional<Moment> timeLoaded) {
    const std::lock_guard lock(m_guard);
    m_timeLoadedCache = timeLoaded;
    m_reloadRequired = false;
}

void TVChannel::requireReload() {
    const std::lock_guard lock(m_guard);
    m_timeLoadedCache.reset();
    m_reloadRequired = true;
}

bool TVChannel::reloadRequired() const {
    const std::lock_guard lock(m_guard);
    return m_reloadRequired;
}

void TVChannel::endReloadRequest() {
    const std::lock_guard lock(m_guard);
    m_reloadRequired = false;
}

void TVChannel::unload() {
    const std::lock_guard lock(m_guard);
    m_timeLoadedCache.reset();
    QFile::remove(m_listingsPath);
}

void TVChannel::takeLoadStateFrom(const TVChannel& earlier) {
    const std::scoped_lock lock(m_guard, earlier.m_guard);
    m_timeLoadedCache = earlier.m_timeLoadedCache;
    m_reloadRequired = earlier.m_reloadRequired;
    m_loadFailure = earlier.m_loadFailure;
}

bool TVChannel::reloadNeeded(Moment now, std::chrono::seconds automaticUpdateInterval) const {
    const bool isLoading = loading();
    const std::optional<Moment> loaded = timeLoaded();
    qDebug().noquote().nospace() << "channel=" << title() << " loading=" << isLoading << " timeLoaded="
                                 << (loaded ? QDateTime::fromMSecsSinceEpoch(
                                                  loaded->time_since_epoch().count(), Qt::UTC)
                                                  .toString(Qt::ISODate)
                                            : u"nothing"_s);
    return !isLoading && isDue(loaded, now, automaticUpdateInterval);
}

bool TVChannel::isSettled(Moment now, std::chrono::seconds automaticUpdateInterval) const {
    return !loading() && !isDue(timeLoaded(), now, automaticUpdateInterval);
}

bool TVChannel::isDue(const std::optional<Moment>& loaded, Moment now,
                      std::chrono::seconds automaticUpdateInterval) const {
    return !loaded || *loaded > now || (!m_channel.id.isOwn() && now - automaticUpdateInterval > *loaded);
}

} // namespace guide
