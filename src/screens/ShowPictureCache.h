#pragma once

#include "core/ObjectId.h"
#include "screens/kit/PictureKey.h"

#include <QHash>
#include <QImage>
#include <QString>
#include <QUrl>

#include <cstdint>
#include <list>
#include <mutex>
#include <optional>
#include <unordered_map>

namespace guide {

/// A bounded cache of the pictures of shows: of rows, by channel and show identifier, and of pages, by
/// address. Drops the least recently used ones. Any thread.
class ShowPictureCache {
  public:
    static constexpr qsizetype kMaxBytes = 32 * 1024 * 1024;

    explicit ShowPictureCache(qsizetype maxBytes = kMaxBytes)
        : m_maxBytes(maxBytes) {}

    /// Unset when the picture was never inserted or was dropped; an empty key when the show has none.
    std::optional<PictureKey> find(const ObjectId& channel, const QString& showIdentifier) const;
    /// A null image records that the show has no picture. A picture that replaces another one gets a new key.
    void insert(const ObjectId& channel, const QString& showIdentifier, const QImage& image);
    // No show is broadcast by the pseudo-channel.
    std::optional<PictureKey> find(const QUrl& url) const { return find(ObjectId::all(), url.toString()); }
    void insert(const QUrl& url, const QImage& image) { insert(ObjectId::all(), url.toString(), image); }
    void forgetChannel(const ObjectId& channel);
    void clear();

    /// The image of a key's name; null when it was dropped.
    QImage image(const QString& name);

  private:
    struct Picture {
        ObjectId channel;
        QString showIdentifier;
        /// Empty without an image.
        QString name;
        QImage image;
    };
    using Pictures = std::list<Picture>;

    // With the guard held.
    static qsizetype cost(const Picture& picture);
    void erase(Pictures::iterator picture);

    const qsizetype m_maxBytes;
    mutable std::mutex m_guard;
    Pictures m_pictures; // guarded; most recently used first
    std::unordered_map<ObjectId, QHash<QString, Pictures::iterator>> m_byShow; // guarded
    QHash<QString, Pictures::iterator> m_byName;                               // guarded
    qsizetype m_bytes = 0;                                                     // guarded
    std::uint64_t m_inserted = 0;                                              // guarded
};

} // namespace guide
