#include "core/SupportedChannelTypes.h"

#include "platform/files/FileContent.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostBytes = 1 << 20;

} // namespace

std::optional<SupportedChannelTypes> SupportedChannelTypes::fromJson(const QByteArray& json) {
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isArray()) {
        return std::nullopt;
    }
    std::vector<SupportedChannelTypesPair> pairs;
    const QJsonArray array = document.array();
    for (const auto& value : array) {
        SupportedChannelTypesPair pair{value["language"_L1].toString(), value["region"_L1].toString()};
        if (pair.language.isEmpty() || pair.region.isEmpty()) {
            return std::nullopt;
        }
        pairs.push_back(std::move(pair));
    }
    return SupportedChannelTypes(std::move(pairs));
}

SupportedChannelTypes SupportedChannelTypes::fromFile(const QString& path) {
    if (const std::optional<QByteArray> content = fileContent(path, kMostBytes)) {
        if (std::optional<SupportedChannelTypes> types = fromJson(*content)) {
            return *std::move(types);
        }
    }
    qWarning().noquote() << "SupportedChannelTypes: cannot read" << path;
    return {};
}

} // namespace guide
