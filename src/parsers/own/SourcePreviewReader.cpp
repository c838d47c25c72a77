#include "parsers/own/SourcePreviewReader.h"

#include "parsers/own/PreviewFeed.h"
#include "parsers/own/SourceText.h"
#include "parsers/playlists/Playlist.h"
#include "parsers/xmltv/FeedScan.h"
#include "sources/SourceId.h"

#include <optional>
#include <utility>

namespace guide {

namespace {

constexpr qsizetype kMostPlaylistBytes = qsizetype{64} << 20;

bool isStopped(const PreviewRequest& request) {
    return request.stopped && request.stopped();
}

struct FeedOutcome {
    bool isFinished = false;
    bool isWhole = false;
    bool hasLocalTimes = false;
};

FeedOutcome readFeed(SourceText& text, const PreviewRequest& request, const QTimeZone& withoutOffset,
                     SourcePreview& preview) {
    PreviewFeed feed(request, withoutOffset);
    FeedScan scan(text, feed);
    while (scan.next(nullptr)) {
        if (isStopped(request)) {
            return {};
        }
        if (request.progress) {
            request.progress(feed.channelCount(), text.unpackedBytes());
        }
    }
    feed.finish(preview);
    return {.isFinished = true,
            .isWhole = scan.isWhole() && !feed.isMalformed(),
            .hasLocalTimes = feed.hasLocalTimes()};
}

/// False when the reading was stopped.
bool readList(SourceText& text, const PreviewRequest& request, SourcePreview& preview, bool& isTooLarge) {
    QByteArray bytes;
    QByteArray window(qsizetype{256} << 10, Qt::Uninitialized);
    while (const std::size_t got = text.read({window.data(), static_cast<std::size_t>(window.size())})) {
        isTooLarge = bytes.size() + static_cast<qsizetype>(got) > kMostPlaylistBytes;
        if (isTooLarge || isStopped(request)) {
            return isTooLarge;
        }
        bytes.append(window.constData(), static_cast<qsizetype>(got));
    }
    preview.playlist = readPlaylist(QString::fromUtf8(bytes));
    return true;
}

SourcePreview previewWithZone(const QString& path, const PreviewRequest& request, const QTimeZone& zone,
                              bool& hasLocalTimes) {
    SourcePreview preview;
    SourceText text(path, request.charset, request.physicalMemory);
    preview.kind = text.kind();
    bool isWhole = true;
    bool isTooLarge = false;
    bool isFinished = true;
    if (preview.kind == SourceKind::Feed) {
        const FeedOutcome outcome = readFeed(text, request, zone, preview);
        isFinished = outcome.isFinished;
        isWhole = outcome.isWhole;
        hasLocalTimes = outcome.hasLocalTimes;
    } else if (preview.kind == SourceKind::Playlist) {
        isFinished = readList(text, request, preview, isTooLarge);
    }
    preview.result = !isFinished  ? SourceResult::Cancelled
                     : isTooLarge ? SourceResult::TooLarge
                                  : text.result();
    preview.unpackedBytes = text.unpackedBytes();
    preview.replacedBytes = text.replacedBytes();
    const bool isCut = preview.result == SourceResult::Incomplete;
    if (preview.result != SourceResult::Read && !isCut) {
        SourcePreview refused;
        refused.kind = preview.kind;
        refused.result = preview.result;
        refused.unpackedBytes = preview.unpackedBytes;
        return refused;
    }
    preview.result = SourceResult::Read;
    if (isCut || !isWhole) {
        preview.warnings.push_back(SourceWarning::Incomplete);
    }
    if (preview.replacedBytes > 0) {
        preview.warnings.push_back(SourceWarning::Repaired);
    }
    return preview;
}

} // namespace

SourcePreview sourcePreview(const QString& path, const PreviewRequest& request) {
    const QTimeZone zone = timeZoneForLanguage(request.language);
    bool hasLocalTimes = false;
    SourcePreview preview = previewWithZone(path, request, zone, hasLocalTimes);
    if (!hasLocalTimes || !request.language.isEmpty()) {
        return preview;
    }
    // Local times count in the zone of the language that the source is going to have.
    const QTimeZone told = timeZoneForLanguage(preview.commonLanguage());
    return told == zone ? preview : previewWithZone(path, request, told, hasLocalTimes);
}

} // namespace guide
