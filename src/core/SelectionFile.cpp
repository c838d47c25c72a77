#include "core/SelectionFile.h"

#include "platform/archive/Archive.h"

#include <QCborArray>

namespace guide {

namespace {

constexpr qsizetype kHexDigits = 24;

} // namespace

QCborValue selectionValue(const std::vector<ObjectId>& selected) {
    QCborArray array;
    for (const ObjectId& id : selected) {
        array.append(id.data());
    }
    return array;
}

std::optional<std::vector<ObjectId>> selectionOfValue(const QCborValue& value) {
    if (!value.isArray()) {
        return std::nullopt;
    }
    const QCborArray array = value.toArray();
    std::vector<ObjectId> selected;
    selected.reserve(static_cast<std::size_t>(array.size()));
    for (const auto& element : array) {
        if (element.isByteArray()) {
            selected.emplace_back(element.toByteArray());
        } else if (const QString hex = element.toString(); hex.size() == kHexDigits) {
            selected.push_back(ObjectId::fromHex(hex));
        }
    }
    return selected;
}

std::optional<std::vector<ObjectId>> selectionOfFile(const QByteArray& content) {
    const std::optional<QCborValue> root = unarchivedRoot(content);
    return root ? selectionOfValue(*root) : std::nullopt;
}

} // namespace guide
