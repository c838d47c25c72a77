#pragma once

#include "sources/PageFetcher.h"

#include <QByteArray>

#include <cstdint>
#include <optional>

namespace guide {

struct PageText {
    /// Valid UTF-8; nothing when the body is not text, for the reason in `reason`.
    std::optional<QByteArray> text;
    PageReason reason = PageReason::None;
    /// The body was cut off or damaged; `text` is what came before.
    bool incomplete = false;
};

/// Turns the body of an answer, content encodings already undone, into a page: unpacked when its content type
/// or its first bytes say that it is packed, and decoded by the charset of the content type, UTF-8 by
/// default. A packed body that was cut off or damaged gives the text before. Unpacking is limited to a
/// quarter of the physical memory, and for xz to 23 times the packed size; an xz body that holds more is
/// truncated to the limit.
PageText pageText(QByteArray body, const HTTPResponse& response, std::uint64_t physicalMemory);

} // namespace guide
