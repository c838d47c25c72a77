#include "platform/archive/PropertyList.h"

#include "platform/archive/PropertyListBounds.h"
#include "platform/encoding/Utf8.h"

#include <QDateTime>
#include <QTimeZone>

#include <clocale>
#include <cstdlib>
#include <limits>
#include <memory>
#include <plist/plist.h>

namespace guide {

namespace {

struct PlistDeleter {
    void operator()(void* node) const { plist_free(node); }
};
using Plist = std::unique_ptr<void, PlistDeleter>;

struct FreeDeleter {
    void operator()(void* memory) const {
        std::free(memory);
    } // NOLINT: the library's strings come from malloc
};
template <class T>
using Allocated = std::unique_ptr<T, FreeDeleter>;

// libplist parses decimals in the locale of the thread.
class CNumericLocale {
  public:
    CNumericLocale()
        : m_numbers(::newlocale(LC_NUMERIC_MASK, "C", ::duplocale(::uselocale(nullptr))))
        , m_before(m_numbers != nullptr ? ::uselocale(m_numbers) : nullptr) {}
    CNumericLocale(const CNumericLocale&) = delete;
    CNumericLocale& operator=(const CNumericLocale&) = delete;
    ~CNumericLocale() {
        if (m_numbers != nullptr) {
            ::uselocale(m_before);
            ::freelocale(m_numbers);
        }
    }

  private:
    locale_t m_numbers;
    locale_t m_before;
};

std::optional<QString> text(QByteArrayView bytes) {
    QString read;
    if (!readUtf8(bytes, read)) {
        return std::nullopt;
    }
    return read;
}

std::optional<QVariant> value(plist_t node);

std::optional<QVariant> listValue(plist_t node) {
    QVariantList list;
    plist_array_iter position = nullptr;
    plist_array_new_iter(node, &position);
    const Allocated<void> owned(position);
    for (;;) {
        plist_t item = nullptr;
        plist_array_next_item(node, position, &item);
        if (item == nullptr) {
            return list;
        }
        std::optional<QVariant> read = value(item);
        if (!read) {
            return std::nullopt;
        }
        list.append(*std::move(read));
    }
}

std::optional<QVariant> mapValue(plist_t node) {
    QVariantMap map;
    plist_dict_iter position = nullptr;
    plist_dict_new_iter(node, &position);
    const Allocated<void> owned(position);
    for (;;) {
        char* key = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, position, &key, &item);
        const Allocated<char> ownedKey(key);
        if (item == nullptr) {
            return map;
        }
        const std::optional<QString> name = key != nullptr ? text(key) : std::nullopt;
        std::optional<QVariant> read = value(item);
        if (!name || !read) {
            return std::nullopt;
        }
        map.insert(*name, *std::move(read));
    }
}

QVariant dateValue(plist_t node) {
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    // Seconds since 1 January 2001.
    constexpr qint64 kReference = 978'307'200;
    return QDateTime::fromMSecsSinceEpoch((kReference + seconds) * 1000 + microseconds / 1000, Qt::UTC);
}

QByteArrayView bytesOf(const char* data, std::uint64_t size) {
    return {data, static_cast<qsizetype>(data != nullptr ? size : 0)};
}

// The recursion is bounded: the depth was checked before.
std::optional<QVariant> value(plist_t node) {
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t read = 0;
        plist_get_bool_val(node, &read);
        return QVariant(read != 0);
    }
    case PLIST_UINT: {
        std::uint64_t read = 0;
        plist_get_uint_val(node, &read);
        return QVariant(static_cast<qlonglong>(read));
    }
    case PLIST_REAL: {
        double read = 0;
        plist_get_real_val(node, &read);
        return QVariant(read);
    }
    case PLIST_STRING: {
        std::uint64_t size = 0;
        const char* read = plist_get_string_ptr(node, &size);
        const std::optional<QString> string = text(bytesOf(read, size));
        return string ? std::optional<QVariant>(*string) : std::nullopt;
    }
    case PLIST_DATA: {
        std::uint64_t size = 0;
        const char* read = plist_get_data_ptr(node, &size);
        return QVariant(bytesOf(read, size).toByteArray());
    }
    case PLIST_DATE:
        return dateValue(node);
    case PLIST_ARRAY:
        return listValue(node);
    case PLIST_DICT:
        return mapValue(node);
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<QVariant> propertyListFromData(const QByteArray& data) {
    if (data.isEmpty() || data.size() > std::numeric_limits<std::int32_t>::max()) {
        return std::nullopt;
    }
    const auto size = static_cast<std::uint32_t>(data.size());
    plist_t parsed = nullptr;
    if (plist_is_binary(data.constData(), size) != 0) {
        if (!binaryPropertyListIsBounded(data)) {
            return std::nullopt;
        }
        plist_from_bin(data.constData(), size, &parsed);
    } else {
        if (!xmlPropertyListIsBounded(data)) {
            return std::nullopt;
        }
        const CNumericLocale numbers;
        plist_from_xml(data.constData(), size, &parsed);
    }
    const Plist root(parsed);
    return root ? value(root.get()) : std::nullopt;
}

} // namespace guide
