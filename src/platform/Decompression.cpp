#include "platform/Decompression.h"

#include <QDebug>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <limits>
#include <lzma.h>
#include <memory>
#include <zlib.h>

namespace guide {

namespace {

constexpr std::uint64_t kGibibyte = std::uint64_t{1} << 30;
constexpr std::uint64_t kSmallestRoom = 0x20000;
// Deflate cannot say more than 1,032 bytes with one.
constexpr std::uint64_t kDeflateRatio = 1032;
constexpr std::uint64_t kXzRatio = 23;
// A gzip wrapper and nothing else.
constexpr int kGzipWindowBits = 31;
constexpr qsizetype kSmallestGzipFile = 18;
constexpr char kGzipSignature[] = {'\x1f', '\x8b'};
constexpr char kXzSignature[] = {'\xfd', '7', 'z', 'X', 'Z', '\0'};
// The decoders count in 32 bits on one side of the interface.
constexpr std::uint64_t kLargestStep = kGibibyte;

template <std::size_t N>
bool beginsWith(QByteArrayView data, const char (&signature)[N]) {
    return data.size() >= static_cast<qsizetype>(N) && std::memcmp(data.data(), signature, N) == 0;
}

uInt step(std::uint64_t size) {
    return static_cast<uInt>(std::min(size, kLargestStep));
}

// The room to begin with: what the end of the file says of its last member, where that is possible, and a
// byte more, so that the end is seen without growing.
std::uint64_t firstRoom(QByteArrayView data, std::uint64_t limit) {
    const auto packed = static_cast<std::uint64_t>(data.size());
    std::uint64_t room = packed * 4;
    if (data.size() >= kSmallestGzipFile) {
        const std::uint64_t said = qFromLittleEndian<quint32>(data.data() + data.size() - 4);
        if (said >= packed / 2 && said <= packed * kDeflateRatio) {
            room = said + 1;
        }
    }
    return std::clamp(room, kSmallestRoom, limit + 1);
}

class Inflater {
  public:
    explicit Inflater(QByteArrayView data)
        : m_data(data) {}
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() {
        if (m_open) {
            inflateEnd(&m_stream);
        }
    }

    std::optional<QByteArray> run(std::uint64_t limit) {
        if (inflateInit2(&m_stream, kGzipWindowBits) != Z_OK) {
            qInfo("ret != Z_OK");
            return std::nullopt;
        }
        m_open = true;
        m_stream.next_in =
            const_cast<Bytef*>(reinterpret_cast<const Bytef*>(m_data.data())); // NOLINT: zlib reads
        m_left = static_cast<std::uint64_t>(m_data.size());
        m_output = QByteArray(static_cast<qsizetype>(firstRoom(m_data, limit)), Qt::Uninitialized);
        for (;;) {
            if (m_written == static_cast<std::uint64_t>(m_output.size()) && !grow(limit)) {
                qInfo("gzip file unpacks to more than %llu bytes", static_cast<unsigned long long>(limit));
                return std::nullopt;
            }
            const int outcome = inflateOnce();
            if (outcome == Z_STREAM_END) {
                if (!nextMember()) {
                    break;
                }
            } else if (outcome != Z_OK) {
                // Nothing left to read is the end of a file that was cut short: what came stays.
                if (outcome == Z_BUF_ERROR && inputEnded() && m_written > 0) {
                    break;
                }
                qInfo("inflate: ret != Z_OK %d", outcome);
                return std::nullopt;
            } else if (inputEnded() && m_written < static_cast<std::uint64_t>(m_output.size())) {
                break;
            }
        }
        if (m_written > limit) {
            qInfo("gzip file unpacks to more than %llu bytes", static_cast<unsigned long long>(limit));
            return std::nullopt;
        }
        m_output.truncate(static_cast<qsizetype>(m_written));
        return std::move(m_output);
    }

  private:
    bool inputEnded() const { return m_left == 0 && m_stream.avail_in == 0; }

