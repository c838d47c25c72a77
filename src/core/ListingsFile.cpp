#include "core/ListingsFile.h"

namespace guide {

QString listingsFileFromChannelIdentificator(const ObjectId& channel) {
    return channel.hex() + QStringLiteral(".plist");
}

} // namespace guide
