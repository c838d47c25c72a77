#include "core/ChannelDictionary.h"

namespace guide {

std::optional<QString> channelValue(const ChannelDictionary& channel, const QString& key) {
    const auto found = channel.constFind(key);
    if (found == channel.cend()) {
        return std::nullopt;
    }
    return *found;
}

QString iconNameOf(const QString& icon) {
    return icon.mid(icon.indexOf(u'/') + 1);
}

} // namespace guide