    int inflateOnce() {
        if (m_stream.avail_in == 0) {
            m_stream.avail_in = step(m_left);
            m_left -= m_stream.avail_in;
        }
        const uInt room = step(static_cast<std::uint64_t>(m_output.size()) - m_written);
        m_stream.next_out = reinterpret_cast<Bytef*>(m_output.data() + m_written);
        m_stream.avail_out = room;
        const int outcome = inflate(&m_stream, Z_NO_FLUSH);
        m_written += room - m_stream.avail_out;
        return outcome;
    }

    bool nextMember() {
        const std::uint64_t left = m_left + m_stream.avail_in;
        const QByteArrayView rest = m_data.last(static_cast<qsizetype>(left));
        return hasGzipSignature(rest) && inflateReset(&m_stream) == Z_OK;
    }

    // One byte past the limit tells a file that ends there from one that goes on.
    bool grow(std::uint64_t limit) {
        if (m_written > limit) {
            return false;
        }
        const std::uint64_t room = std::clamp(m_written * 2, kSmallestRoom, limit + 1);
        m_output.resize(static_cast<qsizetype>(room));
        return true;
    }

    QByteArrayView m_data;
    z_stream m_stream{};
    bool m_open = false;
    std::uint64_t m_left = 0;
    QByteArray m_output;
    std::uint64_t m_written = 0;
};

struct LzmaStream {
    lzma_stream stream = LZMA_STREAM_INIT;
    LzmaStream() = default;
    LzmaStream(const LzmaStream&) = delete;
    LzmaStream& operator=(const LzmaStream&) = delete;
    ~LzmaStream() { lzma_end(&stream); }
};

// Passes over the zero bytes that may stand between two streams of a file.
void skipPadding(lzma_stream& stream) {
    while (stream.avail_in > 0 && *stream.next_in == 0) {
        ++stream.next_in;
        --stream.avail_in;
    }
}

} // namespace

std::uint64_t DecompressionLimits::gzipLimit() const {
    return std::min(physicalMemory / 4, kGibibyte);
}

std::uint64_t DecompressionLimits::xzLimit(std::uint64_t packedSize) const {
    return std::min(physicalMemory / 4, packedSize * kXzRatio);
}

bool hasGzipSignature(QByteArrayView data) {
    return beginsWith(data, kGzipSignature);
}

bool hasXzSignature(QByteArrayView data) {
    return beginsWith(data, kXzSignature);
}

std::optional<QByteArray> dataWithCompressedData(QByteArrayView data, const DecompressionLimits& limits) {
    return Inflater(data).run(limits.gzipLimit());
}

std::optional<QByteArray> dataWithXzData(QByteArrayView data, const DecompressionLimits& limits) {
    const std::uint64_t limit = limits.xzLimit(static_cast<std::uint64_t>(data.size()));
    if (limit == 0) {
        return std::nullopt;
    }
    // Untouched pages of a large block cost nothing, so the whole room is taken at once.
    QByteArray output(static_cast<qsizetype>(limit), Qt::Uninitialized);
    LzmaStream decoder;
    lzma_stream& stream = decoder.stream;
    stream.next_in = reinterpret_cast<const std::uint8_t*>(data.data());
    stream.avail_in = static_cast<std::size_t>(data.size());
    stream.next_out = reinterpret_cast<std::uint8_t*>(output.data());
    stream.avail_out = static_cast<std::size_t>(limit);
    do {
        if (lzma_stream_decoder(&stream, std::max<std::uint64_t>(limits.physicalMemory / 4, 1), 0) !=
            LZMA_OK) {
            return std::nullopt;
        }
        lzma_ret outcome = LZMA_OK;
        while (outcome == LZMA_OK && stream.avail_out > 0) {
            outcome = lzma_code(&stream, LZMA_FINISH);
        }
        if (outcome != LZMA_STREAM_END && (outcome != LZMA_OK || stream.avail_out > 0)) {
            return std::nullopt;
        }
        skipPadding(stream);
    } while (stream.avail_out > 0 &&
             hasXzSignature(QByteArrayView(stream.next_in, static_cast<qsizetype>(stream.avail_in))));
    const auto written = static_cast<qsizetype>(limit - stream.avail_out);
    if (written == 0) {
        return std::nullopt;
    }
    output.truncate(written);
    return output;
}

} // namespace guide
