#pragma once

#include "platform/Moment.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <array>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

namespace guide {

/// The longest key of a record, in bytes.
inline constexpr std::size_t kArchiveKeyLimit = 23;

/// Writes an archive of arrays, records and values, in the order of the calls. A record is a map from short
/// keys to values; unset values are omitted together with their keys. The content is CBOR with definite
/// lengths; a moment is its milliseconds since 1970, a URL its encoded text.
///
/// QCborStreamWriter is not used: it needs the number of fields before the first one, and for 200 lists of
/// 280 shows it takes 68 ms of CPU where this class takes 35. Writing 200 lists would then exceed its
/// budget, which is twice the time of writing their bytes.
class KeyedArchiver {
  public:
    KeyedArchiver();
    KeyedArchiver(const KeyedArchiver&) = delete;
    KeyedArchiver& operator=(const KeyedArchiver&) = delete;

    /// Begins an array; exactly `count` values must follow.
    void beginArray(std::size_t count) { appendHead(0x80, count); }
    void beginRecord();
    void endRecord();

    void append(QStringView text);
    void append(const QString& text) { append(QStringView(text)); }
    void append(const QByteArray& bytes) {
        appendBytes(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    }
    template <std::size_t N>
    void append(const std::array<std::uint8_t, N>& bytes) {
        appendBytes(bytes.data(), N);
    }
    template <std::same_as<bool> T>
    void append(T value) {
        *room(1) = value ? '\xf5' : '\xf4';
    }
    template <std::integral T>
        requires(!std::same_as<T, bool>)
    void append(T value) {
        if (value < T{}) {
            appendHead(0x20, ~static_cast<std::uint64_t>(static_cast<std::int64_t>(value)));
        } else {
            appendHead(0x00, static_cast<std::uint64_t>(value));
        }
    }
    void append(Moment moment) { append(static_cast<std::int64_t>(moment.time_since_epoch().count())); }
    void append(const QUrl& url);
    /// A text in UTF-8.
    void appendText(QByteArrayView utf8);

    /// A field of the open record. For a nested array or record, call `key` and then the functions above.
    template <std::size_t N, class T>
    void encode(const char (&key)[N], const T& value) {
        this->key(key);
        append(value);
    }
    template <std::size_t N, class T>
    void encode(const char (&key)[N], const std::optional<T>& value) {
        if (value) {
            encode(key, *value);
        }
    }
    /// The key alone; its value must follow.
    template <std::size_t N>
    void key(const char (&key)[N]) {
        static_assert(N - 1 <= kArchiveKeyLimit);
        ++m_records.back().count;
        char* at = room(N);
        at[0] = static_cast<char>(0x60 + (N - 1));
        std::memcpy(at + 1, key, N - 1);
    }

    /// Returns the archive: header and content.
    QByteArray finish() &&;

  private:
    struct OpenRecord {
        std::size_t head;
        std::size_t count;
    };

    /// Returns where the next `count` bytes go; the caller must write them all.
    char* room(std::size_t count) {
        if (m_capacity - m_size < count) {
            grow(count);
        }
        char* at = m_begin + m_size;
        m_size += count;
        return at;
    }
    void grow(std::size_t count);
    void appendHead(std::uint8_t kind, std::uint64_t value);
    void appendBytes(const void* bytes, std::size_t count);

    QByteArray m_data;
    char* m_begin = nullptr;
    std::size_t m_capacity = 0;
    std::size_t m_size = 0;
    std::vector<OpenRecord> m_records;
};

/// A text that repeats within an archive, such as a language or a source. Consecutive equal values share one
/// string.
struct RepeatedText {
    QByteArrayView bytes;
    QString text;
};

/// A field of a record: its key, and the target of its value or a function that reads it from the unarchiver.
template <std::size_t N, class Target>
struct KeyedField {
    const char (&key)[N];
    Target& target;
};

/// Makes an argument for KeyedUnarchiver::record: `field("title", title)`.
template <std::size_t N, class Target>
KeyedField<N, Target> field(const char (&key)[N], Target& target) {
    static_assert(N - 1 <= kArchiveKeyLimit);
    return {key, target};
}

/// Reads what KeyedArchiver wrote, value by value. The bytes must outlive the reader; texts are copied.
/// Reading stops at the first value that is damaged, truncated or of an unexpected kind: from then on every
/// call returns nothing and failed() is true. Reading itself never recurses.
class KeyedUnarchiver {
  public:
    enum class Kind { Integer, Bytes, Text, Array, Record, Bool, Other, End };

