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
/// keys to values; a value that is unset is left out with its key. The content is CBOR of definite lengths: a
/// moment is its milliseconds since 1970, a URL its encoded text.
class KeyedArchiver {
  public:
    KeyedArchiver();
    KeyedArchiver(const KeyedArchiver&) = delete;
    KeyedArchiver& operator=(const KeyedArchiver&) = delete;

    /// Opens an array; exactly `count` values have to follow.
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

    /// One keyed value of the open record. What stands inside it may be opened by `key` and the calls above.
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
    /// The key alone; its value has to follow.
    template <std::size_t N>
    void key(const char (&key)[N]) {
        static_assert(N - 1 <= kArchiveKeyLimit);
        ++m_records.back().count;
        char* at = room(N);
        at[0] = static_cast<char>(0x60 + (N - 1));
        std::memcpy(at + 1, key, N - 1);
    }

    /// The archive: signature, version, checksum and what was written.
    QByteArray finish() &&;

  private:
    struct OpenRecord {
        std::size_t head;
        std::size_t count;
    };

    /// The place of the next `count` bytes, which are then to be written.
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

/// A text that comes again and again in one archive (a language, a source): equal bytes in a row share one
/// string.
struct RepeatedText {
    QByteArrayView bytes;
    QString text;
};

/// One field of a record: its key and where the value goes, or a function that reads it from the unarchiver.
template <std::size_t N, class Target>
struct KeyedField {
    const char (&key)[N];
    Target& target;
};

/// `field("title", title)`, an argument of KeyedUnarchiver::record.
template <std::size_t N, class Target>
KeyedField<N, Target> field(const char (&key)[N], Target& target) {
    static_assert(N - 1 <= kArchiveKeyLimit);
    return {key, target};
}

/// Reads what KeyedArchiver wrote, value by value, over bytes that outlive it; the texts it gives are copies.
/// What is damaged, cut short or of another kind than asked for ends the reading: from then on every call
/// gives nothing and failed() is true. Reading never goes deeper than its caller does.
class KeyedUnarchiver {
  public:
    enum class Kind { Integer, Bytes, Text, Array, Record, Bool, Other, End };

    /// Over an archive; failed() at once when its signature, version or checksum is wrong.
    explicit KeyedUnarchiver(QByteArrayView archive);
    /// Over the content alone, unchecked.
    static KeyedUnarchiver overContent(QByteArrayView content) {
        return KeyedUnarchiver(content, Unchecked{});
    }

    bool failed() const { return m_failed; }
    /// Everything was read, to the last byte.
    bool finished() const { return !m_failed && m_at == m_end; }
    /// What the next value is.
    Kind kind() const;

    /// Enters an array and gives the number of its values, which are to be read next. Never more than the
    /// bytes that are left.
    std::size_t array();

    /// Reads a record into its fields, each in a form that `decode` takes: quickest in the order of writing,
    /// any order is understood. A field that the record lacks keeps what it had, one that nobody asks for is
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
    /// Bytes of another length leave the target as it was.
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

    /// Passes over the next value and all that is in it.
    void skip();

  private:
    struct Unchecked {};
    KeyedUnarchiver(QByteArrayView content, Unchecked);

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
