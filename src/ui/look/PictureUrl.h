#pragma once

#include "screens/kit/PictureKey.h"

#include <QUrl>

#include <optional>

namespace guide {

/// The name of the image provider that resolves picture keys.
inline constexpr auto kPictureProviderName = QLatin1StringView("guide");

/// `image://guide/…`, or an empty URL for no picture.
QUrl pictureUrlOf(const PictureKey& key);

/// The key back from what follows `image://guide/`, without a query; empty when it is not one.
PictureKey pictureKeyOf(const QString& id);

} // namespace guide
