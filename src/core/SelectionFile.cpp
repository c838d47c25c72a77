#include "core/SelectionFile.h"

#include "platform/archive/Archive.h"

#include <QCborArray>
#include <QFile>

#include <cstdio>
#include <unistd.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostDamagedFiles = 3;

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
        }
    }
    return selected;
}

std::optional<std::vector<ObjectId>> selectionOfFile(const QByteArray& content) {
    const std::optional<QCborValue> root = unarchivedRoot(content);
    return root ? selectionOfValue(*root) : std::nullopt;
}

void keepDamagedFile(const QString& path) {
    const auto copy = [&path](int number) {
        return QFile::encodeName(path + ".damaged-"_L1 + QString::number(number));
    };
    for (int number = kMostDamagedFiles; number > 1; --number) {
        std::rename(copy(number - 1).constData(), copy(number).constData());
    }
    const QByteArray damaged = QFile::encodeName(path);
    if (::link(damaged.constData(), copy(1).constData()) != 0) {
        std::rename(damaged.constData(), copy(1).constData());
    }
}

} // namespace guide
