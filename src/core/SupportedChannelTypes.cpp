#include "core/SupportedChannelTypes.h"

#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace guide {

using namespace Qt::StringLiterals;

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
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        if (std::optional<SupportedChannelTypes> types = fromJson(file.readAll())) {
            return *std::move(types);
        }
    }
    qWarning().noquote() << "SupportedChannelTypes: cannot read" << path;
    return {};
}

} // namespace guide
