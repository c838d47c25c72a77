#include "platform/archive/KeyedArchiver.h"

#include "platform/archive/ArchiveContainer.h"
#include "platform/encoding/Utf8.h"

#include <QtEndian>

#include <algorithm>

namespace guide {

namespace {

// CBOR major types, the upper three bits of a head.
constexpr std::uint8_t kUnsigned = 0x00;
constexpr std::uint8_t kNegative = 0x20;
constexpr std::uint8_t kBytes = 0x40;
constexpr std::uint8_t kText = 0x60;
constexpr std::uint8_t kArray = 0x80;
constexpr std::uint8_t kMap = 0xa0;
constexpr std::uint8_t kTag = 0xc0;
constexpr std::uint8_t kSimple = 0xe0;

constexpr std::uint64_t kFalse = 20;
constexpr std::uint64_t kTrue = 21;

constexpr std::size_t kFirstCapacity = 64 * 1024;
constexpr std::size_t kLongestHead = 9;

// The head of a value: its kind and its number in the shortest form.
struct EncodedHead {
    std::array<char, kLongestHead> bytes;
    std::size_t size;
};

EncodedHead encodedHead(std::uint8_t kind, std::uint64_t value) {
    EncodedHead head{};
    char* out = head.bytes.data();
    if (value < 24) {
        out[0] = static_cast<char>(kind | value);
        head.size = 1;
    } else if (value <= 0xff) {
        out[0] = static_cast<char>(kind | 24);
        out[1] = static_cast<char>(value);
        head.size = 2;
    } else if (value <= 0xffff) {
        out[0] = static_cast<char>(kind | 25);
        qToBigEndian(static_cast<quint16>(value), out + 1);
        head.size = 3;
    } else if (value <= 0xffff'ffff) {
        out[0] = static_cast<char>(kind | 26);
        qToBigEndian(static_cast<quint32>(value), out + 1);
        head.size = 5;
    } else {
        out[0] = static_cast<char>(kind | 27);
        qToBigEndian(static_cast<quint64>(value), out + 1);
        head.size = 9;
    }
    return head;
}

} // namespace

KeyedArchiver::KeyedArchiver() {
    room(kArchiveHeaderSize);
}

void KeyedArchiver::grow(std::size_t count) {
    m_capacity = std::max({kFirstCapacity, m_capacity * 2, m_size + count});
    m_data.resize(static_cast<qsizetype>(m_capacity));
    m_begin = m_data.data();
}

void KeyedArchiver::appendHead(std::uint8_t kind, std::uint64_t value) {
    if (value < 24) {
        *room(1) = static_cast<char>(kind | value);
        return;
    }
    const EncodedHead head = encodedHead(kind, value);
    std::memcpy(room(head.size), head.bytes.data(), head.size);
}

void KeyedArchiver::appendBytes(const void* bytes, std::size_t count) {
    appendHead(kBytes, count);
    if (count > 0) {
        std::memcpy(room(count), bytes, count);
    }
}

void KeyedArchiver::append(QStringView text) {
    // Reserves the head that the text needs if it is ASCII, and moves the text if it needs another one.
    const auto units = static_cast<std::size_t>(text.size());
    const std::size_t expected = encodedHead(kText, units).size;
    const std::size_t start = m_size;
    char* const free = room(kLongestHead + units * 3) + expected;
    const auto count = static_cast<std::size_t>(writeUtf8(text, free) - free);
    const EncodedHead head = encodedHead(kText, count);
    if (head.size != expected) {
        std::memmove(free + (head.size - expected), free, count);
    }
    std::memcpy(m_begin + start, head.bytes.data(), head.size);
    m_size = start + head.size + count;
}

void KeyedArchiver::append(const QUrl& url) {
    appendText(url.toEncoded());
}

void KeyedArchiver::appendText(QByteArrayView utf8) {
    const auto count = static_cast<std::size_t>(utf8.size());
    appendHead(kText, count);
    if (count > 0) {
        std::memcpy(room(count), utf8.data(), count);
    }
}

void KeyedArchiver::beginRecord() {
    m_records.push_back({m_size, 0});
    room(1);
}

void KeyedArchiver::endRecord() {
    const OpenRecord record = m_records.back();
    m_records.pop_back();
    const EncodedHead head = encodedHead(kMap, record.count);
    if (head.size > 1) {
        room(head.size - 1);
        char* content = m_begin + record.head;
        std::memmove(content + head.size, content + 1, m_size - record.head - head.size);
    }
    std::memcpy(m_begin + record.head, head.bytes.data(), head.size);
}

QByteArray KeyedArchiver::finish() && {
    m_data.truncate(static_cast<qsizetype>(m_size));
    sealArchive(m_data);
    return std::move(m_data);
}

KeyedUnarchiver::KeyedUnarchiver(QByteArrayView archive) {
    if (const std::optional<QByteArrayView> content = archiveContent(archive)) {
        m_at = content->data();
        m_end = m_at + content->size();
    } else {
        m_failed = true;
    }
}

KeyedUnarchiver::Kind KeyedUnarchiver::kind() const {
    if (m_at == m_end) {
        return Kind::End;
    }
    const auto first = static_cast<std::uint8_t>(*m_at);
    switch (first & 0xe0) {
    case kUnsigned:
    case kNegative:
        return Kind::Integer;
    case kBytes:
        return Kind::Bytes;
    case kText:
        return Kind::Text;
    case kArray:
        return Kind::Array;
    case kMap:
        return Kind::Record;
    default:
        return first == (kSimple | kFalse) || first == (kSimple | kTrue) ? Kind::Bool : Kind::Other;
    }
}

KeyedUnarchiver::Head KeyedUnarchiver::head() {
    if (m_at == m_end) {
        fail();
        return {};
    }
    const auto first = static_cast<std::uint8_t>(*m_at++);
    const auto kind = static_cast<std::uint8_t>(first & 0xe0);
    const std::uint8_t small = first & 0x1f;
    if (small < 24) {
        return {kind, small};
    }
    // 28 to 30 are reserved, 31 means an indefinite length; KeyedArchiver writes neither.
    if (small > 27 || remaining() < std::size_t{1} << (small - 24)) {
        fail();
        return {};
    }
    const char* number = m_at;
    m_at += std::size_t{1} << (small - 24);
    switch (small) {
    case 24:
        return {kind, static_cast<std::uint8_t>(*number)};
    case 25:
        return {kind, qFromBigEndian<quint16>(number)};
    case 26:
        return {kind, qFromBigEndian<quint32>(number)};
    default:
        return {kind, qFromBigEndian<quint64>(number)};
    }
}

std::size_t KeyedUnarchiver::array() {
    const Head read = head();
    if (m_failed || read.kind != kArray || read.value > remaining()) {
        fail();
        return 0;
    }
    return static_cast<std::size_t>(read.value);
}

std::size_t KeyedUnarchiver::recordSize() {
    const Head read = head();
    if (m_failed || read.kind != kMap || read.value > remaining() / 2) {
        fail();
        return 0;
    }
    return static_cast<std::size_t>(read.value);
}

std::int64_t KeyedUnarchiver::integer() {
    const Head read = head();
    if (m_failed || (read.kind != kUnsigned && read.kind != kNegative) || read.value > INT64_MAX) {
        fail();
        return 0;
    }
    const auto value = static_cast<std::int64_t>(read.value);
    return read.kind == kNegative ? ~value : value;
}

QByteArrayView KeyedUnarchiver::stringOf(std::uint8_t kind) {
    const Head read = head();
    if (m_failed || read.kind != kind || read.value > remaining()) {
        fail();
        return {};
    }
    const QByteArrayView bytes(m_at, static_cast<qsizetype>(read.value));
    m_at += read.value;
    return bytes;
}

void KeyedUnarchiver::decode(QString& text) {
    const QByteArrayView bytes = stringOf(kText);
    if (m_failed) {
        return;
    }
    if (!readUtf8(bytes, text)) {
        fail();
    }
}

void KeyedUnarchiver::decode(RepeatedText& text) {
    const QByteArrayView bytes = stringOf(kText);
    if (m_failed || (bytes.size() == text.bytes.size() && !text.text.isNull() && bytes == text.bytes)) {
        return;
    }
    text.bytes = bytes;
    if (!readUtf8(bytes, text.text)) {
        fail();
    }
}

void KeyedUnarchiver::decode(QByteArray& bytes) {
    const QByteArrayView read = stringOf(kBytes);
    if (!m_failed) {
        bytes = read.toByteArray();
    }
}

void KeyedUnarchiver::decode(QUrl& url) {
    const QByteArrayView bytes = textBytes();
    if (!m_failed) {
        url = QUrl::fromEncoded(bytes.toByteArray());
    }
}

QByteArrayView KeyedUnarchiver::textBytes() {
    return stringOf(kText);
}

void KeyedUnarchiver::decode(bool& value) {
    const Head read = head();
    if (m_failed || read.kind != kSimple || (read.value != kFalse && read.value != kTrue)) {
        fail();
        return;
    }
    value = read.value == kTrue;
}

void KeyedUnarchiver::skip() {
    // Counts the values that remain instead of recursing.
    std::uint64_t values = 1;
    while (values > 0 && !m_failed) {
        --values;
        const Head read = head();
        std::uint64_t inside = 0;
        switch (read.kind) {
        case kBytes:
        case kText:
            if (read.value > remaining()) {
                fail();
                return;
            }
            m_at += read.value;
            break;
        case kArray:
            inside = read.value;
            break;
        case kMap:
            inside = read.value > remaining() ? read.value : read.value * 2;
            break;
        case kTag:
            inside = 1;
            break;
        default:
            break;
        }
        if (inside > remaining() || values > remaining() - inside) {
            fail();
            return;
        }
        values += inside;
    }
}

} // namespace guide
