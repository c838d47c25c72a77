#include "platform/encoding/Decompression.h"
#include "platform/encoding/Unpacker.h"

#include <lzma.h>

namespace guide {

namespace {

class XzUnpacker final : public Unpacker {
  public:
    explicit XzUnpacker(std::uint64_t memoryLimit)
        : m_memoryLimit(std::max<std::uint64_t>(memoryLimit, 1)) {}
    XzUnpacker(const XzUnpacker&) = delete;
    XzUnpacker& operator=(const XzUnpacker&) = delete;
    ~XzUnpacker() override { lzma_end(&m_stream); }

    UnpackState unpack(PackedInput& input, std::span<char> room, std::size_t& written) override {
        written = 0;
        if (m_atStream) {
            if (lzma_stream_decoder(&m_stream, m_memoryLimit, 0) != LZMA_OK) {
                return UnpackState::Damaged;
            }
            m_atStream = false;
        }
        const QByteArrayView packed = input.peek(1);
        m_stream.next_in = reinterpret_cast<const std::uint8_t*>(packed.data());
        m_stream.avail_in = static_cast<std::size_t>(packed.size());
        m_stream.next_out = reinterpret_cast<std::uint8_t*>(room.data());
        m_stream.avail_out = room.size();
        const lzma_ret outcome = lzma_code(&m_stream, packed.isEmpty() ? LZMA_FINISH : LZMA_RUN);
        input.skip(packed.size() - static_cast<qsizetype>(m_stream.avail_in));
        written = room.size() - m_stream.avail_out;
        if (outcome == LZMA_OK) {
            return UnpackState::More;
        }
        if (outcome == LZMA_STREAM_END) {
            skipPadding(input);
            m_atStream = hasXzSignature(input.peek(kSignatureSize));
            return m_atStream ? UnpackState::More : UnpackState::Complete;
        }
        return outcome == LZMA_BUF_ERROR && packed.isEmpty() ? UnpackState::CutShort : UnpackState::Damaged;
    }

  private:
    static constexpr qsizetype kSignatureSize = 6;

    // Zero bytes may separate two streams of a file.
    static void skipPadding(PackedInput& input) {
        for (QByteArrayView rest = input.peek(1); !rest.isEmpty() && rest.front() == '\0';
             rest = input.peek(1)) {
            input.skip(std::find_if(rest.begin(), rest.end(), [](char byte) { return byte != '\0'; }) -
                       rest.begin());
        }
    }

    const std::uint64_t m_memoryLimit;
    lzma_stream m_stream = LZMA_STREAM_INIT;
    bool m_atStream = true;
};

} // namespace

std::unique_ptr<Unpacker> xzUnpacker(std::uint64_t memoryLimit) {
    return std::make_unique<XzUnpacker>(memoryLimit);
}

} // namespace guide
