#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace guide {

/// The identity of a channel: 12 bytes, written as 24 lowercase hexadecimal digits.
class ObjectId {
  public:
    using Bytes = std::array<std::uint8_t, 12>;

    /// Exactly 12 bytes are taken; any other length gives 12 zero bytes.
    explicit ObjectId(QByteArrayView data);
    explicit ObjectId(const Bytes& bytes)
        : m_bytes(bytes) {}
    /// Exactly 24 characters, two for each byte. A pair is scanned as hexadecimal, skipping leading blanks,
    /// and stops at the first other character ("1g" is 1); a pair that does not scan is 0, any other length
    /// is 12 zero bytes.
    static ObjectId fromHex(const QString& hex);
    /// Whether the text is exactly 24 hexadecimal digits, in either case.
    static bool isHex(const QString& text);

    /// The pseudo-channel of the most watched shows, and that of all shows of all channels.
    static const ObjectId& popular();
    static const ObjectId& all();

    /// Whether it is the channel of a source that the user added.
    bool isOwn() const { return m_bytes[0] == kOwnMark; }
    /// The first byte of such ids.
    static constexpr std::uint8_t kOwnMark = 0xff;

    QString hex() const;
    QByteArray data() const;
    const Bytes& bytes() const { return m_bytes; }

    /// 5381, then times 33 plus the byte for each of the 12, wrapping at 64 bits.
    std::uint64_t hash() const;

    friend bool operator==(const ObjectId&, const ObjectId&) = default;
    friend auto operator<=>(const ObjectId&, const ObjectId&) = default;

  private:
    Bytes m_bytes{};
};

} // namespace guide

template <>
struct std::hash<guide::ObjectId> {
    std::size_t operator()(const guide::ObjectId& id) const noexcept {
        return static_cast<std::size_t>(id.hash());
    }
};
