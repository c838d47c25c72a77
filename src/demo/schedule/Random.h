#pragma once

#include <QByteArrayView>

#include <cstdint>

namespace guide {

/// A pseudo-random generator (SplitMix64) with the same numbers on every platform for the same seed.
class Random {
  public:
    explicit Random(std::uint64_t seed)
        : m_state(seed) {}

    std::uint64_t next() {
        m_state += 0x9e3779b97f4a7c15;
        std::uint64_t z = m_state;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }

    /// 0 to bound - 1; bound must be positive.
    std::size_t below(std::size_t bound) { return std::size_t(next() % bound); }
    /// first to last, inclusive.
    int between(int first, int last) { return first + int(below(std::size_t(last - first) + 1)); }
    /// True with this probability in per cent.
    bool percent(int chance) { return int(below(100)) < chance; }

  private:
    std::uint64_t m_state;
};

/// Combines two seeds.
inline std::uint64_t mixedSeed(std::uint64_t a, std::uint64_t b) {
    return Random(a ^ (Random(b).next() * 0x2545f4914f6cdd1d)).next();
}

/// The seed of a name (FNV-1a).
inline std::uint64_t namedSeed(QByteArrayView name) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char byte : name) {
        hash = (hash ^ std::uint8_t(byte)) * 0x100000001b3;
    }
    return hash;
}

} // namespace guide
