#include "platform/encoding/Decompression.h"

#include "platform/encoding/GzipInflate.h"
#include "platform/encoding/Unpacker.h"

#include <QDebug>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

namespace guide {

namespace {

constexpr std::uint64_t kGibibyte = std::uint64_t{1} << 30;
constexpr std::uint64_t kSmallestRoom = 0x20000;
constexpr std::size_t kWindowSize = 256 * 1024;
// Deflate expands by a factor of at most 1,032.
constexpr std::uint64_t kDeflateRatio = 1032;
constexpr std::uint64_t kXzRatio = 23;
constexpr qsizetype kSmallestGzipFile = 18;
constexpr char kGzipSignature[] = {'\x1f', '\x8b'};
constexpr char kXzSignature[] = {'\xfd', '7', 'z', 'X', 'Z', '\0'};

template <std::size_t N>
bool beginsWith(QByteArrayView data, const char (&signature)[N]) {
    return data.size() >= static_cast<qsizetype>(N) && std::memcmp(data.data(), signature, N) == 0;
}

// One byte more than the limit distinguishes a file that ends at the limit from a longer one.
std::uint64_t roomWithin(std::uint64_t wanted, std::uint64_t limit) {
    return std::min(std::max(wanted, kSmallestRoom), limit + 1);
}

// The initial size: the size of the last member, which the last four bytes of the file state, if plausible,
// plus one byte so that the end is detected without growing.
std::uint64_t firstRoom(QByteArrayView data, std::uint64_t limit) {
    const auto packed = static_cast<std::uint64_t>(data.size());
    std::uint64_t room = packed * 4;
    if (data.size() >= kSmallestGzipFile) {
        const std::uint64_t said = qFromLittleEndian<quint32>(data.data() + data.size() - 4);
        if (said >= packed / 2 && said <= packed * kDeflateRatio) {
            room = said + 1;
        }
    }
    return roomWithin(room, limit);
}

// An output that the second decoder fills again from the start if the first one gives up.
class RestartableOutput : public GzipOutput {
  public:
    /// Called before the same content is written again from its first byte.
    virtual void restart() = 0;
};

class WholeOutput final : public RestartableOutput {
  public:
    WholeOutput(std::uint64_t firstRoom, std::uint64_t limit)
        : m_bytes(static_cast<qsizetype>(firstRoom), Qt::Uninitialized)
        , m_limit(limit) {}

    std::span<char> room() override {
        if (m_written == size()) {
            m_bytes.resize(static_cast<qsizetype>(roomWithin(m_written * 2, m_limit)));
        }
        return {m_bytes.data() + m_written, size() - m_written};
    }
    bool take(std::size_t count) override {
        m_written += count;
        return m_written <= m_limit;
    }
    void restart() override { m_written = 0; }

    QByteArray bytes() && {
        m_bytes.truncate(static_cast<qsizetype>(m_written));
        return std::move(m_bytes);
    }

  private:
    std::uint64_t size() const { return static_cast<std::uint64_t>(m_bytes.size()); }

    QByteArray m_bytes;
    std::uint64_t m_limit;
    std::uint64_t m_written = 0;
};

class WindowOutput final : public RestartableOutput {
  public:
    WindowOutput(const TakePiece& takePiece, std::uint64_t limit)
        : m_takePiece(takePiece)
        , m_limit(limit) {}

    std::span<char> room() override { return {m_window.get(), kWindowSize}; }
    bool take(std::size_t count) override {
        m_position += count;
        if (m_position > m_limit) {
            return false;
        }
        if (m_position <= m_delivered) {
            return true;
        }
        const std::size_t fresh = std::min<std::uint64_t>(count, m_position - m_delivered);
        m_delivered = m_position;
        m_refused = !m_takePiece(QByteArrayView(m_window.get() + (count - fresh), qsizetype(fresh)));
        return !m_refused;
    }
    void restart() override { m_position = 0; }

    bool refused() const { return m_refused; }

  private:
    const TakePiece& m_takePiece;
    const std::uint64_t m_limit;
    const std::unique_ptr<char[]> m_window{new char[kWindowSize]};
    std::uint64_t m_position = 0;
    std::uint64_t m_delivered = 0;
    bool m_refused = false;
};

// Every file that ISA-L does not read as complete is decoded again with zlib, so that a file gives the same
// result on every machine.
GzipEnd inflateGzip(QByteArrayView data, RestartableOutput& output) {
    if (hasIsal()) {
        const GzipEnd end = inflateWithIsal(data, output);
        if (end == GzipEnd::Complete || end == GzipEnd::Stopped) {
            return end;
        }
        output.restart();
    }
    return inflateWithZlib(data, output);
}

void logOverLimit(std::uint64_t limit) {
    qInfo("gzip file unpacks to more than %llu bytes", static_cast<unsigned long long>(limit));
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

std::optional<QByteArray> dataWithCompressedData(QByteArrayView data, const DecompressionLimits& limits,
                                                 bool* incomplete) {
    const std::uint64_t limit = limits.gzipLimit();
    WholeOutput output(firstRoom(data, limit), limit);
    const GzipEnd end = inflateGzip(data, output);
    if (end == GzipEnd::Stopped) {
        logOverLimit(limit);
        return std::nullopt;
    }
    QByteArray bytes = std::move(output).bytes();
    if (end == GzipEnd::Damaged && (!incomplete || bytes.isEmpty())) {
        return std::nullopt;
    }
    if (incomplete) {
        *incomplete = end != GzipEnd::Complete;
    }
    return bytes;
}

bool unpackCompressedData(QByteArrayView data, const DecompressionLimits& limits,
                          const TakePiece& takePiece) {
    const std::uint64_t limit = limits.gzipLimit();
    WindowOutput output(takePiece, limit);
    const GzipEnd end = inflateGzip(data, output);
    if (end == GzipEnd::Stopped && !output.refused()) {
        logOverLimit(limit);
    }
    return end == GzipEnd::Complete || end == GzipEnd::CutShort;
}

std::optional<QByteArray> dataWithXzData(QByteArrayView data, const DecompressionLimits& limits,
                                         bool* incomplete) {
    const std::uint64_t limit = limits.xzLimit(static_cast<std::uint64_t>(data.size()));
    if (limit == 0) {
        return std::nullopt;
    }
    // Untouched pages of a large block cost nothing, so the whole size is allocated at once.
    QByteArray output(static_cast<qsizetype>(limit), Qt::Uninitialized);
    const auto unpacker = xzUnpacker(limits.physicalMemory / 4);
    PackedBytes input(data);
    UnpackState state = UnpackState::More;
    std::uint64_t filled = 0;
    while (state == UnpackState::More && filled < limit) {
        std::size_t written = 0;
        state = unpacker->unpack(input, {output.data() + filled, static_cast<std::size_t>(limit - filled)},
                                 written);
        filled += written;
    }
    const bool isDamaged = state == UnpackState::Damaged || state == UnpackState::CutShort;
    if (filled == 0 || (isDamaged && !incomplete)) {
        return std::nullopt;
    }
    if (incomplete) {
        *incomplete = isDamaged || filled == limit;
    }
    output.truncate(static_cast<qsizetype>(filled));
    return output;
}

} // namespace guide
