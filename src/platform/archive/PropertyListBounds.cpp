#include "platform/archive/PropertyListBounds.h"

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

// A binary list consists of objects, a table of their offsets, and a trailer with the sizes of offsets and
// references.
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
        m_offsetSize = numberAt(trailer + 6, 1);
        m_referenceSize = numberAt(trailer + 7, 1);
        m_objectCount = numberAt(trailer + 8, 8);
        const std::uint64_t root = numberAt(trailer + 16, 8);
        m_table = numberAt(trailer + 24, 8);
        if (m_offsetSize < 1 || m_offsetSize > 8 || m_referenceSize < 1 || m_referenceSize > 8 ||
            m_table > trailer || m_objectCount > (trailer - m_table) / m_offsetSize) {
            return false;
        }
        return walk(root);
    }

  private:
    // The remaining references of one array or dictionary; references to keys come first.
    struct Level {
        std::uint64_t nextReference;
        std::uint64_t left;
        std::uint64_t keysLeft;
    };

    struct Object {
        std::uint64_t kind;
        std::uint64_t count;
        std::uint64_t content;
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
            const std::uint64_t object = numberAt(level.nextReference, m_referenceSize);
            level.nextReference += m_referenceSize;
            --level.left;
            if (level.keysLeft > 0) {
                --level.keysLeft;
                if (!isKey(object)) {
                    return false;
                }
            } else if (!enter(object)) {
                return false;
            }
        }
        return true;
    }

    std::optional<Object> object(std::uint64_t number) const {
        if (number >= m_objectCount) {
            return std::nullopt;
        }
        std::uint64_t at = numberAt(m_table + number * m_offsetSize, m_offsetSize);
        if (at >= m_size - kTrailerSize) {
            return std::nullopt;
        }
        const std::uint64_t marker = numberAt(at, 1);
        std::uint64_t count = marker & 0xf;
        ++at;
        if (count == 0xf) {
            // A long count follows as an integer object, whose size is a power of two.
            const std::uint64_t size = std::uint64_t{1} << (numberAt(at, 1) & 0x3);
            count = numberAt(at + 1, size);
            at += 1 + size;
        }
        if (count > m_size) {
            return std::nullopt;
        }
        return Object{marker >> 4, count, at};
    }

    bool holds(std::uint64_t at, std::uint64_t size) const {
        return at <= m_size - kTrailerSize && size <= m_size - kTrailerSize - at;
    }

    // The position and number of an object's references (none for a plain value); empty when it is damaged.
    std::optional<Level> references(std::uint64_t number) const {
        const std::optional<Object> found = object(number);
        if (!found) {
            return std::nullopt;
        }
        if (found->kind < 0xa) {
            return Level{0, 0, 0};
        }
        const bool isDictionary = found->kind == 0xd;
        const std::uint64_t count = isDictionary ? found->count * 2 : found->count;
        if (!holds(found->content, count * m_referenceSize)) {
            return std::nullopt;
        }
        return Level{found->content, count, isDictionary ? found->count : 0};
    }

    // A key must be a text; libplist aborts the process on one with a NUL.
    bool isKey(std::uint64_t number) const {
        const std::optional<Object> found = object(number);
        if (!found || (found->kind != 0x5 && found->kind != 0x6)) {
            return false;
        }
        const std::uint64_t unitSize = found->kind == 0x5 ? 1 : 2;
        if (!holds(found->content, found->count * unitSize)) {
            return false;
        }
        for (std::uint64_t unit = 0; unit < found->count; ++unit) {
            if (numberAt(found->content + unit * unitSize, unitSize) == 0) {
                return false;
            }
        }
        return true;
    }

    // Big-endian; 0 outside the data.
    std::uint64_t numberAt(std::uint64_t at, std::uint64_t size) const {
        if (at > m_size || size > m_size - at) {
            return 0;
        }
        std::uint64_t value = 0;
        for (std::uint64_t index = 0; index < size; ++index) {
            value = value << 8 | static_cast<std::uint8_t>(m_data.data()[at + index]);
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
    if (data.contains('\0')) {
        return false;
    }
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
