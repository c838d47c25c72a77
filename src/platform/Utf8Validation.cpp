#include "platform/Utf8.h"
#include "platform/Utf8Scan.h"

#include <array>
#include <cstdint>
#include <cstring>

#ifdef __x86_64__
#include <tmmintrin.h>
#endif

namespace guide {

namespace {

bool isValidByteByByte(QByteArrayView bytes) {
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
    const unsigned char* end = at + bytes.size();
    for (;;) {
        at = afterAscii(at, end);
        if (at == end) {
            return true;
        }
        do {
            if (takeMultibyte(at, end) == 0) {
                return false;
            }
        } while (at < end && *at >= 0x80);
    }
}

#ifdef __x86_64__

// Sixteen bytes a step, without a branch on what they are: each pair of neighbours is looked up in three
// tables of what can be wrong with a pair, by the two halves of the first byte and the upper half of the
// second, and the pair is wrong where all three agree. What remains is that the third and fourth bytes of a
// long character, and no others, follow a continuation byte.
constexpr std::uint8_t kTooShort = 1 << 0;
constexpr std::uint8_t kTooLong = 1 << 1;
constexpr std::uint8_t kOverlong3 = 1 << 2;
constexpr std::uint8_t kTooLarge = 1 << 3;
constexpr std::uint8_t kSurrogate = 1 << 4;
constexpr std::uint8_t kOverlong2 = 1 << 5;
constexpr std::uint8_t kTooLarge1000 = 1 << 6;
constexpr std::uint8_t kOverlong4 = 1 << 6;
constexpr std::uint8_t kTwoContinuations = 1 << 7;
// What the lower half of the first byte has no say in.
constexpr std::uint8_t kAnyLow = kTooShort | kTooLong | kTwoContinuations;

using Table = std::array<std::uint8_t, 16>;

alignas(16) constexpr Table kFirstHigh{kTooLong,
                                       kTooLong,
                                       kTooLong,
                                       kTooLong,
                                       kTooLong,
                                       kTooLong,
                                       kTooLong,
                                       kTooLong,
                                       kTwoContinuations,
                                       kTwoContinuations,
                                       kTwoContinuations,
                                       kTwoContinuations,
                                       kTooShort | kOverlong2,
                                       kTooShort,
                                       kTooShort | kOverlong3 | kSurrogate,
                                       kTooShort | kTooLarge | kTooLarge1000 | kOverlong4};

constexpr std::uint8_t kLarge = kAnyLow | kTooLarge | kTooLarge1000;
alignas(16) constexpr Table kFirstLow{kAnyLow | kOverlong2 | kOverlong3 | kOverlong4,
                                      kAnyLow | kOverlong2,
                                      kAnyLow,
                                      kAnyLow,
                                      kAnyLow | kTooLarge,
                                      kLarge,
                                      kLarge,
                                      kLarge,
                                      kLarge,
                                      kLarge,
                                      kLarge,
                                      kLarge,
                                      kLarge,
                                      kLarge | kSurrogate,
                                      kLarge,
                                      kLarge};

constexpr std::uint8_t kContinuation = kTooLong | kOverlong2 | kTwoContinuations;
alignas(16) constexpr Table kSecondHigh{kTooShort,
                                        kTooShort,
                                        kTooShort,
                                        kTooShort,
                                        kTooShort,
                                        kTooShort,
                                        kTooShort,
                                        kTooShort,
                                        kContinuation | kOverlong3 | kTooLarge1000 | kOverlong4,
                                        kContinuation | kOverlong3 | kTooLarge,
                                        kContinuation | kSurrogate | kTooLarge,
                                        kContinuation | kSurrogate | kTooLarge,
                                        kTooShort,
                                        kTooShort,
                                        kTooShort,
                                        kTooShort};

__attribute__((target("ssse3"))) inline __m128i look(const Table& table, __m128i halves) {
    return _mm_shuffle_epi8(_mm_load_si128(reinterpret_cast<const __m128i*>(table.data())), halves);
}

// Not zero where something is wrong with a byte of the block or a pair that ends in it.
__attribute__((target("ssse3"))) inline __m128i faults(__m128i block, __m128i before) {
    const __m128i lowHalf = _mm_set1_epi8(0x0f);
    const __m128i back1 = _mm_alignr_epi8(block, before, 15);
    const __m128i pair =
        _mm_and_si128(_mm_and_si128(look(kFirstHigh, _mm_and_si128(_mm_srli_epi16(back1, 4), lowHalf)),
                                    look(kFirstLow, _mm_and_si128(back1, lowHalf))),
                      look(kSecondHigh, _mm_and_si128(_mm_srli_epi16(block, 4), lowHalf)));
    // The top bit where the byte two or three before opens a character that reaches to here.
    const __m128i third = _mm_subs_epu8(_mm_alignr_epi8(block, before, 14), _mm_set1_epi8(0xe0 - 0x80));
    const __m128i fourth = _mm_subs_epu8(_mm_alignr_epi8(block, before, 13), _mm_set1_epi8(0xf0 - 0x80));
    const __m128i due = _mm_and_si128(_mm_or_si128(third, fourth), _mm_set1_epi8(static_cast<char>(0x80)));
    return _mm_xor_si128(due, pair);
}

__attribute__((target("ssse3"))) bool isValidByBlocks(QByteArrayView bytes) {
    const char* at = bytes.data();
    auto left = static_cast<std::size_t>(bytes.size());
    __m128i before = _mm_setzero_si128();
    __m128i wrong = _mm_setzero_si128();
    const auto load = [](const char* from) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
    };
    for (; left >= 64; at += 64, left -= 64) {
        const __m128i blocks[] = {load(at), load(at + 16), load(at + 32), load(at + 48)};
        const __m128i any =
            _mm_or_si128(_mm_or_si128(blocks[0], blocks[1]), _mm_or_si128(blocks[2], blocks[3]));
        wrong = _mm_or_si128(wrong, faults(blocks[0], before));
        if (_mm_movemask_epi8(any) != 0) {
            wrong = _mm_or_si128(wrong, faults(blocks[1], blocks[0]));
            wrong = _mm_or_si128(wrong, faults(blocks[2], blocks[1]));
            wrong = _mm_or_si128(wrong, faults(blocks[3], blocks[2]));
        }
        before = blocks[3];
    }
    // The rest, and behind it zero bytes that no character may reach into.
    alignas(16) std::array<char, 80> tail{};
    std::memcpy(tail.data(), at, left);
    for (std::size_t offset = 0; offset < tail.size(); offset += 16) {
        const __m128i block = load(tail.data() + offset);
        wrong = _mm_or_si128(wrong, faults(block, before));
        before = block;
    }
    return _mm_movemask_epi8(_mm_cmpeq_epi8(wrong, _mm_setzero_si128())) == 0xffff;
}

#endif

} // namespace

bool isValidUtf8(QByteArrayView bytes) {
#ifdef __x86_64__
    static const bool hasShuffle = __builtin_cpu_supports("ssse3") != 0;
    constexpr qsizetype kWorthwhile = 64;
    if (hasShuffle && bytes.size() >= kWorthwhile) {
        return isValidByBlocks(bytes);
    }
#endif
    return isValidByteByByte(bytes);
}

} // namespace guide
