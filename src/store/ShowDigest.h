#pragma once

#include "core/ObjectId.h"
#include "platform/Moment.h"

#include <QString>
#include <QUrl>

#include <array>
#include <cstdint>
#include <optional>

namespace guide {

/// What names one broadcast in URLs: an MD5 of its channel, start and title.
using ShowDigest = std::array<std::uint8_t, 16>;

/// A start that is unset counts as the reference date, 1 January 2001, 00:00 UTC.
ShowDigest showDigest(const ObjectId& channel, const std::optional<Moment>& date,
                      const QString& identificator);

/// "scheme://digest" in lowercase hexadecimal digits, with a "c" in front when the first one is no letter;
/// nothing without a title.
std::optional<QUrl> urlDigestFromChannel(const ObjectId& channel, const std::optional<Moment>& date,
                                         const std::optional<QString>& identificator, const QString& scheme);

/// The digest that a URL of this form names, whatever its scheme; nothing when it is of another form.
std::optional<ShowDigest> digestOfUrl(const QUrl& url);

} // namespace guide
