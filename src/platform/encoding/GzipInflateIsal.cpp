#include "platform/encoding/Decompression.h"
#include "platform/encoding/GzipInflate.h"

#ifdef QUELLIN_ISAL

#include <algorithm>
#include <isa-l/igzip_lib.h>
#include <memory>

namespace guide {

namespace {

// The library counts available bytes in 32 bits.
constexpr std::uint64_t kLargestStep = std::uint64_t{1} << 30;
constexpr qsizetype kFlagsOffset = 3;
// Text, extra field, name and comment: fields that are skipped without a check.
constexpr int kUncheckedFlags = 0x1d;

std::uint32_t step(std::uint64_t size) {
    return static_cast<std::uint32_t>(std::min(size, kLargestStep));
}

bool canReadHeader(QByteArrayView member) {
    return hasGzipSignature(member) && member.size() > kFlagsOffset &&
           (static_cast<std::uint8_t>(member[kFlagsOffset]) & ~kUncheckedFlags) == 0;
}

} // namespace

bool hasIsal() {
    return true;
}

GzipEnd inflateWithIsal(QByteArrayView data, GzipOutput& output) {
    if (!canReadHeader(data)) {
        return GzipEnd::Damaged;
    }
    const auto state = std::make_unique<inflate_state>();
    isal_inflate_init(state.get());
    state->crc_flag = ISAL_GZIP;
    state->next_in =
        const_cast<std::uint8_t*>(reinterpret_cast<const std::uint8_t*>(data.data())); // NOLINT: only read
    auto left = static_cast<std::uint64_t>(data.size());
    for (;;) {
        if (state->avail_in == 0) {
            state->avail_in = step(left);
            left -= state->avail_in;
        }
        const std::span<char> room = output.room();
        const std::uint32_t offered = step(room.size());
        state->next_out = reinterpret_cast<std::uint8_t*>(room.data());
        state->avail_out = offered;
        const std::uint32_t availableBefore = state->avail_in;
        const int outcome = isal_inflate(state.get());
        if (outcome != ISAL_DECOMP_OK) {
            return GzipEnd::Damaged;
        }
        if (!output.take(offered - state->avail_out)) {
            return GzipEnd::Stopped;
        }
        if (state->block_state == ISAL_BLOCK_FINISH) {
            const QByteArrayView rest =
                data.last(static_cast<qsizetype>(left) + static_cast<qsizetype>(state->avail_in));
            if (!hasGzipSignature(rest)) {
                return GzipEnd::Complete;
            }
            if (!canReadHeader(rest)) {
                return GzipEnd::Damaged;
            }
            isal_inflate_reset(state.get());
            state->crc_flag = ISAL_GZIP;
        } else if ((state->avail_out > 0 && left == 0 && state->avail_in == 0) ||
                   (state->avail_out == offered && state->avail_in == availableBefore)) {
            // Cut off, or nothing moves.
            return GzipEnd::Damaged;
        }
    }
}

} // namespace guide

#else

namespace guide {

bool hasIsal() {
    return false;
}

GzipEnd inflateWithIsal(QByteArrayView, GzipOutput&) {
    return GzipEnd::Damaged;
}

} // namespace guide

#endif
