#include "core/ObjectId.h"

#include <algorithm>

namespace guide {

namespace {

constexpr ObjectId::Bytes kPopular{0x59, 0xe1, 0xd5, 0xed, 0x80, 0xbc, 0xfc, 0xbc, 0x75, 0xd8, 0x9f, 0xae};
constexpr ObjectId::Bytes kAll{0x59, 0xe1, 0xd5, 0xf2, 0x80, 0xbc, 0xfc, 0xbc, 0x75, 0xd8, 0x9f, 0xaf};

constexpr qsizetype kDigits = 24;

int hexDigit(QChar character) {
    const char16_t c = character.unicode();
    if (c >= u'0' && c <= u'9') {
        return c - u'0';
    }
    if (c >= u'a' && c <= u'f') {
        return c - u'a' + 10;
    }
    if (c >= u'A' && c <= u'F') {
        return c - u'A' + 10;
    }
    return -1;
}

std::uint8_t scannedPair(QChar first, QChar second) {
    const int low = hexDigit(second);
    if (first.isSpace()) {
        return static_cast<std::uint8_t>(std::max(low, 0));
    }
    const int high = hexDigit(first);
    if (high < 0) {
        return 0;
    }
    return static_cast<std::uint8_t>(low < 0 ? high : high * 16 + low);
}

} // namespace

ObjectId::ObjectId(QByteArrayView data) {
    if (data.size() == static_cast<qsizetype>(m_bytes.size())) {
        std::copy(data.begin(), data.end(), m_bytes.begin());
    }
}

bool ObjectId::isHex(const QString& text) {
    return text.size() == kDigits && std::ranges::all_of(text, [](QChar c) { return hexDigit(c) >= 0; });
}

ObjectId ObjectId::fromHex(const QString& hex) {
    Bytes bytes{};
    if (hex.size() == kDigits) {
        auto byte = bytes.begin();
        for (qsizetype place = 0; place < kDigits; place += 2) {
            *byte++ = scannedPair(hex[place], hex[place + 1]);
        }
    }
    return ObjectId(bytes);
}

const ObjectId& ObjectId::popular() {
    static const ObjectId id(kPopular);
    return id;
}

const ObjectId& ObjectId::all() {
    static const ObjectId id(kAll);
    return id;
}

QString ObjectId::hex() const {
    return QString::fromLatin1(data().toHex());
}

QByteArray ObjectId::data() const {
    return {reinterpret_cast<const char*>(m_bytes.data()), static_cast<qsizetype>(m_bytes.size())};
}

std::uint64_t ObjectId::hash() const {
    std::uint64_t hash = 5381;
    for (const std::uint8_t byte : m_bytes) {
        hash = hash * 33 + byte;
    }
    return hash;
}

} // namespace guide
