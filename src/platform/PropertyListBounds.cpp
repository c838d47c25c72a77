#include "platform/PropertyListBounds.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

namespace guide {

namespace {

constexpr std::uint64_t kTrailerSize = 32;
constexpr std::uint64_t kHeaderSize = 8;

// A binary list: objects, a table of their offsets, and a trailer that says how both are counted.
class BinaryList {
  public:
    explicit BinaryList(QByteArrayView data)
        : m_data(data)
        , m_size(static_cast<std::uint64_t>(data.size())) {}

    bool isBounded() {
        if (m_size < kHeaderSize + kTrailerSize) {
            return false;
        }
        const std::uint64_t trailer = m_size - kTrailerSize;
        m_offsetSize = number(trailer + 6, 1);
        m_referenceSize = number(trailer + 7, 1);
        m_objectCount = number(trailer + 8, 8);
        const std::uint64_t root = number(trailer + 16, 8);
        m_table = number(trailer + 24, 8);
        if (m_offsetSize < 1 || m_offsetSize > 8 || m_referenceSize < 1 || m_referenceSize > 8 ||
            m_table > trailer || m_objectCount > (trailer - m_table) / m_offsetSize) {
            return false;
        }
        return walk(root);
    }

  private:
    // The references of one array or dictionary that are still to be followed.
    struct Level {
        std::uint64_t nextReference;
        std::uint64_t left;
    };

    bool walk(std::uint64_t root) {
        std::vector<Level> levels;
        int values = 0;
        const auto enter = [&](std::uint64_t object) {
            const std::optional<Level> inside = references(object);
            if (!inside || ++values > kPropertyListValues) {
                return false;
            }
            if (inside->left > 0) {
                levels.push_back(*inside);
            }
            return levels.size() <= static_cast<std::size_t>(kPropertyListDepth);
        };
        if (!enter(root)) {
            return false;
        }
        while (!levels.empty()) {
            Level& level = levels.back();
            if (level.left == 0) {
                levels.pop_back();
                continue;
            }
            const std::uint64_t object = number(level.nextReference, m_referenceSize);
            level.nextReference += m_referenceSize;
            --level.left;
            if (!enter(object)) {
                return false;
            }
        }
        return true;
    }

    // Where an object's references stand and how many they are (none for a plain value); nothing when it is
    // damaged.
    std::optional<Level> references(std::uint64_t object) const {
        if (object >= m_objectCount) {
            return std::nullopt;
        }
        std::uint64_t at = number(m_table + object * m_offsetSize, m_offsetSize);
        if (at >= m_size - kTrailerSize) {
            return std::nullopt;
        }
        const std::uint64_t marker = number(at, 1);
        const std::uint64_t kind = marker >> 4;
        if (kind < 0xa) {
            return Level{0, 0};
        }
        std::uint64_t count = marker & 0xf;
        ++at;
        if (count == 0xf) {
            // A long count is an integer object of its own, its size a power of two.
            const std::uint64_t size = std::uint64_t{1} << (number(at, 1) & 0x3);
            count = number(at + 1, size);
            at += 1 + size;
        }
        const std::uint64_t perElement = kind == 0xd ? 2 : 1;
        if (count > m_size || at + count * perElement * m_referenceSize > m_size - kTrailerSize) {
            return std::nullopt;
        }
        return Level{at, count * perElement};
    }

    // Big-endian; 0 where it would lie outside.
    std::uint64_t number(std::uint64_t at, std::uint64_t size) const {
        if (at > m_size || size > m_size - at) {
            return 0;
        }
        std::uint64_t value = 0;
        for (std::uint64_t index = 0; index < size; ++index) {
            value = value << 8 | static_cast<std::uint8_t>(m_data[static_cast<qsizetype>(at + index)]);
        }
        return value;
    }

    QByteArrayView m_data;
    std::uint64_t m_size;
    std::uint64_t m_offsetSize = 0;
    std::uint64_t m_referenceSize = 0;
    std::uint64_t m_objectCount = 0;
    std::uint64_t m_table = 0;
};

bool tagIs(QByteArrayView rest, const char* name) {
    const auto length = static_cast<qsizetype>(std::strlen(name));
    return rest.size() > length && std::memcmp(rest.data(), name, static_cast<std::size_t>(length)) == 0 &&
           (rest[length] == '>' || rest[length] == ' ' || rest[length] == '\t' || rest[length] == '\n' ||
            rest[length] == '\r');
}

} // namespace

bool binaryPropertyListIsBounded(QByteArrayView data) {
    return BinaryList(data).isBounded();
}

bool xmlPropertyListIsBounded(QByteArrayView data) {
    int depth = 0;
    int values = 0;
    for (qsizetype at = data.indexOf('<'); at >= 0; at = data.indexOf('<', at + 1)) {
        const QByteArrayView rest = data.sliced(at + 1);
        if (++values > 2 * kPropertyListValues) {
            return false;
        }
        if (tagIs(rest, "dict") || tagIs(rest, "array")) {
            if (++depth > kPropertyListDepth) {
                return false;
            }
        } else if (tagIs(rest, "/dict") || tagIs(rest, "/array")) {
            --depth;
        }
    }
    return true;
}

} // namespace guide
