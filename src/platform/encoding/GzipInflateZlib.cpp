#include "platform/encoding/Decompression.h"
#include "platform/encoding/Unpacker.h"

#include <QDebug>

#include <zlib.h>

namespace guide {

namespace {

// Accepts only the gzip wrapper.
constexpr int kGzipWindowBits = 31;

class ZlibUnpacker final : public Unpacker {
  public:
    ZlibUnpacker()
        : m_isOpen(inflateInit2(&m_stream, kGzipWindowBits) == Z_OK) {}
    ZlibUnpacker(const ZlibUnpacker&) = delete;
    ZlibUnpacker& operator=(const ZlibUnpacker&) = delete;
    // Does nothing if inflateInit2 failed.
    ~ZlibUnpacker() override { inflateEnd(&m_stream); }

    UnpackState unpack(PackedInput& input, std::span<char> room, std::size_t& written) override {
        written = 0;
        if (!m_isOpen) {
            qInfo("ret != Z_OK");
            return UnpackState::Damaged;
        }
        const QByteArrayView packed = input.peek(1);
        const uInt available = unpackStep(static_cast<std::size_t>(packed.size()));
        const uInt offered = unpackStep(room.size());
        m_stream.next_in =
            const_cast<Bytef*>(reinterpret_cast<const Bytef*>(packed.data())); // NOLINT: only read
        m_stream.avail_in = available;
        m_stream.next_out = reinterpret_cast<Bytef*>(room.data());
        m_stream.avail_out = offered;
        const int outcome = inflate(&m_stream, Z_NO_FLUSH);
        const uInt taken = available - m_stream.avail_in;
        input.skip(taken);
        written = offered - m_stream.avail_out;
        m_hasWritten = m_hasWritten || written > 0;
        if (outcome == Z_STREAM_END) {
            const bool hasMore = hasGzipSignature(input.peek(2)) && inflateReset(&m_stream) == Z_OK;
            return hasMore ? UnpackState::More : UnpackState::Complete;
        }
        if (outcome == Z_OK && (taken > 0 || written > 0)) {
            return UnpackState::More;
        }
        if ((outcome == Z_OK || (outcome == Z_BUF_ERROR && m_hasWritten)) && packed.isEmpty()) {
            return UnpackState::CutShort;
        }
        qInfo("inflate: ret != Z_OK %d", outcome);
        return UnpackState::Damaged;
    }

  private:
    z_stream m_stream{};
    const bool m_isOpen;
    bool m_hasWritten = false;
};

} // namespace

std::unique_ptr<Unpacker> zlibGzipUnpacker() {
    return std::make_unique<ZlibUnpacker>();
}

} // namespace guide
