#include "platform/encoding/Decompression.h"
#include "platform/encoding/GzipInflate.h"
#include "platform/encoding/Unpacker.h"

#ifdef QUELLIN_ISAL

#include <isa-l/igzip_lib.h>

namespace guide {

namespace {

constexpr qsizetype kFlagsOffset = 3;
// Text, extra field, name and comment: fields that are skipped without a check.
constexpr int kUncheckedFlags = 0x1d;

bool canReadHeader(QByteArrayView member) {
    return hasGzipSignature(member) && member.size() > kFlagsOffset &&
           (static_cast<std::uint8_t>(member[kFlagsOffset]) & ~kUncheckedFlags) == 0;
}

class IsalUnpacker final : public Unpacker {
  public:
    UnpackState unpack(PackedInput& input, std::span<char> room, std::size_t& written) override {
        written = 0;
        if (m_atMember) {
            const QByteArrayView header = input.peek(kFlagsOffset + 1);
            if (m_members > 0 && !hasGzipSignature(header)) {
                return UnpackState::Complete;
            }
            if (!canReadHeader(header)) {
                return UnpackState::Damaged;
            }
            begin();
        }
        const QByteArrayView packed = input.peek(1);
        const std::uint32_t available = unpackStep(static_cast<std::size_t>(packed.size()));
        const std::uint32_t offered = unpackStep(room.size());
        m_state.next_in = const_cast<std::uint8_t*>( // NOLINT: only read
            reinterpret_cast<const std::uint8_t*>(packed.data()));
        m_state.avail_in = available;
        m_state.next_out = reinterpret_cast<std::uint8_t*>(room.data());
        m_state.avail_out = offered;
        const int outcome = isal_inflate(&m_state);
        const std::uint32_t taken = available - m_state.avail_in;
        input.skip(taken);
        if (outcome != ISAL_DECOMP_OK) {
            return UnpackState::Damaged;
        }
        written = offered - m_state.avail_out;
        if (m_state.block_state == ISAL_BLOCK_FINISH) {
            m_atMember = true;
            ++m_members;
            return UnpackState::More;
        }
        // Cut off when nothing moves.
        return taken == 0 && written == 0 ? UnpackState::Damaged : UnpackState::More;
    }

  private:
    void begin() {
        if (m_members == 0) {
            isal_inflate_init(&m_state);
        } else {
            isal_inflate_reset(&m_state);
        }
        m_state.crc_flag = ISAL_GZIP;
        m_atMember = false;
    }

    inflate_state m_state;
    bool m_atMember = true;
    std::uint64_t m_members = 0;
};

} // namespace

bool hasIsal() {
    return true;
}

std::unique_ptr<Unpacker> isalGzipUnpacker() {
    // Without clearing the large state, which the library does itself.
    return std::unique_ptr<Unpacker>(new IsalUnpacker);
}

} // namespace guide

#else

namespace guide {

bool hasIsal() {
    return false;
}

std::unique_ptr<Unpacker> isalGzipUnpacker() {
    return nullptr;
}

} // namespace guide

#endif
