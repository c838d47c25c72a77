#include "platform/archive/ArchiveContainer.h"

#include <QtEndian>

#include <array>
#include <bit>
#include <cstring>

namespace guide {

namespace {

// The first byte cannot occur in text, and a conversion of line ends breaks the signature.
constexpr std::array<char, 8> kSignature{'\x89', 'G', 'u', 'i', 'd', 'e', '\r', '\n'};
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kVersionOffset = 8;
constexpr std::size_t kChecksumOffset = 12;
static_assert(kChecksumOffset + sizeof(std::uint64_t) == kArchiveHeaderSize);

constexpr std::uint64_t kOdd1 = 0x9e3779b97f4a7c15U;
constexpr std::uint64_t kOdd2 = 0xc2b2ae3d27d4eb4fU;

// Invertible in each argument, so that changing one word always changes the sum.
constexpr std::uint64_t mixed(std::uint64_t sum, std::uint64_t word) {
    return std::rotl(sum + word * kOdd2, 31) * kOdd1;
}

} // namespace

std::uint64_t contentChecksum(QByteArrayView content) {
    const char* at = content.data();
    auto left = static_cast<std::size_t>(content.size());
    // Four independent sums: a single one would be bound by the latency of its multiplications.
    std::array<std::uint64_t, 4> lanes{kOdd1, kOdd2, ~kOdd1, ~kOdd2};
    for (; left >= 32; at += 32, left -= 32) {
        for (std::size_t lane = 0; lane < 4; ++lane) {
            lanes[lane] = mixed(lanes[lane], qFromLittleEndian<quint64>(at + lane * 8));
        }
    }
    std::uint64_t sum = static_cast<std::uint64_t>(content.size());
    for (const std::uint64_t lane : lanes) {
        sum = mixed(sum, lane);
    }
    while (left > 0) {
        std::array<char, 8> word{};
        const std::size_t taken = left < 8 ? left : 8;
        std::memcpy(word.data(), at, taken);
        sum = mixed(sum, qFromLittleEndian<quint64>(word.data()));
        at += taken;
        left -= taken;
    }
    sum = (sum ^ (sum >> 32)) * kOdd2;
    return sum ^ (sum >> 29);
}

void sealArchive(QByteArray& archive) {
    char* header = archive.data();
    std::memcpy(header, kSignature.data(), kSignature.size());
    qToBigEndian<quint32>(kVersion, header + kVersionOffset);
    const QByteArrayView content = QByteArrayView(archive).sliced(kArchiveHeaderSize);
    qToBigEndian<quint64>(contentChecksum(content), header + kChecksumOffset);
}

std::optional<QByteArrayView> archiveContent(QByteArrayView archive) {
    if (archive.size() < static_cast<qsizetype>(kArchiveHeaderSize) ||
        std::memcmp(archive.data(), kSignature.data(), kSignature.size()) != 0 ||
        qFromBigEndian<quint32>(archive.data() + kVersionOffset) != kVersion) {
        return std::nullopt;
    }
    const QByteArrayView content = archive.sliced(kArchiveHeaderSize);
    if (qFromBigEndian<quint64>(archive.data() + kChecksumOffset) != contentChecksum(content)) {
        return std::nullopt;
    }
    return content;
}

} // namespace guide
