#include "platform/encoding/Decompression.h"
#include "platform/encoding/GzipInflate.h"

#include <QDebug>

#include <algorithm>
#include <zlib.h>

namespace guide {

namespace {

// Accepts only the gzip wrapper.
constexpr int kGzipWindowBits = 31;
// zlib counts available bytes in 32 bits.
constexpr std::uint64_t kLargestStep = std::uint64_t{1} << 30;

uInt step(std::uint64_t size) {
    return static_cast<uInt>(std::min(size, kLargestStep));
}

struct ZlibStream {
    z_stream stream{};
    ZlibStream() = default;
    ZlibStream(const ZlibStream&) = delete;
    ZlibStream& operator=(const ZlibStream&) = delete;
    // Does nothing if inflateInit2 failed.
    ~ZlibStream() { inflateEnd(&stream); }
};

} // namespace

GzipEnd inflateWithZlib(QByteArrayView data, GzipOutput& output) {
    ZlibStream decoder;
    z_stream& stream = decoder.stream;
    if (inflateInit2(&stream, kGzipWindowBits) != Z_OK) {
        qInfo("ret != Z_OK");
        return GzipEnd::Damaged;
    }
    stream.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(data.data())); // NOLINT: only read
    auto left = static_cast<std::uint64_t>(data.size());
    bool anything = false;
    for (;;) {
        if (stream.avail_in == 0) {
            stream.avail_in = step(left);
            left -= stream.avail_in;
        }
        const std::span<char> room = output.room();
        const uInt offered = step(room.size());
        stream.next_out = reinterpret_cast<Bytef*>(room.data());
        stream.avail_out = offered;
        const int outcome = inflate(&stream, Z_NO_FLUSH);
        const uInt written = offered - stream.avail_out;
        anything = anything || written > 0;
        if (!output.take(written)) {
            return GzipEnd::Stopped;
        }
        const bool inputEnded = left == 0 && stream.avail_in == 0;
        if (outcome == Z_STREAM_END) {
            const QByteArrayView rest =
                data.last(static_cast<qsizetype>(left) + static_cast<qsizetype>(stream.avail_in));
            if (!hasGzipSignature(rest) || inflateReset(&stream) != Z_OK) {
                return GzipEnd::Complete;
            }
        } else if ((outcome == Z_BUF_ERROR && inputEnded && anything) ||
                   (outcome == Z_OK && inputEnded && stream.avail_out > 0)) {
            return GzipEnd::CutShort;
        } else if (outcome != Z_OK) {
            qInfo("inflate: ret != Z_OK %d", outcome);
            return GzipEnd::Damaged;
        }
    }
}

} // namespace guide
