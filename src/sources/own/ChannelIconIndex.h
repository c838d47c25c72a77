#pragma once

#include "platform/Moment.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

#include <optional>

namespace guide {

/// What is known about the pictures in the folder of channel icons, kept in a file there. It has digests
/// instead of addresses, which may be secret.
class ChannelIconIndex {
  public:
    static constexpr auto kFileName = QLatin1StringView("index.json");

    explicit ChannelIconIndex(const QString& folder);

    static QByteArray digestOf(const QString& address);

    struct Picture {
        QByteArray origin;
        Moment fetched;
    };
    std::optional<Picture> picture(const QString& channel) const;
    /// A channel whose picture comes from there.
    std::optional<QString> channelWith(const QByteArray& origin) const;
    void setPicture(const QString& channel, const Picture& picture);
    void removePicture(const QString& channel);
    /// Removes those of all other channels, and failures that are over.
    void keepOnly(const QSet<QString>& channels, Moment now);

    bool hasFailed(const QByteArray& address, Moment now) const;
    void setFailed(const QByteArray& address, Moment until);

    /// Writes the file if something has changed.
    void save();

  private:
    const QString m_path;
    QHash<QString, Picture> m_pictures;
    /// May name channels that have another picture by now.
    QHash<QByteArray, QString> m_channels;
    QHash<QByteArray, Moment> m_failedUntil;
    bool m_isChanged = false;
};

} // namespace guide
