#pragma once

#include "core/ObjectId.h"

#include <QMap>
#include <QString>

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace guide {

/// One row of the catalogue: "Location", "Title", "Language", "Icon", "Location1" to "Location7", "Stream".
using ChannelDictionary = QMap<QString, QString>;

/// The value under the key; nothing when the row has none.
std::optional<QString> channelValue(const ChannelDictionary& channel, const QString& key);

/// "Icon" behind its first "/": the name of the icon image. The whole text when it has no "/".
QString iconNameOf(const QString& icon);

/// The catalogue, by channel. Made once at launch, read-only afterwards, read from any thread without a lock.
using ChannelData = std::unordered_map<ObjectId, ChannelDictionary>;
using SharedChannelData = std::shared_ptr<const ChannelData>;

} // namespace guide
