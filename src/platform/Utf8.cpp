#include "platform/Utf8.h"

#include "platform/Utf8Scan.h"

#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

using namespace Qt::StringLiterals;

namespace guide {

namespace {

// Copies ASCII up to the first other byte and moves both ends along.
void widenAscii(const unsigned char*& at, const unsigned char* end, char16_t*& out) {
#ifdef __SSE2__
    while (end - at >= 16) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const __m128i zero = _mm_setzero_si128();
        // The room behind `out` is as large as what is left of the input, so both halves fit in any case.
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_unpacklo_epi8(block, zero));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out + 8), _mm_unpackhi_epi8(block, zero));
        if (const int high = _mm_movemask_epi8(block); high != 0) {
            const int ascii = __builtin_ctz(static_cast<unsigned>(high));
            at += ascii;
            out += ascii;
            return;
        }
        at += 16;
        out += 16;
    }
    if (end - at >= 8) {
        const __m128i block = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(at));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_unpacklo_epi8(block, _mm_setzero_si128()));
        if (const int high = _mm_movemask_epi8(block); high != 0) {
            const int ascii = __builtin_ctz(static_cast<unsigned>(high));
            at += ascii;
            out += ascii;
            return;
        }
        at += 8;
        out += 8;
    }
#endif
    while (at < end && *at < 0x80) {
        *out++ = *at++;
    }
}

// Copies ASCII up to the first other unit and moves both ends along.
void narrowAscii(const char16_t*& at, const char16_t* end, char*& out) {
#ifdef __SSE2__
    const __m128i other = _mm_set1_epi16(static_cast<short>(0xff80));
    while (end - at >= 8) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        // Where it is not ASCII all, the bytes behind are written over.
        _mm_storel_epi64(reinterpret_cast<__m128i*>(out), _mm_packus_epi16(block, block));
        const __m128i ascii = _mm_cmpeq_epi16(_mm_and_si128(block, other), _mm_setzero_si128());
        if (const int mask = _mm_movemask_epi8(ascii); mask != 0xffff) {
            const int count = __builtin_ctz(~static_cast<unsigned>(mask)) / 2;
            at += count;
            out += count;
            return;
        }
        at += 8;
        out += 8;
    }
#endif
    while (at < end && *at < 0x80) {
        *out++ = static_cast<char>(*at++);
    }
}

} // namespace

bool readUtf8(QByteArrayView bytes, QString& text) {
    if (bytes.isEmpty()) {
        text = u""_s;
        return true;
    }
    text = QString(bytes.size(), Qt::Uninitialized);
    auto* const begin = reinterpret_cast<char16_t*>(text.data());
    char16_t* out = begin;
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
    const unsigned char* end = at + bytes.size();
    for (;;) {
        widenAscii(at, end, out);
        if (at == end) {
            break;
        }
        // Letters with marks are two bytes in most of what we read.
        if (*at >= 0xc2 && *at < 0xe0 && end - at >= 2 && isContinuation(at[1])) {
            *out++ = static_cast<char16_t>((*at & 0x1f) << 6 | (at[1] & 0x3f));
            at += 2;
            continue;
        }
        const char32_t character = takeMultibyte(at, end);
        if (character == 0) {
            return false;
        }
        if (character < 0x10000) {
            *out++ = static_cast<char16_t>(character);
        } else {
            *out++ = QChar::highSurrogate(character);
            *out++ = QChar::lowSurrogate(character);
        }
    }
    text.truncate(out - begin);
    return true;
}

char* writeUtf8(QStringView text, char* out) {
    const char16_t* at = text.utf16();
    const char16_t* end = at + text.size();
    const auto put = [&out](char32_t byte) { *out++ = static_cast<char>(byte); };
    while (at < end) {
        narrowAscii(at, end, out);
        if (at == end) {
            break;
        }
        char32_t character = *at++;
        if (character < 0x800) {
            put(0xc0 | character >> 6);
            put(0x80 | (character & 0x3f));
            continue;
        }
        if (QChar::isSurrogate(character)) {
            if (QChar::isHighSurrogate(character) && at < end && QChar::isLowSurrogate(*at)) {
                character = QChar::surrogateToUcs4(static_cast<char16_t>(character), *at++);
                put(0xf0 | character >> 18);
                put(0x80 | (character >> 12 & 0x3f));
                put(0x80 | (character >> 6 & 0x3f));
                put(0x80 | (character & 0x3f));
                continue;
            }
            character = QChar::ReplacementCharacter;
        }
        put(0xe0 | character >> 12);
        put(0x80 | (character >> 6 & 0x3f));
        put(0x80 | (character & 0x3f));
    }
    return out;
}

} // namespace guide
