#pragma once

#include "core/ObjectId.h"
#include "platform/Moment.h"

#include <QString>
#include <QUrl>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>

namespace guide {

/// Identifies one broadcast: the MD5 of its channel, start and title.
using ShowDigest = std::array<std::uint8_t, 16>;

/// Takes the first bytes, which are evenly distributed.
struct ShowDigestHash {
    std::size_t operator()(const ShowDigest& digest) const {
        std::size_t hash = 0;
        std::memcpy(&hash, digest.data(), sizeof hash);
        return hash;
    }
};

/// A start that is unset counts as the reference date, 1 January 2001, 00:00 UTC.
ShowDigest showDigest(const ObjectId& channel, const std::optional<Moment>& date,
                      const QString& identificator);

/// "scheme://digest" in lowercase hexadecimal digits, with a "c" in front when the first one is not a letter.
QUrl urlOfDigest(const ShowDigest& digest, const QString& scheme);

/// The URL of a broadcast; nothing without a title.
std::optional<QUrl> urlDigestFromChannel(const ObjectId& channel, const std::optional<Moment>& date,
                                         const std::optional<QString>& identificator, const QString& scheme);

/// The digest in a URL of this form, whatever its scheme; nothing for a URL of another form.
std::optional<ShowDigest> digestOfUrl(const QUrl& url);

} // namespace guide
