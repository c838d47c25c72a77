#pragma once

#include "sources/PageFetcher.h"

#include <QByteArray>

#include <cstdint>
#include <optional>

namespace guide {

struct PageText {
    /// Valid UTF-8; nothing when the body gives no text, for the reason beside it.
    std::optional<QByteArray> text;
    PageReason reason = PageReason::None;
};

/// Makes a page of the body of an answer, content encodings undone: unpacked, where its content type or its
/// first bytes say that it is packed, and decoded by the charset that the content type names, or as UTF-8.
/// What is packed may grow to a quarter of the physical memory, xz to 23 times its size as well; of an xz
/// body that holds more, what fits is taken.
PageText pageText(QByteArray body, const HTTPResponse& response, std::uint64_t physicalMemory);

} // namespace guide