    /// Reads an archive; failed() is true at once when the signature, version or checksum is wrong.
    explicit KeyedUnarchiver(QByteArrayView archive);
    bool failed() const { return m_failed; }
    /// True when every byte was read without a failure.
    bool finished() const { return !m_failed && m_at == m_end; }
    /// The kind of the next value.
    Kind kind() const;

    /// Begins an array and returns the number of its values, which must be read next. Never more than the
    /// number of bytes left.
    std::size_t array();

    /// Reads a record into fields whose targets `decode` accepts. Fields may be in any order; reading is
    /// fastest in the order of writing. A field that the record lacks keeps its value, and unknown fields are
    /// skipped.
    template <class... Fields>
    void record(const Fields&... fields) {
        std::size_t left = recordSize();
        (readExpected(left, fields), ...);
        while (left > 0 && !m_failed) {
            --left;
            if (!(readNamed(fields) || ...)) {
                skip();
                skip();
            }
        }
    }

    void decode(QString& text);
    void decode(RepeatedText& text);
    void decode(QByteArray& bytes);
    void decode(QUrl& url);
    void decode(bool& value);
    void decode(Moment& moment) { moment = Moment(std::chrono::milliseconds(integer())); }
    template <std::integral T>
        requires(!std::same_as<T, bool>)
    void decode(T& value) {
        const std::int64_t read = integer();
        if (!std::in_range<T>(read)) {
            fail();
            return;
        }
        value = static_cast<T>(read);
    }
    /// Leaves the target unchanged when the length differs.
    template <std::size_t N>
    void decode(std::array<std::uint8_t, N>& bytes) {
        const QByteArrayView read = stringOf(0x40);
        if (read.size() == static_cast<qsizetype>(N)) {
            std::memcpy(bytes.data(), read.data(), N);
        }
    }
    template <class T>
    void decode(std::optional<T>& value) {
        decode(value.emplace());
        if (m_failed) {
            value.reset();
        }
    }
    template <std::invocable<KeyedUnarchiver&> Function>
    void decode(Function& function) {
        function(*this);
    }

    /// The bytes of a text, which are not checked for being UTF-8. Valid as long as the archive.
    QByteArrayView textBytes();

    /// Skips the next value and everything in it.
    void skip();

  private:
    struct Head {
        std::uint8_t kind;
        std::uint64_t value;
    };

    void fail() {
        m_failed = true;
        m_at = m_end;
    }
    std::size_t remaining() const { return static_cast<std::size_t>(m_end - m_at); }
    Head head();
    std::size_t recordSize();
    std::int64_t integer();
    QByteArrayView stringOf(std::uint8_t kind);

    template <std::size_t N>
    bool takeKey(const char (&key)[N]) {
        if (remaining() < N || static_cast<std::uint8_t>(*m_at) != 0x60 + (N - 1) ||
            std::memcmp(m_at + 1, key, N - 1) != 0) {
            return false;
        }
        m_at += N;
        return true;
    }
    template <class Field>
    void readExpected(std::size_t& left, const Field& field) {
        if (left > 0 && takeKey(field.key)) {
            --left;
            decode(field.target);
        }
    }
    template <class Field>
    bool readNamed(const Field& field) {
        if (!takeKey(field.key)) {
            return false;
        }
        decode(field.target);
        return true;
    }

    const char* m_at = nullptr;
    const char* m_end = nullptr;
    bool m_failed = false;
};

} // namespace guide
