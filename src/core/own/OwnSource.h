#pragma once

#include "core/ObjectId.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace guide {

/// The identity of a source that the user added: made at random when it is added and kept when its address
/// changes.
class OwnSourceId {
  public:
    using Bytes = std::array<std::uint8_t, 8>;

    explicit OwnSourceId(const Bytes& bytes = {})
        : m_bytes(bytes) {}
    static OwnSourceId generate();
    /// Nothing unless the text is 16 hexadecimal digits.
    static std::optional<OwnSourceId> fromHex(const QString& hex);

    QString hex() const;
    const Bytes& bytes() const { return m_bytes; }

    friend bool operator==(const OwnSourceId&, const OwnSourceId&) = default;
    friend auto operator<=>(const OwnSourceId&, const OwnSourceId&) = default;

  private:
    Bytes m_bytes{};
};

/// The identity of a channel of a source: byte ff, then 11 bytes of a digest of the source's id and the
/// channel's key.
ObjectId ownChannelId(const OwnSourceId& source, const QString& key);

enum class OwnSourceKind { Feed, Playlist, Grabber };

/// A channel of a feed, which may belong to another source: a playlist's channels take their schedules from
/// feeds.
struct GuideChannel {
    OwnSourceId source;
    /// The id in the feed.
    QString channel;

    friend bool operator==(const GuideChannel&, const GuideChannel&) = default;
};

/// A channel that the user chose from a source.
struct OwnChannel {
    /// The channel's id in the feed; of a playlist's entry, its key.
    QString key;
    QString title;
    /// Of its texts, such as "cs"; decides how its shows are classified. May be empty.
    QString language = {};
    /// The user set the language.
    bool languageCorrected = false;
    /// Added to the times of its shows, beside that of the source.
    std::chrono::minutes shift{0};
    /// A web address or a path; may be empty.
    QString icon = {};
    /// The address of its live stream; may be empty.
    QString stream = {};
    /// Where its schedule comes from; nothing for a channel that is only played.
    std::optional<GuideChannel> guide = {};

    friend bool operator==(const OwnChannel&, const OwnChannel&) = default;
};

/// What the user decided about an entry of a playlist, chosen or not. Survives every refresh.
struct GuideCorrection {
    /// The key of the entry.
    QString key;
    /// Nothing when the entry has no schedule.
    std::optional<GuideChannel> guide;

    friend bool operator==(const GuideCorrection&, const GuideCorrection&) = default;
};

/// A source of channels that the user added.
struct OwnSource {
    OwnSourceId id;
    OwnSourceKind kind = OwnSourceKind::Feed;
    /// As typed, without what is secret: a web address, or the path of a file, folder or program.
    QString address;
    /// Part of the address is kept by the device's keeper of secrets and must be put back.
    bool hasSecret = false;
    QString name;
    /// Added to all its times.
    std::chrono::minutes shift{0};
    /// Of its country, such as "cs"; expected of channels whose language cannot be told. May be empty.
    QString language = {};
    std::chrono::hours interval{24};
    std::vector<OwnChannel> channels = {};
    std::vector<GuideCorrection> corrections = {};

    friend bool operator==(const OwnSource&, const OwnSource&) = default;
};

} // namespace guide

template <>
struct std::hash<guide::OwnSourceId> {
    std::size_t operator()(const guide::OwnSourceId& id) const noexcept {
        std::uint64_t value = 0;
        for (const std::uint8_t byte : id.bytes()) {
            value = value << 8U | byte;
        }
        return static_cast<std::size_t>(value);
    }
};
