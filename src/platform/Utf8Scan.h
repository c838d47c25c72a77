#pragma once

#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace guide {

inline constexpr std::uint64_t kHighBits = 0x8080808080808080U;

/// The first byte of the range that is not ASCII, or its end.
inline const unsigned char* afterAscii(const unsigned char* at, const unsigned char* end) {
#ifdef __SSE2__
    while (end - at >= 16) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        if (const int high = _mm_movemask_epi8(block); high != 0) {
            return at + __builtin_ctz(static_cast<unsigned>(high));
        }
        at += 16;
    }
#endif
    while (end - at >= 8) {
        std::uint64_t block;
        std::memcpy(&block, at, sizeof block);
        if ((block & kHighBits) != 0) {
            break;
        }
        at += 8;
    }
    while (at < end && *at < 0x80) {
        ++at;
    }
    return at;
}

inline bool isContinuation(unsigned char byte) {
    return (byte & 0xc0) == 0x80;
}

/// The character that begins at `at`, whose first byte is not ASCII. Moves behind it; 0 when it is malformed.
inline char32_t takeMultibyte(const unsigned char*& at, const unsigned char* end) {
    const unsigned char first = *at;
    if (first < 0xe0) {
        if (first < 0xc2 || end - at < 2 || !isContinuation(at[1])) {
            return 0;
        }
        const char32_t character = (char32_t{first} & 0x1f) << 6 | (at[1] & 0x3f);
        at += 2;
        return character;
    }
    if (first < 0xf0) {
        if (end - at < 3 || !isContinuation(at[1]) || !isContinuation(at[2])) {
            return 0;
        }
        const char32_t character =
            (char32_t{first} & 0x0f) << 12 | (char32_t{at[1]} & 0x3f) << 6 | (at[2] & 0x3f);
        if (character < 0x800 || (character >= 0xd800 && character <= 0xdfff)) {
            return 0;
        }
        at += 3;
        return character;
    }
    if (first > 0xf4 || end - at < 4 || !isContinuation(at[1]) || !isContinuation(at[2]) ||
        !isContinuation(at[3])) {
        return 0;
    }
    const char32_t character = (char32_t{first} & 0x07) << 18 | (char32_t{at[1]} & 0x3f) << 12 |
                               (char32_t{at[2]} & 0x3f) << 6 | (at[3] & 0x3f);
    if (character < 0x10000 || character > 0x10ffff) {
        return 0;
    }
    at += 4;
    return character;
}

} // namespace guide
