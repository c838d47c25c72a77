#pragma once

#include "core/own/SourcePreview.h"
#include "platform/Moment.h"

#include <QString>
#include <QTimeZone>

#include <cstdint>
#include <functional>

namespace guide {

struct PreviewRequest {
    Moment now;
    /// Of the feed's country or the device.
    QTimeZone zone;
    /// The character set that a server declared; may be empty.
    QString charset = {};
    /// The language of the source's country; may be empty.
    QString language = {};
    /// In bytes; limits the unpacked size.
    std::uint64_t physicalMemory = 0;
    /// Ends the reading; may be empty.
    std::function<bool()> stopped = {};
    /// Told now and then how many channels and how many unpacked bytes were read. May be empty.
    std::function<void(int channels, std::int64_t bytes)> progress = {};
};

/// Reads a file of any kind by its content, in windows: never the whole of it is in memory, except of a
/// playlist. Not on the main thread.
SourcePreview sourcePreview(const QString& path, const PreviewRequest& request);

} // namespace guide
