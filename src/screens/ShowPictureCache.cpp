#include "screens/ShowPictureCache.h"

namespace guide {

std::optional<PictureKey> ShowPictureCache::find(const ObjectId& channel,
                                                 const QString& showIdentifier) const {
    const std::lock_guard lock(m_guard);
    const auto pictures = m_byShow.find(channel);
    if (pictures == m_byShow.end()) {
        return std::nullopt;
    }
    const auto found = pictures->second.constFind(showIdentifier);
    if (found == pictures->second.cend()) {
        return std::nullopt;
    }
    const QString& name = (*found)->name;
    return name.isEmpty() ? PictureKey() : PictureKey{PictureKey::Kind::Show, name};
}

void ShowPictureCache::insert(const ObjectId& channel, const QString& showIdentifier, const QImage& image) {
    const std::lock_guard lock(m_guard);
    if (const auto pictures = m_byShow.find(channel); pictures != m_byShow.end()) {
        if (const auto known = pictures->second.constFind(showIdentifier); known != pictures->second.cend()) {
            erase(*known);
        }
    }
    const QString name = image.isNull() ? QString() : QString::number(++m_inserted);
    m_pictures.push_front({channel, showIdentifier, name, image});
    m_byShow[channel].insert(showIdentifier, m_pictures.begin());
    if (!name.isEmpty()) {
        m_byName.insert(name, m_pictures.begin());
    }
    m_bytes += cost(m_pictures.front());
    while (m_bytes > m_maxBytes) {
        erase(std::prev(m_pictures.end()));
    }
}

void ShowPictureCache::forgetChannel(const ObjectId& channel) {
    const std::lock_guard lock(m_guard);
    const auto pictures = m_byShow.find(channel);
    if (pictures != m_byShow.end()) {
        const QHash<QString, Pictures::iterator> forgotten = pictures->second;
        for (const Pictures::iterator picture : forgotten) {
            erase(picture);
        }
    }
}

void ShowPictureCache::clear() {
    const std::lock_guard lock(m_guard);
    m_byName.clear();
    m_byShow.clear();
    m_pictures.clear();
    m_bytes = 0;
}

QImage ShowPictureCache::image(const QString& name) {
    const std::lock_guard lock(m_guard);
    const auto found = m_byName.constFind(name);
    if (found == m_byName.cend()) {
        return {};
    }
    m_pictures.splice(m_pictures.begin(), m_pictures, *found);
    return (*found)->image;
}

qsizetype ShowPictureCache::cost(const Picture& picture) {
    constexpr qsizetype kRecord = 512;
    return kRecord + picture.image.sizeInBytes();
}

void ShowPictureCache::erase(Pictures::iterator picture) {
    m_bytes -= cost(*picture);
    m_byName.remove(picture->name);
    const auto pictures = m_byShow.find(picture->channel);
    pictures->second.remove(picture->showIdentifier);
    if (pictures->second.isEmpty()) {
        m_byShow.erase(pictures);
    }
    m_pictures.erase(picture);
}

} // namespace guide
