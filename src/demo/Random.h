#pragma once

#include <QByteArrayView>

#include <cstdint>

namespace guide {

/// Numbers that look random and are the same on every machine for the same seed.
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

    /// Below the bound, which is above 0.
    std::size_t below(std::size_t bound) { return std::size_t(next() % bound); }
    /// From first to last, both included.
    int between(int first, int last) { return first + int(below(std::size_t(last - first) + 1)); }
    /// True in so many of a hundred cases.
    bool percent(int chance) { return int(below(100)) < chance; }

  private:
    std::uint64_t m_state;
};

/// One seed of two, for things that must not move together.
inline std::uint64_t mixedSeed(std::uint64_t a, std::uint64_t b) {
    return Random(a ^ (Random(b).next() * 0x2545f4914f6cdd1d)).next();
}

/// The seed of a name (FNV-1a), which stays when others come and go beside it.
inline std::uint64_t namedSeed(QByteArrayView name) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char byte : name) {
        hash = (hash ^ std::uint8_t(byte)) * 0x100000001b3;
    }
    return hash;
}

} // namespace guide
